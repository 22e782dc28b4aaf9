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

#include "load_waiter.h"

namespace OHOS {

sptr<IRemoteObject> LoadWaiter::Load(ISystemAbilityManager& manager, int32_t systemAbilityId, int32_t timeout)
{
    sptr<LoadWaiter> waiter = new LoadWaiter();
    if (manager.LoadSystemAbility(systemAbilityId, sptr<ISystemAbilityLoadCallback>(waiter)) != ERR_OK) {
        return nullptr;
    }
    std::unique_lock<std::mutex> lock(waiter->mutex_);
    waiter->done_.wait_for(lock, std::chrono::seconds(timeout), [&waiter] { return waiter->finished_; });
    return waiter->object_;
}

void LoadWaiter::OnLoadSystemAbilitySuccess(int32_t systemAbilityId, const sptr<IRemoteObject>& remoteObject)
{
    (void)systemAbilityId;
    Finish(remoteObject);
}

void LoadWaiter::OnLoadSystemAbilityFail(int32_t systemAbilityId)
{
    (void)systemAbilityId;
    Finish(nullptr);
}

void LoadWaiter::Finish(const sptr<IRemoteObject>& object)
{
    std::lock_guard<std::mutex> lock(mutex_);
    object_ = object;
    finished_ = true;
    done_.notify_all();
}

} // namespace OHOS
