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

#include "share_srv_proxy.h"

#include "share_common_constants.h"

#include "zelkon_service_code.h"

namespace OHOS {
namespace Zelkon {

BrokerDelegator<ShareSrvProxy> ShareSrvProxy::delegator_;

namespace {
const RequestLabels PROXY_LABELS{SHARE_PROXY_LABEL, SHARE_PROXY_LABEL};
// The two SendFile requests log their enter and exit lines under the client's tag, their failures under the proxy's.
const RequestLabels SEND_FILE_LABELS{SHARE_PROXY_LABEL, SHARE_CLIENT_LABEL};
const char* const WRITE_LISTENER_FAILED = "Write RemoteObject failed";
const char* const WRITE_CALLBACK_FAILED = "Write transCallback failed";
using Code = ZelkonServiceCode;

// The fields of a transfer's parameters that both transfer layouts carry, with the same texts, logged at the site of
// the writer.
bool WriteDestination(MessageParcel& data, const TransmitParam& param, const LogSite& site)
{
    return LoggedCheck(data.WriteString(param.deviceId), SHARE_PROXY_LABEL, site, "Write deviceId failed.") &&
           LoggedCheck(data.WriteInt32(param.timeout), SHARE_PROXY_LABEL, site, "Write timeout failed.");
}

bool WriteTransCallback(MessageParcel& data, const TransmitParam& param, const LogSite& site)
{
    return LoggedCheck(data.WriteRemoteObject(param.transCallback->AsObject()), SHARE_PROXY_LABEL, site,
                       WRITE_CALLBACK_FAILED);
}

bool WriteEventType(MessageParcel& data, const TransmitParam& param, const LogSite& site)
{
    // The 8-bit value travels sign-extended in one word.
    return LoggedCheck(data.WriteInt8(static_cast<int8_t>(param.transmitEventType)), SHARE_PROXY_LABEL, site,
                       "Write TransmitEventType failed.");
}
} // namespace

bool ShareSrvProxy::Open(ProxyRequest& request)
{
    return request.Open(Remote(), GetDescriptor());
}

int32_t ShareSrvProxy::PublishDevice(const sptr<IPublishListener>& listener)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, {"Publish() Enter", LOG_DEBUG, "Publish() Exit", LOG_DEBUG});
    return Open(req) && req.WriteObject(listener, WRITE_LISTENER_FAILED) && req.SendAndLogExit(Code::PUBLISH_DEVICE) &&
           req.ReplyBool();
}

int32_t ShareSrvProxy::UnPublishDevice(int32_t publishId, const sptr<IPublishListener>& listener)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, {"UnPublish() Enter", LOG_DEBUG, "UnPublish() Exit", LOG_DEBUG});
    return Open(req) && req.Check(req.Data().WriteInt32(publishId), "Write publishId failed") &&
           req.WriteObject(listener, WRITE_LISTENER_FAILED) && req.SendAndLogExit(Code::UNPUBLISH_DEVICE) &&
           req.ReplyBool();
}

int32_t ShareSrvProxy::SubscribeDevice(const sptr<ISubscribeListener>& listener)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"SubscribeDevice() Enter", LOG_DEBUG, "SubscribeDevice() Exit", LOG_DEBUG});
    return Open(req) && req.WriteObject(listener, WRITE_LISTENER_FAILED) &&
           req.SendAndLogExit(Code::SUBSCRIBE_DEVICE) && req.ReplyBool();
}

int32_t ShareSrvProxy::UnSubscribeDevice(int32_t subscribeId, const sptr<ISubscribeListener>& listener)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"UnSubscribeDevice() Enter", LOG_DEBUG, "UnSubscribeDevice() Exit", LOG_DEBUG});
    return Open(req) && req.Check(req.Data().WriteInt32(subscribeId), "Write subscribeId failed") &&
           req.WriteObject(listener, WRITE_LISTENER_FAILED) && req.SendAndLogExit(Code::UNSUBSCRIBE_DEVICE) &&
           req.ReplyBool();
}

int32_t ShareSrvProxy::RegisterReceiveListener(const sptr<ZelkonReceiveListener>& listener)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"RegisterReceiveListener() Enter", LOG_DEBUG, "RegisterReceiveListener() Exit", LOG_DEBUG});
    return Open(req) && req.WriteObject(listener, WRITE_LISTENER_FAILED) &&
           req.SendAndLogExit(Code::REGISTER_RECEIVE_LISTENER) && req.ReplyBool();
}

