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

#include "share_client.h"

#include "share_common_constants.h"

#include <chrono>
#include <unistd.h>

#include "client_forward.h"
#include "iservice_registry.h"
#include "share_log.h"
#include "zelkon_service_load_callback.h"

namespace OHOS {
namespace Zelkon {

ShareClient::ShareClient() : deathRecipient_(new ShareDeathRecipient()), loadCallback_(new ZelkonServiceLoadCallback())
{
    SHARE_CLIENT_LOGI("ShareClient() invoked.");
    if (!LoadShareSa()) {
        SHARE_CLIENT_LOGE("Failed to load zelkon SA.");
    }
}

ShareClient::~ShareClient()
{
    loadCallback_ = nullptr;
    deathRecipient_ = nullptr;
    shareProxy_ = nullptr;
}

bool ShareClient::LoadShareSa()
{
    // Runs under mutex_ from Connect, and before anyone can see the instance from the constructor.
    SHARE_CLIENT_LOGI("LoadShareSa invoked.");
    sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
    if (manager == nullptr) {
        SHARE_CLIENT_LOGE("GetSystemAbilityManager failed.");
        loadSaFailed_ = true;
        return false;
    }
    if (manager->LoadSystemAbility(SHARE_SERVICE_SA_ID, loadCallback_) != 0) {
        SHARE_CLIENT_LOGE("LoadSystemAbility failed.");
        loadSaFailed_ = true;
        return false;
    }
    return true;
}

int32_t ShareClient::Connect()
{
    std::unique_lock<std::mutex> lock(mutex_);
    if (shareProxy_ != nullptr) {
        SHARE_CLIENT_LOGI("shareProxy_ is already exists.");
        return 0;
    }
    // The flags never clear: after a failed load or a death every Connect without a proxy asks anew.
    if ((loadSaFailed_ || saDied_) && !LoadShareSa()) {
        SHARE_CLIENT_LOGE("Failed to load zelkon SA.");
        return -1;
    }
    auto deadline = std::chrono::steady_clock::now() + CONNECT_TIMEOUT;
    if (!proxyReady_.wait_until(lock, deadline, [this] { return shareProxy_ != nullptr; })) {
        SHARE_CLIENT_LOGE("Load zelkon SA after 200ms but still can not get it.");
        return -1;
    }
    return 0;
}

bool ShareClient::ConnectWithRetry()
{
    if (Connect() == 0) {
        return true;
    }
    for (int retry = 0; retry < CONNECT_RETRIES; ++retry) {
        sleep(1);
        if (Connect() == 0) {
            return true;
        }
    }
    return false;
}

void ShareClient::SetShareSa(const sptr<IRemoteObject>& remoteObject)
{
    if (remoteObject == nullptr) {
        return;
    }
    std::lock_guard<std::mutex> lock(mutex_);
    // Concurrent Connects may each have asked for a load, all answered with the same object: the recipient is
    // attached once, so each death is reported once.
    if (shareProxy_ != nullptr && shareProxy_->AsObject() == remoteObject) {
        return;
    }
    // Without a death recipient the client would keep a dead proxy: the waiters rather run into their deadline.
    if (remoteObject->IsProxyObject() && !remoteObject->AddDeathRecipient(deathRecipient_)) {
        SHARE_CLIENT_LOGE("Add death recipient to share service failed");
        return;
    }
    shareProxy_ = iface_cast<ZelkonService>(remoteObject);
    proxyReady_.notify_all();
}

void ShareClient::SetLoadShareSaFailed()
{
    std::lock_guard<std::mutex> lock(mutex_);
    loadSaFailed_ = true;
}

void ShareClient::ResetProxy(const wptr<IRemoteObject>& remote)
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (shareProxy_ == nullptr) {
        return;
    }
    sptr<IRemoteObject> object = shareProxy_->AsObject();
    if (object == nullptr || object != remote.promote()) {
        return;
    }
    object->RemoveDeathRecipient(deathRecipient_);
    shareProxy_ = nullptr;
    saDied_ = true;
}

void ShareClient::RegisterDiedCallback(const std::shared_ptr<ShareSaDiedCallback>& callback)
{
    if (deathRecipient_ == nullptr) {
        return;
    }
    deathRecipient_->SetSaDiedCallback(callback);
}

sptr<ZelkonService> ShareClient::ConnectedProxy(const LogSite& site)
{
    if (Connect() != 0) {
        SHARE_LOG_AT(SHARE_CLIENT_LABEL, LOG_ERROR, site, "Get ShareService failed.");
        return nullptr;
    }
    sptr<ZelkonService> proxy;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        proxy = shareProxy_;
    }
    if (proxy == nullptr) {
        SHARE_LOG_AT(SHARE_CLIENT_LABEL, LOG_ERROR, site, "shareProxy_ is nullptr");
    }
    return proxy;
}

