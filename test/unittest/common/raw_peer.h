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
 * A peer of the host transport played by hand in the test's own process: a session that it opens to a served path,
 * and a channel in it, written and read as raw frames with the transport's own codec. The address names the peer;
 * nobody listens there.
 */
#ifndef RAW_PEER_H
#define RAW_PEER_H

#include <chrono>
#include <cstdint>
#include <string>
#include <unistd.h>

#include "frame_socket.h"
#include "ipc_frame.h"
#include "unique_fd.h"

namespace OHOS {

struct RawPeer {
    UniqueFd session;
    UniqueFd channel;
};

inline RawPeer OpenRawPeer(const std::string& path, const std::string& address, uint64_t nonce, bool withChannel)
{
    RawPeer peer{FrameSocket::Connect(path, FrameSocket::Namespace::FILESYSTEM), UniqueFd()};
    IpcFrame hello;
    if (!FrameSocket::Send(peer.session.Get(),
                           IpcFrame::EncodeHello(IpcFrame::Kind::SESSION_HELLO, nonce, getpid(), address), {}) ||
        FrameSocket::Receive(peer.session.Get(), FrameSocket::Clock::now() + std::chrono::seconds(5), hello) !=
            FrameSocket::Result::OK ||
        !withChannel) {
        return peer;
    }
    peer.channel = FrameSocket::Connect(hello.Address(), FrameSocket::Namespace::ABSTRACT);
    FrameSocket::Send(peer.channel.Get(),
                      IpcFrame::EncodeHello(IpcFrame::Kind::CHANNEL_HELLO, nonce, getpid(), address), {});
    return peer;
}

} // namespace OHOS

#endif // RAW_PEER_H
