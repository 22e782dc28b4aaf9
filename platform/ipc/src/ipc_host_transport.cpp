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

#include "ipc_host_transport.h"

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <unistd.h>

#include "channel_server.h"
#include "export_table.h"
#include "frame_socket.h"
#include "ipc_log.h"
#include "ipc_object_proxy.h"
#include "listener.h"
#include "session_proxy.h"
#include "session_registry.h"
#include "unique_fd.h"
#include "user_runtime_directory.h"

namespace OHOS {
namespace {
// From its first serve or connect on, this process listens at its own address: peers call back through it.
bool TakePart()
{
    static const bool listening = [] {
        UniqueFd socket =
            FrameSocket::Listen(SessionRegistry::OfProcess().OwnAddress(), FrameSocket::Namespace::ABSTRACT);
        if (socket < 0) {
            return false;
        }
        Listener::Start(std::move(socket));
        // Requests still being served must not run on while the statics they use are destroyed.
        std::atexit([] { ChannelServer::StopServing(); });
        return true;
    }();
    return listening;
}

struct ServedContext {
    std::mutex mutex;
    std::shared_ptr<Listener> listener;
    std::string path;
};

ServedContext& Served()
{
    static ServedContext* served = new ServedContext();
    return *served;
}

// A socket file of this user's that nobody answers at is what a process that died left behind.
bool ClearPath(const std::string& path)
{
    if (!UserRuntimeDirectory::MayBind(path)) {
        return false;
    }
    if (access(path.c_str(), F_OK) != 0) {
        return true;
    }
    if (FrameSocket::Connect(path, FrameSocket::Namespace::FILESYSTEM) >= 0) {
        IPC_HOST_LOGE("another process serves at %{public}s", path.c_str());
        return false;
    }
    if (unlink(path.c_str()) != 0) {
        IPC_HOST_LOGE("cannot remove the stale socket %{public}s, errno %{public}d", path.c_str(), errno);
        return false;
    }
    return true;
}
} // namespace

bool IpcHostTransport::ServeContextObject(const std::string& path, const sptr<IRemoteObject>& object)
{
    if (object == nullptr || object->IsProxyObject()) {
        IPC_HOST_LOGE("only a local object can be served at %{public}s", path.c_str());
        return false;
    }
    if (!TakePart()) {
        return false;
    }
    ServedContext& served = Served();
    std::lock_guard<std::mutex> lock(served.mutex);
    if (served.listener != nullptr) {
        IPC_HOST_LOGE("this process already serves its context object at %{public}s", served.path.c_str());
        return false;
    }
    if (!ClearPath(path)) {
        return false;
    }
    UniqueFd socket = FrameSocket::Listen(path, FrameSocket::Namespace::FILESYSTEM);
    if (socket < 0) {
        return false;
    }
    if (!ExportTable::OfProcess().ServeContext(object)) {
        IPC_HOST_LOGE("the previous context object is still held by other processes");
        unlink(path.c_str());
        return false;
    }
    served.listener = Listener::Start(std::move(socket));
    served.path = path;
    return true;
}

void IpcHostTransport::StopServingContextObject()
{
    ServedContext& served = Served();
    std::lock_guard<std::mutex> lock(served.mutex);
    if (served.listener == nullptr) {
        return;
    }
    served.listener->Stop();
    served.listener.reset();
    unlink(served.path.c_str());
    ExportTable::OfProcess().StopServingContext();
}

sptr<IRemoteObject> IpcHostTransport::ConnectToContextObject(const std::string& path)
{
    if (!UserRuntimeDirectory::MayConnect(path) || !TakePart()) {
        return nullptr;
    }
    std::shared_ptr<Session> session = SessionRegistry::OfProcess().SessionAt(path);
    return session != nullptr ? SessionProxy::ImportContext(session) : nullptr;
}

pid_t IpcHostTransport::PeerPid(const sptr<IRemoteObject>& object)
{
    const ImportedHandle* imported = SessionProxy::ImportedOf(object.GetRefPtr());
    return imported != nullptr && imported->session != nullptr ? imported->session->PeerPid() : -1;
}

bool IpcHostTransport::HasProcessEnded(const sptr<IRemoteObject>& object)
{
    if (IPCObjectProxy* inProcess = IPCObjectProxy::InProcessOf(object.GetRefPtr())) {
        return inProcess->HasProcessEnded();
    }
    const ImportedHandle* imported = SessionProxy::ImportedOf(object.GetRefPtr());
    return imported != nullptr && (imported->session == nullptr || !imported->session->IsAlive());
}

bool IpcHostTransport::WaitForPeerGone(pid_t pid, std::chrono::milliseconds timeout)
{
    return SessionRegistry::OfProcess().WaitForPeerGone(pid, timeout);
}

size_t IpcHostTransport::SessionCount()
{
    return SessionRegistry::OfProcess().LiveCount();
}

} // namespace OHOS
