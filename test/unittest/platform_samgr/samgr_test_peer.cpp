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
 * The other world of the samgr tests:
 *   samgr_test_peer serve SOCKET   serves the host system ability manager at SOCKET, with the test abilities as
 *                                  processes of its own; says it is ready and ends when its starter lets it go
 *   samgr_test_peer ability        adds the loadable ability through the manager named in its environment and
 *                                  lives until the manager lets it go
 *   samgr_test_peer broken         ends before it adds anything
 */
#include <string>
#include <unistd.h>
#include <vector>

#include "child_process.h"
#include "ipc_object_stub.h"
#include "iservice_registry.h"
#include "samgr_host_control.h"
#include "samgr_test_abilities.h"

namespace OHOS {
namespace {
int Serve(const std::string& socketPath)
{
    if (!SamgrHostControl::ServeAcrossProcesses(socketPath)) {
        return 1;
    }
    const std::string self = ChildProcess::OwnExecutable();
    SamgrHostControl::RegisterProcess(LOADABLE_ID, [self] { return std::vector<std::string>{self, "ability"}; });
    SamgrHostControl::RegisterProcess(BROKEN_ID, [self] { return std::vector<std::string>{self, "broken"}; });
    if (!ChildProcess::SayReady()) {
        return 1;
    }
    ChildProcess::WaitForStarterGone();
    return 0;
}

int AddAbility()
{
    sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
    if (manager == nullptr || manager->AddSystemAbility(LOADABLE_ID, new IPCObjectStub(TEST_ABILITY_DESCRIPTOR)) != 0) {
        return 1;
    }
    ChildProcess::WaitForStarterGone();
    return 0;
}
} // namespace
} // namespace OHOS

int main(int argc, char* argv[])
{
    const std::string command = argc > 1 ? argv[1] : "";
    int status = 1;
    if (command == "serve" && argc == 3) {
        status = OHOS::Serve(argv[2]);
    } else if (command == "ability") {
        status = OHOS::AddAbility();
    }
    // Nothing this process holds needs tearing down: it ends as a killed one would.
    _exit(status);
}