template <typename Call>
std::invoke_result_t<Call, ZelkonService&> ShareClient::Forward(const LogSite& site, const ClientTexts& texts,
                                                                Call&& call, const Refusal& refusal)
{
    return ForwardCall<ZelkonService>(
        SHARE_CLIENT_LABEL, site, texts, refusal, [this, &site] { return ConnectedProxy(site); }, call);
}

template <typename Call>
std::invoke_result_t<Call, ZelkonService&> ShareClient::Forward(const LogSite& site, const ClientTexts& texts,
                                                                Call&& call)
{
    return Forward(site, texts, std::forward<Call>(call), Refusal{});
}

namespace {
// The listener operations refuse a null listener before they connect, without a line of their own.
template <typename Listener>
Refusal SilentlyIfNull(const sptr<Listener>& listener)
{
    return {listener == nullptr, nullptr};
}
} // namespace

int32_t ShareClient::Publish(const sptr<IPublishListener>& listener)
{
    return Forward(
        SHARE_LOG_SITE, {"Publish Enter", "Publish Exit"},
        [&](ZelkonService& proxy) { return proxy.PublishDevice(listener); }, SilentlyIfNull(listener));
}

int32_t ShareClient::UnPublish(int32_t publishId, const sptr<IPublishListener>& listener)
{
    return Forward(
        SHARE_LOG_SITE, {"UnPublish Enter", "UnPublish Exit"},
        [&](ZelkonService& proxy) { return proxy.UnPublishDevice(publishId, listener); }, SilentlyIfNull(listener));
}

int32_t ShareClient::Subscribe(const sptr<ISubscribeListener>& listener)
{
    return Forward(
        SHARE_LOG_SITE, {"Subscribe Enter", "SubscribeDevice Exit"},
        [&](ZelkonService& proxy) { return proxy.SubscribeDevice(listener); }, SilentlyIfNull(listener));
}

int32_t ShareClient::UnSubscribe(int32_t subscribeId, const sptr<ISubscribeListener>& listener)
{
    return Forward(
        SHARE_LOG_SITE, {"UnSubscribe Enter", "UnSubscribe Exit"},
        [&](ZelkonService& proxy) { return proxy.UnSubscribeDevice(subscribeId, listener); }, SilentlyIfNull(listener));
}

int32_t ShareClient::ReportSwingEvent(int32_t gesture, int32_t x, int32_t y, std::string concurrentId)
{
    return Forward(SHARE_LOG_SITE, {"Enter", "Exit", LOG_INFO},
                   [&](ZelkonService& proxy) { return proxy.ReportSwingEvent(gesture, x, y, concurrentId); });
}

int32_t ShareClient::SwingSubscribe(const sptr<ISubscribeListener>& listener)
{
    return Forward(
        SHARE_LOG_SITE, {"SwingSubscribe Enter", "SubscribeDevice Exit"},
        [&](ZelkonService& proxy) { return proxy.SwingSubscribe(listener); }, SilentlyIfNull(listener));
}

