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
 * Counts notices that arrive on any thread (died callbacks, death recipients) and lets a test wait for a number of
 * them without sleeping.
 */
#ifndef NOTICE_COUNTER_H
#define NOTICE_COUNTER_H

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace OHOS {
namespace Zelkon {

class NoticeCounter {
public:
    void Notice()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        ++count_;
        changed_.notify_all();
    }

    bool WaitForCount(int count, std::chrono::milliseconds timeout = std::chrono::seconds(5))
    {
        std::unique_lock<std::mutex> lock(mutex_);
        return changed_.wait_for(lock, timeout, [&] { return count_ >= count; });
    }

    int Count()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return count_;
    }

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    int count_ = 0;
};

} // namespace Zelkon
} // namespace OHOS

#endif // NOTICE_COUNTER_H
