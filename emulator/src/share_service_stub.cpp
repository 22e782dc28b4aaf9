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

#include "share_service_stub.h"

#include <string>

#include "emulator_log.h"
#include "handle_stub.h"
#include "record_codec.h"
#include "share_emulator.h"

namespace OHOS {
namespace Zelkon {
namespace {
using ListenerKind = ShareServiceState::ListenerKind;

template <ListenerKind KIND>
void OnAddListener(ShareServiceState& state, RequestReader& reader, ReplyWriter& writer)
{
    sptr<IRemoteObject> listener;
    if (reader.RemoteObject("listener", listener)) {
        writer.Bool("result", state.Listeners().Add(KIND, listener));
    }
}

template <ListenerKind KIND>
void OnRemoveListener(ShareServiceState& state, RequestReader& reader, ReplyWriter& writer)
{
    sptr<IRemoteObject> listener;
    if (reader.RemoteObject("listener", listener)) {
        writer.Bool("result", state.Listeners().Remove(KIND, listener));
    }
}

template <ListenerKind KIND>
void OnRemoveListenerById(ShareServiceState& state, RequestReader& reader, ReplyWriter& writer)
{
    int32_t id = 0;
    sptr<IRemoteObject> listener;
    if (reader.Int32("id", id) && reader.RemoteObject("listener", listener)) {
        writer.Bool("result", state.Listeners().Remove(KIND, listener));
    }
}

// deviceId, timeout, callback, package name and event type, as the two file transfers carry them.
bool ReadSendParams(RequestReader& reader, std::string& deviceId)
{
    int32_t timeout = 0;
    sptr<IRemoteObject> callback;
    std::string packageName;
    int8_t eventType = 0;
    return reader.String("deviceId", deviceId) && reader.Int32("timeout", timeout) &&
           reader.RemoteObject("transCallback", callback) && reader.String("packageName", packageName) &&
           reader.Int8("transmitEventType", eventType);
}

void AnswerSender(ShareServiceState& state, ReplyWriter& writer, const std::string& deviceId,
                  const TransferPayload& payload)
{
    const int32_t id = state.StartTransfer(deviceId, payload);
    EMULATOR_LOGI("transfer %{public}d to %{public}s: %{public}u files, %{public}llu bytes", id, deviceId.c_str(),
                  payload.files, static_cast<unsigned long long>(payload.bytes));
    writer.RemoteObject("sender", new HandleStub(SENDER_TOKEN, id));
}

// The two SendFile requests, which differ in their bean alone.
template <BeanReader READ_BEAN>
void OnSendFile(ShareServiceState& state, RequestReader& reader, ReplyWriter& writer)
{
    std::string deviceId;
    TransferPayload payload;
    if (ReadSendParams(reader, deviceId) && READ_BEAN(reader, payload)) {
        AnswerSender(state, writer, deviceId, payload);
    }
}

void OnSendBytes(ShareServiceState& state, RequestReader& reader, ReplyWriter& writer)
{
    std::string deviceId;
    int32_t timeout = 0;
    TransferPayload payload;
    sptr<IRemoteObject> callback;
    int8_t eventType = 0;
    if (reader.String("deviceId", deviceId) && reader.Int32("timeout", timeout) && ReadBytesInfo(reader, payload) &&
        reader.RemoteObject("transCallback", callback) && reader.Int8("transmitEventType", eventType)) {
        AnswerSender(state, writer, deviceId, payload);
    }
}

void OnCommonShareSend(ShareServiceState& state, RequestReader& reader, ReplyWriter& writer)
{
    std::string networkId;
    TransferPayload payload;
    sptr<IRemoteObject> callback;
    if (ReadCommonShareObject(reader, networkId, payload) && reader.RemoteObject("transCallback", callback)) {
        AnswerSender(state, writer, networkId, payload);
    }
}

void OnCancel(ShareServiceState& state, RequestReader& reader, ReplyWriter&)
{
    std::string networkId;
    if (reader.String("networkId", networkId)) {
        reader.Note("cancelled", std::to_string(state.CancelTransfers(networkId)));
    }
}

void OnUnRegisterCommonReceiveListener(ShareServiceState& state, RequestReader&, ReplyWriter& writer)
{
    writer.Bool("result", state.Listeners().Clear(ListenerKind::COMMON_RECEIVE));
}

template <bool SUSPEND>
void OnWifiScanning(ShareServiceState& state, RequestReader& reader, ReplyWriter& writer)
{
    std::string ifName;
    if (reader.String("ifName", ifName)) {
        writer.Bool("result", state.SetWifiScanning(ifName, SUSPEND));
    }
}

void OnCollabDeviceFound(ShareServiceState& state, RequestReader& reader, ReplyWriter& writer)
{
    FoundDevice device;
    sptr<IRemoteObject> listener;
    int32_t updateFlag = 0;
    if (ReadFoundDevice(reader, device) && reader.RemoteObject("listener", listener) &&
        reader.Int32("updateFlag", updateFlag)) {
        writer.Bool("result", !device.deviceId.empty() && state.AddFoundDevice(device, listener));
    }
}

void OnClearDiscovererFlag(ShareServiceState& state, RequestReader& reader, ReplyWriter& writer)
{
    std::string deviceId;
    uint32_t flag = 0;
    if (reader.String("deviceId", deviceId) && reader.Uint32("flag", flag)) {
        writer.Bool("result", state.ClearDiscovererFlag(deviceId));
    }
}

void OnGetPontalPublishInfo(ShareServiceState& state, RequestReader&, ReplyWriter& writer)
{
    if (writer.String("publishInfo", state.PublishInfo())) {
        writer.Bool("result", true);
    }
}

void OnReportSwingEvent(ShareServiceState& state, RequestReader& reader, ReplyWriter& writer)
{
    int32_t gesture = 0;
    int32_t x = 0;
    int32_t y = 0;
    std::string concurrentId;
    if (reader.Int32("gesture", gesture) && reader.Int32("x", x) && reader.Int32("y", y) &&
        reader.String("concurrentId", concurrentId)) {
        writer.Bool("result", state.Listeners().Count(ListenerKind::SWING) > 0);
    }
}

void OnApplyUriPermission(ShareServiceState&, RequestReader& reader, ReplyWriter& writer)
{
    std::string deviceId;
    if (reader.String("deviceId", deviceId)) {
        writer.Bool("result", !deviceId.empty());
    }
}

void OnRemovePermanentDeviceById(ShareServiceState& state, RequestReader& reader, ReplyWriter& writer)
{
    int32_t id = 0;
    if (reader.Int32("id", id)) {
        writer.Bool("result", state.RemovePermanentDevice(id));
    }
}
} // namespace

ShareServiceStub::ShareServiceStub(ServiceChannels channels, std::vector<PermanentEntry> permanentDevices) :
    StatefulServiceStub(SHARE_SERVICE_TOKEN, "ShareService", EMULATED_SHARE_SERVICE_ID, std::move(channels),
                        std::move(permanentDevices))
{
    Add(1, "PublishDevice", OnAddListener<ListenerKind::PUBLISH>);
    Add(2, "UnPublishDevice", OnRemoveListenerById<ListenerKind::PUBLISH>);
    Add(3, "SubscribeDevice", OnAddListener<ListenerKind::SUBSCRIBE>);
    Add(4, "UnSubscribeDevice", OnRemoveListenerById<ListenerKind::SUBSCRIBE>);
    Add(5, "RegisterReceiveListener", OnAddListener<ListenerKind::RECEIVE>);
    Add(6, "UnRegisterReceiveListener", OnRemoveListener<ListenerKind::RECEIVE>);
    Add(7, "SendFile(SendBean)", OnSendFile<ReadSendBean>);
    Add(8, "SendFile(DataBean)", OnSendFile<ReadDataBean>);
    Add(10, "SendBytes", OnSendBytes);
    AddSetting(11, "EnableDiscoveryPolicy", "policy", &ShareServiceState::SetDiscoveryPolicy);
    AddSetting(12, "SetAccountPermission", "permission", &ShareServiceState::SetAccountPermission);
    Add(13, "Cancel", OnCancel);
    Add(14, "CommonShareSend", OnCommonShareSend);
    Add(15, "RegisterCommonReceiveListener", OnAddListener<ListenerKind::COMMON_RECEIVE>);
    Add(16, "UnRegisterCommonReceiveListener", OnUnRegisterCommonReceiveListener);
    Add(17, "SuspendWifiScanning", OnWifiScanning<true>);
    Add(18, "ResumeWifiScanning", OnWifiScanning<false>);
    Add(19, "OnCollabDeviceFound", OnCollabDeviceFound);
    Add(20, "ClearDiscovererFlag", OnClearDiscovererFlag);
    Add(21, "GetPontalPublishInfo", OnGetPontalPublishInfo);
    Add(22, "SwingSubscribe", OnAddListener<ListenerKind::SWING>);
    Add(23, "SwingUnSubscribe", OnRemoveListener<ListenerKind::SWING>);
    Add(24, "ReportSwingEvent", OnReportSwingEvent);
    Add(25, "ApplyUriPermission", OnApplyUriPermission);
    Add(26, "GetPermanentDeviceList", &ShareServiceStub::OnGetPermanentDeviceList);
    Add(27, "RemovePermanentDeviceById", OnRemovePermanentDeviceById);
}

void ShareServiceStub::OnGetPermanentDeviceList(RequestReader&, ReplyWriter& writer)
{
    AnswerList(writer, "devices", state_.PermanentDevices(), WritePermanentEntry);
}

} // namespace Zelkon
} // namespace OHOS
