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

#include "system_ability_manager_proxy.h"

#include "load_waiter.h"
#include "samgr_log.h"
#include "string_ex.h"

namespace OHOS {

int SystemAbilityManagerProxy::Transact(SamgrHostCode code, const std::function<bool(MessageParcel&)>& write,
                                        MessageParcel& reply)
{
    MessageParcel data;
    MessageOption option;
    sptr<IRemoteObject> remote = Remote();
    if (remote == nullptr || !data.WriteInterfaceToken(GetDescriptor()) || !write(data)) {
        SAMGR_HOST_LOGE("cannot write request %{public}u", static_cast<uint32_t>(code));
        return ERR_FLATTEN_OBJECT;
    }
    const int result = remote->SendRequest(static_cast<uint32_t>(code), data, reply, option);
    if (result != ERR_NONE) {
        SAMGR_HOST_LOGE("request %{public}u to the system ability manager failed: %{public}d",
                        static_cast<uint32_t>(code), result);
    }
    return result;
}

int32_t SystemAbilityManagerProxy::TransactInt(SamgrHostCode code, int32_t systemAbilityId, int32_t failure)
{
    MessageParcel reply;
    int32_t answer = failure;
    if (Transact(
            code, [systemAbilityId](MessageParcel& data) { return data.WriteInt32(systemAbilityId); }, reply) ==
        ERR_NONE) {
        reply.ReadInt32(answer);
    }
    return answer;
}

sptr<IRemoteObject> SystemAbilityManagerProxy::TransactObject(SamgrHostCode code, int32_t systemAbilityId)
{
    MessageParcel reply;
    if (Transact(
            code, [systemAbilityId](MessageParcel& data) { return data.WriteInt32(systemAbilityId); }, reply) !=
            ERR_NONE ||
        !reply.ReadBool()) {
        return nullptr;
    }
    return reply.ReadRemoteObject();
}

std::vector<std::u16string> SystemAbilityManagerProxy::ListSystemAbilities(unsigned int dumpFlags)
{
    MessageParcel reply;
    std::vector<std::u16string> names;
    if (Transact(
            SamgrHostCode::LIST, [dumpFlags](MessageParcel& data) { return data.WriteUint32(dumpFlags); }, reply) ==
        ERR_NONE) {
        reply.ReadString16Vector(&names);
    }
    return names;
}

sptr<IRemoteObject> SystemAbilityManagerProxy::GetSystemAbility(int32_t systemAbilityId)
{
    return TransactObject(SamgrHostCode::GET, systemAbilityId);
}

sptr<IRemoteObject> SystemAbilityManagerProxy::GetSystemAbility(int32_t systemAbilityId, const std::string& deviceId)
{
    (void)deviceId;
    return GetSystemAbility(systemAbilityId);
}

sptr<IRemoteObject> SystemAbilityManagerProxy::CheckSystemAbility(int32_t systemAbilityId)
{
    return TransactObject(SamgrHostCode::CHECK, systemAbilityId);
}

sptr<IRemoteObject> SystemAbilityManagerProxy::CheckSystemAbility(int32_t systemAbilityId, const std::string& deviceId)
{
    (void)deviceId;
    return CheckSystemAbility(systemAbilityId);
}

sptr<IRemoteObject> SystemAbilityManagerProxy::CheckSystemAbility(int32_t systemAbilityId, bool& isExist)
{
    sptr<IRemoteObject> ability = CheckSystemAbility(systemAbilityId);
    isExist = ability != nullptr;
    return ability;
}

int32_t SystemAbilityManagerProxy::RemoveSystemAbility(int32_t systemAbilityId)
{
    return TransactInt(SamgrHostCode::REMOVE, systemAbilityId, ERR_INVALID_VALUE);
}

int32_t SystemAbilityManagerProxy::AddSystemAbility(int32_t systemAbilityId, const sptr<IRemoteObject>& ability,
                                                    const SAExtraProp& extraProp)
{
    (void)extraProp;
    MessageParcel reply;
    int32_t result = ERR_INVALID_VALUE;
    if (Transact(
            SamgrHostCode::ADD,
            [&](MessageParcel& data) { return data.WriteInt32(systemAbilityId) && data.WriteRemoteObject(ability); },
            reply) == ERR_NONE) {
        reply.ReadInt32(result);
    }
    return result;
}

sptr<IRemoteObject> SystemAbilityManagerProxy::LoadSystemAbility(int32_t systemAbilityId, int32_t timeout)
{
    return LoadWaiter::Load(*this, systemAbilityId, timeout);
}

int32_t SystemAbilityManagerProxy::LoadSystemAbility(int32_t systemAbilityId,
                                                     const sptr<ISystemAbilityLoadCallback>& callback)
{
    if (callback == nullptr) {
        SAMGR_HOST_LOGE("no callback to load %{public}d", systemAbilityId);
        return ERR_INVALID_VALUE;
    }
    MessageParcel reply;
    const int sent = Transact(
        SamgrHostCode::LOAD,
        [&](MessageParcel& data) {
            return data.WriteInt32(systemAbilityId) && data.WriteRemoteObject(callback->AsObject());
        },
        reply);
    if (sent != ERR_NONE) {
        return sent;
    }
    int32_t result = ERR_OK;
    return reply.ReadInt32(result) ? result : ERR_FLATTEN_OBJECT;
}

int32_t SystemAbilityManagerProxy::LoadSystemAbility(int32_t systemAbilityId, const std::string& deviceId,
                                                     const sptr<ISystemAbilityLoadCallback>& callback)
{
    (void)callback;
    SAMGR_HOST_LOGE("no remote device %{public}s to load %{public}d from", deviceId.c_str(), systemAbilityId);
    return ERR_INVALID_OPERATION;
}

int32_t SystemAbilityManagerProxy::UnloadSystemAbility(int32_t systemAbilityId)
{
    return TransactInt(SamgrHostCode::UNLOAD, systemAbilityId, ERR_INVALID_VALUE);
}

void SystemAbilityManagerProxy::ScriptLoads(const LoadScript& script, int count)
{
    MessageParcel reply;
    Transact(
        SamgrHostCode::SCRIPT_LOADS,
        [&](MessageParcel& data) {
            return data.WriteInt32(static_cast<int32_t>(script.outcome)) && data.WriteInt64(script.delay.count()) &&
                   data.WriteInt32(script.otherId) && data.WriteInt32(script.refuseCode) &&
                   data.WriteInt32(script.failCode) && data.WriteInt32(count);
        },
        reply);
}

pid_t SystemAbilityManagerProxy::Kill(int32_t systemAbilityId)
{
    return TransactInt(SamgrHostCode::KILL, systemAbilityId, -1);
}

int SystemAbilityManagerProxy::LookupCount(int32_t systemAbilityId)
{
    return TransactInt(SamgrHostCode::LOOKUP_COUNT, systemAbilityId, 0);
}

int SystemAbilityManagerProxy::LoadCount(int32_t systemAbilityId)
{
    return TransactInt(SamgrHostCode::LOAD_COUNT, systemAbilityId, 0);
}

} // namespace OHOS
