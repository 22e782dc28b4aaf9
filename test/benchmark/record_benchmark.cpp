/*
 * What records cost on the wire: one filled device record written and read back, and a reply of 1000 of them read
 * by the user-list reader, each beside the memcpy of the same bytes.
 */
#include <cstring>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "benchmark_fixtures.h"
#include "parcel.h"
#include "sample_records.h"
#include "share_device_info.h"

namespace OHOS {
namespace Zelkon {
namespace {

void BM_RecordRoundTrip(benchmark::State& state)
{
    const ShareDeviceInfo device = FilledDeviceWithLargeAvatar();
    for (auto _ : state) {
        Parcel parcel;
        ShareDeviceInfo read;
        if (!device.Marshalling(parcel) || !read.ReadFromParcel(parcel)) {
            state.SkipWithError("round trip failed");
            break;
        }
        benchmark::DoNotOptimize(read);
    }
}
BENCHMARK(BM_RecordRoundTrip);

// The copy in and the copy out of the record's bytes, with nothing else.
void BM_RecordMemcpy(benchmark::State& state)
{
    const size_t size = WrittenSize(FilledDeviceWithLargeAvatar());
    std::vector<char> source(size, 'r');
    std::vector<char> wire(size);
    std::vector<char> target(size);
    for (auto _ : state) {
        memcpy(wire.data(), source.data(), size);
        benchmark::ClobberMemory();
        memcpy(target.data(), wire.data(), size);
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * size));
}
BENCHMARK(BM_RecordMemcpy);

} // namespace
} // namespace Zelkon
} // namespace OHOS
