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
 * The trace of a service in another process: the caller hands the service a receiver object (and registers it, for
 * the services started later), and the service sends it each decoded request as JSON before it replies, so that
 * the caller sees the trace of a call by the time the call returns, as in one process.
 */
#ifndef REMOTE_TRACE_H
#define REMOTE_TRACE_H

#include <cstdint>

#include "decoded_request.h"
#include "ipc_object_stub.h"

namespace OHOS {
namespace Zelkon {

// A host code of the emulated services, beyond every code of their interfaces: a receiver object, or none to stop.
inline constexpr uint32_t EMULATOR_TRACE_CODE = 0x00FFFF01;
// Where the receiver is registered with the system ability manager, so that a service started later finds it.
inline constexpr int32_t EMULATOR_TRACE_RECEIVER_ID = 0x00FFFF01;

class TraceReceiver : public IPCObjectStub {
public:
    explicit TraceReceiver(TraceSink sink);
    int OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override;

    // The sink of a service that sends each request to the receiver behind `receiver`.
    static TraceSink SinkTo(const sptr<IRemoteObject>& receiver);

private:
    const TraceSink sink_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // REMOTE_TRACE_H
