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

#include "scripted_faults.h"

#include "samgr_log.h"

namespace OHOS {

bool ScriptedFaults::ScriptLoads(const LoadScript& script, int count)
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (count < 0 || static_cast<size_t>(count) > MAX_SCRIPTED_LOADS - scripts_.size()) {
        SAMGR_HOST_LOGE("refused %{public}d scripted loads: %{public}zu wait already, %{public}zu at most", count,
                        scripts_.size(), MAX_SCRIPTED_LOADS);
        return false;
    }
    for (int i = 0; i < count; ++i) {
        scripts_.push_back(script);
    }
    return true;
}

LoadScript ScriptedFaults::NextLoad()
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (scripts_.empty()) {
        return LoadScript();
    }
    LoadScript script = scripts_.front();
    scripts_.pop_front();
    return script;
}

void ScriptedFaults::SetUnavailable(bool unavailable)
{
    std::lock_guard<std::mutex> lock(mutex_);
    unavailable_ = unavailable;
}

bool ScriptedFaults::IsUnavailable()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return unavailable_;
}

void ScriptedFaults::Reset()
{
    std::lock_guard<std::mutex> lock(mutex_);
    scripts_.clear();
    unavailable_ = false;
}

} // namespace OHOS
