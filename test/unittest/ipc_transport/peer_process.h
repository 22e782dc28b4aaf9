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
 * A peer process for the transport tests and benchmarks: it serves a PeerService as its context object at a
 * socket path of its own and answers the codes below. A ChildProcess: killed and reaped by its owner, and it ends by
 * itself when this process ends.
 */
#ifndef PEER_PROCESS_H
#define PEER_PROCESS_H

#include <cstdint>
#include <string>
#include <sys/types.h>

#include "child_process.h"

namespace OHOS {

inline constexpr char16_t PEER_DESCRIPTOR[] = u"test.ipc.PeerService";

enum PeerCode : uint32_t {
    ECHO = 1,    // the reply holds the request's bytes
    SLEEP,       // int32 milliseconds, then true
    SLEEPERS,    // waits up to int32 ms for a SLEEP to be in progress: int32 how many are
    READ_FD,     // a descriptor: the string read from it
    RAW_DATA,    // int32 size, raw data: the same raw data back
    GIVE_STUB,   // the peer's stub, the same one while it lives
    STUBS_ALIVE, // waits up to int32 ms for the given stub to be gone: int32 how many live
    HOLD,        // keeps the object of the request and sends it back
    DROP,        // lets the held object go
    CALL,        // int32: calls the held object with NESTED and that int32, replies what it answered
    RENDEZVOUS,  // int32 n: waits up to 5 s until n callers are inside at once: bool
    NESTED,      // what CALL sends to the held object
    GIVE_YES,    // a stub that answers every request with true at once
    FAIL_WITH,   // int32 status, bool: answers the status, with the reply written (an int32) if the bool says so
    BIG_REPLY,   // int32 n: a reply of n bytes
};

class PeerProcess {
public:
    // Starts the peer; with rawFd it also echoes whatever arrives on that socket, its end of a socketpair.
    explicit PeerProcess(int rawFd = -1);
    // Killed, reaped, and gone from this process's sessions.
    ~PeerProcess();
    PeerProcess(const PeerProcess&) = delete;
    PeerProcess& operator=(const PeerProcess&) = delete;

    pid_t Pid() const { return process_.Pid(); }
    const std::string& Path() const { return path_; }
    // SIGKILL, then reaped.
    void Kill() { process_.Kill(); }

private:
    std::string path_;
    ChildProcess process_;
};

} // namespace OHOS

#endif // PEER_PROCESS_H
