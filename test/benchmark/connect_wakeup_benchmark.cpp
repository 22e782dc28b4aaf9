/*
 * How long a caller waiting in Connect takes to return once the load callback hands over the service: manual
 * time, from the callback to the caller's return. The service is dropped before each round and the load that the
 * waiting Connect asks for is scripted to fail, so that only the callback of the benchmark can wake it.
 */
#include <algorithm>
#include <chrono>
#include <thread>
#include <vector>

#include <benchmark/benchmark.h>

#include "benchmark_fixtures.h"
#include "samgr_host_control.h"
#include "share_client.h"
#include "zelkon_service_load_callback.h"

namespace OHOS {
namespace Zelkon {
namespace {

using Clock = std::chrono::steady_clock;
constexpr int32_t SHARE_SA_ID = 65569;

void WaitForLoadRequest(int loadsBefore)
{
    while (SamgrHostControl::LoadCount(SHARE_SA_ID) == loadsBefore) {
        std::this_thread::yield();
    }
}

void BM_ConnectWakeup(benchmark::State& state)
{
    const sptr<IRemoteObject> remote = FastShareService();
    const sptr<ZelkonServiceLoadCallback> callback(new ZelkonServiceLoadCallback());
    ShareClient& client = ShareClient::GetInstance();
    std::vector<double> seconds;
    for (auto _ : state) {
        client.ResetProxy(remote);
        SamgrHostControl::ScriptLoads(LoadScript{LoadScript::Outcome::FAIL}, 1);
        const int loadsBefore = SamgrHostControl::LoadCount(SHARE_SA_ID);
        Clock::time_point returned;
        int32_t connected = -1;
        std::thread waiter([&] {
            connected = client.Connect();
            returned = Clock::now();
        });
        // Connect holds the client's lock from its load request until it waits: the callback's store cannot
        // come before the wait.
        WaitForLoadRequest(loadsBefore);
        const Clock::time_point called = Clock::now();
        callback->OnLoadSystemAbilitySuccess(SHARE_SA_ID, remote);
        waiter.join();
        if (connected != 0) {
            state.SkipWithError("Connect was not woken");
            break;
        }
        seconds.push_back(std::chrono::duration<double>(returned - called).count());
        state.SetIterationTime(seconds.back());
    }
    if (!seconds.empty()) {
        std::nth_element(seconds.begin(), seconds.begin() + seconds.size() / 2, seconds.end());
        state.counters["median_us"] = seconds[seconds.size() / 2] * 1e6;
    }
}
BENCHMARK(BM_ConnectWakeup)->UseManualTime()->Iterations(500)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace Zelkon
} // namespace OHOS