int32_t ShareSrvProxy::UnRegisterReceiveListener(const sptr<ZelkonReceiveListener>& listener)
{
    // The unregister request logs the register exit text; services' log readers rely on it.
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"UnRegisterReceiveListener() Enter", LOG_DEBUG, "RegisterReceiveListener() Exit", LOG_DEBUG});
    return Open(req) && req.WriteObject(listener, WRITE_LISTENER_FAILED) &&
           req.SendAndLogExit(Code::UNREGISTER_RECEIVE_LISTENER) && req.ReplyBool();
}

bool ShareSrvProxy::WriteParcelForSend(const TransmitParam& param, const std::string& packageName, MessageParcel& data)
{
    const LogSite site = SHARE_LOG_SITE;
    return WriteDestination(data, param, site) && WriteTransCallback(data, param, site) &&
           LoggedCheck(data.WriteString(packageName), SHARE_PROXY_LABEL, site, "Write packageName failed.") &&
           WriteEventType(data, param, site);
}

sptr<ZelkonSender> ShareSrvProxy::ReadSender(ProxyRequest& request)
{
    sptr<ZelkonSender> sender = iface_cast<ZelkonSender>(request.Reply().ReadRemoteObject());
    request.Check(sender != nullptr, "shareSender is nullptr.");
    return sender;
}

template <typename Bean>
sptr<ZelkonSender> ShareSrvProxy::SendFileRequest(ProxyRequest& request, ZelkonServiceCode code,
                                                  const TransmitParam& param, const Bean& bean,
                                                  const std::string& packageName, const char* beanFailure)
{
    if (!Open(request) ||
        !request.Check(WriteParcelForSend(param, packageName, request.Data()), "Write param failed.") ||
        !request.Check(bean.WriteToParcel(request.Data()), beanFailure) || !request.SendAndLogExit(code)) {
        return nullptr;
    }
    return ReadSender(request);
}

sptr<ZelkonSender> ShareSrvProxy::SendFile(const TransmitParam& param, SendBean& sendBean,
                                           const std::string& packageName)
{
    ProxyRequest req(SEND_FILE_LABELS, SHARE_LOG_SITE,
                     {"send file with preview info enter!", LOG_DEBUG, "send file with preview info exit!", LOG_DEBUG});
    return SendFileRequest(req, Code::SEND_FILE_WITH_SEND_BEAN, param, sendBean, packageName, "Write sendBean failed.");
}

sptr<ZelkonSender> ShareSrvProxy::SendFile(const TransmitParam& param, const DataBean& dataBean,
                                           const std::string& packageName)
{
    ProxyRequest req(SEND_FILE_LABELS, SHARE_LOG_SITE,
                     {"send file with data bean enter!", LOG_DEBUG, "send file with data bean exit!", LOG_DEBUG});
    return SendFileRequest(req, Code::SEND_FILE_WITH_DATA_BEAN, param, dataBean, packageName, "Write SendBean failed.");
}

sptr<ZelkonSender> ShareSrvProxy::SendBytes(const TransmitParam& param, const BytesInfo& bytesInfo)
{
    // Unlike SendFile: the record sits between timeout and callback, there is no package name, and the exit line
    // follows the reply.
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, {"SendBytes() Enter", LOG_DEBUG, "SendBytes() Exit", LOG_DEBUG});
    MessageParcel& data = req.Data();
    if (!Open(req) || !WriteDestination(data, param, req.Site()) ||
        !req.Check(bytesInfo.WriteToParcel(data), "Write BytesInfo failed.") ||
        !WriteTransCallback(data, param, req.Site()) || !WriteEventType(data, param, req.Site()) ||
        !req.SendWithoutExitLine(Code::SEND_BYTES)) {
        return nullptr;
    }
    sptr<ZelkonSender> sender = ReadSender(req);
    req.LogExit();
    return sender;
}

sptr<ZelkonSender> ShareSrvProxy::CommonShareSend(CommonShareObject& shareObject,
                                                  const sptr<ITransmitCallback>& callback)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, {"CommonShareSend start.", LOG_DEBUG, nullptr, LOG_DEBUG});
    if (!req.HasRemote(Remote())) {
        return nullptr;
    }
    // A generic share object may outgrow the default capacity; no other request raises it.
    req.Data().SetMaxCapacity(COMMON_SHARE_CAPACITY);
    if (!req.WriteToken(GetDescriptor()) ||
        !req.Check(shareObject.WriteToParcel(req.Data()), "Write CommonShareObject failed.") ||
        !req.WriteObject(callback, WRITE_CALLBACK_FAILED) || !req.SendWithoutExitLine(Code::COMMON_SHARE_SEND)) {
        return nullptr;
    }
    return ReadSender(req);
}

