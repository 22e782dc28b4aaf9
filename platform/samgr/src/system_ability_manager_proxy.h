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
 * Host: the system ability manager of another process (the host samgr), reached over its socket; and the host
 * controls that a process across the boundary may use.
 */
#ifndef OHOS_SAMGR_SYSTEM_ABILITY_MANAGER_PROXY_H
#define OHOS_SAMGR_SYSTEM_ABILITY_MANAGER_PROXY_H

#include <functional>

#include "if_system_ability_manager.h"
#include "iremote_proxy.h"
#include "message_parcel.h"
#include "samgr_host_code.h"
#include "samgr_host_control.h"

namespace OHOS {

class SystemAbilityManagerProxy : public IRemoteProxy<ISystemAbilityManager> {
public:
    explicit SystemAbilityManagerProxy(const sptr<IRemoteObject>& remote) : IRemoteProxy(remote) {}

    std::vector<std::u16string> ListSystemAbilities(unsigned int dumpFlags) override;
    sptr<IRemoteObject> GetSystemAbility(int32_t systemAbilityId) override;
    sptr<IRemoteObject> GetSystemAbility(int32_t systemAbilityId, const std::string& deviceId) override;
    sptr<IRemoteObject> CheckSystemAbility(int32_t systemAbilityId) override;
    sptr<IRemoteObject> CheckSystemAbility(int32_t systemAbilityId, const std::string& deviceId) override;
    sptr<IRemoteObject> CheckSystemAbility(int32_t systemAbilityId, bool& isExist) override;
    int32_t RemoveSystemAbility(int32_t systemAbilityId) override;
    int32_t AddSystemAbility(int32_t systemAbilityId, const sptr<IRemoteObject>& ability,
                             const SAExtraProp& extraProp) override;
    sptr<IRemoteObject> LoadSystemAbility(int32_t systemAbilityId, int32_t timeout) override;
    int32_t LoadSystemAbility(int32_t systemAbilityId, const sptr<ISystemAbilityLoadCallback>& callback) override;
    int32_t LoadSystemAbility(int32_t systemAbilityId, const std::string& deviceId,
                              const sptr<ISystemAbilityLoadCallback>& callback) override;
    int32_t UnloadSystemAbility(int32_t systemAbilityId) override;

    void ScriptLoads(const LoadScript& script, int count);
    // The pid of the process that the manager killed, or -1.
    pid_t Kill(int32_t systemAbilityId);
    int LookupCount(int32_t systemAbilityId);
    int LoadCount(int32_t systemAbilityId);

private:
    // Sends the request that `write` fills after the token: ERR_NONE, or the error (logged) that kept it from being
    // written or answered.
    int Transact(SamgrHostCode code, const std::function<bool(MessageParcel&)>& write, MessageParcel& reply);
    // The int32 that the request's reply holds, or `failure`.
    int32_t TransactInt(SamgrHostCode code, int32_t systemAbilityId, int32_t failure);
    sptr<IRemoteObject> TransactObject(SamgrHostCode code, int32_t systemAbilityId);
};

} // namespace OHOS

#endif // OHOS_SAMGR_SYSTEM_ABILITY_MANAGER_PROXY_H
