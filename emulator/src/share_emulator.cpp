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

#include "share_emulator.h"

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

#include "emulator_log.h"
#include "iservice_registry.h"
#include "json_field_reader.h"
#include "remote_trace.h"
#include "samgr_host_control.h"
#include "share_manager_stub.h"
#include "share_service_stub.h"
#include "string_ex.h"

namespace OHOS {
namespace Zelkon {
namespace {
// The channels outlive every service instance, so that a trace or a fault set before a load reaches it.
const ServiceChannels& Channels()
{
    static const ServiceChannels channels{std::make_shared<TraceChannel>(), std::make_shared<FaultPlan>()};
    return channels;
}

sptr<IRemoteObject> RunningService(int32_t systemAbilityId)
{
    sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
    return manager != nullptr ? manager->CheckSystemAbility(systemAbilityId) : nullptr;
}

// What the service's platform dump writes for `args`, through a descriptor as another process's dump would; empty
// if the dump fails.
std::string DumpText(const sptr<IRemoteObject>& service, const std::vector<std::u16string>& args)
{
    const int fd = memfd_create("emulator-dump", MFD_CLOEXEC);
    std::string text;
    if (fd >= 0 && service->Dump(fd, args) == ERR_NONE && lseek(fd, 0, SEEK_SET) == 0) {
        char chunk[BUFSIZ];
        for (ssize_t count; (count = read(fd, chunk, sizeof(chunk))) > 0;) {
            text.append(chunk, static_cast<size_t>(count));
        }
    }
    if (fd >= 0) {
        close(fd);
    }
    return text;
}

// A fault for the share service of another process is armed there, the service loaded first if it is not running.
void ArmInShareServiceProcess(const EmulatorFault& fault)
{
    sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
    sptr<IRemoteObject> service = manager != nullptr ? manager->GetSystemAbility(EMULATED_SHARE_SERVICE_ID) : nullptr;
    if (service == nullptr || DumpText(service, {u"--fault", Str8ToStr16(fault.Text())}) != "armed") {
        EMULATOR_LOGE("fault %{public}s could not be armed in the share service", fault.Text().c_str());
    }
}

// A service's state, as the service says it: another process may answer anything. Empty (logged) when its dump is
// not a JSON object.
std::optional<nlohmann::ordered_json> DumpOf(int32_t systemAbilityId)
{
    sptr<IRemoteObject> service = RunningService(systemAbilityId);
    nlohmann::ordered_json dump = {{"running", service != nullptr}};
    if (service == nullptr) {
        return dump;
    }
    nlohmann::ordered_json state;
    std::string refusal;
    try {
        state = ParseJsonText<nlohmann::ordered_json>(DumpText(service, {}));
    } catch (const JsonFieldError& error) {
        refusal = error.what();
    }
    if (refusal.empty() && !state.is_object()) {
        refusal = "not a JSON object";
    }
    if (!refusal.empty()) {
        EMULATOR_LOGE("the dump of system ability %{public}d is not its state: %{public}s", systemAbilityId,
                      refusal.c_str());
        return std::nullopt;
    }
    dump.update(state);
    return dump;
}
} // namespace

void ShareEmulator::Install(const EmulatedWorld& world)
{
    Channels().faults->Clear();
    SamgrHostControl::RegisterLoader(EMULATED_SHARE_SERVICE_ID,
                                     [permanentDevices = world.permanentDevices]() -> sptr<IRemoteObject> {
                                         EMULATOR_LOGI("share service %{public}d starting", EMULATED_SHARE_SERVICE_ID);
                                         return sptr<IRemoteObject>(new ShareServiceStub(Channels(), permanentDevices));
                                     });
    // A fresh share manager process; one left from an earlier install dies first.
    KillShareManagerService();
    sptr<ShareManagerStub> shareManager = new ShareManagerStub(Channels(), world);
    sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
    if (manager == nullptr || manager->AddSystemAbility(EMULATED_SHARE_MANAGER_ID, shareManager) != 0) {
        EMULATOR_LOGE("share manager service %{public}d could not be added", EMULATED_SHARE_MANAGER_ID);
    }
}

void ShareEmulator::Uninstall()
{
    SamgrHostControl::RegisterLoader(EMULATED_SHARE_SERVICE_ID, []() -> sptr<IRemoteObject> { return nullptr; });
    Channels().faults->Clear();
    KillShareService();
    KillShareManagerService();
}

bool ShareEmulator::KillShareService()
{
    return SamgrHostControl::KillSystemAbility(EMULATED_SHARE_SERVICE_ID);
}

bool ShareEmulator::KillShareManagerService()
{
    return SamgrHostControl::KillSystemAbility(EMULATED_SHARE_MANAGER_ID);
}

void ShareEmulator::SetTraceSink(TraceSink sink)
{
    if (!SamgrHostControl::IsAcrossProcesses()) {
        Channels().trace->SetSink(std::move(sink));
        return;
    }
    sptr<IRemoteObject> receiver = sink ? new TraceReceiver(std::move(sink)) : nullptr;
    sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
    if (manager != nullptr && receiver != nullptr) {
        manager->AddSystemAbility(EMULATOR_TRACE_RECEIVER_ID, receiver);
    } else if (manager != nullptr) {
        manager->RemoveSystemAbility(EMULATOR_TRACE_RECEIVER_ID);
    }
    for (int32_t id : {EMULATED_SHARE_SERVICE_ID, EMULATED_SHARE_MANAGER_ID}) {
        sptr<IRemoteObject> service = RunningService(id);
        MessageParcel data;
        MessageParcel reply;
        MessageOption option;
        if (service != nullptr && data.WriteRemoteObject(receiver)) {
            service->SendRequest(EMULATOR_TRACE_CODE, data, reply, option);
        }
    }
}

void ShareEmulator::InjectFault(const EmulatorFault& fault)
{
    switch (fault.kind) {
    case EmulatorFault::Kind::LOAD_FAILS:
        SamgrHostControl::ScriptLoads({LoadScript::Outcome::FAIL}, static_cast<int>(fault.value));
        break;
    case EmulatorFault::Kind::LOAD_DELAYED:
        SamgrHostControl::ScriptLoads({LoadScript::Outcome::SUCCEED, std::chrono::milliseconds(fault.value)});
        break;
    case EmulatorFault::Kind::LOAD_ERROR: {
        LoadScript fails{LoadScript::Outcome::FAIL};
        fails.failCode = static_cast<int32_t>(fault.value);
        SamgrHostControl::ScriptLoads(fails);
        break;
    }
    default:
        if (SamgrHostControl::IsAcrossProcesses()) {
            ArmInShareServiceProcess(fault);
        } else {
            Channels().faults->Arm(fault);
        }
        break;
    }
}

std::optional<std::string> ShareEmulator::DumpState()
{
    const std::optional<nlohmann::ordered_json> shareService = DumpOf(EMULATED_SHARE_SERVICE_ID);
    const std::optional<nlohmann::ordered_json> shareManager = DumpOf(EMULATED_SHARE_MANAGER_ID);
    if (!shareService || !shareManager) {
        return std::nullopt;
    }
    const nlohmann::ordered_json dump = {{"shareService", *shareService}, {"shareManager", *shareManager}};
    constexpr int INDENT = 2;
    return dump.dump(INDENT, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace Zelkon
} // namespace OHOS
