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

#include "frame_socket.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <mutex>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include "ipc_log.h"
#include "peer_credentials.h"
#include "write_all.h"

namespace OHOS {
namespace {
constexpr std::chrono::seconds CONNECT_TIMEOUT{5};
// A body is read in pieces that grow with what arrived, so that a peer announcing far more than it sends cannot
// make this process reserve the whole announced size.
constexpr size_t FIRST_BODY_PIECE = 64 * 1024;
// A reply is read with what may follow its header in one piece: small replies take one read.
constexpr size_t REPLY_READ_AHEAD = 4096 - IpcFrame::HEADER_SIZE;

using Result = FrameSocket::Result;

struct Address {
    sockaddr_un address{};
    socklen_t length = 0;
};

bool MakeAddress(const std::string& name, FrameSocket::Namespace space, Address& made)
{
    const size_t offset = space == FrameSocket::Namespace::ABSTRACT ? 1 : 0;
    if (name.empty() || name.size() + offset >= sizeof(made.address.sun_path)) {
        IPC_HOST_LOGE("socket address of %{public}zu bytes is not usable", name.size());
        return false;
    }
    made.address.sun_family = AF_UNIX;
    std::memcpy(made.address.sun_path + offset, name.data(), name.size());
    made.length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + offset + name.size() +
                                         (space == FrameSocket::Namespace::FILESYSTEM ? 1 : 0));
    return true;
}

// A socket file is made under a private umask, so that no other user can connect to it. The umask is the process's:
// a file that another thread makes meanwhile is only made more private, and the lock keeps two binds from
// restoring each other's umask.
bool Bind(int socket, const Address& own, FrameSocket::Namespace space)
{
    constexpr mode_t PRIVATE_UMASK = S_IRWXG | S_IRWXO;
    if (space == FrameSocket::Namespace::ABSTRACT) {
        return bind(socket, reinterpret_cast<const sockaddr*>(&own.address), own.length) == 0;
    }
    static std::mutex umaskMutex;
    std::lock_guard<std::mutex> lock(umaskMutex);
    const mode_t previous = umask(PRIVATE_UMASK);
    const int bound = bind(socket, reinterpret_cast<const sockaddr*>(&own.address), own.length);
    const int bindError = errno;
    umask(previous);
    errno = bindError;
    return bound == 0;
}

// A stream socket and the address `name` stands for in `space`; no socket where either cannot be made.
UniqueFd NewSocketFor(const std::string& name, FrameSocket::Namespace space, Address& address)
{
    if (!MakeAddress(name, space, address)) {
        return UniqueFd();
    }
    UniqueFd socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (socket < 0) {
        IPC_HOST_LOGE("socket failed, errno %{public}d", errno);
    }
    return socket;
}

void TakeDescriptors(msghdr& message, std::vector<UniqueFd>& fds)
{
    for (cmsghdr* header = CMSG_FIRSTHDR(&message); header != nullptr; header = CMSG_NXTHDR(&message, header)) {
        if (header->cmsg_level != SOL_SOCKET || header->cmsg_type != SCM_RIGHTS) {
            continue;
        }
        const size_t count = (header->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        for (size_t i = 0; i < count; ++i) {
            int fd = -1;
            std::memcpy(&fd, CMSG_DATA(header) + i * sizeof(int), sizeof(int));
            fds.emplace_back(fd);
        }
    }
}

// Waits until the socket is readable or the deadline passes.
Result AwaitReadable(int socket, const FrameSocket::Deadline& deadline)
{
    if (!deadline.has_value()) {
        return Result::OK;
    }
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(*deadline - FrameSocket::Clock::now());
        pollfd entry{socket, POLLIN, 0};
        const int ready = poll(&entry, 1, static_cast<int>(std::max<int64_t>(left.count(), 0)));
        if (ready > 0) {
            return Result::OK;
        }
        if (ready == 0) {
            return Result::TIMED_OUT;
        }
        if (errno != EINTR) {
            return Result::CLOSED;
        }
    }
}

// Reads until at least `least` bytes are there and at most `most`, collecting the descriptors that come with them;
// got counts what is there. A frame that ends early is refused; the end of the connection before its first byte is a
// close. With blockFirst the first read waits on the socket's own receive timeout rather than a poll.
Result ReadAtLeast(int socket, uint8_t* data, size_t least, size_t most, const FrameSocket::Deadline& deadline,
                   std::vector<UniqueFd>& fds, bool frameStart, bool blockFirst, size_t& got)
{
    alignas(cmsghdr) char control[CMSG_SPACE(IpcFrame::MAX_FDS * sizeof(int))];
    // The rest of a frame is usually there already: it is read before any wait.
    bool await = frameStart && !blockFirst;
    bool block = blockFirst;
    while (got < least) {
        const Result ready = await ? AwaitReadable(socket, deadline) : Result::OK;
        if (ready != Result::OK) {
            return ready;
        }
        iovec piece{data + got, most - got};
        msghdr message{};
        message.msg_iov = &piece;
        message.msg_iovlen = 1;
        message.msg_control = control;
        message.msg_controllen = sizeof(control);
        const bool wait = block || !deadline.has_value();
        const ssize_t count = recvmsg(socket, &message, MSG_CMSG_CLOEXEC | (wait ? 0 : MSG_DONTWAIT));
        block = false;
        if (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) {
            await = true;
            continue;
        }
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return Result::CLOSED;
        }
        TakeDescriptors(message, fds);
        if ((message.msg_flags & MSG_CTRUNC) != 0) {
            IPC_HOST_LOGE("refused a frame: more descriptors than a frame carries");
            return Result::REFUSED;
        }
        if (count == 0) {
            if (frameStart && got == 0) {
                return Result::CLOSED;
            }
            IPC_HOST_LOGE("refused a frame: the connection ended within it");
            return Result::REFUSED;
        }
        got += static_cast<size_t>(count);
    }
    return Result::OK;
}
} // namespace

