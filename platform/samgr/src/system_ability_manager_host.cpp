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

#include <csignal>
#include <string>
#include <utility>

#include "ipc_host_transport.h"
#include "ipc_object_proxy.h"
#include "ipc_threads.h"
#include "load_waiter.h"
#include "process_boundary.h"
#include "samgr_log.h"
#include "string_ex.h"
#include "system_ability_definition.h"

namespace OHOS {
namespace {
bool IsValidId(int32_t systemAbilityId)
{
    return systemAbilityId >= FIRST_SYS_ABILITY_ID && systemAbilityId <= LAST_SYS_ABILITY_ID;
}

// Tells the callback the outcome: a local stub of the caller's process through the process boundary, a callback of
// another process through the transport.
void NotifyLoadCallback(const sptr<IRemoteObject>& callback, uint32_t code, int32_t systemAbilityId,
                        const sptr<IRemoteObject>& object)
{
    sptr<IRemoteObject> callbackObject = ProcessBoundary::Translate(callback);
    MessageParcel data;
    MessageParcel reply;
    MessageOption option;
    if (!data.WriteInterfaceToken(ISystemAbilityLoadCallback::GetDescriptor()) || !data.WriteInt32(systemAbilityId)) {
        SAMGR_HOST_LOGE("cannot write the outcome of loading %{public}d", systemAbilityId);
        return;
    }
    if (object != nullptr) {
        data.WriteRemoteObject(object);
    }
    const int result = callbackObject->SendRequest(code, data, reply, option);
    if (result != ERR_NONE) {
        SAMGR_HOST_LOGE("load callback of %{public}d answered %{public}d", systemAbilityId, result);
    }
}

// Forgets an ability whose process ended, so that the next load starts it again.
class AbilityDeath : public IRemoteObject::DeathRecipient {
public:
    AbilityDeath(SystemAbilityManagerHost& manager, int32_t systemAbilityId) :
        manager_(manager), systemAbilityId_(systemAbilityId)
    {
    }
    void OnRemoteDied(const wptr<IRemoteObject>& object) override { manager_.Forget(systemAbilityId_, object); }

private:
    SystemAbilityManagerHost& manager_;
    const int32_t systemAbilityId_;
};
} // namespace

SystemAbilityManagerHost& SystemAbilityManagerHost::Instance()
{
    // Held forever: callers keep strong references to it, and abilities may be looked up during exit.
    static sptr<SystemAbilityManagerHost>* holder = new sptr<SystemAbilityManagerHost>(new SystemAbilityManagerHost());
    return **holder;
}

std::vector<std::u16string> SystemAbilityManagerHost::ListSystemAbilities(unsigned int dumpFlags)
{
    (void)dumpFlags;
    std::lock_guard<std::mutex> lock(mutex_);
    std::vector<std::u16string> names;
    for (const auto& [id, ability] : abilities_) {
        names.push_back(Str8ToStr16(std::to_string(id)));
    }
    return names;
}

sptr<IRemoteObject> SystemAbilityManagerHost::Running(int32_t systemAbilityId)
{
    auto it = abilities_.find(systemAbilityId);
    if (it == abilities_.end()) {
        return nullptr;
    }
    // A process that ended a moment ago may not have been forgotten yet.
    if (IpcHostTransport::HasProcessEnded(it->second)) {
        abilities_.erase(it);
        return nullptr;
    }
    return it->second;
}

sptr<IRemoteObject> SystemAbilityManagerHost::Lookup(int32_t systemAbilityId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    ++lookups_[systemAbilityId];
    return Running(systemAbilityId);
}

void SystemAbilityManagerHost::Forget(int32_t systemAbilityId, const wptr<IRemoteObject>& object)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = abilities_.find(systemAbilityId);
    if (it == abilities_.end() || it->second != object.promote()) {
        return;
    }
    SAMGR_HOST_LOGW("the process of system ability %{public}d ended", systemAbilityId);
    abilities_.erase(it);
    auto process = processes_.find(systemAbilityId);
    if (process != processes_.end() && process->second->Ended()) {
        processes_.erase(process);
    }
}

sptr<IRemoteObject> SystemAbilityManagerHost::GetSystemAbility(int32_t systemAbilityId)
{
    sptr<IRemoteObject> ability = Lookup(systemAbilityId);
    return ability != nullptr ? ability : FindOrStart(systemAbilityId);
}

