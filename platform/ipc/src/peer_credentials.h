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
 * Host: who is at the other end of a connection, as the kernel recorded it when the connection was made. Only this
 * user's own processes and root (the uid the platform's system services run as) are admitted: abstract sockets
 * carry no file permissions, so this check, on both sides of every connection, is what keeps other users out.
 */
#ifndef OHOS_IPC_PEER_CREDENTIALS_H
#define OHOS_IPC_PEER_CREDENTIALS_H

#include <sys/types.h>

namespace OHOS {

class PeerCredentials {
public:
    // The peer of a connected Unix socket; uid -1 and pid -1 if the kernel does not say.
    static PeerCredentials Of(int socket);

    // True for this user's processes and root; otherwise false, with one line naming the peer. role says which end
    // the peer is ("client" or "server").
    bool Admitted(const char* role) const;

    uid_t uid = static_cast<uid_t>(-1);
    pid_t pid = -1;
};

} // namespace OHOS

#endif // OHOS_IPC_PEER_CREDENTIALS_H
