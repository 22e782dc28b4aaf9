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
 * The process-wide entry to the share manager service: looks the running service up on first use, keeps its
 * proxy, notices its death, and forwards every operation. Including this header gives a caller every type it needs.
 */
#ifndef SHARE_MANAGER_CLIENT_H
#define SHARE_MANAGER_CLIENT_H

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <type_traits>
#include <vector>

#include "client_death_recipient.h"
#include "i_widget_service.h"
#include "iremote_object.h"
#include "share_manager_died_callback.h"
#include "singleton.h"

namespace OHOS {
namespace Zelkon {

struct ClientTexts;
struct LogSite;
struct Refusal;

class ShareManagerClient : public DelayedRefSingleton<ShareManagerClient> {
    DECLARE_DELAYED_REF_SINGLETON(ShareManagerClient)

public:
    // Told by the platform when the share manager service's remote object dies.
    class ShareManagerDeathRecipient : public ClientDeathRecipient<ShareManagerClient, ShareManagerDiedCallback,
                                                                   &ShareManagerDiedCallback::OnShareManagerDied> {
    public:
        void SetDiedCallback(const std::weak_ptr<ShareManagerDiedCallback>& callback) { SetCallback(callback); }
    };

    // Every operation below answers a failure with its neutral result (false, 0, null, empty) and logs why.
    // True when the service set the switch; false when it refused or cannot be reached.
    bool SetShareEnable(int32_t type, int32_t state, bool enable);
    // True when the service set the switch; false when it refused or cannot be reached.
    bool SetShareEnableWithConfirm(int32_t type, int32_t state, bool enable, bool confirm);
    // True when the service says sharing is on; false when it is off or the service cannot be reached.
    bool IsEnabled();
    // The state the service reports; 0 when it cannot be reached.
    int32_t GetEnableState();
    // The service's answer; false also when it cannot be reached.
    bool IsFocusPidsRegisterSwing();
    // True when the service took the callback; false when it refused, the callback is null, or it cannot be reached.
    bool RegisterWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback);
    // True when the service dropped the callback; false when it refused, the callback is null, or it cannot be reached.
    bool UnRegisterWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback);
    // True when the service started discovering; false when it refused or cannot be reached.
    bool StartDiscovery();
    // True when the service stopped discovering; false when it refused or cannot be reached.
    bool StopDiscovery();
    // True when the service started connecting; false when it refused or cannot be reached.
    bool StartConnect();
    // True when the service stopped connecting; false when it refused or cannot be reached.
    bool StopConnect();
    // The users nearby; empty when there are none, when the service cannot be reached, or when the reply counts more
    // than 1000 or holds a malformed record (all or nothing).
    std::vector<ShareDeviceInfo> GetAllUserList();
    // The users being sent to; empty on the failures of GetAllUserList.
    std::vector<ShareDeviceInfo> GetSendingUserList();
    // True when the service prepared the device; false when it refused or cannot be reached.
    bool PrepareSend(const ShareDeviceInfo& deviceInfo);
    // True when the service started the transfer; false when it refused or cannot be reached.
    bool Send(const ShareDeviceInfo& deviceInfo, SendBean& sendBean, const std::string& packageName);
    // True when the service started the transfer; false when it refused or cannot be reached.
    bool SendFile(const ShareDeviceInfo& deviceInfo, const DataBean& dataBean, const std::string& packageName);
    // True when the service started the transfer; false when it refused or cannot be reached.
    bool SendBytes(const ShareDeviceInfo& deviceInfo, const BytesInfo& bytesInfo);
    // True when the service cancelled the transfer; false when it refused or cannot be reached.
    bool Cancel(const ShareDeviceInfo& deviceInfo);
    // True when the service took the callback; false when it refused, the callback is null, or it cannot be reached.
    bool RegisterSenderActionCallback(const sptr<ISenderActionCallback>& callback);
    // True when the service dropped the callback; false when it refused, the callback is null, or it cannot be reached.
    bool UnRegisterSenderActionCallback(const sptr<ISenderActionCallback>& callback);
    // The receiver callback; null when the service cannot be reached or sent no object, or when no proxy for
    // ZelkonReceiver is registered in this process.
    sptr<ZelkonReceiver> GetReceiverActionCallback();
    // The preview text; empty when the service cannot be reached or its big string is refused (above 5 MiB or
    // malformed).
    std::string GetPreviewData();
    // The account; the record as constructed (callingUid -1) when the service cannot be reached, and the fields
    // read so far when the reply is malformed.
    ShareAccountInfo GetAccountInfo();
    // True when the service accepted the permission; false when it refused or cannot be reached.
    bool SetShareAccountPermission(int32_t permission);
    // True when the service took the callback; false when it refused, the callback is null, or it cannot be reached.
    bool RegisterVxShareApiWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback);
    // True when the service dropped the callback; false when it refused, the callback is null, or it cannot be reached.
    bool UnRegisterVxShareApiWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback);
    // True when the service took the event; false when it refused or cannot be reached.
    bool RegisterVxShareApiEvent(const std::string& event);
    // True when the service dropped the event; false when it refused or cannot be reached.
    bool UnRegisterVxShareApiEvent(const std::string& event);
    // True when the service took the notice; false when it refused or cannot be reached.
    bool NotifyInfo(const ShareDeviceInfo& deviceInfo, int32_t info);
    // True when the service granted the permission to the package; false when it refused or cannot be reached.
    bool ApplyUriPermission(const std::string& packageName);
    // True when the service took the confirmation; false when it refused or cannot be reached.
    bool SwingConfirm(const ShareDeviceInfo& deviceInfo, int32_t confirm);
    // True when the service says the package is in the foreground; false when it is not or cannot be reached.
    bool IsAppForeground(const std::string& packageName);
    // True when the service took the callback; false when it refused, the callback is null, or it cannot be reached.
    bool RegisterShareApiCallback(const sptr<ZelkonApiCallback>& callback);
    // True when the service dropped the callback; false when it refused, the callback is null, or it cannot be reached.
    bool UnregisterShareApiCallback(const sptr<ZelkonApiCallback>& callback);
    // True when the service took the event; false when it refused or cannot be reached.
    bool RegisterShareEventCallback(int32_t eventType, int32_t eventId);
    // True when the service dropped the event; false when it refused or cannot be reached.
    bool UnregisterShareEventCallback(int32_t eventType, int32_t eventId);

    // 0 when the proxy is there (or the lookup succeeded), -1 when the service is not running or cannot be watched.
    int32_t Connect();
    // Connect, then a copy of the proxy; null when the service cannot be reached.
    sptr<IWidgetService> GetShareManagerSrvProxy();
    // Drops the proxy when remote is the object it talks to; a stale notice changes nothing.
    void ResetProxy(const wptr<IRemoteObject>& remote);
    // Held weakly: the caller keeps the callback alive. Null empties the slot.
    void RegisterDiedCallback(const std::shared_ptr<ShareManagerDiedCallback>& callback);

private:
    // GetShareManagerSrvProxy, then the operation's no-proxy line at its site when there is none.
    sptr<IWidgetService> ConnectedProxy(const LogSite& site, const ClientTexts& texts);
    // The forwarding body that both clients share, over this client's connection; without a refusal, nothing
    // refuses the call before it connects (two overloads: clang rejects a default argument of an incomplete type).
    template <typename Call>
    std::invoke_result_t<Call, IWidgetService&> Forward(const LogSite& site, const ClientTexts& texts, Call&& call);
    template <typename Call>
    std::invoke_result_t<Call, IWidgetService&> Forward(const LogSite& site, const ClientTexts& texts, Call&& call,
                                                        const Refusal& refusal);

    sptr<IWidgetService> CopyProxy();

    std::mutex mutex_;
    sptr<IWidgetService> shareManagerSrvProxy_;
    sptr<ShareManagerDeathRecipient> deathRecipient_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_MANAGER_CLIENT_H
