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
 * Host: delivers the outcome of a load to its callback. A callback of another process is told on a thread of its
 * own: a one-way request waits until its receiver takes it, and a process that never does must not hold the
 * manager's IPC threads, which every other load needs. A few notices may wait for one process at once; more are
 * dropped, logged.
 */
#ifndef OHOS_SAMGR_LOAD_NOTIFIER_H
#define OHOS_SAMGR_LOAD_NOTIFIER_H

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <map>
#include <mutex>
#include <sys/types.h>

namespace OHOS {

class LoadNotifier {
public:
    using Notice = std::function<void()>;

    static constexpr size_t MAX_WAITING_PER_PROCESS = 8;

    // Runs the notice for a callback of process pid: here for one of this process (pid -1), else on a thread.
    void Deliver(pid_t pid, Notice notice);
    // Waits up to `timeout` for the notices under way.
    void WaitIdle(std::chrono::milliseconds timeout);

private:
    std::mutex mutex_;
    std::condition_variable idle_;
    std::map<pid_t, size_t> waiting_;
};

} // namespace OHOS

#endif // OHOS_SAMGR_LOAD_NOTIFIER_H
