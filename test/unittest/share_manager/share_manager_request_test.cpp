/*
 * Every request of the share manager service against a scripted service: its code, its token and its payload
 * decoded field by field from the protocol's request table, and the answer the caller sees.
 */
#include <algorithm>
#include <functional>
#include <numeric>
#include <string>
#include <vector>

#include "share_manager_harness.h"
#include "share_manager_wire.h"

namespace OHOS {
namespace Zelkon {
namespace {

constexpr int32_t SEND_BEAN_MARKER = 0x5EB0;
constexpr int32_t DATA_BEAN_MARKER = 0xDA7A;
constexpr int32_t BYTES_INFO_MARKER = 0xB17E;

// One field of a request payload, as the service reads it.
struct Field {
    enum class Kind { INT32, BOOL, STRING, OBJECT, DEVICE, MARKER };
    Kind kind;
    int64_t number = 0;
    std::string text;
};

Field Int(int32_t value)
{
    return {Field::Kind::INT32, value, {}};
}
Field Flag(bool value)
{
    return {Field::Kind::BOOL, value, {}};
}
Field Text(const std::string& value)
{
    return {Field::Kind::STRING, 0, value};
}
Field Object()
{
    return {Field::Kind::OBJECT, 0, {}};
}
Field Device(const std::string& deviceId)
{
    return {Field::Kind::DEVICE, 0, deviceId};
}
Field Marker(int32_t marker)
{
    return {Field::Kind::MARKER, marker, {}};
}

// Reads one field; an empty string when it is there as expected, else what was wrong.
std::string DecodeField(MessageParcel& data, const Field& field)
{
    switch (field.kind) {
    case Field::Kind::INT32:
    case Field::Kind::MARKER: {
        int32_t value = 0;
        return data.ReadInt32(value) && value == field.number ? "" : "int32 " + std::to_string(value);
    }
    case Field::Kind::BOOL: {
        bool value = false;
        return data.ReadBool(value) && value == (field.number != 0) ? "" : "bool";
    }
    case Field::Kind::STRING: {
        std::string value;
        return data.ReadString(value) && value == field.text ? "" : "string '" + value + "'";
    }
    case Field::Kind::OBJECT:
        return data.ReadRemoteObject() != nullptr ? "" : "no remote object";
    case Field::Kind::DEVICE: {
        std::string deviceId = ReadWireDeviceId(data);
        return deviceId == field.text ? "" : "device '" + deviceId + "'";
    }
    }
    return "unknown field";
}

struct RequestCase {
    const char* name;
    uint32_t code;
    std::function<bool(ShareManagerClient&)> call;
    std::vector<Field> payload;
};

class ShareManagerRequestTest : public ShareManagerTest {
protected:
    // Decodes every request of the test and answers with `answer`; problems are collected per request.
    void DecodeRequests(const std::vector<Field>& payload, bool answer)
    {
        stub_->SetHandler([this, payload, answer](uint32_t, MessageParcel& data, MessageParcel& reply) {
            problems_.clear();
            if (data.ReadInterfaceToken() != IWidgetService::GetDescriptor()) {
                problems_.push_back("token");
            }
            for (size_t i = 0; i < payload.size(); ++i) {
                std::string problem = DecodeField(data, payload[i]);
                if (!problem.empty()) {
                    problems_.push_back("field " + std::to_string(i) + ": " + problem);
                }
            }
            if (data.GetReadableBytes() != 0) {
                problems_.push_back("trailing bytes");
            }
            reply.WriteBool(answer);
            return 0;
        });
    }

