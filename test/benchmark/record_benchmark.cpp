/*
 * What records cost on the wire, each beside the memcpy of the same bytes: one filled device record written and
 * read back, a reply of 1000 of them read by the user-list reader, and a 5 MiB big string written and read back.
 */
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "message_parcel.h"
#include "parcel_util.h"
#include "sample_records.h"
#include "share_manager_srv_proxy.h"

namespace OHOS {
namespace Zelkon {
namespace {

constexpr int32_t RECORDS = 1000;
constexpr size_t BIG_STRING_SIZE = 5 * 1024 * 1024;

// The copy of the bytes into a fresh buffer, and out again when twice.
void Memcpy(benchmark::State& state, size_t size, bool twice)
{
    const std::vector<char> source(size, 'r');
    std::vector<char> wire(size);
    std::vector<char> target(size);
    for (auto _ : state) {
        memcpy(wire.data(), source.data(), size);
        benchmark::ClobberMemory();
        if (twice) {
            memcpy(target.data(), wire.data(), size);
            benchmark::ClobberMemory();
        }
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * size));
}

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

void BM_RecordMemcpy(benchmark::State& state)
{
    Parcel parcel;
    FilledDeviceWithLargeAvatar().Marshalling(parcel);
    Memcpy(state, parcel.GetDataSize(), true);
}
BENCHMARK(BM_RecordMemcpy);

std::string UserListReply()
{
    MessageParcel reply;
    reply.WriteInt32(RECORDS);
    const ShareDeviceInfo device = FilledDeviceWithLargeAvatar();
    for (int32_t i = 0; i < RECORDS; ++i) {
        device.Marshalling(reply);
    }
    return std::string(reinterpret_cast<const char*>(reply.GetData()), reply.GetDataSize());
}

void BM_UserListRead(benchmark::State& state)
{
    const std::string bytes = UserListReply();
    for (auto _ : state) {
        state.PauseTiming();
        MessageParcel reply;
        reply.SetMaxCapacity(bytes.size());
        reply.WriteBuffer(bytes.data(), bytes.size());
        state.ResumeTiming();
        std::vector<ShareDeviceInfo> devices;
        if (!ShareManagerSrvProxy::ReadDeviceList(reply, devices, SHARE_LOG_SITE, "") || devices.size() != RECORDS) {
            state.SkipWithError("the list was not read");
            break;
        }
        benchmark::DoNotOptimize(devices.data());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(BM_UserListRead)->Unit(benchmark::kMicrosecond);

void BM_UserListMemcpy(benchmark::State& state)
{
    Memcpy(state, UserListReply().size(), false);
}
BENCHMARK(BM_UserListMemcpy)->Unit(benchmark::kMicrosecond);

// One copy in, one copy out.
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

// The one copy of the same bytes into a freshly allocated buffer.
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
