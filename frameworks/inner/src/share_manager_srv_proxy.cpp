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

#include "share_manager_srv_proxy.h"

#include "share_common_constants.h"
#include "share_path_constants.h"
#include "share_radar_constants.h"

#include "parcel_util.h"

namespace OHOS {
namespace Zelkon {

BrokerDelegator<ShareManagerSrvProxy> ShareManagerSrvProxy::delegator_;

namespace {
using Code = WidgetServiceCode;
const RequestLabels PROXY_LABELS{SHARE_MANAGER_PROXY_LABEL, SHARE_MANAGER_PROXY_LABEL};
const char* const WRITE_SHARE_DEVICE_FAILED = "Write ShareDevice failed";
const char* const WRITE_DEVICE_INFO_FAILED = "Write deviceInfo failed";
const char* const WRITE_SEND_BEAN_FAILED = "Write sendBean failed";
const char* const WRITE_PACKAGE_NAME_FAILED = "Write packageName failed";
const char* const WRITE_STRING_FAILED = "Write string failed";
const char* const WRITE_CALLBACK_FAILED = "Write RemoteObject failed";
const char* const ALL_USER_LIST_PREFIX = "GetAllUserList ";

RequestTexts Debug(const char* enter, const char* exit)
{
    return {enter, LOG_DEBUG, exit, LOG_DEBUG};
}

// The share API requests log the bare words, at info level.
const RequestTexts BARE_INFO{"Enter", LOG_INFO, "Exit", LOG_INFO};

// The callback rows refuse a null callback before anything else.
template <typename Callback>
Refusal NullCallback(const sptr<Callback>& callback)
{
    return {callback == nullptr, "The parameter callback is nullptr."};
}
} // namespace

bool ShareManagerSrvProxy::Open(ProxyRequest& request)
{
    return request.Open(Remote(), GetDescriptor());
}

bool ShareManagerSrvProxy::SetShareEnable(int32_t type, int32_t state, bool enable)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("Enable() Enter", "Enable() Exit"));
    return Open(req) && req.PutUnchecked(type, state, enable) && req.SendAndLogExit(Code::SET_SHARE_ENABLE) &&
           req.ReplyBool();
}

bool ShareManagerSrvProxy::SetShareEnableWithConfirm(int32_t type, int32_t state, bool enable, bool confirm)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("EnableWithConfirm() Enter", "EnableWithConfirm() Exit"));
    return Open(req) && req.PutUnchecked(type, state, enable, confirm) &&
           req.SendAndLogExit(Code::SET_SHARE_ENABLE_WITH_CONFIRM) && req.ReplyBool();
}

bool ShareManagerSrvProxy::IsEnabled()
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("IsEnabled() Enter", "IsEnabled() Exit"));
    return Open(req) && req.SendAndLogExit(Code::IS_ENABLED) && req.ReplyBool();
}

int32_t ShareManagerSrvProxy::GetEnableState()
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("GetEnableState() Enter", "GetEnableState() Exit"));
    return Open(req) && req.SendAndLogExit(Code::GET_ENABLE_STATE) ? req.Reply().ReadInt32() : 0;
}

bool ShareManagerSrvProxy::IsFocusPidsRegisterSwing()
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug(nullptr, nullptr));
    return Open(req) && req.SendAndLogExit(Code::IS_FOCUS_PIDS_REGISTER_SWING) && req.ReplyBool();
}

bool ShareManagerSrvProxy::RegisterWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     Debug("RegisterWidgetCallback() Enter", "RegisterWidgetCallback() Exit"), NullCallback(callback));
    return Open(req) && req.WriteObject(callback, WRITE_CALLBACK_FAILED) &&
           req.SendAndLogExit(Code::REGISTER_WIDGET_CALLBACK) && req.ReplyBool();
}

bool ShareManagerSrvProxy::UnRegisterWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     Debug("UnRegisterWidgetCallback() Enter", "UnRegisterWidgetCallback() Exit"),
                     NullCallback(callback));
    return Open(req) && req.WriteObject(callback, WRITE_CALLBACK_FAILED) &&
           req.SendAndLogExit(Code::UNREGISTER_WIDGET_CALLBACK) && req.ReplyBool();
}

bool ShareManagerSrvProxy::StartDiscovery()
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("StartDiscovery() Enter", "StartDiscovery() Exit"));
    return Open(req) && req.SendAndLogExit(Code::START_DISCOVERY) && req.ReplyBool();
}

bool ShareManagerSrvProxy::StopDiscovery()
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("StopDiscovery() Enter", "StopDiscovery() Exit"));
    return Open(req) && req.SendAndLogExit(Code::STOP_DISCOVERY) && req.ReplyBool();
}

