/*
 * A reply of 1000 filled device records read by the user-list reader, beside the memcpy of the reply's bytes.
 */
#include <cstring>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "benchmark_fixtures.h"
#include "message_parcel.h"
#include "sample_records.h"
#include "share_manager_srv_proxy.h"

namespace OHOS {
namespace Zelkon {
namespace {

constexpr int32_t RECORDS = 1000;

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
    const std::string bytes = UserListReply();
    std::vector<char> copy(bytes.size());
    for (auto _ : state) {
        memcpy(copy.data(), bytes.data(), bytes.size());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(BM_UserListMemcpy)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace Zelkon
} // namespace OHOS
