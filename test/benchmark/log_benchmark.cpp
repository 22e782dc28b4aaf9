/*
 * What a DEBUG line costs when the threshold filters it out: every request logs its enter and exit lines, so
 * this cost is paid twice per call.
 */
#include <benchmark/benchmark.h>

#include "share_log.h"

namespace OHOS {
namespace Zelkon {
namespace {

__attribute__((noinline)) void EmptyCall()
{
    asm volatile("");
}

void BM_EmptyCall(benchmark::State& state)
{
    for (auto _ : state) {
        EmptyCall();
    }
}
BENCHMARK(BM_EmptyCall);

void BM_FilteredDebugLog(benchmark::State& state)
{
    for (auto _ : state) {
        SHARE_CLIENT_LOGD("Publish Enter");
    }
}
BENCHMARK(BM_FilteredDebugLog);

} // namespace
} // namespace Zelkon
} // namespace OHOS
