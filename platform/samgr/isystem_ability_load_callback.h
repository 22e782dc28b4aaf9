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
        ON_LOAD_SYSTEM_ABILITY_FAIL_WITH_ERRCODE = 4,
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
