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
 * What one process of the emulated share service knows: its listeners, the devices discovery reported, its
 * transfers and the permanent devices. Every operation is atomic under one lock; the listeners are a registry with
 * a lock of its own.
 */
#ifndef SHARE_SERVICE_STATE_H
#define SHARE_SERVICE_STATE_H

#include <cstdint>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "emulated_records.h"
#include "iremote_object.h"
#include "remote_registry.h"

namespace OHOS {
namespace Zelkon {

class ShareServiceState {
public:
    enum class ListenerKind { PUBLISH, SUBSCRIBE, RECEIVE, COMMON_RECEIVE, SWING };

    explicit ShareServiceState(std::vector<PermanentEntry> permanentDevices);

    // The common receive listener is one slot: unregistering it clears its kind.
    RemoteRegistry<ListenerKind>& Listeners() { return listeners_; }

    // Refused from a caller that has not subscribed.
    bool AddFoundDevice(const FoundDevice& device, const sptr<IRemoteObject>& listener);
    bool ClearDiscovererFlag(const std::string& deviceId);
    std::vector<FoundDevice> FoundDevices();

    // The new transfer's id; it runs until cancelled.
    int32_t StartTransfer(const std::string& deviceId, const TransferPayload& payload);
    // The number of transfers with the device that were stopped.
    size_t CancelTransfers(const std::string& deviceId);
    size_t TransferCount();

    bool SetWifiScanning(const std::string& ifName, bool suspended);
    void SetDiscoveryPolicy(int32_t policy);
    void SetAccountPermission(int32_t permission);
    std::string PublishInfo();

    std::vector<PermanentEntry> PermanentDevices();
    bool RemovePermanentDevice(int32_t id);

    // Everything above, for a dump: listeners by kind, found devices, transfers, scans, settings, devices.
    nlohmann::ordered_json Dump();

private:
    struct Transfer {
        std::string deviceId;
        TransferPayload payload;
    };

    std::mutex mutex_;
    RemoteRegistry<ListenerKind> listeners_;
    std::vector<FoundDevice> foundDevices_;
    std::map<int32_t, Transfer> transfers_;
    int32_t nextTransferId_ = 1;
    std::set<std::string> suspendedScans_;
    int32_t discoveryPolicy_ = 0;
    int32_t accountPermission_ = 0;
    std::vector<PermanentEntry> permanentDevices_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_SERVICE_STATE_H