bool ShareManagerSrvProxy::StartConnect()
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("StartConnect() Enter", "StartConnect() Exit"));
    return Open(req) && req.SendAndLogExit(Code::START_CONNECT) && req.ReplyBool();
}

bool ShareManagerSrvProxy::StopConnect()
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("StopConnect() Enter", "StopConnect() Exit"));
    return Open(req) && req.SendAndLogExit(Code::STOP_CONNECT) && req.ReplyBool();
}

bool ShareManagerSrvProxy::ReadDeviceList(MessageParcel& reply, std::vector<ShareDeviceInfo>& devices,
                                          const LogSite& site, const char* prefix)
{
    // The bound of the permanent device list too; the counter line keeps its own text, " ." ending included.
    int32_t count = 0;
    if (!reply.ReadInt32(count) || count > ProxyRequest::MAX_LIST_RECORDS) {
        SHARE_LOG_AT(SHARE_MANAGER_PROXY_LABEL, LOG_ERROR, site, "%{public}sRead device counter failed %{public}d .",
                     prefix, count);
        return false;
    }
    // All or nothing, as the callers promise: the records go into a list of their own, given out only when all were
    // read. Each is read into a temporary and copied into that list, which grows as needed.
    std::vector<ShareDeviceInfo> read;
    for (int32_t i = 0; i < count; ++i) {
        ShareDeviceInfo device;
        if (!device.ReadFromParcel(reply)) {
            SHARE_LOG_AT(SHARE_MANAGER_PROXY_LABEL, LOG_ERROR, site, "%{public}sRead share device failed.", prefix);
            return false;
        }
        read.push_back(device);
    }
    devices = std::move(read);
    return true;
}

std::vector<ShareDeviceInfo> ShareManagerSrvProxy::GetAllUserList()
{
    std::vector<ShareDeviceInfo> devices;
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"GetAllUserList Enter", LOG_DEBUG, nullptr, LOG_DEBUG, ALL_USER_LIST_PREFIX});
    if (Open(req) && req.SendWithoutExitLine(Code::GET_ALL_USER_LIST) &&
        ReadDeviceList(req.Reply(), devices, req.Site(), ALL_USER_LIST_PREFIX)) {
        SHARE_MANAGER_PROXY_LOGD("GetAllUserList Exit size %{public}zu", devices.size());
    }
    return devices;
}

std::vector<ShareDeviceInfo> ShareManagerSrvProxy::GetSendingUserList()
{
    std::vector<ShareDeviceInfo> devices;
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("GetSendingUserList Enter", "GetSendingUserList Exit"));
    if (Open(req) && req.SendWithoutExitLine(Code::GET_SENDING_USER_LIST) &&
        ReadDeviceList(req.Reply(), devices, req.Site(), "")) {
        req.LogExit();
    }
    return devices;
}

bool ShareManagerSrvProxy::PrepareSend(const ShareDeviceInfo& deviceInfo)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("PrepareSend() Enter", "PrepareSend() Exit"));
    return Open(req) && req.Check(deviceInfo.WriteToParcel(req.Data()), WRITE_SHARE_DEVICE_FAILED) &&
           req.SendAndLogExit(Code::PREPARE_SEND) && req.ReplyBool();
}

bool ShareManagerSrvProxy::Send(const ShareDeviceInfo& deviceInfo, SendBean& sendBean, const std::string& packageName)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("Send() Enter", "Send() Exit"));
    MessageParcel& data = req.Data();
    return Open(req) && req.Check(deviceInfo.WriteToParcel(data), WRITE_DEVICE_INFO_FAILED) &&
           req.Check(sendBean.WriteToParcel(data), WRITE_SEND_BEAN_FAILED) &&
           req.Check(data.WriteString(packageName), WRITE_PACKAGE_NAME_FAILED) && req.SendAndLogExit(Code::SEND) &&
           req.ReplyBool();
}

bool ShareManagerSrvProxy::SendFile(const ShareDeviceInfo& deviceInfo, const DataBean& dataBean,
                                    const std::string& packageName)
{
    // A failed DataBean write keeps the sendBean text: the service's log readers match on it.
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("SendFile() Enter", "SendFile() Exit"));
    MessageParcel& data = req.Data();
    return Open(req) && req.Check(deviceInfo.WriteToParcel(data), WRITE_DEVICE_INFO_FAILED) &&
           req.Check(dataBean.WriteToParcel(data), WRITE_SEND_BEAN_FAILED) &&
           req.Check(data.WriteString(packageName), WRITE_PACKAGE_NAME_FAILED) && req.SendAndLogExit(Code::SEND_FILE) &&
           req.ReplyBool();
}

