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

#include "host_samgr_connection.h"

#include <cstdlib>
#include <mutex>

#include "ipc_host_transport.h"
#include "samgr_log.h"
#include "system_ability_manager_host.h"

namespace OHOS {
namespace {
const char* SocketPath()
{
    const char* path = std::getenv(SamgrHostControl::SOCKET_ENVIRONMENT);
    return path != nullptr && *path != '\0' ? path : nullptr;
}
} // namespace

bool HostSamgrConnection::IsAcrossProcesses()
{
    return SocketPath() != nullptr && !SystemAbilityManagerHost::Instance().IsServing();
}

sptr<SystemAbilityManagerProxy> HostSamgrConnection::Manager()
{
    struct Connection {
        std::mutex mutex;
        sptr<IRemoteObject> remote;
        sptr<SystemAbilityManagerProxy> manager;
    };
    // Kept for the life of the process: the manager may be asked for during exit.
    static Connection* connection = new Connection();
    std::lock_guard<std::mutex> lock(connection->mutex);
    if (connection->remote == nullptr || IpcHostTransport::HasProcessEnded(connection->remote)) {
        connection->remote = IpcHostTransport::ConnectToContextObject(SocketPath());
        if (connection->remote == nullptr) {
            SAMGR_HOST_LOGE("no system ability manager serves at %{public}s", SocketPath());
            connection->manager = nullptr;
            return nullptr;
        }
        connection->manager = new SystemAbilityManagerProxy(connection->remote);
    }
    return connection->manager;
}

} // namespace OHOS
