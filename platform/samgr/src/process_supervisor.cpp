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

#include "process_supervisor.h"

#include <chrono>
#include <csignal>
#include <utility>

#include "ipc_host_transport.h"
#include "samgr_host_control.h"
#include "samgr_log.h"

namespace OHOS {

sptr<IRemoteObject> ProcessSupervisor::StartProcess(int32_t systemAbilityId,
                                                    const std::vector<std::string>& commandLine,
                                                    const std::string& socketPath)
{
    constexpr auto STARTUP_TIMEOUT = std::chrono::seconds(10);
    // How often the wait looks whether the process ended before it added the ability.
    constexpr auto END_CHECK_INTERVAL = std::chrono::milliseconds(50);
    // A process replaced or given up is stopped once the lock is released: stopping it may take a while.
    std::vector<std::unique_ptr<ChildProcess>> dropped;
    ChildProcess::Options options;
    options.environment[SamgrHostControl::SOCKET_ENVIRONMENT] = socketPath;
    std::unique_ptr<ChildProcess> child = Launch(systemAbilityId, commandLine, options);
    if (!child->Started()) {
        return nullptr;
    }
    const pid_t pid = child->Pid();
    {
        std::lock_guard<std::mutex> lock(mutex_);
        dropped.push_back(std::exchange(processes_[systemAbilityId], std::move(child)));
    }
    // The process adds its ability through the manager, on a thread that serves it.
    const auto deadline = std::chrono::steady_clock::now() + STARTUP_TIMEOUT;
    sptr<IRemoteObject> ability;
    while ((ability = registry_.WaitForAddedBy(systemAbilityId, pid, END_CHECK_INTERVAL)) == nullptr) {
        if (!StillStarting(systemAbilityId, pid, std::chrono::steady_clock::now() >= deadline, dropped)) {
            SAMGR_HOST_LOGE("process %{public}d did not add system ability %{public}d", pid, systemAbilityId);
            break;
        }
    }
    // Beside the load's answer, not before it: the next process takes as long to start as this one did.
    HoldNextLater(systemAbilityId, options);
    return ability;
}

void ProcessSupervisor::StartAhead(int32_t systemAbilityId, const std::string& executable,
                                   const std::string& socketPath)
{
    ChildProcess::Options options;
    options.environment[SamgrHostControl::SOCKET_ENVIRONMENT] = socketPath;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        ahead_[systemAbilityId] = Ahead{executable, nullptr};
    }
    HoldNext(systemAbilityId, options);
}

std::unique_ptr<ChildProcess> ProcessSupervisor::Launch(int32_t systemAbilityId,
                                                        const std::vector<std::string>& commandLine,
                                                        const ChildProcess::Options& options)
{
    std::unique_ptr<ChildProcess> held;
    {
        std::unique_lock<std::mutex> lock(mutex_);
        readied_.wait(lock, [this, systemAbilityId] {
            auto ahead = ahead_.find(systemAbilityId);
            return ahead == ahead_.end() || !ahead->second.readying;
        });
        auto ahead = ahead_.find(systemAbilityId);
        if (ahead != ahead_.end() && !commandLine.empty() && commandLine[0] == ahead->second.executable) {
            held = std::move(ahead->second.held);
        }
    }
    if (held != nullptr && held->Release(commandLine)) {
        return held;
    }
    return std::make_unique<ChildProcess>(commandLine, options);
}

void ProcessSupervisor::HoldNextLater(int32_t systemAbilityId, const ChildProcess::Options& options)
{
    std::lock_guard<std::mutex> lock(holderMutex_);
    if (holder_.joinable()) {
        holder_.join();
    }
    holder_ = std::thread([this, systemAbilityId, options] { HoldNext(systemAbilityId, options); });
}

void ProcessSupervisor::HoldNext(int32_t systemAbilityId, const ChildProcess::Options& options)
{
    std::string executable;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        auto ahead = ahead_.find(systemAbilityId);
        if (ahead == ahead_.end() || (ahead->second.held != nullptr && !ahead->second.held->Ended())) {
            return;
        }
        executable = ahead->second.executable;
        ahead->second.readying = true;
    }
    auto held = std::make_unique<ChildProcess>(executable, options);
    {
        std::lock_guard<std::mutex> lock(mutex_);
        auto ahead = ahead_.find(systemAbilityId);
        if (ahead != ahead_.end()) {
            ahead->second.readying = false;
            if (held->Started() && ahead->second.held == nullptr) {
                ahead->second.held = std::move(held);
            }
        }
    }
    readied_.notify_all();
}

bool ProcessSupervisor::StillStarting(int32_t systemAbilityId, pid_t pid, bool givenUp,
                                      std::vector<std::unique_ptr<ChildProcess>>& dropped)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto process = processes_.find(systemAbilityId);
    if (process == processes_.end() || process->second->Pid() != pid) {
        return false;
    }
    if (!process->second->Ended() && !givenUp) {
        return true;
    }
    dropped.push_back(std::move(process->second));
    processes_.erase(process);
    return false;
}

pid_t ProcessSupervisor::Kill(int32_t systemAbilityId, pid_t pid)
{
    constexpr auto END_TIMEOUT = std::chrono::seconds(5);
    std::unique_ptr<ChildProcess> process;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        auto started = processes_.find(systemAbilityId);
        if (started != processes_.end() && started->second->Pid() == pid) {
            process = std::move(started->second);
            processes_.erase(started);
        }
    }
    if (process != nullptr) {
        process->Kill();
    } else if (pid > 0) {
        kill(pid, SIGKILL);
    }
    IpcHostTransport::WaitForPeerGone(pid, END_TIMEOUT);
    return pid;
}

bool ProcessSupervisor::HasStarted(pid_t pid)
{
    std::lock_guard<std::mutex> lock(mutex_);
    for (const auto& [id, process] : processes_) {
        if (process->Pid() == pid) {
            return true;
        }
    }
    return false;
}

void ProcessSupervisor::DropEnded(int32_t systemAbilityId, pid_t pid)
{
    std::unique_ptr<ChildProcess> ended;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        auto process = processes_.find(systemAbilityId);
        if (process == processes_.end() || process->second->Pid() != pid) {
            return;
        }
        ended = std::move(process->second);
        processes_.erase(process);
    }
    // Its sessions ended before it did: it may not be a zombie yet, and the wait for it is short.
    ended->Kill();
}

std::vector<std::unique_ptr<ChildProcess>> ProcessSupervisor::TakeAll()
{
    {
        std::lock_guard<std::mutex> lock(holderMutex_);
        if (holder_.joinable()) {
            holder_.join();
        }
    }
    std::vector<std::unique_ptr<ChildProcess>> processes;
    std::lock_guard<std::mutex> lock(mutex_);
    for (auto& [id, process] : processes_) {
        processes.push_back(std::move(process));
    }
    for (auto& [id, ahead] : ahead_) {
        processes.push_back(std::move(ahead.held));
    }
    processes_.clear();
    ahead_.clear();
    return processes;
}

} // namespace OHOS
