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

#include "system_ability_load_callback_stub.h"

#include <string>

#include "samgr_log.h"
#include "system_ability_definition.h"

namespace OHOS {
namespace {
// Every outcome starts with the id; a request without one is refused before any callback.
bool ReadSystemAbilityId(MessageParcel& data, int32_t& systemAbilityId)
{
    if (!data.ReadInt32(systemAbilityId)) {
        SAMGR_HOST_LOGW("no system ability id");
        return false;
    }
    return true;
}
} // namespace

bool SystemAbilityLoadCallbackStub::CheckInputSystemAbilityId(int32_t systemAbilityId)
{
    if (systemAbilityId < SAMGR_SA_ID || systemAbilityId > LAST_SYS_ABILITY_ID) {
        SAMGR_HOST_LOGW("invalid system ability id %{public}d", systemAbilityId);
        return false;
    }
    return true;
}

int32_t SystemAbilityLoadCallbackStub::OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply,
                                                       MessageOption& option)
{
    if (data.ReadInterfaceToken() != GetDescriptor()) {
        SAMGR_HOST_LOGW("interface token mismatch, code %{public}u", code);
        return ERR_PERMISSION_DENIED;
    }
    switch (code) {
    case ON_LOAD_SYSTEM_ABILITY_SUCCESS:
        return OnLoadSystemAbilitySuccessInner(data, reply);
    case ON_LOAD_SYSTEM_ABILITY_FAIL:
        return OnLoadSystemAbilityFailInner(data, reply);
    case ON_LOAD_SYSTEM_ABILITY_COMPLETE_FOR_REMOTE:
        return OnLoadSACompleteForRemoteInner(data, reply);
    case ON_LOAD_SYSTEM_ABILITY_FAIL_WITH_CODE:
        return OnLoadSystemAbilityFailWithCodeInner(data, reply);
    default:
        SAMGR_HOST_LOGW("unknown code %{public}u", code);
        return IPCObjectStub::OnRemoteRequest(code, data, reply, option);
    }
}

int32_t SystemAbilityLoadCallbackStub::OnLoadSystemAbilitySuccessInner(MessageParcel& data, MessageParcel& reply)
{
    (void)reply;
    int32_t systemAbilityId = -1;
    if (!ReadSystemAbilityId(data, systemAbilityId) || !CheckInputSystemAbilityId(systemAbilityId)) {
        return ERR_INVALID_VALUE;
    }
    // Passed on even if it cannot be read: the callback decides what a success without an object means.
    sptr<IRemoteObject> remoteObject = data.ReadRemoteObject();
    if (remoteObject == nullptr) {
        SAMGR_HOST_LOGW("system ability %{public}d loaded without an object", systemAbilityId);
    }
    OnLoadSystemAbilitySuccess(systemAbilityId, remoteObject);
    return ERR_NONE;
}

int32_t SystemAbilityLoadCallbackStub::OnLoadSystemAbilityFailInner(MessageParcel& data, MessageParcel& reply)
{
    (void)reply;
    int32_t systemAbilityId = -1;
    if (!ReadSystemAbilityId(data, systemAbilityId) || !CheckInputSystemAbilityId(systemAbilityId)) {
        return ERR_INVALID_VALUE;
    }
    SAMGR_HOST_LOGI("system ability %{public}d failed to load", systemAbilityId);
    OnLoadSystemAbilityFail(systemAbilityId);
    return ERR_NONE;
}

int32_t SystemAbilityLoadCallbackStub::OnLoadSystemAbilityFailWithCodeInner(MessageParcel& data, MessageParcel& reply)
{
    (void)reply;
    int32_t systemAbilityId = -1;
    int32_t errCode = -1;
    if (!ReadSystemAbilityId(data, systemAbilityId) || !CheckInputSystemAbilityId(systemAbilityId)) {
        return ERR_INVALID_VALUE;
    }
    if (!data.ReadInt32(errCode)) {
        SAMGR_HOST_LOGW("no error code for system ability %{public}d", systemAbilityId);
        return ERR_INVALID_VALUE;
    }
    SAMGR_HOST_LOGI("system ability %{public}d failed to load: %{public}d", systemAbilityId, errCode);
    OnLoadSystemAbilityFail(systemAbilityId, errCode);
    return ERR_NONE;
}

int32_t SystemAbilityLoadCallbackStub::OnLoadSACompleteForRemoteInner(MessageParcel& data, MessageParcel& reply)
{
    (void)reply;
    const std::string deviceId = data.ReadString();
    int32_t systemAbilityId = -1;
    if (!ReadSystemAbilityId(data, systemAbilityId) || !CheckInputSystemAbilityId(systemAbilityId)) {
        return ERR_INVALID_VALUE;
    }
    // The object follows only when the remote load succeeded.
    const bool loaded = data.ReadBool();
    sptr<IRemoteObject> remoteObject = loaded ? data.ReadRemoteObject() : nullptr;
    OnLoadSACompleteForRemote(deviceId, systemAbilityId, remoteObject);
    return ERR_NONE;
}

} // namespace OHOS
