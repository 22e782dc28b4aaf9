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

#include "iservice_registry.h"

#include <mutex>

#include "host_samgr_connection.h"
#include "samgr_log.h"
#include "system_ability_manager_host.h"

namespace OHOS {
namespace {
// The manager of another process when this one is told to use it, else this process's own.
sptr<ISystemAbilityManager> Reach()
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
} // namespace

SystemAbilityManagerClient& SystemAbilityManagerClient::GetInstance()
{
    static SystemAbilityManagerClient* instance = new SystemAbilityManagerClient();
    return *instance;
}

sptr<ISystemAbilityManager> SystemAbilityManagerClient::GetSystemAbilityManager()
{
    std::lock_guard<std::mutex> lock(systemAbilityManagerLock_);
    if (systemAbilityManager_ == nullptr) {
        systemAbilityManager_ = Reach();
    }
    return systemAbilityManager_;
}

sptr<IRemoteObject> SystemAbilityManagerClient::GetRegistryRemoteObject()
{
    sptr<ISystemAbilityManager> manager = GetSystemAbilityManager();
    return manager != nullptr ? manager->AsObject() : nullptr;
}

void SystemAbilityManagerClient::DestroySystemAbilityManagerObject()
{
    std::lock_guard<std::mutex> lock(systemAbilityManagerLock_);
    systemAbilityManager_ = nullptr;
}

} // namespace OHOS
