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

#include "session_registry.h"

#include <algorithm>
#include <iomanip>
#include <random>
#include <sstream>
#include <unistd.h>

#include "frame_socket.h"
#include "ipc_log.h"
#include "ipc_threads.h"

namespace OHOS {
namespace {
constexpr std::chrono::seconds HELLO_TIMEOUT{5};

uint64_t RandomNumber()
{
    std::random_device device;
    return (static_cast<uint64_t>(device()) << 32) | device();
}

// The pid keeps the name readable; the random part keeps it apart from a later process with the same pid.
std::string NewOwnAddress()
{
    std::ostringstream name;
    name << "ohos.ipc." << getpid() << "." << std::hex << std::setw(16) << std::setfill('0') << RandomNumber();
    return name.str();
}

// The peer's own word must match what the kernel says of the other end.
bool CredentialsMatch(int socket, const IpcFrame& hello)
{
    const pid_t kernelPid = FrameSocket::PeerPid(socket);
    if (kernelPid != hello.pid) {
        IPC_HOST_LOGE("hello names pid %{public}d, the socket's peer is pid %{public}d", hello.pid, kernelPid);
        return false;
    }
    return true;
}
} // namespace

SessionRegistry& SessionRegistry::OfProcess()
{
    // Never destroyed: session threads may still use it while statics are torn down.
    static SessionRegistry* registry = new SessionRegistry();
    return *registry;
}

SessionRegistry::SessionRegistry() : ownAddress_(NewOwnAddress()) {}

std::shared_ptr<Session> SessionRegistry::SessionTo(const std::string& address, FrameSocket::Clock::time_point deadline)
{
    std::unique_lock<std::mutex> lock(mutex_);
    for (;;) {
        if (std::shared_ptr<Session> live = LiveTo(address)) {
            return live;
        }
        // One thread opens, the others wait for its session.
        if (opening_.insert(address).second) {
            break;
        }
        if (opened_.wait_until(lock, deadline) == std::cv_status::timeout) {
            IPC_HOST_LOGE("cannot reach %{public}s: another thread is still opening a session with it",
                          address.c_str());
            return nullptr;
        }
    }
    lock.unlock();
    UniqueFd socket = FrameSocket::Connect(address, FrameSocket::Namespace::ABSTRACT);
    if (socket < 0) {
        IPC_HOST_LOGE("cannot reach %{public}s, errno %{public}d", address.c_str(), errno);
    }
    std::shared_ptr<Session> session = socket >= 0 ? Open(std::move(socket), address, deadline) : nullptr;
    lock.lock();
    opening_.erase(address);
    opened_.notify_all();
    // The peer may have opened one at the same moment: both stay, since each side already counts on its own.
    if (session != nullptr) {
        Add(session);
    }
    return session;
}

std::shared_ptr<Session> SessionRegistry::SessionAt(const std::string& path)
{
    UniqueFd socket = FrameSocket::Connect(path, FrameSocket::Namespace::FILESYSTEM);
    if (socket < 0) {
        IPC_HOST_LOGE("nobody serves at %{public}s, errno %{public}d", path.c_str(), errno);
        return nullptr;
    }
    std::shared_ptr<Session> session = Open(std::move(socket), path, FrameSocket::Clock::now() + HELLO_TIMEOUT);
    if (session == nullptr) {
        return nullptr;
    }
    std::lock_guard<std::mutex> lock(mutex_);
    // Already in session with the process serving there: the new one, still unused, is closed.
    if (std::shared_ptr<Session> live = LiveTo(session->PeerAddress())) {
        return live;
    }
    Add(session);
    return session;
}

std::shared_ptr<Session> SessionRegistry::Open(UniqueFd socket, const std::string& target,
                                               FrameSocket::Clock::time_point deadline)
{
    const uint64_t nonce = RandomNumber();
    IpcFrame answer;
    if (!FrameSocket::Send(socket.Get(),
                           IpcFrame::EncodeHello(IpcFrame::Kind::SESSION_HELLO, nonce, getpid(), ownAddress_), {}) ||
        FrameSocket::Receive(socket.Get(), deadline, answer) != FrameSocket::Result::OK ||
        answer.kind != IpcFrame::Kind::SESSION_HELLO || answer.handle != nonce) {
        IPC_HOST_LOGE("cannot open a session with %{public}s: no hello", target.c_str());
        return nullptr;
    }
    if (!CredentialsMatch(socket.Get(), answer)) {
        return nullptr;
    }
    if (answer.Address() == ownAddress_) {
        IPC_HOST_LOGE("%{public}s is served by this process itself", target.c_str());
        return nullptr;
    }
    return std::make_shared<Session>(std::move(socket), answer.Address(), answer.pid, nonce);
}

std::shared_ptr<Session> SessionRegistry::Accept(UniqueFd socket, const IpcFrame& hello)
{
    const std::string address = hello.Address();
    if (!CredentialsMatch(socket.Get(), hello) || address == ownAddress_) {
        return nullptr;
    }
    // The reply goes out after the session is registered, so that the peer's channels find it.
    const std::vector<uint8_t> reply =
        IpcFrame::EncodeHello(IpcFrame::Kind::SESSION_HELLO, hello.handle, getpid(), ownAddress_);
    const int replySocket = socket.Get();
    auto session = std::make_shared<Session>(std::move(socket), address, hello.pid, hello.handle);
    {
        std::lock_guard<std::mutex> lock(mutex_);
        ForgetGone();
        sessions_.push_back(session);
    }
    // A reply that cannot be sent shows as the end of the session to its reader.
    FrameSocket::Send(replySocket, reply, {});
    return session;
}

void SessionRegistry::Add(const std::shared_ptr<Session>& session)
{
    ForgetGone();
    sessions_.push_back(session);
    IpcThreads::StartThread([session] { session->ReadUntilEnd(); });
}

std::shared_ptr<Session> SessionRegistry::Find(const std::string& address, uint64_t nonce)
{
    std::lock_guard<std::mutex> lock(mutex_);
    for (const std::shared_ptr<Session>& session : sessions_) {
        if (session->IsAlive() && session->Nonce() == nonce && session->PeerAddress() == address) {
            return session;
        }
    }
    return nullptr;
}

bool SessionRegistry::WaitForPeerGone(pid_t pid, std::chrono::milliseconds timeout)
{
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    std::vector<std::shared_ptr<Session>> ofPeer;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        std::copy_if(sessions_.begin(), sessions_.end(), std::back_inserter(ofPeer),
                     [pid](const std::shared_ptr<Session>& session) { return session->PeerPid() == pid; });
    }
    return std::all_of(ofPeer.begin(), ofPeer.end(),
                       [deadline](const std::shared_ptr<Session>& session) { return session->WaitGone(deadline); });
}

size_t SessionRegistry::LiveCount()
{
    std::lock_guard<std::mutex> lock(mutex_);
    ForgetGone();
    return std::count_if(sessions_.begin(), sessions_.end(),
                         [](const std::shared_ptr<Session>& session) { return session->IsAlive(); });
}

std::shared_ptr<Session> SessionRegistry::LiveTo(const std::string& address)
{
    for (const std::shared_ptr<Session>& session : sessions_) {
        if (session->IsAlive() && session->PeerAddress() == address) {
            return session;
        }
    }
    return nullptr;
}

void SessionRegistry::ForgetGone()
{
    sessions_.erase(std::remove_if(sessions_.begin(), sessions_.end(),
                                   [](const std::shared_ptr<Session>& session) { return session->IsGone(); }),
                    sessions_.end());
}

} // namespace OHOS
