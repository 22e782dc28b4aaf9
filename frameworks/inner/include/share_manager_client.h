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

    bool SetShareEnable(int32_t type, int32_t state, bool enable);
    bool SetShareEnableWithConfirm(int32_t type, int32_t state, bool enable, bool confirm);
    bool IsEnabled();
    int32_t GetEnableState();
    bool IsFocusPidsRegisterSwing();
    bool RegisterWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback);
    bool UnRegisterWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback);
    bool StartDiscovery();
    bool StopDiscovery();
    bool StartConnect();
    bool StopConnect();
    std::vector<ShareDeviceInfo> GetAllUserList();
    std::vector<ShareDeviceInfo> GetSendingUserList();
    bool PrepareSend(const ShareDeviceInfo& deviceInfo);
    bool Send(const ShareDeviceInfo& deviceInfo, SendBean& sendBean, const std::string& packageName);
    bool SendFile(const ShareDeviceInfo& deviceInfo, const DataBean& dataBean, const std::string& packageName);
    bool SendBytes(const ShareDeviceInfo& deviceInfo, const BytesInfo& bytesInfo);
    bool Cancel(const ShareDeviceInfo& deviceInfo);
    bool RegisterSenderActionCallback(const sptr<ISenderActionCallback>& callback);
    bool UnRegisterSenderActionCallback(const sptr<ISenderActionCallback>& callback);
    sptr<ZelkonReceiver> GetReceiverActionCallback();
    std::string GetPreviewData();
    ShareAccountInfo GetAccountInfo();
    bool SetShareAccountPermission(int32_t permission);
    bool RegisterVxShareApiWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback);
    bool UnRegisterVxShareApiWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback);
    bool RegisterVxShareApiEvent(const std::string& event);
    bool UnRegisterVxShareApiEvent(const std::string& event);
    bool NotifyInfo(const ShareDeviceInfo& deviceInfo, int32_t info);
    bool ApplyUriPermission(const std::string& packageName);
    bool SwingConfirm(const ShareDeviceInfo& deviceInfo, int32_t confirm);
    bool IsAppForeground(const std::string& packageName);
    bool RegisterShareApiCallback(const sptr<ZelkonApiCallback>& callback);
    bool UnregisterShareApiCallback(const sptr<ZelkonApiCallback>& callback);
    bool RegisterShareEventCallback(int32_t eventType, int32_t eventId);
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
