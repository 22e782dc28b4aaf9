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
 * Host: loads abilities on demand. Holds how each loadable ability is started (its loader), starts one that is
 * not running, and tells a load request's callback the outcome, as scripted faults may change it.
 */
#ifndef OHOS_SAMGR_ABILITY_LOADER_H
#define OHOS_SAMGR_ABILITY_LOADER_H

#include <cstdint>
#include <map>
#include <mutex>

#include "ability_registry.h"
#include "call_counters.h"
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
    // 0 when accepted: the outcome reaches the callback later, on an IPC thread.
    int32_t Load(int32_t systemAbilityId, const sptr<IRemoteObject>& callback);
    void Reset();

private:
    void DeliverLoad(int32_t systemAbilityId, const sptr<IRemoteObject>& callback, const LoadScript& script);

    AbilityRegistry& registry_;
    ScriptedFaults& faults_;
    CallCounters& counters_;
    std::mutex mutex_;
    // Serialises starts, so concurrent loads of an ability that is not running start one process, not two.
    std::mutex startMutex_;
    std::map<int32_t, SamgrHostControl::Loader> loaders_;
};

} // namespace OHOS

#endif // OHOS_SAMGR_ABILITY_LOADER_H