void ShareSrvProxy::Cancel(std::string networkId)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, {"Cancel start.", LOG_DEBUG, nullptr, LOG_DEBUG});
    if (!Open(req)) {
        return;
    }
    // The cancel is attempted even when the network id could not be written.
    req.Check(req.Data().WriteString(networkId), "Write networkId failed.");
    req.SendWithoutExitLine(Code::CANCEL);
}

int32_t ShareSrvProxy::EnableDiscoveryPolicy(int32_t policy)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"EnableDiscoveryPolicy() Enter", LOG_DEBUG, "EnableDiscoveryPolicy() Exit", LOG_DEBUG});
    return Open(req) && req.Check(req.Data().WriteInt32(policy), WRITE_LISTENER_FAILED) &&
           req.SendAndLogExit(Code::ENABLE_DISCOVERY_POLICY) && req.ReplyBool();
}

int32_t ShareSrvProxy::SetAccountPermission(int32_t permission)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"SetAccountPermission() Enter", LOG_DEBUG, "SetAccountPermission() Exit", LOG_DEBUG});
    return Open(req) && req.Check(req.Data().WriteInt32(permission), WRITE_LISTENER_FAILED) &&
           req.SendAndLogExit(Code::SET_ACCOUNT_PERMISSION) && req.ReplyBool();
}

int32_t ShareSrvProxy::RegisterCommonReceiveListener(const sptr<ICommonReceiveListener>& listener)
{
    ProxyRequest req(
        PROXY_LABELS, SHARE_LOG_SITE,
        {"RegisterCommonReceiveListener() Enter", LOG_DEBUG, "RegisterCommonReceiveListener() Exit", LOG_DEBUG});
    return req.HasRemote(Remote()) && req.Check(listener != nullptr, "listener return nullptr.") &&
           req.WriteToken(GetDescriptor()) && req.WriteObject(listener, WRITE_LISTENER_FAILED) &&
           req.SendAndLogExit(Code::REGISTER_COMMON_RECEIVE_LISTENER) && req.ReplyBool();
}

int32_t ShareSrvProxy::UnRegisterCommonReceiveListener()
{
    ProxyRequest req(
        PROXY_LABELS, SHARE_LOG_SITE,
        {"UnRegisterCommonReceiveListener() Enter", LOG_DEBUG, "UnRegisterCommonReceiveListener() Exit", LOG_DEBUG});
    return Open(req) && req.SendAndLogExit(Code::UNREGISTER_COMMON_RECEIVE_LISTENER) && req.ReplyBool();
}

int32_t ShareSrvProxy::SuspendWifiScanning(const std::string& ifName)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"SuspendWifiScanning() Enter", LOG_INFO, "SuspendWifiScanning() Exit", LOG_DEBUG});
    return Open(req) && req.Check(req.Data().WriteString(ifName), "Write ifName failed.") &&
           req.SendAndLogExit(Code::SUSPEND_WIFI_SCANNING) && req.ReplyBool();
}

int32_t ShareSrvProxy::ResumeWifiScanning(const std::string& ifName)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"ResumeWifiScanning() Enter", LOG_INFO, "ResumeWifiScanning() Exit", LOG_DEBUG});
    return Open(req) && req.Check(req.Data().WriteString(ifName), "Write ifName failed.") &&
           req.SendAndLogExit(Code::RESUME_WIFI_SCANNING) && req.ReplyBool();
}

int32_t ShareSrvProxy::OnCollabDeviceFound(const sptr<ShareDevice>& device, const sptr<ISubscribeListener>& listener,
                                           uint32_t updateFlag)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"OnCollabDeviceFound() Enter", LOG_INFO, "OnCollabDeviceFound() Exit", LOG_DEBUG});
    // The flag travels as an int32 word: the service reads the same four bytes.
    return Open(req) &&
           req.Check(req.Data().WriteStrongParcelable(sptr<Parcelable>(device)), "Write ShareDevice failed") &&
           req.WriteObject(listener, WRITE_LISTENER_FAILED) &&
           req.Check(req.Data().WriteInt32(static_cast<int32_t>(updateFlag)), "Write updateFlag failed") &&
           req.SendAndLogExit(Code::ON_COLLAB_DEVICE_FOUND) && req.ReplyBool();
}

int32_t ShareSrvProxy::ClearDiscovererFlag(const std::string& deviceId, uint32_t flag)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"ClearDiscovererFlag() Enter", LOG_INFO, "ClearDiscovererFlag() Exit", LOG_DEBUG});
    return Open(req) && req.Check(req.Data().WriteString(deviceId), "Write deviceId failed.") &&
           req.Check(req.Data().WriteUint32(flag), "Write discoverer flag failed.") &&
           req.SendAndLogExit(Code::CLEAR_DISCOVERER_FLAG) && req.ReplyBool();
}

