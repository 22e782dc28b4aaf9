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
 * Every operation of the share manager client whose answer is one word, against a scripted service: the request
 * it sends (code, token, each field, nothing more), what the caller gets for each answer, and the lines the client
 * and the proxy log, as one table run against a service that answers, one that is absent and one whose request
 * fails.
 */
#include <functional>
#include <string>
#include <vector>

#include "marked_record.h"
#include "request_field.h"
#include "share_manager_harness.h"

namespace OHOS {
namespace Zelkon {
namespace {

using C = ShareManagerClient;
constexpr LogLevel D = LOG_DEBUG;
constexpr LogLevel I = LOG_INFO;
const char* const NO_PROXY = "shareManagerSrvProxy_ is nullptr";

struct Operation {
    uint32_t code;
    std::vector<RequestField> fields;
    std::function<bool(C&)> call;
    // Client enter, client exit, proxy enter, proxy exit.
    std::vector<LogLine> lines;
    // What the client logs when it has no proxy; null when the connection failure is all it says.
    std::string noProxy = NO_PROXY;
};

std::vector<LogLine> Lines(LogLevel clientLevel, const std::string& clientEnter, const std::string& clientExit,
                           LogLevel proxyLevel, const std::string& proxyEnter, const std::string& proxyExit)
{
    return {{CLIENT_TAG, clientLevel, clientEnter},
            {CLIENT_TAG, clientLevel, clientExit},
            {PROXY_TAG, proxyLevel, proxyEnter},
            {PROXY_TAG, proxyLevel, proxyExit}};
}

// Client "NAME Enter" and "NAME Exit", proxy "NAME() Enter" and "NAME() Exit".
std::vector<LogLine> Named(const std::string& name, LogLevel clientLevel = D)
{
    return Lines(clientLevel, name + " Enter", name + " Exit", D, name + "() Enter", name + "() Exit");
}

// The share API requests log the bare words at info level on the proxy's side.
std::vector<LogLine> BareLines(const std::string& clientName)
{
    const std::string prefix = clientName.empty() ? "" : clientName + " ";
    return Lines(D, prefix + "Enter", prefix + "Exit", I, "Enter", "Exit");
}

const std::vector<Operation>& Operations()
{
    static MarkedRecord<ShareDeviceInfo, DEVICE> device;
    static MarkedRecord<SendBean, SEND_BEAN> sendBean;
    static const MarkedRecord<DataBean, DATA_BEAN> dataBean;
    static const MarkedRecord<BytesInfo, BYTES_INFO> bytesInfo;
    static const sptr<ZelkonWidgetServiceCallback> widget = new TestRemote<ZelkonWidgetServiceCallback>();
    static const sptr<ISenderActionCallback> sender = new TestRemote<ISenderActionCallback>();
    static const sptr<ZelkonApiCallback> api = new TestRemote<ZelkonApiCallback>();
    static const std::vector<Operation> operations = {
        {1, {-7, 8, 1}, [](C& c) { return c.SetShareEnable(-7, 8, true); }, Named("Enable")},
        {2,
         {5, -6, 0, 1},
         [](C& c) { return c.SetShareEnableWithConfirm(5, -6, false, true); },
         Named("EnableWithConfirm")},
        {3, {}, [](C& c) { return c.IsEnabled(); }, Named("IsEnabled")},
        // The answer word read as the state.
        {4, {}, [](C& c) { return c.GetEnableState() == 1; }, Named("GetEnableState")},
        {5, {OBJECT}, [](C& c) { return c.RegisterWidgetCallback(widget); }, Named("RegisterWidgetCallback")},
        {6, {OBJECT}, [](C& c) { return c.UnRegisterWidgetCallback(widget); }, Named("UnRegisterWidgetCallback")},
        {7, {}, [](C& c) { return c.StartDiscovery(); }, Named("StartDiscovery")},
        {8, {}, [](C& c) { return c.StopDiscovery(); }, Named("StopDiscovery")},
        {9,
         {},
         [](C& c) { return c.StartConnect(); },
         Named("StartConnect"),
         "StartConnect shareManagerSrvProxy_ is nullptr"},
        {10,
         {},
         [](C& c) { return c.StopConnect(); },
         Named("StopConnect"),
         "StopConnect shareManagerSrvProxy_ is nullptr"},
        {12, {DEVICE}, [](C& c) { return c.PrepareSend(device); }, Named("PrepareSend")},
        {13,
         {DEVICE, SEND_BEAN, "com.example.app"},
         [](C& c) { return c.Send(device, sendBean, "com.example.app"); },
         Named("Send")},
        {14, {DEVICE, BYTES_INFO}, [](C& c) { return c.SendBytes(device, bytesInfo); }, Named("SendBytes")},
        {15,
         {DEVICE, DATA_BEAN, "com.example.files"},
         [](C& c) { return c.SendFile(device, dataBean, "com.example.files"); },
         Named("SendFile")},
        {16, {DEVICE}, [](C& c) { return c.Cancel(device); }, Named("Cancel")},
        {17,
         {OBJECT},
         [](C& c) { return c.RegisterSenderActionCallback(sender); },
         Named("RegisterSenderActionCallback")},
        {18,
         {OBJECT},
         [](C& c) { return c.UnRegisterSenderActionCallback(sender); },
         Named("UnRegisterSenderActionCallback")},
        {23, {-2}, [](C& c) { return c.SetShareAccountPermission(-2); }, Named("SetShareAccountPermission")},
        {24, {OBJECT}, [](C& c) { return c.RegisterVxShareApiWidgetCallback(widget); }, BareLines("")},
        {25, {OBJECT}, [](C& c) { return c.UnRegisterVxShareApiWidgetCallback(widget); }, BareLines("")},
        {26, {"vx.open"}, [](C& c) { return c.RegisterVxShareApiEvent("vx.open"); }, BareLines("")},
        {27, {"vx.close"}, [](C& c) { return c.UnRegisterVxShareApiEvent("vx.close"); }, BareLines("")},
        {28, {DEVICE, 99}, [](C& c) { return c.NotifyInfo(device, 99); }, Named("NotifyInfo")},
        {29,
         {"com.example.uri"},
         [](C& c) { return c.ApplyUriPermission("com.example.uri"); },
         Named("ApplyUriPermission"),
         ""},
        {30, {DEVICE, -1}, [](C& c) { return c.SwingConfirm(device, -1); }, Named("SwingConfirm", I)},
        {31, {"com.example.fg"}, [](C& c) { return c.IsAppForeground("com.example.fg"); }, Named("IsAppForeground")},
        {32, {OBJECT}, [](C& c) { return c.RegisterShareApiCallback(api); }, BareLines("RegisterShareApiCallback")},
        {33, {OBJECT}, [](C& c) { return c.UnregisterShareApiCallback(api); }, BareLines("UnregisterShareApiCallback")},
        {34,
         {3, -4},
         [](C& c) { return c.RegisterShareEventCallback(3, -4); },
         BareLines("RegisterShareEventCallback")},
        {35,
         {-5, 6},
         [](C& c) { return c.UnregisterShareEventCallback(-5, 6); },
         BareLines("UnregisterShareEventCallback")},
    };
    return operations;
}

class ShareManagerRequestTest : public ShareManagerTest {
protected:
    void Answer(const Operation& operation, bool answer)
    {
        stub_->SetHandler([this, operation, answer](uint32_t, MessageParcel& data, MessageParcel& reply) {
            mismatches_ = Mismatches(data, IWidgetService::GetDescriptor(), operation.fields);
            reply.WriteBool(answer);
            return 0;
        });
    }

