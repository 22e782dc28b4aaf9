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

#include "load_notifier.h"

#include <utility>

#include "ipc_threads.h"
#include "samgr_log.h"

namespace OHOS {

void LoadNotifier::Deliver(pid_t pid, Notice notice)
{
    if (pid <= 0) {
        notice();
        return;
    }
    {
        std::lock_guard<std::mutex> lock(mutex_);
        size_t& waiting = waiting_[pid];
        if (waiting >= MAX_WAITING_PER_PROCESS) {
            SAMGR_HOST_LOGE("dropped a load outcome for pid %{public}d: %{public}zu wait for it already", pid, waiting);
            return;
        }
        ++waiting;
    }
    IpcThreads::StartThread([this, pid, notice = std::move(notice)] {
        notice();
        std::lock_guard<std::mutex> lock(mutex_);
        auto it = waiting_.find(pid);
        if (--it->second == 0) {
            waiting_.erase(it);
        }
        idle_.notify_all();
    });
}

void LoadNotifier::WaitIdle(std::chrono::milliseconds timeout)
{
    std::unique_lock<std::mutex> lock(mutex_);
    idle_.wait_for(lock, timeout, [this] { return waiting_.empty(); });
}

} // namespace OHOS
