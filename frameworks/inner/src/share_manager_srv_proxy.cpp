#include "share_manager_srv_proxy.h"

#include "share_common_constants.h"
#include "share_path_constants.h"
#include "share_radar_constants.h"

#include "parcel_util.h"

namespace OHOS {
namespace Zelkon {

BrokerDelegator<ShareManagerSrvProxy> ShareManagerSrvProxy::delegator_;

namespace {
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
} // namespace

template <typename Write>
bool ShareManagerSrvProxy::BoolRequest(const LogSite& site, const RequestTexts& texts, uint32_t code, Write&& write)
{
    ProxyRequest req(PROXY_LABELS, site, texts);
    return req.Start(Remote(), GetDescriptor()) && write(req) && req.Send(code) && req.ReplyBool();
}

bool ShareManagerSrvProxy::PlainRequest(const LogSite& site, const RequestTexts& texts, uint32_t code)
{
    return BoolRequest(site, texts, code, [](ProxyRequest&) { return true; });
}

template <typename Callback>
bool ShareManagerSrvProxy::CallbackRequest(const LogSite& site, const RequestTexts& texts, uint32_t code,
                                           const sptr<Callback>& callback)
{
    if (callback == nullptr) {
        SHARE_LOG_AT(SHARE_MANAGER_PROXY_LABEL, LOG_ERROR, site, "The parameter callback is nullptr.");
        return false;
    }
    return BoolRequest(site, texts, code,
                       [&callback](ProxyRequest& req) { return req.WriteObject(callback, WRITE_CALLBACK_FAILED); });
}

bool ShareManagerSrvProxy::SetShareEnable(int32_t type, int32_t state, bool enable)
{
    return BoolRequest(SHARE_LOG_SITE, Debug("Enable() Enter", "Enable() Exit"), SET_SHARE_ENABLE,
                       [&](ProxyRequest& req) {
                           MessageParcel& data = req.Data();
                           data.WriteInt32(type);
                           data.WriteInt32(state);
                           data.WriteBool(enable);
                           return true;
                       });
}

bool ShareManagerSrvProxy::SetShareEnableWithConfirm(int32_t type, int32_t state, bool enable, bool confirm)
{
    return BoolRequest(SHARE_LOG_SITE, Debug("EnableWithConfirm() Enter", "EnableWithConfirm() Exit"),
                       SET_SHARE_ENABLE_WITH_CONFIRM, [&](ProxyRequest& req) {
                           MessageParcel& data = req.Data();
                           data.WriteInt32(type);
                           data.WriteInt32(state);
                           data.WriteBool(enable);
                           data.WriteBool(confirm);
                           return true;
                       });
}

bool ShareManagerSrvProxy::IsEnabled()
{
    return PlainRequest(SHARE_LOG_SITE, Debug("IsEnabled() Enter", "IsEnabled() Exit"), IS_ENABLED);
}

int32_t ShareManagerSrvProxy::GetEnableState()
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("GetEnableState() Enter", "GetEnableState() Exit"));
    if (!req.Start(Remote(), GetDescriptor()) || !req.Send(GET_ENABLE_STATE)) {
        return 0;
    }
    return req.Reply().ReadInt32();
}

bool ShareManagerSrvProxy::IsFocusPidsRegisterSwing()
{
    return PlainRequest(SHARE_LOG_SITE, Debug(nullptr, nullptr), IS_FOCUS_PIDS_REGISTER_SWING);
}

bool ShareManagerSrvProxy::RegisterWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback)
{
    return CallbackRequest(SHARE_LOG_SITE, Debug("RegisterWidgetCallback() Enter", "RegisterWidgetCallback() Exit"),
                           REGISTER_WIDGET_CALLBACK, callback);
}

bool ShareManagerSrvProxy::UnRegisterWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback)
{
    return CallbackRequest(SHARE_LOG_SITE, Debug("UnRegisterWidgetCallback() Enter", "UnRegisterWidgetCallback() Exit"),
                           UNREGISTER_WIDGET_CALLBACK, callback);
}

bool ShareManagerSrvProxy::StartDiscovery()
{
    return PlainRequest(SHARE_LOG_SITE, Debug("StartDiscovery() Enter", "StartDiscovery() Exit"), START_DISCOVERY);
}

