/*
 * Entry point to the system ability manager of the device.
 */
#ifndef OHOS_SAMGR_ISERVICE_REGISTRY_H
#define OHOS_SAMGR_ISERVICE_REGISTRY_H

#include <mutex>

#include "if_system_ability_manager.h"
#include "refbase.h"

namespace OHOS {

class SystemAbilityManagerClient {
public:
    static SystemAbilityManagerClient& GetInstance();

    // Null when the manager cannot be reached.
    sptr<ISystemAbilityManager> GetSystemAbilityManager();
    sptr<IRemoteObject> GetRegistryRemoteObject();
    void DestroySystemAbilityManagerObject();

private:
    SystemAbilityManagerClient() = default;
    ~SystemAbilityManagerClient() = default;
    SystemAbilityManagerClient(const SystemAbilityManagerClient&) = delete;
    SystemAbilityManagerClient& operator=(const SystemAbilityManagerClient&) = delete;
};

} // namespace OHOS

#endif // OHOS_SAMGR_ISERVICE_REGISTRY_H
