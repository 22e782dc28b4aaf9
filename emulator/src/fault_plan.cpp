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

#include "fault_plan.h"

#include "share_emulator.h"

namespace OHOS {
namespace Zelkon {

void FaultPlan::Arm(const EmulatorFault& fault)
{
    std::lock_guard<std::mutex> lock(mutex_);
    switch (fault.kind) {
    case EmulatorFault::Kind::DIES_AFTER_REQUESTS:
        requestsBeforeDeath_ = fault.value;
        break;
    case EmulatorFault::Kind::DIES_IN_REQUEST:
        deathCode_ = fault.value;
        break;
    case EmulatorFault::Kind::STALLS_IN_REQUEST:
        stallCode_ = fault.value;
        break;
    default:
        ++pendingReplies_[fault.kind];
        break;
    }
}

void FaultPlan::Clear()
{
    std::lock_guard<std::mutex> lock(mutex_);
    pendingReplies_.clear();
    requestsBeforeDeath_.reset();
    deathCode_.reset();
    stallCode_.reset();
}

FaultPlan::Death FaultPlan::OnRequest(int32_t systemAbilityId, uint32_t code)
{
    if (systemAbilityId != EMULATED_SHARE_SERVICE_ID) {
        return Death::NONE;
    }
    std::lock_guard<std::mutex> lock(mutex_);
    if (deathCode_ == code) {
        deathCode_.reset();
        return Death::BEFORE_REPLY;
    }
    if (stallCode_ == code) {
        stallCode_.reset();
        return Death::STALLED;
    }
    if (requestsBeforeDeath_.has_value() && --*requestsBeforeDeath_ == 0) {
        requestsBeforeDeath_.reset();
        return Death::AFTER_REPLY;
    }
    return Death::NONE;
}

bool FaultPlan::Take(EmulatorFault::Kind kind)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto pending = pendingReplies_.find(kind);
    if (pending == pendingReplies_.end()) {
        return false;
    }
    if (--pending->second == 0) {
        pendingReplies_.erase(pending);
    }
    return true;
}

} // namespace Zelkon
} // namespace OHOS