bool ShareManagerSrvProxy::SendBytes(const ShareDeviceInfo& deviceInfo, const BytesInfo& bytesInfo)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("SendBytes() Enter", "SendBytes() Exit"));
    MessageParcel& data = req.Data();
    return Open(req) && req.Check(deviceInfo.WriteToParcel(data), WRITE_DEVICE_INFO_FAILED) &&
           req.Check(bytesInfo.WriteToParcel(data), "Write bytesInfo failed") && req.SendAndLogExit(Code::SEND_BYTES) &&
           req.ReplyBool();
}

bool ShareManagerSrvProxy::Cancel(const ShareDeviceInfo& deviceInfo)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("Cancel() Enter", "Cancel() Exit"));
    return Open(req) && req.Check(deviceInfo.WriteToParcel(req.Data()), WRITE_SHARE_DEVICE_FAILED) &&
           req.SendAndLogExit(Code::CANCEL) && req.ReplyBool();
}

bool ShareManagerSrvProxy::RegisterSenderActionCallback(const sptr<ISenderActionCallback>& callback)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     Debug("RegisterSenderActionCallback() Enter", "RegisterSenderActionCallback() Exit"),
                     NullCallback(callback));
    return Open(req) && req.WriteObject(callback, WRITE_CALLBACK_FAILED) &&
           req.SendAndLogExit(Code::REGISTER_SENDER_ACTION_CALLBACK) && req.ReplyBool();
}

bool ShareManagerSrvProxy::UnRegisterSenderActionCallback(const sptr<ISenderActionCallback>& callback)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     Debug("UnRegisterSenderActionCallback() Enter", "UnRegisterSenderActionCallback() Exit"),
                     NullCallback(callback));
    return Open(req) && req.WriteObject(callback, WRITE_CALLBACK_FAILED) &&
           req.SendAndLogExit(Code::UNREGISTER_SENDER_ACTION_CALLBACK) && req.ReplyBool();
}

sptr<ZelkonReceiver> ShareManagerSrvProxy::GetReceiverActionCallback()
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     Debug("GetReceiverActionCallback() Enter", "GetReceiverActionCallback() Exit"));
    if (!Open(req) || !req.SendWithoutExitLine(Code::GET_RECEIVER_ACTION_CALLBACK)) {
        return nullptr;
    }
    sptr<ZelkonReceiver> receiver = iface_cast<ZelkonReceiver>(req.Reply().ReadRemoteObject());
    if (req.Check(receiver != nullptr, "Read remote object error.")) {
        req.LogExit();
    }
    return receiver;
}

std::string ShareManagerSrvProxy::GetPreviewData()
{
    std::string result;
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("GetPreviewData() Enter", "GetPreviewData() Exit"));
    if (!Open(req) || !req.SendWithoutExitLine(Code::GET_PREVIEW_DATA)) {
        return result;
    }
    if (ReadBigString(req.Reply(), result)) {
        req.LogExit();
    } else {
        // Logged under the service's tag, where the big-string reader logs its own lines.
        SHARE_LOG_AT(SHARE_MANAGER_SERVICE_LABEL, LOG_ERROR, req.Site(), "Read big string failed .");
    }
    return result;
}

ShareAccountInfo ShareManagerSrvProxy::GetAccountInfo()
{
    ShareAccountInfo account;
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("GetAccountInfo() Enter", "GetAccountInfo() Exit"));
    // A record that fails half way is returned as far as it was read.
    if (Open(req) && req.SendWithoutExitLine(Code::GET_ACCOUNT_INFO) &&
        req.Check(account.ReadFromParcel(req.Reply()), "Read share accout failed.")) {
        req.LogExit();
    }
    return account;
}

bool ShareManagerSrvProxy::SetShareAccountPermission(int32_t permission)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     Debug("SetShareAccountPermission() Enter", "SetShareAccountPermission() Exit"));
    return Open(req) && req.PutUnchecked(permission) && req.SendAndLogExit(Code::SET_SHARE_ACCOUNT_PERMISSION) &&
           req.ReplyBool();
}

bool ShareManagerSrvProxy::RegisterVxShareApiWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, BARE_INFO, NullCallback(callback));
    return Open(req) && req.WriteObject(callback, WRITE_CALLBACK_FAILED) &&
           req.SendAndLogExit(Code::REGISTER_VX_SHARE_API_WIDGET_CALLBACK) && req.ReplyBool();
}

