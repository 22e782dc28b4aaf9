/*
 * Host: the IPC threads of the process, on which incoming one-way work (load callbacks, death notices) runs.
 * Work is never run on the thread that posts it.
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
};

} // namespace OHOS

#endif // OHOS_IPC_IPC_THREADS_H
