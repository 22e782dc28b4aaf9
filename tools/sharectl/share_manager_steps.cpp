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

#include "session.h"
#include "share_manager_client.h"

namespace OHOS {
namespace Zelkon {
namespace {
constexpr const char* PACKAGE_NAME = "com.example.sharectl";
constexpr int32_t SHARE_TYPE = 0;
constexpr int32_t ENABLED_STATE = 2;
constexpr size_t SHARED_MEMORY_THRESHOLD = 32768;

ShareManagerClient& Manager()
{
    return ShareManagerClient::GetInstance();
}

std::string UserNames(const std::vector<ShareDeviceInfo>& users)
{
    std::string names;
    for (const ShareDeviceInfo& user : users) {
        names += (names.empty() ? "" : ", ") + user.deviceName + " (" + user.contactInfo.contactName + ")";
    }
    return names;
}
} // namespace

StepResult SwitchSharing(Session& session)
{
    (void)session;
    const bool set = Manager().SetShareEnable(SHARE_TYPE, ENABLED_STATE, true);
    const bool enabled = Manager().IsEnabled();
    const int32_t state = Manager().GetEnableState();
    // Without confirmation the switch must stay as it is.
    const bool unconfirmed = Manager().SetShareEnableWithConfirm(SHARE_TYPE, 0, false, false);
    const bool stillEnabled = Manager().IsEnabled();
    return {set && enabled && state == ENABLED_STATE && !unconfirmed && stillEnabled,
            std::string("SetShareEnable -> ") + (set ? "true" : "false") + ", IsEnabled -> " +
                (enabled ? "true" : "false") + ", GetEnableState -> " + std::to_string(state) +
                " (the state given to SetShareEnable), unconfirmed switch-off -> " + (unconfirmed ? "true" : "false")};
}

StepResult ListUsers(Session& session)
{
    (void)session;
    const std::vector<ShareDeviceInfo> users = Manager().GetAllUserList();
    bool complete = !users.empty();
    for (const ShareDeviceInfo& user : users) {
        complete = complete && !user.deviceId.empty() && !user.avatar.empty() && !user.contactInfo.contactName.empty();
    }
    return {complete, std::to_string(users.size()) + " users: " + UserNames(users)};
}

StepResult PrepareAndSend(Session& session)
{
    (void)session;
    const std::vector<ShareDeviceInfo> users = Manager().GetAllUserList();
    if (users.empty()) {
        return {false, "no user to send to"};
    }
    const ShareDeviceInfo& target = users.front();
    const bool prepared = Manager().PrepareSend(target);
    SendBean sendBean;
    sendBean.previewText = "2 photos";
    sendBean.files = {{"file:///photos/beach.jpg", "beach.jpg", 2048000},
                      {"file:///photos/dune.jpg", "dune.jpg", 1024}};
    const bool sent = Manager().Send(target, sendBean, PACKAGE_NAME);
    const std::vector<ShareDeviceInfo> sending = Manager().GetSendingUserList();
    const bool listed = sending.size() == 1 && sending.front().deviceId == target.deviceId;
    return {prepared && sent && listed, std::string("PrepareSend -> ") + (prepared ? "true" : "false") + ", Send -> " +
                                            (sent ? "true" : "false") + ", sending to " + UserNames(sending)};
}

StepResult ReadPreviewData(Session& session)
{
    (void)session;
    const std::string preview = Manager().GetPreviewData();
    return {preview.size() > SHARED_MEMORY_THRESHOLD && preview.rfind("preview line 1:", 0) == 0,
            std::to_string(preview.size()) + " bytes, first line \"" + preview.substr(0, preview.find('\n')) + "\""};
}

StepResult ReadAccount(Session& session)
{
    (void)session;
    const ShareAccountInfo account = Manager().GetAccountInfo();
    return {!account.nickName.empty() && account.callingUid != -1,
            account.nickName + ", account " + account.norvaneAccountID + ", status " + std::to_string(account.status) +
                ", uid " + std::to_string(account.callingUid)};
}

} // namespace Zelkon
} // namespace OHOS
