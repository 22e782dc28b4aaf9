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

#include "emulator_log.h"
#include "handle_stub.h"
#include "record_codec.h"
#include "share_emulator.h"

namespace OHOS {
namespace Zelkon {

template <ShareServiceStub::ListenerKind KIND>
void ShareServiceStub::OnAddListener(RequestReader& reader, ReplyWriter& writer)
{
    sptr<IRemoteObject> listener;
    if (reader.RemoteObject("listener", listener)) {
        writer.Bool("result", state_.AddListener(KIND, listener));
    }
}

template <ShareServiceStub::ListenerKind KIND>
void ShareServiceStub::OnRemoveListener(RequestReader& reader, ReplyWriter& writer)
{
    sptr<IRemoteObject> listener;
    if (reader.RemoteObject("listener", listener)) {
        writer.Bool("result", state_.RemoveListener(KIND, listener));
    }
}

template <ShareServiceStub::ListenerKind KIND>
void ShareServiceStub::OnRemoveListenerById(RequestReader& reader, ReplyWriter& writer)
{
    int32_t id = 0;
    sptr<IRemoteObject> listener;
    if (reader.Int32("id", id) && reader.RemoteObject("listener", listener)) {
        writer.Bool("result", state_.RemoveListener(KIND, listener));
    }
}

template <bool SUSPEND>
void ShareServiceStub::OnWifiScanning(RequestReader& reader, ReplyWriter& writer)
{
    std::string ifName;
    if (reader.String("ifName", ifName)) {
        writer.Bool("result", state_.SetWifiScanning(ifName, SUSPEND));
    }
}

ShareServiceStub::ShareServiceStub(ServiceChannels channels, std::vector<PermanentEntry> permanentDevices) :
    EmulatedServiceStub(SHARE_SERVICE_TOKEN, "ShareService", EMULATED_SHARE_SERVICE_ID, std::move(channels)),
    state_(std::move(permanentDevices))
{
    Add(1, "PublishDevice", &ShareServiceStub::OnAddListener<ListenerKind::PUBLISH>);
    Add(2, "UnPublishDevice", &ShareServiceStub::OnRemoveListenerById<ListenerKind::PUBLISH>);
    Add(3, "SubscribeDevice", &ShareServiceStub::OnAddListener<ListenerKind::SUBSCRIBE>);
    Add(4, "UnSubscribeDevice", &ShareServiceStub::OnRemoveListenerById<ListenerKind::SUBSCRIBE>);
    Add(5, "RegisterReceiveListener", &ShareServiceStub::OnAddListener<ListenerKind::RECEIVE>);
    Add(6, "UnRegisterReceiveListener", &ShareServiceStub::OnRemoveListener<ListenerKind::RECEIVE>);
    Add(7, "SendFile(SendBean)", &ShareServiceStub::OnSendFileWithSendBean);
    Add(8, "SendFile(DataBean)", &ShareServiceStub::OnSendFileWithDataBean);
    Add(10, "SendBytes", &ShareServiceStub::OnSendBytes);
    Add(11, "EnableDiscoveryPolicy", &ShareServiceStub::OnEnableDiscoveryPolicy);
    Add(12, "SetAccountPermission", &ShareServiceStub::OnSetAccountPermission);
    Add(13, "Cancel", &ShareServiceStub::OnCancel);
    Add(14, "CommonShareSend", &ShareServiceStub::OnCommonShareSend);
    Add(15, "RegisterCommonReceiveListener", &ShareServiceStub::OnAddListener<ListenerKind::COMMON_RECEIVE>);
    Add(16, "UnRegisterCommonReceiveListener", &ShareServiceStub::OnUnRegisterCommonReceiveListener);
    Add(17, "SuspendWifiScanning", &ShareServiceStub::OnWifiScanning<true>);
    Add(18, "ResumeWifiScanning", &ShareServiceStub::OnWifiScanning<false>);
    Add(19, "OnCollabDeviceFound", &ShareServiceStub::OnCollabDeviceFound);
    Add(20, "ClearDiscovererFlag", &ShareServiceStub::OnClearDiscovererFlag);
    Add(21, "GetPontalPublishInfo", &ShareServiceStub::OnGetPontalPublishInfo);
    Add(22, "SwingSubscribe", &ShareServiceStub::OnAddListener<ListenerKind::SWING>);
    Add(23, "SwingUnSubscribe", &ShareServiceStub::OnRemoveListener<ListenerKind::SWING>);
    Add(24, "ReportSwingEvent", &ShareServiceStub::OnReportSwingEvent);
    Add(25, "ApplyUriPermission", &ShareServiceStub::OnApplyUriPermission);
    Add(26, "GetPermanentDeviceList", &ShareServiceStub::OnGetPermanentDeviceList);
    Add(27, "RemovePermanentDeviceById", &ShareServiceStub::OnRemovePermanentDeviceById);
}

bool ShareServiceStub::ReadSendParams(RequestReader& reader, std::string& deviceId)
{
    int32_t timeout = 0;
    sptr<IRemoteObject> callback;
    std::string packageName;
    int8_t eventType = 0;
    return reader.String("deviceId", deviceId) && reader.Int32("timeout", timeout) &&
           reader.RemoteObject("transCallback", callback) && reader.String("packageName", packageName) &&
           reader.Int8("transmitEventType", eventType);
}

void ShareServiceStub::AnswerSender(ReplyWriter& writer, const std::string& deviceId, const TransferPayload& payload)
{
    const int32_t id = state_.StartTransfer(deviceId, payload);
    EMULATOR_LOGI("transfer %{public}d to %{public}s: %{public}u files, %{public}llu bytes", id, deviceId.c_str(),
                  payload.files, static_cast<unsigned long long>(payload.bytes));
    writer.RemoteObject("sender", new HandleStub(SENDER_TOKEN, id));
}

void ShareServiceStub::OnSendFileWithSendBean(RequestReader& reader, ReplyWriter& writer)
{
    std::string deviceId;
    TransferPayload payload;
    if (ReadSendParams(reader, deviceId) && ReadSendBean(reader, payload)) {
        AnswerSender(writer, deviceId, payload);
    }
}

void ShareServiceStub::OnSendFileWithDataBean(RequestReader& reader, ReplyWriter& writer)
{
    std::string deviceId;
    TransferPayload payload;
    if (ReadSendParams(reader, deviceId) && ReadDataBean(reader, payload)) {
        AnswerSender(writer, deviceId, payload);
    }
}

void ShareServiceStub::OnSendBytes(RequestReader& reader, ReplyWriter& writer)
{
    std::string deviceId;
    int32_t timeout = 0;
    TransferPayload payload;
    sptr<IRemoteObject> callback;
    int8_t eventType = 0;
    if (reader.String("deviceId", deviceId) && reader.Int32("timeout", timeout) && ReadBytesInfo(reader, payload) &&
        reader.RemoteObject("transCallback", callback) && reader.Int8("transmitEventType", eventType)) {
        AnswerSender(writer, deviceId, payload);
    }
}

void ShareServiceStub::OnCommonShareSend(RequestReader& reader, ReplyWriter& writer)
{
    std::string networkId;
    TransferPayload payload;
    sptr<IRemoteObject> callback;
    if (ReadCommonShareObject(reader, networkId, payload) && reader.RemoteObject("transCallback", callback)) {
        AnswerSender(writer, networkId, payload);
    }
}

void ShareServiceStub::OnCancel(RequestReader& reader, ReplyWriter& writer)
{
    (void)writer;
    std::string networkId;
    if (reader.String("networkId", networkId)) {
        reader.Note("cancelled", std::to_string(state_.CancelTransfers(networkId)));
    }
}

void ShareServiceStub::OnEnableDiscoveryPolicy(RequestReader& reader, ReplyWriter& writer)
{
    int32_t policy = 0;
    if (reader.Int32("policy", policy)) {
        state_.SetDiscoveryPolicy(policy);
        writer.Bool("result", true);
    }
}

void ShareServiceStub::OnSetAccountPermission(RequestReader& reader, ReplyWriter& writer)
{
    int32_t permission = 0;
    if (reader.Int32("permission", permission)) {
        state_.SetAccountPermission(permission);
        writer.Bool("result", true);
    }
}

void ShareServiceStub::OnUnRegisterCommonReceiveListener(RequestReader& reader, ReplyWriter& writer)
{
    (void)reader;
    writer.Bool("result", state_.ClearListeners(ListenerKind::COMMON_RECEIVE));
}

void ShareServiceStub::OnCollabDeviceFound(RequestReader& reader, ReplyWriter& writer)
{
    FoundDevice device;
    sptr<IRemoteObject> listener;
    int32_t updateFlag = 0;
    if (ReadFoundDevice(reader, device) && reader.RemoteObject("listener", listener) &&
        reader.Int32("updateFlag", updateFlag)) {
        writer.Bool("result", !device.deviceId.empty() && state_.AddFoundDevice(device, listener));
    }
}

void ShareServiceStub::OnClearDiscovererFlag(RequestReader& reader, ReplyWriter& writer)
{
    std::string deviceId;
    uint32_t flag = 0;
    if (reader.String("deviceId", deviceId) && reader.Uint32("flag", flag)) {
        writer.Bool("result", state_.ClearDiscovererFlag(deviceId));
    }
}

void ShareServiceStub::OnGetPontalPublishInfo(RequestReader& reader, ReplyWriter& writer)
{
    (void)reader;
    if (writer.String("publishInfo", state_.PublishInfo())) {
        writer.Bool("result", true);
    }
}

void ShareServiceStub::OnReportSwingEvent(RequestReader& reader, ReplyWriter& writer)
{
    int32_t gesture = 0;
    int32_t x = 0;
    int32_t y = 0;
    std::string concurrentId;
    if (reader.Int32("gesture", gesture) && reader.Int32("x", x) && reader.Int32("y", y) &&
        reader.String("concurrentId", concurrentId)) {
        writer.Bool("result", state_.ListenerCount(ListenerKind::SWING) > 0);
    }
}

void ShareServiceStub::OnApplyUriPermission(RequestReader& reader, ReplyWriter& writer)
{
    std::string deviceId;
    if (reader.String("deviceId", deviceId)) {
        writer.Bool("result", !deviceId.empty());
    }
}

void ShareServiceStub::OnGetPermanentDeviceList(RequestReader& reader, ReplyWriter& writer)
{
    (void)reader;
    AnswerList(writer, "devices", state_.PermanentDevices(), WritePermanentEntry);
}

void ShareServiceStub::OnRemovePermanentDeviceById(RequestReader& reader, ReplyWriter& writer)
{
    int32_t id = 0;
    if (reader.Int32("id", id)) {
        writer.Bool("result", state_.RemovePermanentDevice(id));
    }
}

nlohmann::ordered_json ShareServiceStub::DumpState()
{
    return state_.Dump();
}

} // namespace Zelkon
} // namespace OHOS
