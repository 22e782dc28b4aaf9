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
 * One run of each measured operation and of its reference, shared by the benchmarks (time) and by the instruction
 * counter (`share_benchmark --loop NAME COUNT` under callgrind). Each returns false if the operation failed.
 */
#ifndef WORKLOADS_H
#define WORKLOADS_H

#include <cstddef>

#include <benchmark/benchmark.h>

namespace OHOS {
namespace Zelkon {

struct Workload {
    const char* name;
    bool (*run)();
};

// The filled device record with a 2 KiB avatar written into a fresh parcel and read back; two copies of as many
// bytes as the reference.
bool RecordRoundTrip();
bool RecordMemcpy();
// A reply of 1000 filled device records read by the user-list reader; one copy of the reply as the reference.
// Each run reads a reply parcel prepared beforehand (PrepareUserListReplies), so that only the read is measured.
void PrepareUserListReplies(size_t count);
bool UserListRead();
bool UserListMemcpy();
// A 5 MiB big string written into a fresh parcel and read back; one copy of it into fresh memory as the reference
// (anonymous memory mapped, written, unmapped: the block and the result string both land in new pages).
bool BigString();
bool BigStringFreshCopy();
// A whole ShareClient call against the bare SendRequest of the same bytes through the same remote object.
bool ClientCall();
bool BareSendRequest();

// Runs a workload as a benchmark; bytes, when given, is how much it moves per run.
void MeasureWorkload(benchmark::State& state, bool (*run)(), size_t bytes = 0);

} // namespace Zelkon
} // namespace OHOS

#endif // WORKLOADS_H
