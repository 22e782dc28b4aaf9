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
 * Host: how many connections this process serves for each peer. Every accepted connection holds a thread and a
 * descriptor for as long as it lasts, so each peer uid, and each peer process within it, gets a bounded share: a
 * process that opens connections without end is refused beyond its share, and the user's other processes still get
 * through. A refusal is logged once per burst.
 */
#ifndef OHOS_IPC_CONNECTION_QUOTA_H
#define OHOS_IPC_CONNECTION_QUOTA_H

#include <chrono>
#include <cstddef>
#include <map>
#include <memory>
#include <mutex>
#include <sys/types.h>

#include "peer_credentials.h"

namespace OHOS {

class ConnectionQuota {
public:
    // Both admitted uids (the user's and root) at their bound stay well below the usual limit of 1,024 descriptors.
    static constexpr size_t PER_UID = 256;
    // Far above what one process uses (one session and a channel per thread that calls at the same time: a device's
    // binder serves 16 at once), and half of its uid's share, so that one runaway process leaves room for the rest.
    static constexpr size_t PER_PROCESS = PER_UID / 2;
    // Refusals less than this apart are one burst, logged once.
    static constexpr std::chrono::seconds BURST_GAP{1};

    // A connection's place in the quota, given back to it when the last copy goes: the quota outlives its slots.
    using Slot = std::shared_ptr<const PeerCredentials>;

    static ConnectionQuota& OfProcess();

    // The peer's slot, or null if it already holds its share (logged once per burst).
    Slot Take(const PeerCredentials& peer);

private:
    using Clock = std::chrono::steady_clock;
    struct Usage {
        size_t count = 0;
        Clock::time_point lastRefusal{};
        bool refused = false;
    };

    static void Refuse(Usage& usage, const PeerCredentials& peer, const char* share);
    void Release(const PeerCredentials& peer);

    std::mutex mutex_;
    std::map<uid_t, Usage> byUid_;
    std::map<pid_t, Usage> byPid_;
};

} // namespace OHOS

#endif // OHOS_IPC_CONNECTION_QUOTA_H
