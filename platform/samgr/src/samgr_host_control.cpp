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

#include "samgr_host_control.h"

#include <utility>

#include "host_samgr_connection.h"
#include "ipc_host_transport.h"
#include "ipc_threads.h"
#include "system_ability_manager_host.h"

namespace OHOS {
namespace {
// The manager of another process when this one is told to use it, else null: the control acts here.
sptr<SystemAbilityManagerProxy> RemoteManager()
{
    return HostSamgrConnection::IsAcrossProcesses() ? HostSamgrConnection::Manager() : nullptr;
}
} // namespace

bool SamgrHostControl::ServeAcrossProcesses(const std::string& socketPath)
{
    return SystemAbilityManagerHost::Instance().ServeAcrossProcesses(socketPath);
}

void SamgrHostControl::RegisterProcess(int32_t systemAbilityId, CommandLine commandLine)
{
    SystemAbilityManagerHost::Instance().RegisterProcess(systemAbilityId, std::move(commandLine));
}

void SamgrHostControl::StartAhead(int32_t systemAbilityId, const std::string& executable)
{
    SystemAbilityManagerHost::Instance().StartAhead(systemAbilityId, executable);
}

bool SamgrHostControl::IsAcrossProcesses()
{
    return HostSamgrConnection::IsAcrossProcesses();
}

void SamgrHostControl::RegisterLoader(int32_t systemAbilityId, Loader loader)
{
    SystemAbilityManagerHost::Instance().RegisterLoader(systemAbilityId, std::move(loader));
}

void SamgrHostControl::ScriptLoads(const LoadScript& script, int count)
{
    if (sptr<SystemAbilityManagerProxy> remote = RemoteManager(); remote != nullptr) {
        remote->ScriptLoads(script, count);
        return;
    }
    SystemAbilityManagerHost::Instance().ScriptLoads(script, count);
}

void SamgrHostControl::SetManagerUnavailable(bool unavailable)
{
    SystemAbilityManagerHost::Instance().SetUnavailable(unavailable);
}

void SamgrHostControl::SetDeathRecipientsRefused(bool refused)
{
    SystemAbilityManagerHost::Instance().SetDeathRecipientsRefused(refused);
}

bool SamgrHostControl::KillSystemAbility(int32_t systemAbilityId)
{
    constexpr auto NOTICES_TIMEOUT = std::chrono::seconds(5);
    if (HostSamgrConnection::IsAcrossProcesses()) {
        sptr<SystemAbilityManagerProxy> remote = HostSamgrConnection::Manager();
        const pid_t pid = remote != nullptr ? remote->Kill(systemAbilityId) : -1;
        // The manager saw the end; this process's notices of it come from its own sessions.
        if (pid > 0 && !IpcThreads::IsIpcThread()) {
            IpcHostTransport::WaitForPeerGone(pid, NOTICES_TIMEOUT);
        }
        return pid >= 0;
    }
    return SystemAbilityManagerHost::Instance().Kill(systemAbilityId) >= 0;
}

int SamgrHostControl::LookupCount(int32_t systemAbilityId)
{
    sptr<SystemAbilityManagerProxy> remote = RemoteManager();
    return remote != nullptr ? remote->LookupCount(systemAbilityId)
                             : SystemAbilityManagerHost::Instance().LookupCount(systemAbilityId);
}

int SamgrHostControl::LoadCount(int32_t systemAbilityId)
{
    sptr<SystemAbilityManagerProxy> remote = RemoteManager();
    return remote != nullptr ? remote->LoadCount(systemAbilityId)
                             : SystemAbilityManagerHost::Instance().LoadCount(systemAbilityId);
}

void SamgrHostControl::Reset()
{
    SystemAbilityManagerHost::Instance().Reset();
}

} // namespace OHOS