    std::vector<std::string> problems_;
};

std::vector<RequestCase> BoolRequests()
{
    static ShareDeviceInfo device;
    device.deviceId = "peer-42";
    static MarkedRecord<SendBean, SEND_BEAN_MARKER> sendBean;
    static MarkedRecord<DataBean, DATA_BEAN_MARKER> dataBean;
    static MarkedRecord<BytesInfo, BYTES_INFO_MARKER> bytesInfo;
    static sptr<ZelkonWidgetServiceCallback> widget = new TestRemote<ZelkonWidgetServiceCallback>();
    static sptr<ISenderActionCallback> sender = new TestRemote<ISenderActionCallback>();
    static sptr<ZelkonApiCallback> api = new TestRemote<ZelkonApiCallback>();
    using C = ShareManagerClient;
    return {
        {"SetShareEnable", 1, [](C& c) { return c.SetShareEnable(-7, 8, true); }, {Int(-7), Int(8), Flag(true)}},
        {"SetShareEnableWithConfirm",
         2,
         [](C& c) { return c.SetShareEnableWithConfirm(5, -6, false, true); },
         {Int(5), Int(-6), Flag(false), Flag(true)}},
        {"IsEnabled", 3, [](C& c) { return c.IsEnabled(); }, {}},
        {"IsFocusPidsRegisterSwing", 36, [](C& c) { return c.IsFocusPidsRegisterSwing(); }, {}},
        {"RegisterWidgetCallback", 5, [](C& c) { return c.RegisterWidgetCallback(widget); }, {Object()}},
        {"UnRegisterWidgetCallback", 6, [](C& c) { return c.UnRegisterWidgetCallback(widget); }, {Object()}},
        {"StartDiscovery", 7, [](C& c) { return c.StartDiscovery(); }, {}},
        {"StopDiscovery", 8, [](C& c) { return c.StopDiscovery(); }, {}},
        {"StartConnect", 9, [](C& c) { return c.StartConnect(); }, {}},
        {"StopConnect", 10, [](C& c) { return c.StopConnect(); }, {}},
        {"PrepareSend", 12, [](C& c) { return c.PrepareSend(device); }, {Device("peer-42")}},
        {"Send",
         13,
         [](C& c) { return c.Send(device, sendBean, "com.example.app"); },
         {Device("peer-42"), Marker(SEND_BEAN_MARKER), Text("com.example.app")}},
        {"SendFile",
         15,
         [](C& c) { return c.SendFile(device, dataBean, "com.example.files"); },
         {Device("peer-42"), Marker(DATA_BEAN_MARKER), Text("com.example.files")}},
        {"SendBytes",
         14,
         [](C& c) { return c.SendBytes(device, bytesInfo); },
         {Device("peer-42"), Marker(BYTES_INFO_MARKER)}},
        {"Cancel", 16, [](C& c) { return c.Cancel(device); }, {Device("peer-42")}},
        {"RegisterSenderActionCallback", 17, [](C& c) { return c.RegisterSenderActionCallback(sender); }, {Object()}},
        {"UnRegisterSenderActionCallback",
         18,
         [](C& c) { return c.UnRegisterSenderActionCallback(sender); },
         {Object()}},
        {"SetShareAccountPermission", 23, [](C& c) { return c.SetShareAccountPermission(-2); }, {Int(-2)}},
        {"RegisterVxShareApiWidgetCallback",
         24,
         [](C& c) { return c.RegisterVxShareApiWidgetCallback(widget); },
         {Object()}},
        {"UnRegisterVxShareApiWidgetCallback",
         25,
         [](C& c) { return c.UnRegisterVxShareApiWidgetCallback(widget); },
         {Object()}},
        {"RegisterVxShareApiEvent", 26, [](C& c) { return c.RegisterVxShareApiEvent("vx.open"); }, {Text("vx.open")}},
        {"UnRegisterVxShareApiEvent",
         27,
         [](C& c) { return c.UnRegisterVxShareApiEvent("vx.close"); },
         {Text("vx.close")}},
        {"NotifyInfo", 28, [](C& c) { return c.NotifyInfo(device, 99); }, {Device("peer-42"), Int(99)}},
        {"ApplyUriPermission",
         29,
         [](C& c) { return c.ApplyUriPermission("com.example.uri"); },
         {Text("com.example.uri")}},
        {"SwingConfirm", 30, [](C& c) { return c.SwingConfirm(device, -1); }, {Device("peer-42"), Int(-1)}},
        {"IsAppForeground", 31, [](C& c) { return c.IsAppForeground("com.example.fg"); }, {Text("com.example.fg")}},
        {"RegisterShareApiCallback", 32, [](C& c) { return c.RegisterShareApiCallback(api); }, {Object()}},
        {"UnregisterShareApiCallback", 33, [](C& c) { return c.UnregisterShareApiCallback(api); }, {Object()}},
        {"RegisterShareEventCallback", 34, [](C& c) { return c.RegisterShareEventCallback(3, -4); }, {Int(3), Int(-4)}},
        {"UnregisterShareEventCallback",
         35,
         [](C& c) { return c.UnregisterShareEventCallback(-5, 6); },
         {Int(-5), Int(6)}},
    };
}

TEST_F(ShareManagerRequestTest, EveryBoolRequestCarriesItsCodeTokenAndPayloadAndReturnsTheAnswer)
{
    for (const RequestCase& request : BoolRequests()) {
        for (bool answer : {true, false}) {
            SCOPED_TRACE(std::string(request.name) + (answer ? " answered true" : " answered false"));
            size_t before = stub_->Codes().size();
            DecodeRequests(request.payload, answer);
            EXPECT_EQ(request.call(Client()), answer);
            std::vector<uint32_t> codes = stub_->Codes();
            ASSERT_EQ(codes.size(), before + 1);
            EXPECT_EQ(codes.back(), request.code);
            EXPECT_TRUE(problems_.empty()) << ::testing::PrintToString(problems_);
        }
    }
}

TEST_F(ShareManagerRequestTest, TheRequestCodesCoverOneToThirtySixOnce)
{
    std::vector<uint32_t> codes;
    for (const RequestCase& request : BoolRequests()) {
        codes.push_back(request.code);
    }
    // The six requests with other answers.
    for (uint32_t code : {4u, 21u, 11u, 19u, 20u, 22u}) {
        codes.push_back(code);
    }
    std::sort(codes.begin(), codes.end());
    std::vector<uint32_t> expected(36);
    std::iota(expected.begin(), expected.end(), 1u);
    EXPECT_EQ(codes, expected);
}

TEST_F(ShareManagerRequestTest, RequestsWithoutArgumentsCarryOnlyTheToken)
{
    using Call = std::function<void(ShareManagerClient&)>;
    const std::vector<std::pair<uint32_t, Call>> requests = {
        {4u, [](ShareManagerClient& c) { c.GetEnableState(); }},
        {21u, [](ShareManagerClient& c) { c.GetAllUserList(); }},
        {11u, [](ShareManagerClient& c) { c.GetSendingUserList(); }},
        {19u, [](ShareManagerClient& c) { c.GetReceiverActionCallback(); }},
        {20u, [](ShareManagerClient& c) { c.GetPreviewData(); }},
        {22u, [](ShareManagerClient& c) { c.GetAccountInfo(); }},
    };
    for (const auto& [code, call] : requests) {
        SCOPED_TRACE(code);
        DecodeRequests({}, false);
        call(Client());
        ASSERT_FALSE(stub_->Codes().empty());
        EXPECT_EQ(stub_->Codes().back(), code);
        EXPECT_TRUE(problems_.empty()) << ::testing::PrintToString(problems_);
    }
}

TEST_F(ShareManagerRequestTest, EnableStateIsTheRepliedInteger)
{
    stub_->SetHandler([](uint32_t, MessageParcel&, MessageParcel& reply) { return reply.WriteInt32(-17) ? 0 : 1; });
    EXPECT_EQ(Client().GetEnableState(), -17);
}

TEST_F(ShareManagerRequestTest, ClientAndProxyLogTheirOwnEnterAndExitTexts)
{
    EXPECT_TRUE(Client().SetShareEnable(1, 2, true));
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "Enable Enter", LOG_DEBUG));
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "Enable Exit", LOG_DEBUG));
    EXPECT_TRUE(LogCapture::Has(PROXY_TAG, "Enable() Enter", LOG_DEBUG));
    EXPECT_TRUE(LogCapture::Has(PROXY_TAG, "Enable() Exit", LOG_DEBUG));

    EXPECT_TRUE(Client().RegisterShareEventCallback(1, 2));
    EXPECT_TRUE(LogCapture::Has(PROXY_TAG, "Enter", LOG_INFO));
    EXPECT_TRUE(LogCapture::Has(PROXY_TAG, "Exit", LOG_INFO));

    EXPECT_TRUE(Client().SwingConfirm(ShareDeviceInfo(), 1));
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "SwingConfirm Enter", LOG_INFO));
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "SwingConfirm Exit", LOG_INFO));
}

TEST_F(ShareManagerRequestTest, IsFocusPidsRegisterSwingLogsOnlyItsResult)
{
    stub_->SetHandler([](uint32_t, MessageParcel&, MessageParcel& reply) { return reply.WriteBool(true) ? 0 : 1; });
    ASSERT_TRUE(Client().Connect() == 0);
    LogCapture::Clear();
    EXPECT_TRUE(Client().IsFocusPidsRegisterSwing());
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "IsFocusPidsRegisterSwing 1", LOG_INFO));
    for (const LogLine& line : LogCapture::Snapshot()) {
        EXPECT_EQ(line.message.find("Enter"), std::string::npos) << line.message;
        EXPECT_EQ(line.message.find("Exit"), std::string::npos) << line.message;
    }
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
