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

#include <gtest/gtest.h>

#include <cstring>
#include <fcntl.h>
#include <functional>
#include <string>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

#include "ipc_types.h"
#include "message_parcel.h"
#include "parcel_bytes.h"
#include "process_boundary.h"
#include "scripted_stub.h"

namespace OHOS {
namespace {

constexpr size_t RECORD_SIZE = 24;

std::vector<uint8_t> Word(uint32_t value)
{
    return {static_cast<uint8_t>(value), static_cast<uint8_t>(value >> 8), static_cast<uint8_t>(value >> 16),
            static_cast<uint8_t>(value >> 24)};
}

std::vector<uint8_t> Pattern(size_t size)
{
    std::vector<uint8_t> bytes(size);
    for (size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<uint8_t>(i * 7 + 3);
    }
    return bytes;
}

uint64_t U64At(const std::vector<uint8_t>& bytes, size_t offset)
{
    uint64_t value = 0;
    std::memcpy(&value, bytes.data() + offset, sizeof(value));
    return value;
}

bool FdIsOpen(int fd)
{
    return fcntl(fd, F_GETFD) != -1;
}

TEST(MessageParcelTest, InterfaceTokenHasThePlatformLayout)
{
    const struct {
        std::u16string name;
        size_t size;
    } cases[] = {{u"ohos.Zelkon.ZelkonService", 64}, {u"ohos.Zelkon.IWidgetService", 68}, {u"", 16}};
    for (const auto& c : cases) {
        MessageParcel parcel;
        ASSERT_TRUE(parcel.WriteInterfaceToken(c.name));
        std::vector<uint8_t> expected = Word(0x100);
        for (uint32_t word : {0u, static_cast<uint32_t>(c.name.size())}) {
            const std::vector<uint8_t> bytes = Word(word);
            expected.insert(expected.end(), bytes.begin(), bytes.end());
        }
        for (char16_t unit : c.name) {
            expected.push_back(static_cast<uint8_t>(unit));
            expected.push_back(static_cast<uint8_t>(unit >> 8));
        }
        expected.resize(expected.size() + 2 + (expected.size() + 2) % 4, 0);
        EXPECT_EQ(parcel.GetDataSize(), c.size);
        EXPECT_EQ(BytesOf(parcel), expected);
        EXPECT_EQ(parcel.GetInterfaceToken(), c.name);
        EXPECT_EQ(parcel.ReadInterfaceToken(), c.name);
        EXPECT_EQ(parcel.GetReadPosition(), c.size);
    }
}

TEST(MessageParcelTest, RawDataRoundTripsInlineAndThroughSharedMemory)
{
    const struct {
        size_t size;
        bool shared;
    } cases[] = {{1, false}, {3, false}, {32767, false}, {32768, false}, {32769, true}, {5 * 1024 * 1024, true}};
    for (const auto& c : cases) {
        const std::vector<uint8_t> payload = Pattern(c.size);
        MessageParcel parcel;
        ASSERT_TRUE(parcel.WriteUint32(static_cast<uint32_t>(c.size)));
        ASSERT_TRUE(parcel.WriteRawData(payload.data(), payload.size())) << c.size;
        EXPECT_EQ(parcel.GetRawDataSize(), c.size);
        const size_t body = c.shared ? RECORD_SIZE : (c.size + 3) / 4 * 4;
        EXPECT_EQ(parcel.GetDataSize(), 8 + body) << c.size;
        EXPECT_EQ(parcel.ContainFileDescriptors(), c.shared) << c.size;
        const std::vector<uint8_t> bytes = BytesOf(parcel);
        // The size appears twice: the caller's word, then the one WriteRawData writes.
        EXPECT_EQ(std::vector<uint8_t>(bytes.begin() + 4, bytes.begin() + 8), Word(static_cast<uint32_t>(c.size)));

        EXPECT_EQ(parcel.ReadUint32(), c.size);
        const auto* read = static_cast<const uint8_t*>(parcel.ReadRawData(c.size));
        ASSERT_NE(read, nullptr) << c.size;
        EXPECT_EQ(std::memcmp(read, payload.data(), c.size), 0) << c.size;
        EXPECT_EQ(parcel.GetReadPosition(), parcel.GetDataSize()) << c.size;
    }
}

TEST(MessageParcelTest, FileDescriptorIsCarriedAsADupThatTheParcelCloses)
{
    int pipeFds[2];
    ASSERT_EQ(pipe(pipeFds), 0);
    int carried = -1;
    {
        MessageParcel parcel;
        ASSERT_TRUE(parcel.WriteFileDescriptor(pipeFds[1]));
        ASSERT_EQ(parcel.GetDataSize(), RECORD_SIZE);
        EXPECT_TRUE(parcel.ContainFileDescriptors());
        const std::vector<uint8_t> bytes = BytesOf(parcel);
        EXPECT_EQ(std::vector<uint8_t>(bytes.begin(), bytes.begin() + 8),
                  std::vector<uint8_t>({0x85, 0x2a, 0x64, 0x66, 0x7f, 0x01, 0x00, 0x00}));
        carried = static_cast<int>(U64At(bytes, 8));
        EXPECT_NE(carried, pipeFds[1]);
        EXPECT_TRUE(FdIsOpen(carried));

        const int read = parcel.ReadFileDescriptor();
        ASSERT_GE(read, 0);
        EXPECT_NE(read, carried);
        ASSERT_EQ(write(read, "z", 1), 1);
        char got = 0;
        ASSERT_EQ(::read(pipeFds[0], &got, 1), 1);
        EXPECT_EQ(got, 'z');
        close(read);
    }
    EXPECT_FALSE(FdIsOpen(carried));
    close(pipeFds[0]);
    close(pipeFds[1]);
}

TEST(MessageParcelTest, RemoteObjectRecordsAreTypedByLocality)
{
    sptr<IRemoteObject> stub = new Zelkon::ScriptedStub(u"test.Stub");
    sptr<IRemoteObject> remote = ProcessBoundary::Translate(stub);
    const struct {
        sptr<IRemoteObject> object;
        std::vector<uint8_t> head;
    } cases[] = {{stub, {0x85, 0x2a, 0x62, 0x73, 0x7f, 0x01, 0x00, 0x00}},
                 {remote, {0x85, 0x2a, 0x68, 0x73, 0x7f, 0x01, 0x00, 0x00}}};
    for (const auto& c : cases) {
        MessageParcel parcel;
        ASSERT_TRUE(parcel.WriteRemoteObject(c.object));
        const std::vector<uint8_t> bytes = BytesOf(parcel);
        ASSERT_EQ(bytes.size(), RECORD_SIZE);
        EXPECT_EQ(std::vector<uint8_t>(bytes.begin(), bytes.begin() + 8), c.head);
        EXPECT_EQ(parcel.ReadRemoteObject(), c.object);
        EXPECT_EQ(parcel.GetReadPosition(), RECORD_SIZE);
    }
}

// A record sits between an int32 and a string; each read that would take one of its bytes as plain data fails, on
// the writing side and after crossing the process boundary alike: a number still moves past the bytes it refused,
// a string is rewound.
TEST(MessageParcelTest, PlainReadsMayNotOverlapAnObjectRecord)
{
    sptr<IRemoteObject> stub = new Zelkon::ScriptedStub(u"test.Stub");
    MessageParcel sent;
    sent.WriteInt32(7);
    ASSERT_TRUE(sent.WriteRemoteObject(stub));
    sent.WriteString("after");
    MessageParcel received;
    ASSERT_TRUE(ProcessBoundary::Copy(sent, received));

    const struct {
        const char* name;
        size_t from;
        std::function<bool(MessageParcel&)> read;
        size_t position;
    } cases[] = {
        {"int32 on the record", 4,
         [](MessageParcel& p) {
             int32_t v;
             return p.ReadInt32(v);
         },
         8},
        {"int64 across its start", 0,
         [](MessageParcel& p) {
             int64_t v;
             return p.ReadInt64(v);
         },
         8},
        {"string whose body runs into it", 0,
         [](MessageParcel& p) {
             std::string v;
             return p.ReadString(v);
         },
         0},
    };
    for (MessageParcel* parcel : {&sent, &received}) {
        for (const auto& c : cases) {
            SCOPED_TRACE(c.name);
            ASSERT_TRUE(parcel->RewindRead(c.from));
            EXPECT_FALSE(c.read(*parcel));
            EXPECT_EQ(parcel->GetReadPosition(), c.position);
        }
        // What surrounds the record still reads.
        ASSERT_TRUE(parcel->RewindRead(0));
        EXPECT_EQ(parcel->ReadInt32(), 7);
        EXPECT_NE(parcel->ReadRemoteObject(), nullptr);
        EXPECT_EQ(parcel->ReadString(), "after");
    }
}

// A rewind over a descriptor's record drops it: the parcel no longer carries it, reading it fails, and a record
// written in its place replaces it (the dropped descriptor is closed then, not leaked).
TEST(MessageParcelTest, ARecordDroppedByARewindIsNoLongerCarried)
{
    int fds[2];
    ASSERT_EQ(pipe(fds), 0);
    MessageParcel parcel;
    ASSERT_TRUE(parcel.WriteFileDescriptor(fds[0]));
    const int dropped = static_cast<int>(U64At(BytesOf(parcel), 8));
    ASSERT_TRUE(parcel.RewindWrite(8));
    EXPECT_FALSE(parcel.ContainFileDescriptors());
    EXPECT_EQ(parcel.ReadFileDescriptor(), INVALID_FD);
    ASSERT_TRUE(parcel.RewindWrite(0));
    ASSERT_TRUE(parcel.WriteFileDescriptor(fds[1]));
    EXPECT_FALSE(FdIsOpen(dropped));
    EXPECT_TRUE(parcel.ContainFileDescriptors());
    const int read = parcel.ReadFileDescriptor();
    EXPECT_GE(read, 0);
    close(read);
    close(fds[0]);
    close(fds[1]);
}

// A record that SetDataSize cut off does not travel, and the descriptor's number is not written past the copied
// data (ASan sees that).
TEST(MessageParcelTest, RecordCutBySetDataSizeDoesNotCross)
{
    int fds[2];
    ASSERT_EQ(pipe(fds), 0);
    MessageParcel sent;
    sent.WriteInt32(7);
    ASSERT_TRUE(sent.WriteFileDescriptor(fds[0]));
    ASSERT_TRUE(sent.SetDataSize(4 + RECORD_SIZE / 2));
    MessageParcel received;
    ASSERT_TRUE(ProcessBoundary::Copy(sent, received));
    EXPECT_EQ(received.GetDataSize(), 4 + RECORD_SIZE / 2);
    EXPECT_EQ(received.ReadInt32(), 7);
    EXPECT_EQ(received.ReadFileDescriptor(), INVALID_FD);
    EXPECT_FALSE(received.ContainFileDescriptors());
    close(fds[0]);
    close(fds[1]);
}

// What a receiver learns while reading stays with the parcel: the token, the size of the raw data, the message of
// an exception. A read that meets a record it cannot use still takes the record, as a device's driver does.
TEST(MessageParcelTest, ReceivedParcelsKeepWhatTheyReadAndPassRecordsTheyRefuse)
{
    sptr<IRemoteObject> stub = new Zelkon::ScriptedStub(u"test.Stub");
    const int smallBlock = memfd_create("small", 0);
    ASSERT_GE(smallBlock, 0);
    ASSERT_EQ(ftruncate(smallBlock, 16), 0);
    const std::vector<uint8_t> bigRaw = Pattern(40000);
    const struct {
        const char* name;
        std::function<void(MessageParcel&)> write;
        std::function<void(MessageParcel&)> readAndCheck;
        size_t position;
    } cases[] = {
        {"token", [](MessageParcel& p) { p.WriteInterfaceToken(u"test.Token"); },
         [](MessageParcel& p) {
             EXPECT_EQ(p.GetInterfaceToken(), u"");
             p.ReadInterfaceToken();
             EXPECT_EQ(p.GetInterfaceToken(), u"test.Token");
         },
         36},
        {"inline raw data", [](MessageParcel& p) { p.WriteRawData("abc", 3); },
         [](MessageParcel& p) {
             EXPECT_NE(p.ReadRawData(3), nullptr);
             EXPECT_EQ(p.GetRawDataSize(), 3u);
         },
         8},
        {"raw data in shared memory", [&](MessageParcel& p) { p.WriteRawData(bigRaw.data(), bigRaw.size()); },
         [&](MessageParcel& p) {
             EXPECT_NE(p.ReadRawData(bigRaw.size()), nullptr);
             EXPECT_EQ(p.GetRawDataSize(), bigRaw.size());
         },
         4 + RECORD_SIZE},
        {"exception with its message",
         [](MessageParcel& p) {
             p.WriteInt32(-5);
             p.WriteString16(u"boom");
             p.WriteInt32(7);
         },
         [](MessageParcel& p) {
             EXPECT_EQ(p.ReadException(), -5);
             EXPECT_EQ(p.ReadInt32(), 7);
         },
         24},
        {"no exception", [](MessageParcel& p) { p.WriteNoException(); },
         [](MessageParcel& p) { EXPECT_EQ(p.ReadException(), 0); }, 4},
        {"descriptor read as an object", [&](MessageParcel& p) { p.WriteFileDescriptor(smallBlock); },
         [](MessageParcel& p) { EXPECT_EQ(p.ReadRemoteObject(), nullptr); }, RECORD_SIZE},
        {"object read as a descriptor", [&](MessageParcel& p) { p.WriteRemoteObject(stub); },
         [](MessageParcel& p) { EXPECT_EQ(p.ReadFileDescriptor(), INVALID_FD); }, RECORD_SIZE},
        {"raw data whose block is too small",
         [&](MessageParcel& p) {
             p.WriteInt32(40000);
             p.WriteFileDescriptor(smallBlock);
         },
         [](MessageParcel& p) { EXPECT_EQ(p.ReadRawData(40000), nullptr); }, 4 + RECORD_SIZE},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        MessageParcel sent;
        c.write(sent);
        MessageParcel received;
        ASSERT_TRUE(ProcessBoundary::Copy(sent, received));
        c.readAndCheck(received);
        EXPECT_EQ(received.GetReadPosition(), c.position);
    }
    close(smallBlock);
}

} // namespace
} // namespace OHOS
