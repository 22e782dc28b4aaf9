#include "share_emulator.h"

#include <memory>
#include <mutex>

#include "emulator_log.h"
#include "iservice_registry.h"
#include "samgr_host_control.h"
#include "share_manager_stub.h"
#include "share_service_stub.h"

namespace OHOS {
namespace Zelkon {
namespace {
// The channels outlive every service instance, so that a trace or a fault set before a load reaches it.
const ServiceChannels& Channels()
{
    static const ServiceChannels channels{std::make_shared<TraceChannel>(), std::make_shared<FaultPlan>()};
    return channels;
}

// The services' current processes, held weakly: a killed process is gone, whoever killed it.
struct RunningServices {
    std::mutex mutex;
    wptr<ShareServiceStub> shareService;
    wptr<ShareManagerStub> shareManager;
};

RunningServices& Running()
{
    static RunningServices* running = new RunningServices();
    return *running;
}

template <typename Stub>
nlohmann::ordered_json DumpOf(const wptr<Stub>& service)
{
    sptr<Stub> running = service.promote();
    nlohmann::ordered_json dump = {{"running", running != nullptr}};
    if (running != nullptr) {
        dump.update(running->Dump());
    }
    return dump;
}
} // namespace

void ShareEmulator::Install(const EmulatedWorld& world)
{
    Channels().faults->Clear();
    SamgrHostControl::RegisterLoader(
        EMULATED_SHARE_SERVICE_ID, [permanentDevices = world.permanentDevices]() -> sptr<IRemoteObject> {
            EMULATOR_LOGI("share service %{public}d starting", EMULATED_SHARE_SERVICE_ID);
            sptr<ShareServiceStub> service = new ShareServiceStub(Channels(), permanentDevices);
            std::lock_guard<std::mutex> lock(Running().mutex);
            Running().shareService = service;
            return service;
        });
    // A fresh share manager process; one left from an earlier install dies first.
    KillShareManagerService();
    sptr<ShareManagerStub> shareManager = new ShareManagerStub(Channels(), world);
    {
        std::lock_guard<std::mutex> lock(Running().mutex);
        Running().shareManager = shareManager;
    }
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
    Channels().trace->SetSink(std::move(sink));
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
    default:
        Channels().faults->Arm(fault);
        break;
    }
}

std::string ShareEmulator::DumpState()
{
    wptr<ShareServiceStub> shareService;
    wptr<ShareManagerStub> shareManager;
    {
        std::lock_guard<std::mutex> lock(Running().mutex);
        shareService = Running().shareService;
        shareManager = Running().shareManager;
    }
    const nlohmann::ordered_json dump = {{"shareService", DumpOf(shareService)},
                                         {"shareManager", DumpOf(shareManager)}};
    constexpr int INDENT = 2;
    return dump.dump(INDENT, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace Zelkon
} // namespace OHOS
