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
 * Host: how often the system ability manager was asked for each ability, for tests to read.
 */
#ifndef OHOS_SAMGR_CALL_COUNTERS_H
#define OHOS_SAMGR_CALL_COUNTERS_H

#include <cstdint>
#include <map>
#include <mutex>

namespace OHOS {

class CallCounters {
public:
    void CountLookup(int32_t systemAbilityId);
    void CountLoad(int32_t systemAbilityId);
    // CheckSystemAbility and GetSystemAbility calls for the id.
    int Lookups(int32_t systemAbilityId);
    // LoadSystemAbility calls for the id, refused ones included.
    int Loads(int32_t systemAbilityId);
    void Reset();

private:
    static int CountOf(const std::map<int32_t, int>& counts, int32_t systemAbilityId);

    std::mutex mutex_;
    std::map<int32_t, int> lookups_;
    std::map<int32_t, int> loads_;
};

} // namespace OHOS

#endif // OHOS_SAMGR_CALL_COUNTERS_H
