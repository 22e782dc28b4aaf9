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
 * Host: the IPC threads of the process, on which incoming one-way work (load callbacks, death notices) runs, and
 * the threads that serve other processes. Work is never run on the thread that posts it.
 */
#ifndef OHOS_IPC_IPC_THREADS_H
#define OHOS_IPC_IPC_THREADS_H

#include <chrono>
#include <functional>

namespace OHOS {

class IpcThreads {
public:
    using Task = std::function<void()>;

    static void Post(Task task);
    static void PostDelayed(Task task, std::chrono::milliseconds delay);
    // Waits until every posted task, delayed ones included, has finished. Called on an IPC thread it returns
    // at once (it would wait for itself).
    static void Drain();
    static bool IsIpcThread();
    // Runs the task on a detached IPC thread of its own (a thread that serves another process): it may block for as
    // long as it serves.
    static void StartThread(Task task);
};

} // namespace OHOS

#endif // OHOS_IPC_IPC_THREADS_H
