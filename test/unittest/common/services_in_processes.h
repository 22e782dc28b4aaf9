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
 * The emulated services in processes of their own: a `share_emulator_service serve` child of this process serves
 * the system ability manager at a socket of its own, and this process uses it while entered. The test target
 * defines SHARE_EMULATOR_SERVICE_PATH.
 */
#ifndef SERVICES_IN_PROCESSES_H
#define SERVICES_IN_PROCESSES_H

#include <chrono>
#include <cstdlib>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include "child_process.h"
#include "iservice_registry.h"
#include "samgr_host_control.h"
#include "share_emulator.h"
#include "user_runtime_directory.h"

namespace OHOS {
namespace Zelkon {

class ServicesInProcesses {
public:
    ServicesInProcesses() :
        socket_(UserRuntimeDirectory::UniqueSocketPath("share-test")), samgr_(Command(socket_), StartOptions())
    {
    }
    ~ServicesInProcesses()
    {
        Leave();
        samgr_.Stop();
        unlink(socket_.c_str());
    }
    ServicesInProcesses(const ServicesInProcesses&) = delete;
    ServicesInProcesses& operator=(const ServicesInProcesses&) = delete;

    bool Started() const { return samgr_.Started(); }
    pid_t SamgrPid() const { return samgr_.Pid(); }
    void Stop() { samgr_.Stop(); }

    // This process uses the child's manager, and the services that a client meets there are fresh ones.
    void Enter()
    {
        setenv(SamgrHostControl::SOCKET_ENVIRONMENT, socket_.c_str(), 1);
        SystemAbilityManagerClient::GetInstance().DestroySystemAbilityManagerObject();
        KillBoth();
    }
    // Both services die, so that the clients drop their proxies to them, and this process uses its own manager.
    void Leave()
    {
        if (SamgrHostControl::IsAcrossProcesses()) {
            KillBoth();
        }
        unsetenv(SamgrHostControl::SOCKET_ENVIRONMENT);
        SystemAbilityManagerClient::GetInstance().DestroySystemAbilityManagerObject();
    }

private:
    static void KillBoth()
    {
        ShareEmulator::KillShareService();
        ShareEmulator::KillShareManagerService();
    }
    static std::vector<std::string> Command(const std::string& socket)
    {
        return {SHARE_EMULATOR_SERVICE_PATH, "serve", "--socket", socket};
    }
    static ChildProcess::Options StartOptions()
    {
        ChildProcess::Options options;
        options.readyTimeout = std::chrono::seconds(10);
        return options;
    }

    std::string socket_;
    ChildProcess samgr_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SERVICES_IN_PROCESSES_H
