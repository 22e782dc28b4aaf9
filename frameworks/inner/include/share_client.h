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

    // Every operation below answers a failure with its neutral result (0, null, empty) and logs why.
    // 1 when the service took the listener; 0 when it refused, the listener is null, or it cannot be reached.
    int32_t Publish(const sptr<IPublishListener>& listener);
    // 1 when the service dropped the listener; 0 when it refused, the listener is null, or it cannot be reached.
    int32_t UnPublish(int32_t publishId, const sptr<IPublishListener>& listener);
    // 1 when the service took the listener; 0 when it refused, the listener is null, or it cannot be reached.
    int32_t Subscribe(const sptr<ISubscribeListener>& listener);
    // 1 when the service dropped the listener; 0 when it refused, the listener is null, or it cannot be reached.
    int32_t UnSubscribe(int32_t subscribeId, const sptr<ISubscribeListener>& listener);
    // 1 when the service accepted the event; 0 when it refused it or cannot be reached.
    int32_t ReportSwingEvent(int32_t gesture, int32_t x, int32_t y, std::string concurrentId);
    // 1 when the service took the listener; 0 when it refused, the listener is null, or it cannot be reached.
    int32_t SwingSubscribe(const sptr<ISubscribeListener>& listener);
    // 1 when the service dropped the listener; 0 when it refused, the listener is null, or it cannot be reached.
    int32_t SwingUnSubscribe(const sptr<ISubscribeListener>& listener);
    // 1 when the service took the listener; 0 when it refused, the listener is null, or it cannot be reached.
    int32_t RegisterReceiveListener(const sptr<ZelkonReceiveListener>& listener);
    // 1 when the service dropped the listener; 0 when it refused, the listener is null, or it cannot be reached.
    int32_t UnRegisterReceiveListener(const sptr<ZelkonReceiveListener>& listener);
    // The sender of the started transfer; null when the service refused it, when the request could not be written
    // or sent, when the service cannot be reached, or when no proxy for ZelkonSender is registered in this process.
    // The transfer's callback must not be null.
    sptr<ZelkonSender> SendFile(const TransmitParam& param, SendBean& sendBean, const std::string& packageName);
    // The sender of the transfer of the open file; null on the failures of the SendFile above.
    sptr<ZelkonSender> SendFile(const TransmitParam& param, const DataBean& dataBean, const std::string& packageName);
    // The sender of the transfer of the bytes; null on the failures of SendFile.
    sptr<ZelkonSender> SendBytes(const TransmitParam& param, const BytesInfo& bytesInfo);
    // The sender of the share; null on the failures of SendFile. The callback must not be null.
    sptr<ZelkonSender> CommonShareSend(CommonShareObject& shareObject, const sptr<ITransmitCallback>& callback);
    // Returns nothing: a failure shows only in the log.
    void Cancel(std::string networkId);
    // 1 when the service accepted the policy; 0 when it refused it or cannot be reached.
    int32_t EnableDiscoveryPolicy(int32_t policy);
    // 1 when the service accepted the permission; 0 when it refused it or cannot be reached.
    int32_t SetAccountPermission(int32_t permission);
    // 1 when the service took the listener; 0 when it refused, the listener is null, or it cannot be reached.
    int32_t RegisterCommonReceiveListener(const sptr<ICommonReceiveListener>& listener);
    // 1 when the service dropped its common receive listener; 0 when it refused or cannot be reached.
    int32_t UnRegisterCommonReceiveListener();
    // 1 when the service suspended scanning on the interface; 0 when it refused or cannot be reached.
    int32_t SuspendWifiScanning(const std::string& ifName);
    // 1 when the service resumed scanning on the interface; 0 when it refused or cannot be reached.
    int32_t ResumeWifiScanning(const std::string& ifName);
    // 1 when the service took the device; 0 when it refused it, when the listener or the device is null, when the
    // device cannot collaborate (OH flag 0 and nearby version LEGACY_NEARBY_VERSION or less: nothing is sent), or
    // when the service cannot be reached.
    int32_t OnCollabDeviceFound(const sptr<ShareDevice>& device, const sptr<ISubscribeListener>& listener,
                                uint32_t updateFlag);
    // 1 when the service cleared the flag; 0 when it refused or cannot be reached.
    int32_t ClearDiscovererFlag(const std::string& deviceId, uint32_t flag);
    // 1 when the service answered true. publishInfo takes the service's text as soon as it answered, whatever the
    // result; it stays untouched, and the result is 0, when the service cannot be reached or the request fails.
    int32_t GetPontalPublishInfo(std::string& publishInfo);
    // 1 when the service granted the permission for the device; 0 when it refused or cannot be reached.
    int32_t ApplyUriPermission(const std::string& deviceId);
    // The service's permanent devices; empty when it has none, when it cannot be reached, or when the reply counts
    // more than 1000; the devices read before a malformed one.
    std::vector<PermanentDeviceInfo> GetPermanentDeviceList();
    // 1 when the service removed the device; 0 when it has no such device, refused, or cannot be reached.
    int32_t RemovePermanentDeviceById(int32_t id);

    // 0 when the proxy is there on return, -1 after waiting CONNECT_TIMEOUT for it in vain.
    int32_t Connect();
    // Connect, retried four times a second apart.
    bool ConnectWithRetry();
    // True when the system ability manager accepted the load request; false when it is missing or refused it.
    bool LoadShareSa();
    // The loaded service's object: kept as the proxy unless its death cannot be watched.
    void SetShareSa(const sptr<IRemoteObject>& remoteObject);
    // The next Connect without a proxy asks for a new load.
    void SetLoadShareSaFailed();
    // Drops the proxy when remote is the object it talks to; a stale notice changes nothing.
    void ResetProxy(const wptr<IRemoteObject>& remote);
    // Held weakly: the caller keeps the callback alive. Null empties the slot.
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
