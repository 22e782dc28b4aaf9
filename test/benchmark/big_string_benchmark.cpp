/*
 * A 5 MiB big string written into a fresh parcel and read back: one copy in, one copy out. The reference is the
 * one copy of the same bytes into a freshly allocated buffer.
 */
#include <cstring>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include "message_parcel.h"
#include "parcel_util.h"
#include "share_manager_srv_proxy.h"

namespace OHOS {
namespace Zelkon {
namespace {

constexpr size_t BIG_STRING_SIZE = 5 * 1024 * 1024;

void BM_BigString(benchmark::State& state)
{
    // Below the reader's limit, which counts the terminating zero byte.
    const std::string text(BIG_STRING_SIZE - 1, 'b');
    const sptr<ShareManagerSrvProxy> reader(new ShareManagerSrvProxy(nullptr));
    for (auto _ : state) {
        MessageParcel parcel;
        std::string read;
        if (!ParcelUtil::WriteBigString(parcel, text) || !reader->ReadBigString(parcel, read)) {
            state.SkipWithError("big string round trip failed");
            break;
        }
        benchmark::DoNotOptimize(read.data());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * BIG_STRING_SIZE));
}
BENCHMARK(BM_BigString)->Unit(benchmark::kMicrosecond);

void BM_BigStringMemcpy(benchmark::State& state)
{
    const std::string text(BIG_STRING_SIZE - 1, 'b');
    for (auto _ : state) {
        std::unique_ptr<char[]> copy(new char[BIG_STRING_SIZE]);
        memcpy(copy.get(), text.c_str(), BIG_STRING_SIZE);
        benchmark::DoNotOptimize(copy.get());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * BIG_STRING_SIZE));
}
BENCHMARK(BM_BigStringMemcpy)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace Zelkon
} // namespace OHOS
