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

#include <atomic>
#include <thread>
#include <unistd.h>
#include <vector>

#include "binder_results.h"
#include "ipc_host_transport.h"
#include "ipc_object_proxy.h"
#include "peer_process.h"
#include "transport_test_helpers.h"

namespace OHOS {
namespace {
using namespace std::chrono_literals;

class IpcTransportTest : public testing::Test {
protected:
    void SetUp() override
    {
        // This process takes part before its descriptors are counted: its listening sockets stay for good.
        LeaveStaleSocket(ownPath_);
        ASSERT_TRUE(IpcHostTransport::ServeContextObject(ownPath_, new IPCObjectStub(u"test.ipc.Own")));
        fdsBefore_ = OpenFds();
        peer_ = std::make_unique<PeerProcess>();
        remote_ = IpcHostTransport::ConnectToContextObject(peer_->Path());
        ASSERT_NE(remote_, nullptr);
    }

    void TearDown() override
    {
        remote_ = nullptr;
        peer_.reset();
        IpcHostTransport::StopServingContextObject();
    }

    int Send(PeerCode code, MessageParcel& data, MessageParcel& reply, MessageOption option = MessageOption())
    {
        return remote_->SendRequest(code, data, reply, option);
    }

    int32_t AskInt(PeerCode code, int32_t argument, const sptr<IRemoteObject>& peer = nullptr)
    {
        MessageParcel data;
        MessageParcel reply;
        MessageOption option;
        data.WriteInt32(argument);
        EXPECT_EQ((peer != nullptr ? peer : remote_)->SendRequest(code, data, reply, option), ERR_NONE) << code;
        return reply.ReadInt32();
    }

    sptr<IRemoteObject> AskObject(PeerCode code, const sptr<IRemoteObject>& argument = nullptr,
                                  const sptr<IRemoteObject>& peer = nullptr)
    {
        MessageParcel data;
        MessageParcel reply;
        MessageOption option;
        if (argument != nullptr) {
            data.WriteRemoteObject(argument);
        }
        EXPECT_EQ((peer != nullptr ? peer : remote_)->SendRequest(code, data, reply, option), ERR_NONE) << code;
        return reply.ReadRemoteObject();
    }

