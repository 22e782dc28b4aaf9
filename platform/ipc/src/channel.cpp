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
#include <atomic>
#include <sys/socket.h>

#include "ipc_log.h"
#include "ipc_types.h"

namespace OHOS {

namespace {
std::atomic<uint64_t> g_nextTransaction{1};

int ResultOf(FrameSocket::Result received, const IpcFrame& reply)
{
    switch (received) {
    case FrameSocket::Result::OK:
        return reply.kind == IpcFrame::Kind::REPLY ? ERR_NONE : ERR_INVALID_REPLY;
    case FrameSocket::Result::TIMED_OUT:
        return ERR_TIMED_OUT;
    case FrameSocket::Result::CLOSED:
        return ERR_DEAD_OBJECT;
    case FrameSocket::Result::REFUSED:
        break;
    }
    return ERR_INVALID_REPLY;
}
} // namespace

Channel::Channel(UniqueFd socket) : socket_(std::move(socket)) {}

uint64_t Channel::NewTransaction()
{
    return g_nextTransaction.fetch_add(1, std::memory_order_relaxed);
}

int Channel::Call(uint64_t transaction, const std::vector<uint8_t>& bytes, const std::vector<int>& fds,
                  FrameSocket::Deadline deadline, IpcFrame& reply)
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
    int result = FrameSocket::Send(socket, bytes, fds) ? static_cast<int>(ERR_NONE) : ERR_DEAD_OBJECT;
    while (result == ERR_NONE) {
        result = ResultOf(FrameSocket::Receive(socket, deadline, reply, true), reply);
        if (result != ERR_NONE || reply.transaction == transaction) {
            break;
        }
        IPC_HOST_LOGW("dropped a stray reply to transaction %{public}llu while waiting for %{public}llu",
                      static_cast<unsigned long long>(reply.transaction), static_cast<unsigned long long>(transaction));
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
