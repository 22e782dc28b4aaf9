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

#include "share_manager_client.h"

#include "share_common_constants.h"

#include "client_forward.h"
#include "iservice_registry.h"
#include "share_log.h"

namespace OHOS {
namespace Zelkon {

ShareManagerClient::ShareManagerClient() : deathRecipient_(new ShareManagerDeathRecipient()) {}

ShareManagerClient::~ShareManagerClient()
{
    deathRecipient_ = nullptr;
    shareManagerSrvProxy_ = nullptr;
}

int32_t ShareManagerClient::Connect()
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (shareManagerSrvProxy_ != nullptr) {
        SHARE_MANAGER_CLIENT_LOGI("shareManagerSrvProxy already exists.");
        return 0;
    }
    sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
    if (manager == nullptr) {
        SHARE_MANAGER_CLIENT_LOGE("GetSystemAbilityManager failed");
        return -1;
    }
    // A lookup only: this service is never loaded on demand.
    sptr<IRemoteObject> remote = manager->CheckSystemAbility(SHARE_MANAGER_SA_ID);
    if (remote == nullptr) {
        SHARE_MANAGER_CLIENT_LOGE("CheckSystemAbility failed");
        return -1;
    }
    if (remote->IsProxyObject() && !remote->AddDeathRecipient(deathRecipient_)) {
        SHARE_MANAGER_CLIENT_LOGE("Add death recipient to share service failed");
        return -1;
    }
    // Without a registered creator this stays null and the caller gets a null proxy from a successful Connect.
    shareManagerSrvProxy_ = iface_cast<IWidgetService>(remote);
    SHARE_MANAGER_CLIENT_LOGD("Connecting WidgetService success");
    return 0;
}

sptr<IWidgetService> ShareManagerClient::CopyProxy()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return shareManagerSrvProxy_;
}

sptr<IWidgetService> ShareManagerClient::GetShareManagerSrvProxy()
{
    if (Connect() != 0) {
        SHARE_MANAGER_CLIENT_LOGE("Get ShareWidgetService failed.");
        return nullptr;
    }
    return CopyProxy();
}

void ShareManagerClient::ResetProxy(const wptr<IRemoteObject>& remote)
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (shareManagerSrvProxy_ == nullptr) {
        return;
    }
    sptr<IRemoteObject> current = shareManagerSrvProxy_->AsObject();
    sptr<IRemoteObject> dead = remote.promote();
    if (current == nullptr || current.GetRefPtr() != dead.GetRefPtr()) {
        return;
    }
    current->RemoveDeathRecipient(deathRecipient_);
    shareManagerSrvProxy_ = nullptr;
}

void ShareManagerClient::RegisterDiedCallback(const std::shared_ptr<ShareManagerDiedCallback>& callback)
{
    deathRecipient_->SetDiedCallback(callback);
}

sptr<IWidgetService> ShareManagerClient::ConnectedProxy(const LogSite& site, const ClientTexts& texts)
{
    sptr<IWidgetService> proxy = GetShareManagerSrvProxy();
    if (proxy == nullptr) {
        LogText(SHARE_MANAGER_CLIENT_LABEL, LOG_ERROR, site,
                texts.noProxy != nullptr ? texts.noProxy : "shareManagerSrvProxy_ is nullptr");
    }
    return proxy;
}

template <typename Call>
std::invoke_result_t<Call, IWidgetService&> ShareManagerClient::Forward(const LogSite& site, const ClientTexts& texts,
                                                                        Call&& call, const Refusal& refusal)
{
    return ForwardCall<IWidgetService>(
        SHARE_MANAGER_CLIENT_LABEL, site, texts, refusal, [this, &site, &texts] { return ConnectedProxy(site, texts); },
        call);
}

template <typename Call>
std::invoke_result_t<Call, IWidgetService&> ShareManagerClient::Forward(const LogSite& site, const ClientTexts& texts,
                                                                        Call&& call)
{
    return Forward(site, texts, std::forward<Call>(call), Refusal{});
}

bool ShareManagerClient::SetShareEnable(int32_t type, int32_t state, bool enable)
{
    return Forward(SHARE_LOG_SITE, {"Enable Enter", "Enable Exit"},
                   [&](IWidgetService& proxy) { return proxy.SetShareEnable(type, state, enable); });
}

