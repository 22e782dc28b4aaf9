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
 * Host: who may use the host controls of a manager that serves other processes. Scripting loads and killing
 * abilities are for the manager's own process, the process that started it (a test, sharectl) and the processes it
 * started for its abilities; so is changing an ability that another process holds, or one that the manager starts
 * itself. Any other process is refused, with ERR_PERMISSION_DENIED and a log line that names it.
 */
#ifndef OHOS_SAMGR_HOST_CONTROL_GATE_H
#define OHOS_SAMGR_HOST_CONTROL_GATE_H

#include <atomic>
#include <cstdint>
#include <sys/types.h>

namespace OHOS {

class SystemAbilityManagerHost;

class HostControlGate {
public:
    explicit HostControlGate(SystemAbilityManagerHost& manager) : manager_(manager) {}

    // The process that started this one, noted when the manager starts to serve.
    void NoteStarter();
    // Whether the caller may use the host control `what`; false is logged.
    bool MayControl(pid_t caller, const char* what);
    // Whether the caller may add, remove or unload the ability: one the manager does not start and that no other
    // live process holds is anyone's. False is logged.
    bool MayChange(pid_t caller, const char* what, int32_t systemAbilityId);

private:
    bool IsTrusted(pid_t caller);

    SystemAbilityManagerHost& manager_;
    std::atomic<pid_t> starter_{-1};
};

} // namespace OHOS

#endif // OHOS_SAMGR_HOST_CONTROL_GATE_H