bool ShareManagerSrvProxy::StopDiscovery()
{
    return PlainRequest(SHARE_LOG_SITE, Debug("StopDiscovery() Enter", "StopDiscovery() Exit"), STOP_DISCOVERY);
}

bool ShareManagerSrvProxy::StartConnect()
{
    return PlainRequest(SHARE_LOG_SITE, Debug("StartConnect() Enter", "StartConnect() Exit"), START_CONNECT);
}

bool ShareManagerSrvProxy::StopConnect()
{
    return PlainRequest(SHARE_LOG_SITE, Debug("StopConnect() Enter", "StopConnect() Exit"), STOP_CONNECT);
}

bool ShareManagerSrvProxy::RequestDeviceList(ProxyRequest& request, uint32_t code, const char* prefix,
                                             std::vector<ShareDeviceInfo>& devices)
{
    return request.Start(Remote(), GetDescriptor()) && request.Transact(code) &&
           ReadDeviceList(request.Reply(), devices, request.Site(), prefix);
}

bool ShareManagerSrvProxy::ReadDeviceList(MessageParcel& reply, std::vector<ShareDeviceInfo>& devices,
                                          const LogSite& site, const char* prefix)
{
    // The bound is signed: a negative count reads as an empty list.
    int32_t count = 0;
    if (!reply.ReadInt32(count) || count > MAX_DEVICE_COUNT) {
        SHARE_LOG_AT(SHARE_MANAGER_PROXY_LABEL, LOG_ERROR, site, "%{public}sRead device counter failed %{public}d .",
                     prefix, count);
        return false;
    }
    // Each record is read into a temporary and copied into the list, which grows as needed.
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
    if (RequestDeviceList(req, GET_ALL_USER_LIST, ALL_USER_LIST_PREFIX, devices)) {
        SHARE_MANAGER_PROXY_LOGD("GetAllUserList Exit size %{public}zu", devices.size());
    }
    return devices;
}

std::vector<ShareDeviceInfo> ShareManagerSrvProxy::GetSendingUserList()
{
    std::vector<ShareDeviceInfo> devices;
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("GetSendingUserList Enter", "GetSendingUserList Exit"));
    if (RequestDeviceList(req, GET_SENDING_USER_LIST, "", devices)) {
        req.LogExit();
    }
    return devices;
}

bool ShareManagerSrvProxy::PrepareSend(const ShareDeviceInfo& deviceInfo)
{
    return BoolRequest(
        SHARE_LOG_SITE, Debug("PrepareSend() Enter", "PrepareSend() Exit"), PREPARE_SEND,
        [&](ProxyRequest& req) { return req.Check(deviceInfo.WriteToParcel(req.Data()), WRITE_SHARE_DEVICE_FAILED); });
}

bool ShareManagerSrvProxy::Send(const ShareDeviceInfo& deviceInfo, SendBean& sendBean, const std::string& packageName)
{
    return BoolRequest(SHARE_LOG_SITE, Debug("Send() Enter", "Send() Exit"), SEND, [&](ProxyRequest& req) {
        MessageParcel& data = req.Data();
        return req.Check(deviceInfo.WriteToParcel(data), WRITE_DEVICE_INFO_FAILED) &&
               req.Check(sendBean.WriteToParcel(data), WRITE_SEND_BEAN_FAILED) &&
               req.Check(data.WriteString(packageName), WRITE_PACKAGE_NAME_FAILED);
    });
}

bool ShareManagerSrvProxy::SendFile(const ShareDeviceInfo& deviceInfo, const DataBean& dataBean,
                                    const std::string& packageName)
{
    // A failed DataBean write keeps the sendBean text: the service's log readers match on it.
    return BoolRequest(SHARE_LOG_SITE, Debug("SendFile() Enter", "SendFile() Exit"), SEND_FILE, [&](ProxyRequest& req) {
        MessageParcel& data = req.Data();
        return req.Check(deviceInfo.WriteToParcel(data), WRITE_DEVICE_INFO_FAILED) &&
               req.Check(dataBean.WriteToParcel(data), WRITE_SEND_BEAN_FAILED) &&
               req.Check(data.WriteString(packageName), WRITE_PACKAGE_NAME_FAILED);
    });
}