bool ShareManagerSrvProxy::UnRegisterVxShareApiWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, BARE_INFO, NullCallback(callback));
    return Open(req) && req.WriteObject(callback, WRITE_CALLBACK_FAILED) &&
           req.SendAndLogExit(Code::UNREGISTER_VX_SHARE_API_WIDGET_CALLBACK) && req.ReplyBool();
}

bool ShareManagerSrvProxy::RegisterVxShareApiEvent(const std::string& event)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, BARE_INFO);
    return Open(req) && req.Check(req.Data().WriteString(event), WRITE_STRING_FAILED) &&
           req.SendAndLogExit(Code::REGISTER_VX_SHARE_API_EVENT) && req.ReplyBool();
}

bool ShareManagerSrvProxy::UnRegisterVxShareApiEvent(const std::string& event)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, BARE_INFO);
    return Open(req) && req.Check(req.Data().WriteString(event), WRITE_STRING_FAILED) &&
           req.SendAndLogExit(Code::UNREGISTER_VX_SHARE_API_EVENT) && req.ReplyBool();
}

bool ShareManagerSrvProxy::NotifyInfo(const ShareDeviceInfo& deviceInfo, int32_t info)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("NotifyInfo() Enter", "NotifyInfo() Exit"));
    return Open(req) && req.Check(deviceInfo.WriteToParcel(req.Data()), WRITE_SHARE_DEVICE_FAILED) &&
           req.PutUnchecked(info) && req.SendAndLogExit(Code::NOTIFY_INFO) && req.ReplyBool();
}

bool ShareManagerSrvProxy::ApplyUriPermission(const std::string& packageName)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("ApplyUriPermission() Enter", "ApplyUriPermission() Exit"));
    return Open(req) && req.Check(req.Data().WriteString(packageName), WRITE_PACKAGE_NAME_FAILED) &&
           req.SendAndLogExit(Code::APPLY_URI_PERMISSION) && req.ReplyBool();
}

bool ShareManagerSrvProxy::SwingConfirm(const ShareDeviceInfo& deviceInfo, int32_t confirm)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("SwingConfirm() Enter", "SwingConfirm() Exit"));
    return Open(req) && req.Check(deviceInfo.WriteToParcel(req.Data()), WRITE_SHARE_DEVICE_FAILED) &&
           req.PutUnchecked(confirm) && req.SendAndLogExit(Code::SWING_CONFIRM) && req.ReplyBool();
}

bool ShareManagerSrvProxy::IsAppForeground(const std::string& packageName)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("IsAppForeground() Enter", "IsAppForeground() Exit"));
    return Open(req) && req.Check(req.Data().WriteString(packageName), WRITE_PACKAGE_NAME_FAILED) &&
           req.SendAndLogExit(Code::IS_APP_FOREGROUND) && req.ReplyBool();
}

bool ShareManagerSrvProxy::RegisterShareApiCallback(const sptr<ZelkonApiCallback>& callback)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, BARE_INFO, NullCallback(callback));
    return Open(req) && req.WriteObject(callback, WRITE_CALLBACK_FAILED) &&
           req.SendAndLogExit(Code::REGISTER_SHARE_API_CALLBACK) && req.ReplyBool();
}

bool ShareManagerSrvProxy::UnregisterShareApiCallback(const sptr<ZelkonApiCallback>& callback)
{
    // The one callback request without the null check: a null callback is the caller's error. It fails as an
    // unwritable object instead of crashing.
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, BARE_INFO);
    return Open(req) &&
           (callback != nullptr ? req.WriteObject(callback, WRITE_CALLBACK_FAILED)
                                : req.Check(false, WRITE_CALLBACK_FAILED)) &&
           req.SendAndLogExit(Code::UNREGISTER_SHARE_API_CALLBACK) && req.ReplyBool();
}

bool ShareManagerSrvProxy::RegisterShareEventCallback(int32_t eventType, int32_t eventId)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, BARE_INFO);
    return Open(req) && req.PutUnchecked(eventType, eventId) &&
           req.SendAndLogExit(Code::REGISTER_SHARE_EVENT_CALLBACK) && req.ReplyBool();
}

bool ShareManagerSrvProxy::UnregisterShareEventCallback(int32_t eventType, int32_t eventId)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, BARE_INFO);
    return Open(req) && req.PutUnchecked(eventType, eventId) &&
           req.SendAndLogExit(Code::UNREGISTER_SHARE_EVENT_CALLBACK) && req.ReplyBool();
}

bool ShareManagerSrvProxy::ReadBigString(MessageParcel& parcel, std::string& out) const
{
    return ParcelUtil::ReadBigString(parcel, out, maxBigStringSize_, bigStringTerminatorSize_);
}

} // namespace Zelkon
} // namespace OHOS
