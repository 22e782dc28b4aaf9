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
 * What the emulated share manager service knows: the sharing switch, the users nearby and those being sent to,
 * registered callbacks and subscriptions, the preview data and the account. Every operation is atomic under one
 * lock; the callbacks are a registry with a lock of its own.
 */
#ifndef SHARE_MANAGER_STATE_H
#define SHARE_MANAGER_STATE_H

#include <cstdint>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "emulated_records.h"
#include "emulated_world.h"
#include "iremote_object.h"
#include "remote_registry.h"

namespace OHOS {
namespace Zelkon {

class ShareManagerState {
public:
    enum class CallbackKind { WIDGET, VX_WIDGET, SENDER_ACTION, SHARE_API };

    explicit ShareManagerState(const EmulatedWorld& world);

    void SetEnable(int32_t state, bool enable);
    bool IsEnabled();
    int32_t EnableState();

    RemoteRegistry<CallbackKind>& Callbacks() { return callbacks_; }

    // False when the flag already had that value.
    bool SetDiscovering(bool discovering);
    bool SetConnected(bool connected);

    std::vector<UserEntry> AllUsers();
    std::vector<UserEntry> SendingUsers();
    bool IsKnownUser(const std::string& deviceId);
    // Sending needs a prepared device; a transfer puts the device on the sending list, a cancel takes it off.
    bool Prepare(const std::string& deviceId);
    bool StartSending(const std::string& deviceId, const TransferPayload& payload);
    bool CancelSending(const std::string& deviceId);

    bool AddEvent(const std::string& event);
    bool RemoveEvent(const std::string& event);
    bool AddShareEvent(int32_t eventType, int32_t eventId);
    bool RemoveShareEvent(int32_t eventType, int32_t eventId);

    std::string PreviewData();
    AccountEntry Account();
    void SetAccountPermission(int32_t permission);

    // Everything above, for a dump; users by their ids, the preview data by its size.
    nlohmann::ordered_json Dump();

private:
    const UserEntry* FindUser(const std::string& deviceId) const;

    std::mutex mutex_;
    SharingSwitch switch_;
    RemoteRegistry<CallbackKind> callbacks_;
    bool discovering_ = false;
    bool connected_ = false;
    std::vector<UserEntry> users_;
    std::set<std::string> prepared_;
    std::map<std::string, TransferPayload> sending_;
    std::set<std::string> events_;
    std::set<std::pair<int32_t, int32_t>> shareEvents_;
    const std::string previewData_;
    AccountEntry account_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_MANAGER_STATE_H
