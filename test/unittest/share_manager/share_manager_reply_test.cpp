/*
 * How the proxy reads what the service answers, and how it fails: device lists with their bound, the receiver
 * object, the preview text, the account record, refused arguments, unwritable records and failed sends.
 */
#include <string>
#include <vector>

#include "iremote_proxy.h"
#include "share_manager_harness.h"
#include "share_manager_wire.h"

namespace OHOS {
namespace Zelkon {
namespace {

constexpr const char* SERVICE_TAG = "ShareManagerService";

class ShareManagerReplyTest : public ShareManagerTest {
protected:
    // The service answers every request with what write puts into the reply.
    void Answer(std::function<void(MessageParcel&)> write)
    {
        stub_->SetHandler([write](uint32_t, MessageParcel&, MessageParcel& reply) {
            write(reply);
            return 0;
        });
    }

    // A list reply: the count, then `records` good records, a malformed one at index `broken` if given.
    void AnswerList(int32_t count, int records, int broken = -1)
    {
        Answer([=](MessageParcel& reply) {
            reply.WriteInt32(count);
            for (int i = 0; i < records; ++i) {
                if (i == broken) {
                    reply.WriteString("truncated");
                    return;
                }
                WriteWireDevice(reply, {"device-" + std::to_string(i), std::string(16, 'a'), i});
            }
        });
    }
};

TEST_F(ShareManagerReplyTest, ListsOfUpToAThousandRecordsAreReadWhole)
{
    AnswerList(1000, 1000);
    std::vector<ShareDeviceInfo> all = Client().GetAllUserList();
    ASSERT_EQ(all.size(), 1000u);
    EXPECT_EQ(all.front().deviceId, "device-0");
    EXPECT_EQ(all.back().deviceId, "device-999");
    EXPECT_EQ(all[500].percent, 500);
    EXPECT_TRUE(LogCapture::Has(PROXY_TAG, "GetAllUserList Exit size 1000", LOG_DEBUG));
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "GetAllUserList Exit size 1000", LOG_DEBUG));

    std::vector<ShareDeviceInfo> sending = Client().GetSendingUserList();
    EXPECT_EQ(sending.size(), 1000u);
    EXPECT_TRUE(LogCapture::Has(PROXY_TAG, "GetSendingUserList Exit", LOG_DEBUG));
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "GetSendingUserList Exit size 1000", LOG_DEBUG));
}

// Each list operation with its own failure texts.
struct ListCase {
    const char* name;
    std::vector<ShareDeviceInfo> (ShareManagerClient::*get)();
    const char* prefix;
};

const ListCase LIST_CASES[] = {
    {"GetAllUserList", &ShareManagerClient::GetAllUserList, "GetAllUserList "},
    {"GetSendingUserList", &ShareManagerClient::GetSendingUserList, ""},
};

TEST_F(ShareManagerReplyTest, BadCountsAndRecordsGiveAnEmptyListWithTheOperationsTexts)
{
    struct Reply {
        const char* what;
        int32_t count;
        int records;
        int broken;
        bool withCount;
        std::string error; // empty: no error, an ordinary empty list
    };
    const Reply replies[] = {
        {"count above the bound", 1001, 1001, -1, true, "Read device counter failed 1001 ."},
        {"negative count", -5, 0, -1, true, ""},
        {"reply ends before the count", 0, 0, -1, false, "Read device counter failed 0 ."},
        {"third record malformed", 5, 5, 2, true, "Read share device failed."},
    };
    for (const ListCase& list : LIST_CASES) {
        for (const Reply& reply : replies) {
            SCOPED_TRACE(std::string(list.name) + ": " + reply.what);
            LogCapture::Clear();
            if (reply.withCount) {
                AnswerList(reply.count, reply.records, reply.broken);
            } else {
                Answer([](MessageParcel&) {});
            }
            EXPECT_TRUE((Client().*list.get)().empty());
            if (reply.error.empty()) {
                EXPECT_EQ(LogCapture::Count(PROXY_TAG, "", LOG_ERROR), 0);
                std::string exit = std::string(list.name) + (list.prefix[0] ? " Exit size 0" : " Exit");
                EXPECT_TRUE(LogCapture::Has(PROXY_TAG, exit, LOG_DEBUG));
            } else {
                EXPECT_TRUE(LogCapture::Has(PROXY_TAG, list.prefix + reply.error, LOG_ERROR));
            }
        }
    }
}

