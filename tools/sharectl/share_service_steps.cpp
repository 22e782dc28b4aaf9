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

#include "call_outcomes.h"
#include "processes_world.h"
#include "samgr_host_control.h"
#include "session.h"
#include "share_client.h"
#include "share_emulator.h"

namespace OHOS {
namespace Zelkon {
namespace {
constexpr const char* PACKAGE_NAME = "com.example.sharectl";
constexpr const char* PHONE_ID = "dev-1001-phone";
constexpr const char* TABLET_ID = "dev-1002-tablet";
constexpr int32_t TRANSFER_TIMEOUT = 30;
constexpr size_t COMMON_SHARE_SIZE = 3 * 1024 * 1024;

ShareClient& Client()
{
    return ShareClient::GetInstance();
}

TransmitParam ParamFor(Session& session, const std::string& deviceId)
{
    TransmitParam param;
    param.deviceId = deviceId;
    param.timeout = TRANSFER_TIMEOUT;
    param.transCallback = session.remotes.Stub<ITransmitCallback>();
    return param;
}

int32_t TransferId(const sptr<ZelkonSender>& sender)
{
    auto* typed = static_cast<DemoSenderProxy*>(sender.GetRefPtr());
    return typed == nullptr ? -1 : typed->TransferId();
}

StepResult SenderResult(const sptr<ZelkonSender>& sender, const std::string& what)
{
    if (sender == nullptr) {
        return {false, what + ": no sender"};
    }
    const int32_t id = TransferId(sender);
    return {id > 0, what + ", sender of transfer " + std::to_string(id)};
}

sptr<ShareDevice> MakeDevice(const std::string& id, const std::string& name, int32_t nearbyVersion)
{
    sptr<ShareDevice> device = new ShareDevice();
    device->deviceId = id;
    device->deviceName = name;
    device->nbVersion_ = nearbyVersion;
    device->ohFlag_ = 0;
    return device;
}

std::string DeviceNames(const std::vector<PermanentDeviceInfo>& devices)
{
    std::string names;
    for (const PermanentDeviceInfo& device : devices) {
        names += (names.empty() ? "" : ", ") + std::to_string(device.id) + " " + device.deviceName;
    }
    return names;
}
} // namespace

StepResult LoadShareService(Session& session)
{
    Client().RegisterDiedCallback(session.deathCounter);
    const int32_t connected = Client().Connect();
    const int loads = SamgrHostControl::LoadCount(EMULATED_SHARE_SERVICE_ID);
    return {connected == 0 && loads >= 1, "Connect -> " + std::to_string(connected) + " after " +
                                              std::to_string(loads) + " load request(s)" +
                                              ProcessesWorld::ShareServiceNote()};
}

StepResult PublishDevice(Session& session)
{
    const int32_t result = Client().Publish(session.remotes.Stub<IPublishListener>());
    std::string publishInfo;
    const int32_t infoResult = Client().GetPontalPublishInfo(publishInfo);
    return {result == 1 && infoResult == 1 && publishInfo.find("\"publishers\":1") != std::string::npos,
            "Publish -> " + Accepted(result).Text() + ", publish info " + publishInfo};
}

StepResult SubscribeDevice(Session& session)
{
    const int32_t result = Client().Subscribe(session.remotes.Stub<ISubscribeListener>());
    return {result == 1, "Subscribe -> " + Accepted(result).Text()};
}

StepResult SkipLegacyDevice(Session& session)
{
    const size_t mark = session.requests.Mark();
    const int32_t result = Client().OnCollabDeviceFound(MakeDevice("dev-0008-watch", "Old watch", 8),
                                                        session.remotes.Stub<ISubscribeListener>(), 0);
    const bool sent = session.requests.LastOf(mark, "OnCollabDeviceFound").has_value();
    return {result == 0 && !sent, "Old watch (nearby version 8) -> " + std::to_string(result) +
                                      (sent ? ", but the service was asked" : ", skipped before the service")};
}

StepResult ForwardFoundDevice(Session& session)
{
    const size_t mark = session.requests.Mark();
    const int32_t result = Client().OnCollabDeviceFound(MakeDevice(TABLET_ID, "Sam's tablet", 9),
                                                        session.remotes.Stub<ISubscribeListener>(), 1);
    auto request = session.requests.LastOf(mark, "OnCollabDeviceFound");
    const std::string name = request ? RequestLog::Field(*request, "device.deviceName").value_or("?") : "nothing";
    return {result == 1 && name == "\"Sam's tablet\"",
            "Sam's tablet (nearby version 9) -> " + Accepted(result).Text() + ", the service found " + name};
}

StepResult SendRealFile(Session& session)
{
    std::string error;
    if (session.file == nullptr && (session.file = FileToSend::Demo(error)) == nullptr) {
        return {false, error};
    }
    const FileToSend& file = *session.file;
    DataBean dataBean;
    dataBean.fileName = file.Name();
    dataBean.fileSize = file.Size();
    dataBean.fd = file.Fd();
    const size_t mark = session.requests.Mark();
    sptr<ZelkonSender> sender = Client().SendFile(ParamFor(session, PHONE_ID), dataBean, PACKAGE_NAME);
    auto request = session.requests.LastOf(mark, "SendFile(DataBean)");
    const std::string readable = request ? RequestLog::Field(*request, "dataBean.fd.readable").value_or("?") : "?";
    StepResult result = SenderResult(sender, file.Name() + " (" + std::to_string(file.Size()) +
                                                 " bytes), the service read " + readable + " from the descriptor");
    result.ok = result.ok && readable == std::to_string(file.Size()) + " bytes";
    return result;
}

StepResult SendBytes(Session& session)
{
    BytesInfo bytes;
    bytes.mimeType = "text/plain";
    bytes.bytes = "hello from sharectl";
    return SenderResult(Client().SendBytes(ParamFor(session, PHONE_ID), bytes),
                        std::to_string(bytes.bytes.size()) + " bytes of " + bytes.mimeType);
}

StepResult SendCommonShare(Session& session)
{
    CommonShareObject share;
    share.type = 1;
    share.timeout = TRANSFER_TIMEOUT;
    share.content.assign(COMMON_SHARE_SIZE, 'z');
    share.networkId = TABLET_ID;
    share.resumable = true;
    const size_t mark = session.requests.Mark();
    sptr<ZelkonSender> sender = Client().CommonShareSend(share, session.remotes.Stub<ITransmitCallback>());
    auto request = session.requests.LastOf(mark, "CommonShareSend");
    const std::string content = request ? RequestLog::Field(*request, "share.content").value_or("?") : "?";
    const std::string expected = "(" + std::to_string(COMMON_SHARE_SIZE) + " bytes)";
    StepResult result = SenderResult(sender, std::to_string(COMMON_SHARE_SIZE >> 20) + " MiB of content");
    result.ok = result.ok && content.size() >= expected.size() &&
                content.compare(content.size() - expected.size(), expected.size(), expected) == 0;
    return result;
}

StepResult CancelTransfers(Session& session)
{
    const size_t mark = session.requests.Mark();
    Client().Cancel(PHONE_ID);
    auto request = session.requests.LastOf(mark, "Cancel");
    const std::string cancelled = request ? RequestLog::Field(*request, "cancelled").value_or("0") : "0";
    return {cancelled != "0",
            "Cancel " + std::string(PHONE_ID) + ": the service stopped " + cancelled + " transfer(s)"};
}

StepResult ListPermanentDevices(Session& session)
{
    (void)session;
    const std::vector<PermanentDeviceInfo> devices = Client().GetPermanentDeviceList();
    return {!devices.empty(), std::to_string(devices.size()) + " devices: " + DeviceNames(devices)};
}

StepResult RemovePermanentDevice(Session& session)
{
    const int32_t id = session.removedDeviceId;
    const size_t before = Client().GetPermanentDeviceList().size();
    const int32_t result = Client().RemovePermanentDeviceById(id);
    const std::vector<PermanentDeviceInfo> after = Client().GetPermanentDeviceList();
    bool gone = after.size() + 1 == before;
    for (const PermanentDeviceInfo& device : after) {
        gone = gone && device.id != id;
    }
    return {result == 1 && gone, "RemovePermanentDeviceById(" + std::to_string(id) + ") -> " + Accepted(result).Text() +
                                     ", left " + DeviceNames(after)};
}

} // namespace Zelkon
} // namespace OHOS