    const std::string ownPath_ = "/tmp/ipc_transport_test_" + std::to_string(getpid()) + ".sock";
    int fdsBefore_ = 0;
    std::unique_ptr<PeerProcess> peer_;
    sptr<IRemoteObject> remote_;
};

TEST_F(IpcTransportTest, PeerObjectArrivesAsOneProxyAndIsReleasedWithTheLastOne)
{
    EXPECT_TRUE(remote_->IsProxyObject());
    EXPECT_EQ(remote_->GetObjectDescriptor(), PEER_DESCRIPTOR);
    EXPECT_EQ(IpcHostTransport::PeerPid(remote_), peer_->Pid());
    EXPECT_EQ(IpcHostTransport::ConnectToContextObject(peer_->Path()), remote_);

    sptr<IRemoteObject> first = AskObject(GIVE_STUB);
    sptr<IRemoteObject> second = AskObject(GIVE_STUB);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first, second);
    EXPECT_TRUE(first->IsProxyObject());
    EXPECT_EQ(first->GetObjectDescriptor(), u"test.ipc.GivenStub");
    first = nullptr;
    EXPECT_EQ(AskInt(STUBS_ALIVE, 0), 1);
    second = nullptr;
    EXPECT_EQ(AskInt(STUBS_ALIVE, 5000), 0);
}

TEST_F(IpcTransportTest, OwnObjectSentBackArrivesAsItselfAndLivesWhileThePeerHoldsIt)
{
    auto destroyed = std::make_shared<Latch>();
    sptr<IRemoteObject> stub = new TrackedStub(destroyed);
    EXPECT_EQ(AskObject(HOLD, stub), stub);
    EXPECT_FALSE(stub->IsProxyObject());
    stub = nullptr;
    EXPECT_FALSE(destroyed->IsOpen());
    AskObject(DROP);
    EXPECT_TRUE(destroyed->Wait(5s));

    // A remote object of the in-process world has no meaning in another process.
    MessageParcel data;
    MessageParcel reply;
    data.WriteRemoteObject(new IPCObjectProxy(new IPCObjectStub()));
    EXPECT_EQ(Send(HOLD, data, reply), ERR_FLATTEN_OBJECT);
}

TEST_F(IpcTransportTest, ThirdProcessObjectKeepsItsIdentityAndLivesWhileAnyProcessHoldsIt)
{
    PeerProcess holder;
    const sptr<IRemoteObject> holderRemote = IpcHostTransport::ConnectToContextObject(holder.Path());
    ASSERT_NE(holderRemote, nullptr);
    sptr<IRemoteObject> given = AskObject(GIVE_STUB);
    EXPECT_EQ(AskObject(HOLD, given, holderRemote), given);
    EXPECT_EQ(IpcHostTransport::PeerPid(given), peer_->Pid());
    given = nullptr;
    EXPECT_EQ(AskInt(STUBS_ALIVE, 0), 1);
    AskObject(DROP, nullptr, holderRemote);
    EXPECT_EQ(AskInt(STUBS_ALIVE, 5000), 0);
}

TEST_F(IpcTransportTest, DescriptorsSharedMemoryAndDumpsArriveWithTheirContent)
{
    int pipeFds[2];
    ASSERT_EQ(pipe(pipeFds), 0);
    ASSERT_EQ(write(pipeFds[1], "through a pipe", 14), 14);
    close(pipeFds[1]);
    MessageParcel data;
    ASSERT_TRUE(data.WriteFileDescriptor(pipeFds[0]));
    close(pipeFds[0]);
    MessageParcel reply;
    ASSERT_EQ(Send(READ_FD, data, reply), ERR_NONE);
    EXPECT_EQ(reply.ReadString(), "through a pipe");
    ASSERT_EQ(pipe(pipeFds), 0);
    EXPECT_EQ(remote_->Dump(pipeFds[1], {u"-a", u"-b"}), ERR_NONE);
    close(pipeFds[1]);
    char dumped[16] = {};
    EXPECT_GT(read(pipeFds[0], dumped, sizeof(dumped)), 0);
    close(pipeFds[0]);
    EXPECT_STREQ(dumped, "dump 2");

    std::vector<uint8_t> block(MessageParcel::MAX_INLINE_RAW_DATA_SIZE * 2);
    for (size_t i = 0; i < block.size(); ++i) {
        block[i] = static_cast<uint8_t>(i * 7);
    }
    MessageParcel raw;
    raw.WriteInt32(static_cast<int32_t>(block.size()));
    ASSERT_TRUE(raw.WriteRawData(block.data(), block.size()));
    MessageParcel rawReply;
    ASSERT_EQ(Send(RAW_DATA, raw, rawReply), ERR_NONE);
    const auto* echoed = static_cast<const uint8_t*>(rawReply.ReadRawData(block.size()));
    ASSERT_NE(echoed, nullptr);
    EXPECT_EQ(std::vector<uint8_t>(echoed, echoed + block.size()), block);
}

TEST_F(IpcTransportTest, NestedCallsGoBothWays)
{
    std::atomic<bool> onIpcThread{false};
    sptr<IRemoteObject> stub =
        new TrackedStub(std::make_shared<Latch>(), [this, &onIpcThread](MessageParcel& data, MessageParcel& reply) {
            onIpcThread = IpcThreads::IsIpcThread();
            reply.WriteInt32(AskInt(ECHO, data.ReadInt32() + 1));
            return ERR_NONE;
        });
    MessageParcel data;
    MessageParcel reply;
    data.WriteRemoteObject(stub);
    // One-way: served before the next request of this thread, which comes on the same channel.
    ASSERT_EQ(Send(HOLD, data, reply, MessageOption(MessageOption::TF_ASYNC)), ERR_NONE);
    EXPECT_EQ(AskInt(CALL, 41), 42);
    EXPECT_TRUE(onIpcThread);
    AskObject(DROP);
}

TEST_F(IpcTransportTest, ThreadsCallAtOnceWithoutWaitingForEachOther)
{
    constexpr int THREADS = 8;
    std::vector<int32_t> met(THREADS);
    std::vector<int32_t> echoed(THREADS);
    std::vector<std::thread> callers;
    for (int i = 0; i < THREADS; ++i) {
        callers.emplace_back([this, i, &met, &echoed] {
            met[i] = AskInt(RENDEZVOUS, THREADS);
            echoed[i] = AskInt(ECHO, i);
        });
    }
    for (std::thread& caller : callers) {
        caller.join();
    }
    for (int i = 0; i < THREADS; ++i) {
        EXPECT_EQ(met[i], 1) << "caller " << i;
        EXPECT_EQ(echoed[i], i);
    }
}

TEST_F(IpcTransportTest, DeathOfThePeerKillsItsProxiesAndTellsEachRecipientOnce)
{
    const std::vector<sptr<CountingRecipient>> recipients = {new CountingRecipient(), new CountingRecipient()};
    sptr<CountingRecipient> removed = new CountingRecipient();
    for (const sptr<CountingRecipient>& recipient : recipients) {
        ASSERT_TRUE(remote_->AddDeathRecipient(recipient));
    }
    ASSERT_TRUE(remote_->AddDeathRecipient(removed));
    EXPECT_TRUE(remote_->RemoveDeathRecipient(removed));
    EXPECT_FALSE(remote_->RemoveDeathRecipient(removed));
    auto heldStubDestroyed = std::make_shared<Latch>();
    AskObject(HOLD, new TrackedStub(heldStubDestroyed));

    int pendingResult = ERR_NONE;
    std::thread pending([this, &pendingResult] {
        MessageParcel data;
        MessageParcel reply;
        data.WriteInt32(60000);
        pendingResult = Send(SLEEP, data, reply, MessageOption(MessageOption::TF_SYNC, 120));
    });
    EXPECT_EQ(AskInt(SLEEPERS, 5000), 1);
    const pid_t pid = peer_->Pid();
    peer_->Kill();
    pending.join();
    EXPECT_EQ(pendingResult, BR_DEAD_REPLY);
    ASSERT_TRUE(IpcHostTransport::WaitForPeerGone(pid, 5s));

    EXPECT_TRUE(heldStubDestroyed->IsOpen());
    EXPECT_TRUE(remote_->IsObjectDead());
    MessageParcel data;
    MessageParcel reply;
    data.WriteInt32(1);
    EXPECT_EQ(Send(ECHO, data, reply), ERR_DEAD_OBJECT);
    EXPECT_FALSE(remote_->AddDeathRecipient(removed));
    for (const sptr<CountingRecipient>& recipient : recipients) {
        EXPECT_EQ(recipient->Calls(), 1);
        EXPECT_TRUE(recipient->OnIpcThreadWithTheObject());
    }
    EXPECT_EQ(removed->Calls(), 0);
    EXPECT_EQ(IpcHostTransport::ConnectToContextObject(peer_->Path()), nullptr);
    EXPECT_EQ(IpcHostTransport::SessionCount(), 0u);
    remote_ = nullptr;
    EXPECT_EQ(OpenFds(), fdsBefore_);
}

} // namespace
} // namespace OHOS
