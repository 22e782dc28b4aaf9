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
 * The client side of the share service: one synchronous request per operation.
 */
#ifndef SHARE_SRV_PROXY_H
#define SHARE_SRV_PROXY_H

#include <string>
#include <vector>

#include "iremote_proxy.h"
#include "message_parcel.h"
#include "proxy_request.h"
#include "zelkon_service.h"
#include "zelkon_service_code.h"

namespace OHOS {
namespace Zelkon {

class ShareSrvProxy : public IRemoteProxy<ZelkonService> {
public:
    explicit ShareSrvProxy(const sptr<IRemoteObject>& remote) : IRemoteProxy<ZelkonService>(remote) {}
    ~ShareSrvProxy() override = default;

    int32_t PublishDevice(const sptr<IPublishListener>& listener) override;
    int32_t UnPublishDevice(int32_t publishId, const sptr<IPublishListener>& listener) override;
    int32_t SubscribeDevice(const sptr<ISubscribeListener>& listener) override;
    int32_t UnSubscribeDevice(int32_t subscribeId, const sptr<ISubscribeListener>& listener) override;
    int32_t RegisterReceiveListener(const sptr<ZelkonReceiveListener>& listener) override;
    int32_t UnRegisterReceiveListener(const sptr<ZelkonReceiveListener>& listener) override;
    sptr<ZelkonSender> SendFile(const TransmitParam& param, SendBean& sendBean,
                                const std::string& packageName) override;
    sptr<ZelkonSender> SendFile(const TransmitParam& param, const DataBean& dataBean,
                                const std::string& packageName) override;
    sptr<ZelkonSender> SendBytes(const TransmitParam& param, const BytesInfo& bytesInfo) override;
    sptr<ZelkonSender> CommonShareSend(CommonShareObject& shareObject,
                                       const sptr<ITransmitCallback>& callback) override;
    void Cancel(std::string networkId) override;
    int32_t EnableDiscoveryPolicy(int32_t policy) override;
    int32_t SetAccountPermission(int32_t permission) override;
    int32_t RegisterCommonReceiveListener(const sptr<ICommonReceiveListener>& listener) override;
    int32_t UnRegisterCommonReceiveListener() override;
    int32_t SuspendWifiScanning(const std::string& ifName) override;
    int32_t ResumeWifiScanning(const std::string& ifName) override;
    int32_t OnCollabDeviceFound(const sptr<ShareDevice>& device, const sptr<ISubscribeListener>& listener,
                                uint32_t updateFlag) override;
    int32_t ClearDiscovererFlag(const std::string& deviceId, uint32_t flag) override;
    int32_t GetPontalPublishInfo(std::string& publishInfo) override;
    int32_t ReportSwingEvent(int32_t gesture, int32_t x, int32_t y, std::string concurrentId) override;
    int32_t SwingSubscribe(const sptr<ISubscribeListener>& listener) override;
    int32_t SwingUnSubscribe(const sptr<ISubscribeListener>& listener) override;
    int32_t ApplyUriPermission(const std::string& deviceId) override;
    std::vector<PermanentDeviceInfo> GetPermanentDeviceList() override;
    int32_t RemovePermanentDeviceById(int32_t id) override;

    // The transfer parameters of both SendFile requests, with the package name between callback and event type.
    bool WriteParcelForSend(const TransmitParam& param, const std::string& packageName, MessageParcel& data);

    static constexpr size_t COMMON_SHARE_CAPACITY = 4194304;

private:
    // Opens a request: remote check and interface token.
    bool Open(ProxyRequest& request);
    // Both SendFile requests: transfer parameters, then the record through its own WriteToParcel.
    template <typename Bean>
    sptr<ZelkonSender> SendFileRequest(ProxyRequest& request, ZelkonServiceCode code, const TransmitParam& param,
                                       const Bean& bean, const std::string& packageName, const char* beanFailure);
    // The sender object of a transfer reply, typed through the broker registry; null logs "shareSender is nullptr.".
    static sptr<ZelkonSender> ReadSender(ProxyRequest& request);

    static BrokerDelegator<ShareSrvProxy> delegator_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_SRV_PROXY_H
