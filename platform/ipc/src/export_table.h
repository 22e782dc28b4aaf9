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
 * Host: the local objects of this process that other processes hold, by handle. Each session's strong references
 * are counted; an object stays exported (and alive) while any session holds one, and is let go when the last goes.
 * Handles are never reused; handle 0 is the context object while it is served.
 *
 * A handle is a capability of the sessions it was given to: a peer names only the handles that its session holds a
 * reference on, the context handle, or one that a holder granted to the peer's address (a third process's object
 * passed on). Any other handle is forged.
 */
#ifndef OHOS_IPC_EXPORT_TABLE_H
#define OHOS_IPC_EXPORT_TABLE_H

#include <cstdint>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "iremote_object.h"

namespace OHOS {

class ExportTable {
public:
    static constexpr uint64_t CONTEXT_HANDLE = 0;

    static ExportTable& OfProcess();

    // The handle of the object (the same while it stays exported), with one more reference held by the session.
    uint64_t Export(const sptr<IRemoteObject>& object, uint64_t session);
    // The exported object of the handle if the session may use it, else null.
    sptr<IRemoteObject> Find(uint64_t handle, uint64_t session);
    // One more reference held by the session (at the address) that may use the handle or was granted it: the
    // object, or null; forged when the handle was never given to the session (not when its object is gone).
    sptr<IRemoteObject> Acquire(uint64_t handle, uint64_t session, const std::string& address, bool& forged);
    // The process at the address may acquire the handle, which the session holds, from now until the object is let go
    // or that process's session ends; false if the session holds no reference on it.
    bool Grant(uint64_t handle, uint64_t session, const std::string& address);
    // One reference of the session given back; false if the session held none on the handle.
    bool Release(uint64_t handle, uint64_t session);
    // Every reference the session held, and every grant to its address: it ended.
    void ReleaseAll(uint64_t session, const std::string& address);
    // Exports the object at the context handle for as long as it is served; false if another object holds it.
    bool ServeContext(const sptr<IRemoteObject>& object);
    void StopServingContext();

private:
    struct Entry {
        sptr<IRemoteObject> object;
        std::map<uint64_t, int> references;
        std::set<std::string> grants;
        bool served = false;
    };
    using Entries = std::map<uint64_t, Entry>;

    // The entry of the handle if the session may use it, else end().
    Entries::iterator Usable(uint64_t handle, uint64_t session);
    // Forgets the entry if nothing holds it any more; what it held is moved to dropped, to be let go unlocked.
    void ForgetIfUnheld(Entries::iterator it, std::vector<sptr<IRemoteObject>>& dropped);

    std::mutex mutex_;
    Entries entries_;
    std::map<const IRemoteObject*, uint64_t> handles_;
    uint64_t nextHandle_ = CONTEXT_HANDLE + 1;
};

} // namespace OHOS

#endif // OHOS_IPC_EXPORT_TABLE_H
