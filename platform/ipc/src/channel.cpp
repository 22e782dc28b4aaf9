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

#include "channel.h"

#include <algorithm>
#include <sys/socket.h>

#include "ipc_types.h"

namespace OHOS {

Channel::Channel(UniqueFd socket) : socket_(std::move(socket)) {}

int Channel::Call(const std::vector<uint8_t>& bytes, const std::vector<int>& fds, FrameSocket::Deadline deadline,
                  IpcFrame& reply)
{
    int socket = -1;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (socket_ < 0) {
            return ERR_DEAD_OBJECT;
        }
        inCall_ = true;
        socket = socket_.Get();
    }
    // A peer that stops reading holds a send, and a peer that does not answer the read of its reply, no longer than
    // the caller waits: as long as it takes without a deadline (a zero timeout is none), at least a second with one.
    const auto waitTime = deadline.has_value()
                              ? std::max(std::chrono::ceil<std::chrono::seconds>(*deadline - FrameSocket::Clock::now()),
                                         std::chrono::seconds(1))
                              : std::chrono::seconds(0);
    if (waitTime != timeout_) {
        FrameSocket::SetTimeouts(socket, waitTime);
        timeout_ = waitTime;
    }
    int result = ERR_NONE;
    if (!FrameSocket::Send(socket, bytes, fds)) {
        result = ERR_DEAD_OBJECT;
    } else {
        switch (FrameSocket::Receive(socket, deadline, reply, true)) {
        case FrameSocket::Result::OK:
            result = reply.kind == IpcFrame::Kind::REPLY ? ERR_NONE : ERR_INVALID_REPLY;
            break;
        case FrameSocket::Result::TIMED_OUT:
            result = ERR_TIMED_OUT;
            break;
        case FrameSocket::Result::CLOSED:
            result = ERR_DEAD_OBJECT;
            break;
        case FrameSocket::Result::REFUSED:
            result = ERR_INVALID_REPLY;
            break;
        }
    }
    std::lock_guard<std::mutex> lock(mutex_);
    inCall_ = false;
    // A late reply would be read as the answer to the next call.
    if (result != ERR_NONE || retired_) {
        socket_ = UniqueFd();
    }
    return result;
}

void Channel::Close()
{
    std::lock_guard<std::mutex> lock(mutex_);
    socket_ = UniqueFd();
}

bool Channel::IsOpen()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return socket_ >= 0;
}

void Channel::Retire()
{
    std::lock_guard<std::mutex> lock(mutex_);
    retired_ = true;
    if (!inCall_) {
        socket_ = UniqueFd();
    } else if (socket_ >= 0) {
        shutdown(socket_.Get(), SHUT_RDWR);
    }
}

} // namespace OHOS
