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
 * What records cost on the wire, each beside the memcpy of the same bytes: one filled device record written and
 * read back, a reply of 1000 of them read by the user-list reader, and a 5 MiB big string written and read back.
 */
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <sys/mman.h>

#include <benchmark/benchmark.h>

#include "message_parcel.h"
#include "parcel_util.h"
#include "sample_records.h"
#include "share_manager_srv_proxy.h"
#include "workloads.h"

namespace OHOS {
namespace Zelkon {
namespace {

constexpr int32_t RECORDS = 1000;
constexpr size_t BIG_STRING_SIZE = 5 * 1024 * 1024;

const ShareDeviceInfo DEVICE = FilledDeviceWithLargeAvatar();

size_t RecordSize()
{
    Parcel parcel;
    DEVICE.Marshalling(parcel);
    return parcel.GetDataSize();
}

std::string UserListBytes()
{
    MessageParcel reply;
    reply.WriteInt32(RECORDS);
    for (int32_t i = 0; i < RECORDS; ++i) {
        DEVICE.Marshalling(reply);
    }
    return std::string(reinterpret_cast<const char*>(reply.GetData()), reply.GetDataSize());
}

// The source, the wire and the target of the memcpy references, each as large as what it stands for.
struct CopyBuffers {
    explicit CopyBuffers(size_t size) : source(size, 'r'), wire(size), target(size) {}
    std::vector<char> source;
    std::vector<char> wire;
    std::vector<char> target;
};

CopyBuffers& RecordBuffers()
{
    static CopyBuffers buffers(RecordSize());
    return buffers;
}

const std::string& UserList()
{
    static const std::string bytes = UserListBytes();
    return bytes;
}

std::vector<std::unique_ptr<MessageParcel>>& UserListReplies()
{
    static std::vector<std::unique_ptr<MessageParcel>> replies;
    return replies;
}

const std::string& BigText()
{
    // Below the reader's limit, which counts the terminating zero byte.
    static const std::string text(BIG_STRING_SIZE - 1, 'b');
    return text;
}
} // namespace

bool RecordRoundTrip()
{
    Parcel parcel;
    ShareDeviceInfo read;
    const bool ok = DEVICE.Marshalling(parcel) && read.ReadFromParcel(parcel);
    benchmark::DoNotOptimize(read);
    return ok;
}

bool RecordMemcpy()
{
    CopyBuffers& buffers = RecordBuffers();
    memcpy(buffers.wire.data(), buffers.source.data(), buffers.wire.size());
    benchmark::ClobberMemory();
    memcpy(buffers.target.data(), buffers.wire.data(), buffers.target.size());
    benchmark::ClobberMemory();
    return true;
}

void PrepareUserListReplies(size_t count)
{
    for (size_t i = 0; i < count; ++i) {
        auto reply = std::make_unique<MessageParcel>();
        reply->SetMaxCapacity(UserList().size());
        reply->WriteBuffer(UserList().data(), UserList().size());
        UserListReplies().push_back(std::move(reply));
    }
}

bool UserListRead()
{
    if (UserListReplies().empty()) {
        return false;
    }
    std::unique_ptr<MessageParcel> reply = std::move(UserListReplies().back());
    UserListReplies().pop_back();
    std::vector<ShareDeviceInfo> devices;
    const bool ok =
        ShareManagerSrvProxy::ReadDeviceList(*reply, devices, SHARE_LOG_SITE, "") && devices.size() == RECORDS;
    benchmark::DoNotOptimize(devices.data());
    return ok;
}

bool UserListMemcpy()
{
    static std::vector<char> copy(UserList().size());
    memcpy(copy.data(), UserList().data(), copy.size());
    benchmark::ClobberMemory();
    return true;
}

bool BigString()
{
    static const sptr<ShareManagerSrvProxy> reader(new ShareManagerSrvProxy(nullptr));
    MessageParcel parcel;
    std::string read;
    const bool ok = ParcelUtil::WriteBigString(parcel, BigText()) && reader->ReadBigString(parcel, read);
    benchmark::DoNotOptimize(read.data());
    return ok;
}

bool BigStringFreshCopy()
{
    void* block = mmap(nullptr, BIG_STRING_SIZE, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (block == MAP_FAILED) {
        return false;
    }
    memcpy(block, BigText().c_str(), BIG_STRING_SIZE);
    benchmark::ClobberMemory();
    munmap(block, BIG_STRING_SIZE);
    return true;
}

namespace {
void BM_RecordRoundTrip(benchmark::State& state)
{
    MeasureWorkload(state, RecordRoundTrip);
}
BENCHMARK(BM_RecordRoundTrip);

void BM_RecordMemcpy(benchmark::State& state)
{
    MeasureWorkload(state, RecordMemcpy, RecordBuffers().wire.size());
}
BENCHMARK(BM_RecordMemcpy);

void BM_UserListRead(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        PrepareUserListReplies(1);
        state.ResumeTiming();
        if (!UserListRead()) {
            state.SkipWithError("the list was not read");
            break;
        }
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * UserList().size()));
}
BENCHMARK(BM_UserListRead)->Unit(benchmark::kMicrosecond);

void BM_UserListMemcpy(benchmark::State& state)
{
    MeasureWorkload(state, UserListMemcpy, UserList().size());
}
BENCHMARK(BM_UserListMemcpy)->Unit(benchmark::kMicrosecond);

void BM_BigString(benchmark::State& state)
{
    MeasureWorkload(state, BigString, BIG_STRING_SIZE);
}
BENCHMARK(BM_BigString)->Unit(benchmark::kMicrosecond);

void BM_BigStringFreshCopy(benchmark::State& state)
{
    MeasureWorkload(state, BigStringFreshCopy, BIG_STRING_SIZE);
}
BENCHMARK(BM_BigStringFreshCopy)->Unit(benchmark::kMicrosecond);
} // namespace

} // namespace Zelkon
} // namespace OHOS
