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

#include "share_manager_stub.h"

#include "handle_stub.h"
#include "record_codec.h"
#include "share_emulator.h"

namespace OHOS {
namespace Zelkon {
namespace {
constexpr int32_t RECEIVER_HANDLE = 1;
} // namespace

template <ShareManagerStub::CallbackKind KIND, bool ADD>
void ShareManagerStub::OnCallback(RequestReader& reader, ReplyWriter& writer)
{
    sptr<IRemoteObject> callback;
    if (reader.RemoteObject("callback", callback)) {
        writer.Bool("result", ADD ? state_.AddCallback(KIND, callback) : state_.RemoveCallback(KIND, callback));
    }
}

template <bool DISCOVER>
void ShareManagerStub::OnDiscovery(RequestReader& reader, ReplyWriter& writer)
{
    (void)reader;
    writer.Bool("result", state_.SetDiscovering(DISCOVER));
}

template <bool CONNECT>
void ShareManagerStub::OnConnect(RequestReader& reader, ReplyWriter& writer)
{
    (void)reader;
    writer.Bool("result", state_.SetConnected(CONNECT));
}

template <bool SENDING_ONLY>
void ShareManagerStub::OnUserList(RequestReader& reader, ReplyWriter& writer)
{
    (void)reader;
    AnswerList(writer, "users", SENDING_ONLY ? state_.SendingUsers() : state_.AllUsers(), WriteUserEntry);
}

template <bool ADD>
void ShareManagerStub::OnVxShareApiEvent(RequestReader& reader, ReplyWriter& writer)
{
    std::string event;
    if (reader.String("event", event)) {
        writer.Bool("result", ADD ? state_.AddEvent(event) : state_.RemoveEvent(event));
    }
}

template <bool ADD>
void ShareManagerStub::OnShareEventCallback(RequestReader& reader, ReplyWriter& writer)
{
    int32_t eventType = 0;
    int32_t eventId = 0;
    if (reader.Int32("eventType", eventType) && reader.Int32("eventId", eventId)) {
        writer.Bool("result",
                    ADD ? state_.AddShareEvent(eventType, eventId) : state_.RemoveShareEvent(eventType, eventId));
    }
}

ShareManagerStub::ShareManagerStub(ServiceChannels channels, const EmulatedWorld& world) :
    EmulatedServiceStub(SHARE_MANAGER_TOKEN, "ShareManager", EMULATED_SHARE_MANAGER_ID, std::move(channels)),
    state_(world)
{
    Add(1, "SetShareEnable", &ShareManagerStub::OnSetShareEnable);
    Add(2, "SetShareEnableWithConfirm", &ShareManagerStub::OnSetShareEnableWithConfirm);
    Add(3, "IsEnabled", &ShareManagerStub::OnIsEnabled);
    Add(4, "GetEnableState", &ShareManagerStub::OnGetEnableState);
    Add(5, "RegisterWidgetCallback", &ShareManagerStub::OnCallback<CallbackKind::WIDGET, true>);
    Add(6, "UnRegisterWidgetCallback", &ShareManagerStub::OnCallback<CallbackKind::WIDGET, false>);
    Add(7, "StartDiscovery", &ShareManagerStub::OnDiscovery<true>);
    Add(8, "StopDiscovery", &ShareManagerStub::OnDiscovery<false>);
    Add(9, "StartConnect", &ShareManagerStub::OnConnect<true>);
    Add(10, "StopConnect", &ShareManagerStub::OnConnect<false>);
    Add(11, "GetSendingUserList", &ShareManagerStub::OnUserList<true>);
    Add(12, "PrepareSend", &ShareManagerStub::OnPrepareSend);
    Add(13, "Send", &ShareManagerStub::OnSend);
    Add(14, "SendBytes", &ShareManagerStub::OnSendBytes);
    Add(15, "SendFile", &ShareManagerStub::OnSendFile);
    Add(16, "Cancel", &ShareManagerStub::OnCancel);
    Add(17, "RegisterSenderActionCallback", &ShareManagerStub::OnCallback<CallbackKind::SENDER_ACTION, true>);
    Add(18, "UnRegisterSenderActionCallback", &ShareManagerStub::OnCallback<CallbackKind::SENDER_ACTION, false>);
    Add(19, "GetReceiverActionCallback", &ShareManagerStub::OnGetReceiverActionCallback);
    Add(20, "GetPreviewData", &ShareManagerStub::OnGetPreviewData);
    Add(21, "GetAllUserList", &ShareManagerStub::OnUserList<false>);
    Add(22, "GetAccountInfo", &ShareManagerStub::OnGetAccountInfo);
    Add(23, "SetShareAccountPermission", &ShareManagerStub::OnSetShareAccountPermission);
    Add(24, "RegisterVxShareApiWidgetCallback", &ShareManagerStub::OnCallback<CallbackKind::VX_WIDGET, true>);
    Add(25, "UnRegisterVxShareApiWidgetCallback", &ShareManagerStub::OnCallback<CallbackKind::VX_WIDGET, false>);
    Add(26, "RegisterVxShareApiEvent", &ShareManagerStub::OnVxShareApiEvent<true>);
    Add(27, "UnRegisterVxShareApiEvent", &ShareManagerStub::OnVxShareApiEvent<false>);
    Add(28, "NotifyInfo", &ShareManagerStub::OnDeviceWithValue);
    Add(29, "ApplyUriPermission", &ShareManagerStub::OnPackageName);
    Add(30, "SwingConfirm", &ShareManagerStub::OnDeviceWithValue);
    Add(31, "IsAppForeground", &ShareManagerStub::OnPackageName);
    Add(32, "RegisterShareApiCallback", &ShareManagerStub::OnCallback<CallbackKind::SHARE_API, true>);
    Add(33, "UnregisterShareApiCallback", &ShareManagerStub::OnCallback<CallbackKind::SHARE_API, false>);
    Add(34, "RegisterShareEventCallback", &ShareManagerStub::OnShareEventCallback<true>);
    Add(35, "UnregisterShareEventCallback", &ShareManagerStub::OnShareEventCallback<false>);
    Add(36, "IsFocusPidsRegisterSwing", &ShareManagerStub::OnIsFocusPidsRegisterSwing);
}

void ShareManagerStub::OnSetShareEnable(RequestReader& reader, ReplyWriter& writer)
{
    int32_t type = 0;
    int32_t state = 0;
    bool enable = false;
    if (reader.Int32("type", type) && reader.Int32("state", state) && reader.Bool("enable", enable)) {
        state_.SetEnable(state, enable);
        writer.Bool("result", true);
    }
}

void ShareManagerStub::OnSetShareEnableWithConfirm(RequestReader& reader, ReplyWriter& writer)
{
    int32_t type = 0;
    int32_t state = 0;
    bool enable = false;
    bool confirm = false;
    if (reader.Int32("type", type) && reader.Int32("state", state) && reader.Bool("enable", enable) &&
        reader.Bool("confirm", confirm)) {
        // Without the user's confirmation the switch stays as it is.
        if (confirm) {
            state_.SetEnable(state, enable);
        }
        writer.Bool("result", confirm);
    }
}

void ShareManagerStub::OnIsEnabled(RequestReader& reader, ReplyWriter& writer)
{
    (void)reader;
    writer.Bool("enabled", state_.IsEnabled());
}

void ShareManagerStub::OnGetEnableState(RequestReader& reader, ReplyWriter& writer)
{
    (void)reader;
    writer.Int32("state", state_.EnableState());
}

void ShareManagerStub::OnIsFocusPidsRegisterSwing(RequestReader& reader, ReplyWriter& writer)
{
    (void)reader;
    writer.Bool("result", state_.HasCallbacks(CallbackKind::SHARE_API));
}

void ShareManagerStub::OnPrepareSend(RequestReader& reader, ReplyWriter& writer)
{
    UserEntry device;
    if (ReadUserEntry(reader, device)) {
        writer.Bool("result", state_.Prepare(device.deviceId));
    }
}

void ShareManagerStub::OnSend(RequestReader& reader, ReplyWriter& writer)
{
    UserEntry device;
    TransferPayload payload;
    std::string packageName;
    if (ReadUserEntry(reader, device) && ReadSendBean(reader, payload) && reader.String("packageName", packageName)) {
        writer.Bool("result", state_.StartSending(device.deviceId, payload));
    }
}

void ShareManagerStub::OnSendFile(RequestReader& reader, ReplyWriter& writer)
{
    UserEntry device;
    TransferPayload payload;
    std::string packageName;
    if (ReadUserEntry(reader, device) && ReadDataBean(reader, payload) && reader.String("packageName", packageName)) {
        writer.Bool("result", state_.StartSending(device.deviceId, payload));
    }
}

void ShareManagerStub::OnSendBytes(RequestReader& reader, ReplyWriter& writer)
{
    UserEntry device;
    TransferPayload payload;
    if (ReadUserEntry(reader, device) && ReadBytesInfo(reader, payload)) {
        writer.Bool("result", state_.StartSending(device.deviceId, payload));
    }
}

void ShareManagerStub::OnCancel(RequestReader& reader, ReplyWriter& writer)
{
    UserEntry device;
    if (ReadUserEntry(reader, device)) {
        writer.Bool("result", state_.CancelSending(device.deviceId));
    }
}

void ShareManagerStub::OnGetReceiverActionCallback(RequestReader& reader, ReplyWriter& writer)
{
    (void)reader;
    writer.RemoteObject("receiver", new HandleStub(RECEIVER_TOKEN, RECEIVER_HANDLE));
}

void ShareManagerStub::OnGetPreviewData(RequestReader& reader, ReplyWriter& writer)
{
    (void)reader;
    if (Faults().Take(EmulatorFault::Kind::OVERSIZED_BIG_STRING)) {
        writer.Note("fault", "a big string above its limit");
        writer.BigString("previewData", std::string(MAX_BIG_STRING_SIZE, 'x'));
        return;
    }
    writer.BigString("previewData", state_.PreviewData());
}

void ShareManagerStub::OnGetAccountInfo(RequestReader& reader, ReplyWriter& writer)
{
    (void)reader;
    if (WriteAccountEntry(writer, state_.Account())) {
        CutIfTruncationArmed(writer);
    }
}

void ShareManagerStub::OnSetShareAccountPermission(RequestReader& reader, ReplyWriter& writer)
{
    int32_t permission = 0;
    if (reader.Int32("permission", permission)) {
        state_.SetAccountPermission(permission);
        writer.Bool("result", true);
    }
}

void ShareManagerStub::OnDeviceWithValue(RequestReader& reader, ReplyWriter& writer)
{
    UserEntry device;
    int32_t value = 0;
    if (ReadUserEntry(reader, device) && reader.Int32("value", value)) {
        writer.Bool("result", state_.IsKnownUser(device.deviceId));
    }
}

void ShareManagerStub::OnPackageName(RequestReader& reader, ReplyWriter& writer)
{
    std::string packageName;
    if (reader.String("packageName", packageName)) {
        writer.Bool("result", !packageName.empty());
    }
}

nlohmann::ordered_json ShareManagerStub::DumpState()
{
    return state_.Dump();
}

} // namespace Zelkon
} // namespace OHOS
