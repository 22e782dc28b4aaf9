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
 * Host: a parcel as a frame to another process and back. The bytes travel as they are; the objects become entries
 * of the frame's object table: a local object is exported (the frame carries one reference to it), a proxy travels
 * as the handle that its owner knows (the receiver's own, or a third process's with that process's address), a
 * descriptor by its index among those sent beside the frame. Proxies of the in-process world cannot travel.
 */
#ifndef OHOS_IPC_PARCEL_WIRE_H
#define OHOS_IPC_PARCEL_WIRE_H

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "frame_socket.h"
#include "ipc_frame.h"
#include "message_parcel.h"
#include "session.h"

namespace OHOS {

class ParcelWire {
public:
    // What an object of a peer, named by a frame that came through the session, becomes in this process; a third
    // process's object that cannot be reached by the deadline arrives dead.
    using Importer = std::function<sptr<IRemoteObject>(const std::shared_ptr<Session>& from, const IpcFrame::Object&,
                                                       FrameSocket::Clock::time_point deadline)>;
    // How long all the third processes' objects of one frame may take to arrive: a process that does not answer
    // within it cannot hold the call that carries them.
    static constexpr std::chrono::seconds IMPORT_WAIT{1};

    // The bytes of the frame holding the parcel for the session's peer; fds are the parcel's descriptors to send
    // beside them. A third process's object travels once its owner granted it to the peer. ERR_FLATTEN_OBJECT
    // (logged, nothing left exported) if something in the parcel cannot travel.
    static int ToFrame(const MessageParcel& parcel, Session& to, IpcFrame& frame, std::vector<uint8_t>& bytes,
                       std::vector<int>& fds);
    // Takes back the references that a frame made by ToFrame carried: it never reached the peer.
    static void Unexport(const IpcFrame& frame, Session& to);
    // Appends what the frame holds to the parcel. False (logged) if the frame names an object of this process that is
    // not exported; whatever it carried is then let go.
    static bool ToParcel(IpcFrame& frame, const std::shared_ptr<Session>& from, const Importer& import,
                         MessageParcel& parcel);
};

} // namespace OHOS

#endif // OHOS_IPC_PARCEL_WIRE_H
