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
 * The remote interface of the share service (system ability 65569).
 */
#ifndef ZELKON_SERVICE_H
#define ZELKON_SERVICE_H

#include <cstdint>
#include <string>
#include <vector>

#include "bytes_info.h"
#include "common_share_object.h"
#include "data_bean.h"
#include "i_common_receive_listener.h"
#include "i_publish_listener.h"
#include "i_subscribe_listener.h"
#include "i_transmit_callback.h"
#include "iremote_broker.h"
#include "permanent_device_info.h"
#include "send_bean.h"
#include "share_device.h"
#include "transmit_param.h"
#include "zelkon_receive_listener.h"
#include "zelkon_sender.h"

namespace OHOS {
namespace Zelkon {

class ZelkonService : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"ohos.Zelkon.ZelkonService");

    virtual int32_t PublishDevice(const sptr<IPublishListener>& listener) = 0;
    virtual int32_t UnPublishDevice(int32_t publishId, const sptr<IPublishListener>& listener) = 0;
    virtual int32_t SubscribeDevice(const sptr<ISubscribeListener>& listener) = 0;
    virtual int32_t UnSubscribeDevice(int32_t subscribeId, const sptr<ISubscribeListener>& listener) = 0;
    virtual int32_t RegisterReceiveListener(const sptr<ZelkonReceiveListener>& listener) = 0;
    virtual int32_t UnRegisterReceiveListener(const sptr<ZelkonReceiveListener>& listener) = 0;
    virtual sptr<ZelkonSender> SendFile(const TransmitParam& param, SendBean& sendBean,
                                        const std::string& packageName) = 0;
    virtual sptr<ZelkonSender> SendFile(const TransmitParam& param, const DataBean& dataBean,
                                        const std::string& packageName) = 0;
    virtual sptr<ZelkonSender> SendBytes(const TransmitParam& param, const BytesInfo& bytesInfo) = 0;
    virtual sptr<ZelkonSender> CommonShareSend(CommonShareObject& shareObject,
                                               const sptr<ITransmitCallback>& callback) = 0;
    virtual void Cancel(std::string networkId) = 0;
    virtual int32_t EnableDiscoveryPolicy(int32_t policy) = 0;
    virtual int32_t SetAccountPermission(int32_t permission) = 0;
    virtual int32_t RegisterCommonReceiveListener(const sptr<ICommonReceiveListener>& listener) = 0;
    virtual int32_t UnRegisterCommonReceiveListener() = 0;
    virtual int32_t SuspendWifiScanning(const std::string& ifName) = 0;
    virtual int32_t ResumeWifiScanning(const std::string& ifName) = 0;
    virtual int32_t OnCollabDeviceFound(const sptr<ShareDevice>& device, const sptr<ISubscribeListener>& listener,
                                        uint32_t updateFlag) = 0;
    virtual int32_t ClearDiscovererFlag(const std::string& deviceId, uint32_t flag) = 0;
    virtual int32_t GetPontalPublishInfo(std::string& publishInfo) = 0;
    virtual int32_t ReportSwingEvent(int32_t gesture, int32_t x, int32_t y, std::string concurrentId) = 0;
    virtual int32_t SwingSubscribe(const sptr<ISubscribeListener>& listener) = 0;
    virtual int32_t SwingUnSubscribe(const sptr<ISubscribeListener>& listener) = 0;
    virtual int32_t ApplyUriPermission(const std::string& deviceId) = 0;
    virtual std::vector<PermanentDeviceInfo> GetPermanentDeviceList() = 0;
    virtual int32_t RemovePermanentDeviceById(int32_t id) = 0;
};

} // namespace Zelkon
} // namespace OHOS

#endif // ZELKON_SERVICE_H
