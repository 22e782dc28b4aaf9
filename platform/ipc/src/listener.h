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
 * Host: a listening socket of this process (its own address, or the path of its context object), accepting on an
 * IPC thread of its own. A connection is served only for a peer that PeerCredentials admits and within its
 * ConnectionQuota; it gets a thread that reads its hello: a session hello makes it the reader of
 * a new session, a channel hello makes it the server of that channel.
 */
#ifndef OHOS_IPC_LISTENER_H
#define OHOS_IPC_LISTENER_H

#include <condition_variable>
#include <memory>
#include <mutex>

#include "unique_fd.h"

namespace OHOS {

class Listener : public std::enable_shared_from_this<Listener> {
public:
    // Accepts on the listening socket until stopped.
    static std::shared_ptr<Listener> Start(UniqueFd socket);
    // Accepts no more and closes the socket; connections already made go on.
    void Stop();

private:
    explicit Listener(UniqueFd socket);
    void Accept();
    // Serves a connection of this user or root that its process's quota admits, on a thread of its own.
    static void Admit(UniqueFd connection);
    static void Serve(UniqueFd connection);

    UniqueFd socket_;
    std::mutex mutex_;
    std::condition_variable stopped_;
    bool accepting_ = true;
};

} // namespace OHOS

#endif // OHOS_IPC_LISTENER_H
