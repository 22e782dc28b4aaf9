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
#include <vector>

#include "call_outcomes.h"
#include "operation_binding.h"

namespace OHOS {
namespace Zelkon {
namespace {
using Manager = ShareManagerClient;

CallOutcome EnableStateOutcome(const int32_t& state)
{
    return {state, "the state last given to SetShareEnable, which the emulator keeps without meaning; 0 also when the "
                   "call failed"};
}

CallOutcome PreviewOutcome(const std::string& preview)
{
    return {preview, preview.empty() ? "empty: none, or the call failed: the log tells which"
                                     : std::to_string(preview.size()) + " bytes"};
}

CallOutcome AccountOutcome(const ShareAccountInfo& account)
{
    CallOutcome outcome = RecordOutcome(account);
    if (account.callingUid == -1) {
        outcome.meaning = "the record as the library constructs it: the call failed, or the service sent no uid";
    }
    return outcome;
}

const ResultKind<bool> ANSWER{"bool", "bool", Answer};
const ResultKind<int32_t> ENABLE_STATE{"int32", "int32", EnableStateOutcome};
const ResultKind<std::vector<ShareDeviceInfo>> USERS{
    "std::vector<ShareDeviceInfo>", "count: int32 (at most 1000), then as many ShareDeviceInfo records",
    RecordsOutcome<ShareDeviceInfo>};
const ResultKind<sptr<ZelkonReceiver>> RECEIVER{"sptr<ZelkonReceiver>", "receiver: remote object (ZelkonReceiver)",
                                                ReceiverOutcome};
const ResultKind<std::string> PREVIEW{"std::string",
                                      "big string: size word uint32 (length plus one, at most 5 MiB), then the text "
                                      "and its zero byte as one raw block",
                                      PreviewOutcome};
const ResultKind<ShareAccountInfo> ACCOUNT{"ShareAccountInfo",
                                           "norvaneAccountID: string, norvaneAccountIDHash: string, status: int32, "
                                           "callingUid: int32, nickName: string, avatar: string",
                                           AccountOutcome};
} // namespace

const std::vector<Operation>& ShareManagerOperations()
{
    static const std::vector<Operation> operations = {
        Bind(ANSWER, "SetShareEnable", 1, &Manager::SetShareEnable, "type", "state", "enable"),
        Bind(ANSWER, "SetShareEnableWithConfirm", 2, &Manager::SetShareEnableWithConfirm, "type", "state", "enable",
             "confirm"),
        Bind(ANSWER, "IsEnabled", 3, &Manager::IsEnabled),
        Bind(ENABLE_STATE, "GetEnableState", 4, &Manager::GetEnableState),
        Bind(ANSWER, "RegisterWidgetCallback", 5, &Manager::RegisterWidgetCallback, "callback"),
        Bind(ANSWER, "UnRegisterWidgetCallback", 6, &Manager::UnRegisterWidgetCallback, "callback"),
        Bind(ANSWER, "StartDiscovery", 7, &Manager::StartDiscovery),
        Bind(ANSWER, "StopDiscovery", 8, &Manager::StopDiscovery),
        Bind(ANSWER, "StartConnect", 9, &Manager::StartConnect),
        Bind(ANSWER, "StopConnect", 10, &Manager::StopConnect),
        Bind(USERS, "GetSendingUserList", 11, &Manager::GetSendingUserList),
        Bind(ANSWER, "PrepareSend", 12, &Manager::PrepareSend, "deviceInfo"),
        Bind(ANSWER, "Send", 13, &Manager::Send, "deviceInfo", "sendBean", "packageName"),
        Bind(ANSWER, "manager.SendBytes", 14, &Manager::SendBytes, "deviceInfo", "bytesInfo"),
        Bind(ANSWER, "manager.SendFile", 15, &Manager::SendFile, "deviceInfo", "dataBean", "packageName"),
        Bind(ANSWER, "manager.Cancel", 16, &Manager::Cancel, "deviceInfo"),
        Bind(ANSWER, "RegisterSenderActionCallback", 17, &Manager::RegisterSenderActionCallback, "callback"),
        Bind(ANSWER, "UnRegisterSenderActionCallback", 18, &Manager::UnRegisterSenderActionCallback, "callback"),
        Bind(RECEIVER, "GetReceiverActionCallback", 19, &Manager::GetReceiverActionCallback),
        Bind(PREVIEW, "GetPreviewData", 20, &Manager::GetPreviewData),
        Bind(USERS, "GetAllUserList", 21, &Manager::GetAllUserList),
        Bind(ACCOUNT, "GetAccountInfo", 22, &Manager::GetAccountInfo),
        Bind(ANSWER, "SetShareAccountPermission", 23, &Manager::SetShareAccountPermission, "permission"),
        Bind(ANSWER, "RegisterVxShareApiWidgetCallback", 24, &Manager::RegisterVxShareApiWidgetCallback, "callback"),
        Bind(ANSWER, "UnRegisterVxShareApiWidgetCallback", 25, &Manager::UnRegisterVxShareApiWidgetCallback,
             "callback"),
        Bind(ANSWER, "RegisterVxShareApiEvent", 26, &Manager::RegisterVxShareApiEvent, "event"),
        Bind(ANSWER, "UnRegisterVxShareApiEvent", 27, &Manager::UnRegisterVxShareApiEvent, "event"),
        Bind(ANSWER, "NotifyInfo", 28, &Manager::NotifyInfo, "deviceInfo", "info"),
        Bind(ANSWER, "manager.ApplyUriPermission", 29, &Manager::ApplyUriPermission, "packageName"),
        Bind(ANSWER, "SwingConfirm", 30, &Manager::SwingConfirm, "deviceInfo", "confirm"),
        Bind(ANSWER, "IsAppForeground", 31, &Manager::IsAppForeground, "packageName"),
        Bind(ANSWER, "RegisterShareApiCallback", 32, &Manager::RegisterShareApiCallback, "callback"),
        Bind(ANSWER, "UnregisterShareApiCallback", 33, &Manager::UnregisterShareApiCallback, "callback"),
        Bind(ANSWER, "RegisterShareEventCallback", 34, &Manager::RegisterShareEventCallback, "eventType", "eventId"),
        Bind(ANSWER, "UnregisterShareEventCallback", 35, &Manager::UnregisterShareEventCallback, "eventType",
             "eventId"),
        Bind(ANSWER, "IsFocusPidsRegisterSwing", 36, &Manager::IsFocusPidsRegisterSwing),
    };
    return operations;
}

} // namespace Zelkon
} // namespace OHOS
