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

    // The manager reached first, kept (even after it died) until DestroySystemAbilityManagerObject; null when the
    // manager cannot be reached.
    sptr<ISystemAbilityManager> GetSystemAbilityManager();
    sptr<IRemoteObject> GetRegistryRemoteObject();
    // Drops the kept manager: the next GetSystemAbilityManager reaches it anew.
    void DestroySystemAbilityManagerObject();

private:
    SystemAbilityManagerClient() = default;
    ~SystemAbilityManagerClient() = default;
    SystemAbilityManagerClient(const SystemAbilityManagerClient&) = delete;
    SystemAbilityManagerClient& operator=(const SystemAbilityManagerClient&) = delete;

    sptr<ISystemAbilityManager> systemAbilityManager_;
    std::mutex systemAbilityManagerLock_;
};

} // namespace OHOS

#endif // OHOS_SAMGR_ISERVICE_REGISTRY_H
