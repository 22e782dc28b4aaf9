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
 * Every operation of the share client against a scripted service: the request it sends (code, token, each field,
 * nothing more), what the caller gets for each answer, and the lines the client and the proxy log, as one table
 * run against a service that answers, one that is absent and one whose request fails.
 */
#include <functional>
#include <string>
#include <vector>

#include "iremote_proxy.h"
#include "marked_record.h"
#include "request_field.h"
#include "share_service_harness.h"
#include "share_srv_proxy.h"

namespace OHOS {
namespace Zelkon {
namespace {

using C = ShareClient;
constexpr LogLevel D = LOG_DEBUG;
constexpr LogLevel I = LOG_INFO;
// Longer than a parcel's default capacity: its write fails.
const std::string OVERSIZED(300 * 1024, 'x');

class TestSenderProxy : public IRemoteProxy<ZelkonSender> {
public:
    explicit TestSenderProxy(const sptr<IRemoteObject>& remote) : IRemoteProxy<ZelkonSender>(remote) {}
};

enum class Reply { BOOL, SENDER, NONE };

struct Operation {
    uint32_t code;
    std::vector<RequestField> fields;
    std::function<int32_t(C&)> call;
    // Client enter, client exit, proxy enter, proxy exit.
    std::vector<LogLine> lines;
    Reply reply = Reply::BOOL;
};

std::vector<LogLine> Lines(LogLevel clientLevel, const std::string& clientEnter, const std::string& clientExit,
                           LogLevel proxyLevel, const std::string& proxyEnter, const std::string& proxyExit)
{
    return {{CLIENT_TAG, clientLevel, clientEnter},
            {CLIENT_TAG, clientLevel, clientExit},
            {PROXY_TAG, proxyLevel, proxyEnter},
            {PROXY_TAG, D, proxyExit}};
}

// Client "NAME Enter" and "NAME Exit", proxy "NAME() Enter" and "NAME() Exit".
std::vector<LogLine> Named(const std::string& name, LogLevel clientLevel = D, LogLevel proxyLevel = D)
{
    return Lines(clientLevel, name + " Enter", name + " Exit", proxyLevel, name + "() Enter", name + "() Exit");
}

// The file sends log all four lines under the client's tag: its enter and exit, then the proxy's at debug level.
std::vector<LogLine> SendFileLines(LogLevel enterLevel, const std::string& clientEnter, const std::string& clientExit,
                                   const std::string& proxyPrefix)
{
    return {{CLIENT_TAG, enterLevel, clientEnter},
            {CLIENT_TAG, D, clientExit},
            {CLIENT_TAG, D, proxyPrefix + " enter!"},
            {CLIENT_TAG, D, proxyPrefix + " exit!"}};
}

sptr<ShareDevice> Device(int32_t ohFlag, int32_t nearbyVersion)
{
    sptr<ShareDevice> device = new MarkedRecord<ShareDevice, DEVICE>();
    device->ohFlag_ = ohFlag;
    device->nbVersion_ = nearbyVersion;
    return device;
}

TransmitParam Param()
{
    return {"peer-device-7", 30000, new TestRemote<ITransmitCallback>(), static_cast<TransmitEventType>(-3)};
}

const std::vector<Operation>& Operations()
{
    static const sptr<IPublishListener> publish = new TestRemote<IPublishListener>();
    static const sptr<ISubscribeListener> subscribe = new TestRemote<ISubscribeListener>();
    static const sptr<ZelkonReceiveListener> receive = new TestRemote<ZelkonReceiveListener>();
    static const sptr<ICommonReceiveListener> common = new TestRemote<ICommonReceiveListener>();
    static const TransmitParam param = Param();
    static MarkedRecord<SendBean, SEND_BEAN> sendBean;
    static const MarkedRecord<DataBean, DATA_BEAN> dataBean;
    static const MarkedRecord<BytesInfo, BYTES_INFO> bytesInfo;
    static CommonShareObject shareObject;
    const std::vector<RequestField> sendParams = {"peer-device-7", 30000, OBJECT, "com.example.share", -3};
    auto with = [](std::vector<RequestField> fields, RequestField last) {
        fields.push_back(last);
        return fields;
    };
    static const std::vector<Operation> operations = {
        {1, {OBJECT}, [](C& c) { return c.Publish(publish); }, Named("Publish")},
        {2, {41, OBJECT}, [](C& c) { return c.UnPublish(41, publish); }, Named("UnPublish")},
        {3,
         {OBJECT},
         [](C& c) { return c.Subscribe(subscribe); },
         Lines(D, "Subscribe Enter", "SubscribeDevice Exit", D, "SubscribeDevice() Enter", "SubscribeDevice() Exit")},
        {4,
         {-42, OBJECT},
         [](C& c) { return c.UnSubscribe(-42, subscribe); },
         Lines(D, "UnSubscribe Enter", "UnSubscribe Exit", D, "UnSubscribeDevice() Enter", "UnSubscribeDevice() Exit")},
        {5, {OBJECT}, [](C& c) { return c.RegisterReceiveListener(receive); }, Named("RegisterReceiveListener")},
        {6,
         {OBJECT},
         [](C& c) { return c.UnRegisterReceiveListener(receive); },
         Lines(D, "UnRegisterReceiveListener Enter", "UnRegisterReceiveListener Exit", D,
               "UnRegisterReceiveListener() Enter", "RegisterReceiveListener() Exit")},
        {7, with(sendParams, SEND_BEAN),
         [](C& c) { return c.SendFile(param, sendBean, "com.example.share") != nullptr; },
         SendFileLines(I, "send file with send bean enter!", "send file with preview info exit!",
                       "send file with preview info"),
         Reply::SENDER},
        {8, with(sendParams, DATA_BEAN),
         [](C& c) { return c.SendFile(param, dataBean, "com.example.share") != nullptr; },
         SendFileLines(D, "send file with data bean enter!", "send file with send bean exit!",
                       "send file with data bean"),
         Reply::SENDER},
        {10,
         {"peer-device-7", 30000, BYTES_INFO, OBJECT, -3},
         [](C& c) { return c.SendBytes(param, bytesInfo) != nullptr; },
         Named("SendBytes"),
         Reply::SENDER},
        {11, {3}, [](C& c) { return c.EnableDiscoveryPolicy(3); }, Named("EnableDiscoveryPolicy")},
        {12, {-7}, [](C& c) { return c.SetAccountPermission(-7); }, Named("SetAccountPermission")},
        {13,
         {"network-3"},
         [](C& c) { return c.Cancel("network-3"), 0; },
         Lines(D, "Cancel start", "", D, "Cancel start.", ""),
         Reply::NONE},
        // The default share object: networkId, timeout, type, resumable, the big string's size word alone, no items.
        {14,
         {"", 0, 0, 0, 1, 0, OBJECT},
         [](C& c) { return c.CommonShareSend(shareObject, param.transCallback) != nullptr; },
         Lines(D, "CommonShareSend start", "", D, "CommonShareSend start.", ""),
         Reply::SENDER},
        {15,
         {OBJECT},
         [](C& c) { return c.RegisterCommonReceiveListener(common); },
         Named("RegisterCommonReceiveListener")},
        {16, {}, [](C& c) { return c.UnRegisterCommonReceiveListener(); }, Named("UnRegisterCommonReceiveListener")},
        {17, {"wlan0"}, [](C& c) { return c.SuspendWifiScanning("wlan0"); }, Named("SuspendWifiScanning", I, I)},
        {18, {"p2p0"}, [](C& c) { return c.ResumeWifiScanning("p2p0"); }, Named("ResumeWifiScanning", I, I)},
        // The device's presence word, its marker, the listener, and the flag 0xFFFFFFFF as an int32 word.
        {19,
         {1, DEVICE, OBJECT, -1},
         [](C& c) { return c.OnCollabDeviceFound(Device(1, 3), subscribe, 0xFFFFFFFFu); },
         Named("OnCollabDeviceFound", I, I)},
        {20,
         {"peer-9", INT32_MIN + 1},
         [](C& c) { return c.ClearDiscovererFlag("peer-9", 0x80000001u); },
         Named("ClearDiscovererFlag", I, I)},
        {22,
         {OBJECT},
         [](C& c) { return c.SwingSubscribe(subscribe); },
         Lines(D, "SwingSubscribe Enter", "SubscribeDevice Exit", D, "SwingSubscribe() Enter",
               "SwingSubscribe() Exit")},
        {23,
         {OBJECT},
         [](C& c) { return c.SwingUnSubscribe(subscribe); },
         Lines(D, "UnSubscribe Enter", "UnSubscribe Exit", D, "SwingUnSubscribe() Enter", "SwingUnSubscribe() Exit")},
        {24,
         {2, -640, 1280, "concurrent-1"},
         [](C& c) { return c.ReportSwingEvent(2, -640, 1280, "concurrent-1"); },
         Lines(I, "Enter", "Exit", I, "Enter", "Exit")},
        {25,
         {"peer-10"},
         [](C& c) { return c.ApplyUriPermission("peer-10"); },
         {{CLIENT_TAG, I, "ApplyUriPermission Enter"},
          {CLIENT_TAG, I, "ApplyUriPermission Exit"},
          {PROXY_TAG, I, "ApplyUriPermission() Enter"},
          {PROXY_TAG, I, "ApplyUriPermission() Exit"}}},
        {27,
         {65570},
         [](C& c) { return c.RemovePermanentDeviceById(65570); },
         Named("RemovePermanentDeviceById", I, I)},
    };
    return operations;
}

class ShareClientRequestTest : public ShareServiceTest {
protected:
    // The service checks the request against the operation's fields and gives the answer in its reply shape.
    void Answer(const Operation& operation, bool answer)
    {
        sptr<IRemoteObject> sender = sender_;
        stub_->SetHandler([this, operation, answer, sender](uint32_t, MessageParcel& data, MessageParcel& reply) {
            mismatches_ = Mismatches(data, ZelkonService::GetDescriptor(), operation.fields);
            if (operation.reply == Reply::BOOL) {
                reply.WriteBool(answer);
            } else if (operation.reply == Reply::SENDER && answer) {
                reply.WriteRemoteObject(sender);
            }
            return 0;
        });
    }

