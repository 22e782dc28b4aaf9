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
