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
 * A service that answers every request with bytes it is handed, as a broken or hostile service would: the reply
 * fuzzers feed their input through it to the real proxies, so that the library reads it exactly as it reads a
 * reply that crossed the process boundary; the benchmarks answer with it at the least cost.
 */
#ifndef REPLY_STUB_H
#define REPLY_STUB_H

#include <cstddef>
#include <cstdint>
#include <string>

#include "ipc_object_stub.h"
#include "message_option.h"
#include "message_parcel.h"
#include "refbase.h"

namespace OHOS {
namespace Zelkon {

class ReplyStub : public IPCObjectStub {
public:
    explicit ReplyStub(const std::u16string& descriptor);

    // The reply of the following requests: the bytes (not copied, they must outlive the requests), behind a remote
    // object when leadingObject is set, since fuzzed bytes alone can never carry one.
    void AnswerWith(const uint8_t* data, size_t size, bool leadingObject);

    int OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override;

private:
    sptr<IRemoteObject> leadingObject_;
    const uint8_t* data_ = nullptr;
    size_t size_ = 0;
    bool withObject_ = false;
};

} // namespace Zelkon
} // namespace OHOS

#endif // REPLY_STUB_H
