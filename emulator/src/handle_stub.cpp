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

#include "handle_stub.h"

#include "emulator_log.h"
#include "ipc_types.h"
#include "message_parcel.h"

namespace OHOS {
namespace Zelkon {

int HandleStub::OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option)
{
    (void)option;
    if (data.ReadInterfaceToken() != token_) {
        EMULATOR_LOGE("handle %{public}d: request %{public}u refused, wrong interface token", handle_, code);
        return ERR_INVALID_STATE;
    }
    return reply.WriteInt32(handle_) ? ERR_NONE : IPC_STUB_WRITE_PARCEL_ERR;
}

} // namespace Zelkon
} // namespace OHOS
