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

#include "thread_channels.h"

#include <map>
#include <unistd.h>

#include "frame_socket.h"
#include "ipc_log.h"
#include "session_registry.h"
#include "unique_fd.h"

namespace OHOS {
namespace {
// By session serial.
thread_local std::map<uint64_t, std::shared_ptr<Channel>> t_channels;

void ForgetClosed()
{
    for (auto it = t_channels.begin(); it != t_channels.end();) {
        it = it->second->IsOpen() ? std::next(it) : t_channels.erase(it);
    }
}
} // namespace

std::shared_ptr<Channel> ThreadChannels::To(const std::shared_ptr<Session>& session)
{
    auto it = t_channels.find(session->Serial());
    if (it != t_channels.end() && it->second->IsOpen()) {
        return it->second;
    }
    ForgetClosed();
    UniqueFd socket = FrameSocket::Connect(session->PeerAddress(), FrameSocket::Namespace::ABSTRACT);
    const std::vector<uint8_t> hello = IpcFrame::EncodeHello(IpcFrame::Kind::CHANNEL_HELLO, session->Nonce(), getpid(),
                                                             SessionRegistry::OfProcess().OwnAddress());
    if (socket < 0 || !FrameSocket::Send(socket.Get(), hello, {})) {
        IPC_HOST_LOGE("cannot open a channel to pid %{public}d, errno %{public}d", session->PeerPid(), errno);
        return nullptr;
    }
    auto channel = std::make_shared<Channel>(std::move(socket));
    session->AddChannel(channel);
    t_channels[session->Serial()] = channel;
    return channel;
}

} // namespace OHOS
