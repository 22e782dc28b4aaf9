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

#include "workloads.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace OHOS {
namespace Zelkon {
namespace {
const Workload WORKLOADS[] = {
    {"record-round-trip", RecordRoundTrip},
    {"record-memcpy", RecordMemcpy},
    {"user-list-read", UserListRead},
    {"user-list-memcpy", UserListMemcpy},
    {"big-string", BigString},
    {"big-string-fresh-copy", BigStringFreshCopy},
    {"client-call", ClientCall},
    {"bare-send-request", BareSendRequest},
};

// Runs the workload count times, for an instruction count: callgrind over count and twice count runs, the
// difference divided by count, is what one run costs.
int Loop(const char* name, const char* countText)
{
    const int count = std::atoi(countText);
    for (const Workload& workload : WORKLOADS) {
        if (std::strcmp(workload.name, name) != 0) {
            continue;
        }
        if (workload.run == UserListRead) {
            PrepareUserListReplies(static_cast<size_t>(count));
        }
        for (int i = 0; i < count; ++i) {
            if (!workload.run()) {
                std::fprintf(stderr, "%s failed\n", name);
                return EXIT_FAILURE;
            }
        }
        return EXIT_SUCCESS;
    }
    std::fprintf(stderr, "unknown workload %s\n", name);
    return EXIT_FAILURE;
}
} // namespace

void MeasureWorkload(benchmark::State& state, bool (*run)(), size_t bytes)
{
    for (auto _ : state) {
        if (!run()) {
            state.SkipWithError("the operation failed");
            break;
        }
    }
    if (bytes > 0) {
        state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
    }
}

} // namespace Zelkon
} // namespace OHOS

int main(int argc, char** argv)
{
    if (argc == 4 && std::strcmp(argv[1], "--loop") == 0) {
        return OHOS::Zelkon::Loop(argv[2], argv[3]);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return EXIT_FAILURE;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