bool FrameSocket::Send(int socket, const std::vector<uint8_t>& bytes, const std::vector<int>& fds)
{
    alignas(cmsghdr) char control[CMSG_SPACE(IpcFrame::MAX_FDS * sizeof(int))];
    return WriteAll(bytes.size(), [&](size_t sent) {
        iovec piece{const_cast<uint8_t*>(bytes.data()) + sent, bytes.size() - sent};
        msghdr message{};
        message.msg_iov = &piece;
        message.msg_iovlen = 1;
        // The descriptors go with the first byte, so that they arrive with the header.
        if (sent == 0 && !fds.empty()) {
            message.msg_control = control;
            message.msg_controllen = CMSG_SPACE(fds.size() * sizeof(int));
            cmsghdr* header = CMSG_FIRSTHDR(&message);
            header->cmsg_level = SOL_SOCKET;
            header->cmsg_type = SCM_RIGHTS;
            header->cmsg_len = CMSG_LEN(fds.size() * sizeof(int));
            std::memcpy(CMSG_DATA(header), fds.data(), fds.size() * sizeof(int));
        }
        return sendmsg(socket, &message, MSG_NOSIGNAL);
    });
}

FrameSocket::Result FrameSocket::Receive(int socket, Deadline deadline, IpcFrame& frame, bool lastOnSocket)
{
    std::vector<uint8_t> bytes(IpcFrame::HEADER_SIZE + (lastOnSocket ? REPLY_READ_AHEAD : 0));
    std::vector<UniqueFd> fds;
    size_t got = 0;
    Result result =
        ReadAtLeast(socket, bytes.data(), IpcFrame::HEADER_SIZE, bytes.size(), deadline, fds, true, lastOnSocket, got);
    if (result != Result::OK) {
        return result;
    }
    size_t bodySize = 0;
    const char* error = nullptr;
    if (!IpcFrame::BodySize(bytes.data(), bodySize, error)) {
        IPC_HOST_LOGE("refused a frame: %{public}s", error);
        return Result::REFUSED;
    }
    const size_t size = IpcFrame::HEADER_SIZE + bodySize;
    if (got > size) {
        IPC_HOST_LOGE("refused a frame: bytes followed it");
        return Result::REFUSED;
    }
    while (got < size && result == Result::OK) {
        bytes.resize(got + std::min(size - got, std::max(got, FIRST_BODY_PIECE)));
        result = ReadAtLeast(socket, bytes.data(), bytes.size(), bytes.size(), deadline, fds, false, false, got);
    }
    if (result != Result::OK) {
        return result;
    }
    bytes.resize(size);
    std::optional<IpcFrame> decoded = IpcFrame::Decode(std::move(bytes), std::move(fds), error);
    if (!decoded.has_value()) {
        IPC_HOST_LOGE("refused a frame: %{public}s", error);
        return Result::REFUSED;
    }
    frame = std::move(*decoded);
    return Result::OK;
}

FrameSocket::Result FrameSocket::ReceiveRequest(int socket, IpcFrame& frame)
{
    pollfd entry{socket, POLLIN, 0};
    while (poll(&entry, 1, -1) < 0) {
        if (errno != EINTR) {
            return Result::CLOSED;
        }
    }
    const Result result = Receive(socket, Clock::now() + FRAME_DEADLINE, frame);
    if (result == Result::TIMED_OUT) {
        IPC_HOST_LOGE("dropped the connection of pid %{public}d: it stalled within a frame for %{public}lld s",
                      PeerPid(socket), static_cast<long long>(FRAME_DEADLINE.count()));
    }
    return result;
}

UniqueFd FrameSocket::Connect(const std::string& address, Namespace space)
{
    Address target;
    UniqueFd socket = NewSocketFor(address, space, target);
    if (socket < 0) {
        return socket;
    }
    // A listener that no longer accepts must not hold the caller forever.
    SetTimeouts(socket.Get(), CONNECT_TIMEOUT);
    if (connect(socket.Get(), reinterpret_cast<const sockaddr*>(&target.address), target.length) != 0) {
        return UniqueFd();
    }
    if (!PeerCredentials::Of(socket.Get()).Admitted("server")) {
        errno = EPERM;
        return UniqueFd();
    }
    return socket;
}

UniqueFd FrameSocket::Listen(const std::string& address, Namespace space)
{
    Address own;
    UniqueFd socket = NewSocketFor(address, space, own);
    if (socket < 0) {
        return socket;
    }
    if (!Bind(socket.Get(), own, space) || listen(socket.Get(), SOMAXCONN) != 0) {
        IPC_HOST_LOGE("cannot listen at %{public}s, errno %{public}d", address.c_str(), errno);
        return UniqueFd();
    }
    return socket;
}

pid_t FrameSocket::PeerPid(int socket)
{
    ucred credentials{};
    socklen_t length = sizeof(credentials);
    if (getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &credentials, &length) != 0) {
        return -1;
    }
    return credentials.pid;
}

void FrameSocket::SetTimeouts(int socket, std::chrono::seconds timeout)
{
    const timeval limit{static_cast<time_t>(timeout.count()), 0};
    setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof(limit));
    setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof(limit));
}

} // namespace OHOS
