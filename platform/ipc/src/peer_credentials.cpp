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

#include "peer_credentials.h"

#include <sys/socket.h>
#include <unistd.h>

#include "ipc_log.h"

namespace OHOS {
namespace {
// The uid of the platform's system services, which serve and call every user's processes.
constexpr uid_t SYSTEM_UID = 0;
} // namespace

PeerCredentials PeerCredentials::Of(int socket)
{
    ucred credentials{};
    socklen_t length = sizeof(credentials);
    PeerCredentials peer;
    if (getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &credentials, &length) == 0 && length == sizeof(credentials)) {
        peer.uid = credentials.uid;
        peer.pid = credentials.pid;
    }
    return peer;
}

bool PeerCredentials::Admitted(const char* role) const
{
    const uid_t own = getuid();
    if (uid == own || uid == SYSTEM_UID) {
        return true;
    }
    IPC_HOST_LOGE("refused a %{public}s of uid %{public}d, pid %{public}d: neither this user (uid %{public}d) nor "
                  "root",
                  role, static_cast<int>(uid), static_cast<int>(pid), static_cast<int>(own));
    return false;
}

} // namespace OHOS
