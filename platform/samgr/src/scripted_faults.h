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
 * Host: the faults a test scripts into the system ability manager: what the next loads do, and whether the
 * manager can be reached.
 */
#ifndef OHOS_SAMGR_SCRIPTED_FAULTS_H
#define OHOS_SAMGR_SCRIPTED_FAULTS_H

#include <cstddef>
#include <deque>
#include <mutex>

#include "samgr_host_control.h"

namespace OHOS {

class ScriptedFaults {
public:
    // Scripts waiting at once, at most: a test scripts a handful.
    static constexpr size_t MAX_SCRIPTED_LOADS = 1000;

    // False (logged), and nothing scripted, for a count below zero or beyond what is left of the bound.
    bool ScriptLoads(const LoadScript& script, int count);
    // The script of the next load: the first one scripted, else the normal outcome.
    LoadScript NextLoad();
    void SetUnavailable(bool unavailable);
    bool IsUnavailable();
    void Reset();

private:
    std::mutex mutex_;
    std::deque<LoadScript> scripts_;
    bool unavailable_ = false;
};

} // namespace OHOS

#endif // OHOS_SAMGR_SCRIPTED_FAULTS_H
