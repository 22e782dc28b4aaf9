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
#include <functional>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include "frame_socket.h"
#include "ipc_frame.h"
#include "ipc_host_transport.h"
#include "raw_peer.h"
#include "transport_test_helpers.h"
#include "unique_fd.h"

namespace OHOS {
namespace {
using namespace std::chrono_literals;

constexpr size_t DATA_SIZE = 24;
constexpr uint64_t UNKNOWN_HANDLE = 999999;
const std::string RAW_ADDRESS = "test.raw.peer";

// A call of the context object with DATA_SIZE bytes of data; cases change it before it is encoded.
std::vector<uint8_t> Transaction(const std::function<void(IpcFrame&)>& change = {}, size_t fdCount = 0)
{
    IpcFrame frame;
    frame.kind = IpcFrame::Kind::TRANSACTION;
    frame.code = 1;
    if (change) {
        change(frame);
    }
    const std::vector<uint8_t> data(DATA_SIZE, 0);
    return frame.Encode(data.data(), data.size(), fdCount);
}

void SetWord(std::vector<uint8_t>& bytes, size_t offset, uint32_t value)
{
    std::memcpy(bytes.data() + offset, &value, sizeof(value));
}

IpcFrame::Object ObjectAt(uint32_t offset, IpcFrame::ObjectKind kind, uint64_t value)
{
    IpcFrame::Object object;
    object.offset = offset;
    object.kind = kind;
    object.value = value;
    return object;
}

struct RefusalCase {
    const char* name;
    bool onSession;
    std::vector<uint8_t> bytes;
    size_t fds;
    // Only this many bytes are sent, then the writing side is shut: the frame ends early.
    size_t sent;
};

std::vector<RefusalCase> Cases()
{
    constexpr size_t DATA_SIZE_OFFSET = 8;
    constexpr size_t ALL = SIZE_MAX;
    std::vector<uint8_t> badMagic = Transaction();
    badMagic[0] ^= 0xff;
    std::vector<uint8_t> longerThanSent = Transaction();
    SetWord(longerThanSent, DATA_SIZE_OFFSET, DATA_SIZE + 64);
    std::vector<uint8_t> beyondBound = Transaction();
    SetWord(beyondBound, DATA_SIZE_OFFSET, IpcFrame::MAX_DATA_SIZE + 4);
    IpcFrame release;
    release.kind = IpcFrame::Kind::RELEASE;
    release.handle = UNKNOWN_HANDLE;
    auto object = [](IpcFrame::Object entry) { return [entry](IpcFrame& frame) { frame.objects.push_back(entry); }; };
    return {
        {"truncated header", false, Transaction(), 0, IpcFrame::HEADER_SIZE / 2},
        {"bad magic", false, badMagic, 0, ALL},
        {"data beyond what was sent", false, longerThanSent, 0, ALL},
        {"data beyond the bound", false, beyondBound, 0, ALL},
        {"unknown target", false, Transaction([](IpcFrame& frame) { frame.handle = UNKNOWN_HANDLE; }), 0, ALL},
        {"unknown object", false, Transaction(object(ObjectAt(0, IpcFrame::ObjectKind::RETURNED, UNKNOWN_HANDLE))), 0,
         ALL},
        {"object beyond the data", false, Transaction(object(ObjectAt(8, IpcFrame::ObjectKind::RETURNED, 0))), 0, ALL},
        {"descriptor not announced", false, Transaction(), 1, ALL},
        {"more descriptors than announced", false,
         Transaction(object(ObjectAt(0, IpcFrame::ObjectKind::DESCRIPTOR, 0)), 1), 2, ALL},
        {"a transaction on the session", true, Transaction(), 0, ALL},
        {"release of a handle never taken", true, release.Encode(nullptr, 0, 0), 0, ALL},
    };
}

// The end of the connection, from the side that did not close it, after whatever refusal it answered.
bool ClosedByTheOtherSide(int socket)
{
    pollfd ready{socket, POLLIN, 0};
    char bytes[IpcFrame::HEADER_SIZE];
    ssize_t got = 1;
    while (got > 0 && poll(&ready, 1, 5000) == 1) {
        got = recv(socket, bytes, sizeof(bytes), 0);
    }
    return got <= 0;
}

class IpcFrameRefusalTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(IpcHostTransport::ServeContextObject(path_, new IPCObjectStub(u"own"))); }
    void TearDown() override { IpcHostTransport::StopServingContextObject(); }

    const std::string path_ = "/tmp/ipc_frame_refusal_test_" + std::to_string(getpid()) + ".sock";
};

TEST_F(IpcFrameRefusalTest, MalformedFrameClosesItsConnectionAndLeavesNoDescriptor)
{
    const int fdsBefore = OpenFds();
    uint64_t nonce = 0;
    for (const RefusalCase& refusal : Cases()) {
        RawPeer peer = OpenRawPeer(path_, RAW_ADDRESS, ++nonce, !refusal.onSession);
        ASSERT_TRUE(peer.session >= 0 && (refusal.onSession || peer.channel >= 0)) << refusal.name;
        const int socket = refusal.onSession ? peer.session.Get() : peer.channel.Get();
        int pipeFds[2];
        ASSERT_EQ(pipe(pipeFds), 0);
        const std::vector<int> fds(pipeFds, pipeFds + refusal.fds);
        const size_t sent = std::min(refusal.sent, refusal.bytes.size());
        ASSERT_TRUE(FrameSocket::Send(socket, {refusal.bytes.begin(), refusal.bytes.begin() + sent}, fds));
        close(pipeFds[0]);
        close(pipeFds[1]);
        shutdown(socket, SHUT_WR);
        EXPECT_TRUE(ClosedByTheOtherSide(socket)) << refusal.name;
        peer = RawPeer();
        ASSERT_TRUE(IpcHostTransport::WaitForPeerGone(getpid(), 5s)) << refusal.name;
        EXPECT_EQ(OpenFds(), fdsBefore) << refusal.name;
    }
    // The process serves on: a well-formed call is answered (the object knows no code: 305).
    RawPeer peer = OpenRawPeer(path_, RAW_ADDRESS, ++nonce, true);
    ASSERT_TRUE(FrameSocket::Send(peer.channel.Get(), Transaction(), {}));
    IpcFrame reply;
    ASSERT_EQ(FrameSocket::Receive(peer.channel.Get(), FrameSocket::Clock::now() + 5s, reply), FrameSocket::Result::OK);
    EXPECT_EQ(reply.status, IPC_STUB_UNKNOW_TRANS_ERR);
}

} // namespace
} // namespace OHOS
