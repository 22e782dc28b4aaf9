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

#include "call_outcomes.h"
#include "processes_world.h"
#include "samgr_host_control.h"
#include "session.h"
#include "share_client.h"
#include "share_emulator.h"

namespace OHOS {
namespace Zelkon {

StepResult KillShareService(Session& session)
{
    const int deaths = session.deathCounter->Deaths();
    const std::string process = ProcessesWorld::ShareServiceNote();
    const bool killed = ShareEmulator::KillShareService();
    // The kill returns once its death notices have run: the count is final.
    const bool noticed = session.deathCounter->Deaths() == deaths + 1;
    return {killed && noticed, std::string(killed ? "killed" : "was not running") + process +
                                   (noticed ? ", OnShareSaDied called" : ", no death notice")};
}

StepResult ReloadOnNextCall(Session& session)
{
    const int loads = SamgrHostControl::LoadCount(EMULATED_SHARE_SERVICE_ID);
    const int32_t result = ShareClient::GetInstance().Publish(session.remotes.Stub<IPublishListener>());
    const int reloads = SamgrHostControl::LoadCount(EMULATED_SHARE_SERVICE_ID) - loads;
    return {result == 1 && reloads == 1, "Publish -> " + Accepted(result).Text() + " after " + std::to_string(reloads) +
                                             " new load request(s)" + ProcessesWorld::ShareServiceNote()};
}

} // namespace Zelkon
} // namespace OHOS
