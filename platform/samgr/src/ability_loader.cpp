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

#include "ability_loader.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "ipc_host_transport.h"
#include "ipc_threads.h"
#include "isystem_ability_load_callback.h"
#include "message_option.h"
#include "message_parcel.h"
#include "process_boundary.h"
#include "samgr_err_code.h"
#include "samgr_log.h"
#include "system_ability_definition.h"

namespace OHOS {
namespace {
bool IsValidId(int32_t systemAbilityId)
{
    return systemAbilityId >= FIRST_SYS_ABILITY_ID && systemAbilityId <= LAST_SYS_ABILITY_ID;
}

// Tells the callback the outcome, one-way as the manager does: a local stub of the caller's process through the
// process boundary, a callback of another process through the transport.
void NotifyLoadCallback(const sptr<IRemoteObject>& callback, uint32_t code, int32_t systemAbilityId,
                        const std::function<bool(MessageParcel&)>& writeOutcome)
{
    MessageParcel data;
    if (!data.WriteInterfaceToken(ISystemAbilityLoadCallback::GetDescriptor()) || !data.WriteInt32(systemAbilityId) ||
        !writeOutcome(data)) {
        SAMGR_HOST_LOGE("cannot write the outcome of loading %{public}d", systemAbilityId);
        return;
    }
    MessageParcel reply;
    MessageOption option(MessageOption::TF_ASYNC);
    const int result = ProcessBoundary::Translate(callback)->SendRequest(code, data, reply, option);
    if (result != ERR_NONE) {
        SAMGR_HOST_LOGE("load callback of %{public}d not reached: %{public}d", systemAbilityId, result);
    }
}

void NotifyLoaded(const sptr<IRemoteObject>& callback, int32_t systemAbilityId, const sptr<IRemoteObject>& ability)
{
    NotifyLoadCallback(callback, ISystemAbilityLoadCallback::ON_LOAD_SYSTEM_ABILITY_SUCCESS, systemAbilityId,
                       [&ability](MessageParcel& data) { return data.WriteRemoteObject(ability); });
}

void NotifyFailed(const sptr<IRemoteObject>& callback, int32_t systemAbilityId, int32_t errCode)
{
    NotifyLoadCallback(callback, ISystemAbilityLoadCallback::ON_LOAD_SYSTEM_ABILITY_FAIL_WITH_CODE, systemAbilityId,
                       [errCode](MessageParcel& data) { return data.WriteInt32(errCode); });
}
} // namespace

void AbilityLoader::RegisterLoader(int32_t systemAbilityId, SamgrHostControl::Loader loader)
{
    std::lock_guard<std::mutex> lock(mutex_);
    loaders_[systemAbilityId] = std::move(loader);
}

bool AbilityLoader::HasProfile(int32_t systemAbilityId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return loaders_.count(systemAbilityId) != 0;
}

sptr<IRemoteObject> AbilityLoader::FindOrStart(int32_t systemAbilityId)
{
    std::lock_guard<std::mutex> startLock(startMutex_);
    if (sptr<IRemoteObject> running = registry_.Running(systemAbilityId); running != nullptr) {
        return running;
    }
    SamgrHostControl::Loader loader;
    {
        std::lock_guard<std::mutex> lock(mutex_);
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
    return registry_.Publish(systemAbilityId, stub);
}

int32_t AbilityLoader::Load(int32_t systemAbilityId, const sptr<IRemoteObject>& callback)
{
    counters_.CountLoad(systemAbilityId);
    const LoadScript script = faults_.NextLoad();
    if (!IsValidId(systemAbilityId) || callback == nullptr) {
        SAMGR_HOST_LOGE("refused to load %{public}d", systemAbilityId);
        return ERR_INVALID_VALUE;
    }
    if (!HasProfile(systemAbilityId)) {
        SAMGR_HOST_LOGE("system ability %{public}d has no profile", systemAbilityId);
        return PROFILE_NOT_EXIST;
    }
    if (script.outcome == LoadScript::Outcome::REFUSE) {
        SAMGR_HOST_LOGE("load of %{public}d refused with %{public}d", systemAbilityId, script.refuseCode);
        return script.refuseCode;
    }
    // A running ability answers every request; one that is starting tells each callback once.
    if (registry_.Running(systemAbilityId) == nullptr && !AwaitStart(systemAbilityId, callback)) {
        return ERR_OK;
    }
    // The outcome always comes later, on an IPC thread: the caller may hold a lock its callback needs.
    IpcThreads::PostDelayed(
        [this, systemAbilityId, callback, script] { DeliverLoad(systemAbilityId, callback, script); }, script.delay);
    return ERR_OK;
}

bool AbilityLoader::AwaitStart(int32_t systemAbilityId, const sptr<IRemoteObject>& callback)
{
    std::lock_guard<std::mutex> lock(mutex_);
    std::vector<sptr<IRemoteObject>>& callbacks = awaiting_[systemAbilityId];
    if (std::find(callbacks.begin(), callbacks.end(), callback) != callbacks.end()) {
        return false;
    }
    callbacks.push_back(callback);
    return true;
}

void AbilityLoader::StopAwaiting(int32_t systemAbilityId, const sptr<IRemoteObject>& callback)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = awaiting_.find(systemAbilityId);
    if (it == awaiting_.end()) {
        return;
    }
    std::vector<sptr<IRemoteObject>>& callbacks = it->second;
    callbacks.erase(std::remove(callbacks.begin(), callbacks.end(), callback), callbacks.end());
    if (callbacks.empty()) {
        awaiting_.erase(it);
    }
}

void AbilityLoader::DeliverLoad(int32_t systemAbilityId, const sptr<IRemoteObject>& callback, const LoadScript& script)
{
    const bool scriptedFailure = script.outcome == LoadScript::Outcome::FAIL;
    sptr<IRemoteObject> ability = scriptedFailure ? nullptr : FindOrStart(systemAbilityId);
    StopAwaiting(systemAbilityId, callback);
    if (!scriptedFailure && ability == nullptr) {
        SAMGR_HOST_LOGE("system ability %{public}d cannot be loaded", systemAbilityId);
    }
    notifier_.Deliver(IpcHostTransport::PeerPid(callback), [callback, systemAbilityId, script, ability] {
        if (script.outcome == LoadScript::Outcome::FAIL) {
            NotifyFailed(callback, systemAbilityId, script.failCode);
        } else if (ability == nullptr) {
            NotifyFailed(callback, systemAbilityId, LOAD_SA_TIMEOUT);
        } else {
            const bool otherId = script.outcome == LoadScript::Outcome::OTHER_ID;
            NotifyLoaded(callback, otherId ? script.otherId : systemAbilityId, ability);
        }
    });
}

void AbilityLoader::Reset()
{
    constexpr auto NOTICES_TIMEOUT = std::chrono::seconds(5);
    notifier_.WaitIdle(NOTICES_TIMEOUT);
    std::map<int32_t, SamgrHostControl::Loader> loaders;
    std::map<int32_t, std::vector<sptr<IRemoteObject>>> awaiting;
    std::lock_guard<std::mutex> lock(mutex_);
    loaders.swap(loaders_);
    awaiting.swap(awaiting_);
}

} // namespace OHOS
