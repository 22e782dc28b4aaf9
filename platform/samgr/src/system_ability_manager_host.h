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
 */
#ifndef OHOS_SAMGR_SYSTEM_ABILITY_MANAGER_HOST_H
#define OHOS_SAMGR_SYSTEM_ABILITY_MANAGER_HOST_H

#include <condition_variable>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <sys/types.h>

#include "child_process.h"
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
    // What other processes ask, when this process serves them.
    int OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override;

    bool ServeAcrossProcesses(const std::string& socketPath);
    bool IsServing();
    void RegisterProcess(int32_t systemAbilityId, SamgrHostControl::CommandLine commandLine);
    // Drops the ability if `object` is still the one registered for the id.
    void Forget(int32_t systemAbilityId, const wptr<IRemoteObject>& object);
    void RegisterLoader(int32_t systemAbilityId, SamgrHostControl::Loader loader);
    void ScriptLoads(const LoadScript& script, int count);
    void SetUnavailable(bool unavailable);
    bool IsUnavailable();
    void SetDeathRecipientsRefused(bool refused);
    // -1 if the ability was not running, 0 if it ran in this process, else the pid of the process killed (its end
    // seen here by the time this returns).
    pid_t Kill(int32_t systemAbilityId);
    int LookupCount(int32_t systemAbilityId);
    int LoadCount(int32_t systemAbilityId);
    void Reset();

private:
    SystemAbilityManagerHost() = default;

    // The ability if it is registered and its object is alive; called with mutex_ held.
    sptr<IRemoteObject> Running(int32_t systemAbilityId);
    sptr<IRemoteObject> Lookup(int32_t systemAbilityId);
    // The running ability, or the one its loader starts now; null if neither.
    sptr<IRemoteObject> FindOrStart(int32_t systemAbilityId);
    sptr<IRemoteObject> Publish(int32_t systemAbilityId, const sptr<IRemoteObject>& ability);
    int32_t Load(int32_t systemAbilityId, const sptr<IRemoteObject>& callback);
    void DeliverLoad(int32_t systemAbilityId, const sptr<IRemoteObject>& callback, const LoadScript& script);
    // Starts the ability's process and waits for it to add the ability.
    sptr<IRemoteObject> StartProcess(int32_t systemAbilityId, const std::vector<std::string>& commandLine);

    std::mutex mutex_;
    // Serialises starts, so concurrent loads of an ability that is not running start one process, not two.
    std::mutex startMutex_;
    std::map<int32_t, sptr<IRemoteObject>> abilities_;
    std::map<int32_t, SamgrHostControl::Loader> loaders_;
    std::map<int32_t, std::unique_ptr<ChildProcess>> processes_;
    std::condition_variable added_;
    std::string socketPath_;
    std::deque<LoadScript> scripts_;
    std::map<int32_t, int> lookups_;
    std::map<int32_t, int> loads_;
    bool unavailable_ = false;
    bool deathRecipientsRefused_ = false;
};

} // namespace OHOS

#endif // OHOS_SAMGR_SYSTEM_ABILITY_MANAGER_HOST_H
