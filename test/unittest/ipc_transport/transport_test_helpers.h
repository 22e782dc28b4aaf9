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
 * Building blocks of the transport tests: a latch to wait on without sleeping, a stale socket file, the count of
 * this process's open descriptors, a death recipient that counts its notices, and a local object that tells when
 * it is destroyed.
 */
#ifndef TRANSPORT_TEST_HELPERS_H
#define TRANSPORT_TEST_HELPERS_H

#include <chrono>
#include <condition_variable>
#include <dirent.h>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "ipc_object_stub.h"
#include "ipc_threads.h"

namespace OHOS {

class Latch {
public:
    void Open()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        open_ = true;
        opened_.notify_all();
    }
    bool Wait(std::chrono::milliseconds timeout)
    {
        std::unique_lock<std::mutex> lock(mutex_);
        return opened_.wait_for(lock, timeout, [this] { return open_; });
    }
    bool IsOpen() { return Wait(std::chrono::milliseconds(0)); }

private:
    std::mutex mutex_;
    std::condition_variable opened_;
    bool open_ = false;
};

// A socket file that nobody listens at any more, as a process that died while serving leaves it behind.
inline void LeaveStaleSocket(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof(address.sun_path) - 1);
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof(address));
    close(fd);
}

inline int OpenFds()
{
    int count = 0;
    DIR* fds = opendir("/proc/self/fd");
    while (readdir(fds) != nullptr) {
        ++count;
    }
    closedir(fds);
    return count;
}

class CountingRecipient : public IRemoteObject::DeathRecipient {
public:
    void OnRemoteDied(const wptr<IRemoteObject>& object) override
    {
        std::lock_guard<std::mutex> lock(mutex_);
        ++calls_;
        onIpcThread_ = IpcThreads::IsIpcThread() && object.promote() != nullptr;
    }
    int Calls()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return calls_;
    }
    bool OnIpcThreadWithTheObject()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return onIpcThread_;
    }

private:
    std::mutex mutex_;
    int calls_ = 0;
    bool onIpcThread_ = false;
};

// A local object of the test process; Handler answers its requests.
class TrackedStub : public IPCObjectStub {
public:
    using Handler = std::function<int(MessageParcel& data, MessageParcel& reply)>;

    explicit TrackedStub(std::shared_ptr<Latch> destroyed, Handler handler = {}) :
        IPCObjectStub(u"test.ipc.TrackedStub"), destroyed_(std::move(destroyed)), handler_(std::move(handler))
    {
    }
    ~TrackedStub() override { destroyed_->Open(); }

    int OnRemoteRequest(uint32_t, MessageParcel& data, MessageParcel& reply, MessageOption&) override
    {
        return handler_ ? handler_(data, reply) : ERR_NONE;
    }

private:
    const std::shared_ptr<Latch> destroyed_;
    const Handler handler_;
};

} // namespace OHOS

#endif // TRANSPORT_TEST_HELPERS_H