int32_t ShareClient::SwingUnSubscribe(const sptr<ISubscribeListener>& listener)
{
    return Forward(
        SHARE_LOG_SITE, {"UnSubscribe Enter", "UnSubscribe Exit"},
        [&](ZelkonService& proxy) { return proxy.SwingUnSubscribe(listener); }, SilentlyIfNull(listener));
}

int32_t ShareClient::RegisterReceiveListener(const sptr<ZelkonReceiveListener>& listener)
{
    return Forward(
        SHARE_LOG_SITE, {"RegisterReceiveListener Enter", "RegisterReceiveListener Exit"},
        [&](ZelkonService& proxy) { return proxy.RegisterReceiveListener(listener); }, SilentlyIfNull(listener));
}

int32_t ShareClient::UnRegisterReceiveListener(const sptr<ZelkonReceiveListener>& listener)
{
    return Forward(
        SHARE_LOG_SITE, {"UnRegisterReceiveListener Enter", "UnRegisterReceiveListener Exit"},
        [&](ZelkonService& proxy) { return proxy.UnRegisterReceiveListener(listener); }, SilentlyIfNull(listener));
}

// The two SendFile exit texts are crossed over, as the services' log readers know them.
sptr<ZelkonSender> ShareClient::SendFile(const TransmitParam& param, SendBean& sendBean, const std::string& packageName)
{
    return Forward(SHARE_LOG_SITE,
                   ClientTexts("send file with send bean enter!", "send file with preview info exit!")
                       .EnterAt(LOG_INFO)
                       .ExitBeforeCall(),
                   [&](ZelkonService& proxy) { return proxy.SendFile(param, sendBean, packageName); });
}

sptr<ZelkonSender> ShareClient::SendFile(const TransmitParam& param, const DataBean& dataBean,
                                         const std::string& packageName)
{
    return Forward(SHARE_LOG_SITE,
                   ClientTexts("send file with data bean enter!", "send file with send bean exit!").ExitBeforeCall(),
                   [&](ZelkonService& proxy) { return proxy.SendFile(param, dataBean, packageName); });
}

sptr<ZelkonSender> ShareClient::SendBytes(const TransmitParam& param, const BytesInfo& bytesInfo)
{
    return Forward(SHARE_LOG_SITE, ClientTexts("SendBytes Enter", "SendBytes Exit").ExitBeforeCall(),
                   [&](ZelkonService& proxy) { return proxy.SendBytes(param, bytesInfo); });
}

sptr<ZelkonSender> ShareClient::CommonShareSend(CommonShareObject& shareObject, const sptr<ITransmitCallback>& callback)
{
    return Forward(SHARE_LOG_SITE, {"CommonShareSend start", nullptr},
                   [&](ZelkonService& proxy) { return proxy.CommonShareSend(shareObject, callback); });
}

void ShareClient::Cancel(std::string networkId)
{
    Forward(SHARE_LOG_SITE, {"Cancel start", nullptr}, [&](ZelkonService& proxy) { proxy.Cancel(networkId); });
}

int32_t ShareClient::EnableDiscoveryPolicy(int32_t policy)
{
    return Forward(SHARE_LOG_SITE, {"EnableDiscoveryPolicy Enter", "EnableDiscoveryPolicy Exit"},
                   [&](ZelkonService& proxy) { return proxy.EnableDiscoveryPolicy(policy); });
}

int32_t ShareClient::SetAccountPermission(int32_t permission)
{
    return Forward(SHARE_LOG_SITE, {"SetAccountPermission Enter", "SetAccountPermission Exit"},
                   [&](ZelkonService& proxy) { return proxy.SetAccountPermission(permission); });
}

int32_t ShareClient::RegisterCommonReceiveListener(const sptr<ICommonReceiveListener>& listener)
{
    return Forward(SHARE_LOG_SITE, {"RegisterCommonReceiveListener Enter", "RegisterCommonReceiveListener Exit"},
                   [&](ZelkonService& proxy) { return proxy.RegisterCommonReceiveListener(listener); },
                   {listener == nullptr, "listener is null."});
}

