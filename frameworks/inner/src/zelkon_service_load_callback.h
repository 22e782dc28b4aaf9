/*
 * Receives the outcome of a load request for the share service and hands it to the client.
 */
#ifndef ZELKON_SERVICE_LOAD_CALLBACK_H
#define ZELKON_SERVICE_LOAD_CALLBACK_H

#include "system_ability_load_callback_stub.h"

namespace OHOS {
namespace Zelkon {

class ZelkonServiceLoadCallback : public SystemAbilityLoadCallbackStub {
public:
    void OnLoadSystemAbilitySuccess(int32_t systemAbilityId, const sptr<IRemoteObject>& remoteObject) override;
    using SystemAbilityLoadCallbackStub::OnLoadSystemAbilityFail;
    void OnLoadSystemAbilityFail(int32_t systemAbilityId) override;
};

} // namespace Zelkon
} // namespace OHOS

#endif // ZELKON_SERVICE_LOAD_CALLBACK_H
