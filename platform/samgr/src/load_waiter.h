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
