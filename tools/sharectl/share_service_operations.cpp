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

#include "call_arguments.h"
#include "call_outcomes.h"
#include "operation.h"

namespace OHOS {
namespace Zelkon {
namespace {
using Type = ArgumentType;

constexpr const char* LISTENER = "listener: remote object";
constexpr const char* BOOL_REPLY = "bool";
constexpr const char* SENDER_REPLY = "sender: remote object (ZelkonSender)";
constexpr const char* INT32_RESULT = "int32 (the bool of the reply)";
constexpr const char* SENDER_RESULT = "sptr<ZelkonSender>";
const std::string SEND_PARAMS = "deviceId: string, timeout: int32, transCallback: remote object, packageName: string, "
                                "transmitEventType: int8, then ";

ShareClient& Client()
{
    return ShareClient::GetInstance();
}

// The transfer parameters with sharectl's own callback.
TransmitParam ParamOf(const CallArguments& arguments, LocalRemotes& remotes)
{
    TransmitParam param = arguments.RecordOf<TransmitParam>("param");
    param.transCallback = remotes.transmitCallback;
    return param;
}

Argument ListenerOf(const char* interfaceName)
{
    return {"listener", Type::LOCAL_STUB, interfaceName};
}

const Argument PARAM{"param", Type::TRANSMIT_PARAM};
const Argument PACKAGE_NAME{"packageName", Type::STRING};
} // namespace

const std::vector<Operation>& ShareServiceOperations()
{
    static const std::vector<Operation> operations = {
        {"Publish",
         ServiceKind::SHARE,
         1,
         {ListenerOf("IPublishListener")},
         INT32_RESULT,
         LISTENER,
         BOOL_REPLY,
         [](const CallArguments&, LocalRemotes& remotes) {
             return Accepted(Client().Publish(remotes.publishListener));
         }},
        {"UnPublish",
         ServiceKind::SHARE,
         2,
         {{"publishId", Type::INT32}, ListenerOf("IPublishListener")},
         INT32_RESULT,
         std::string("publishId: int32, ") + LISTENER,
         BOOL_REPLY,
         [](const CallArguments& arguments, LocalRemotes& remotes) {
             return Accepted(Client().UnPublish(arguments.Int32("publishId"), remotes.publishListener));
         }},
        {"Subscribe",
         ServiceKind::SHARE,
         3,
         {ListenerOf("ISubscribeListener")},
         INT32_RESULT,
         LISTENER,
         BOOL_REPLY,
         [](const CallArguments&, LocalRemotes& remotes) {
             return Accepted(Client().Subscribe(remotes.subscribeListener));
         }},
        {"UnSubscribe",
         ServiceKind::SHARE,
         4,
         {{"subscribeId", Type::INT32}, ListenerOf("ISubscribeListener")},
         INT32_RESULT,
         std::string("subscribeId: int32, ") + LISTENER,
         BOOL_REPLY,
         [](const CallArguments& arguments, LocalRemotes& remotes) {
             return Accepted(Client().UnSubscribe(arguments.Int32("subscribeId"), remotes.subscribeListener));
         }},
        {"RegisterReceiveListener",
         ServiceKind::SHARE,
         5,
         {ListenerOf("ZelkonReceiveListener")},
         INT32_RESULT,
         LISTENER,
         BOOL_REPLY,
         [](const CallArguments&, LocalRemotes& remotes) {
             return Accepted(Client().RegisterReceiveListener(remotes.receiveListener));
         }},
        {"UnRegisterReceiveListener",
         ServiceKind::SHARE,
         6,
         {ListenerOf("ZelkonReceiveListener")},
         INT32_RESULT,
         LISTENER,
         BOOL_REPLY,
         [](const CallArguments&, LocalRemotes& remotes) {
             return Accepted(Client().UnRegisterReceiveListener(remotes.receiveListener));
         }},
        {"share.SendFile.SendBean",
         ServiceKind::SHARE,
         7,
         {PARAM, {"sendBean", Type::SEND_BEAN}, PACKAGE_NAME},
         SENDER_RESULT,
         SEND_PARAMS + "the SendBean: previewText: string, file count: uint32, per file uri: string, name: string, "
                       "size: int64",
         SENDER_REPLY,
         [](const CallArguments& arguments, LocalRemotes& remotes) {
             SendBean sendBean = arguments.RecordOf<SendBean>("sendBean");
             return SenderOutcome(
                 Client().SendFile(ParamOf(arguments, remotes), sendBean, arguments.String("packageName")));
         }},
        {"share.SendFile.DataBean",
         ServiceKind::SHARE,
         8,
         {PARAM, {"dataBean", Type::DATA_BEAN}, PACKAGE_NAME},
         SENDER_RESULT,
         SEND_PARAMS + "the DataBean: fileName: string, fileSize: int64, fd: file descriptor",
         SENDER_REPLY,
         [](const CallArguments& arguments, LocalRemotes& remotes) {
             return SenderOutcome(Client().SendFile(ParamOf(arguments, remotes),
                                                    arguments.RecordOf<DataBean>("dataBean"),
                                                    arguments.String("packageName")));
         }},
        {"share.SendBytes",
         ServiceKind::SHARE,
         10,
         {PARAM, {"bytesInfo", Type::BYTES_INFO}},
         SENDER_RESULT,
         "deviceId: string, timeout: int32, the BytesInfo: mimeType: string, bytes: string, then transCallback: "
         "remote object, transmitEventType: int8",
         SENDER_REPLY,
         [](const CallArguments& arguments, LocalRemotes& remotes) {
             return SenderOutcome(
                 Client().SendBytes(ParamOf(arguments, remotes), arguments.RecordOf<BytesInfo>("bytesInfo")));
         }},
        {"EnableDiscoveryPolicy",
         ServiceKind::SHARE,
         11,
         {{"policy", Type::INT32}},
         INT32_RESULT,
         "policy: int32",
         BOOL_REPLY,
         [](const CallArguments& arguments, LocalRemotes&) {
             return Accepted(Client().EnableDiscoveryPolicy(arguments.Int32("policy")));
         }},
        {"SetAccountPermission",
         ServiceKind::SHARE,
         12,
         {{"permission", Type::INT32}},
         INT32_RESULT,
         "permission: int32",
         BOOL_REPLY,
         [](const CallArguments& arguments, LocalRemotes&) {
             return Accepted(Client().SetAccountPermission(arguments.Int32("permission")));
         }},
        {"share.Cancel",
         ServiceKind::SHARE,
         13,
         {{"networkId", Type::STRING}},
         "void",
         "networkId: string",
         "none: the reply is not read",
         [](const CallArguments& arguments, LocalRemotes&) {
             Client().Cancel(arguments.String("networkId"));
             return CallOutcome{nullptr, "nothing comes back: --trace shows what the service did"};
         }},
        {"CommonShareSend",
         ServiceKind::SHARE,
         14,
         {{"shareObject", Type::COMMON_SHARE_OBJECT}, {"callback", Type::LOCAL_STUB, "ITransmitCallback"}},
         SENDER_RESULT,
         "the CommonShareObject: networkId: string, timeout: int32, type: int32, resumable: bool, content: big string "
         "(size word, raw block), item count: uint32, per item uri: string, fd: file descriptor; then callback: "
         "remote object",
         SENDER_REPLY,
         [](const CallArguments& arguments, LocalRemotes& remotes) {
             CommonShareObject shareObject = arguments.RecordOf<CommonShareObject>("shareObject");
             return SenderOutcome(Client().CommonShareSend(shareObject, remotes.transmitCallback));
         }},
        {"RegisterCommonReceiveListener",
         ServiceKind::SHARE,
         15,
         {ListenerOf("ICommonReceiveListener")},
         INT32_RESULT,
         LISTENER,
         BOOL_REPLY,
         [](const CallArguments&, LocalRemotes& remotes) {
             return Accepted(Client().RegisterCommonReceiveListener(remotes.commonReceiveListener));
         }},
        {"UnRegisterCommonReceiveListener",
         ServiceKind::SHARE,
         16,
         {},
         INT32_RESULT,
         "nothing",
         BOOL_REPLY,
         [](const CallArguments&, LocalRemotes&) { return Accepted(Client().UnRegisterCommonReceiveListener()); }},
        {"SuspendWifiScanning",
         ServiceKind::SHARE,
         17,
         {{"ifName", Type::STRING}},
         INT32_RESULT,
         "ifName: string",
         BOOL_REPLY,
         [](const CallArguments& arguments, LocalRemotes&) {
             return Accepted(Client().SuspendWifiScanning(arguments.String("ifName")));
         }},
        {"ResumeWifiScanning",
         ServiceKind::SHARE,
         18,
         {{"ifName", Type::STRING}},
         INT32_RESULT,
         "ifName: string",
         BOOL_REPLY,
         [](const CallArguments& arguments, LocalRemotes&) {
             return Accepted(Client().ResumeWifiScanning(arguments.String("ifName")));
         }},
        {"OnCollabDeviceFound",
         ServiceKind::SHARE,
         19,
         {{"device", Type::SHARE_DEVICE}, ListenerOf("ISubscribeListener"), {"updateFlag", Type::UINT32}},
         "int32 (the bool of the reply; 0 without a request for a device of nearby version 8 or less whose "
         "ohFlag_ is 0)",
         "device: presence word int32, then deviceId: string, deviceName: string, nearby version: int32, OH flag: "
         "int32; listener: remote object; updateFlag: int32",
         BOOL_REPLY,
         [](const CallArguments& arguments, LocalRemotes& remotes) {
             const sptr<ShareDevice> device = new ShareDevice(arguments.RecordOf<ShareDevice>("device"));
             return Accepted(
                 Client().OnCollabDeviceFound(device, remotes.subscribeListener, arguments.Uint32("updateFlag")));
         }},
        {"ClearDiscovererFlag",
         ServiceKind::SHARE,
         20,
         {{"deviceId", Type::STRING}, {"flag", Type::UINT32}},
         INT32_RESULT,
         "deviceId: string, flag: uint32",
         BOOL_REPLY,
         [](const CallArguments& arguments, LocalRemotes&) {
             return Accepted(Client().ClearDiscovererFlag(arguments.String("deviceId"), arguments.Uint32("flag")));
         }},
        {"GetPontalPublishInfo",
         ServiceKind::SHARE,
         21,
         {},
         "int32, and the publishInfo string it fills",
         "nothing",
         "publishInfo: string, then bool",
         [](const CallArguments&, LocalRemotes&) {
             std::string publishInfo;
             CallOutcome outcome = Accepted(Client().GetPontalPublishInfo(publishInfo));
             outcome.value = {{"result", outcome.value}, {"publishInfo", publishInfo}};
             return outcome;
         }},
        {"SwingSubscribe",
         ServiceKind::SHARE,
         22,
         {ListenerOf("ISubscribeListener")},
         INT32_RESULT,
         LISTENER,
         BOOL_REPLY,
         [](const CallArguments&, LocalRemotes& remotes) {
             return Accepted(Client().SwingSubscribe(remotes.subscribeListener));
         }},
        {"SwingUnSubscribe",
         ServiceKind::SHARE,
         23,
         {ListenerOf("ISubscribeListener")},
         INT32_RESULT,
         LISTENER,
         BOOL_REPLY,
         [](const CallArguments&, LocalRemotes& remotes) {
             return Accepted(Client().SwingUnSubscribe(remotes.subscribeListener));
         }},
        {"ReportSwingEvent",
         ServiceKind::SHARE,
         24,
         {{"gesture", Type::INT32}, {"x", Type::INT32}, {"y", Type::INT32}, {"concurrentId", Type::STRING}},
         INT32_RESULT,
         "gesture: int32, x: int32, y: int32, concurrentId: string",
         BOOL_REPLY,
         [](const CallArguments& arguments, LocalRemotes&) {
             return Accepted(Client().ReportSwingEvent(arguments.Int32("gesture"), arguments.Int32("x"),
                                                       arguments.Int32("y"), arguments.String("concurrentId")));
         }},
        {"share.ApplyUriPermission",
         ServiceKind::SHARE,
         25,
         {{"deviceId", Type::STRING}},
         INT32_RESULT,
         "deviceId: string",
         BOOL_REPLY,
         [](const CallArguments& arguments, LocalRemotes&) {
             return Accepted(Client().ApplyUriPermission(arguments.String("deviceId")));
         }},
        {"GetPermanentDeviceList",
         ServiceKind::SHARE,
         26,
         {},
         "std::vector<PermanentDeviceInfo>",
         "nothing",
         "count: int32 (at most 1000), then per device id: int32, deviceName: string, deviceType: int32, deviceId: "
         "string, timestamp: int64",
         [](const CallArguments&, LocalRemotes&) { return RecordsOutcome(Client().GetPermanentDeviceList()); }},
        {"RemovePermanentDeviceById",
         ServiceKind::SHARE,
         27,
         {{"id", Type::INT32}},
         INT32_RESULT,
         "id: int32",
         BOOL_REPLY,
         [](const CallArguments& arguments, LocalRemotes&) {
             return Accepted(Client().RemovePermanentDeviceById(arguments.Int32("id")));
         }},
    };
    return operations;
}

} // namespace Zelkon
} // namespace OHOS