sptr<IRemoteObject> SystemAbilityManagerHost::GetSystemAbility(int32_t systemAbilityId, const std::string& deviceId)
{
    (void)deviceId;
    return GetSystemAbility(systemAbilityId);
}

sptr<IRemoteObject> SystemAbilityManagerHost::CheckSystemAbility(int32_t systemAbilityId)
{
    return Lookup(systemAbilityId);
}

sptr<IRemoteObject> SystemAbilityManagerHost::CheckSystemAbility(int32_t systemAbilityId, const std::string& deviceId)
{
    (void)deviceId;
    return Lookup(systemAbilityId);
}

sptr<IRemoteObject> SystemAbilityManagerHost::CheckSystemAbility(int32_t systemAbilityId, bool& isExist)
{
    sptr<IRemoteObject> ability = Lookup(systemAbilityId);
    isExist = ability != nullptr;
    return ability;
}

int32_t SystemAbilityManagerHost::RemoveSystemAbility(int32_t systemAbilityId)
{
    sptr<IRemoteObject> removed;
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = abilities_.find(systemAbilityId);
    if (it == abilities_.end()) {
        SAMGR_HOST_LOGE("system ability %{public}d is not registered", systemAbilityId);
        return ERR_INVALID_VALUE;
    }
    removed = std::move(it->second);
    abilities_.erase(it);
    return ERR_OK;
}

sptr<IRemoteObject> SystemAbilityManagerHost::Publish(int32_t systemAbilityId, const sptr<IRemoteObject>& ability)
{
    sptr<IRemoteObject> remote = ProcessBoundary::Translate(ability);
    std::lock_guard<std::mutex> lock(mutex_);
    if (auto* proxy = IPCObjectProxy::InProcessOf(remote.GetRefPtr()); proxy != nullptr) {
        proxy->RefuseDeathRecipients(deathRecipientsRefused_);
    } else if (auto known = abilities_.find(systemAbilityId); known == abilities_.end() || known->second != remote) {
        if (!remote->AddDeathRecipient(new AbilityDeath(*this, systemAbilityId))) {
            SAMGR_HOST_LOGE("system ability %{public}d died as it was added", systemAbilityId);
            return nullptr;
        }
    }
    abilities_[systemAbilityId] = remote;
    added_.notify_all();
    return remote;
}

int32_t SystemAbilityManagerHost::AddSystemAbility(int32_t systemAbilityId, const sptr<IRemoteObject>& ability,
                                                   const SAExtraProp& extraProp)
{
    (void)extraProp;
    if (!IsValidId(systemAbilityId) || ability == nullptr) {
        SAMGR_HOST_LOGE("refused system ability %{public}d", systemAbilityId);
        return ERR_INVALID_VALUE;
    }
    return Publish(systemAbilityId, ability) != nullptr ? ERR_OK : ERR_DEAD_OBJECT;
}

sptr<IRemoteObject> SystemAbilityManagerHost::FindOrStart(int32_t systemAbilityId)
{
    std::lock_guard<std::mutex> startLock(startMutex_);
    SamgrHostControl::Loader loader;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (sptr<IRemoteObject> running = Running(systemAbilityId); running != nullptr) {
            return running;
        }
        auto it = loaders_.find(systemAbilityId);
        if (it == loaders_.end()) {
            return nullptr;
        }
        loader = it->second;
    }
    sptr<IRemoteObject> stub = loader();
    if (stub == nullptr) {
        SAMGR_HOST_LOGE("loader of %{public}d started nothing", systemAbilityId);
        return nullptr;
    }
    return Publish(systemAbilityId, stub);
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

int32_t SystemAbilityManagerHost::Load(int32_t systemAbilityId, const sptr<IRemoteObject>& callback)
{
    LoadScript script;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        ++loads_[systemAbilityId];
        if (!scripts_.empty()) {
            script = scripts_.front();
            scripts_.pop_front();
        }
    }
    if (!IsValidId(systemAbilityId) || callback == nullptr) {
        SAMGR_HOST_LOGE("refused to load %{public}d", systemAbilityId);
        return ERR_INVALID_VALUE;
    }
    if (script.outcome == LoadScript::Outcome::REFUSE) {
        SAMGR_HOST_LOGE("load of %{public}d refused with %{public}d", systemAbilityId, script.refuseCode);
        return script.refuseCode;
    }
    // The outcome always comes later, on an IPC thread: the caller may hold a lock its callback needs.
    IpcThreads::PostDelayed(
        [this, systemAbilityId, callback, script] { DeliverLoad(systemAbilityId, callback, script); }, script.delay);
    return ERR_OK;
}

