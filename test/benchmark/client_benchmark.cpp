/*
 * Copyright (c) 2026 The libshare_client Authors.
 * Licensed under the Apache License, Version 2.0 (the "License");
 * you may not use this file except in compliance with the License.
 * You may obtain a copy of the License at
 *
 *     http://www.apache.org/licenses/LICENSE-2.0
 *
 * Unless required by applicable law or agreed to in writing, software
 * distributed under the License is distributed on an "AS IS" BASIS,
 * WITHOUT WARRANTIES OR CONDITIONS OF ANY KIND, either express or implied.
 * See the License for the specific language governing permissions and
 * limitations under the License.
 */

/*
 * What the clients add to a request: a whole ShareClient call against the bare SendRequest of the same bytes
 * through the same remote object; many threads calling a service that takes 2 ms a request (the client holds no
 * lock while a request is on its way, so 8 threads should get nearly 8 times the throughput of one); and how long a
 * caller waiting in Connect takes to return once the load callback hands over the service.
 */
#include <algorithm>
#include <chrono>
#include <thread>
#include <vector>

#include <benchmark/benchmark.h>

#include "iservice_registry.h"
#include "message_option.h"
#include "reply_stub.h"
#include "samgr_host_control.h"
#include "share_client.h"
#include "share_manager_client.h"
#include "workloads.h"
#include "zelkon_service_load_callback.h"

namespace OHOS {
namespace Zelkon {
namespace {

using Clock = std::chrono::steady_clock;
constexpr uint32_t ENABLE_DISCOVERY_POLICY = 11;
constexpr uint8_t TRUE_REPLY[] = {1, 0, 0, 0};

sptr<ISystemAbilityManager> Manager()
{
    return SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
}

// The share service, loaded once, answering every request with true at once; the remote object that the share
// client talks to. ShareClient is connected to it on return.
sptr<IRemoteObject> FastShareService()
{
    static const sptr<IRemoteObject> remote = [] {
        sptr<ReplyStub> stub(new ReplyStub(u"ohos.Zelkon.ZelkonService"));
        stub->AnswerWith(TRUE_REPLY, sizeof(TRUE_REPLY), false);
        SamgrHostControl::RegisterLoader(SHARE_SERVICE_SA_ID, [stub] { return sptr<IRemoteObject>(stub); });
        ShareClient::GetInstance().Connect();
        return Manager()->CheckSystemAbility(SHARE_SERVICE_SA_ID);
    }();
    return remote;
}

// The share manager service, answering every request with true after 2 ms.
class SlowStub : public IPCObjectStub {
public:
    SlowStub() : IPCObjectStub(u"ohos.Zelkon.IWidgetService") {}
    int OnRemoteRequest(uint32_t, MessageParcel&, MessageParcel& reply, MessageOption&) override
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        return reply.WriteBool(true) ? ERR_NONE : ERR_INVALID_DATA;
    }
};

} // namespace

bool ClientCall()
{
    static const sptr<IRemoteObject> connected = FastShareService();
    return ShareClient::GetInstance().EnableDiscoveryPolicy(1) == 1;
}

bool BareSendRequest()
{
    static const sptr<IRemoteObject> remote = FastShareService();
    static MessageParcel* const data = [] {
        auto* request = new MessageParcel();
        request->WriteInterfaceToken(u"ohos.Zelkon.ZelkonService");
        request->WriteInt32(1);
        return request;
    }();
    MessageParcel reply;
    MessageOption option(MessageOption::TF_SYNC, 8);
    return remote->SendRequest(ENABLE_DISCOVERY_POLICY, *data, reply, option) == 0 && reply.ReadBool();
}

namespace {
void BM_ClientCall(benchmark::State& state)
{
    MeasureWorkload(state, ClientCall);
}
BENCHMARK(BM_ClientCall);

void BM_BareSendRequest(benchmark::State& state)
{
    MeasureWorkload(state, BareSendRequest);
}
BENCHMARK(BM_BareSendRequest);

void BM_ConcurrentCalls(benchmark::State& state)
{
    static const bool added = Manager()->AddSystemAbility(SHARE_MANAGER_SA_ID, new SlowStub()) == 0;
    ShareManagerClient& client = ShareManagerClient::GetInstance();
    for (auto _ : state) {
        if (!added || !client.IsEnabled()) {
            state.SkipWithError("the call failed");
            break;
        }
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ConcurrentCalls)->Threads(1)->Threads(8)->UseRealTime()->MinTime(1.0);

// Manual time, from the callback to the caller's return. The service is dropped before each round and the load
// that the waiting Connect asks for is scripted to fail, so that only the callback of the benchmark can wake it.
void BM_ConnectWakeup(benchmark::State& state)
{
    const sptr<IRemoteObject> remote = FastShareService();
    const sptr<ZelkonServiceLoadCallback> callback(new ZelkonServiceLoadCallback());
    ShareClient& client = ShareClient::GetInstance();
    std::vector<double> seconds;
    for (auto _ : state) {
        client.ResetProxy(remote);
        SamgrHostControl::ScriptLoads(LoadScript{LoadScript::Outcome::FAIL}, 1);
        const int loadsBefore = SamgrHostControl::LoadCount(SHARE_SERVICE_SA_ID);
        Clock::time_point returned;
        int32_t connected = -1;
        std::thread waiter([&] {
            connected = client.Connect();
            returned = Clock::now();
        });
        // Connect holds the client's lock from its load request until it waits: the callback's store cannot
        // come before the wait.
        while (SamgrHostControl::LoadCount(SHARE_SERVICE_SA_ID) == loadsBefore) {
            std::this_thread::yield();
        }
        const Clock::time_point called = Clock::now();
        callback->OnLoadSystemAbilitySuccess(SHARE_SERVICE_SA_ID, remote);
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
