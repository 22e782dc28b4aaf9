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
 * Host: loads abilities on demand. Holds how each loadable ability is started (its loader, the host's profile of
 * it), starts one that is not running, and tells a load request's callback the outcome, one-way, as scripted faults
 * may change it (through a LoadNotifier, so that a callback that never takes it holds no IPC thread).
 */
#ifndef OHOS_SAMGR_ABILITY_LOADER_H
#define OHOS_SAMGR_ABILITY_LOADER_H

#include <cstdint>
#include <map>
#include <mutex>
#include <vector>

#include "ability_registry.h"
#include "call_counters.h"
#include "load_notifier.h"
#include "samgr_host_control.h"
#include "scripted_faults.h"

namespace OHOS {

class AbilityLoader {
public:
    AbilityLoader(AbilityRegistry& registry, ScriptedFaults& faults, CallCounters& counters) :
        registry_(registry), faults_(faults), counters_(counters)
    {
    }

    void RegisterLoader(int32_t systemAbilityId, SamgrHostControl::Loader loader);
    // The running ability, or the one its loader starts now; null if neither.
    sptr<IRemoteObject> FindOrStart(int32_t systemAbilityId);
    // 0 when accepted: the outcome reaches the callback later, on an IPC thread, once for each callback of an
    // ability that is starting. PROFILE_NOT_EXIST, and no callback, for an id without a loader.
    int32_t Load(int32_t systemAbilityId, const sptr<IRemoteObject>& callback);
    bool HasProfile(int32_t systemAbilityId);
    void Reset();

private:
    // False if the callback waits for the ability's start already.
    bool AwaitStart(int32_t systemAbilityId, const sptr<IRemoteObject>& callback);
    void StopAwaiting(int32_t systemAbilityId, const sptr<IRemoteObject>& callback);
    void DeliverLoad(int32_t systemAbilityId, const sptr<IRemoteObject>& callback, const LoadScript& script);

    AbilityRegistry& registry_;
    ScriptedFaults& faults_;
    CallCounters& counters_;
    LoadNotifier notifier_;
    std::mutex mutex_;
    // Serialises starts, so concurrent loads of an ability that is not running start one process, not two.
    std::mutex startMutex_;
    std::map<int32_t, SamgrHostControl::Loader> loaders_;
    // The callbacks of each ability that is starting, told when it has started or failed to.
    std::map<int32_t, std::vector<sptr<IRemoteObject>>> awaiting_;
};

} // namespace OHOS

#endif // OHOS_SAMGR_ABILITY_LOADER_H