    std::vector<std::string> mismatches_;
};

TEST_F(ShareManagerRequestTest, EveryOperationSendsItsFieldsReturnsTheAnswerAndLogsItsLines)
{
    for (const Operation& operation : Operations()) {
        for (bool answer : {true, false}) {
            SCOPED_TRACE("code " + std::to_string(operation.code) + (answer ? " answered yes" : " answered no"));
            Answer(operation, answer);
            log_.Clear();
            const size_t before = stub_->Codes().size();
            EXPECT_EQ(operation.call(Client()), answer);
            const std::vector<uint32_t> codes = stub_->Codes();
            ASSERT_EQ(codes.size(), before + 1);
            EXPECT_EQ(codes.back(), operation.code);
            EXPECT_TRUE(mismatches_.empty()) << testing::PrintToString(mismatches_);
            ExpectLines(log_, operation.lines);
            EXPECT_EQ(ErrorLines(log_, CLIENT_TAG) + ErrorLines(log_, PROXY_TAG), 0u);
        }
    }
}

TEST_F(ShareManagerRequestTest, WithoutTheServiceEveryOperationGivesTheNeutralResultAndSaysWhy)
{
    ASSERT_TRUE(SamgrHostControl::KillSystemAbility(SHARE_MANAGER_SA_ID));
    SamgrHostControl::Reset();
    EXPECT_EQ(Client().Connect(), -1);
    for (const Operation& operation : Operations()) {
        SCOPED_TRACE("code " + std::to_string(operation.code));
        log_.Clear();
        EXPECT_FALSE(operation.call(Client()));
        ExpectLines(log_, {operation.lines[0],
                           {CLIENT_TAG, LOG_ERROR, "CheckSystemAbility failed"},
                           {CLIENT_TAG, LOG_ERROR, "Get ShareWidgetService failed."},
                           {CLIENT_TAG, LOG_ERROR, operation.noProxy}});
        EXPECT_EQ(ErrorLines(log_, CLIENT_TAG), operation.noProxy.empty() ? 2u : 3u);
        EXPECT_EQ(Logged(operation.lines[1]), 0u);
    }
    EXPECT_EQ(SamgrHostControl::LookupCount(SHARE_MANAGER_SA_ID), static_cast<int>(Operations().size()) + 1);
    // Started later, the service is found by the next call.
    stub_ = StartService();
    EXPECT_TRUE(Client().IsEnabled());
}

TEST_F(ShareManagerRequestTest, AFailedRequestGivesTheNeutralResultWithoutTheProxysExitLine)
{
    // A status reaches the caller only with an empty reply.
    stub_->SetHandler([](uint32_t, MessageParcel&, MessageParcel&) { return -3; });
    for (const Operation& operation : Operations()) {
        SCOPED_TRACE("code " + std::to_string(operation.code));
        log_.Clear();
        EXPECT_FALSE(operation.call(Client()));
        ExpectLines(log_, {operation.lines[0],
                           operation.lines[1],
                           operation.lines[2],
                           {PROXY_TAG, LOG_ERROR, "SendRequest is failed, error code: -3"}});
        EXPECT_EQ(Logged(operation.lines[3]), 0u);
    }
}

TEST_F(ShareManagerRequestTest, EnableStateIsTheRepliedIntegerAndTheSwingFocusLogsOnlyItsAnswer)
{
    stub_->SetHandler([](uint32_t, MessageParcel&, MessageParcel& reply) { return reply.WriteInt32(-17) ? 0 : 1; });
    EXPECT_EQ(Client().GetEnableState(), -17);
    for (bool answer : {true, false}) {
        stub_->SetHandler([answer](uint32_t code, MessageParcel& data, MessageParcel& reply) {
            EXPECT_EQ(code, 36u);
            EXPECT_TRUE(Mismatches(data, IWidgetService::GetDescriptor(), {}).empty());
            return reply.WriteBool(answer) ? 0 : 1;
        });
        log_.Clear();
        EXPECT_EQ(Client().IsFocusPidsRegisterSwing(), answer);
        EXPECT_EQ(Logged({CLIENT_TAG, I, answer ? "IsFocusPidsRegisterSwing 1" : "IsFocusPidsRegisterSwing 0"}), 1u);
        EXPECT_EQ(log_.Count(CLIENT_TAG, "Enter") + log_.Count(PROXY_TAG, "Enter"), 0u);
        EXPECT_EQ(log_.Count(CLIENT_TAG, "Exit") + log_.Count(PROXY_TAG, "Exit"), 0u);
    }
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
