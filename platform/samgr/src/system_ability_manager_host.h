/*
 * Host: the system ability manager of the emulated device. Every ability lives "in another process": callers
 * get the remote object that stands for it. Scripted by SamgrHostControl.
 */
#ifndef OHOS_SAMGR_SYSTEM_ABILITY_MANAGER_HOST_H
#define OHOS_SAMGR_SYSTEM_ABILITY_MANAGER_HOST_H

#include <deque>
#include <map>
#include <mutex>

#include "if_system_ability_manager.h"
#include "iremote_stub.h"
#include "samgr_host_control.h"

namespace OHOS {

class SystemAbilityManagerHost : public IRemoteStub<ISystemAbilityManager> {
public:
    static SystemAbilityManagerHost& Instance();

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

    void RegisterLoader(int32_t systemAbilityId, SamgrHostControl::Loader loader);
    void ScriptLoads(const LoadScript& script, int count);
    void SetUnavailable(bool unavailable);
    bool IsUnavailable();
    void SetDeathRecipientsRefused(bool refused);
    bool Kill(int32_t systemAbilityId);
    int LookupCount(int32_t systemAbilityId);
    int LoadCount(int32_t systemAbilityId);
    void Reset();

private:
    SystemAbilityManagerHost() = default;

    sptr<IRemoteObject> Lookup(int32_t systemAbilityId);
    // The running ability, or the one its loader starts now; null if neither.
    sptr<IRemoteObject> FindOrStart(int32_t systemAbilityId);
    sptr<IRemoteObject> Publish(int32_t systemAbilityId, const sptr<IRemoteObject>& ability);
    void DeliverLoad(int32_t systemAbilityId, const sptr<ISystemAbilityLoadCallback>& callback,
                     const LoadScript& script);

    std::mutex mutex_;
    // Serialises starts, so concurrent loads of an ability that is not running start one process, not two.
    std::mutex startMutex_;
    std::map<int32_t, sptr<IRemoteObject>> abilities_;
    std::map<int32_t, SamgrHostControl::Loader> loaders_;
    std::deque<LoadScript> scripts_;
    std::map<int32_t, int> lookups_;
    std::map<int32_t, int> loads_;
    bool unavailable_ = false;
    bool deathRecipientsRefused_ = false;
};

} // namespace OHOS

#endif // OHOS_SAMGR_SYSTEM_ABILITY_MANAGER_HOST_H