    // Sender objects of the replies can be typed while the test runs.
    BrokerDelegator<TestSenderProxy> senderProxies_;
    sptr<IRemoteObject> sender_ = new ScriptedStub(u"ohos.zelkon.ZelkonSender");
    std::vector<std::string> mismatches_;
};

TEST_F(ShareClientRequestTest, EveryOperationSendsItsFieldsReturnsTheAnswerAndLogsItsLines)
{
    for (const Operation& operation : Operations()) {
        for (bool answer : {true, false}) {
            SCOPED_TRACE("code " + std::to_string(operation.code) + (answer ? " answered yes" : " answered no"));
            Answer(operation, answer);
            log_.Clear();
            const size_t before = Received(operation.code);
            EXPECT_EQ(operation.call(Client()), answer && operation.reply != Reply::NONE ? 1 : 0);
            EXPECT_EQ(Received(operation.code), before + 1);
            EXPECT_TRUE(mismatches_.empty()) << testing::PrintToString(mismatches_);
            if (answer) {
                ExpectLines(log_, operation.lines);
                EXPECT_EQ(ErrorLines(log_, CLIENT_TAG) + ErrorLines(log_, PROXY_TAG), 0u);
            } else if (operation.reply == Reply::SENDER) {
                EXPECT_EQ(Logged({PROXY_TAG, LOG_ERROR, "shareSender is nullptr."}), 1u);
            }
        }
    }
}

TEST_F(ShareClientRequestTest, WithoutTheServiceEveryOperationGivesTheNeutralResultAndSaysWhy)
{
    RefuseShareLoads(static_cast<int>(Operations().size()));
    for (const Operation& operation : Operations()) {
        SCOPED_TRACE("code " + std::to_string(operation.code));
        log_.Clear();
        EXPECT_EQ(operation.call(Client()), 0);
        ExpectLines(log_, {operation.lines[0],
                           {CLIENT_TAG, I, "LoadShareSa invoked."},
                           {CLIENT_TAG, LOG_ERROR, "LoadSystemAbility failed."},
                           {CLIENT_TAG, LOG_ERROR, "Failed to load zelkon SA."},
                           {CLIENT_TAG, LOG_ERROR, "Get ShareService failed."}});
        EXPECT_EQ(Logged(operation.lines[1]), 0u);
    }
    EXPECT_TRUE(stub_->Codes().empty());
}

TEST_F(ShareClientRequestTest, AFailedRequestGivesTheNeutralResultWithoutTheProxysExitLine)
{
    // A status reaches the caller only with an empty reply.
    stub_->SetHandler([](uint32_t, MessageParcel&, MessageParcel&) { return -9; });
    for (const Operation& operation : Operations()) {
        SCOPED_TRACE("code " + std::to_string(operation.code));
        log_.Clear();
        EXPECT_EQ(operation.call(Client()), 0);
        const std::vector<LogLine> logged = {operation.lines[0],
                                             operation.lines[1],
                                             operation.lines[2],
                                             {PROXY_TAG, LOG_ERROR, "SendRequest is failed, error code: -9"}};
        ExpectLines(log_, logged);
        const LogLine& exit = operation.lines[3];
        EXPECT_EQ(Logged(exit), static_cast<size_t>(std::count(logged.begin(), logged.end(), exit)));
    }
}

TEST_F(ShareClientRequestTest, PontalPublishInfoHandsOverTheStringWhateverTheFlagSays)
{
    for (bool answer : {true, false}) {
        stub_->SetHandler([answer](uint32_t code, MessageParcel&, MessageParcel& reply) {
            EXPECT_EQ(code, 21u);
            reply.WriteString("pontal-info");
            reply.WriteBool(answer);
            return 0;
        });
        log_.Clear();
        std::string info = "before";
        EXPECT_EQ(Client().GetPontalPublishInfo(info), answer ? 1 : 0);
        EXPECT_EQ(info, "pontal-info");
        ExpectLines(log_, Named("GetPontalPublishInfo", I, I));
    }
    stub_->SetHandler([](uint32_t, MessageParcel&, MessageParcel&) { return -9; });
    std::string info = "before";
    EXPECT_EQ(Client().GetPontalPublishInfo(info), 0);
    EXPECT_EQ(info, "before");
}

TEST_F(ShareClientRequestTest, PermanentDeviceListReadsUpToAThousandRecordsAndNamesWhatItRefuses)
{
    struct Case {
        int32_t count;
        int32_t written;
        bool lastCut;
        size_t expected;
        LogLine line;
    };
    const Case cases[] = {
        {2, 2, false, 2, {PROXY_TAG, D, "GetPermanentDeviceList() Exit, size 2"}},
        {1000, 1000, false, 1000, {PROXY_TAG, D, "GetPermanentDeviceList() Exit, size 1000"}},
        {-1, 0, false, 0, {PROXY_TAG, D, "GetPermanentDeviceList() Exit, size 0"}},
        {1001, 1001, false, 0, {PROXY_TAG, LOG_ERROR, "GetPermanentDeviceList Read device counter failed 1001."}},
        {3, 3, true, 2, {PROXY_TAG, LOG_ERROR, "GetPermanentDeviceList Read permanent device failed."}},
        // A reply without the count, as a failed request leaves it.
        {0, -1, false, 0, {PROXY_TAG, LOG_ERROR, "GetPermanentDeviceList Read device counter failed 0."}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.line.text);
        stub_->SetHandler([c](uint32_t code, MessageParcel& data, MessageParcel& reply) {
            EXPECT_EQ(code, 26u);
            EXPECT_TRUE(Mismatches(data, ZelkonService::GetDescriptor(), {}).empty());
            if (c.written >= 0) {
                reply.WriteInt32(c.count);
            }
            for (int32_t i = 0; i < c.written; ++i) {
                reply.WriteInt32(i);
                reply.WriteString("device-" + std::to_string(i));
                if (!c.lastCut || i + 1 < c.written) {
                    reply.WriteInt32(14);
                    reply.WriteString("udid");
                    reply.WriteInt64(1700000000000 + i);
                }
            }
            return 0;
        });
        log_.Clear();
        const std::vector<PermanentDeviceInfo> devices = Client().GetPermanentDeviceList();
        ASSERT_EQ(devices.size(), c.expected);
        for (size_t i = 0; i < devices.size(); ++i) {
            EXPECT_EQ(devices[i].id, static_cast<int32_t>(i));
            EXPECT_EQ(devices[i].deviceName, "device-" + std::to_string(i));
            EXPECT_EQ(devices[i].timestamp, 1700000000000 + static_cast<int64_t>(i));
        }
        ExpectLines(log_, {c.line,
                           {CLIENT_TAG, I, "GetPermanentDeviceList Enter"},
                           {CLIENT_TAG, I, "GetPermanentDeviceList Exit"},
                           {PROXY_TAG, D, "GetPermanentDeviceList() Enter"}});
        EXPECT_EQ(ErrorLines(log_, PROXY_TAG), c.line.level == LOG_ERROR ? 1u : 0u);
    }
}

TEST_F(ShareClientRequestTest, AFailedWriteSendsNothingAndNamesWhatFailed)
{
    TransmitParam param = Param();
    TransmitParam oversizedDevice = Param();
    oversizedDevice.deviceId = OVERSIZED;
    MarkedRecord<SendBean, 0> badSendBean;
    MarkedRecord<DataBean, 0> badDataBean;
    MarkedRecord<BytesInfo, 0> badBytesInfo;
    MarkedRecord<SendBean, SEND_BEAN> sendBean;
    CommonShareObject badShare;
    badShare.items.push_back(ShareItem());
    sptr<ISubscribeListener> listener = new TestRemote<ISubscribeListener>();
    sptr<ShareDevice> badDevice = new MarkedRecord<ShareDevice, 0>();
    badDevice->ohFlag_ = 1;
    struct Case {
        std::vector<const char*> texts;
        std::function<int32_t()> call;
    };
    C& c = Client();
    const Case cases[] = {
        {{"Write ifName failed."}, [&] { return c.SuspendWifiScanning(OVERSIZED); }},
        {{"Write ifName failed."}, [&] { return c.ResumeWifiScanning(OVERSIZED); }},
        {{"Write deviceId failed."}, [&] { return c.ClearDiscovererFlag(OVERSIZED, 1); }},
        {{"Write concurrentId failed."}, [&] { return c.ReportSwingEvent(1, 2, 3, OVERSIZED); }},
        {{"Write deviceId failed."}, [&] { return c.ApplyUriPermission(OVERSIZED); }},
        {{"Write packageName failed.", "Write param failed."},
         [&] { return c.SendFile(param, sendBean, OVERSIZED) != nullptr; }},
        {{"Write deviceId failed.", "Write param failed."},
         [&] { return c.SendFile(oversizedDevice, badDataBean, "p") != nullptr; }},
        {{"Write sendBean failed."}, [&] { return c.SendFile(param, badSendBean, "p") != nullptr; }},
        {{"Write SendBean failed."}, [&] { return c.SendFile(param, badDataBean, "p") != nullptr; }},
        {{"Write deviceId failed."}, [&] { return c.SendBytes(oversizedDevice, badBytesInfo) != nullptr; }},
        {{"Write BytesInfo failed."}, [&] { return c.SendBytes(param, badBytesInfo) != nullptr; }},
        {{"Write CommonShareObject failed."},
         [&] { return c.CommonShareSend(badShare, param.transCallback) != nullptr; }},
        {{"Write ShareDevice failed"}, [&] { return c.OnCollabDeviceFound(badDevice, listener, 1); }},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.texts[0]);
        log_.Clear();
        EXPECT_EQ(test.call(), 0);
        for (const char* text : test.texts) {
            EXPECT_EQ(Logged({PROXY_TAG, LOG_ERROR, text}), 1u) << text;
        }
    }
    EXPECT_TRUE(stub_->Codes().empty());
}

TEST_F(ShareClientRequestTest, CancelGoesOutEvenWhenTheNetworkIdCannotBeWritten)
{
    // A string that does not fit leaves its length word behind, and the request goes out with it.
    stub_->SetHandler([this](uint32_t, MessageParcel& data, MessageParcel&) {
        mismatches_ = Mismatches(data, ZelkonService::GetDescriptor(), {static_cast<int32_t>(OVERSIZED.size())});
        return 0;
    });
    Client().Cancel(OVERSIZED);
    EXPECT_EQ(Received(13), 1u);
    EXPECT_TRUE(mismatches_.empty()) << testing::PrintToString(mismatches_);
    EXPECT_EQ(Logged({PROXY_TAG, LOG_ERROR, "Write networkId failed."}), 1u);
}

TEST_F(ShareClientRequestTest, NullListenersAreRefusedBeforeAnyConnection)
{
    const int loads = Loads();
    C& c = Client();
    for (int32_t result : {c.Publish(nullptr), c.UnPublish(1, nullptr), c.Subscribe(nullptr), c.UnSubscribe(1, nullptr),
                           c.SwingSubscribe(nullptr), c.SwingUnSubscribe(nullptr), c.RegisterReceiveListener(nullptr),
                           c.UnRegisterReceiveListener(nullptr), c.RegisterCommonReceiveListener(nullptr),
                           c.OnCollabDeviceFound(Device(1, 9), nullptr, 1)}) {
        EXPECT_EQ(result, 0);
    }
    EXPECT_EQ(Loads(), loads);
    EXPECT_EQ(Logged({CLIENT_TAG, LOG_ERROR, "listener is null."}), 1u);
    EXPECT_EQ(Logged({CLIENT_TAG, LOG_ERROR, "ISubscribeListener nullptr."}), 1u);
    // The proxy refuses a null common listener itself.
    EXPECT_EQ(sptr<ShareSrvProxy>(new ShareSrvProxy(stub_))->RegisterCommonReceiveListener(nullptr), 0);
    EXPECT_EQ(Logged({PROXY_TAG, LOG_ERROR, "listener return nullptr."}), 1u);
    EXPECT_TRUE(stub_->Codes().empty());
}

TEST_F(ShareClientRequestTest, CollabDevicesOfOldNearbyVersionsAreNotReported)
{
    struct Case {
        const char* name;
        sptr<ShareDevice> device;
        bool reported;
    };
    const Case cases[] = {
        {"no device", nullptr, false},
        {"no flag, version 8", Device(0, 8), false},
        {"no flag, version 9", Device(0, 9), true},
        {"flag, version 1", Device(1, 1), true},
    };
    sptr<ISubscribeListener> listener = new TestRemote<ISubscribeListener>();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        log_.Clear();
        const size_t before = Received(19);
        EXPECT_EQ(Client().OnCollabDeviceFound(c.device, listener, 0), c.reported ? 1 : 0);
        EXPECT_EQ(Received(19), before + (c.reported ? 1 : 0));
        EXPECT_EQ(Logged({CLIENT_TAG, I, "skip report for convert device failed or tirmo device nbver < 9"}),
                  c.reported ? 0u : 1u);
        EXPECT_EQ(Logged({CLIENT_TAG, I, "OnCollabDeviceFound Exit"}), c.reported ? 1u : 0u);
    }
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
