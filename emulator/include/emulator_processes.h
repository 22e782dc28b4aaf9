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
 * The emulated services as processes of their own, under a host system ability manager served by this process:
 * the share service (65569) started on demand, the share manager service (65570) at once, each from the
 * `share_emulator_service` executable. A process whose environment names the manager's socket
 * (SamgrHostControl::SOCKET_ENVIRONMENT) reaches them there, and ShareEmulator's kills, faults, trace and dump act
 * on those processes.
 */
#ifndef EMULATOR_PROCESSES_H
#define EMULATOR_PROCESSES_H

#include <cstdint>
#include <string>
#include <vector>

#include "emulated_world.h"
#include "emulator_fault.h"

namespace OHOS {
namespace Zelkon {

class EmulatorProcesses {
public:
    struct Options {
        std::string socketPath;
        // The `share_emulator_service` executable.
        std::string serviceExecutable;
        EmulatedWorld world = EmulatedWorld::BuiltIn();
        // Load faults are scripted in the manager; the others are armed in the first share service started.
        std::vector<EmulatorFault> faults;
    };

    // Where `sharectl serve` serves unless told otherwise: share-emulator.sock in the user's private runtime
    // directory (UserRuntimeDirectory); empty (logged) when there is none.
    static std::string DefaultSocketPath();
    // A path at which the processes this one starts read the world as a file, for as long as this process lives (a
    // memory file of this process): the world is read once, whatever path or stream it came from.
    static std::string WorldFileOf(const EmulatedWorld& world);
    // Blocks SIGINT and SIGTERM in the calling thread (call it before any thread starts, so that every thread
    // inherits the mask), serves the manager and starts the share manager service. False (logged) if the socket
    // cannot be served or the share manager service does not start; the socket file is removed then.
    static bool Serve(const Options& options);
    // Waits for SIGINT or SIGTERM, or, with `watchStarter`, for the process that started this one to let it go;
    // then kills the service processes and stops serving.
    static void WaitUntilStopped(bool watchStarter);
    // The body of a service process: serves the ability until the manager's process lets it go. The exit status.
    static int RunService(int32_t systemAbilityId, const std::string& worldFile,
                          const std::vector<EmulatorFault>& faults);
};

} // namespace Zelkon
} // namespace OHOS

#endif // EMULATOR_PROCESSES_H
