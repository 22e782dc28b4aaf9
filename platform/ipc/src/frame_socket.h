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
 * Host: frames over Unix stream sockets. A frame is sent whole with its descriptors (SCM_RIGHTS), received exactly
 * (never a byte of the next one, unless nothing may follow) within a deadline, and decoded; the sockets are those of
 * the abstract namespace (a process's own address, nothing on disk) or of the filesystem (a well-known path).
 */
#ifndef OHOS_IPC_FRAME_SOCKET_H
#define OHOS_IPC_FRAME_SOCKET_H

#include <chrono>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

#include "ipc_frame.h"
#include "unique_fd.h"

namespace OHOS {

class FrameSocket {
public:
    using Clock = std::chrono::steady_clock;
    using Deadline = std::optional<Clock::time_point>;
    enum class Namespace { ABSTRACT, FILESYSTEM };
    // The largest frame crosses a Unix socket in milliseconds; a peer that takes this long within one has stalled.
    static constexpr std::chrono::seconds FRAME_DEADLINE{3};
    enum class Result {
        OK,
        CLOSED,    // the peer closed the connection between frames, or it broke
        TIMED_OUT, // nothing complete before the deadline
        REFUSED,   // not a frame (logged); the descriptors that came with it are closed
    };

    // False if the connection is broken or stalls beyond the socket's send timeout.
    static bool Send(int socket, const std::vector<uint8_t>& bytes, const std::vector<int>& fds);
    // A serving side's wait for the next frame of a peer: as long as it takes for the frame to begin (a request, or
    // a release, comes when the peer has one), then at most FRAME_DEADLINE for the rest of it. A peer that stalls
    // within a frame is dropped (TIMED_OUT, logged), so that a stalled connection holds neither memory nor a thread.
    static Result ReceiveRequest(int socket, IpcFrame& frame);
    // Without a deadline, waits as long as it takes. lastOnSocket: nothing follows the frame until this side writes
    // again (a reply), so it is read ahead in one piece, and the first wait is the socket's receive timeout, which
    // the caller keeps at the time left to the deadline (SetTimeouts).
    static Result Receive(int socket, Deadline deadline, IpcFrame& frame, bool lastOnSocket = false);

    // A connected socket, or an invalid one (logged; also when the server is neither this user's nor root's).
    static UniqueFd Connect(const std::string& address, Namespace space);
    // A socket listening at the address, or an invalid one (logged). A socket file is made for this user only.
    static UniqueFd Listen(const std::string& address, Namespace space);
    // The process at the other end as the kernel knows it, or -1.
    static pid_t PeerPid(int socket);
    // How long a send may make no progress before it fails, and how long a blocking read waits.
    static void SetTimeouts(int socket, std::chrono::seconds timeout);
};

} // namespace OHOS

#endif // OHOS_IPC_FRAME_SOCKET_H
