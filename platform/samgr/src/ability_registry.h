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
 * Host: the abilities the system ability manager knows, each as the remote object that stands for it. An ability
 * whose process ends is forgotten.
 */
#ifndef OHOS_SAMGR_ABILITY_REGISTRY_H
#define OHOS_SAMGR_ABILITY_REGISTRY_H

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <sys/types.h>
#include <vector>

#include "iremote_object.h"

namespace OHOS {

class AbilityRegistry {
public:
    // Told the id of an ability forgotten because its process (pid, or -1 if unknown) ended.
    using Forgotten = std::function<void(int32_t systemAbilityId, pid_t pid)>;

    explicit AbilityRegistry(Forgotten forgotten);

    std::vector<int32_t> Ids();
    // The ability if it is registered and its object is alive.
    sptr<IRemoteObject> Running(int32_t systemAbilityId);
    // Registers the remote object that stands for `ability` and watches it for its death; null (logged) if it died
    // as it was added.
    sptr<IRemoteObject> Publish(int32_t systemAbilityId, const sptr<IRemoteObject>& ability);
    // False if the id was not registered.
    bool Remove(int32_t systemAbilityId);
    // The ability, no longer registered; null if it was not.
    sptr<IRemoteObject> Take(int32_t systemAbilityId);
    // Waits up to `timeout` for process pid to add the ability; null if it has not.
    sptr<IRemoteObject> WaitForAddedBy(int32_t systemAbilityId, pid_t pid, std::chrono::milliseconds timeout);
    // Applies to the in-process remote objects of every ability, present and future.
    void SetDeathRecipientsRefused(bool refused);
    // Every ability, no longer registered, and death recipients accepted again.
    std::map<int32_t, sptr<IRemoteObject>> TakeAll();

private:
    // Drops the ability if `object` is still the one registered for the id.
    void Forget(int32_t systemAbilityId, const wptr<IRemoteObject>& object);

    class AbilityDeath;

    const Forgotten forgotten_;
    std::mutex mutex_;
    std::condition_variable added_;
    std::map<int32_t, sptr<IRemoteObject>> abilities_;
    bool deathRecipientsRefused_ = false;
};

} // namespace OHOS

#endif // OHOS_SAMGR_ABILITY_REGISTRY_H
