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
 * Host: the socket on which one thread calls into one peer process: it writes a transaction and reads the reply
 * itself. A channel that timed out, broke or carried a bad reply is closed; the next call opens another. The session
 * retires its channels when it ends, closing at once those not in a call and waking those that are.
 */
#ifndef OHOS_IPC_CHANNEL_H
#define OHOS_IPC_CHANNEL_H

#include <chrono>
#include <cstdint>
#include <mutex>
#include <vector>

#include "frame_socket.h"
#include "unique_fd.h"

namespace OHOS {

class Channel {
public:
    explicit Channel(UniqueFd socket);

    // A transaction id never used before in this process.
    static uint64_t NewTransaction();
    // Sends the frame of the transaction and waits for its reply until the deadline, or without one as long as it
    // takes (the peer answers, or its end retires the channel); a reply to another transaction is dropped (logged).
    // ERR_NONE, ERR_TIMED_OUT, ERR_DEAD_OBJECT (closed or broken) or ERR_INVALID_REPLY (not a reply); on any failure
    // the channel is closed.
    int Call(uint64_t transaction, const std::vector<uint8_t>& bytes, const std::vector<int>& fds,
             FrameSocket::Deadline deadline, IpcFrame& reply);
    // The reply was refused after it was read: the channel can no longer be trusted.
    void Close();
    bool IsOpen();
    void Retire();

private:
    std::mutex mutex_;
    UniqueFd socket_;
    bool inCall_ = false;
    bool retired_ = false;
    // The socket's send and receive timeouts; none known until the first call sets them.
    std::chrono::seconds timeout_{-1};
};

} // namespace OHOS

#endif // OHOS_IPC_CHANNEL_H
