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

#include "demo_remotes.h"

#include "message_option.h"
#include "message_parcel.h"

namespace OHOS {
namespace Zelkon {
namespace {
// The typed proxies exist once per process, as an application that uses these objects would register them.
const BrokerDelegator<DemoSenderProxy> SENDER_DELEGATOR;
const BrokerDelegator<DemoReceiverProxy> RECEIVER_DELEGATOR;
constexpr uint32_t QUERY_HANDLE_CODE = 1;
} // namespace

int32_t QueryHandle(const sptr<IRemoteObject>& object, const std::u16string& token)
{
    if (object == nullptr) {
        return -1;
    }
    MessageParcel data;
    MessageParcel reply;
    MessageOption option;
    if (!data.WriteInterfaceToken(token) || object->SendRequest(QUERY_HANDLE_CODE, data, reply, option) != 0) {
        return -1;
    }
    int32_t handle = -1;
    return reply.ReadInt32(handle) ? handle : -1;
}

} // namespace Zelkon
} // namespace OHOS
