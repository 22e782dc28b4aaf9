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
 * Host: the processes that the system ability manager starts for its abilities when it serves other processes.
 * Each is bound to the manager's life; one that ends is forgotten with its ability. For an ability whose executable
 * was named ahead, one process of it is kept started and held, and a load releases it with its command line.
 */
#ifndef OHOS_SAMGR_PROCESS_SUPERVISOR_H
#define OHOS_SAMGR_PROCESS_SUPERVISOR_H

#include <condition_variable>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <sys/types.h>
#include <thread>
#include <vector>

#include "ability_registry.h"
#include "child_process.h"

namespace OHOS {

class ProcessSupervisor {
public:
    explicit ProcessSupervisor(AbilityRegistry& registry) : registry_(registry) {}

    // Starts the ability's process, which finds the manager at the socket path, and waits for it to add the
    // ability: null (logged) if it cannot start, ends first, or has not added it within 10 s.
    sptr<IRemoteObject> StartProcess(int32_t systemAbilityId, const std::vector<std::string>& commandLine,
                                     const std::string& socketPath);
    // Keeps a process of the executable held for each next start of the ability, from now on.
    void StartAhead(int32_t systemAbilityId, const std::string& executable, const std::string& socketPath);
    // Kills process pid, which stands behind the ability, and returns once its end is seen here.
    pid_t Kill(int32_t systemAbilityId, pid_t pid);
    // Whether pid is a process started here and not yet forgotten.
    bool HasStarted(pid_t pid);
    // The ability's process pid ended, or left its sessions: it is forgotten and reaped, so that none is left a zombie.
    void DropEnded(int32_t systemAbilityId, pid_t pid);
    // Every process, held ones included, no longer supervised: they are stopped as they are destroyed.
    std::vector<std::unique_ptr<ChildProcess>> TakeAll();

private:
    struct Ahead {
        std::string executable;
        std::unique_ptr<ChildProcess> held;
        // A next held process is on its way to being ready.
        bool readying = false;
    };

    // The held process released with the command line (one still readying is waited for: it is further on than a
    // new one would be), or a process started with it.
    std::unique_ptr<ChildProcess> Launch(int32_t systemAbilityId, const std::vector<std::string>& commandLine,
                                         const ChildProcess::Options& options);
    // Starts the next held process of the ability, if it has an executable named ahead and none is held.
    void HoldNext(int32_t systemAbilityId, const ChildProcess::Options& options);
    // HoldNext on a thread of its own; the previous one is joined first.
    void HoldNextLater(int32_t systemAbilityId, const ChildProcess::Options& options);
    // Whether pid is still the ability's process and starting: false once it is replaced, has ended or is given up
    // (then it is taken out into `dropped`).
    bool StillStarting(int32_t systemAbilityId, pid_t pid, bool givenUp,
                       std::vector<std::unique_ptr<ChildProcess>>& dropped);

    AbilityRegistry& registry_;
    std::mutex mutex_;
    std::map<int32_t, std::unique_ptr<ChildProcess>> processes_;
    std::map<int32_t, Ahead> ahead_;
    std::condition_variable readied_;
    std::mutex holderMutex_;
    std::thread holder_;
};

} // namespace OHOS

#endif // OHOS_SAMGR_PROCESS_SUPERVISOR_H
