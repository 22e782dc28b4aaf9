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
 * Host: the sessions of this process, one per peer process as a rule (two only when both opened one at the same
 * moment; each stays consistent on its own), and this process's own listening address.
 */
#ifndef OHOS_IPC_SESSION_REGISTRY_H
#define OHOS_IPC_SESSION_REGISTRY_H

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <sys/types.h>
#include <vector>

#include "frame_socket.h"
#include "ipc_frame.h"
#include "session.h"
#include "unique_fd.h"

namespace OHOS {

class SessionRegistry {
public:
    static SessionRegistry& OfProcess();

    // An abstract-namespace name unique to this process instance.
    const std::string& OwnAddress() const { return ownAddress_; }
    // The live session with the process listening at the address, opened now if there is none; null (logged) if it
    // cannot be reached by the deadline.
    std::shared_ptr<Session> SessionTo(const std::string& address, FrameSocket::Clock::time_point deadline);
    // The session with the process serving at the filesystem path; null (logged) if nobody serves there.
    std::shared_ptr<Session> SessionAt(const std::string& path);
    // Registers and answers a session that a peer opened with this hello; null (logged) if refused. The caller goes
    // on to read it.
    std::shared_ptr<Session> Accept(UniqueFd socket, const IpcFrame& hello);
    // The live session that a channel's hello names, or null.
    std::shared_ptr<Session> Find(const std::string& address, uint64_t nonce);
    // Waits until no session with the pid is left and every death notice their ends caused has run.
    bool WaitForPeerGone(pid_t pid, std::chrono::milliseconds timeout);
    size_t LiveCount();

private:
    SessionRegistry();

    // Opens a session on a connected socket, not registered yet; null (logged) if the peer does not answer as it
    // should.
    std::shared_ptr<Session> Open(UniqueFd socket, const std::string& target, FrameSocket::Clock::time_point deadline);
    // Registers the session and starts its reader; under the lock.
    void Add(const std::shared_ptr<Session>& session);
    std::shared_ptr<Session> LiveTo(const std::string& address);
    void ForgetGone();

    const std::string ownAddress_;
    std::mutex mutex_;
    std::condition_variable opened_;
    std::vector<std::shared_ptr<Session>> sessions_;
    std::set<std::string> opening_;
};

} // namespace OHOS

#endif // OHOS_IPC_SESSION_REGISTRY_H
