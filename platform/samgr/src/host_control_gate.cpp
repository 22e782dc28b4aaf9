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

#include "host_control_gate.h"

#include <unistd.h>

#include "samgr_log.h"
#include "system_ability_manager_host.h"

namespace OHOS {

void HostControlGate::NoteStarter()
{
    starter_ = getppid();
}

bool HostControlGate::IsTrusted(pid_t caller)
{
    return caller == getpid() || caller == starter_ || manager_.HasStarted(caller);
}

bool HostControlGate::MayControl(pid_t caller, const char* what)
{
    if (IsTrusted(caller)) {
        return true;
    }
    SAMGR_HOST_LOGE("refused %{public}s from pid %{public}d, which this manager did not start", what, caller);
    return false;
}

bool HostControlGate::MayChange(pid_t caller, const char* what, int32_t systemAbilityId)
{
    if (IsTrusted(caller)) {
        return true;
    }
    const pid_t holder = manager_.HolderOf(systemAbilityId);
    const bool othersAbility = holder != 0 && holder != caller;
    if (!othersAbility && !manager_.HasProfile(systemAbilityId)) {
        return true;
    }
    SAMGR_HOST_LOGE("refused to %{public}s system ability %{public}d from pid %{public}d, which this manager did not "
                    "start",
                    what, systemAbilityId, caller);
    return false;
}

} // namespace OHOS