TEST_F(ShareManagerReplyTest, FailedListRequestsUseTheOperationsTexts)
{
    stub_->SetHandler([](uint32_t, MessageParcel&, MessageParcel&) { return -9; });
    for (const ListCase& list : LIST_CASES) {
        SCOPED_TRACE(list.name);
        EXPECT_TRUE((Client().*list.get)().empty());
        EXPECT_TRUE(
            LogCapture::Has(PROXY_TAG, std::string(list.prefix) + "SendRequest is failed, error code: -9", LOG_ERROR));
    }
}

TEST_F(ShareManagerReplyTest, ReceiverObjectIsReturnedOrNullWithoutOne)
{
    sptr<ScriptedStub> receiver = new ScriptedStub(ZelkonReceiver::GetDescriptor());
    Answer([receiver](MessageParcel& reply) { reply.WriteRemoteObject(receiver); });
    // No creator is registered for the receiver's proxy, so the object cannot be typed.
    EXPECT_EQ(Client().GetReceiverActionCallback(), nullptr);
    EXPECT_TRUE(LogCapture::Has(PROXY_TAG, "Read remote object error.", LOG_ERROR));

    LogCapture::Clear();
    Answer([](MessageParcel& reply) { reply.WriteInt32(0); });
    EXPECT_EQ(Client().GetReceiverActionCallback(), nullptr);
    EXPECT_TRUE(LogCapture::Has(PROXY_TAG, "Read remote object error.", LOG_ERROR));
}

TEST_F(ShareManagerReplyTest, ReceiverObjectIsTypedWhenACreatorIsRegistered)
{
    class ReceiverProxy : public IRemoteProxy<ZelkonReceiver> {
    public:
        explicit ReceiverProxy(const sptr<IRemoteObject>& remote) : IRemoteProxy<ZelkonReceiver>(remote) {}
    };
    BrokerDelegator<ReceiverProxy> delegator;
    sptr<ScriptedStub> receiver = new ScriptedStub(ZelkonReceiver::GetDescriptor());
    Answer([receiver](MessageParcel& reply) { reply.WriteRemoteObject(receiver); });
    sptr<ZelkonReceiver> typed = Client().GetReceiverActionCallback();
    ASSERT_NE(typed, nullptr);
    EXPECT_NE(typed->AsObject(), nullptr);
    EXPECT_TRUE(LogCapture::Has(PROXY_TAG, "GetReceiverActionCallback() Exit", LOG_DEBUG));
}

TEST_F(ShareManagerReplyTest, PreviewDataIsTheBigStringOrEmptyUnderTheServiceTag)
{
    const std::string big(40000, 'p');
    Answer([&big](MessageParcel& reply) {
        reply.WriteUint32(static_cast<uint32_t>(big.size() + 1));
        reply.WriteRawData(big.c_str(), big.size() + 1);
    });
    EXPECT_EQ(Client().GetPreviewData(), big);

    Answer([](MessageParcel& reply) { reply.WriteUint32(0x500001); });
    EXPECT_EQ(Client().GetPreviewData(), "");
    EXPECT_TRUE(LogCapture::Has(SERVICE_TAG, "Read big string failed .", LOG_ERROR));
    for (const LogLine& line : LogCapture::Snapshot()) {
        if (line.tag == SERVICE_TAG) {
            EXPECT_EQ(line.domain, 0xD004614u);
        }
    }
}

TEST_F(ShareManagerReplyTest, AccountIsReadWholeOrAsFarAsItGoes)
{
    Answer([](MessageParcel& reply) {
        reply.WriteString("account-1");
        reply.WriteString("hash-1");
        reply.WriteInt32(2);
        reply.WriteInt32(10010);
        reply.WriteString("nick");
        reply.WriteString("avatar");
    });
    ShareAccountInfo whole = Client().GetAccountInfo();
    EXPECT_EQ(whole.norvaneAccountID, "account-1");
    EXPECT_EQ(whole.avatar, "avatar");
    EXPECT_TRUE(LogCapture::Has(PROXY_TAG, "GetAccountInfo() Exit", LOG_DEBUG));

    Answer([](MessageParcel& reply) {
        reply.WriteString("account-2");
        reply.WriteString("hash-2");
        reply.WriteInt32(1);
        reply.WriteInt32(20020);
    });
    ShareAccountInfo partial = Client().GetAccountInfo();
    EXPECT_EQ(partial.norvaneAccountID, "account-2");
    EXPECT_EQ(partial.callingUid, 20020);
    EXPECT_EQ(partial.nickName, "");
    EXPECT_TRUE(LogCapture::Has(PROXY_TAG, "Read share accout failed.", LOG_ERROR));
}

