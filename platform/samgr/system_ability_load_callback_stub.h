/*
 * The local end of a load callback: decodes the outcome samgr sends and calls the matching method.
 */
#ifndef OHOS_SAMGR_SYSTEM_ABILITY_LOAD_CALLBACK_STUB_H
#define OHOS_SAMGR_SYSTEM_ABILITY_LOAD_CALLBACK_STUB_H

#include "iremote_stub.h"
#include "isystem_ability_load_callback.h"

namespace OHOS {

class SystemAbilityLoadCallbackStub : public IRemoteStub<ISystemAbilityLoadCallback> {
public:
    int32_t OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override;

private:
    static bool CheckInputSystemAbilityId(int32_t systemAbilityId);
    int32_t OnLoadSystemAbilitySuccessInner(MessageParcel& data, MessageParcel& reply);
    int32_t OnLoadSystemAbilityFailInner(MessageParcel& data, MessageParcel& reply);
    int32_t OnLoadSystemAbilityFailWithCodeInner(MessageParcel& data, MessageParcel& reply);
    int32_t OnLoadSACompleteForRemoteInner(MessageParcel& data, MessageParcel& reply);
};

} // namespace OHOS

#endif // OHOS_SAMGR_SYSTEM_ABILITY_LOAD_CALLBACK_STUB_H
