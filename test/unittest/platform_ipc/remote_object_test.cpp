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

#include <fcntl.h>
#include <unistd.h>

#include "ipc_object_proxy.h"
#include "ipc_threads.h"
#include "ipc_types.h"
#include "parcel_bytes.h"
#include "process_boundary.h"
#include "scripted_stub.h"

namespace OHOS {
namespace {

using Zelkon::ScriptedStub;
constexpr uint32_t CODE = 7;

class RemoteObjectTest : public testing::Test {
protected:
    void TearDown() override { IpcThreads::Drain(); }

    // A stub "in another process" and the remote object that stands for it.
    void Connect(ScriptedStub::Handler handler = [](uint32_t, MessageParcel&, MessageParcel&) { return ERR_NONE; })
    {
        stub_ = new ScriptedStub(u"test.Stub");
        stub_->SetHandler(std::move(handler));
        remote_ = new IPCObjectProxy(stub_);
    }

    int Send(MessageParcel& data, MessageParcel& reply, uint32_t code = CODE)
    {
        MessageOption option;
        return remote_->SendRequest(code, data, reply, option);
    }

    sptr<ScriptedStub> stub_;
    sptr<IPCObjectProxy> remote_;
};

TEST_F(RemoteObjectTest, RequestAndReplyCrossTheBoundaryIntact)
{
    std::vector<uint8_t> received;
    const MessageParcel* receivedParcel = nullptr;
    std::vector<uint8_t> replyBytes;
    Connect([&](uint32_t, MessageParcel& data, MessageParcel& reply) {
        received = BytesOf(data);
        receivedParcel = &data;
        EXPECT_EQ(data.ReadInterfaceToken(), u"test.Service");
        EXPECT_EQ(data.ReadString(), "payload");
        const int fd = data.ReadFileDescriptor();
        EXPECT_GE(fd, 0);
        EXPECT_EQ(write(fd, "q", 1), 1);
        close(fd);
        reply.WriteInt32(42);
        reply.WriteString("answer");
        replyBytes = BytesOf(reply);
        return ERR_NONE;
    });
    int pipeFds[2];
    ASSERT_EQ(pipe(pipeFds), 0);
    MessageParcel data;
    ASSERT_TRUE(data.WriteInterfaceToken(u"test.Service"));
    ASSERT_TRUE(data.WriteString("payload"));
    const size_t fdOffset = data.GetWritePosition();
    ASSERT_TRUE(data.WriteFileDescriptor(pipeFds[1]));
    ASSERT_TRUE(data.WriteInt64(-2));
    MessageParcel reply;

    ASSERT_EQ(Send(data, reply), ERR_NONE);

    // Identical but for the descriptor number, which the receiving side gets anew.
    std::vector<uint8_t> sent = BytesOf(data);
    ASSERT_EQ(received.size(), sent.size());
    std::fill(sent.begin() + fdOffset + 8, sent.begin() + fdOffset + 16, 0);
    std::fill(received.begin() + fdOffset + 8, received.begin() + fdOffset + 16, 0);
    EXPECT_EQ(received, sent);
    EXPECT_NE(receivedParcel, &data);
    char got = 0;
    ASSERT_EQ(read(pipeFds[0], &got, 1), 1);
    EXPECT_EQ(got, 'q');

    EXPECT_EQ(reply.GetReadPosition(), 0u);
    EXPECT_EQ(BytesOf(reply), replyBytes);
    EXPECT_EQ(reply.ReadInt32(), 42);
    EXPECT_EQ(reply.ReadString(), "answer");
    close(pipeFds[0]);
    close(pipeFds[1]);
}

TEST_F(RemoteObjectTest, LocalObjectArrivesAsARemoteObjectThatForwardsToIt)
{
    std::vector<sptr<IRemoteObject>> received;
    Connect([&received](uint32_t, MessageParcel& data, MessageParcel&) {
        received.push_back(data.ReadRemoteObject());
        return ERR_NONE;
    });
    sptr<ScriptedStub> listener = new ScriptedStub(u"test.Listener");
    listener->SetHandler([](uint32_t, MessageParcel&, MessageParcel&) { return ERR_NONE; });
    for (int i = 0; i < 2; ++i) {
        MessageParcel data;
        ASSERT_TRUE(data.WriteRemoteObject(listener));
        MessageParcel reply;
        ASSERT_EQ(Send(data, reply), ERR_NONE);
    }
    ASSERT_EQ(received.size(), 2u);
    ASSERT_NE(received[0], nullptr);
    EXPECT_TRUE(received[0]->IsProxyObject());
    EXPECT_NE(received[0].GetRefPtr(), static_cast<IRemoteObject*>(listener.GetRefPtr()));
    // One identity per object, so that the other side can compare what it receives.
    EXPECT_EQ(received[0], received[1]);
    EXPECT_EQ(received[0]->GetObjectDescriptor(), u"test.Listener");

    MessageParcel call;
    call.WriteInt32(9);
    MessageParcel reply;
    MessageOption option;
    EXPECT_EQ(received[0]->SendRequest(3, call, reply, option), ERR_NONE);
    EXPECT_EQ(listener->Codes(), std::vector<uint32_t>({3}));
}

} // namespace
} // namespace OHOS
