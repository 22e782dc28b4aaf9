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

#include "processes_world.h"

#include <cstdlib>
#include <stdexcept>
#include <unistd.h>

#include "emulator_processes.h"
#include "ipc_host_transport.h"
#include "iservice_registry.h"
#include "samgr_host_control.h"
#include "share_emulator.h"
#include "usage_error.h"
#include "user_runtime_directory.h"

namespace OHOS {
namespace Zelkon {
namespace {
constexpr auto START_TIMEOUT = std::chrono::seconds(10);

bool Served(const std::string& socketPath)
{
    return !socketPath.empty() && access(socketPath.c_str(), F_OK) == 0 &&
           IpcHostTransport::ConnectToContextObject(socketPath) != nullptr;
}
} // namespace

ProcessesWorld::ProcessesWorld(const CommandLine& line, const EmulatedWorld& world) : socketPath_(line.socketPath)
{
    if (Served(socketPath_)) {
        if (!line.worldFile.empty()) {
            throw UsageError("--world: the services at " + socketPath_ + " run their own world already");
        }
    } else {
        // This run's own name, which no one can guess, in a directory that no one else can enter.
        socketPath_ = UserRuntimeDirectory::UniqueSocketPath("sharectl");
        if (socketPath_.empty()) {
            throw std::runtime_error("there is no private directory for the socket of the system ability manager");
        }
        std::vector<std::string> command = {ServiceExecutable(), "serve", "--socket", socketPath_};
        // Read once here: the path may mean nothing to another process (standard input, say).
        if (!line.worldFile.empty()) {
            command.insert(command.end(), {"--world", EmulatorProcesses::WorldFileOf(world)});
        }
        for (const EmulatorFault& fault : line.faults) {
            command.insert(command.end(), {"--fault", fault.Text()});
        }
        ChildProcess::Options options;
        options.readyTimeout = START_TIMEOUT;
        own_ = std::make_unique<ChildProcess>(command, options);
        if (!own_->Started()) {
            // Killed for not saying it was ready in time, it may have left its socket file.
            unlink(socketPath_.c_str());
            throw std::runtime_error("the system ability manager could not be started from " + command[0]);
        }
    }
    setenv(SamgrHostControl::SOCKET_ENVIRONMENT, socketPath_.c_str(), 1);
    if (Joined()) {
        for (const EmulatorFault& fault : line.faults) {
            ShareEmulator::InjectFault(fault);
        }
    }
}

pid_t ProcessesWorld::ServicePid(int32_t systemAbilityId)
{
    sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
    return manager != nullptr ? IpcHostTransport::PeerPid(manager->CheckSystemAbility(systemAbilityId)) : -1;
}

std::string ProcessesWorld::ShareServiceNote()
{
    const pid_t pid = ServicePid(EMULATED_SHARE_SERVICE_ID);
    return pid > 0 ? ", process " + std::to_string(pid) : "";
}

std::string ProcessesWorld::ServiceExecutable()
{
    const std::string own = ChildProcess::OwnExecutable();
    return own.substr(0, own.rfind('/') + 1) + "share_emulator_service";
}

} // namespace Zelkon
} // namespace OHOS
