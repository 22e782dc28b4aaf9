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

#include "share_service_state.h"

#include <algorithm>
#include <utility>

#include "emulated_record_fields.h"
#include "json_field_writer.h"

namespace OHOS {
namespace Zelkon {
namespace {
using ListenerKind = ShareServiceState::ListenerKind;

const std::vector<std::pair<const char*, ListenerKind>> LISTENER_KINDS = {
    {"publish", ListenerKind::PUBLISH}, {"subscribe", ListenerKind::SUBSCRIBE},
    {"receive", ListenerKind::RECEIVE}, {"commonReceive", ListenerKind::COMMON_RECEIVE},
    {"swing", ListenerKind::SWING},
};
} // namespace

ShareServiceState::ShareServiceState(std::vector<PermanentEntry> permanentDevices) :
    permanentDevices_(std::move(permanentDevices))
{
}

bool ShareServiceState::AddFoundDevice(const FoundDevice& device, const sptr<IRemoteObject>& listener)
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (!listeners_.Contains(ListenerKind::SUBSCRIBE, listener)) {
        return false;
    }
    auto known = std::find_if(foundDevices_.begin(), foundDevices_.end(),
                              [&](const FoundDevice& found) { return found.deviceId == device.deviceId; });
    if (known != foundDevices_.end()) {
        *known = device;
    } else {
        foundDevices_.push_back(device);
    }
    return true;
}

bool ShareServiceState::ClearDiscovererFlag(const std::string& deviceId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return std::any_of(foundDevices_.begin(), foundDevices_.end(),
                       [&](const FoundDevice& found) { return found.deviceId == deviceId; });
}

std::vector<FoundDevice> ShareServiceState::FoundDevices()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return foundDevices_;
}

int32_t ShareServiceState::StartTransfer(const std::string& deviceId, const TransferPayload& payload)
{
    std::lock_guard<std::mutex> lock(mutex_);
    const int32_t id = nextTransferId_++;
    transfers_[id] = {deviceId, payload};
    return id;
}

size_t ShareServiceState::CancelTransfers(const std::string& deviceId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    size_t cancelled = 0;
    for (auto it = transfers_.begin(); it != transfers_.end();) {
        if (it->second.deviceId == deviceId) {
            it = transfers_.erase(it);
            ++cancelled;
        } else {
            ++it;
        }
    }
    return cancelled;
}

size_t ShareServiceState::TransferCount()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return transfers_.size();
}

bool ShareServiceState::SetWifiScanning(const std::string& ifName, bool suspended)
{
    if (ifName.empty()) {
        return false;
    }
    std::lock_guard<std::mutex> lock(mutex_);
    return suspended ? suspendedScans_.insert(ifName).second : suspendedScans_.erase(ifName) > 0;
}

void ShareServiceState::SetDiscoveryPolicy(int32_t policy)
{
    std::lock_guard<std::mutex> lock(mutex_);
    discoveryPolicy_ = policy;
}

void ShareServiceState::SetAccountPermission(int32_t permission)
{
    std::lock_guard<std::mutex> lock(mutex_);
    accountPermission_ = permission;
}

std::string ShareServiceState::PublishInfo()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return "{\"deviceName\":\"Emulated host\",\"publishers\":" +
           std::to_string(listeners_.Count(ListenerKind::PUBLISH)) +
           ",\"discoveryPolicy\":" + std::to_string(discoveryPolicy_) +
           ",\"accountPermission\":" + std::to_string(accountPermission_) + "}";
}

std::vector<PermanentEntry> ShareServiceState::PermanentDevices()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return permanentDevices_;
}

bool ShareServiceState::RemovePermanentDevice(int32_t id)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = std::find_if(permanentDevices_.begin(), permanentDevices_.end(),
                           [id](const PermanentEntry& entry) { return entry.id == id; });
    if (it == permanentDevices_.end()) {
        return false;
    }
    permanentDevices_.erase(it);
    return true;
}

nlohmann::ordered_json ShareServiceState::Dump()
{
    std::lock_guard<std::mutex> lock(mutex_);
    nlohmann::ordered_json dump;
    for (const auto& [name, kind] : LISTENER_KINDS) {
        dump["listeners"][name] = listeners_.Count(kind);
    }
    dump["foundDevices"] = JsonFieldWriter::Write(foundDevices_);
    nlohmann::ordered_json& transfers = dump["transfers"] = nlohmann::ordered_json::array();
    for (const auto& [id, transfer] : transfers_) {
        nlohmann::ordered_json entry = {{"id", id}, {"deviceId", transfer.deviceId}};
        entry.update(JsonFieldWriter::Write(transfer.payload));
        transfers.push_back(entry);
    }
    dump["suspendedWifiScans"] = suspendedScans_;
    dump["discoveryPolicy"] = discoveryPolicy_;
    dump["accountPermission"] = accountPermission_;
    dump["permanentDevices"] = JsonFieldWriter::Write(permanentDevices_);
    return dump;
}

} // namespace Zelkon
} // namespace OHOS
