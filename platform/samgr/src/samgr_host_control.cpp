#include "samgr_host_control.h"

#include <utility>

#include "system_ability_manager_host.h"

namespace OHOS {

void SamgrHostControl::RegisterLoader(int32_t systemAbilityId, Loader loader)
{
    SystemAbilityManagerHost::Instance().RegisterLoader(systemAbilityId, std::move(loader));
}

void SamgrHostControl::ScriptLoads(const LoadScript& script, int count)
{
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
    return SystemAbilityManagerHost::Instance().Kill(systemAbilityId);
}

int SamgrHostControl::LookupCount(int32_t systemAbilityId)
{
    return SystemAbilityManagerHost::Instance().LookupCount(systemAbilityId);
}

int SamgrHostControl::LoadCount(int32_t systemAbilityId)
{
    return SystemAbilityManagerHost::Instance().LoadCount(systemAbilityId);
}

void SamgrHostControl::Reset()
{
    SystemAbilityManagerHost::Instance().Reset();
}

} // namespace OHOS
