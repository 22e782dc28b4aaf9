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
 * Host: what this process shares with one peer process. The session socket serves lifetime only (the hellos, then
 * references given back); the objects imported from the peer are kept here, and so are the channels this process's
 * threads opened to the peer. The end of the socket (EOF or error) is the death of the peer: the process behind
 * every object imported through the session ended (the registered ones get their death notice on an IPC thread),
 * the references the peer held on this process's objects are dropped, and the channels are retired.
 */
#ifndef OHOS_IPC_SESSION_H
#define OHOS_IPC_SESSION_H

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <sys/types.h>
#include <vector>

#include "channel.h"
#include "death_notice.h"
#include "iremote_object.h"
#include "unique_fd.h"

namespace OHOS {

class Session : public std::enable_shared_from_this<Session> {
public:
    Session(UniqueFd socket, std::string peerAddress, pid_t peerPid, uint64_t nonce);

    const std::string& PeerAddress() const { return peerAddress_; }
    pid_t PeerPid() const { return peerPid_; }
    // Chosen by the side that opened the session; channels name their session by it.
    uint64_t Nonce() const { return nonce_; }
    // This process's own key of the session, never reused: the holder of the references the peer takes here.
    uint64_t Serial() const { return serial_; }
    bool IsAlive() const { return alive_.load(std::memory_order_acquire); }

    // The live object imported for the handle, or null.
    sptr<IRemoteObject> FindImport(uint64_t handle);
    // A proxy made for an imported handle, and its death notice.
    struct ImportedProxy {
        sptr<IRemoteObject> object;
        DeathNotice* notice = nullptr;
    };
    // The live object imported for the handle, or else the one make() returns, registered for it (told at once that
    // the process ended if the session has); created tells which.
    sptr<IRemoteObject> ImportHandle(uint64_t handle, const std::function<ImportedProxy()>& make, bool& created);
    // The object imported for the handle is going away: it is forgotten and its reference given back.
    void Forget(uint64_t handle, const IRemoteObject* object);
    void SendRelease(uint64_t handle);

    // The peer named a handle it was never given: the session ends as if the peer had died.
    void Close();

    // A channel of this process to the peer, retired when the session ends (at once if it already has).
    void AddChannel(const std::shared_ptr<Channel>& channel);
    // Reads the session socket until it ends, then ends the session. Runs on a thread of its own.
    void ReadUntilEnd();
    // A channel of the peer to this process is served from now until ServingEnded(); false once the session ended.
    bool ServingStarted();
    void ServingEnded();
    // Waits until the session ended, every death notice it caused has run and every channel of the peer to this
    // process is closed; false at the deadline.
    bool WaitGone(std::chrono::steady_clock::time_point deadline);
    bool IsGone();

private:
    struct Imported {
        wptr<IRemoteObject> object;
        DeathNotice* notice = nullptr;
    };

    void End();
    void NoticesDone();
    bool Gone() const { return ended_ && !noticesPending_ && channelsServed_ == 0; }

    const std::string peerAddress_;
    const pid_t peerPid_;
    const uint64_t nonce_;
    const uint64_t serial_;
    std::atomic<bool> alive_{true};

    std::mutex sendMutex_;
    UniqueFd socket_;

    std::mutex mutex_;
    std::condition_variable changed_;
    std::map<uint64_t, Imported> imports_;
    std::vector<std::weak_ptr<Channel>> channels_;
    bool ended_ = false;
    bool noticesPending_ = false;
    int channelsServed_ = 0;
};

// What a proxy of a peer's object is on this side: a handle in the session it came through. A proxy whose handle
// its owner no longer knew has no session and stays dead.
struct ImportedHandle {
    std::shared_ptr<Session> session;
    uint64_t handle = 0;
};

} // namespace OHOS

#endif // OHOS_IPC_SESSION_H
