/*
 * Every request of the share service as the service receives it: code, interface token and each payload field,
 * decoded by hand from the request layouts, and every reply shape with what the caller gets back.
 */
#include <functional>
#include <string>
#include <vector>

#include "iremote_proxy.h"
#include "share_test_records.h"

namespace OHOS {
namespace Zelkon {
namespace {

const std::u16string SERVICE_DESCRIPTOR = u"ohos.Zelkon.ZelkonService";
const std::u16string SENDER_DESCRIPTOR = u"ohos.zelkon.ZelkonSender";

class TestSenderProxy : public IRemoteProxy<ZelkonSender> {
public:
    explicit TestSenderProxy(const sptr<IRemoteObject>& remote) : IRemoteProxy<ZelkonSender>(remote) {}

private:
    static BrokerDelegator<TestSenderProxy> delegator_;
};
BrokerDelegator<TestSenderProxy> TestSenderProxy::delegator_;

void ExpectObject(MessageParcel& data, const char* field)
{
    EXPECT_NE(data.ReadRemoteObject(), nullptr) << field;
}

void ExpectTransmitParam(MessageParcel& data, bool withPackageName)
{
    EXPECT_EQ(data.ReadString(), "peer-device-7");
    EXPECT_EQ(data.ReadInt32(), 30000);
    ExpectObject(data, "transCallback");
    if (withPackageName) {
        EXPECT_EQ(data.ReadString(), "com.example.share");
    }
    EXPECT_EQ(data.ReadInt8(), -3);
}

struct BoolRequest {
    const char* name;
    uint32_t code;
    std::function<void(MessageParcel&)> decode;
    std::function<int32_t()> call;
};

class ShareSrvProxyRequestTest : public ShareServiceTest {
protected:
    // Answers one request: checks code and token, decodes the payload to its end, then writes the reply.
    void Answer(uint32_t expectedCode, std::function<void(MessageParcel&)> decode,
                std::function<void(MessageParcel&)> writeReply)
    {
        stub_->SetHandler([=](uint32_t code, MessageParcel& data, MessageParcel& reply) {
            EXPECT_EQ(code, expectedCode);
            EXPECT_EQ(data.ReadInterfaceToken(), SERVICE_DESCRIPTOR);
            decode(data);
            EXPECT_EQ(data.GetReadableBytes(), 0u) << "unread payload of code " << code;
            writeReply(reply);
            return 0;
        });
    }

    size_t Requests(uint32_t code)
    {
        size_t count = 0;
        for (uint32_t received : stub_->Codes()) {
            count += received == code ? 1 : 0;
        }
        return count;
    }