bool ShareManagerSrvProxy::SendBytes(const ShareDeviceInfo& deviceInfo, const BytesInfo& bytesInfo)
{
    return BoolRequest(SHARE_LOG_SITE, Debug("SendBytes() Enter", "SendBytes() Exit"), SEND_BYTES,
                       [&](ProxyRequest& req) {
                           MessageParcel& data = req.Data();
                           return req.Check(deviceInfo.WriteToParcel(data), WRITE_DEVICE_INFO_FAILED) &&
                                  req.Check(bytesInfo.WriteToParcel(data), "Write bytesInfo failed");
                       });
}

bool ShareManagerSrvProxy::Cancel(const ShareDeviceInfo& deviceInfo)
{
    return BoolRequest(SHARE_LOG_SITE, Debug("Cancel() Enter", "Cancel() Exit"), CANCEL, [&](ProxyRequest& req) {
        return req.Check(deviceInfo.WriteToParcel(req.Data()), WRITE_SHARE_DEVICE_FAILED);
    });
}

bool ShareManagerSrvProxy::RegisterSenderActionCallback(const sptr<ISenderActionCallback>& callback)
{
    return CallbackRequest(SHARE_LOG_SITE,
                           Debug("RegisterSenderActionCallback() Enter", "RegisterSenderActionCallback() Exit"),
                           REGISTER_SENDER_ACTION_CALLBACK, callback);
}

bool ShareManagerSrvProxy::UnRegisterSenderActionCallback(const sptr<ISenderActionCallback>& callback)
{
    return CallbackRequest(SHARE_LOG_SITE,
                           Debug("UnRegisterSenderActionCallback() Enter", "UnRegisterSenderActionCallback() Exit"),
                           UNREGISTER_SENDER_ACTION_CALLBACK, callback);
}

sptr<ZelkonReceiver> ShareManagerSrvProxy::GetReceiverActionCallback()
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     Debug("GetReceiverActionCallback() Enter", "GetReceiverActionCallback() Exit"));
    if (!req.Start(Remote(), GetDescriptor()) || !req.Transact(GET_RECEIVER_ACTION_CALLBACK)) {
        return nullptr;
    }
    sptr<ZelkonReceiver> receiver = iface_cast<ZelkonReceiver>(req.Reply().ReadRemoteObject());
    if (receiver == nullptr) {
        req.LogError("Read remote object error.");
    } else {
        req.LogExit();
    }
    return receiver;
}

std::string ShareManagerSrvProxy::GetPreviewData()
{
    std::string result;
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, Debug("GetPreviewData() Enter", "GetPreviewData() Exit"));
    if (!req.Start(Remote(), GetDescriptor()) || !req.Transact(GET_PREVIEW_DATA)) {
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
    if (!req.Start(Remote(), GetDescriptor()) || !req.Transact(GET_ACCOUNT_INFO)) {
        return account;
    }
    // A record that fails half way is returned as far as it was read.
    if (req.Check(account.ReadFromParcel(req.Reply()), "Read share accout failed.")) {
        req.LogExit();
    }
    return account;
}

bool ShareManagerSrvProxy::SetShareAccountPermission(int32_t permission)
{
    return BoolRequest(SHARE_LOG_SITE, Debug("SetShareAccountPermission() Enter", "SetShareAccountPermission() Exit"),
                       SET_SHARE_ACCOUNT_PERMISSION, [permission](ProxyRequest& req) {
                           req.Data().WriteInt32(permission);
                           return true;
                       });
}

bool ShareManagerSrvProxy::RegisterVxShareApiWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback)
{
    return CallbackRequest(SHARE_LOG_SITE, BARE_INFO, REGISTER_VX_SHARE_API_WIDGET_CALLBACK, callback);
}

bool ShareManagerSrvProxy::UnRegisterVxShareApiWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback)
{
    return CallbackRequest(SHARE_LOG_SITE, BARE_INFO, UNREGISTER_VX_SHARE_API_WIDGET_CALLBACK, callback);
}

bool ShareManagerSrvProxy::RegisterVxShareApiEvent(const std::string& event)
{
    return BoolRequest(SHARE_LOG_SITE, BARE_INFO, REGISTER_VX_SHARE_API_EVENT, [&event](ProxyRequest& req) {
        return req.Check(req.Data().WriteString(event), WRITE_STRING_FAILED);
    });
}

