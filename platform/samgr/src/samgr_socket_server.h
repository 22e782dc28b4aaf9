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
 * Host: the system ability manager as other processes reach it. Serves the manager at a socket as the context
 * object of this process and answers each request with what the manager does: the manager's interface, and the
 * host controls that a process across the boundary may use.
 */
#ifndef OHOS_SAMGR_SAMGR_SOCKET_SERVER_H
#define OHOS_SAMGR_SAMGR_SOCKET_SERVER_H

#include <mutex>
#include <string>

#include "host_control_gate.h"
#include "ipc_object_stub.h"

namespace OHOS {

class SystemAbilityManagerHost;

class SamgrSocketServer : public IPCObjectStub {
public:
    explicit SamgrSocketServer(SystemAbilityManagerHost& manager);

    // False (logged) if the path cannot be served or this process serves already.
    bool Serve(const std::string& socketPath);
    bool IsServing();
    // Empty while this process does not serve.
    std::string SocketPath();

    int OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override;

private:
    int AnswerManagerRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option);
    int AnswerHostControl(uint32_t code, MessageParcel& data, MessageParcel& reply);

    SystemAbilityManagerHost& manager_;
    HostControlGate gate_;
    std::mutex mutex_;
    std::string socketPath_;
};

} // namespace OHOS

#endif // OHOS_SAMGR_SAMGR_SOCKET_SERVER_H
