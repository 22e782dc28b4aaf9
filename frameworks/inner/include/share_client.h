/*
 * The process-wide entry to the share service: loads it on demand, waits for it, keeps its proxy, notices its
 * death, and forwards every operation. Including this header gives a caller every type it needs.
 */
#ifndef SHARE_CLIENT_H
#define SHARE_CLIENT_H

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <type_traits>
#include <vector>

#include "client_death_recipient.h"
#include "iremote_object.h"
#include "share_sa_died_callback.h"
#include "singleton.h"
#include "zelkon_service.h"

namespace OHOS {
namespace Zelkon {

inline constexpr int32_t SHARE_SERVICE_SA_ID = 65569;

struct ClientTexts;
struct LogSite;
struct Refusal;
class ZelkonServiceLoadCallback;

class ShareClient : public DelayedRefSingleton<ShareClient> {
    DECLARE_DELAYED_REF_SINGLETON(ShareClient)

public:
    // Told by the platform when the share service's remote object dies.
    class ShareDeathRecipient
        : public ClientDeathRecipient<ShareClient, ShareSaDiedCallback, &ShareSaDiedCallback::OnShareSaDied> {
    public:
        void SetSaDiedCallback(const std::weak_ptr<ShareSaDiedCallback>& callback) { SetCallback(callback); }
    };

    int32_t Publish(const sptr<IPublishListener>& listener);
    int32_t UnPublish(int32_t publishId, const sptr<IPublishListener>& listener);
    int32_t Subscribe(const sptr<ISubscribeListener>& listener);
    int32_t UnSubscribe(int32_t subscribeId, const sptr<ISubscribeListener>& listener);
    int32_t ReportSwingEvent(int32_t gesture, int32_t x, int32_t y, std::string concurrentId);
    int32_t SwingSubscribe(const sptr<ISubscribeListener>& listener);
    int32_t SwingUnSubscribe(const sptr<ISubscribeListener>& listener);
    int32_t RegisterReceiveListener(const sptr<ZelkonReceiveListener>& listener);
    int32_t UnRegisterReceiveListener(const sptr<ZelkonReceiveListener>& listener);
    sptr<ZelkonSender> SendFile(const TransmitParam& param, SendBean& sendBean, const std::string& packageName);
    sptr<ZelkonSender> SendFile(const TransmitParam& param, const DataBean& dataBean, const std::string& packageName);
    sptr<ZelkonSender> SendBytes(const TransmitParam& param, const BytesInfo& bytesInfo);
    sptr<ZelkonSender> CommonShareSend(CommonShareObject& shareObject, const sptr<ITransmitCallback>& callback);
    void Cancel(std::string networkId);
    int32_t EnableDiscoveryPolicy(int32_t policy);
    int32_t SetAccountPermission(int32_t permission);
    int32_t RegisterCommonReceiveListener(const sptr<ICommonReceiveListener>& listener);
    int32_t UnRegisterCommonReceiveListener();
    int32_t SuspendWifiScanning(const std::string& ifName);
    int32_t ResumeWifiScanning(const std::string& ifName);
    int32_t OnCollabDeviceFound(const sptr<ShareDevice>& device, const sptr<ISubscribeListener>& listener,
                                uint32_t updateFlag);
    int32_t ClearDiscovererFlag(const std::string& deviceId, uint32_t flag);
    int32_t GetPontalPublishInfo(std::string& publishInfo);
    int32_t ApplyUriPermission(const std::string& deviceId);
    std::vector<PermanentDeviceInfo> GetPermanentDeviceList();
    int32_t RemovePermanentDeviceById(int32_t id);

    // 0 when the proxy is there on return, -1 after waiting CONNECT_TIMEOUT for it in vain.
    int32_t Connect();
    // Connect, retried four times a second apart.
    bool ConnectWithRetry();
    bool LoadShareSa();
    void SetShareSa(const sptr<IRemoteObject>& remoteObject);
    void SetLoadShareSaFailed();
    void ResetProxy(const wptr<IRemoteObject>& remote);
    void RegisterDiedCallback(const std::shared_ptr<ShareSaDiedCallback>& callback);

    static constexpr std::chrono::milliseconds CONNECT_TIMEOUT{200};
    static constexpr int CONNECT_RETRIES = 4;
    // Without the OH flag, devices up to this nearby version cannot collaborate.
    static constexpr int32_t LEGACY_NEARBY_VERSION = 8;

private:
    // Connect, then a copy of the proxy taken under the lock; null after logging the failure at the caller's site.
    sptr<ZelkonService> ConnectedProxy(const LogSite& site);
    // The forwarding body that both clients share, over this client's connection; without a refusal, nothing
    // refuses the call before it connects (two overloads: clang rejects a default argument of an incomplete type).
    template <typename Call>
    std::invoke_result_t<Call, ZelkonService&> Forward(const LogSite& site, const ClientTexts& texts, Call&& call);
    template <typename Call>
    std::invoke_result_t<Call, ZelkonService&> Forward(const LogSite& site, const ClientTexts& texts, Call&& call,
                                                       const Refusal& refusal);

    std::mutex mutex_;
    std::condition_variable proxyReady_;
    sptr<ZelkonService> shareProxy_;
    sptr<ShareDeathRecipient> deathRecipient_;
    sptr<ZelkonServiceLoadCallback> loadCallback_;
    bool loadSaFailed_ = false;
    bool saDied_ = false;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_CLIENT_H
