#include "system_ability_manager_host.h"

#include <condition_variable>
#include <string>
#include <utility>

#include "ipc_object_proxy.h"
#include "ipc_threads.h"
#include "process_boundary.h"
#include "samgr_log.h"
#include "string_ex.h"
#include "system_ability_definition.h"
#include "system_ability_load_callback_stub.h"

namespace OHOS {
namespace {
bool IsValidId(int32_t systemAbilityId)
{
    return systemAbilityId >= FIRST_SYS_ABILITY_ID && systemAbilityId <= LAST_SYS_ABILITY_ID;
}

// Tells the callback (a local stub of the caller's process) the outcome, through the process boundary.
void NotifyLoadCallback(const sptr<ISystemAbilityLoadCallback>& callback, uint32_t code, int32_t systemAbilityId,
                        const sptr<IRemoteObject>& object)
{
    sptr<IRemoteObject> callbackObject = ProcessBoundary::Translate(callback->AsObject());
    if (callbackObject == nullptr) {
        if (code == ISystemAbilityLoadCallback::ON_LOAD_SYSTEM_ABILITY_SUCCESS) {
            callback->OnLoadSystemAbilitySuccess(systemAbilityId, object);
        } else {
            callback->OnLoadSystemAbilityFail(systemAbilityId);
        }
        return;
    }
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

class LoadWaiter : public SystemAbilityLoadCallbackStub {
public:
    using SystemAbilityLoadCallbackStub::OnLoadSystemAbilityFail;

    void OnLoadSystemAbilitySuccess(int32_t systemAbilityId, const sptr<IRemoteObject>& remoteObject) override
    {
        (void)systemAbilityId;
        Finish(remoteObject);
    }
    void OnLoadSystemAbilityFail(int32_t systemAbilityId) override
    {
        (void)systemAbilityId;
        Finish(nullptr);
    }

    sptr<IRemoteObject> Wait(std::chrono::seconds timeout)
    {
        std::unique_lock<std::mutex> lock(mutex_);
        done_.wait_for(lock, timeout, [this] { return finished_; });
        return object_;
    }

private:
    void Finish(const sptr<IRemoteObject>& object)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        object_ = object;
        finished_ = true;
        done_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable done_;
    bool finished_ = false;
    sptr<IRemoteObject> object_;
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

sptr<IRemoteObject> SystemAbilityManagerHost::Lookup(int32_t systemAbilityId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    ++lookups_[systemAbilityId];
    auto it = abilities_.find(systemAbilityId);
    return it != abilities_.end() ? it->second : nullptr;
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
    if (auto* proxy = dynamic_cast<IPCObjectProxy*>(remote.GetRefPtr()); proxy != nullptr) {
        proxy->RefuseDeathRecipients(deathRecipientsRefused_);
    }
    abilities_[systemAbilityId] = remote;
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
    Publish(systemAbilityId, ability);
    return ERR_OK;
}

sptr<IRemoteObject> SystemAbilityManagerHost::FindOrStart(int32_t systemAbilityId)
{
    std::lock_guard<std::mutex> startLock(startMutex_);
    SamgrHostControl::Loader loader;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        auto running = abilities_.find(systemAbilityId);
        if (running != abilities_.end()) {
            return running->second;
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
    sptr<LoadWaiter> waiter = new LoadWaiter();
    if (LoadSystemAbility(systemAbilityId, waiter) != ERR_OK) {
        return nullptr;
    }
    return waiter->Wait(std::chrono::seconds(timeout));
}

int32_t SystemAbilityManagerHost::LoadSystemAbility(int32_t systemAbilityId,
                                                    const sptr<ISystemAbilityLoadCallback>& callback)
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

void SystemAbilityManagerHost::DeliverLoad(int32_t systemAbilityId, const sptr<ISystemAbilityLoadCallback>& callback,
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
    return Kill(systemAbilityId) ? ERR_OK : ERR_INVALID_VALUE;
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
        if (auto* proxy = dynamic_cast<IPCObjectProxy*>(ability.GetRefPtr()); proxy != nullptr) {
            proxy->RefuseDeathRecipients(refused);
        }
    }
}

bool SystemAbilityManagerHost::Kill(int32_t systemAbilityId)
{
    sptr<IRemoteObject> ability;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        auto it = abilities_.find(systemAbilityId);
        if (it == abilities_.end()) {
            return false;
        }
        ability = std::move(it->second);
        abilities_.erase(it);
    }
    if (auto* proxy = dynamic_cast<IPCObjectProxy*>(ability.GetRefPtr()); proxy != nullptr) {
        proxy->Kill();
    }
    return true;
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
    {
        std::lock_guard<std::mutex> lock(mutex_);
        abilities.swap(abilities_);
        loaders.swap(loaders_);
        scripts_.clear();
        lookups_.clear();
        loads_.clear();
        unavailable_ = false;
        deathRecipientsRefused_ = false;
    }
    for (const auto& [id, ability] : abilities) {
        if (auto* proxy = dynamic_cast<IPCObjectProxy*>(ability.GetRefPtr()); proxy != nullptr) {
            proxy->RefuseDeathRecipients(false);
        }
    }
}

} // namespace OHOS
