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
 * Host: transactions between processes over Unix domain sockets. A process that uses none of this stays in the
 * in-process world and starts no thread; one that serves or connects listens at an address of its own (abstract
 * namespace, unique to the process instance) and gets proxies (IsProxyObject() true) that reach the objects of other
 * processes. Local objects written into a parcel for another process arrive there as proxies, proxies sent back to
 * their owner arrive as the object itself, file descriptors and shared-memory blocks arrive as descriptors of the
 * receiving process, and the end of a peer process (SIGKILL included) is the death of every proxy to its objects.
 * A third process's object that a parcel carries stays alive only for as long as its sender holds it: if the sender
 * lets it go first, it arrives dead.
 */
#ifndef OHOS_IPC_IPC_HOST_TRANSPORT_H
#define OHOS_IPC_IPC_HOST_TRANSPORT_H

#include <chrono>
#include <cstddef>
#include <string>
#include <sys/types.h>

#include "iremote_object.h"
#include "refbase.h"

namespace OHOS {

class IpcHostTransport {
public:
    // Serves the local object as this process's context object (handle 0) at the filesystem socket path, which
    // UserRuntimeDirectory::MayBind must allow, replacing a stale socket file of the user's own, until the process
    // ends or serving stops. False (logged) if the path cannot be served or this process already serves one.
    static bool ServeContextObject(const std::string& path, const sptr<IRemoteObject>& object);
    // Removes the socket file; the object stays alive while other processes hold it.
    static void StopServingContextObject();
    // A proxy of the context object of the process serving at the path, or null (logged) if nobody serves there or
    // UserRuntimeDirectory::MayConnect refuses the path.
    static sptr<IRemoteObject> ConnectToContextObject(const std::string& path);
    // The pid of the process behind a proxy of this transport, as it said in its hello and the kernel confirmed,
    // or -1.
    static pid_t PeerPid(const sptr<IRemoteObject>& object);
    // Whether the process behind a proxy of the host ended, as the host knows at once: IsObjectDead() answers so only
    // once a death notice has reached a registered proxy.
    static bool HasProcessEnded(const sptr<IRemoteObject>& object);
    // Waits until no session with the process pid is left and every death notice their ends caused in this
    // process has run. False if that takes longer than the timeout.
    static bool WaitForPeerGone(pid_t pid, std::chrono::milliseconds timeout);
    // Sessions with live peers.
    static size_t SessionCount();
};

} // namespace OHOS

#endif // OHOS_IPC_IPC_HOST_TRANSPORT_H
