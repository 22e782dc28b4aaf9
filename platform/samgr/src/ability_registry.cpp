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

#include "ability_registry.h"

#include <utility>

#include "ipc_host_transport.h"
#include "ipc_object_proxy.h"
#include "process_boundary.h"
#include "samgr_log.h"

namespace OHOS {

// Forgets an ability whose process ended, so that the next load starts it again.
class AbilityRegistry::AbilityDeath : public IRemoteObject::DeathRecipient {
public:
    AbilityDeath(AbilityRegistry& registry, int32_t systemAbilityId) :
        registry_(registry), systemAbilityId_(systemAbilityId)
    {
    }
    void OnRemoteDied(const wptr<IRemoteObject>& object) override { registry_.Forget(systemAbilityId_, object); }

private:
    AbilityRegistry& registry_;
    const int32_t systemAbilityId_;
};

AbilityRegistry::AbilityRegistry(Forgotten forgotten) : forgotten_(std::move(forgotten)) {}

std::vector<int32_t> AbilityRegistry::Ids()
{
    std::lock_guard<std::mutex> lock(mutex_);
    std::vector<int32_t> ids;
    for (const auto& [id, ability] : abilities_) {
        ids.push_back(id);
    }
    return ids;
}

sptr<IRemoteObject> AbilityRegistry::Running(int32_t systemAbilityId)
{
    pid_t ended = -1;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        auto it = abilities_.find(systemAbilityId);
        if (it == abilities_.end()) {
            return nullptr;
        }
        // A process that ended a moment ago may not have been forgotten yet, nor its death notice delivered.
        if (!IpcHostTransport::HasProcessEnded(it->second)) {
            return it->second;
        }
        ended = IpcHostTransport::PeerPid(it->second);
        abilities_.erase(it);
    }
    // Its death notice will find it forgotten already: its process is told of here.
    forgotten_(systemAbilityId, ended);
    return nullptr;
}

void AbilityRegistry::Forget(int32_t systemAbilityId, const wptr<IRemoteObject>& object)
{
    pid_t pid = -1;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        auto it = abilities_.find(systemAbilityId);
        if (it == abilities_.end() || it->second != object.promote()) {
            return;
        }
        SAMGR_HOST_LOGW("the process of system ability %{public}d ended", systemAbilityId);
        pid = IpcHostTransport::PeerPid(it->second);
        abilities_.erase(it);
    }
    forgotten_(systemAbilityId, pid);
}

sptr<IRemoteObject> AbilityRegistry::Publish(int32_t systemAbilityId, const sptr<IRemoteObject>& ability)
{
    sptr<IRemoteObject> remote = ProcessBoundary::Translate(ability);
    std::lock_guard<std::mutex> lock(mutex_);
    if (auto* proxy = IPCObjectProxy::InProcessOf(remote.GetRefPtr()); proxy != nullptr) {
        proxy->RefuseDeathRecipients(deathRecipientsRefused_);
    } else if (auto known = abilities_.find(systemAbilityId); known == abilities_.end() || known->second != remote) {
        if (!remote->AddDeathRecipient(new AbilityDeath(*this, systemAbilityId))) {
            SAMGR_HOST_LOGE("system ability %{public}d died as it was added", systemAbilityId);
            return nullptr;
        }
    }
    abilities_[systemAbilityId] = remote;
    added_.notify_all();
    return remote;
}

bool AbilityRegistry::Remove(int32_t systemAbilityId)
{
    // Released after the lock: the last reference to a remote object may reach its process.
    sptr<IRemoteObject> removed = Take(systemAbilityId);
    return removed != nullptr;
}

sptr<IRemoteObject> AbilityRegistry::Take(int32_t systemAbilityId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = abilities_.find(systemAbilityId);
    if (it == abilities_.end()) {
        return nullptr;
    }
    sptr<IRemoteObject> ability = std::move(it->second);
    abilities_.erase(it);
    return ability;
}

sptr<IRemoteObject> AbilityRegistry::WaitForAddedBy(int32_t systemAbilityId, pid_t pid,
                                                    std::chrono::milliseconds timeout)
{
    std::unique_lock<std::mutex> lock(mutex_);
    const auto added = [this, systemAbilityId, pid] {
        auto it = abilities_.find(systemAbilityId);
        return it != abilities_.end() && IpcHostTransport::PeerPid(it->second) == pid;
    };
    return added_.wait_for(lock, timeout, added) ? abilities_.find(systemAbilityId)->second : nullptr;
}

void AbilityRegistry::SetDeathRecipientsRefused(bool refused)
{
    std::lock_guard<std::mutex> lock(mutex_);
    deathRecipientsRefused_ = refused;
    for (const auto& [id, ability] : abilities_) {
        if (auto* proxy = IPCObjectProxy::InProcessOf(ability.GetRefPtr()); proxy != nullptr) {
            proxy->RefuseDeathRecipients(refused);
        }
    }
}

std::map<int32_t, sptr<IRemoteObject>> AbilityRegistry::TakeAll()
{
    std::map<int32_t, sptr<IRemoteObject>> abilities;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        abilities.swap(abilities_);
        deathRecipientsRefused_ = false;
    }
    for (const auto& [id, ability] : abilities) {
        if (auto* proxy = IPCObjectProxy::InProcessOf(ability.GetRefPtr()); proxy != nullptr) {
            proxy->RefuseDeathRecipients(false);
        }
    }
    return abilities;
}

} // namespace OHOS
