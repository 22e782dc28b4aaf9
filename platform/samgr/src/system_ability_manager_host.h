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
 * Host: the system ability manager of the emulated device. Every ability lives "in another process": callers
 * get the remote object that stands for it. Scripted by SamgrHostControl. Served to other processes, it starts
 * abilities as processes of their own and forgets an ability when its process ends.
 *
 * Each job is a part of its own: the registry of abilities, their loading, the scripted faults, the call
 * counters, the processes started for abilities, and the socket server.
 */
#ifndef OHOS_SAMGR_SYSTEM_ABILITY_MANAGER_HOST_H
#define OHOS_SAMGR_SYSTEM_ABILITY_MANAGER_HOST_H

#include <string>
#include <sys/types.h>
#include <vector>

#include "ability_loader.h"
#include "ability_registry.h"
#include "call_counters.h"
#include "if_system_ability_manager.h"
#include "iremote_stub.h"
#include "process_supervisor.h"
#include "samgr_host_control.h"
#include "samgr_socket_server.h"
#include "scripted_faults.h"

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
    // LoadSystemAbility with the callback's remote object, as another process sends it.
    int32_t Load(int32_t systemAbilityId, const sptr<IRemoteObject>& callback);

    bool ServeAcrossProcesses(const std::string& socketPath);
    bool IsServing();
    void RegisterProcess(int32_t systemAbilityId, SamgrHostControl::CommandLine commandLine);
    void StartAhead(int32_t systemAbilityId, const std::string& executable);
    void RegisterLoader(int32_t systemAbilityId, SamgrHostControl::Loader loader);
    // False (logged) for a count out of bounds.
    bool ScriptLoads(const LoadScript& script, int count);
    void SetUnavailable(bool unavailable);
    bool IsUnavailable();
    void SetDeathRecipientsRefused(bool refused);
    // -1 if the ability was not running, 0 if it ran in this process, else the pid of the process killed (its end
    // seen here by the time this returns).
    pid_t Kill(int32_t systemAbilityId);
    // Whether process pid is one that the manager started for an ability.
    bool HasStarted(pid_t pid);
    // The process that holds the running ability: this one's pid for an ability of this process, 0 if none runs.
    pid_t HolderOf(int32_t systemAbilityId);
    // Whether the manager knows how to start the ability.
    bool HasProfile(int32_t systemAbilityId);
    int LookupCount(int32_t systemAbilityId);
    int LoadCount(int32_t systemAbilityId);
    void Reset();

private:
    SystemAbilityManagerHost();

    AbilityRegistry registry_;
    ScriptedFaults faults_;
    CallCounters counters_;
    ProcessSupervisor processes_;
    AbilityLoader loader_;
    const sptr<SamgrSocketServer> server_;
};

} // namespace OHOS

#endif // OHOS_SAMGR_SYSTEM_ABILITY_MANAGER_HOST_H
