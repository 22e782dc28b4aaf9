#include "share_emulator.h"

#include <memory>

#include "emulator_log.h"
#include "iservice_registry.h"
#include "samgr_host_control.h"
#include "share_manager_stub.h"
#include "share_service_stub.h"
#include "trace_channel.h"

namespace OHOS {
namespace Zelkon {
namespace {
std::shared_ptr<TraceChannel> Trace()
{
    static const auto trace = std::make_shared<TraceChannel>();
    return trace;
}
} // namespace

void ShareEmulator::Install()
{
    const std::shared_ptr<TraceChannel> trace = Trace();
    SamgrHostControl::RegisterLoader(EMULATED_SHARE_SERVICE_ID, [trace]() -> sptr<IRemoteObject> {
        EMULATOR_LOGI("share service %{public}d starting", EMULATED_SHARE_SERVICE_ID);
        return new ShareServiceStub(trace);
    });
    // A fresh share manager process; one left from an earlier install dies first.
    KillShareManagerService();
    sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
    if (manager == nullptr || manager->AddSystemAbility(EMULATED_SHARE_MANAGER_ID, new ShareManagerStub(trace)) != 0) {
        EMULATOR_LOGE("share manager service %{public}d could not be added", EMULATED_SHARE_MANAGER_ID);
    }
}

void ShareEmulator::Uninstall()
{
    SamgrHostControl::RegisterLoader(EMULATED_SHARE_SERVICE_ID, []() -> sptr<IRemoteObject> { return nullptr; });
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
    Trace()->SetSink(std::move(sink));
}

} // namespace Zelkon
} // namespace OHOS
