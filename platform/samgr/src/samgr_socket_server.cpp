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

#include "samgr_socket_server.h"

#include "errors.h"
#include "if_system_ability_manager.h"
#include "ipc_host_transport.h"
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
        !data.ReadInt32(script.refuseCode) || !data.ReadInt32(script.failCode) || !data.ReadInt32(count) ||
        outcome < 0 || outcome > static_cast<int32_t>(LoadScript::Outcome::REFUSE) || delay < 0) {
        return false;
    }
    script.outcome = static_cast<LoadScript::Outcome>(outcome);
    script.delay = std::chrono::milliseconds(delay);
    return true;
}

bool IsHostControl(uint32_t code)
{
    switch (static_cast<SamgrHostCode>(code)) {
    case SamgrHostCode::SCRIPT_LOADS:
    case SamgrHostCode::KILL:
    case SamgrHostCode::LOOKUP_COUNT:
    case SamgrHostCode::LOAD_COUNT:
        return true;
    default:
        return false;
    }
}
} // namespace

SamgrSocketServer::SamgrSocketServer(SystemAbilityManagerHost& manager) :
    IPCObjectStub(ISystemAbilityManager::GetDescriptor()), manager_(manager), gate_(manager)
{
}

bool SamgrSocketServer::Serve(const std::string& socketPath)
{
    if (!IpcHostTransport::ServeContextObject(socketPath, this)) {
        return false;
    }
    gate_.NoteStarter();
    std::lock_guard<std::mutex> lock(mutex_);
    socketPath_ = socketPath;
    return true;
}

bool SamgrSocketServer::IsServing()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return !socketPath_.empty();
}

std::string SamgrSocketServer::SocketPath()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return socketPath_;
}

int SamgrSocketServer::OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option)
{
    if (data.ReadInterfaceToken() != ISystemAbilityManager::GetDescriptor()) {
        SAMGR_HOST_LOGE("interface token mismatch, code %{public}u", code);
        return ERR_INVALID_STATE;
    }
    return IsHostControl(code) ? AnswerHostControl(code, data, reply) : AnswerManagerRequest(code, data, reply, option);
}

int SamgrSocketServer::AnswerManagerRequest(uint32_t code, MessageParcel& data, MessageParcel& reply,
                                            MessageOption& option)
{
    if (code == static_cast<uint32_t>(SamgrHostCode::LIST)) {
        return Answer(reply.WriteString16Vector(manager_.ListSystemAbilities(data.ReadUint32())));
    }
    int32_t systemAbilityId = 0;
    if (!data.ReadInt32(systemAbilityId)) {
        return ERR_INVALID_DATA;
    }
    const pid_t caller = data.GetSenderPid();
    switch (static_cast<SamgrHostCode>(code)) {
    case SamgrHostCode::GET:
        return Answer(WriteAbility(reply, manager_.GetSystemAbility(systemAbilityId)));
    case SamgrHostCode::CHECK:
        return Answer(WriteAbility(reply, manager_.CheckSystemAbility(systemAbilityId)));
    case SamgrHostCode::ADD:
        return Answer(reply.WriteInt32(gate_.MayChange(caller, "add", systemAbilityId)
                                           ? manager_.AddSystemAbility(systemAbilityId, data.ReadRemoteObject(), {})
                                           : ERR_PERMISSION_DENIED));
    case SamgrHostCode::REMOVE:
        return Answer(reply.WriteInt32(gate_.MayChange(caller, "remove", systemAbilityId)
                                           ? manager_.RemoveSystemAbility(systemAbilityId)
                                           : ERR_PERMISSION_DENIED));
    case SamgrHostCode::LOAD:
        return Answer(reply.WriteInt32(manager_.Load(systemAbilityId, data.ReadRemoteObject())));
    case SamgrHostCode::UNLOAD:
        return Answer(reply.WriteInt32(gate_.MayChange(caller, "unload", systemAbilityId)
                                           ? manager_.UnloadSystemAbility(systemAbilityId)
                                           : ERR_PERMISSION_DENIED));
    default:
        return IPCObjectStub::OnRemoteRequest(code, data, reply, option);
    }
}

int SamgrSocketServer::AnswerHostControl(uint32_t code, MessageParcel& data, MessageParcel& reply)
{
    const pid_t caller = data.GetSenderPid();
    if (code == static_cast<uint32_t>(SamgrHostCode::SCRIPT_LOADS)) {
        LoadScript script;
        int32_t count = 0;
        if (!ReadScript(data, script, count)) {
            return ERR_INVALID_DATA;
        }
        if (!gate_.MayControl(caller, "scripted loads")) {
            return ERR_PERMISSION_DENIED;
        }
        return manager_.ScriptLoads(script, count) ? static_cast<int>(ERR_NONE) : static_cast<int>(ERR_INVALID_VALUE);
    }
    int32_t systemAbilityId = 0;
    if (!data.ReadInt32(systemAbilityId)) {
        return ERR_INVALID_DATA;
    }
    switch (static_cast<SamgrHostCode>(code)) {
    case SamgrHostCode::KILL:
        if (!gate_.MayControl(caller, "a kill")) {
            return ERR_PERMISSION_DENIED;
        }
        return Answer(reply.WriteInt32(manager_.Kill(systemAbilityId)));
    case SamgrHostCode::LOOKUP_COUNT:
        return Answer(reply.WriteInt32(manager_.LookupCount(systemAbilityId)));
    default: // LOAD_COUNT, the last host control
        return Answer(reply.WriteInt32(manager_.LoadCount(systemAbilityId)));
    }
}

} // namespace OHOS
