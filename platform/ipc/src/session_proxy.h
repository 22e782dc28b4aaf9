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
 * Host: a remote object that stands for an object of another process, reached through a session. Each calling
 * thread sends on a channel of its own and waits for its own reply as long as it takes, as a binder call does. One
 * proxy per session and handle while it lives; it holds one reference in the owner's process and gives it back when
 * its last strong reference goes. The end of the session is the end of its process (DeathNotice).
 */
#ifndef OHOS_IPC_SESSION_PROXY_H
#define OHOS_IPC_SESSION_PROXY_H

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "death_notice.h"
#include "frame_socket.h"
#include "ipc_frame.h"
#include "iremote_object.h"
#include "session.h"

namespace OHOS {

class SessionProxy : public IRemoteObject, public ImportedHandle {
public:
    // Without a session the proxy is dead from the start.
    SessionProxy(std::shared_ptr<Session> session, uint64_t handle, std::u16string descriptor);

    int32_t GetObjectRefCount() override;
    int SendRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override;
    bool IsObjectDead() const override;
    bool AddDeathRecipient(const sptr<DeathRecipient>& recipient) override;
    bool RemoveDeathRecipient(const sptr<DeathRecipient>& recipient) override;
    int Dump(int fd, const std::vector<std::u16string>& args) override;
    void OnLastStrongRef(const void* objectId) override;
    HostProxyKind GetHostProxyKind() const override { return HostProxyKind::ACROSS_PROCESSES; }

    // The handle behind the object when it is a proxy of another process's object, else null.
    static const ImportedHandle* ImportedOf(const IRemoteObject* object);

    // What an object named by a frame from the session is here: a proxy that keeps the reference the frame carried,
    // or, for a third process's object, one that takes a reference at its owner now. A proxy whose owner no longer
    // knew the handle is dead: a sender keeps a third process's object alive only for as long as it holds it.
    static sptr<IRemoteObject> Import(const std::shared_ptr<Session>& from, const IpcFrame::Object& object,
                                      FrameSocket::Clock::time_point deadline);
    // Asks the owner of the handle (the session's peer) to let the process at the address acquire it; false if it
    // did not.
    static bool Grant(const std::shared_ptr<Session>& owner, uint64_t handle, const std::string& address);
    // The context object of the session's peer; null (logged) if it serves none.
    static sptr<IRemoteObject> ImportContext(const std::shared_ptr<Session>& session);

private:
    int Transact(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option);
    // A call of the peer's process without data that takes no more than its driver's work: the reply, or nullopt.
    static std::optional<IpcFrame> Reference(const std::shared_ptr<Session>& session, IpcFrame& request,
                                             const std::string& data, FrameSocket::Clock::time_point deadline);
    // Takes a reference on the handle in the peer's process; its descriptor, or nullopt if the handle is unknown or
    // the peer did not answer by the deadline.
    static std::optional<std::u16string> Acquire(const std::shared_ptr<Session>& session, uint64_t handle,
                                                 FrameSocket::Clock::time_point deadline);
    // The proxy of the handle, holding the one reference this process was given (given back if one already holds).
    static sptr<IRemoteObject> Adopt(const std::shared_ptr<Session>& session, uint64_t handle,
                                     const std::u16string& descriptor);

    DeathNotice notice_;
};

} // namespace OHOS

#endif // OHOS_IPC_SESSION_PROXY_H
