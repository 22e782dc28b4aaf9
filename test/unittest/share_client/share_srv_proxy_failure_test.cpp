/*
 * Every way a request can fail on the client side, and what the caller gets: the neutral result, and nothing
 * sent once a write has failed (except Cancel, which is always attempted once the token is written).
 */
#include <string>
#include <vector>

#include "share_srv_proxy.h"
#include "share_test_records.h"

namespace OHOS {
namespace Zelkon {
namespace {

// Longer than a parcel's default capacity: its write fails.
const std::string OVERSIZED(300 * 1024, 'x');

void WriteDevice(MessageParcel& reply, int32_t id)
{
    reply.WriteInt32(id);
    reply.WriteString("device");
    reply.WriteInt32(14);
    reply.WriteString("udid");
    reply.WriteInt64(1700000000000);
}

class ShareSrvProxyFailureTest : public ShareServiceTest {
protected:
    bool Received(uint32_t code)
    {
        for (uint32_t received : stub_->Codes()) {
            if (received == code) {
                return true;
            }
        }
        return false;
    }

    sptr<ISubscribeListener> subscribeListener_ = new TestRemote<ISubscribeListener>();
};

TEST_F(ShareSrvProxyFailureTest, WithoutRemoteEveryRequestReturnsItsNeutralResult)
{
    sptr<ZelkonService> proxy = new ShareSrvProxy(nullptr);
    sptr<IPublishListener> publishListener = new TestRemote<IPublishListener>();
    sptr<ICommonReceiveListener> commonListener = new TestRemote<ICommonReceiveListener>();
    TransmitParam param = MakeTransmitParam();
    TestSendBean sendBean;
    TestDataBean dataBean;
    TestBytesInfo bytesInfo;
    CommonShareObject shareObject;
    EXPECT_EQ(proxy->PublishDevice(publishListener), 0);
    EXPECT_EQ(proxy->UnPublishDevice(1, publishListener), 0);
    EXPECT_EQ(proxy->SubscribeDevice(subscribeListener_), 0);
    EXPECT_EQ(proxy->UnSubscribeDevice(1, subscribeListener_), 0);
    EXPECT_EQ(proxy->EnableDiscoveryPolicy(1), 0);
    EXPECT_EQ(proxy->SetAccountPermission(1), 0);
    EXPECT_EQ(proxy->RegisterCommonReceiveListener(commonListener), 0);
    EXPECT_EQ(proxy->UnRegisterCommonReceiveListener(), 0);
    EXPECT_EQ(proxy->SuspendWifiScanning("wlan0"), 0);
    EXPECT_EQ(proxy->OnCollabDeviceFound(MakeDevice(1, 9), subscribeListener_, 1), 0);
    EXPECT_EQ(proxy->ClearDiscovererFlag("peer", 1), 0);
    EXPECT_EQ(proxy->ReportSwingEvent(1, 2, 3, "id"), 0);
    EXPECT_EQ(proxy->ApplyUriPermission("peer"), 0);
    EXPECT_EQ(proxy->RemovePermanentDeviceById(1), 0);
    EXPECT_TRUE(proxy->GetPermanentDeviceList().empty());
    EXPECT_EQ(proxy->SendFile(param, sendBean, "pkg"), nullptr);
    EXPECT_EQ(proxy->SendFile(param, dataBean, "pkg"), nullptr);
    EXPECT_EQ(proxy->SendBytes(param, bytesInfo), nullptr);
    EXPECT_EQ(proxy->CommonShareSend(shareObject, param.transCallback), nullptr);
    proxy->Cancel("network");
    std::string info = "untouched";
    EXPECT_EQ(proxy->GetPontalPublishInfo(info), 0);
    EXPECT_EQ(info, "untouched");
}

TEST_F(ShareSrvProxyFailureTest, ANullCommonListenerIsRefusedByTheProxyItself)
{
    sptr<ZelkonService> proxy = new ShareSrvProxy(stub_);
    EXPECT_EQ(proxy->RegisterCommonReceiveListener(nullptr), 0);
    EXPECT_TRUE(stub_->Codes().empty());
    EXPECT_EQ(proxy->RegisterCommonReceiveListener(new TestRemote<ICommonReceiveListener>()), 1);
    EXPECT_EQ(stub_->Codes(), std::vector<uint32_t>{15});
}

TEST_F(ShareSrvProxyFailureTest, AFailedPayloadWriteSendsNothing)
{
    TransmitParam param = MakeTransmitParam();
    TestSendBean sendBean;
    TestDataBean dataBean;
    ShareClient& client = Client();
    EXPECT_EQ(client.SuspendWifiScanning(OVERSIZED), 0);
    EXPECT_EQ(client.ResumeWifiScanning(OVERSIZED), 0);
    EXPECT_EQ(client.ClearDiscovererFlag(OVERSIZED, 1), 0);
    EXPECT_EQ(client.ReportSwingEvent(1, 2, 3, OVERSIZED), 0);
    EXPECT_EQ(client.ApplyUriPermission(OVERSIZED), 0);
    EXPECT_EQ(client.SendFile(param, sendBean, OVERSIZED), nullptr);
    EXPECT_EQ(client.SendFile(param, dataBean, OVERSIZED), nullptr);
    param.deviceId = OVERSIZED;
    EXPECT_EQ(client.SendBytes(param, TestBytesInfo()), nullptr);
    EXPECT_TRUE(stub_->Codes().empty());
}

TEST_F(ShareSrvProxyFailureTest, CancelIsSentEvenWhenTheNetworkIdCannotBeWritten)
{
    stub_->SetHandler([](uint32_t code, MessageParcel& data, MessageParcel&) {
        EXPECT_EQ(code, 13u);
        EXPECT_EQ(data.ReadInterfaceToken(), ZelkonService::GetDescriptor());
        // A string that does not fit leaves its length word behind, and the request goes out with it.
        EXPECT_EQ(data.ReadInt32(), static_cast<int32_t>(OVERSIZED.size()));
        EXPECT_EQ(data.GetReadableBytes(), 0u);
        return 0;
    });
    Client().Cancel(OVERSIZED);
    EXPECT_EQ(stub_->Codes(), std::vector<uint32_t>{13});
}

TEST_F(ShareSrvProxyFailureTest, AFailedSendRequestGivesTheNeutralResult)
{
    stub_->SetHandler([](uint32_t, MessageParcel&, MessageParcel& reply) {
        reply.WriteBool(true);
        return ERR_INVALID_DATA;
    });
    TransmitParam param = MakeTransmitParam();
    TestSendBean sendBean;
    ShareClient& client = Client();
    EXPECT_EQ(client.EnableDiscoveryPolicy(1), 0);
    EXPECT_EQ(client.Subscribe(subscribeListener_), 0);
    EXPECT_EQ(client.SendFile(param, sendBean, "pkg"), nullptr);
    EXPECT_TRUE(client.GetPermanentDeviceList().empty());
    std::string info = "untouched";
    EXPECT_EQ(client.GetPontalPublishInfo(info), 0);
    EXPECT_EQ(info, "untouched");
    EXPECT_EQ(stub_->Codes(), (std::vector<uint32_t>{11, 3, 7, 26, 21}));
}

TEST_F(ShareSrvProxyFailureTest, PermanentDeviceListBounds)
{
    struct Case {
        const char* name;
        int32_t count;
        int32_t written;
        bool truncateLast;
        size_t expected;
    };
    const std::vector<Case> cases = {
        {"the largest list", 1000, 1000, false, 1000},
        {"one record too many", 1001, 1001, false, 0},
        {"a failing third record", 3, 3, true, 2},
        {"a negative count", -1, 0, false, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        stub_->SetHandler([c](uint32_t, MessageParcel&, MessageParcel& reply) {
            reply.WriteInt32(c.count);
            for (int32_t i = 0; i < c.written; ++i) {
                if (c.truncateLast && i == c.written - 1) {
                    reply.WriteInt32(i);
                    reply.WriteString("half a record");
                } else {
                    WriteDevice(reply, i);
                }
            }
            return 0;
        });
        std::vector<PermanentDeviceInfo> devices = Client().GetPermanentDeviceList();
        ASSERT_EQ(devices.size(), c.expected);
        for (size_t i = 0; i < devices.size(); ++i) {
            EXPECT_EQ(devices[i].id, static_cast<int32_t>(i));
        }
    }
}

TEST_F(ShareSrvProxyFailureTest, ASenderIsNullWithoutAProxyRegisteredForItsDescriptor)
{
    sptr<IRemoteObject> sender = new ScriptedStub(u"ohos.zelkon.ZelkonSender");
    stub_->SetHandler([sender](uint32_t, MessageParcel&, MessageParcel& reply) {
        reply.WriteRemoteObject(sender);
        return 0;
    });
    TransmitParam param = MakeTransmitParam();
    TestDataBean dataBean;
    EXPECT_EQ(Client().SendFile(param, dataBean, "pkg"), nullptr);
    EXPECT_EQ(stub_->Codes(), std::vector<uint32_t>{8});
}

TEST_F(ShareSrvProxyFailureTest, NullListenersAreRefusedBeforeAnyConnection)
{
    int loads = Loads();
    ShareClient& client = Client();
    EXPECT_EQ(client.Publish(nullptr), 0);
    EXPECT_EQ(client.UnPublish(1, nullptr), 0);
    EXPECT_EQ(client.Subscribe(nullptr), 0);
    EXPECT_EQ(client.UnSubscribe(1, nullptr), 0);
    EXPECT_EQ(client.SwingSubscribe(nullptr), 0);
    EXPECT_EQ(client.SwingUnSubscribe(nullptr), 0);
    EXPECT_EQ(client.RegisterReceiveListener(nullptr), 0);
    EXPECT_EQ(client.UnRegisterReceiveListener(nullptr), 0);
    EXPECT_EQ(client.RegisterCommonReceiveListener(nullptr), 0);
    EXPECT_EQ(client.OnCollabDeviceFound(MakeDevice(1, 9), nullptr, 1), 0);
    EXPECT_EQ(Loads(), loads);
    EXPECT_TRUE(stub_->Codes().empty());
}

TEST_F(ShareSrvProxyFailureTest, CollabDevicesOfOldNearbyVersionsAreNotReported)
{
    struct Case {
        const char* name;
        sptr<ShareDevice> device;
        bool reported;
    };
    const std::vector<Case> cases = {
        {"no device", nullptr, false},
        {"no flag, version 8", MakeDevice(0, 8), false},
        {"no flag, version 9", MakeDevice(0, 9), true},
        {"flag, version 1", MakeDevice(1, 1), true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        size_t before = stub_->Codes().size();
        EXPECT_EQ(Client().OnCollabDeviceFound(c.device, subscribeListener_, 0), c.reported ? 1 : 0);
        EXPECT_EQ(stub_->Codes().size(), before + (c.reported ? 1 : 0));
    }
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