int32_t SystemAbilityManagerHost::LoadSystemAbility(int32_t systemAbilityId, const std::string& deviceId,
                                                    const sptr<ISystemAbilityLoadCallback>& callback)
{
    (void)callback;
    SAMGR_HOST_LOGE("no remote device %{public}s to load %{public}d from", deviceId.c_str(), systemAbilityId);
    return ERR_INVALID_OPERATION;
}

void SystemAbilityManagerHost::DeliverLoad(int32_t systemAbilityId, const sptr<IRemoteObject>& callback,
                                           const LoadScript& script)
{
    switch (script.outcome) {
    case LoadScript::Outcome::FAIL:
        NotifyLoadCallback(callback, ISystemAbilityLoadCallback::ON_LOAD_SYSTEM_ABILITY_FAIL, systemAbilityId, nullptr);
        return;
    case LoadScript::Outcome::NULL_OBJECT:
        NotifyLoadCallback(callback, ISystemAbilityLoadCallback::ON_LOAD_SYSTEM_ABILITY_SUCCESS, systemAbilityId,
                           nullptr);
        return;
    case LoadScript::Outcome::OTHER_ID:
        NotifyLoadCallback(callback, ISystemAbilityLoadCallback::ON_LOAD_SYSTEM_ABILITY_SUCCESS, script.otherId,
                           FindOrStart(systemAbilityId));
        return;
    default:
        break;
    }
    sptr<IRemoteObject> ability = FindOrStart(systemAbilityId);
    if (ability == nullptr) {
        SAMGR_HOST_LOGE("system ability %{public}d cannot be loaded", systemAbilityId);
        NotifyLoadCallback(callback, ISystemAbilityLoadCallback::ON_LOAD_SYSTEM_ABILITY_FAIL, systemAbilityId, nullptr);
        return;
    }
    NotifyLoadCallback(callback, ISystemAbilityLoadCallback::ON_LOAD_SYSTEM_ABILITY_SUCCESS, systemAbilityId, ability);
}

int32_t SystemAbilityManagerHost::UnloadSystemAbility(int32_t systemAbilityId)
{
    return Kill(systemAbilityId) >= 0 ? ERR_OK : ERR_INVALID_VALUE;
}

bool SystemAbilityManagerHost::ServeAcrossProcesses(const std::string& socketPath)
{
    if (!IpcHostTransport::ServeContextObject(socketPath, this)) {
        return false;
    }
    std::lock_guard<std::mutex> lock(mutex_);
    socketPath_ = socketPath;
    return true;
}

bool SystemAbilityManagerHost::IsServing()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return !socketPath_.empty();
}

void SystemAbilityManagerHost::RegisterProcess(int32_t systemAbilityId, SamgrHostControl::CommandLine commandLine)
{
    RegisterLoader(systemAbilityId, [this, systemAbilityId, commandLine = std::move(commandLine)] {
        return StartProcess(systemAbilityId, commandLine());
    });
}

sptr<IRemoteObject> SystemAbilityManagerHost::StartProcess(int32_t systemAbilityId,
                                                           const std::vector<std::string>& commandLine)
{
    constexpr auto STARTUP_TIMEOUT = std::chrono::seconds(10);
    // How often the wait looks whether the process ended before it added the ability.
    constexpr auto END_CHECK_INTERVAL = std::chrono::milliseconds(50);
    // A process replaced or given up is stopped once the lock is released: stopping it may take a while.
    std::vector<std::unique_ptr<ChildProcess>> dropped;
    std::unique_lock<std::mutex> lock(mutex_);
    ChildProcess::Options options;
    options.environment[SamgrHostControl::SOCKET_ENVIRONMENT] = socketPath_;
    auto child = std::make_unique<ChildProcess>(commandLine, options);
    if (!child->Started()) {
        return nullptr;
    }
    const pid_t pid = child->Pid();
    dropped.push_back(std::exchange(processes_[systemAbilityId], std::move(child)));
    // The process adds its ability through this manager, on a thread that serves it.
    const auto added = [this, systemAbilityId, pid] {
        auto it = abilities_.find(systemAbilityId);
        return it != abilities_.end() && IpcHostTransport::PeerPid(it->second) == pid;
    };
    const auto deadline = std::chrono::steady_clock::now() + STARTUP_TIMEOUT;
    while (!added_.wait_for(lock, END_CHECK_INTERVAL, added)) {
        auto process = processes_.find(systemAbilityId);
        const bool ours = process != processes_.end() && process->second->Pid() == pid;
        if (!ours || process->second->Ended() || std::chrono::steady_clock::now() >= deadline) {
            SAMGR_HOST_LOGE("process %{public}d did not add system ability %{public}d", pid, systemAbilityId);
            if (ours) {
                dropped.push_back(std::move(process->second));
                processes_.erase(process);
            }
            return nullptr;
        }
    }
    return abilities_.find(systemAbilityId)->second;
}

