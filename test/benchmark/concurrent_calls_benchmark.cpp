/*
 * Calls from many threads against a service that takes 2 ms a request: the client holds no lock while a request
 * is on its way, so 8 threads should get nearly 8 times the throughput of one.
 */
#include <benchmark/benchmark.h>

#include "benchmark_fixtures.h"
#include "share_manager_client.h"

namespace OHOS {
namespace Zelkon {
namespace {

void BM_ConcurrentCalls(benchmark::State& state)
{
    SlowManagerService();
    ShareManagerClient& client = ShareManagerClient::GetInstance();
    for (auto _ : state) {
        if (!client.IsEnabled()) {
            state.SkipWithError("the call failed");
            break;
        }
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ConcurrentCalls)->Threads(1)->Threads(8)->UseRealTime()->MinTime(1.0);

} // namespace
} // namespace Zelkon
} // namespace OHOS