int32_t ShareSrvProxy::GetPontalPublishInfo(std::string& publishInfo)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"GetPontalPublishInfo() Enter", LOG_INFO, "GetPontalPublishInfo() Exit", LOG_DEBUG});
    if (!Open(req) || !req.SendWithoutExitLine(Code::GET_PONTAL_PUBLISH_INFO)) {
        return false;
    }
    // The string is handed over whatever the flag after it says.
    publishInfo = req.Reply().ReadString();
    req.LogExit();
    return req.ReplyBool();
}

int32_t ShareSrvProxy::ReportSwingEvent(int32_t gesture, int32_t x, int32_t y, std::string concurrentId)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, {"Enter", LOG_INFO, "Exit", LOG_DEBUG});
    MessageParcel& data = req.Data();
    return Open(req) && req.Check(data.WriteInt32(gesture), "Write gesture failed.") &&
           req.Check(data.WriteInt32(x), "Write x failed.") && req.Check(data.WriteInt32(y), "Write y failed.") &&
           req.Check(data.WriteString(concurrentId), "Write concurrentId failed.") &&
           req.SendAndLogExit(Code::REPORT_SWING_EVENT) && req.ReplyBool();
}

int32_t ShareSrvProxy::SwingSubscribe(const sptr<ISubscribeListener>& listener)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"SwingSubscribe() Enter", LOG_DEBUG, "SwingSubscribe() Exit", LOG_DEBUG});
    return Open(req) && req.WriteObject(listener, WRITE_LISTENER_FAILED) && req.SendAndLogExit(Code::SWING_SUBSCRIBE) &&
           req.ReplyBool();
}

int32_t ShareSrvProxy::SwingUnSubscribe(const sptr<ISubscribeListener>& listener)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"SwingUnSubscribe() Enter", LOG_DEBUG, "SwingUnSubscribe() Exit", LOG_DEBUG});
    return Open(req) && req.WriteObject(listener, WRITE_LISTENER_FAILED) &&
           req.SendAndLogExit(Code::SWING_UNSUBSCRIBE) && req.ReplyBool();
}

int32_t ShareSrvProxy::ApplyUriPermission(const std::string& deviceId)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"ApplyUriPermission() Enter", LOG_INFO, "ApplyUriPermission() Exit", LOG_INFO});
    return Open(req) && req.Check(req.Data().WriteString(deviceId), "Write deviceId failed.") &&
           req.SendAndLogExit(Code::APPLY_URI_PERMISSION) && req.ReplyBool();
}

std::vector<PermanentDeviceInfo> ShareSrvProxy::GetPermanentDeviceList()
{
    std::vector<PermanentDeviceInfo> devices;
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE, {"GetPermanentDeviceList() Enter", LOG_DEBUG, nullptr, LOG_DEBUG});
    if (!Open(req)) {
        return devices;
    }
    // A failed send is only logged: the empty reply then fails at the counter, so that the counter line follows the
    // send's, where the user lists stop at the send.
    req.SendWithoutExitLine(Code::GET_PERMANENT_DEVICE_LIST);
    MessageParcel& reply = req.Reply();
    int32_t count = 0;
    if (!reply.ReadInt32(count) || count > ProxyRequest::MAX_LIST_RECORDS) {
        SHARE_PROXY_LOGE("GetPermanentDeviceList Read device counter failed %{public}d.", count);
        return devices;
    }
    // A malformed record ends the list: the devices read before it are returned, as ShareClient promises, where the
    // user lists give all or nothing.
    for (int32_t i = 0; i < count; ++i) {
        PermanentDeviceInfo device;
        if (!device.ReadFromParcel(reply)) {
            SHARE_PROXY_LOGE("GetPermanentDeviceList Read permanent device failed.");
            return devices;
        }
        devices.push_back(device);
    }
    SHARE_PROXY_LOGD("GetPermanentDeviceList() Exit, size %{public}zu", devices.size());
    return devices;
}

int32_t ShareSrvProxy::RemovePermanentDeviceById(int32_t id)
{
    ProxyRequest req(PROXY_LABELS, SHARE_LOG_SITE,
                     {"RemovePermanentDeviceById() Enter", LOG_INFO, "RemovePermanentDeviceById() Exit", LOG_DEBUG});
    return Open(req) && req.Check(req.Data().WriteInt32(id), "Write permanent device id failed.") &&
           req.SendAndLogExit(Code::REMOVE_PERMANENT_DEVICE_BY_ID) && req.ReplyBool();
}

} // namespace Zelkon
} // namespace OHOS
