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

#include "call_counters.h"

namespace OHOS {

void CallCounters::CountLookup(int32_t systemAbilityId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    ++lookups_[systemAbilityId];
}

void CallCounters::CountLoad(int32_t systemAbilityId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    ++loads_[systemAbilityId];
}

int CallCounters::CountOf(const std::map<int32_t, int>& counts, int32_t systemAbilityId)
{
    auto it = counts.find(systemAbilityId);
    return it != counts.end() ? it->second : 0;
}

int CallCounters::Lookups(int32_t systemAbilityId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return CountOf(lookups_, systemAbilityId);
}

int CallCounters::Loads(int32_t systemAbilityId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return CountOf(loads_, systemAbilityId);
}

void CallCounters::Reset()
{
    std::lock_guard<std::mutex> lock(mutex_);
    lookups_.clear();
    loads_.clear();
}

} // namespace OHOS
