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
 * The remote interface of the share manager service (system ability 65570).
 */
#ifndef I_WIDGET_SERVICE_H
#define I_WIDGET_SERVICE_H

#include <cstdint>
#include <string>
#include <vector>

#include "bytes_info.h"
#include "data_bean.h"
#include "i_sender_action_callback.h"
#include "iremote_broker.h"
#include "send_bean.h"
#include "share_account_info.h"
#include "share_device_info.h"
#include "zelkon_api_callback.h"
#include "zelkon_receiver.h"
#include "zelkon_widget_service_callback.h"

namespace OHOS {
namespace Zelkon {

inline constexpr int32_t SHARE_MANAGER_SA_ID = 65570;

class IWidgetService : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"ohos.Zelkon.IWidgetService");

    virtual bool SetShareEnable(int32_t type, int32_t state, bool enable) = 0;
    virtual bool SetShareEnableWithConfirm(int32_t type, int32_t state, bool enable, bool confirm) = 0;
    virtual bool IsEnabled() = 0;
    virtual int32_t GetEnableState() = 0;
    virtual bool IsFocusPidsRegisterSwing() = 0;
    virtual bool RegisterWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback) = 0;
    virtual bool UnRegisterWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback) = 0;
    virtual bool StartDiscovery() = 0;
    virtual bool StopDiscovery() = 0;
    virtual bool StartConnect() = 0;
    virtual bool StopConnect() = 0;
    virtual std::vector<ShareDeviceInfo> GetAllUserList() = 0;
    virtual std::vector<ShareDeviceInfo> GetSendingUserList() = 0;
    virtual bool PrepareSend(const ShareDeviceInfo& deviceInfo) = 0;
    virtual bool Send(const ShareDeviceInfo& deviceInfo, SendBean& sendBean, const std::string& packageName) = 0;
    virtual bool SendFile(const ShareDeviceInfo& deviceInfo, const DataBean& dataBean,
                          const std::string& packageName) = 0;
    virtual bool SendBytes(const ShareDeviceInfo& deviceInfo, const BytesInfo& bytesInfo) = 0;
    virtual bool Cancel(const ShareDeviceInfo& deviceInfo) = 0;
    virtual bool RegisterSenderActionCallback(const sptr<ISenderActionCallback>& callback) = 0;
    virtual bool UnRegisterSenderActionCallback(const sptr<ISenderActionCallback>& callback) = 0;
    virtual sptr<ZelkonReceiver> GetReceiverActionCallback() = 0;
    virtual std::string GetPreviewData() = 0;
    virtual ShareAccountInfo GetAccountInfo() = 0;
    virtual bool SetShareAccountPermission(int32_t permission) = 0;
    virtual bool RegisterVxShareApiWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback) = 0;
    virtual bool UnRegisterVxShareApiWidgetCallback(const sptr<ZelkonWidgetServiceCallback>& callback) = 0;
    virtual bool RegisterVxShareApiEvent(const std::string& event) = 0;
    virtual bool UnRegisterVxShareApiEvent(const std::string& event) = 0;
    virtual bool NotifyInfo(const ShareDeviceInfo& deviceInfo, int32_t info) = 0;
    virtual bool ApplyUriPermission(const std::string& packageName) = 0;
    virtual bool SwingConfirm(const ShareDeviceInfo& deviceInfo, int32_t confirm) = 0;
    virtual bool IsAppForeground(const std::string& packageName) = 0;
    virtual bool RegisterShareApiCallback(const sptr<ZelkonApiCallback>& callback) = 0;
    virtual bool UnregisterShareApiCallback(const sptr<ZelkonApiCallback>& callback) = 0;
    virtual bool RegisterShareEventCallback(int32_t eventType, int32_t eventId) = 0;
    virtual bool UnregisterShareEventCallback(int32_t eventType, int32_t eventId) = 0;
};

} // namespace Zelkon
} // namespace OHOS

#endif // I_WIDGET_SERVICE_H
