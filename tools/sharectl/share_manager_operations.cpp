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

constexpr const char* BOOL_RESULT = "bool";
constexpr const char* NOTHING = "nothing";
constexpr const char* CALLBACK = "callback: remote object";
const std::string DEVICE_INFO = "deviceInfo: ShareDeviceInfo, its 19 fields in declaration order (contactInfo as "
                                "contactKind: int32, contactName: string, contactPhoto: string)";
const std::string USER_LIST = "count: int32 (at most 1000), then as many ShareDeviceInfo records";

ShareManagerClient& Manager()
{
    return ShareManagerClient::GetInstance();
}

ShareDeviceInfo DeviceInfoOf(const CallArguments& arguments)
{
    return arguments.RecordOf<ShareDeviceInfo>("deviceInfo");
}

Argument CallbackOf(const char* interfaceName)
{
    return {"callback", Type::LOCAL_STUB, interfaceName};
}

const Argument DEVICE_INFO_ARGUMENT{"deviceInfo", Type::SHARE_DEVICE_INFO};
const Argument PACKAGE_NAME{"packageName", Type::STRING};
} // namespace

const std::vector<Operation>& ShareManagerOperations()
{
    static const std::vector<Operation> operations = {
        {"SetShareEnable",
         ServiceKind::MANAGER,
         1,
         {{"type", Type::INT32}, {"state", Type::INT32}, {"enable", Type::BOOL}},
         BOOL_RESULT,
         "type: int32, state: int32, enable: bool",
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             return Answer(
                 Manager().SetShareEnable(arguments.Int32("type"), arguments.Int32("state"), arguments.Bool("enable")));
         }},
        {"SetShareEnableWithConfirm",
         ServiceKind::MANAGER,
         2,
         {{"type", Type::INT32}, {"state", Type::INT32}, {"enable", Type::BOOL}, {"confirm", Type::BOOL}},
         BOOL_RESULT,
         "type: int32, state: int32, enable: bool, confirm: bool",
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             return Answer(Manager().SetShareEnableWithConfirm(arguments.Int32("type"), arguments.Int32("state"),
                                                               arguments.Bool("enable"), arguments.Bool("confirm")));
         }},
        {"IsEnabled",
         ServiceKind::MANAGER,
         3,
         {},
         BOOL_RESULT,
         NOTHING,
         "bool",
         [](const CallArguments&, LocalRemotes&) { return Answer(Manager().IsEnabled()); }},
        {"GetEnableState",
         ServiceKind::MANAGER,
         4,
         {},
         "int32",
         NOTHING,
         "int32",
         [](const CallArguments&, LocalRemotes&) {
             return CallOutcome{Manager().GetEnableState(),
                                "the state last given to SetShareEnable, which the emulator keeps without meaning; "
                                "0 also when the call failed"};
         }},
        {"RegisterWidgetCallback",
         ServiceKind::MANAGER,
         5,
         {CallbackOf("ZelkonWidgetServiceCallback")},
         BOOL_RESULT,
         CALLBACK,
         "bool",
         [](const CallArguments&, LocalRemotes& remotes) {
             return Answer(Manager().RegisterWidgetCallback(remotes.widgetCallback));
         }},
        {"UnRegisterWidgetCallback",
         ServiceKind::MANAGER,
         6,
         {CallbackOf("ZelkonWidgetServiceCallback")},
         BOOL_RESULT,
         CALLBACK,
         "bool",
         [](const CallArguments&, LocalRemotes& remotes) {
             return Answer(Manager().UnRegisterWidgetCallback(remotes.widgetCallback));
         }},
        {"StartDiscovery",
         ServiceKind::MANAGER,
         7,
         {},
         BOOL_RESULT,
         NOTHING,
         "bool",
         [](const CallArguments&, LocalRemotes&) { return Answer(Manager().StartDiscovery()); }},
        {"StopDiscovery",
         ServiceKind::MANAGER,
         8,
         {},
         BOOL_RESULT,
         NOTHING,
         "bool",
         [](const CallArguments&, LocalRemotes&) { return Answer(Manager().StopDiscovery()); }},
        {"StartConnect",
         ServiceKind::MANAGER,
         9,
         {},
         BOOL_RESULT,
         NOTHING,
         "bool",
         [](const CallArguments&, LocalRemotes&) { return Answer(Manager().StartConnect()); }},
        {"StopConnect",
         ServiceKind::MANAGER,
         10,
         {},
         BOOL_RESULT,
         NOTHING,
         "bool",
         [](const CallArguments&, LocalRemotes&) { return Answer(Manager().StopConnect()); }},
        {"GetSendingUserList",
         ServiceKind::MANAGER,
         11,
         {},
         "std::vector<ShareDeviceInfo>",
         NOTHING,
         USER_LIST,
         [](const CallArguments&, LocalRemotes&) { return RecordsOutcome(Manager().GetSendingUserList()); }},
        {"PrepareSend",
         ServiceKind::MANAGER,
         12,
         {DEVICE_INFO_ARGUMENT},
         BOOL_RESULT,
         DEVICE_INFO,
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             return Answer(Manager().PrepareSend(DeviceInfoOf(arguments)));
         }},
        {"Send",
         ServiceKind::MANAGER,
         13,
         {DEVICE_INFO_ARGUMENT, {"sendBean", Type::SEND_BEAN}, PACKAGE_NAME},
         BOOL_RESULT,
         DEVICE_INFO + ", then the SendBean: previewText: string, file count: uint32, per file uri: string, name: "
                       "string, size: int64; then packageName: string",
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             SendBean sendBean = arguments.RecordOf<SendBean>("sendBean");
             return Answer(Manager().Send(DeviceInfoOf(arguments), sendBean, arguments.String("packageName")));
         }},
        {"manager.SendBytes",
         ServiceKind::MANAGER,
         14,
         {DEVICE_INFO_ARGUMENT, {"bytesInfo", Type::BYTES_INFO}},
         BOOL_RESULT,
         DEVICE_INFO + ", then the BytesInfo: mimeType: string, bytes: string",
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             return Answer(Manager().SendBytes(DeviceInfoOf(arguments), arguments.RecordOf<BytesInfo>("bytesInfo")));
         }},
        {"manager.SendFile",
         ServiceKind::MANAGER,
         15,
         {DEVICE_INFO_ARGUMENT, {"dataBean", Type::DATA_BEAN}, PACKAGE_NAME},
         BOOL_RESULT,
         DEVICE_INFO + ", then the DataBean: fileName: string, fileSize: int64, fd: file descriptor; then "
                       "packageName: string",
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             return Answer(Manager().SendFile(DeviceInfoOf(arguments), arguments.RecordOf<DataBean>("dataBean"),
                                              arguments.String("packageName")));
         }},
        {"manager.Cancel",
         ServiceKind::MANAGER,
         16,
         {DEVICE_INFO_ARGUMENT},
         BOOL_RESULT,
         DEVICE_INFO,
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             return Answer(Manager().Cancel(DeviceInfoOf(arguments)));
         }},
        {"RegisterSenderActionCallback",
         ServiceKind::MANAGER,
         17,
         {CallbackOf("ISenderActionCallback")},
         BOOL_RESULT,
         CALLBACK,
         "bool",
         [](const CallArguments&, LocalRemotes& remotes) {
             return Answer(Manager().RegisterSenderActionCallback(remotes.senderActionCallback));
         }},
        {"UnRegisterSenderActionCallback",
         ServiceKind::MANAGER,
         18,
         {CallbackOf("ISenderActionCallback")},
         BOOL_RESULT,
         CALLBACK,
         "bool",
         [](const CallArguments&, LocalRemotes& remotes) {
             return Answer(Manager().UnRegisterSenderActionCallback(remotes.senderActionCallback));
         }},
        {"GetReceiverActionCallback",
         ServiceKind::MANAGER,
         19,
         {},
         "sptr<ZelkonReceiver>",
         NOTHING,
         "receiver: remote object (ZelkonReceiver)",
         [](const CallArguments&, LocalRemotes&) { return ReceiverOutcome(Manager().GetReceiverActionCallback()); }},
        {"GetPreviewData",
         ServiceKind::MANAGER,
         20,
         {},
         "std::string",
         NOTHING,
         "big string: size word uint32 (length plus one, at most 5 MiB), then the text and its zero byte as one "
         "raw block",
         [](const CallArguments&, LocalRemotes&) {
             const std::string preview = Manager().GetPreviewData();
             return CallOutcome{preview, preview.empty() ? "empty: none, or the call failed: the log tells which"
                                                         : std::to_string(preview.size()) + " bytes"};
         }},
        {"GetAllUserList",
         ServiceKind::MANAGER,
         21,
         {},
         "std::vector<ShareDeviceInfo>",
         NOTHING,
         USER_LIST,
         [](const CallArguments&, LocalRemotes&) { return RecordsOutcome(Manager().GetAllUserList()); }},
        {"GetAccountInfo",
         ServiceKind::MANAGER,
         22,
         {},
         "ShareAccountInfo",
         NOTHING,
         "norvaneAccountID: string, norvaneAccountIDHash: string, status: int32, callingUid: int32, nickName: "
         "string, avatar: string",
         [](const CallArguments&, LocalRemotes&) {
             CallOutcome outcome = RecordOutcome(Manager().GetAccountInfo());
             if (outcome.value["callingUid"] == -1) {
                 outcome.meaning = "the record as the library constructs it: the call failed, or the service "
                                   "sent no uid";
             }
             return outcome;
         }},
        {"SetShareAccountPermission",
         ServiceKind::MANAGER,
         23,
         {{"permission", Type::INT32}},
         BOOL_RESULT,
         "permission: int32",
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             return Answer(Manager().SetShareAccountPermission(arguments.Int32("permission")));
         }},
        {"RegisterVxShareApiWidgetCallback",
         ServiceKind::MANAGER,
         24,
         {CallbackOf("ZelkonWidgetServiceCallback")},
         BOOL_RESULT,
         CALLBACK,
         "bool",
         [](const CallArguments&, LocalRemotes& remotes) {
             return Answer(Manager().RegisterVxShareApiWidgetCallback(remotes.widgetCallback));
         }},
        {"UnRegisterVxShareApiWidgetCallback",
         ServiceKind::MANAGER,
         25,
         {CallbackOf("ZelkonWidgetServiceCallback")},
         BOOL_RESULT,
         CALLBACK,
         "bool",
         [](const CallArguments&, LocalRemotes& remotes) {
             return Answer(Manager().UnRegisterVxShareApiWidgetCallback(remotes.widgetCallback));
         }},
        {"RegisterVxShareApiEvent",
         ServiceKind::MANAGER,
         26,
         {{"event", Type::STRING}},
         BOOL_RESULT,
         "event: string",
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             return Answer(Manager().RegisterVxShareApiEvent(arguments.String("event")));
         }},
        {"UnRegisterVxShareApiEvent",
         ServiceKind::MANAGER,
         27,
         {{"event", Type::STRING}},
         BOOL_RESULT,
         "event: string",
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             return Answer(Manager().UnRegisterVxShareApiEvent(arguments.String("event")));
         }},
        {"NotifyInfo",
         ServiceKind::MANAGER,
         28,
         {DEVICE_INFO_ARGUMENT, {"info", Type::INT32}},
         BOOL_RESULT,
         DEVICE_INFO + ", then info: int32",
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             return Answer(Manager().NotifyInfo(DeviceInfoOf(arguments), arguments.Int32("info")));
         }},
        {"manager.ApplyUriPermission",
         ServiceKind::MANAGER,
         29,
         {PACKAGE_NAME},
         BOOL_RESULT,
         "packageName: string",
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             return Answer(Manager().ApplyUriPermission(arguments.String("packageName")));
         }},
        {"SwingConfirm",
         ServiceKind::MANAGER,
         30,
         {DEVICE_INFO_ARGUMENT, {"confirm", Type::INT32}},
         BOOL_RESULT,
         DEVICE_INFO + ", then confirm: int32",
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             return Answer(Manager().SwingConfirm(DeviceInfoOf(arguments), arguments.Int32("confirm")));
         }},
        {"IsAppForeground",
         ServiceKind::MANAGER,
         31,
         {PACKAGE_NAME},
         BOOL_RESULT,
         "packageName: string",
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             return Answer(Manager().IsAppForeground(arguments.String("packageName")));
         }},
        {"RegisterShareApiCallback",
         ServiceKind::MANAGER,
         32,
         {CallbackOf("ZelkonApiCallback")},
         BOOL_RESULT,
         CALLBACK,
         "bool",
         [](const CallArguments&, LocalRemotes& remotes) {
             return Answer(Manager().RegisterShareApiCallback(remotes.apiCallback));
         }},
        {"UnregisterShareApiCallback",
         ServiceKind::MANAGER,
         33,
         {CallbackOf("ZelkonApiCallback")},
         BOOL_RESULT,
         CALLBACK,
         "bool",
         [](const CallArguments&, LocalRemotes& remotes) {
             return Answer(Manager().UnregisterShareApiCallback(remotes.apiCallback));
         }},
        {"RegisterShareEventCallback",
         ServiceKind::MANAGER,
         34,
         {{"eventType", Type::INT32}, {"eventId", Type::INT32}},
         BOOL_RESULT,
         "eventType: int32, eventId: int32",
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             return Answer(
                 Manager().RegisterShareEventCallback(arguments.Int32("eventType"), arguments.Int32("eventId")));
         }},
        {"UnregisterShareEventCallback",
         ServiceKind::MANAGER,
         35,
         {{"eventType", Type::INT32}, {"eventId", Type::INT32}},
         BOOL_RESULT,
         "eventType: int32, eventId: int32",
         "bool",
         [](const CallArguments& arguments, LocalRemotes&) {
             return Answer(
                 Manager().UnregisterShareEventCallback(arguments.Int32("eventType"), arguments.Int32("eventId")));
         }},
        {"IsFocusPidsRegisterSwing",
         ServiceKind::MANAGER,
         36,
         {},
         BOOL_RESULT,
         NOTHING,
         "bool",
         [](const CallArguments&, LocalRemotes&) { return Answer(Manager().IsFocusPidsRegisterSwing()); }},
    };
    return operations;
}

} // namespace Zelkon
} // namespace OHOS