bool ShareManagerClient::SetShareEnableWithConfirm(int32_t type, int32_t state, bool enable, bool confirm)
{
    return Forward(SHARE_LOG_SITE, {"EnableWithConfirm Enter", "EnableWithConfirm Exit"}, [&](IWidgetService& proxy) {
        return proxy.SetShareEnableWithConfirm(type, state, enable, confirm);
    });
}

bool ShareManagerClient::IsEnabled()
{
    return Forward(SHARE_LOG_SITE, {"IsEnabled Enter", "IsEnabled Exit"},
                   [](IWidgetService& proxy) { return proxy.IsEnabled(); });
}

int32_t ShareManagerClient::GetEnableState()
{
    return Forward(SHARE_LOG_SITE, {"GetEnableState Enter", "GetEnableState Exit"},
                   [](IWidgetService& proxy) { return proxy.GetEnableState(); });
}

bool ShareManagerClient::IsFocusPidsRegisterSwing()
{
    const LogSite site = SHARE_LOG_SITE;
    return Forward(site, {nullptr, nullptr}, [&site](IWidgetService& proxy) {
        bool registered = proxy.IsFocusPidsRegisterSwing();
        SHARE_LOG_AT(SHARE_MANAGER_CLIENT_LABEL, LOG_INFO, site, "IsFocusPidsRegisterSwing %{public}d", registered);
        return registered;
    });
}

bool ShareManagerClient::RegisterWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback)
{
    return Forward(SHARE_LOG_SITE, {"RegisterWidgetCallback Enter", "RegisterWidgetCallback Exit"},
                   [&](IWidgetService& proxy) { return proxy.RegisterWidgetCallback(callback); });
}

bool ShareManagerClient::UnRegisterWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback)
{
    return Forward(SHARE_LOG_SITE, {"UnRegisterWidgetCallback Enter", "UnRegisterWidgetCallback Exit"},
                   [&](IWidgetService& proxy) { return proxy.UnRegisterWidgetCallback(callback); });
}

bool ShareManagerClient::StartDiscovery()
{
    return Forward(SHARE_LOG_SITE, {"StartDiscovery Enter", "StartDiscovery Exit"},
                   [](IWidgetService& proxy) { return proxy.StartDiscovery(); });
}

bool ShareManagerClient::StopDiscovery()
{
    return Forward(SHARE_LOG_SITE, {"StopDiscovery Enter", "StopDiscovery Exit"},
                   [](IWidgetService& proxy) { return proxy.StopDiscovery(); });
}

bool ShareManagerClient::StartConnect()
{
    return Forward(
        SHARE_LOG_SITE,
        ClientTexts("StartConnect Enter", "StartConnect Exit").NoProxy("StartConnect shareManagerSrvProxy_ is nullptr"),
        [](IWidgetService& proxy) { return proxy.StartConnect(); });
}

bool ShareManagerClient::StopConnect()
{
    return Forward(
        SHARE_LOG_SITE,
        ClientTexts("StopConnect Enter", "StopConnect Exit").NoProxy("StopConnect shareManagerSrvProxy_ is nullptr"),
        [](IWidgetService& proxy) { return proxy.StopConnect(); });
}

std::vector<ShareDeviceInfo> ShareManagerClient::GetAllUserList()
{
    const LogSite site = SHARE_LOG_SITE;
    return Forward(
        site, ClientTexts("GetAllUserList Enter", nullptr).NoProxy("GetAllUserList shareManagerSrvProxy_ is nullptr"),
        [&site](IWidgetService& proxy) {
            std::vector<ShareDeviceInfo> devices = proxy.GetAllUserList();
            SHARE_LOG_AT(SHARE_MANAGER_CLIENT_LABEL, LOG_DEBUG, site, "GetAllUserList Exit size %{public}zu",
                         devices.size());
            return devices;
        });
}

