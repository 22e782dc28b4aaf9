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

#include <string>

#include "handle_stub.h"
#include "record_codec.h"
#include "share_emulator.h"

namespace OHOS {
namespace Zelkon {
namespace {
using CallbackKind = ShareManagerState::CallbackKind;

constexpr int32_t RECEIVER_HANDLE = 1;

void OnSetShareEnable(ShareManagerState& state, RequestReader& reader, ReplyWriter& writer)
{
    int32_t type = 0;
    int32_t enableState = 0;
    bool enable = false;
    if (reader.Int32("type", type) && reader.Int32("state", enableState) && reader.Bool("enable", enable)) {
        state.SetEnable(enableState, enable);
        writer.Bool("result", true);
    }
}

void OnSetShareEnableWithConfirm(ShareManagerState& state, RequestReader& reader, ReplyWriter& writer)
{
    int32_t type = 0;
    int32_t enableState = 0;
    bool enable = false;
    bool confirm = false;
    if (reader.Int32("type", type) && reader.Int32("state", enableState) && reader.Bool("enable", enable) &&
        reader.Bool("confirm", confirm)) {
        // Without the user's confirmation the switch stays as it is.
        if (confirm) {
            state.SetEnable(enableState, enable);
        }
        writer.Bool("result", confirm);
    }
}

void OnIsEnabled(ShareManagerState& state, RequestReader&, ReplyWriter& writer)
{
    writer.Bool("enabled", state.IsEnabled());
}

void OnGetEnableState(ShareManagerState& state, RequestReader&, ReplyWriter& writer)
{
    writer.Int32("state", state.EnableState());
}

void OnIsFocusPidsRegisterSwing(ShareManagerState& state, RequestReader&, ReplyWriter& writer)
{
    writer.Bool("result", state.Callbacks().Count(CallbackKind::SHARE_API) > 0);
}

template <CallbackKind KIND, bool ADD>
void OnCallback(ShareManagerState& state, RequestReader& reader, ReplyWriter& writer)
{
    sptr<IRemoteObject> callback;
    if (reader.RemoteObject("callback", callback)) {
        writer.Bool("result", ADD ? state.Callbacks().Add(KIND, callback) : state.Callbacks().Remove(KIND, callback));
    }
}

template <bool DISCOVER>
void OnDiscovery(ShareManagerState& state, RequestReader&, ReplyWriter& writer)
{
    writer.Bool("result", state.SetDiscovering(DISCOVER));
}

template <bool CONNECT>
void OnConnect(ShareManagerState& state, RequestReader&, ReplyWriter& writer)
{
    writer.Bool("result", state.SetConnected(CONNECT));
}

void OnPrepareSend(ShareManagerState& state, RequestReader& reader, ReplyWriter& writer)
{
    UserEntry device;
    if (ReadUserEntry(reader, device)) {
        writer.Bool("result", state.Prepare(device.deviceId));
    }
}

// Send and SendFile: a device, the bean of the request's kind, and the package name.
template <BeanReader READ_BEAN>
void OnSend(ShareManagerState& state, RequestReader& reader, ReplyWriter& writer)
{
    UserEntry device;
    TransferPayload payload;
    std::string packageName;
    if (ReadUserEntry(reader, device) && READ_BEAN(reader, payload) && reader.String("packageName", packageName)) {
        writer.Bool("result", state.StartSending(device.deviceId, payload));
    }
}

void OnSendBytes(ShareManagerState& state, RequestReader& reader, ReplyWriter& writer)
{
    UserEntry device;
    TransferPayload payload;
    if (ReadUserEntry(reader, device) && ReadBytesInfo(reader, payload)) {
        writer.Bool("result", state.StartSending(device.deviceId, payload));
    }
}

void OnCancel(ShareManagerState& state, RequestReader& reader, ReplyWriter& writer)
{
    UserEntry device;
    if (ReadUserEntry(reader, device)) {
        writer.Bool("result", state.CancelSending(device.deviceId));
    }
}

void OnGetReceiverActionCallback(ShareManagerState&, RequestReader&, ReplyWriter& writer)
{
    writer.RemoteObject("receiver", new HandleStub(RECEIVER_TOKEN, RECEIVER_HANDLE));
}

template <bool ADD>
void OnVxShareApiEvent(ShareManagerState& state, RequestReader& reader, ReplyWriter& writer)
{
    std::string event;
    if (reader.String("event", event)) {
        writer.Bool("result", ADD ? state.AddEvent(event) : state.RemoveEvent(event));
    }
}

template <bool ADD>
void OnShareEventCallback(ShareManagerState& state, RequestReader& reader, ReplyWriter& writer)
{
    int32_t eventType = 0;
    int32_t eventId = 0;
    if (reader.Int32("eventType", eventType) && reader.Int32("eventId", eventId)) {
        writer.Bool("result",
                    ADD ? state.AddShareEvent(eventType, eventId) : state.RemoveShareEvent(eventType, eventId));
    }
}

// NotifyInfo and SwingConfirm: a device and an integer, answered by whether the device is known.
void OnDeviceWithValue(ShareManagerState& state, RequestReader& reader, ReplyWriter& writer)
{
    UserEntry device;
    int32_t value = 0;
    if (ReadUserEntry(reader, device) && reader.Int32("value", value)) {
        writer.Bool("result", state.IsKnownUser(device.deviceId));
    }
}

// ApplyUriPermission and IsAppForeground: a package name, accepted when not empty.
void OnPackageName(ShareManagerState&, RequestReader& reader, ReplyWriter& writer)
{
    std::string packageName;
    if (reader.String("packageName", packageName)) {
        writer.Bool("result", !packageName.empty());
    }
}
} // namespace

ShareManagerStub::ShareManagerStub(ServiceChannels channels, const EmulatedWorld& world) :
    StatefulServiceStub(SHARE_MANAGER_TOKEN, "ShareManager", EMULATED_SHARE_MANAGER_ID, std::move(channels), world)
{
    Add(1, "SetShareEnable", OnSetShareEnable);
    Add(2, "SetShareEnableWithConfirm", OnSetShareEnableWithConfirm);
    Add(3, "IsEnabled", OnIsEnabled);
    Add(4, "GetEnableState", OnGetEnableState);
    Add(5, "RegisterWidgetCallback", OnCallback<CallbackKind::WIDGET, true>);
    Add(6, "UnRegisterWidgetCallback", OnCallback<CallbackKind::WIDGET, false>);
    Add(7, "StartDiscovery", OnDiscovery<true>);
    Add(8, "StopDiscovery", OnDiscovery<false>);
    Add(9, "StartConnect", OnConnect<true>);
    Add(10, "StopConnect", OnConnect<false>);
    Add(11, "GetSendingUserList", &ShareManagerStub::OnUserList<true>);
    Add(12, "PrepareSend", OnPrepareSend);
    Add(13, "Send", OnSend<ReadSendBean>);
    Add(14, "SendBytes", OnSendBytes);
    Add(15, "SendFile", OnSend<ReadDataBean>);
    Add(16, "Cancel", OnCancel);
    Add(17, "RegisterSenderActionCallback", OnCallback<CallbackKind::SENDER_ACTION, true>);
    Add(18, "UnRegisterSenderActionCallback", OnCallback<CallbackKind::SENDER_ACTION, false>);
    Add(19, "GetReceiverActionCallback", OnGetReceiverActionCallback);
    Add(20, "GetPreviewData", &ShareManagerStub::OnGetPreviewData);
    Add(21, "GetAllUserList", &ShareManagerStub::OnUserList<false>);
    Add(22, "GetAccountInfo", &ShareManagerStub::OnGetAccountInfo);
    AddSetting(23, "SetShareAccountPermission", "permission", &ShareManagerState::SetAccountPermission);
    Add(24, "RegisterVxShareApiWidgetCallback", OnCallback<CallbackKind::VX_WIDGET, true>);
    Add(25, "UnRegisterVxShareApiWidgetCallback", OnCallback<CallbackKind::VX_WIDGET, false>);
    Add(26, "RegisterVxShareApiEvent", OnVxShareApiEvent<true>);
    Add(27, "UnRegisterVxShareApiEvent", OnVxShareApiEvent<false>);
    Add(28, "NotifyInfo", OnDeviceWithValue);
    Add(29, "ApplyUriPermission", OnPackageName);
    Add(30, "SwingConfirm", OnDeviceWithValue);
    Add(31, "IsAppForeground", OnPackageName);
    Add(32, "RegisterShareApiCallback", OnCallback<CallbackKind::SHARE_API, true>);
    Add(33, "UnregisterShareApiCallback", OnCallback<CallbackKind::SHARE_API, false>);
    Add(34, "RegisterShareEventCallback", OnShareEventCallback<true>);
    Add(35, "UnregisterShareEventCallback", OnShareEventCallback<false>);
    Add(36, "IsFocusPidsRegisterSwing", OnIsFocusPidsRegisterSwing);
}

template <bool SENDING_ONLY>
void ShareManagerStub::OnUserList(RequestReader&, ReplyWriter& writer)
{
    AnswerList(writer, "users", SENDING_ONLY ? state_.SendingUsers() : state_.AllUsers(), WriteUserEntry);
}

void ShareManagerStub::OnGetPreviewData(RequestReader&, ReplyWriter& writer)
{
    if (Faults().Take(EmulatorFault::Kind::OVERSIZED_BIG_STRING)) {
        writer.Note("fault", "a big string above its limit");
        writer.BigString("previewData", std::string(MAX_BIG_STRING_SIZE, 'x'));
        return;
    }
    writer.BigString("previewData", state_.PreviewData());
}

void ShareManagerStub::OnGetAccountInfo(RequestReader&, ReplyWriter& writer)
{
    if (WriteAccountEntry(writer, state_.Account())) {
        CutIfTruncationArmed(writer);
    }
}

} // namespace Zelkon
} // namespace OHOS
