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
 * The peer process of the transport tests: serves a PeerService at the path given on its command line, writes
 * "ready" on its standard output once it does, and ends when its standard input ends (the process that started it
 * ended). Usage: ipc_transport_peer PATH RAW_FD (-1 for none).
 */
#include <cstdlib>
#include <thread>
#include <unistd.h>

#include "child_process.h"
#include "ipc_host_transport.h"
#include "peer_service.h"

namespace OHOS {
namespace {
// Echoes the bytes of each read back, for the benchmark's raw round trip.
void EchoRaw(int fd)
{
    char bytes[4096];
    for (ssize_t count; (count = read(fd, bytes, sizeof(bytes))) > 0;) {
        if (write(fd, bytes, static_cast<size_t>(count)) != count) {
            return;
        }
    }
}
} // namespace
} // namespace OHOS

int main(int argc, char* argv[])
{
    if (argc != 3) {
        return 1;
    }
    OHOS::sptr<OHOS::IRemoteObject> service = OHOS::MakePeerService();
    if (!OHOS::IpcHostTransport::ServeContextObject(argv[1], service)) {
        return 1;
    }
    const int rawFd = std::atoi(argv[2]);
    if (rawFd >= 0) {
        std::thread(OHOS::EchoRaw, rawFd).detach();
    }
    if (!OHOS::ChildProcess::SayReady()) {
        return 1;
    }
    OHOS::ChildProcess::WaitForStarterGone();
    // Nothing this process holds needs tearing down: it ends as a killed one would.
    _exit(0);
}