bool ShareManagerSrvProxy::UnRegisterVxShareApiEvent(const std::string& event)
{
    return BoolRequest(SHARE_LOG_SITE, BARE_INFO, UNREGISTER_VX_SHARE_API_EVENT, [&event](ProxyRequest& req) {
        return req.Check(req.Data().WriteString(event), WRITE_STRING_FAILED);
    });
}

bool ShareManagerSrvProxy::NotifyInfo(const ShareDeviceInfo& deviceInfo, int32_t info)
{
    return BoolRequest(SHARE_LOG_SITE, Debug("NotifyInfo() Enter", "NotifyInfo() Exit"), NOTIFY_INFO,
                       [&](ProxyRequest& req) {
                           MessageParcel& data = req.Data();
                           if (!req.Check(deviceInfo.WriteToParcel(data), WRITE_SHARE_DEVICE_FAILED)) {
                               return false;
                           }
                           data.WriteInt32(info);
                           return true;
                       });
}

bool ShareManagerSrvProxy::ApplyUriPermission(const std::string& packageName)
{
    return BoolRequest(SHARE_LOG_SITE, Debug("ApplyUriPermission() Enter", "ApplyUriPermission() Exit"),
                       APPLY_URI_PERMISSION, [&packageName](ProxyRequest& req) {
                           return req.Check(req.Data().WriteString(packageName), WRITE_PACKAGE_NAME_FAILED);
                       });
}

bool ShareManagerSrvProxy::SwingConfirm(const ShareDeviceInfo& deviceInfo, int32_t confirm)
{
    return BoolRequest(SHARE_LOG_SITE, Debug("SwingConfirm() Enter", "SwingConfirm() Exit"), SWING_CONFIRM,
                       [&](ProxyRequest& req) {
                           MessageParcel& data = req.Data();
                           if (!req.Check(deviceInfo.WriteToParcel(data), WRITE_SHARE_DEVICE_FAILED)) {
                               return false;
                           }
                           data.WriteInt32(confirm);
                           return true;
                       });
}

bool ShareManagerSrvProxy::IsAppForeground(const std::string& packageName)
{
    return BoolRequest(SHARE_LOG_SITE, Debug("IsAppForeground() Enter", "IsAppForeground() Exit"), IS_APP_FOREGROUND,
                       [&packageName](ProxyRequest& req) {
                           return req.Check(req.Data().WriteString(packageName), WRITE_PACKAGE_NAME_FAILED);
                       });
}

bool ShareManagerSrvProxy::RegisterShareApiCallback(const sptr<ZelkonApiCallback>& callback)
{
    return CallbackRequest(SHARE_LOG_SITE, BARE_INFO, REGISTER_SHARE_API_CALLBACK, callback);
}

bool ShareManagerSrvProxy::UnregisterShareApiCallback(const sptr<ZelkonApiCallback>& callback)
{
    // The one callback request without the null check: a null callback here is the caller's error.
    // A null one fails as an unwritable object instead of crashing.
    return BoolRequest(SHARE_LOG_SITE, BARE_INFO, UNREGISTER_SHARE_API_CALLBACK, [&callback](ProxyRequest& req) {
        return callback != nullptr ? req.WriteObject(callback, WRITE_CALLBACK_FAILED)
                                   : req.Check(false, WRITE_CALLBACK_FAILED);
    });
}

bool ShareManagerSrvProxy::RegisterShareEventCallback(int32_t eventType, int32_t eventId)
{
    return BoolRequest(SHARE_LOG_SITE, BARE_INFO, REGISTER_SHARE_EVENT_CALLBACK, [=](ProxyRequest& req) {
        req.Data().WriteInt32(eventType);
        req.Data().WriteInt32(eventId);
        return true;
    });
}

bool ShareManagerSrvProxy::UnregisterShareEventCallback(int32_t eventType, int32_t eventId)
{
    return BoolRequest(SHARE_LOG_SITE, BARE_INFO, UNREGISTER_SHARE_EVENT_CALLBACK, [=](ProxyRequest& req) {
        req.Data().WriteInt32(eventType);
        req.Data().WriteInt32(eventId);
        return true;
    });
}

bool ShareManagerSrvProxy::ReadBigString(MessageParcel& parcel, std::string& out) const
{
    return ParcelUtil::ReadBigString(parcel, out, maxBigStringSize_, bigStringTerminatorSize_);
}

} // namespace Zelkon
} // namespace OHOS
