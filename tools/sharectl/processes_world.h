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
 * sharectl --processes: the emulated services in processes of their own. sharectl joins the system ability manager
 * that serves at the socket (a `sharectl serve`), or starts one of its own for the run, which ends with it.
 */
#ifndef PROCESSES_WORLD_H
#define PROCESSES_WORLD_H

#include <cstdint>
#include <memory>
#include <string>
#include <sys/types.h>

#include "child_process.h"
#include "command_line.h"
#include "emulated_world.h"

namespace OHOS {
namespace Zelkon {

class ProcessesWorld {
public:
    // Joins or starts the manager; throws UsageError when a joined manager cannot take the world or the faults
    // asked for, and std::runtime_error when the manager cannot be started.
    ProcessesWorld(const CommandLine& line, const EmulatedWorld& world);
    bool Joined() const { return own_ == nullptr; }
    const std::string& SocketPath() const { return socketPath_; }

    // The pid of the service's process, or -1 if it is not running (or runs in this process).
    static pid_t ServicePid(int32_t systemAbilityId);
    // ", process N" where the share service runs in a process of its own; else empty.
    static std::string ShareServiceNote();
    // share_emulator_service, beside this executable as the build and the install place it.
    static std::string ServiceExecutable();

private:
    std::string socketPath_;
    std::unique_ptr<ChildProcess> own_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // PROCESSES_WORLD_H
