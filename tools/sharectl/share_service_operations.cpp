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

#include <string>
#include <utility>
#include <vector>

#include "call_outcomes.h"
#include "operation_binding.h"

namespace OHOS {
namespace Zelkon {
namespace {
using Share = ShareClient;

// The share client hands the reply's bool back as an int32.
const ResultKind<int32_t> ACCEPTED{"int32 (the bool of the reply)", "bool", Accepted};
const ResultKind<int32_t> ACCEPTED_IF_COLLABORATING{
    "int32 (the bool of the reply; 0 without a request for a device of nearby version 8 or less whose ohFlag_ is 0)",
    "bool", Accepted};
const ResultKind<sptr<ZelkonSender>> SENDER{"sptr<ZelkonSender>", "sender: remote object (ZelkonSender)",
                                            SenderOutcome};
const ResultKind<void> NOTHING_BACK{
    "void", "none: the reply is not read", [] {
        return CallOutcome{nullptr, "nothing comes back: --trace shows what the service did"};
    }};
const ResultKind<std::vector<PermanentDeviceInfo>> PERMANENT_DEVICES{
    "std::vector<PermanentDeviceInfo>",
    "count: int32 (at most 1000), then per device id: int32, deviceName: string, deviceType: int32, deviceId: "
    "string, timestamp: int64",
    RecordsOutcome<PermanentDeviceInfo>};

// The share client's SendFile for one kind of bean: the name alone names both.
template <typename Bean>
using SendFileWith = sptr<ZelkonSender> (Share::*)(const TransmitParam&, Bean, const std::string&);

// For a request that does not carry the arguments in their order.
Operation WithRequest(Operation operation, std::string request)
{
    operation.request = std::move(request);
    return operation;
}

// The transfer parameters of both SendFile requests, with the package name before the event type, then the bean.
template <typename Bean>
std::string SendFileRequest(const char* bean)
{
    return "param.deviceId: string, param.timeout: int32, param.transCallback: remote object, packageName: string, "
           "param.transmitEventType: int8, " +
           std::string(bean) + ": " + RecordWire<Bean>();
}

// GetPontalPublishInfo's out-parameter is no argument: the text it fills comes back beside the result.
CallOutcome PublishInfoOutcome(const CallArguments&, LocalRemotes&)
{
    std::string publishInfo;
    CallOutcome outcome = Accepted(Share::GetInstance().GetPontalPublishInfo(publishInfo));
    outcome.value = {{"result", outcome.value}, {"publishInfo", publishInfo}};
    return outcome;
}
} // namespace

const std::vector<Operation>& ShareServiceOperations()
{
    static const std::vector<Operation> operations = {
        Bind(ACCEPTED, "Publish", 1, &Share::Publish, "listener"),
        Bind(ACCEPTED, "UnPublish", 2, &Share::UnPublish, "publishId", "listener"),
        Bind(ACCEPTED, "Subscribe", 3, &Share::Subscribe, "listener"),
        Bind(ACCEPTED, "UnSubscribe", 4, &Share::UnSubscribe, "subscribeId", "listener"),
        Bind(ACCEPTED, "RegisterReceiveListener", 5, &Share::RegisterReceiveListener, "listener"),
        Bind(ACCEPTED, "UnRegisterReceiveListener", 6, &Share::UnRegisterReceiveListener, "listener"),
        WithRequest(Bind(SENDER, "share.SendFile.SendBean", 7, SendFileWith<SendBean&>(&Share::SendFile), "param",
                         "sendBean", "packageName"),
                    SendFileRequest<SendBean>("sendBean")),
        WithRequest(Bind(SENDER, "share.SendFile.DataBean", 8, SendFileWith<const DataBean&>(&Share::SendFile), "param",
                         "dataBean", "packageName"),
                    SendFileRequest<DataBean>("dataBean")),
        WithRequest(Bind(SENDER, "share.SendBytes", 10, &Share::SendBytes, "param", "bytesInfo"),
                    "param.deviceId: string, param.timeout: int32, bytesInfo: " + RecordWire<BytesInfo>() +
                        ", param.transCallback: remote object, param.transmitEventType: int8"),
        Bind(ACCEPTED, "EnableDiscoveryPolicy", 11, &Share::EnableDiscoveryPolicy, "policy"),
        Bind(ACCEPTED, "SetAccountPermission", 12, &Share::SetAccountPermission, "permission"),
        Bind(NOTHING_BACK, "share.Cancel", 13, &Share::Cancel, "networkId"),
        Bind(SENDER, "CommonShareSend", 14, &Share::CommonShareSend, "shareObject", "callback"),
        Bind(ACCEPTED, "RegisterCommonReceiveListener", 15, &Share::RegisterCommonReceiveListener, "listener"),
        Bind(ACCEPTED, "UnRegisterCommonReceiveListener", 16, &Share::UnRegisterCommonReceiveListener),
        Bind(ACCEPTED, "SuspendWifiScanning", 17, &Share::SuspendWifiScanning, "ifName"),
        Bind(ACCEPTED, "ResumeWifiScanning", 18, &Share::ResumeWifiScanning, "ifName"),
        // The flag travels as an int32 word.
        WithRequest(Bind(ACCEPTED_IF_COLLABORATING, "OnCollabDeviceFound", 19, &Share::OnCollabDeviceFound, "device",
                         "listener", "updateFlag"),
                    "device: " + RecordWire<ShareDevice>() + ", listener: remote object, updateFlag: int32"),
        Bind(ACCEPTED, "ClearDiscovererFlag", 20, &Share::ClearDiscovererFlag, "deviceId", "flag"),
        {"GetPontalPublishInfo",
         ServiceKind::SHARE,
         21,
         {},
         "int32, and the publishInfo string it fills",
         "nothing",
         "publishInfo: string, then bool",
         PublishInfoOutcome},
        Bind(ACCEPTED, "SwingSubscribe", 22, &Share::SwingSubscribe, "listener"),
        Bind(ACCEPTED, "SwingUnSubscribe", 23, &Share::SwingUnSubscribe, "listener"),
        Bind(ACCEPTED, "ReportSwingEvent", 24, &Share::ReportSwingEvent, "gesture", "x", "y", "concurrentId"),
        Bind(ACCEPTED, "share.ApplyUriPermission", 25, &Share::ApplyUriPermission, "deviceId"),
        Bind(PERMANENT_DEVICES, "GetPermanentDeviceList", 26, &Share::GetPermanentDeviceList),
        Bind(ACCEPTED, "RemovePermanentDeviceById", 27, &Share::RemovePermanentDeviceById, "id"),
    };
    return operations;
}

} // namespace Zelkon
} // namespace OHOS
