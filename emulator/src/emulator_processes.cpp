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

#include "emulator_processes.h"

#include <cerrno>
#include <csignal>
#include <memory>
#include <mutex>
#include <pthread.h>
#include <sys/mman.h>
#include <thread>
#include <unistd.h>

#include "child_process.h"
#include "emulated_world.h"
#include "emulator_log.h"
#include "ipc_host_transport.h"
#include "iservice_registry.h"
#include "remote_trace.h"
#include "samgr_host_control.h"
#include "share_emulator.h"
#include "share_manager_stub.h"
#include "share_service_stub.h"
#include "user_runtime_directory.h"

namespace OHOS {
namespace Zelkon {
namespace {
// The faults for the first share service started; each plays once.
class PendingFaults {
public:
    explicit PendingFaults(std::vector<EmulatorFault> faults) : faults_(std::move(faults)) {}
    std::vector<EmulatorFault> Take()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return std::move(faults_);
    }

private:
    std::mutex mutex_;
    std::vector<EmulatorFault> faults_;
};

sigset_t StopSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    return signals;
}

std::vector<std::string> ServiceCommandLine(const std::string& executable, const std::string& worldFile,
                                            int32_t systemAbilityId)
{
    return {executable, "ability", std::to_string(systemAbilityId), "--world", worldFile};
}
} // namespace

std::string EmulatorProcesses::DefaultSocketPath()
{
    return UserRuntimeDirectory::SocketPath("share-emulator.sock");
}

std::string EmulatorProcesses::WorldFileOf(const EmulatedWorld& world)
{
    const int fd = memfd_create("emulated-world", MFD_CLOEXEC);
    const std::string text = world.ToJson();
    if (fd < 0 || write(fd, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
        EMULATOR_LOGE("cannot hold the world for other processes, errno %{public}d", errno);
        return "";
    }
    return "/proc/" + std::to_string(getpid()) + "/fd/" + std::to_string(fd);
}

bool EmulatorProcesses::Serve(const Options& options)
{
    const sigset_t signals = StopSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    // A starter gone before the ready line must not end this process before it removes its socket file.
    std::signal(SIGPIPE, SIG_IGN);
    if (!SamgrHostControl::ServeAcrossProcesses(options.socketPath)) {
        return false;
    }
    std::vector<EmulatorFault> serviceFaults;
    for (const EmulatorFault& fault : options.faults) {
        if (fault.IsLoadFault()) {
            ShareEmulator::InjectFault(fault);
        } else {
            serviceFaults.push_back(fault);
        }
    }
    auto pending = std::make_shared<PendingFaults>(std::move(serviceFaults));
    const std::string worldFile = WorldFileOf(options.world);
    // The share service serves the permanent devices alone; its process reads no more of the world on its load's way.
    EmulatedWorld shareServiceWorld;
    shareServiceWorld.permanentDevices = options.world.permanentDevices;
    const std::string shareServiceWorldFile = WorldFileOf(shareServiceWorld);
    const std::string& executable = options.serviceExecutable;
    SamgrHostControl::RegisterProcess(EMULATED_SHARE_SERVICE_ID, [executable, shareServiceWorldFile, pending] {
        std::vector<std::string> line =
            ServiceCommandLine(executable, shareServiceWorldFile, EMULATED_SHARE_SERVICE_ID);
        for (const EmulatorFault& fault : pending->Take()) {
            line.insert(line.end(), {"--fault", fault.Text()});
        }
        return line;
    });
    SamgrHostControl::StartAhead(EMULATED_SHARE_SERVICE_ID, executable);
    SamgrHostControl::RegisterProcess(EMULATED_SHARE_MANAGER_ID, [executable, worldFile] {
        return ServiceCommandLine(executable, worldFile, EMULATED_SHARE_MANAGER_ID);
    });
    sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
    if (manager->GetSystemAbility(EMULATED_SHARE_MANAGER_ID) == nullptr) {
        EMULATOR_LOGE("the share manager service %{public}d did not start", EMULATED_SHARE_MANAGER_ID);
        IpcHostTransport::StopServingContextObject();
        return false;
    }
    return true;
}

void EmulatorProcesses::WaitUntilStopped(bool watchStarter)
{
    if (watchStarter) {
        std::thread([] {
            ChildProcess::WaitForStarterGone();
            kill(getpid(), SIGTERM);
        }).detach();
    }
    const sigset_t signals = StopSignals();
    int signal = 0;
    sigwait(&signals, &signal);
    // The socket file goes first: stopping the services may take until a starter's grace time runs out.
    IpcHostTransport::StopServingContextObject();
    SamgrHostControl::KillSystemAbility(EMULATED_SHARE_SERVICE_ID);
    SamgrHostControl::KillSystemAbility(EMULATED_SHARE_MANAGER_ID);
}

int EmulatorProcesses::RunService(int32_t systemAbilityId, const std::string& worldFile,
                                  const std::vector<EmulatorFault>& faults)
{
    std::string error;
    std::optional<EmulatedWorld> world =
        worldFile.empty() ? EmulatedWorld::BuiltIn() : EmulatedWorld::FromFile(worldFile, error);
    if (!world) {
        EMULATOR_LOGE("world %{public}s: %{public}s", worldFile.c_str(), error.c_str());
        return EXIT_FAILURE;
    }
    const ServiceChannels channels{std::make_shared<TraceChannel>(), std::make_shared<FaultPlan>(), true};
    for (const EmulatorFault& fault : faults) {
        channels.faults->Arm(fault);
    }
    sptr<IRemoteObject> service;
    if (systemAbilityId == EMULATED_SHARE_SERVICE_ID) {
        service = new ShareServiceStub(channels, world->permanentDevices);
    } else {
        service = new ShareManagerStub(channels, *world);
    }
    sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
    if (manager == nullptr) {
        EMULATOR_LOGE("no system ability manager for %{public}d", systemAbilityId);
        return EXIT_FAILURE;
    }
    if (sptr<IRemoteObject> receiver = manager->CheckSystemAbility(EMULATOR_TRACE_RECEIVER_ID); receiver != nullptr) {
        channels.trace->SetSink(TraceReceiver::SinkTo(receiver));
    }
    if (manager->AddSystemAbility(systemAbilityId, service) != ERR_OK) {
        EMULATOR_LOGE("system ability %{public}d could not be added", systemAbilityId);
        return EXIT_FAILURE;
    }
    EMULATOR_LOGI("system ability %{public}d serves in process %{public}d", systemAbilityId, getpid());
    ChildProcess::WaitForStarterGone();
    return EXIT_SUCCESS;
}

} // namespace Zelkon
} // namespace OHOS
