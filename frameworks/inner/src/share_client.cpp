#include "share_client.h"

#include "share_common_constants.h"

#include <chrono>
#include <unistd.h>

#include "iservice_registry.h"
#include "share_log.h"

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

int32_t ShareClient::Publish(const sptr<IPublishListener>& listener)
{
    SHARE_CLIENT_LOGD("Publish Enter");
    if (listener == nullptr) {
        return 0;
    }
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->PublishDevice(listener);
    SHARE_CLIENT_LOGD("Publish Exit");
    return result;
}

int32_t ShareClient::UnPublish(int32_t publishId, const sptr<IPublishListener>& listener)
{
    SHARE_CLIENT_LOGD("UnPublish Enter");
    if (listener == nullptr) {
        return 0;
    }
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->UnPublishDevice(publishId, listener);
    SHARE_CLIENT_LOGD("UnPublish Exit");
    return result;
}

int32_t ShareClient::Subscribe(const sptr<ISubscribeListener>& listener)
{
    SHARE_CLIENT_LOGD("Subscribe Enter");
    if (listener == nullptr) {
        return 0;
    }
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->SubscribeDevice(listener);
    SHARE_CLIENT_LOGD("SubscribeDevice Exit");
    return result;
}

int32_t ShareClient::UnSubscribe(int32_t subscribeId, const sptr<ISubscribeListener>& listener)
{
    SHARE_CLIENT_LOGD("UnSubscribe Enter");
    if (listener == nullptr) {
        return 0;
    }
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->UnSubscribeDevice(subscribeId, listener);
    SHARE_CLIENT_LOGD("UnSubscribe Exit");
    return result;
}

int32_t ShareClient::ReportSwingEvent(int32_t gesture, int32_t x, int32_t y, std::string concurrentId)
{
    SHARE_CLIENT_LOGI("Enter");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->ReportSwingEvent(gesture, x, y, concurrentId);
    SHARE_CLIENT_LOGI("Exit");
    return result;
}

int32_t ShareClient::SwingSubscribe(const sptr<ISubscribeListener>& listener)
{
    SHARE_CLIENT_LOGD("SwingSubscribe Enter");
    if (listener == nullptr) {
        return 0;
    }
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->SwingSubscribe(listener);
    SHARE_CLIENT_LOGD("SubscribeDevice Exit");
    return result;
}

int32_t ShareClient::SwingUnSubscribe(const sptr<ISubscribeListener>& listener)
{
    SHARE_CLIENT_LOGD("UnSubscribe Enter");
    if (listener == nullptr) {
        return 0;
    }
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->SwingUnSubscribe(listener);
    SHARE_CLIENT_LOGD("UnSubscribe Exit");
    return result;
}

int32_t ShareClient::RegisterReceiveListener(const sptr<ZelkonReceiveListener>& listener)
{
    SHARE_CLIENT_LOGD("RegisterReceiveListener Enter");
    if (listener == nullptr) {
        return 0;
    }
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->RegisterReceiveListener(listener);
    SHARE_CLIENT_LOGD("RegisterReceiveListener Exit");
    return result;
}

int32_t ShareClient::UnRegisterReceiveListener(const sptr<ZelkonReceiveListener>& listener)
{
    SHARE_CLIENT_LOGD("UnRegisterReceiveListener Enter");
    if (listener == nullptr) {
        return 0;
    }
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->UnRegisterReceiveListener(listener);
    SHARE_CLIENT_LOGD("UnRegisterReceiveListener Exit");
    return result;
}

// The send operations log their exit before the call, and the two SendFile exit texts are crossed over: both as
// the services' log readers know them.
sptr<ZelkonSender> ShareClient::SendFile(const TransmitParam& param, SendBean& sendBean, const std::string& packageName)
{
    SHARE_CLIENT_LOGI("send file with send bean enter!");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return nullptr;
    }
    SHARE_CLIENT_LOGD("send file with preview info exit!");
    return proxy->SendFile(param, sendBean, packageName);
}

sptr<ZelkonSender> ShareClient::SendFile(const TransmitParam& param, const DataBean& dataBean,
                                         const std::string& packageName)
{
    SHARE_CLIENT_LOGD("send file with data bean enter!");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return nullptr;
    }
    SHARE_CLIENT_LOGD("send file with send bean exit!");
    return proxy->SendFile(param, dataBean, packageName);
}

sptr<ZelkonSender> ShareClient::SendBytes(const TransmitParam& param, const BytesInfo& bytesInfo)
{
    SHARE_CLIENT_LOGD("SendBytes Enter");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return nullptr;
    }
    SHARE_CLIENT_LOGD("SendBytes Exit");
    return proxy->SendBytes(param, bytesInfo);
}

