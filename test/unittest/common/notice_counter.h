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
