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

#include "share_manager_state.h"

#include <algorithm>

#include "emulated_record_fields.h"
#include "json_field_writer.h"

namespace OHOS {
namespace Zelkon {
namespace {
using CallbackKind = ShareManagerState::CallbackKind;

constexpr int32_t STATE_SENDING = 1;

const std::vector<std::pair<const char*, CallbackKind>> CALLBACK_KINDS = {
    {"widget", CallbackKind::WIDGET},
    {"vxWidget", CallbackKind::VX_WIDGET},
    {"senderAction", CallbackKind::SENDER_ACTION},
    {"shareApi", CallbackKind::SHARE_API},
};
} // namespace

ShareManagerState::ShareManagerState(const EmulatedWorld& world) :
    switch_(world.sharingSwitch), users_(world.users), previewData_(world.previewData), account_(world.account)
{
}

void ShareManagerState::SetEnable(int32_t state, bool enable)
{
    std::lock_guard<std::mutex> lock(mutex_);
    switch_ = {enable, state};
}

bool ShareManagerState::IsEnabled()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return switch_.enabled;
}

int32_t ShareManagerState::EnableState()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return switch_.state;
}

bool ShareManagerState::SetDiscovering(bool discovering)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return std::exchange(discovering_, discovering) != discovering;
}

bool ShareManagerState::SetConnected(bool connected)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return std::exchange(connected_, connected) != connected;
}

std::vector<UserEntry> ShareManagerState::AllUsers()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return users_;
}

std::vector<UserEntry> ShareManagerState::SendingUsers()
{
    std::lock_guard<std::mutex> lock(mutex_);
    std::vector<UserEntry> sending;
    for (const UserEntry& user : users_) {
        auto transfer = sending_.find(user.deviceId);
        if (transfer != sending_.end()) {
            UserEntry shown = user;
            shown.stateCode = STATE_SENDING;
            shown.eventCode = static_cast<int32_t>(transfer->second.files);
            sending.push_back(shown);
        }
    }
    return sending;
}

const UserEntry* ShareManagerState::FindUser(const std::string& deviceId) const
{
    auto it =
        std::find_if(users_.begin(), users_.end(), [&](const UserEntry& user) { return user.deviceId == deviceId; });
    return it == users_.end() ? nullptr : &*it;
}

bool ShareManagerState::IsKnownUser(const std::string& deviceId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return FindUser(deviceId) != nullptr;
}

bool ShareManagerState::Prepare(const std::string& deviceId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (!switch_.enabled || FindUser(deviceId) == nullptr) {
        return false;
    }
    prepared_.insert(deviceId);
    return true;
}

bool ShareManagerState::StartSending(const std::string& deviceId, const TransferPayload& payload)
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (!switch_.enabled || prepared_.count(deviceId) == 0) {
        return false;
    }
    sending_[deviceId] = payload;
    return true;
}

bool ShareManagerState::CancelSending(const std::string& deviceId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    prepared_.erase(deviceId);
    return sending_.erase(deviceId) > 0;
}

bool ShareManagerState::AddEvent(const std::string& event)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return !event.empty() && events_.insert(event).second;
}

bool ShareManagerState::RemoveEvent(const std::string& event)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return events_.erase(event) > 0;
}

bool ShareManagerState::AddShareEvent(int32_t eventType, int32_t eventId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return shareEvents_.emplace(eventType, eventId).second;
}

bool ShareManagerState::RemoveShareEvent(int32_t eventType, int32_t eventId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return shareEvents_.erase({eventType, eventId}) > 0;
}

std::string ShareManagerState::PreviewData()
{
    return previewData_;
}

AccountEntry ShareManagerState::Account()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return account_;
}

void ShareManagerState::SetAccountPermission(int32_t permission)
{
    // The account's status is what the user allowed the share service to do with it.
    std::lock_guard<std::mutex> lock(mutex_);
    account_.status = permission;
}

nlohmann::ordered_json ShareManagerState::Dump()
{
    std::lock_guard<std::mutex> lock(mutex_);
    nlohmann::ordered_json dump;
    dump["sharingSwitch"] = JsonFieldWriter::Write(switch_);
    for (const auto& [name, kind] : CALLBACK_KINDS) {
        dump["callbacks"][name] = callbacks_.Count(kind);
    }
    dump["discovering"] = discovering_;
    dump["connected"] = connected_;
    nlohmann::ordered_json& users = dump["users"] = nlohmann::ordered_json::array();
    for (const UserEntry& user : users_) {
        users.push_back(user.deviceId);
    }
    dump["prepared"] = prepared_;
    nlohmann::ordered_json& sending = dump["sending"] = nlohmann::ordered_json::array();
    for (const auto& [deviceId, payload] : sending_) {
        nlohmann::ordered_json entry = {{"deviceId", deviceId}};
        entry.update(JsonFieldWriter::Write(payload));
        sending.push_back(entry);
    }
    dump["events"] = events_;
    dump["shareEvents"] = shareEvents_;
    dump["account"] = JsonFieldWriter::Write(account_);
    dump["previewDataBytes"] = previewData_.size();
    return dump;
}

} // namespace Zelkon
} // namespace OHOS
