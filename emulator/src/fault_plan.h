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
 * The faults armed for the emulated services: when the share service process dies, and which hostile replies are
 * pending. Shared by every service instance, like the trace, so that a fault armed before a load also reaches the
 * loaded service. Each fault plays once.
 */
#ifndef FAULT_PLAN_H
#define FAULT_PLAN_H

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>

#include "emulator_fault.h"

namespace OHOS {
namespace Zelkon {

class FaultPlan {
public:
    // A stalled request ends as one that died before its reply, once the service's watchdog has ended the process.
    enum class Death { NONE, STALLED, BEFORE_REPLY, AFTER_REPLY };

    // Death and reply faults; load faults are scripted in the system ability manager instead.
    void Arm(const EmulatorFault& fault);
    void Clear();
    // Asked by every request of a service before it is handled.
    Death OnRequest(int32_t systemAbilityId, uint32_t code);
    // True once per armed reply fault of that kind.
    bool Take(EmulatorFault::Kind kind);

private:
    std::mutex mutex_;
    std::map<EmulatorFault::Kind, uint32_t> pendingReplies_;
    std::optional<uint32_t> requestsBeforeDeath_;
    std::optional<uint32_t> deathCode_;
    std::optional<uint32_t> stallCode_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // FAULT_PLAN_H
