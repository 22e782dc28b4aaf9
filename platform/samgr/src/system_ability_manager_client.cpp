#include "iservice_registry.h"

#include "host_samgr_connection.h"
#include "samgr_log.h"
#include "system_ability_manager_host.h"

namespace OHOS {

SystemAbilityManagerClient& SystemAbilityManagerClient::GetInstance()
{
    static SystemAbilityManagerClient* instance = new SystemAbilityManagerClient();
    return *instance;
}

sptr<ISystemAbilityManager> SystemAbilityManagerClient::GetSystemAbilityManager()
{
    if (HostSamgrConnection::IsAcrossProcesses()) {
        return HostSamgrConnection::Manager();
    }
    SystemAbilityManagerHost& manager = SystemAbilityManagerHost::Instance();
    if (manager.IsUnavailable()) {
        SAMGR_HOST_LOGE("system ability manager is not reachable");
        return nullptr;
    }
    return &manager;
}

sptr<IRemoteObject> SystemAbilityManagerClient::GetRegistryRemoteObject()
{
    sptr<ISystemAbilityManager> manager = GetSystemAbilityManager();
    return manager != nullptr ? manager->AsObject() : nullptr;
}

void SystemAbilityManagerClient::DestroySystemAbilityManagerObject() {}

} // namespace OHOS
