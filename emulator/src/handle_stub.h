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

/*
 * A small local object that a service hands out for something it keeps, such as a started transfer (the sender)
 * or the receiver callback. A request with its interface token is answered with the handle's number.
 */
#ifndef HANDLE_STUB_H
#define HANDLE_STUB_H

#include <cstdint>
#include <string>

#include "ipc_object_stub.h"
#include "message_option.h"

namespace OHOS {
namespace Zelkon {

class HandleStub : public IPCObjectStub {
public:
    HandleStub(const std::u16string& token, int32_t handle) : IPCObjectStub(token), token_(token), handle_(handle) {}

    int32_t Handle() const { return handle_; }
    int OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override;

private:
    const std::u16string token_;
    const int32_t handle_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // HANDLE_STUB_H
