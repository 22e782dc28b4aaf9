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

#include "system_ability_manager_host.h"

#include <map>
#include <memory>
#include <string>
#include <unistd.h>
#include <utility>

#include "ipc_host_transport.h"
#include "ipc_object_proxy.h"
#include "ipc_threads.h"
#include "load_waiter.h"
#include "samgr_log.h"
#include "string_ex.h"
#include "system_ability_definition.h"

namespace OHOS {

SystemAbilityManagerHost& SystemAbilityManagerHost::Instance()
{
    // Held forever: callers keep strong references to it, and abilities may be looked up during exit.
    static sptr<SystemAbilityManagerHost>* holder = new sptr<SystemAbilityManagerHost>(new SystemAbilityManagerHost());
    return **holder;
}

SystemAbilityManagerHost::SystemAbilityManagerHost() :
    registry_([this](int32_t systemAbilityId, pid_t pid) { processes_.DropEnded(systemAbilityId, pid); }),
    processes_(registry_), loader_(registry_, faults_, counters_), server_(new SamgrSocketServer(*this))
{
}

std::vector<std::u16string> SystemAbilityManagerHost::ListSystemAbilities(unsigned int dumpFlags)
{
    (void)dumpFlags;
    std::vector<std::u16string> names;
    for (int32_t id : registry_.Ids()) {
        names.push_back(Str8ToStr16(std::to_string(id)));
    }
    return names;
}

sptr<IRemoteObject> SystemAbilityManagerHost::GetSystemAbility(int32_t systemAbilityId)
{
    sptr<IRemoteObject> ability = CheckSystemAbility(systemAbilityId);
    return ability != nullptr ? ability : loader_.FindOrStart(systemAbilityId);
}

sptr<IRemoteObject> SystemAbilityManagerHost::GetSystemAbility(int32_t systemAbilityId, const std::string& deviceId)
{
    (void)deviceId;
    return GetSystemAbility(systemAbilityId);
}

sptr<IRemoteObject> SystemAbilityManagerHost::CheckSystemAbility(int32_t systemAbilityId)
{
    counters_.CountLookup(systemAbilityId);
    return registry_.Running(systemAbilityId);
}

sptr<IRemoteObject> SystemAbilityManagerHost::CheckSystemAbility(int32_t systemAbilityId, const std::string& deviceId)
{
    (void)deviceId;
    return CheckSystemAbility(systemAbilityId);
}

sptr<IRemoteObject> SystemAbilityManagerHost::CheckSystemAbility(int32_t systemAbilityId, bool& isExist)
{
    sptr<IRemoteObject> ability = CheckSystemAbility(systemAbilityId);
    isExist = ability != nullptr;
    return ability;
}

int32_t SystemAbilityManagerHost::RemoveSystemAbility(int32_t systemAbilityId)
{
    if (!registry_.Remove(systemAbilityId)) {
        SAMGR_HOST_LOGE("system ability %{public}d is not registered", systemAbilityId);
        return ERR_INVALID_VALUE;
    }
    return ERR_OK;
}

int32_t SystemAbilityManagerHost::AddSystemAbility(int32_t systemAbilityId, const sptr<IRemoteObject>& ability,
                                                   const SAExtraProp& extraProp)
{
    (void)extraProp;
    if (systemAbilityId < FIRST_SYS_ABILITY_ID || systemAbilityId > LAST_SYS_ABILITY_ID || ability == nullptr) {
        SAMGR_HOST_LOGE("refused system ability %{public}d", systemAbilityId);
        return ERR_INVALID_VALUE;
    }
    return registry_.Publish(systemAbilityId, ability) != nullptr ? ERR_OK : ERR_DEAD_OBJECT;
}

sptr<IRemoteObject> SystemAbilityManagerHost::LoadSystemAbility(int32_t systemAbilityId, int32_t timeout)
{
    return LoadWaiter::Load(*this, systemAbilityId, timeout);
}

int32_t SystemAbilityManagerHost::LoadSystemAbility(int32_t systemAbilityId,
                                                    const sptr<ISystemAbilityLoadCallback>& callback)
{
    return Load(systemAbilityId, callback != nullptr ? callback->AsObject() : nullptr);
}

int32_t SystemAbilityManagerHost::LoadSystemAbility(int32_t systemAbilityId, const std::string& deviceId,
                                                    const sptr<ISystemAbilityLoadCallback>& callback)
{
    (void)callback;
    SAMGR_HOST_LOGE("no remote device %{public}s to load %{public}d from", deviceId.c_str(), systemAbilityId);
    return ERR_INVALID_OPERATION;
}

int32_t SystemAbilityManagerHost::UnloadSystemAbility(int32_t systemAbilityId)
{
    return Kill(systemAbilityId) >= 0 ? ERR_OK : ERR_INVALID_VALUE;
}

int32_t SystemAbilityManagerHost::Load(int32_t systemAbilityId, const sptr<IRemoteObject>& callback)
{
    return loader_.Load(systemAbilityId, callback);
}

bool SystemAbilityManagerHost::ServeAcrossProcesses(const std::string& socketPath)
{
    return server_->Serve(socketPath);
}

bool SystemAbilityManagerHost::IsServing()
{
    return server_->IsServing();
}

void SystemAbilityManagerHost::RegisterProcess(int32_t systemAbilityId, SamgrHostControl::CommandLine commandLine)
{
    loader_.RegisterLoader(systemAbilityId, [this, systemAbilityId, commandLine = std::move(commandLine)] {
        return processes_.StartProcess(systemAbilityId, commandLine(), server_->SocketPath());
    });
}

void SystemAbilityManagerHost::StartAhead(int32_t systemAbilityId, const std::string& executable)
{
    processes_.StartAhead(systemAbilityId, executable, server_->SocketPath());
}

void SystemAbilityManagerHost::RegisterLoader(int32_t systemAbilityId, SamgrHostControl::Loader loader)
{
    loader_.RegisterLoader(systemAbilityId, std::move(loader));
}

bool SystemAbilityManagerHost::ScriptLoads(const LoadScript& script, int count)
{
    return faults_.ScriptLoads(script, count);
}

void SystemAbilityManagerHost::SetUnavailable(bool unavailable)
{
    faults_.SetUnavailable(unavailable);
}

bool SystemAbilityManagerHost::IsUnavailable()
{
    return faults_.IsUnavailable();
}

void SystemAbilityManagerHost::SetDeathRecipientsRefused(bool refused)
{
    registry_.SetDeathRecipientsRefused(refused);
}

pid_t SystemAbilityManagerHost::Kill(int32_t systemAbilityId)
{
    sptr<IRemoteObject> ability = registry_.Take(systemAbilityId);
    if (ability == nullptr) {
        return -1;
    }
    if (auto* proxy = IPCObjectProxy::InProcessOf(ability.GetRefPtr()); proxy != nullptr) {
        proxy->Kill();
        return 0;
    }
    return processes_.Kill(systemAbilityId, IpcHostTransport::PeerPid(ability));
}

bool SystemAbilityManagerHost::HasStarted(pid_t pid)
{
    return processes_.HasStarted(pid);
}

pid_t SystemAbilityManagerHost::HolderOf(int32_t systemAbilityId)
{
    sptr<IRemoteObject> ability = registry_.Running(systemAbilityId);
    if (ability == nullptr) {
        return 0;
    }
    const pid_t peer = IpcHostTransport::PeerPid(ability);
    return peer > 0 ? peer : getpid();
}

bool SystemAbilityManagerHost::HasProfile(int32_t systemAbilityId)
{
    return loader_.HasProfile(systemAbilityId);
}

int SystemAbilityManagerHost::LookupCount(int32_t systemAbilityId)
{
    return counters_.Lookups(systemAbilityId);
}

int SystemAbilityManagerHost::LoadCount(int32_t systemAbilityId)
{
    return counters_.Loads(systemAbilityId);
}

void SystemAbilityManagerHost::Reset()
{
    IpcThreads::Drain();
    // Both taken out before a process is stopped, so that no death notice finds its ability registered; the
    // processes are stopped (destroyed) before their abilities are released.
    std::map<int32_t, sptr<IRemoteObject>> abilities = registry_.TakeAll();
    std::vector<std::unique_ptr<ChildProcess>> processes = processes_.TakeAll();
    loader_.Reset();
    faults_.Reset();
    counters_.Reset();
}

} // namespace OHOS
