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

#include "ipc_object_stub.h"

namespace OHOS {

IPCObjectStub::IPCObjectStub(std::u16string descriptor, bool serialInvokeFlag) : IRemoteObject(std::move(descriptor))
{
    // Host transactions are already serial per caller thread; the flag has nothing to change.
    (void)serialInvokeFlag;
}

IPCObjectStub::~IPCObjectStub() = default;

int32_t IPCObjectStub::GetObjectRefCount()
{
    return GetSptrRefCount();
}

int IPCObjectStub::SendRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option)
{
    return OnRemoteRequest(code, data, reply, option);
}

int IPCObjectStub::OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option)
{
    (void)code;
    (void)data;
    (void)reply;
    (void)option;
    return IPC_STUB_UNKNOW_TRANS_ERR;
}

bool IPCObjectStub::AddDeathRecipient(const sptr<DeathRecipient>& recipient)
{
    (void)recipient;
    return false;
}

bool IPCObjectStub::RemoveDeathRecipient(const sptr<DeathRecipient>& recipient)
{
    (void)recipient;
    return false;
}

int IPCObjectStub::Dump(int fd, const std::vector<std::u16string>& args)
{
    (void)fd;
    (void)args;
    return ERR_NONE;
}

} // namespace OHOS
