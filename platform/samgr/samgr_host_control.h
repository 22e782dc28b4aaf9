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
 * Host: lets a test script the system ability manager. Abilities live "in other processes" that can be started
 * on demand by registered loaders, scripted to misbehave, and killed.
 *
 * Across processes: one process serves the manager at a socket (ServeAcrossProcesses) and starts abilities as
 * processes of their own (RegisterProcess); a process whose environment names that socket in SOCKET_ENVIRONMENT
 * uses that manager, and its KillSystemAbility, ScriptLoads, LookupCount and LoadCount act there. The other
 * controls act in the calling process only.
 */
#ifndef OHOS_SAMGR_SAMGR_HOST_CONTROL_H
#define OHOS_SAMGR_SAMGR_HOST_CONTROL_H

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "iremote_object.h"
#include "samgr_err_code.h"

namespace OHOS {

// What the next scripted loads do instead of the normal outcome. As on a device, a success always carries the
// ability's object.
struct LoadScript {
    enum class Outcome {
        SUCCEED,  // the normal outcome, after `delay`
        FAIL,     // OnLoadSystemAbilityFail(id, failCode), as when the ability's start fails
        OTHER_ID, // OnLoadSystemAbilitySuccess(otherId, object)
        REFUSE,   // LoadSystemAbility returns refuseCode, no callback
    };
    Outcome outcome = Outcome::SUCCEED;
    std::chrono::milliseconds delay{0};
    int32_t otherId = 0;
    int32_t refuseCode = ERR_INVALID_VALUE;
    // What the ability's process reports when its start fails; a start that times out reports LOAD_SA_TIMEOUT.
    int32_t failCode = LOAD_SA_TIMEOUT;
};

class SamgrHostControl {
public:
    // Creates the stub of an ability when it is loaded and not running.
    using Loader = std::function<sptr<IRemoteObject>()>;
    // The command line that starts an ability's process, asked at each start.
    using CommandLine = std::function<std::vector<std::string>()>;

    static constexpr const char* SOCKET_ENVIRONMENT = "OHOS_HOST_SAMGR_SOCKET";

    // This process serves the manager at the socket path for other processes. False (logged) if it cannot.
    static bool ServeAcrossProcesses(const std::string& socketPath);
    // A load starts the ability's process, which finds the manager through SOCKET_ENVIRONMENT and adds the
    // ability; the load fails (LOAD_SA_TIMEOUT) if it has not within 10 s or its process ends first. The process is
    // killed with the manager's, and the ability forgotten when its process ends. Like RegisterLoader, this gives the
    // id its profile.
    static void RegisterProcess(int32_t systemAbilityId, CommandLine commandLine);
    // From now on a process of the executable is kept started and held for the registered ability's next load,
    // which releases it with the command line: a start that takes longer than a client waits for a load (a slow
    // host, an emulated CPU) is then only a message. The executable reads its command line with
    // ChildProcess::Arguments; a command line of another executable starts a process as before.
    static void StartAhead(int32_t systemAbilityId, const std::string& executable);
    // Whether this process uses the manager of another process.
    static bool IsAcrossProcesses();

    // Gives the id its profile: a load of an id without one is refused with PROFILE_NOT_EXIST. A load fails
    // (LOAD_SA_TIMEOUT) if the loader creates nothing.
    static void RegisterLoader(int32_t systemAbilityId, Loader loader);
    // The next `count` loads (of any id) follow `script`, then loads behave normally again.
    static void ScriptLoads(const LoadScript& script, int count = 1);
    // GetSystemAbilityManager gives null while it has no manager cached: before its first success, or after
    // DestroySystemAbilityManagerObject.
    static void SetManagerUnavailable(bool unavailable);
    // Applies to the remote objects of every ability, present and future.
    static void SetDeathRecipientsRefused(bool refused);
    // The process of the ability dies (SIGKILL for a process of its own): its remote object answers ERR_DEAD_OBJECT,
    // its recipients are told (before this returns, unless called on an IPC thread), and the id is absent until it
    // is added or loaded again. False if it was not running.
    static bool KillSystemAbility(int32_t systemAbilityId);
    // CheckSystemAbility and GetSystemAbility calls for the id.
    static int LookupCount(int32_t systemAbilityId);
    // LoadSystemAbility calls for the id, refused ones included.
    static int LoadCount(int32_t systemAbilityId);
    // Waits for pending IPC work, then forgets abilities, loaders, scripts, faults and counts.
    static void Reset();
};

} // namespace OHOS

#endif // OHOS_SAMGR_SAMGR_HOST_CONTROL_H
