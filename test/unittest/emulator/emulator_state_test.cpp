/*
 * Well-formed requests and the state changes that the next requests see.
 */
#include <algorithm>
#include <cstring>
#include <mutex>
#include <set>
#include <vector>

#include "emulator_test_fixture.h"

namespace OHOS {
namespace Zelkon {
namespace {

constexpr uint32_t PUBLISH = 1;
constexpr uint32_t UNPUBLISH = 2;
constexpr uint32_t SUBSCRIBE = 3;
constexpr uint32_t SEND_BYTES = 10;
constexpr uint32_t CANCEL = 13;
constexpr uint32_t COLLAB_DEVICE_FOUND = 19;
constexpr uint32_t CLEAR_DISCOVERER_FLAG = 20;
constexpr uint32_t PERMANENT_DEVICES = 26;
constexpr uint32_t REMOVE_PERMANENT_DEVICE = 27;
constexpr uint32_t SET_SHARE_ENABLE = 1;
constexpr uint32_t SET_SHARE_ENABLE_WITH_CONFIRM = 2;
constexpr uint32_t IS_ENABLED = 3;
constexpr uint32_t GET_ENABLE_STATE = 4;
constexpr uint32_t GET_SENDING_USER_LIST = 11;
constexpr uint32_t PREPARE_SEND = 12;
constexpr uint32_t SEND_BYTES_TO_USER = 14;
constexpr uint32_t CANCEL_USER = 16;
constexpr uint32_t GET_PREVIEW_DATA = 20;

class EmulatorStateTest : public EmulatorTest {
protected:
    bool ListenerRequest(uint32_t code, const sptr<IRemoteObject>& listener, bool withId = false)
    {
        MessageParcel data;
        MessageParcel reply;
        data.WriteInterfaceToken(SHARE_SERVICE_TOKEN);
        if (withId) {
            data.WriteInt32(1);
        }
        data.WriteRemoteObject(listener);
        EXPECT_EQ(Send(shareService_, code, data, reply), 0);
        return reply.ReadBool();
    }

    std::set<int32_t> PermanentIds()
    {
        MessageParcel data;
        MessageParcel reply;
        data.WriteInterfaceToken(SHARE_SERVICE_TOKEN);
        EXPECT_EQ(Send(shareService_, PERMANENT_DEVICES, data, reply), 0);
        std::set<int32_t> ids;
        const int32_t count = reply.ReadInt32();
        for (int32_t i = 0; i < count; ++i) {
            ids.insert(reply.ReadInt32());
            reply.ReadString();
            reply.ReadInt32();
            reply.ReadString();
            reply.ReadInt64();
        }
        return ids;
    }

    bool RemovePermanent(int32_t id)
    {
        MessageParcel data;
        MessageParcel reply;
        data.WriteInterfaceToken(SHARE_SERVICE_TOKEN);
        data.WriteInt32(id);
        EXPECT_EQ(Send(shareService_, REMOVE_PERMANENT_DEVICE, data, reply), 0);
        return reply.ReadBool();
    }

    bool DeviceFound(const sptr<IRemoteObject>& listener, const std::string& deviceId)
    {
        MessageParcel data;
        MessageParcel reply;
        data.WriteInterfaceToken(SHARE_SERVICE_TOKEN);
        data.WriteInt32(1);
        data.WriteString(deviceId);
        data.WriteString("Found device");
        data.WriteInt32(9);
        data.WriteInt32(0);
        data.WriteRemoteObject(listener);
        data.WriteInt32(-1);
        EXPECT_EQ(Send(shareService_, COLLAB_DEVICE_FOUND, data, reply), 0);
        return reply.ReadBool();
    }

    bool ClearFlag(const std::string& deviceId)
    {
        MessageParcel data;
        MessageParcel reply;
        data.WriteInterfaceToken(SHARE_SERVICE_TOKEN);
        data.WriteString(deviceId);
        data.WriteUint32(1);
        EXPECT_EQ(Send(shareService_, CLEAR_DISCOVERER_FLAG, data, reply), 0);
        return reply.ReadBool();
    }

    bool ManagerDeviceRequest(uint32_t code, const std::string& deviceId, bool withBytes = false)
    {
        MessageParcel data;
        MessageParcel reply;
        data.WriteInterfaceToken(SHARE_MANAGER_TOKEN);
        WriteDeviceRecord(data, deviceId);
        if (withBytes) {
            data.WriteString("text/plain");
            data.WriteString("hello");
        }
        EXPECT_EQ(Send(shareManager_, code, data, reply), 0);
        return reply.ReadBool();
    }

