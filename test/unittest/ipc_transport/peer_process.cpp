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

#include "peer_process.h"

#include <atomic>
#include <cstdlib>
#include <unistd.h>

#include "ipc_host_transport.h"

namespace OHOS {
namespace {
constexpr auto READY_TIMEOUT = std::chrono::seconds(10);
// Where the peer finds the raw socket: the first descriptor a ChildProcess inherits.
constexpr const char* PEER_RAW_FD = "3";
std::atomic<int> g_peers{0};

ChildProcess::Options PeerOptions(int rawFd)
{
    ChildProcess::Options options;
    options.readyTimeout = READY_TIMEOUT;
    if (rawFd >= 0) {
        options.inheritedFds.push_back(rawFd);
    }
    return options;
}
} // namespace

PeerProcess::PeerProcess(int rawFd) :
    path_("/tmp/ipc_transport_peer_" + std::to_string(getpid()) + "_" + std::to_string(g_peers++) + ".sock"),
    process_({IPC_TRANSPORT_PEER, path_, rawFd >= 0 ? PEER_RAW_FD : "-1"}, PeerOptions(rawFd))
{
    if (!process_.Started()) {
        abort();
    }
}

PeerProcess::~PeerProcess()
{
    const pid_t pid = process_.Pid();
    process_.Kill();
    IpcHostTransport::WaitForPeerGone(pid, std::chrono::seconds(5));
    unlink(path_.c_str());
}

} // namespace OHOS
