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

/*
 * A process of this user that the system ability manager named in its environment did not start, or one that it
 * did, for the attack table:
 *   attack_peer kill ID             kills the ability through the manager's host control
 *   attack_peer add ID              adds an object of its own as the ability
 *   attack_peer script-loads COUNT  scripts COUNT refused loads
 *   attack_peer stall-loads ID N    asks N loads with callbacks of its own, then stops without taking any outcome
 *   attack_peer ability ID          adds the ability, as a process the manager starts does, and lives on
 * Its exit status is 0 when the manager refused what it tried (kill, add), and for what it cannot tell.
 */
#include <csignal>
#include <cstdlib>
#include <string>
#include <unistd.h>

#include "child_process.h"
#include "errors.h"
#include "ipc_object_stub.h"
#include "iservice_registry.h"
#include "samgr_host_control.h"
#include "system_ability_load_callback_stub.h"

namespace OHOS {
namespace {
class IgnoredCallback : public SystemAbilityLoadCallbackStub {
public:
    void OnLoadSystemAbilitySuccess(int32_t, const sptr<IRemoteObject>&) override {}
};

int Act(const std::string& command, int32_t value, int32_t count)
{
    sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
    if (manager == nullptr) {
        return 2;
    }
    if (command == "kill") {
        return SamgrHostControl::KillSystemAbility(value) ? 1 : 0;
    }
    if (command == "add") {
        return manager->AddSystemAbility(value, new IPCObjectStub(u"attack.Squatter")) == ERR_PERMISSION_DENIED ? 0 : 1;
    }
    if (command == "script-loads") {
        SamgrHostControl::ScriptLoads({LoadScript::Outcome::REFUSE}, value);
        return 0;
    }
    if (command == "stall-loads") {
        for (int32_t i = 0; i < count; ++i) {
            manager->LoadSystemAbility(value, sptr<ISystemAbilityLoadCallback>(new IgnoredCallback()));
        }
        raise(SIGSTOP);
        return 0;
    }
    if (command == "ability" && manager->AddSystemAbility(value, new IPCObjectStub(u"attack.Ability")) == ERR_OK) {
        ChildProcess::WaitForStarterGone();
        return 0;
    }
    return 2;
}
} // namespace
} // namespace OHOS

int main(int argc, char* argv[])
{
    if (argc < 3) {
        return 2;
    }
    const int32_t count = argc > 3 ? std::atoi(argv[3]) : 0;
    // Nothing this process holds needs tearing down.
    _exit(OHOS::Act(argv[1], std::atoi(argv[2]), count));
}
