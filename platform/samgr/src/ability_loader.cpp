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

#include <utility>

#include "ipc_threads.h"
#include "isystem_ability_load_callback.h"
#include "process_boundary.h"
#include "samgr_log.h"
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
} // namespace

void AbilityLoader::RegisterLoader(int32_t systemAbilityId, SamgrHostControl::Loader loader)
{
    std::lock_guard<std::mutex> lock(mutex_);
    loaders_[systemAbilityId] = std::move(loader);
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
    if (script.outcome == LoadScript::Outcome::REFUSE) {
        SAMGR_HOST_LOGE("load of %{public}d refused with %{public}d", systemAbilityId, script.refuseCode);
        return script.refuseCode;
    }
    // The outcome always comes later, on an IPC thread: the caller may hold a lock its callback needs.
    IpcThreads::PostDelayed(
        [this, systemAbilityId, callback, script] { DeliverLoad(systemAbilityId, callback, script); }, script.delay);
    return ERR_OK;
}

void AbilityLoader::DeliverLoad(int32_t systemAbilityId, const sptr<IRemoteObject>& callback, const LoadScript& script)
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

void AbilityLoader::Reset()
{
    std::map<int32_t, SamgrHostControl::Loader> loaders;
    std::lock_guard<std::mutex> lock(mutex_);
    loaders.swap(loaders_);
}

} // namespace OHOS
