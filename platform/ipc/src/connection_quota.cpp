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

#include "connection_quota.h"

#include <map>

#include "ipc_log.h"

namespace OHOS {
namespace {
// A peer with no connection left is forgotten, and with it its burst: it needs a full share to be refused again.
template <typename Key, typename Usage>
void Drop(std::map<Key, Usage>& usages, Key key)
{
    auto it = usages.find(key);
    if (it != usages.end() && --it->second.count == 0) {
        usages.erase(it);
    }
}
} // namespace

ConnectionQuota& ConnectionQuota::OfProcess()
{
    // Never destroyed: connections served by threads that outlive the statics still give their slots back.
    static ConnectionQuota* quota = new ConnectionQuota();
    return *quota;
}

ConnectionQuota::Slot ConnectionQuota::Take(const PeerCredentials& peer)
{
    std::lock_guard<std::mutex> lock(mutex_);
    Usage& ofUid = byUid_[peer.uid];
    Usage& ofPid = byPid_[peer.pid];
    const bool uidFull = ofUid.count >= PER_UID;
    if (uidFull || ofPid.count >= PER_PROCESS) {
        Refuse(uidFull ? ofUid : ofPid, peer, uidFull ? "its uid" : "its process");
        if (ofPid.count == 0) {
            byPid_.erase(peer.pid);
        }
        return nullptr;
    }
    ++ofUid.count;
    ++ofPid.count;
    return Slot(new PeerCredentials(peer), [this](const PeerCredentials* held) {
        Release(*held);
        delete held;
    });
}

void ConnectionQuota::Refuse(Usage& usage, const PeerCredentials& peer, const char* share)
{
    const Clock::time_point now = Clock::now();
    const bool burstStarts = !usage.refused || now - usage.lastRefusal >= BURST_GAP;
    usage.refused = true;
    usage.lastRefusal = now;
    if (burstStarts) {
        IPC_HOST_LOGE("refused a connection of uid %{public}d, pid %{public}d: %{public}s already holds %{public}zu, "
                      "the most this process serves (further refusals of this burst are not logged)",
                      static_cast<int>(peer.uid), static_cast<int>(peer.pid), share, usage.count);
    }
}

void ConnectionQuota::Release(const PeerCredentials& peer)
{
    std::lock_guard<std::mutex> lock(mutex_);
    Drop(byUid_, peer.uid);
    Drop(byPid_, peer.pid);
}

} // namespace OHOS
