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

#include "reply_stub.h"

#include "ipc_types.h"

namespace OHOS {
namespace Zelkon {

ReplyStub::ReplyStub(const std::u16string& descriptor) :
    IPCObjectStub(descriptor), leadingObject_(new IPCObjectStub(u"fuzz.reply.object"))
{
}

void ReplyStub::AnswerWith(const uint8_t* data, size_t size, bool leadingObject)
{
    data_ = data;
    size_ = size;
    withObject_ = leadingObject;
}

int ReplyStub::OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option)
{
    (void)code;
    (void)data;
    (void)option;
    if (withObject_ && !reply.WriteRemoteObject(leadingObject_)) {
        return ERR_INVALID_DATA;
    }
    // An empty reply is a legal answer; the parcel refuses a zero-length buffer, so it is simply not written.
    if (size_ > 0 && !reply.WriteBuffer(data_, size_)) {
        return ERR_INVALID_DATA;
    }
    return ERR_NONE;
}

} // namespace Zelkon
} // namespace OHOS
