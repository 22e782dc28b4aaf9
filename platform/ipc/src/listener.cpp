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

#include "listener.h"

#include <chrono>
#include <sys/socket.h>
#include <thread>

#include "channel_server.h"
#include "connection_quota.h"
#include "frame_socket.h"
#include "ipc_log.h"
#include "ipc_threads.h"
#include "peer_credentials.h"
#include "session_registry.h"

namespace OHOS {
namespace {
// A connection that says nothing holds its thread no longer than this.
constexpr std::chrono::seconds HELLO_TIMEOUT{5};
constexpr std::chrono::milliseconds ACCEPT_RETRY_DELAY{100};
} // namespace

Listener::Listener(UniqueFd socket) : socket_(std::move(socket)) {}

std::shared_ptr<Listener> Listener::Start(UniqueFd socket)
{
    std::shared_ptr<Listener> listener(new Listener(std::move(socket)));
    IpcThreads::StartThread([listener] { listener->Accept(); });
    return listener;
}

void Listener::Stop()
{
    // Wakes the accepting thread; the socket is closed once that thread no longer uses it.
    shutdown(socket_.Get(), SHUT_RDWR);
    std::unique_lock<std::mutex> lock(mutex_);
    stopped_.wait(lock, [this] { return !accepting_; });
    socket_ = UniqueFd();
}

void Listener::Accept()
{
    for (;;) {
        const int connection = accept4(socket_.Get(), nullptr, nullptr, SOCK_CLOEXEC);
        if (connection >= 0) {
            Admit(UniqueFd(connection));
            continue;
        }
        if (errno == EINVAL) {
            break;
        }
        if (errno != EINTR && errno != ECONNABORTED) {
            // Out of descriptors or memory for now: the connections wait in the backlog meanwhile.
            IPC_HOST_LOGE("accept failed, errno %{public}d", errno);
            std::this_thread::sleep_for(ACCEPT_RETRY_DELAY);
        }
    }
    std::lock_guard<std::mutex> lock(mutex_);
    accepting_ = false;
    stopped_.notify_all();
}

void Listener::Admit(UniqueFd connection)
{
    // Checked before a thread is spent on the connection: a refused one is closed here.
    const PeerCredentials peer = PeerCredentials::Of(connection.Get());
    if (!peer.Admitted("client")) {
        return;
    }
    ConnectionQuota::Slot slot = ConnectionQuota::OfProcess().Take(peer);
    if (slot == nullptr) {
        return;
    }
    const int served = connection.Release();
    IpcThreads::StartThread([served, slot] { Serve(UniqueFd(served)); });
}

void Listener::Serve(UniqueFd connection)
{
    IpcFrame hello;
    if (FrameSocket::Receive(connection.Get(), FrameSocket::Clock::now() + HELLO_TIMEOUT, hello) !=
        FrameSocket::Result::OK) {
        IPC_HOST_LOGE("a connection closed without a hello");
        return;
    }
    SessionRegistry& sessions = SessionRegistry::OfProcess();
    if (hello.kind == IpcFrame::Kind::SESSION_HELLO) {
        if (std::shared_ptr<Session> session = sessions.Accept(std::move(connection), hello)) {
            session->ReadUntilEnd();
        }
        return;
    }
    std::shared_ptr<Session> session =
        hello.kind == IpcFrame::Kind::CHANNEL_HELLO ? sessions.Find(hello.Address(), hello.handle) : nullptr;
    if (session == nullptr || session->PeerPid() != FrameSocket::PeerPid(connection.Get()) ||
        !session->ServingStarted()) {
        IPC_HOST_LOGE("refused a connection: its hello names no session of its process");
        return;
    }
    ChannelServer::Serve(session, std::move(connection));
    session->ServingEnded();
}

} // namespace OHOS