void SystemAbilityManagerHost::RegisterLoader(int32_t systemAbilityId, SamgrHostControl::Loader loader)
{
    std::lock_guard<std::mutex> lock(mutex_);
    loaders_[systemAbilityId] = std::move(loader);
}

void SystemAbilityManagerHost::ScriptLoads(const LoadScript& script, int count)
{
    std::lock_guard<std::mutex> lock(mutex_);
    for (int i = 0; i < count; ++i) {
        scripts_.push_back(script);
    }
}

void SystemAbilityManagerHost::SetUnavailable(bool unavailable)
{
    std::lock_guard<std::mutex> lock(mutex_);
    unavailable_ = unavailable;
}

bool SystemAbilityManagerHost::IsUnavailable()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return unavailable_;
}

void SystemAbilityManagerHost::SetDeathRecipientsRefused(bool refused)
{
    std::lock_guard<std::mutex> lock(mutex_);
    deathRecipientsRefused_ = refused;
    for (const auto& [id, ability] : abilities_) {
        if (auto* proxy = IPCObjectProxy::InProcessOf(ability.GetRefPtr()); proxy != nullptr) {
            proxy->RefuseDeathRecipients(refused);
        }
    }
}

pid_t SystemAbilityManagerHost::Kill(int32_t systemAbilityId)
{
    constexpr auto END_TIMEOUT = std::chrono::seconds(5);
    sptr<IRemoteObject> ability;
    std::unique_ptr<ChildProcess> process;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        auto it = abilities_.find(systemAbilityId);
        if (it == abilities_.end()) {
            return -1;
        }
        ability = std::move(it->second);
        abilities_.erase(it);
        auto started = processes_.find(systemAbilityId);
        if (started != processes_.end()) {
            process = std::move(started->second);
            processes_.erase(started);
        }
    }
    if (auto* proxy = IPCObjectProxy::InProcessOf(ability.GetRefPtr()); proxy != nullptr) {
        proxy->Kill();
        return 0;
    }
    const pid_t pid = IpcHostTransport::PeerPid(ability);
    if (process != nullptr && process->Pid() == pid) {
        process->Kill();
    } else if (pid > 0) {
        kill(pid, SIGKILL);
    }
    IpcHostTransport::WaitForPeerGone(pid, END_TIMEOUT);
    return pid;
}

int SystemAbilityManagerHost::LookupCount(int32_t systemAbilityId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = lookups_.find(systemAbilityId);
    return it != lookups_.end() ? it->second : 0;
}

int SystemAbilityManagerHost::LoadCount(int32_t systemAbilityId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = loads_.find(systemAbilityId);
    return it != loads_.end() ? it->second : 0;
}

void SystemAbilityManagerHost::Reset()
{
    IpcThreads::Drain();
    std::map<int32_t, sptr<IRemoteObject>> abilities;
    std::map<int32_t, SamgrHostControl::Loader> loaders;
    std::map<int32_t, std::unique_ptr<ChildProcess>> processes;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        abilities.swap(abilities_);
        loaders.swap(loaders_);
        processes.swap(processes_);
        scripts_.clear();
        lookups_.clear();
        loads_.clear();
        unavailable_ = false;
        deathRecipientsRefused_ = false;
    }
    for (const auto& [id, ability] : abilities) {
        if (auto* proxy = IPCObjectProxy::InProcessOf(ability.GetRefPtr()); proxy != nullptr) {
            proxy->RefuseDeathRecipients(false);
        }
    }
}

} // namespace OHOS
