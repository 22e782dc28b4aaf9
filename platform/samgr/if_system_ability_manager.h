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
 * The system ability manager: registry of the system abilities of the device, and their on-demand loader.
 */
#ifndef OHOS_SAMGR_IF_SYSTEM_ABILITY_MANAGER_H
#define OHOS_SAMGR_IF_SYSTEM_ABILITY_MANAGER_H

#include <string>
#include <vector>

#include "iremote_broker.h"
#include "iremote_object.h"
#include "isystem_ability_load_callback.h"

namespace OHOS {

class ISystemAbilityManager : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"OHOS.ISystemAbilityManager");

    static constexpr unsigned int DUMP_FLAG_PRIORITY_CRITICAL = 1 << 0;
    static constexpr unsigned int DUMP_FLAG_PRIORITY_HIGH = 1 << 1;
    static constexpr unsigned int DUMP_FLAG_PRIORITY_NORMAL = 1 << 2;
    static constexpr unsigned int DUMP_FLAG_PRIORITY_DEFAULT = 1 << 3;
    static constexpr unsigned int DUMP_FLAG_PRIORITY_ALL =
        DUMP_FLAG_PRIORITY_CRITICAL | DUMP_FLAG_PRIORITY_HIGH | DUMP_FLAG_PRIORITY_NORMAL | DUMP_FLAG_PRIORITY_DEFAULT;

    struct SAExtraProp {
        SAExtraProp() = default;
        SAExtraProp(bool isDistributed, unsigned int dumpFlags, const std::u16string& capability,
                    const std::u16string& permission) :
            isDistributed(isDistributed),
            dumpFlags(dumpFlags), capability(capability), permission(permission)
        {
        }
        bool isDistributed = false;
        unsigned int dumpFlags = DUMP_FLAG_PRIORITY_DEFAULT;
        std::u16string capability;
        std::u16string permission;
    };

    virtual std::vector<std::u16string> ListSystemAbilities(unsigned int dumpFlags = DUMP_FLAG_PRIORITY_ALL) = 0;
    // May wait for the ability to start; null if it does not.
    virtual sptr<IRemoteObject> GetSystemAbility(int32_t systemAbilityId) = 0;
    virtual sptr<IRemoteObject> GetSystemAbility(int32_t systemAbilityId, const std::string& deviceId) = 0;
    // The running ability or null; never loads, never waits.
    virtual sptr<IRemoteObject> CheckSystemAbility(int32_t systemAbilityId) = 0;
    virtual sptr<IRemoteObject> CheckSystemAbility(int32_t systemAbilityId, const std::string& deviceId) = 0;
    virtual sptr<IRemoteObject> CheckSystemAbility(int32_t systemAbilityId, bool& isExist) = 0;
    virtual int32_t RemoveSystemAbility(int32_t systemAbilityId) = 0;
    virtual int32_t AddSystemAbility(int32_t systemAbilityId, const sptr<IRemoteObject>& ability,
                                     const SAExtraProp& extraProp = SAExtraProp(false, DUMP_FLAG_PRIORITY_DEFAULT, u"",
                                                                                u"")) = 0;
    // Waits up to `timeout` seconds for the ability.
    virtual sptr<IRemoteObject> LoadSystemAbility(int32_t systemAbilityId, int32_t timeout) = 0;
    // 0 when accepted: the outcome arrives later through the callback, on an IPC thread, once however often the
    // same callback asks while the ability starts. PROFILE_NOT_EXIST, and no callback, for an id the manager cannot
    // load; the IPC error if the request fails.
    virtual int32_t LoadSystemAbility(int32_t systemAbilityId, const sptr<ISystemAbilityLoadCallback>& callback) = 0;
    virtual int32_t LoadSystemAbility(int32_t systemAbilityId, const std::string& deviceId,
                                      const sptr<ISystemAbilityLoadCallback>& callback) = 0;
    virtual int32_t UnloadSystemAbility(int32_t systemAbilityId) = 0;
};

} // namespace OHOS

#endif // OHOS_SAMGR_IF_SYSTEM_ABILITY_MANAGER_H