    sptr<IPublishListener> publishListener_ = new TestRemote<IPublishListener>();
    sptr<ISubscribeListener> subscribeListener_ = new TestRemote<ISubscribeListener>();
    sptr<ZelkonReceiveListener> receiveListener_ = new TestRemote<ZelkonReceiveListener>();
    sptr<ICommonReceiveListener> commonListener_ = new TestRemote<ICommonReceiveListener>();
};

TEST_F(ShareSrvProxyRequestTest, BoolRequestsCarryTheirPayloadAndHandBackTheServicesAnswer)
{
    auto listener = [](MessageParcel& data) { ExpectObject(data, "listener"); };
    auto intThenListener = [](int32_t value) {
        return [value](MessageParcel& data) {
            EXPECT_EQ(data.ReadInt32(), value);
            ExpectObject(data, "listener");
        };
    };
    auto oneInt = [](int32_t value) { return [value](MessageParcel& data) { EXPECT_EQ(data.ReadInt32(), value); }; };
    auto oneString = [](std::string value) {
        return [value](MessageParcel& data) { EXPECT_EQ(data.ReadString(), value); };
    };
    ShareClient& client = Client();
    const std::vector<BoolRequest> requests = {
        {"Publish", 1, listener, [&] { return client.Publish(publishListener_); }},
        {"UnPublish", 2, intThenListener(41), [&] { return client.UnPublish(41, publishListener_); }},
        {"Subscribe", 3, listener, [&] { return client.Subscribe(subscribeListener_); }},
        {"UnSubscribe", 4, intThenListener(-42), [&] { return client.UnSubscribe(-42, subscribeListener_); }},
        {"RegisterReceiveListener", 5, listener, [&] { return client.RegisterReceiveListener(receiveListener_); }},
        {"UnRegisterReceiveListener", 6, listener, [&] { return client.UnRegisterReceiveListener(receiveListener_); }},
        {"EnableDiscoveryPolicy", 11, oneInt(3), [&] { return client.EnableDiscoveryPolicy(3); }},
        {"SetAccountPermission", 12, oneInt(-7), [&] { return client.SetAccountPermission(-7); }},
        {"RegisterCommonReceiveListener", 15, listener,
         [&] { return client.RegisterCommonReceiveListener(commonListener_); }},
        {"UnRegisterCommonReceiveListener", 16, [](MessageParcel&) {},
         [&] { return client.UnRegisterCommonReceiveListener(); }},
        {"SuspendWifiScanning", 17, oneString("wlan0"), [&] { return client.SuspendWifiScanning("wlan0"); }},
        {"ResumeWifiScanning", 18, oneString("p2p-wlan0-1"), [&] { return client.ResumeWifiScanning("p2p-wlan0-1"); }},
        {"OnCollabDeviceFound", 19,
         [](MessageParcel& data) {
             EXPECT_EQ(data.ReadInt32(), 1) << "presence word of the device";
             EXPECT_EQ(data.ReadInt32(), SHARE_DEVICE_MARKER);
             ExpectObject(data, "listener");
             EXPECT_EQ(data.ReadInt32(), -1) << "the flag 0xFFFFFFFF as an int32 word";
         },
         [&] { return client.OnCollabDeviceFound(MakeDevice(1, 3), subscribeListener_, 0xFFFFFFFFu); }},
        {"ClearDiscovererFlag", 20,
         [](MessageParcel& data) {
             EXPECT_EQ(data.ReadString(), "peer-9");
             EXPECT_EQ(data.ReadUint32(), 0x80000001u);
         },
         [&] { return client.ClearDiscovererFlag("peer-9", 0x80000001u); }},
        {"SwingSubscribe", 22, listener, [&] { return client.SwingSubscribe(subscribeListener_); }},
        {"SwingUnSubscribe", 23, listener, [&] { return client.SwingUnSubscribe(subscribeListener_); }},
        {"ReportSwingEvent", 24,
         [](MessageParcel& data) {
             EXPECT_EQ(data.ReadInt32(), 2);
             EXPECT_EQ(data.ReadInt32(), -640);
             EXPECT_EQ(data.ReadInt32(), 1280);
             EXPECT_EQ(data.ReadString(), "concurrent-1");
         },
         [&] { return client.ReportSwingEvent(2, -640, 1280, "concurrent-1"); }},
        {"ApplyUriPermission", 25, oneString("peer-10"), [&] { return client.ApplyUriPermission("peer-10"); }},
        {"RemovePermanentDeviceById", 27, oneInt(65570), [&] { return client.RemovePermanentDeviceById(65570); }},
    };
    for (const BoolRequest& request : requests) {
        for (bool answer : {true, false}) {
            SCOPED_TRACE(std::string(request.name) + (answer ? " answered true" : " answered false"));
            Answer(request.code, request.decode, [answer](MessageParcel& reply) { reply.WriteBool(answer); });
            size_t before = Requests(request.code);
            EXPECT_EQ(request.call(), answer ? 1 : 0);
            EXPECT_EQ(Requests(request.code), before + 1);
        }
    }
    for (uint32_t code : stub_->Codes()) {
        EXPECT_NE(code, 9u);
    }
}

TEST_F(ShareSrvProxyRequestTest, PontalPublishInfoHandsOverTheStringWhateverTheFlagSays)
{
    for (bool answer : {true, false}) {
        Answer(
            21, [](MessageParcel&) {},
            [answer](MessageParcel& reply) {
                reply.WriteString("pontal-info");
                reply.WriteBool(answer);
            });
        std::string info = "before";
        EXPECT_EQ(Client().GetPontalPublishInfo(info), answer ? 1 : 0);
        EXPECT_EQ(info, "pontal-info");
    }
}

TEST_F(ShareSrvProxyRequestTest, PermanentDeviceListReadsTheCountedRecords)
{
    Answer(
        26, [](MessageParcel&) {},
        [](MessageParcel& reply) {
            reply.WriteInt32(2);
            for (int32_t id : {5, 6}) {
                reply.WriteInt32(id);
                reply.WriteString("device-" + std::to_string(id));
                reply.WriteInt32(14);
                reply.WriteString("udid-" + std::to_string(id));
                reply.WriteInt64(1700000000000 + id);
            }
        });
    std::vector<PermanentDeviceInfo> devices = Client().GetPermanentDeviceList();
    ASSERT_EQ(devices.size(), 2u);
    EXPECT_EQ(devices[0].id, 5);
    EXPECT_EQ(devices[1].deviceName, "device-6");
}

TEST_F(ShareSrvProxyRequestTest, TransfersCarryParametersAndRecordAndReturnTheSender)
{
    TransmitParam param = MakeTransmitParam();
    TestSendBean sendBean;
    TestDataBean dataBean;
    TestBytesInfo bytesInfo;
    CommonShareObject shareObject;
    sptr<ITransmitCallback> callback = new TestRemote<ITransmitCallback>();
    struct Transfer {
        const char* name;
        uint32_t code;
        std::function<void(MessageParcel&)> decode;
        std::function<sptr<ZelkonSender>()> call;
    };
    const std::vector<Transfer> transfers = {
        {"SendFile with SendBean", 7,
         [](MessageParcel& data) {
             ExpectTransmitParam(data, true);
             EXPECT_EQ(data.ReadInt32(), SEND_BEAN_MARKER);
         },
         [&] { return Client().SendFile(param, sendBean, "com.example.share"); }},
        {"SendFile with DataBean", 8,
         [](MessageParcel& data) {
             ExpectTransmitParam(data, true);
             EXPECT_EQ(data.ReadInt32(), DATA_BEAN_MARKER);
         },
         [&] { return Client().SendFile(param, dataBean, "com.example.share"); }},
        {"SendBytes", 10,
         [](MessageParcel& data) {
             EXPECT_EQ(data.ReadString(), "peer-device-7");
             EXPECT_EQ(data.ReadInt32(), 30000);
             EXPECT_EQ(data.ReadInt32(), BYTES_INFO_MARKER);
             ExpectObject(data, "transCallback");
             EXPECT_EQ(data.ReadInt8(), -3);
         },
         [&] { return Client().SendBytes(param, bytesInfo); }},
        {"CommonShareSend", 14,
         [](MessageParcel& data) {
             // The share object's layout is its own; the callback closes the request.
             ASSERT_GE(data.GetReadableBytes(), 24u);
             data.RewindRead(data.GetDataSize() - 24);
             ExpectObject(data, "callback");
         },
         [&] { return Client().CommonShareSend(shareObject, callback); }},
    };
    sptr<IRemoteObject> sender = new ScriptedStub(SENDER_DESCRIPTOR);
    for (const Transfer& transfer : transfers) {
        SCOPED_TRACE(transfer.name);
        Answer(transfer.code, transfer.decode, [sender](MessageParcel& reply) { reply.WriteRemoteObject(sender); });
        sptr<ZelkonSender> result = transfer.call();
        ASSERT_NE(result, nullptr);
        EXPECT_NE(result->AsObject(), nullptr);
        Answer(
            transfer.code, [](MessageParcel& data) { data.RewindRead(data.GetDataSize()); }, [](MessageParcel&) {});
        EXPECT_EQ(transfer.call(), nullptr) << "a reply without a sender object";
    }
}

TEST_F(ShareSrvProxyRequestTest, CancelSendsTheNetworkIdAndReadsNoReply)
{
    Answer(
        13, [](MessageParcel& data) { EXPECT_EQ(data.ReadString(), "network-3"); }, [](MessageParcel&) {});
    Client().Cancel("network-3");
    EXPECT_EQ(Requests(13), 1u);
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