std::vector<ShareDeviceInfo> ShareManagerClient::GetSendingUserList()
{
    const LogSite site = SHARE_LOG_SITE;
    return Forward(site, {"GetSendingUserList Enter", nullptr}, [&site](IWidgetService& proxy) {
        std::vector<ShareDeviceInfo> devices = proxy.GetSendingUserList();
        SHARE_LOG_AT(SHARE_MANAGER_CLIENT_LABEL, LOG_DEBUG, site, "GetSendingUserList Exit size %{public}zu",
                     devices.size());
        return devices;
    });
}

bool ShareManagerClient::PrepareSend(const ShareDeviceInfo& deviceInfo)
{
    return Forward(SHARE_LOG_SITE, {"PrepareSend Enter", "PrepareSend Exit"},
                   [&](IWidgetService& proxy) { return proxy.PrepareSend(deviceInfo); });
}

bool ShareManagerClient::Send(const ShareDeviceInfo& deviceInfo, SendBean& sendBean, const std::string& packageName)
{
    return Forward(SHARE_LOG_SITE, {"Send Enter", "Send Exit"},
                   [&](IWidgetService& proxy) { return proxy.Send(deviceInfo, sendBean, packageName); });
}

bool ShareManagerClient::SendFile(const ShareDeviceInfo& deviceInfo, const DataBean& dataBean,
                                  const std::string& packageName)
{
    return Forward(SHARE_LOG_SITE, {"SendFile Enter", "SendFile Exit"},
                   [&](IWidgetService& proxy) { return proxy.SendFile(deviceInfo, dataBean, packageName); });
}

bool ShareManagerClient::SendBytes(const ShareDeviceInfo& deviceInfo, const BytesInfo& bytesInfo)
{
    return Forward(SHARE_LOG_SITE, {"SendBytes Enter", "SendBytes Exit"},
                   [&](IWidgetService& proxy) { return proxy.SendBytes(deviceInfo, bytesInfo); });
}

bool ShareManagerClient::Cancel(const ShareDeviceInfo& deviceInfo)
{
    return Forward(SHARE_LOG_SITE, {"Cancel Enter", "Cancel Exit"},
                   [&](IWidgetService& proxy) { return proxy.Cancel(deviceInfo); });
}

bool ShareManagerClient::RegisterSenderActionCallback(const sptr<ISenderActionCallback>& callback)
{
    return Forward(SHARE_LOG_SITE, {"RegisterSenderActionCallback Enter", "RegisterSenderActionCallback Exit"},
                   [&](IWidgetService& proxy) { return proxy.RegisterSenderActionCallback(callback); });
}

bool ShareManagerClient::UnRegisterSenderActionCallback(const sptr<ISenderActionCallback>& callback)
{
    return Forward(SHARE_LOG_SITE, {"UnRegisterSenderActionCallback Enter", "UnRegisterSenderActionCallback Exit"},
                   [&](IWidgetService& proxy) { return proxy.UnRegisterSenderActionCallback(callback); });
}

sptr<ZelkonReceiver> ShareManagerClient::GetReceiverActionCallback()
{
    return Forward(SHARE_LOG_SITE, {"GetReceiverActionCallback Enter", "GetReceiverActionCallback Exit"},
                   [](IWidgetService& proxy) { return proxy.GetReceiverActionCallback(); });
}

std::string ShareManagerClient::GetPreviewData()
{
    return Forward(SHARE_LOG_SITE, {"GetPreviewData Enter", nullptr},
                   [](IWidgetService& proxy) { return proxy.GetPreviewData(); });
}

ShareAccountInfo ShareManagerClient::GetAccountInfo()
{
    return Forward(SHARE_LOG_SITE, {"GetAccountInfo Enter", "GetAccountInfo Exit"},
                   [](IWidgetService& proxy) { return proxy.GetAccountInfo(); });
}

bool ShareManagerClient::SetShareAccountPermission(int32_t permission)
{
    return Forward(SHARE_LOG_SITE, {"SetShareAccountPermission Enter", "SetShareAccountPermission Exit"},
                   [&](IWidgetService& proxy) { return proxy.SetShareAccountPermission(permission); });
}

bool ShareManagerClient::RegisterVxShareApiWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback)
{
    return Forward(SHARE_LOG_SITE, {"Enter", "Exit"},
                   [&](IWidgetService& proxy) { return proxy.RegisterVxShareApiWidgetCallback(callback); });
}