sptr<ZelkonSender> ShareClient::CommonShareSend(CommonShareObject& shareObject, const sptr<ITransmitCallback>& callback)
{
    SHARE_CLIENT_LOGD("CommonShareSend start");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return nullptr;
    }
    return proxy->CommonShareSend(shareObject, callback);
}

void ShareClient::Cancel(std::string networkId)
{
    SHARE_CLIENT_LOGD("Cancel start");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return;
    }
    proxy->Cancel(networkId);
}

int32_t ShareClient::EnableDiscoveryPolicy(int32_t policy)
{
    SHARE_CLIENT_LOGD("EnableDiscoveryPolicy Enter");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->EnableDiscoveryPolicy(policy);
    SHARE_CLIENT_LOGD("EnableDiscoveryPolicy Exit");
    return result;
}

int32_t ShareClient::SetAccountPermission(int32_t permission)
{
    SHARE_CLIENT_LOGD("SetAccountPermission Enter");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->SetAccountPermission(permission);
    SHARE_CLIENT_LOGD("SetAccountPermission Exit");
    return result;
}

int32_t ShareClient::RegisterCommonReceiveListener(const sptr<ICommonReceiveListener>& listener)
{
    SHARE_CLIENT_LOGD("RegisterCommonReceiveListener Enter");
    if (listener == nullptr) {
        SHARE_CLIENT_LOGE("listener is null.");
        return 0;
    }
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->RegisterCommonReceiveListener(listener);
    SHARE_CLIENT_LOGD("RegisterCommonReceiveListener Exit");
    return result;
}

int32_t ShareClient::UnRegisterCommonReceiveListener()
{
    SHARE_CLIENT_LOGD("UnRegisterCommonReceiveListener Enter");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->UnRegisterCommonReceiveListener();
    SHARE_CLIENT_LOGD("UnRegisterCommonReceiveListener Exit");
    return result;
}

int32_t ShareClient::SuspendWifiScanning(const std::string& ifName)
{
    SHARE_CLIENT_LOGI("SuspendWifiScanning Enter");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->SuspendWifiScanning(ifName);
    SHARE_CLIENT_LOGI("SuspendWifiScanning Exit");
    return result;
}

int32_t ShareClient::ResumeWifiScanning(const std::string& ifName)
{
    SHARE_CLIENT_LOGI("ResumeWifiScanning Enter");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->ResumeWifiScanning(ifName);
    SHARE_CLIENT_LOGI("ResumeWifiScanning Exit");
    return result;
}

int32_t ShareClient::OnCollabDeviceFound(const sptr<ShareDevice>& device, const sptr<ISubscribeListener>& listener,
                                         uint32_t updateFlag)
{
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
    SHARE_CLIENT_LOGI("ClearDiscovererFlag Enter");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->ClearDiscovererFlag(deviceId, flag);
    SHARE_CLIENT_LOGI("ClearDiscovererFlag Exit");
    return result;
}

int32_t ShareClient::GetPontalPublishInfo(std::string& publishInfo)
{
    SHARE_CLIENT_LOGI("GetPontalPublishInfo Enter");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->GetPontalPublishInfo(publishInfo);
    SHARE_CLIENT_LOGI("GetPontalPublishInfo Exit");
    return result;
}

int32_t ShareClient::ApplyUriPermission(const std::string& deviceId)
{
    SHARE_CLIENT_LOGI("ApplyUriPermission Enter");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->ApplyUriPermission(deviceId);
    SHARE_CLIENT_LOGI("ApplyUriPermission Exit");
    return result;
}

std::vector<PermanentDeviceInfo> ShareClient::GetPermanentDeviceList()
{
    SHARE_CLIENT_LOGI("GetPermanentDeviceList Enter");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return {};
    }
    std::vector<PermanentDeviceInfo> devices = proxy->GetPermanentDeviceList();
    SHARE_CLIENT_LOGI("GetPermanentDeviceList Exit");
    return devices;
}

int32_t ShareClient::RemovePermanentDeviceById(int32_t id)
{
    SHARE_CLIENT_LOGI("RemovePermanentDeviceById Enter");
    sptr<ZelkonService> proxy = ConnectedProxy(SHARE_LOG_SITE);
    if (proxy == nullptr) {
        return 0;
    }
    int32_t result = proxy->RemovePermanentDeviceById(id);
    SHARE_CLIENT_LOGI("RemovePermanentDeviceById Exit");
    return result;
}

} // namespace Zelkon
} // namespace OHOS
