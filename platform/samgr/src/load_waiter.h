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
 * Host: LoadSystemAbility with a timeout, over the asynchronous load of any system ability manager.
 */
#ifndef OHOS_SAMGR_LOAD_WAITER_H
#define OHOS_SAMGR_LOAD_WAITER_H

#include <chrono>
#include <condition_variable>
#include <mutex>

#include "if_system_ability_manager.h"
#include "system_ability_load_callback_stub.h"

namespace OHOS {

class LoadWaiter : public SystemAbilityLoadCallbackStub {
public:
    // The loaded ability, or null if the load is refused, fails or takes longer than `timeout` seconds.
    static sptr<IRemoteObject> Load(ISystemAbilityManager& manager, int32_t systemAbilityId, int32_t timeout);

    using SystemAbilityLoadCallbackStub::OnLoadSystemAbilityFail;
    void OnLoadSystemAbilitySuccess(int32_t systemAbilityId, const sptr<IRemoteObject>& remoteObject) override;
    void OnLoadSystemAbilityFail(int32_t systemAbilityId) override;

private:
    void Finish(const sptr<IRemoteObject>& object);

    std::mutex mutex_;
    std::condition_variable done_;
    bool finished_ = false;
    sptr<IRemoteObject> object_;
};

} // namespace OHOS

#endif // OHOS_SAMGR_LOAD_WAITER_H
