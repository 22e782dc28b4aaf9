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
 * The proxy of the share manager service: one synchronous request per operation, written with the common
 * request pattern.
 */
#ifndef SHARE_MANAGER_SRV_PROXY_H
#define SHARE_MANAGER_SRV_PROXY_H

#include <cstdint>
#include <string>
#include <vector>

#include "i_widget_service.h"
#include "iremote_proxy.h"
#include "message_parcel.h"
#include "proxy_request.h"
#include "widget_service_code.h"

namespace OHOS {
namespace Zelkon {

class ShareManagerSrvProxy : public IRemoteProxy<IWidgetService> {
public:
    explicit ShareManagerSrvProxy(const sptr<IRemoteObject>& remote) : IRemoteProxy<IWidgetService>(remote) {}
    ~ShareManagerSrvProxy() override = default;

    bool SetShareEnable(int32_t type, int32_t state, bool enable) override;
    bool SetShareEnableWithConfirm(int32_t type, int32_t state, bool enable, bool confirm) override;
    bool IsEnabled() override;
    int32_t GetEnableState() override;
    bool IsFocusPidsRegisterSwing() override;
    bool RegisterWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback) override;
    bool UnRegisterWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback) override;
    bool StartDiscovery() override;
    bool StopDiscovery() override;
    bool StartConnect() override;
    bool StopConnect() override;
    std::vector<ShareDeviceInfo> GetAllUserList() override;
    std::vector<ShareDeviceInfo> GetSendingUserList() override;
    bool PrepareSend(const ShareDeviceInfo& deviceInfo) override;
    bool Send(const ShareDeviceInfo& deviceInfo, SendBean& sendBean, const std::string& packageName) override;
    bool SendFile(const ShareDeviceInfo& deviceInfo, const DataBean& dataBean, const std::string& packageName) override;
    bool SendBytes(const ShareDeviceInfo& deviceInfo, const BytesInfo& bytesInfo) override;
    bool Cancel(const ShareDeviceInfo& deviceInfo) override;
    bool RegisterSenderActionCallback(const sptr<ISenderActionCallback>& callback) override;
    bool UnRegisterSenderActionCallback(const sptr<ISenderActionCallback>& callback) override;
    sptr<ZelkonReceiver> GetReceiverActionCallback() override;
    std::string GetPreviewData() override;
    ShareAccountInfo GetAccountInfo() override;
    bool SetShareAccountPermission(int32_t permission) override;
    bool RegisterVxShareApiWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback) override;
    bool UnRegisterVxShareApiWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback) override;
    bool RegisterVxShareApiEvent(const std::string& event) override;
    bool UnRegisterVxShareApiEvent(const std::string& event) override;
    bool NotifyInfo(const ShareDeviceInfo& deviceInfo, int32_t info) override;
    bool ApplyUriPermission(const std::string& packageName) override;
    bool SwingConfirm(const ShareDeviceInfo& deviceInfo, int32_t confirm) override;
    bool IsAppForeground(const std::string& packageName) override;
    bool RegisterShareApiCallback(const sptr<ZelkonApiCallback>& callback) override;
    bool UnregisterShareApiCallback(const sptr<ZelkonApiCallback>& callback) override;
    bool RegisterShareEventCallback(int32_t eventType, int32_t eventId) override;
    bool UnregisterShareEventCallback(int32_t eventType, int32_t eventId) override;

    // Reads one big string (size word, then a raw block ending in a zero byte) into out; out is left as it was
    // when the size word announces an empty string or the read fails.
    bool ReadBigString(MessageParcel& parcel, std::string& out) const;

    // Reads a list reply (a count, then that many records): all of them or none, where the share service's
    // permanent device list keeps the records read before a malformed one. Failures are logged at the operation's
    // site, named with the prefix when the operation names itself.
    static bool ReadDeviceList(MessageParcel& reply, std::vector<ShareDeviceInfo>& devices, const LogSite& site,
                               const char* prefix);

private:
    // Opens a request: remote check and interface token.
    bool Open(ProxyRequest& request);

    const uint32_t maxBigStringSize_ = 0x500000;
    const uint32_t bigStringTerminatorSize_ = 1;

    static BrokerDelegator<ShareManagerSrvProxy> delegator_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_MANAGER_SRV_PROXY_H
