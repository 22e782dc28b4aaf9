#include <chrono>

#include "samgr_host_control.h"
#include "session.h"
#include "share_client.h"
#include "share_emulator.h"

namespace OHOS {
namespace Zelkon {
namespace {
constexpr std::chrono::seconds DEATH_NOTICE_WAIT{5};
} // namespace

StepResult KillShareService(Session& session)
{
    const int deaths = session.diedWaiter->Deaths();
    const bool killed = ShareEmulator::KillShareService();
    const bool noticed = session.diedWaiter->WaitForDeaths(deaths + 1, DEATH_NOTICE_WAIT);
    return {killed && noticed, std::string(killed ? "killed" : "was not running") +
                                   (noticed ? ", OnShareSaDied called" : ", no death notice")};
}

StepResult ReloadOnNextCall(Session& session)
{
    const int loads = SamgrHostControl::LoadCount(EMULATED_SHARE_SERVICE_ID);
    const int32_t result = ShareClient::GetInstance().Publish(session.publishListener);
    const int reloads = SamgrHostControl::LoadCount(EMULATED_SHARE_SERVICE_ID) - loads;
    return {result == 1 && reloads == 1,
            "Publish -> " + std::to_string(result) + " after " + std::to_string(reloads) + " new load request(s)"};
}

} // namespace Zelkon
} // namespace OHOS
