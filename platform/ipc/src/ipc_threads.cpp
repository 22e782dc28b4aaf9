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

#include "ipc_threads.h"

#include <condition_variable>
#include <cstdlib>
#include <map>
#include <mutex>
#include <thread>
#include <utility>

namespace OHOS {
namespace {
using Clock = std::chrono::steady_clock;

constexpr int WORKER_COUNT = 4;
// At exit a task still running is given this long to finish before the process goes on without it.
constexpr std::chrono::seconds EXIT_GRACE{2};

thread_local bool g_onIpcThread = false;

// Workers are detached and the dispatcher is never destroyed: joining threads from static destructors hangs
// when a task waits for something that is already gone. At exit, the workers are stopped before the statics
// that tasks may touch are destroyed.
class Dispatcher {
public:
    static Dispatcher& OfProcess()
    {
        static Dispatcher* dispatcher = [] {
            auto* created = new Dispatcher();
            created->Start();
            std::atexit([] { OfProcess().Stop(); });
            return created;
        }();
        return *dispatcher;
    }

    void Post(IpcThreads::Task task, Clock::time_point due)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        queue_.emplace(due, std::move(task));
        work_.notify_one();
    }

    void Drain()
    {
        std::unique_lock<std::mutex> lock(mutex_);
        idle_.wait(lock, [this] { return stopping_ || (queue_.empty() && running_ == 0); });
    }

private:
    void Start()
    {
        for (int i = 0; i < WORKER_COUNT; ++i) {
            std::thread([this] { Work(); }).detach();
        }
    }

    void Stop()
    {
        std::unique_lock<std::mutex> lock(mutex_);
        stopping_ = true;
        work_.notify_all();
        idle_.notify_all();
        idle_.wait_for(lock, EXIT_GRACE, [this] { return running_ == 0; });
    }

    void Work()
    {
        g_onIpcThread = true;
        std::unique_lock<std::mutex> lock(mutex_);
        while (!stopping_) {
            if (queue_.empty()) {
                work_.wait(lock);
                continue;
            }
            const Clock::time_point due = queue_.begin()->first;
            if (due > Clock::now()) {
                work_.wait_until(lock, due);
                continue;
            }
            IpcThreads::Task task = std::move(queue_.begin()->second);
            queue_.erase(queue_.begin());
            ++running_;
            lock.unlock();
            task();
            // What the task captured is released outside the lock: releasing may post more work.
            task = nullptr;
            lock.lock();
            --running_;
            if (running_ == 0) {
                idle_.notify_all();
            }
        }
    }

    std::mutex mutex_;
    std::condition_variable work_;
    std::condition_variable idle_;
    // Ordered by due time; equal times keep their posting order.
    std::multimap<Clock::time_point, IpcThreads::Task> queue_;
    int running_ = 0;
    bool stopping_ = false;
};
} // namespace

void IpcThreads::Post(Task task)
{
    Dispatcher::OfProcess().Post(std::move(task), Clock::now());
}

void IpcThreads::PostDelayed(Task task, std::chrono::milliseconds delay)
{
    Dispatcher::OfProcess().Post(std::move(task), Clock::now() + delay);
}

void IpcThreads::Drain()
{
    if (g_onIpcThread) {
        return;
    }
    Dispatcher::OfProcess().Drain();
}

bool IpcThreads::IsIpcThread()
{
    return g_onIpcThread;
}

void IpcThreads::StartThread(Task task)
{
    std::thread([task = std::move(task)] {
        g_onIpcThread = true;
        task();
    }).detach();
}

} // namespace OHOS