bool ShareManagerClient::UnRegisterVxShareApiWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback)
{
    return Forward(SHARE_LOG_SITE, {"Enter", "Exit"},
                   [&](IWidgetService& proxy) { return proxy.UnRegisterVxShareApiWidgetCallback(callback); });
}

bool ShareManagerClient::RegisterVxShareApiEvent(const std::string& event)
{
    return Forward(SHARE_LOG_SITE, {"Enter", "Exit"},
                   [&](IWidgetService& proxy) { return proxy.RegisterVxShareApiEvent(event); });
}

bool ShareManagerClient::UnRegisterVxShareApiEvent(const std::string& event)
{
    return Forward(SHARE_LOG_SITE, {"Enter", "Exit"},
                   [&](IWidgetService& proxy) { return proxy.UnRegisterVxShareApiEvent(event); });
}

bool ShareManagerClient::NotifyInfo(const ShareDeviceInfo& deviceInfo, int32_t info)
{
    return Forward(SHARE_LOG_SITE, {"NotifyInfo Enter", "NotifyInfo Exit"},
                   [&](IWidgetService& proxy) { return proxy.NotifyInfo(deviceInfo, info); });
}

bool ShareManagerClient::ApplyUriPermission(const std::string& packageName)
{
    // Connects itself: a failed connection logs one line only, without the no-proxy line.
    SHARE_MANAGER_CLIENT_LOGD("ApplyUriPermission Enter");
    if (Connect() != 0) {
        SHARE_MANAGER_CLIENT_LOGE("Get ShareWidgetService failed.");
        return false;
    }
    sptr<IWidgetService> proxy = CopyProxy();
    if (proxy == nullptr) {
        SHARE_MANAGER_CLIENT_LOGE("shareManagerSrvProxy_ is nullptr");
        return false;
    }
    bool result = proxy->ApplyUriPermission(packageName);
    SHARE_MANAGER_CLIENT_LOGD("ApplyUriPermission Exit");
    return result;
}

bool ShareManagerClient::SwingConfirm(const ShareDeviceInfo& deviceInfo, int32_t confirm)
{
    return Forward(SHARE_LOG_SITE, {"SwingConfirm Enter", "SwingConfirm Exit", LOG_INFO},
                   [&](IWidgetService& proxy) { return proxy.SwingConfirm(deviceInfo, confirm); });
}

bool ShareManagerClient::IsAppForeground(const std::string& packageName)
{
    return Forward(SHARE_LOG_SITE, {"IsAppForeground Enter", "IsAppForeground Exit"},
                   [&](IWidgetService& proxy) { return proxy.IsAppForeground(packageName); });
}

bool ShareManagerClient::RegisterShareApiCallback(const sptr<ZelkonApiCallback>& callback)
{
    return Forward(SHARE_LOG_SITE, {"RegisterShareApiCallback Enter", "RegisterShareApiCallback Exit"},
                   [&](IWidgetService& proxy) { return proxy.RegisterShareApiCallback(callback); });
}

bool ShareManagerClient::UnregisterShareApiCallback(const sptr<ZelkonApiCallback>& callback)
{
    return Forward(SHARE_LOG_SITE, {"UnregisterShareApiCallback Enter", "UnregisterShareApiCallback Exit"},
                   [&](IWidgetService& proxy) { return proxy.UnregisterShareApiCallback(callback); });
}

bool ShareManagerClient::RegisterShareEventCallback(int32_t eventType, int32_t eventId)
{
    return Forward(SHARE_LOG_SITE, {"RegisterShareEventCallback Enter", "RegisterShareEventCallback Exit"},
                   [&](IWidgetService& proxy) { return proxy.RegisterShareEventCallback(eventType, eventId); });
}

bool ShareManagerClient::UnregisterShareEventCallback(int32_t eventType, int32_t eventId)
{
    return Forward(SHARE_LOG_SITE, {"UnregisterShareEventCallback Enter", "UnregisterShareEventCallback Exit"},
                   [&](IWidgetService& proxy) { return proxy.UnregisterShareEventCallback(eventType, eventId); });
}

} // namespace Zelkon
} // namespace OHOS