int32_t ShareClient::UnRegisterCommonReceiveListener()
{
    return Forward(SHARE_LOG_SITE, {"UnRegisterCommonReceiveListener Enter", "UnRegisterCommonReceiveListener Exit"},
                   [](ZelkonService& proxy) { return proxy.UnRegisterCommonReceiveListener(); });
}

int32_t ShareClient::SuspendWifiScanning(const std::string& ifName)
{
    return Forward(SHARE_LOG_SITE, {"SuspendWifiScanning Enter", "SuspendWifiScanning Exit", LOG_INFO},
                   [&](ZelkonService& proxy) { return proxy.SuspendWifiScanning(ifName); });
}

int32_t ShareClient::ResumeWifiScanning(const std::string& ifName)
{
    return Forward(SHARE_LOG_SITE, {"ResumeWifiScanning Enter", "ResumeWifiScanning Exit", LOG_INFO},
                   [&](ZelkonService& proxy) { return proxy.ResumeWifiScanning(ifName); });
}

int32_t ShareClient::OnCollabDeviceFound(const sptr<ShareDevice>& device, const sptr<ISubscribeListener>& listener,
                                         uint32_t updateFlag)
{
    // Not forwarded through Forward: the device filter comes between the proxy copy and the call, and a skipped
    // device logs no exit line.
    SHARE_CLIENT_LOGI("OnCollabDeviceFound Enter");
    if (listener == nullptr) {
        SHARE_CLIENT_LOGE("ISubscribeListener nullptr.");
        return 0;
    }
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    // Devices without the flag speak the collaboration protocol only from nearby version 9 on.
    if (device == nullptr || (device->GetOHFlag() == 0 && device->GetNearbyVersion() <= LEGACY_NEARBY_VERSION)) {
        SHARE_CLIENT_LOGI("skip report for convert device failed or tirmo device nbver < 9");
        return 0;
    }
    int32_t result = proxy->OnCollabDeviceFound(device, listener, updateFlag);
    SHARE_CLIENT_LOGI("OnCollabDeviceFound Exit");
    return result;
}

int32_t ShareClient::ClearDiscovererFlag(const std::string& deviceId, uint32_t flag)
{
    return Forward(SHARE_LOG_SITE, {"ClearDiscovererFlag Enter", "ClearDiscovererFlag Exit", LOG_INFO},
                   [&](ZelkonService& proxy) { return proxy.ClearDiscovererFlag(deviceId, flag); });
}

int32_t ShareClient::GetPontalPublishInfo(std::string& publishInfo)
{
    return Forward(SHARE_LOG_SITE, {"GetPontalPublishInfo Enter", "GetPontalPublishInfo Exit", LOG_INFO},
                   [&](ZelkonService& proxy) { return proxy.GetPontalPublishInfo(publishInfo); });
}

int32_t ShareClient::ApplyUriPermission(const std::string& deviceId)
{
    return Forward(SHARE_LOG_SITE, {"ApplyUriPermission Enter", "ApplyUriPermission Exit", LOG_INFO},
                   [&](ZelkonService& proxy) { return proxy.ApplyUriPermission(deviceId); });
}

std::vector<PermanentDeviceInfo> ShareClient::GetPermanentDeviceList()
{
    return Forward(SHARE_LOG_SITE, {"GetPermanentDeviceList Enter", "GetPermanentDeviceList Exit", LOG_INFO},
                   [](ZelkonService& proxy) { return proxy.GetPermanentDeviceList(); });
}

int32_t ShareClient::RemovePermanentDeviceById(int32_t id)
{
    return Forward(SHARE_LOG_SITE, {"RemovePermanentDeviceById Enter", "RemovePermanentDeviceById Exit", LOG_INFO},
                   [&](ZelkonService& proxy) { return proxy.RemovePermanentDeviceById(id); });
}

} // namespace Zelkon
} // namespace OHOS
