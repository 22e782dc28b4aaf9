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
 * The operations whose answers are more than a word: device lists with their bound, the receiver object, the
 * preview text and the account record, each with what it logs when the reply is good, bad or missing; and the
 * requests refused or abandoned before anything is sent.
 */
#include <string>
#include <vector>

#include "iremote_proxy.h"
#include "marked_record.h"
#include "sample_records.h"
#include "share_manager_harness.h"

namespace OHOS {
namespace Zelkon {
namespace {

constexpr const char* SERVICE_TAG = "ShareManagerService";

class ReceiverProxy : public IRemoteProxy<ZelkonReceiver> {
public:
    explicit ReceiverProxy(const sptr<IRemoteObject>& remote) : IRemoteProxy<ZelkonReceiver>(remote) {}
};

// Each list operation with its own texts.
struct ListOperation {
    std::string name;
    std::vector<ShareDeviceInfo> (ShareManagerClient::*get)();
    // GetAllUserList names itself in its failure lines and gives the size in its exit line.
    bool named;
};

const ListOperation LISTS[] = {{"GetAllUserList", &ShareManagerClient::GetAllUserList, true},
                               {"GetSendingUserList", &ShareManagerClient::GetSendingUserList, false}};

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
};

TEST_F(ShareManagerReplyTest, ListsAreReadWholeUpToAThousandRecordsOrNotAtAll)
{
    const struct {
        int32_t count;
        int records;
        // The record cut short, or -1.
        int broken;
        size_t expected;
        // The proxy's failure line after the operation's prefix, or empty.
        std::string error;
    } replies[] = {
        {1000, 1000, -1, 1000, ""},
        {-5, 0, -1, 0, ""},
        {1001, 1001, -1, 0, "Read device counter failed 1001 ."},
        {5, 5, 2, 0, "Read share device failed."},
        {0, -1, -1, 0, "Read device counter failed 0 ."},
    };
    for (const ListOperation& list : LISTS) {
        for (const auto& reply : replies) {
            SCOPED_TRACE(list.name + " answered " + std::to_string(reply.count));
            Answer([reply](MessageParcel& parcel) {
                if (reply.records >= 0) {
                    parcel.WriteInt32(reply.count);
                }
                for (int i = 0; i < reply.records; ++i) {
                    ShareDeviceInfo device = FilledDevice();
                    device.deviceId = "device-" + std::to_string(i);
                    i == reply.broken ? parcel.WriteString(device.deviceName) : device.Marshalling(parcel);
                }
            });
            log_.Clear();
            const std::vector<ShareDeviceInfo> devices = (Client().*list.get)();
            ASSERT_EQ(devices.size(), reply.expected);
            if (!devices.empty()) {
                EXPECT_EQ(devices.back().deviceId, "device-999");
            }
            const std::string size = " size " + std::to_string(reply.expected);
            const std::string prefix = list.named ? list.name + " " : "";
            const LogLine proxyExit{PROXY_TAG, LOG_DEBUG, list.name + " Exit" + (list.named ? size : "")};
            ExpectLines(log_, {{CLIENT_TAG, LOG_DEBUG, list.name + " Enter"},
                               {PROXY_TAG, LOG_DEBUG, list.name + " Enter"},
                               {CLIENT_TAG, LOG_DEBUG, list.name + " Exit" + size},
                               {PROXY_TAG, LOG_ERROR, reply.error.empty() ? "" : prefix + reply.error}});
            EXPECT_EQ(Logged(proxyExit), reply.error.empty() ? 1u : 0u);
        }
        stub_->SetHandler([](uint32_t, MessageParcel&, MessageParcel&) { return -9; });
        log_.Clear();
        EXPECT_TRUE((Client().*list.get)().empty());
        const std::string prefix = list.named ? list.name + " " : "";
        EXPECT_EQ(Logged({PROXY_TAG, LOG_ERROR, prefix + "SendRequest is failed, error code: -9"}), 1u);
    }
}

TEST_F(ShareManagerReplyTest, TheReceiverIsTypedWhenACreatorIsRegisteredAndNullOtherwise)
{
    sptr<ScriptedStub> receiver = new ScriptedStub(ZelkonReceiver::GetDescriptor());
    Answer([receiver](MessageParcel& reply) { reply.WriteRemoteObject(receiver); });
    {
        BrokerDelegator<ReceiverProxy> receiverProxies;
        sptr<ZelkonReceiver> typed = Client().GetReceiverActionCallback();
        ASSERT_NE(typed, nullptr);
        EXPECT_NE(typed->AsObject(), nullptr);
        ExpectLines(log_, {{CLIENT_TAG, LOG_DEBUG, "GetReceiverActionCallback Enter"},
                           {CLIENT_TAG, LOG_DEBUG, "GetReceiverActionCallback Exit"},
                           {PROXY_TAG, LOG_DEBUG, "GetReceiverActionCallback() Enter"},
                           {PROXY_TAG, LOG_DEBUG, "GetReceiverActionCallback() Exit"}});
        EXPECT_EQ(ErrorLines(log_, PROXY_TAG), 0u);
    }
    for (bool withObject : {true, false}) {
        if (!withObject) {
            Answer([](MessageParcel& reply) { reply.WriteInt32(0); });
        }
        log_.Clear();
        EXPECT_EQ(Client().GetReceiverActionCallback(), nullptr);
        EXPECT_EQ(Logged({PROXY_TAG, LOG_ERROR, "Read remote object error."}), 1u);
        EXPECT_EQ(Logged({PROXY_TAG, LOG_DEBUG, "GetReceiverActionCallback() Exit"}), 0u);
    }
}

TEST_F(ShareManagerReplyTest, PreviewDataIsTheBigStringOrEmptyWithTheReadersLine)
{
    const std::string big(40000, 'p');
    Answer([&big](MessageParcel& reply) {
        reply.WriteUint32(static_cast<uint32_t>(big.size() + 1));
        reply.WriteRawData(big.c_str(), big.size() + 1);
    });
    EXPECT_EQ(Client().GetPreviewData(), big);
    ExpectLines(log_, {{CLIENT_TAG, LOG_DEBUG, "GetPreviewData Enter"},
                       {PROXY_TAG, LOG_DEBUG, "GetPreviewData() Enter"},
                       {PROXY_TAG, LOG_DEBUG, "GetPreviewData() Exit"}});

    Answer([](MessageParcel& reply) { reply.WriteUint32(0x500001); });
    log_.Clear();
    EXPECT_EQ(Client().GetPreviewData(), "");
    EXPECT_EQ(Logged({SERVICE_TAG, LOG_ERROR, "Read big string failed ."}), 1u);
    EXPECT_EQ(Logged({PROXY_TAG, LOG_DEBUG, "GetPreviewData() Exit"}), 0u);
}

TEST_F(ShareManagerReplyTest, TheAccountIsReadWholeOrAsFarAsItGoes)
{
    Answer([](MessageParcel& reply) { FilledAccount().Marshalling(reply); });
    const ShareAccountInfo whole = Client().GetAccountInfo();
    EXPECT_EQ(whole.norvaneAccountID, FilledAccount().norvaneAccountID);
    EXPECT_EQ(whole.avatar, FilledAccount().avatar);
    ExpectLines(log_, {{CLIENT_TAG, LOG_DEBUG, "GetAccountInfo Enter"},
                       {CLIENT_TAG, LOG_DEBUG, "GetAccountInfo Exit"},
                       {PROXY_TAG, LOG_DEBUG, "GetAccountInfo() Enter"},
                       {PROXY_TAG, LOG_DEBUG, "GetAccountInfo() Exit"}});

    Answer([](MessageParcel& reply) {
        reply.WriteString("account-2");
        reply.WriteString("hash-2");
        reply.WriteInt32(1);
        reply.WriteInt32(20020);
    });
    log_.Clear();
    const ShareAccountInfo partial = Client().GetAccountInfo();
    EXPECT_EQ(partial.norvaneAccountID, "account-2");
    EXPECT_EQ(partial.callingUid, 20020);
    EXPECT_EQ(partial.nickName, "");
    EXPECT_EQ(Logged({PROXY_TAG, LOG_ERROR, "Read share accout failed."}), 1u);
    EXPECT_EQ(Logged({PROXY_TAG, LOG_DEBUG, "GetAccountInfo() Exit"}), 0u);
}

TEST_F(ShareManagerReplyTest, WithoutTheServiceTheRepliesAreNeutralAndSayWhy)
{
    ASSERT_TRUE(SamgrHostControl::KillSystemAbility(SHARE_MANAGER_SA_ID));
    SamgrHostControl::Reset();
    for (const ListOperation& list : LISTS) {
        log_.Clear();
        EXPECT_TRUE((Client().*list.get)().empty());
        const std::string noProxy = (list.named ? list.name + " " : "") + "shareManagerSrvProxy_ is nullptr";
        ExpectLines(log_,
                    {{CLIENT_TAG, LOG_ERROR, "Get ShareWidgetService failed."}, {CLIENT_TAG, LOG_ERROR, noProxy}});
    }
    EXPECT_EQ(Client().GetReceiverActionCallback(), nullptr);
    EXPECT_EQ(Client().GetPreviewData(), "");
    EXPECT_EQ(Client().GetAccountInfo().callingUid, ShareAccountInfo().callingUid);
    EXPECT_EQ(Logged({CLIENT_TAG, LOG_ERROR, "shareManagerSrvProxy_ is nullptr"}), 4u);
}

TEST_F(ShareManagerReplyTest, NullCallbacksAreRefusedBeforeAnythingIsSentExceptOne)
{
    using C = ShareManagerClient;
    const std::function<bool(C&)> calls[] = {
        [](C& c) { return c.RegisterWidgetCallback(nullptr); },
        [](C& c) { return c.UnRegisterWidgetCallback(nullptr); },
        [](C& c) { return c.RegisterSenderActionCallback(nullptr); },
        [](C& c) { return c.UnRegisterSenderActionCallback(nullptr); },
        [](C& c) { return c.RegisterVxShareApiWidgetCallback(nullptr); },
        [](C& c) { return c.UnRegisterVxShareApiWidgetCallback(nullptr); },
        [](C& c) { return c.RegisterShareApiCallback(nullptr); },
    };
    for (const auto& call : calls) {
        log_.Clear();
        EXPECT_FALSE(call(Client()));
        EXPECT_EQ(Logged({PROXY_TAG, LOG_ERROR, "The parameter callback is nullptr."}), 1u);
        EXPECT_EQ(log_.Count(PROXY_TAG, "Enter"), 0u);
    }
    log_.Clear();
    EXPECT_FALSE(Client().UnregisterShareApiCallback(nullptr));
    EXPECT_EQ(Logged({PROXY_TAG, LOG_ERROR, "The parameter callback is nullptr."}), 0u);
    EXPECT_EQ(Logged({PROXY_TAG, LOG_ERROR, "Write RemoteObject failed"}), 1u);
    EXPECT_TRUE(stub_->Codes().empty());
}

TEST_F(ShareManagerReplyTest, UnwritableRecordsFailWithTheirTextsWithoutSending)
{
    MarkedRecord<ShareDeviceInfo, 1> device;
    MarkedRecord<ShareDeviceInfo, 0> badDevice;
    MarkedRecord<SendBean, 1> sendBean;
    MarkedRecord<SendBean, 0> badSendBean;
    MarkedRecord<DataBean, 0> badDataBean;
    MarkedRecord<BytesInfo, 0> badBytesInfo;
    ShareManagerClient& c = Client();
    const std::pair<const char*, std::function<bool()>> cases[] = {
        {"Write ShareDevice failed", [&] { return c.PrepareSend(badDevice); }},
        {"Write ShareDevice failed", [&] { return c.Cancel(badDevice); }},
        {"Write ShareDevice failed", [&] { return c.NotifyInfo(badDevice, 1); }},
        {"Write ShareDevice failed", [&] { return c.SwingConfirm(badDevice, 1); }},
        {"Write deviceInfo failed", [&] { return c.Send(badDevice, sendBean, "p"); }},
        {"Write sendBean failed", [&] { return c.Send(device, badSendBean, "p"); }},
        {"Write deviceInfo failed", [&] { return c.SendFile(badDevice, badDataBean, "p"); }},
        {"Write sendBean failed", [&] { return c.SendFile(device, badDataBean, "p"); }},
        {"Write packageName failed", [&] { return c.Send(device, sendBean, std::string(300 * 1024, 'p')); }},
        {"Write deviceInfo failed", [&] { return c.SendBytes(badDevice, badBytesInfo); }},
        {"Write bytesInfo failed", [&] { return c.SendBytes(device, badBytesInfo); }},
        {"Write string failed", [&] { return c.RegisterVxShareApiEvent(std::string(300 * 1024, 'e')); }},
        {"Write packageName failed", [&] { return c.IsAppForeground(std::string(300 * 1024, 'p')); }},
    };
    for (const auto& [text, call] : cases) {
        SCOPED_TRACE(text);
        log_.Clear();
        EXPECT_FALSE(call());
        EXPECT_EQ(Logged({PROXY_TAG, LOG_ERROR, text}), 1u);
    }
    EXPECT_TRUE(stub_->Codes().empty());
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
