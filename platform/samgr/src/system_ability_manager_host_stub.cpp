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

// The host system ability manager as other processes reach it: each request decoded and answered.
#include "samgr_host_code.h"
#include "samgr_log.h"
#include "system_ability_manager_host.h"

namespace OHOS {
namespace {
bool WriteAbility(MessageParcel& reply, const sptr<IRemoteObject>& ability)
{
    return reply.WriteBool(ability != nullptr) && (ability == nullptr || reply.WriteRemoteObject(ability));
}

int Answer(bool written)
{
    return written ? ERR_NONE : IPC_STUB_WRITE_PARCEL_ERR;
}

bool ReadScript(MessageParcel& data, LoadScript& script, int32_t& count)
{
    int32_t outcome = 0;
    int64_t delay = 0;
    if (!data.ReadInt32(outcome) || !data.ReadInt64(delay) || !data.ReadInt32(script.otherId) ||
        !data.ReadInt32(script.refuseCode) || !data.ReadInt32(count) || outcome < 0 ||
        outcome > static_cast<int32_t>(LoadScript::Outcome::REFUSE) || delay < 0) {
        return false;
    }
    script.outcome = static_cast<LoadScript::Outcome>(outcome);
    script.delay = std::chrono::milliseconds(delay);
    return true;
}
} // namespace

int SystemAbilityManagerHost::OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply,
                                              MessageOption& option)
{
    if (data.ReadInterfaceToken() != GetDescriptor()) {
        SAMGR_HOST_LOGE("interface token mismatch, code %{public}u", code);
        return ERR_INVALID_STATE;
    }
    if (code == static_cast<uint32_t>(SamgrHostCode::SCRIPT_LOADS)) {
        LoadScript script;
        int32_t count = 0;
        if (!ReadScript(data, script, count)) {
            return ERR_INVALID_DATA;
        }
        ScriptLoads(script, count);
        return ERR_NONE;
    }
    if (code == static_cast<uint32_t>(SamgrHostCode::LIST)) {
        return Answer(reply.WriteString16Vector(ListSystemAbilities(data.ReadUint32())));
    }
    int32_t systemAbilityId = 0;
    if (!data.ReadInt32(systemAbilityId)) {
        return ERR_INVALID_DATA;
    }
    switch (static_cast<SamgrHostCode>(code)) {
    case SamgrHostCode::GET:
        return Answer(WriteAbility(reply, GetSystemAbility(systemAbilityId)));
    case SamgrHostCode::CHECK:
        return Answer(WriteAbility(reply, CheckSystemAbility(systemAbilityId)));
    case SamgrHostCode::ADD:
        return Answer(reply.WriteInt32(AddSystemAbility(systemAbilityId, data.ReadRemoteObject(), {})));
    case SamgrHostCode::REMOVE:
        return Answer(reply.WriteInt32(RemoveSystemAbility(systemAbilityId)));
    case SamgrHostCode::LOAD:
        return Answer(reply.WriteInt32(Load(systemAbilityId, data.ReadRemoteObject())));
    case SamgrHostCode::UNLOAD:
        return Answer(reply.WriteInt32(UnloadSystemAbility(systemAbilityId)));
    case SamgrHostCode::KILL:
        return Answer(reply.WriteInt32(Kill(systemAbilityId)));
    case SamgrHostCode::LOOKUP_COUNT:
        return Answer(reply.WriteInt32(LookupCount(systemAbilityId)));
    case SamgrHostCode::LOAD_COUNT:
        return Answer(reply.WriteInt32(LoadCount(systemAbilityId)));
    default:
        return IPCObjectStub::OnRemoteRequest(code, data, reply, option);
    }
}

} // namespace OHOS
