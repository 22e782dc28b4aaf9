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
 * A service stub for tests: it records the code of every request it receives and answers through a handler
 * that the test scripts. Registered with the host system ability manager, it sits "in another process", so the
 * library talks to it through a remote object, as on a device.
 */
#ifndef SCRIPTED_STUB_H
#define SCRIPTED_STUB_H

#include <functional>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "ipc_object_stub.h"
#include "ipc_types.h"
#include "message_option.h"
#include "message_parcel.h"

namespace OHOS {
namespace Zelkon {

class ScriptedStub : public IPCObjectStub {
public:
    // Decodes one request and writes its reply; the result is what the caller's SendRequest returns.
    using Handler = std::function<int(uint32_t code, MessageParcel& data, MessageParcel& reply)>;

    explicit ScriptedStub(const std::u16string& descriptor) : IPCObjectStub(descriptor), descriptor_(descriptor) {}

    // Without a handler the stub checks the token and answers true.
    void SetHandler(Handler handler)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        handler_ = std::move(handler);
    }

    std::vector<uint32_t> Codes() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return codes_;
    }

    int OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override
    {
        (void)option;
        Handler handler;
        {
            std::lock_guard<std::mutex> lock(mutex_);
            codes_.push_back(code);
            handler = handler_;
        }
        if (handler) {
            return handler(code, data, reply);
        }
        if (data.ReadInterfaceToken() != descriptor_) {
            return ERR_INVALID_STATE;
        }
        return reply.WriteBool(true) ? ERR_NONE : ERR_INVALID_DATA;
    }

private:
    const std::u16string descriptor_;
    mutable std::mutex mutex_;
    Handler handler_;
    std::vector<uint32_t> codes_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SCRIPTED_STUB_H