TEST_F(ShareManagerReplyTest, NullCallbacksAreRefusedBeforeAnythingIsSentExceptOne)
{
    using C = ShareManagerClient;
    const std::vector<std::function<bool(C&)>> calls = {
        [](C& c) { return c.RegisterWidgetCallback(nullptr); },
        [](C& c) { return c.UnRegisterWidgetCallback(nullptr); },
        [](C& c) { return c.RegisterSenderActionCallback(nullptr); },
        [](C& c) { return c.UnRegisterSenderActionCallback(nullptr); },
        [](C& c) { return c.RegisterVxShareApiWidgetCallback(nullptr); },
        [](C& c) { return c.UnRegisterVxShareApiWidgetCallback(nullptr); },
        [](C& c) { return c.RegisterShareApiCallback(nullptr); },
    };
    for (size_t i = 0; i < calls.size(); ++i) {
        SCOPED_TRACE(i);
        LogCapture::Clear();
        EXPECT_FALSE(calls[i](Client()));
        EXPECT_TRUE(LogCapture::Has(PROXY_TAG, "The parameter callback is nullptr.", LOG_ERROR));
        EXPECT_EQ(LogCapture::Count(PROXY_TAG, "Enter", LOG_DEBUG) + LogCapture::Count(PROXY_TAG, "Enter", LOG_INFO),
                  0);
    }
    EXPECT_TRUE(stub_->Codes().empty());

    LogCapture::Clear();
    EXPECT_FALSE(Client().UnregisterShareApiCallback(nullptr));
    EXPECT_FALSE(LogCapture::Has(PROXY_TAG, "The parameter callback is nullptr.", LOG_ERROR));
    EXPECT_TRUE(LogCapture::Has(PROXY_TAG, "Write RemoteObject failed", LOG_ERROR));
    EXPECT_TRUE(stub_->Codes().empty());
}

template <typename Record>
class UnwritableRecord : public Record {
public:
    bool Marshalling(Parcel&) const override { return false; }
};

TEST_F(ShareManagerReplyTest, UnwritableRecordsFailWithTheirTextsWithoutSending)
{
    ShareDeviceInfo device;
    UnwritableRecord<ShareDeviceInfo> badDevice;
    UnwritableRecord<SendBean> badSendBean;
    UnwritableRecord<DataBean> badDataBean;
    UnwritableRecord<BytesInfo> badBytesInfo;
    MarkedRecord<SendBean, 1> sendBean;
    struct Case {
        const char* text;
        std::function<bool()> call;
    };
    ShareManagerClient& c = Client();
    const Case cases[] = {
        {"Write ShareDevice failed", [&] { return c.PrepareSend(badDevice); }},
        {"Write ShareDevice failed", [&] { return c.Cancel(badDevice); }},
        {"Write ShareDevice failed", [&] { return c.NotifyInfo(badDevice, 1); }},
        {"Write ShareDevice failed", [&] { return c.SwingConfirm(badDevice, 1); }},
        {"Write deviceInfo failed", [&] { return c.Send(badDevice, sendBean, "p"); }},
        {"Write sendBean failed", [&] { return c.Send(device, badSendBean, "p"); }},
        {"Write sendBean failed", [&] { return c.SendFile(device, badDataBean, "p"); }},
        {"Write deviceInfo failed", [&] { return c.SendBytes(badDevice, badBytesInfo); }},
        {"Write bytesInfo failed", [&] { return c.SendBytes(device, badBytesInfo); }},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.text);
        LogCapture::Clear();
        EXPECT_FALSE(test.call());
        EXPECT_EQ(LogCapture::Count(PROXY_TAG, test.text, LOG_ERROR), 1);
    }
    EXPECT_TRUE(stub_->Codes().empty());
}

TEST_F(ShareManagerReplyTest, SendErrorsAreLoggedSignedAndGiveTheNeutralResult)
{
    stub_->SetHandler([](uint32_t, MessageParcel&, MessageParcel& reply) {
        reply.WriteBool(true);
        return -3;
    });
    EXPECT_FALSE(Client().IsEnabled());
    EXPECT_EQ(Client().GetEnableState(), 0);
    EXPECT_EQ(LogCapture::Count(PROXY_TAG, "SendRequest is failed, error code: -3", LOG_ERROR), 2);
    EXPECT_FALSE(LogCapture::Has(PROXY_TAG, "IsEnabled() Exit", LOG_DEBUG));
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