    int32_t SendingUsers()
    {
        MessageParcel data;
        MessageParcel reply;
        data.WriteInterfaceToken(SHARE_MANAGER_TOKEN);
        EXPECT_EQ(Send(shareManager_, GET_SENDING_USER_LIST, data, reply), 0);
        return reply.ReadInt32();
    }
};

TEST_F(EmulatorStateTest, RemovedPermanentDeviceIsGoneAndCannotBeRemovedTwice)
{
    EXPECT_EQ(PermanentIds(), (std::set<int32_t>{1, 2, 3}));
    EXPECT_TRUE(RemovePermanent(2));
    EXPECT_EQ(PermanentIds(), (std::set<int32_t>{1, 3}));
    EXPECT_FALSE(RemovePermanent(2));
    EXPECT_FALSE(RemovePermanent(42));
    EXPECT_EQ(PermanentIds(), (std::set<int32_t>{1, 3}));
}

TEST_F(EmulatorStateTest, ListenerIsKnownFromPublishUntilUnpublish)
{
    sptr<IRemoteObject> listener = new TestListener();
    EXPECT_FALSE(ListenerRequest(UNPUBLISH, listener, true));
    EXPECT_TRUE(ListenerRequest(PUBLISH, listener));
    EXPECT_FALSE(ListenerRequest(PUBLISH, listener));
    EXPECT_TRUE(ListenerRequest(UNPUBLISH, listener, true));
    EXPECT_FALSE(ListenerRequest(UNPUBLISH, listener, true));
}

TEST_F(EmulatorStateTest, TransferAnswersWithASenderThatCancelStops)
{
    std::vector<DecodedRequest> traced;
    std::mutex tracedMutex;
    ShareEmulator::SetTraceSink([&](const DecodedRequest& request) {
        std::lock_guard<std::mutex> lock(tracedMutex);
        traced.push_back(request);
    });
    MessageParcel data;
    MessageParcel reply;
    data.WriteInterfaceToken(SHARE_SERVICE_TOKEN);
    data.WriteString("dev-9");
    data.WriteInt32(30);
    data.WriteString("text/plain");
    data.WriteString("hello");
    data.WriteRemoteObject(new TestListener());
    data.WriteInt8(0);
    ASSERT_EQ(Send(shareService_, SEND_BYTES, data, reply), 0);
    sptr<IRemoteObject> sender = reply.ReadRemoteObject();
    ASSERT_NE(sender, nullptr);
    EXPECT_EQ(sender->GetObjectDescriptor(), std::u16string(SENDER_TOKEN));

    MessageParcel query;
    MessageParcel answer;
    query.WriteInterfaceToken(SENDER_TOKEN);
    ASSERT_EQ(Send(sender, 1, query, answer), 0);
    EXPECT_GT(answer.ReadInt32(), 0);

    MessageParcel cancel;
    MessageParcel cancelReply;
    cancel.WriteInterfaceToken(SHARE_SERVICE_TOKEN);
    cancel.WriteString("dev-9");
    ASSERT_EQ(Send(shareService_, CANCEL, cancel, cancelReply), 0);
    EXPECT_EQ(cancelReply.GetDataSize(), 0u);

    std::lock_guard<std::mutex> lock(tracedMutex);
    ASSERT_EQ(traced.size(), 2u);
    EXPECT_EQ(traced[0].operation, "SendBytes");
    const auto& fields = traced[0].fields;
    EXPECT_NE(std::find(fields.begin(), fields.end(),
                        std::make_pair(std::string("bytesInfo.bytes"), std::string("\"hello\""))),
              fields.end());
    EXPECT_EQ(traced[1].operation, "Cancel");
    EXPECT_EQ(traced[1].notes.back(), (std::pair<std::string, std::string>("cancelled", "1")));
    EXPECT_FALSE(traced[1].requestBytes.empty());
}

TEST_F(EmulatorStateTest, SwitchChangesOnlyWithConfirmation)
{
    MessageParcel data;
    MessageParcel reply;
    data.WriteInterfaceToken(SHARE_MANAGER_TOKEN);
    data.WriteInt32(0);
    data.WriteInt32(5);
    data.WriteBool(false);
    ASSERT_EQ(Send(shareManager_, SET_SHARE_ENABLE, data, reply), 0);
    EXPECT_TRUE(reply.ReadBool());
    EXPECT_FALSE(AskBool(shareManager_, SHARE_MANAGER_TOKEN, IS_ENABLED));

    MessageParcel unconfirmed;
    MessageParcel unconfirmedReply;
    unconfirmed.WriteInterfaceToken(SHARE_MANAGER_TOKEN);
    unconfirmed.WriteInt32(0);
    unconfirmed.WriteInt32(7);
    unconfirmed.WriteBool(true);
    unconfirmed.WriteBool(false);
    ASSERT_EQ(Send(shareManager_, SET_SHARE_ENABLE_WITH_CONFIRM, unconfirmed, unconfirmedReply), 0);
    EXPECT_FALSE(unconfirmedReply.ReadBool());
    EXPECT_FALSE(AskBool(shareManager_, SHARE_MANAGER_TOKEN, IS_ENABLED));

    MessageParcel stateData;
    MessageParcel stateReply;
    stateData.WriteInterfaceToken(SHARE_MANAGER_TOKEN);
    ASSERT_EQ(Send(shareManager_, GET_ENABLE_STATE, stateData, stateReply), 0);
    EXPECT_EQ(stateReply.ReadInt32(), 5);
}

TEST_F(EmulatorStateTest, PreviewDataTravelsAsABigStringInSharedMemory)
{
    MessageParcel data;
    MessageParcel reply;
    data.WriteInterfaceToken(SHARE_MANAGER_TOKEN);
    ASSERT_EQ(Send(shareManager_, GET_PREVIEW_DATA, data, reply), 0);
    const uint32_t size = reply.ReadUint32();
    ASSERT_GT(size, MessageParcel::MAX_INLINE_RAW_DATA_SIZE);
    const auto* block = static_cast<const char*>(reply.ReadRawData(size));
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(block[size - 1], '\0');
    EXPECT_EQ(std::strlen(block), size - 1);
    EXPECT_EQ(std::strncmp(block, "preview line 1:", 15), 0);
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
