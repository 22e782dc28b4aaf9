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
 * Told the outcome of a LoadSystemAbility request.
 */
#ifndef OHOS_SAMGR_ISYSTEM_ABILITY_LOAD_CALLBACK_H
#define OHOS_SAMGR_ISYSTEM_ABILITY_LOAD_CALLBACK_H

#include <string>

#include "iremote_broker.h"
#include "iremote_object.h"

namespace OHOS {

class ISystemAbilityLoadCallback : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"OHOS.ISystemAbilityLoadCallback");

    enum {
        ON_LOAD_SYSTEM_ABILITY_SUCCESS = 1,
        ON_LOAD_SYSTEM_ABILITY_FAIL = 2,
        ON_LOAD_SYSTEM_ABILITY_COMPLETE_FOR_REMOTE = 3,
        ON_LOAD_SYSTEM_ABILITY_FAIL_WITH_CODE = 4,
    };

    virtual void OnLoadSystemAbilitySuccess(int32_t systemAbilityId, const sptr<IRemoteObject>& remoteObject)
    {
        (void)systemAbilityId;
        (void)remoteObject;
    }
    virtual void OnLoadSystemAbilityFail(int32_t systemAbilityId) { (void)systemAbilityId; }
    virtual void OnLoadSystemAbilityFail(int32_t systemAbilityId, int32_t errCode)
    {
        (void)errCode;
        OnLoadSystemAbilityFail(systemAbilityId);
    }
    virtual void OnLoadSACompleteForRemote(const std::string& deviceId, int32_t systemAbilityId,
                                           const sptr<IRemoteObject>& remoteObject)
    {
        (void)deviceId;
        (void)systemAbilityId;
        (void)remoteObject;
    }
};

} // namespace OHOS

#endif // OHOS_SAMGR_ISYSTEM_ABILITY_LOAD_CALLBACK_H
