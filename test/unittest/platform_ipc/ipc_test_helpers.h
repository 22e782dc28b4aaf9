/*
 * Building blocks of the ipc and samgr tests: a stub that records what reaches it, a death recipient that
 * counts its notices.
 */
#ifndef IPC_TEST_HELPERS_H
#define IPC_TEST_HELPERS_H

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include "ipc_object_stub.h"
#include "ipc_threads.h"
#include "message_parcel.h"
#include "parcel_bytes.h"

namespace OHOS {

class RecordingStub : public IPCObjectStub {
public:
    // Reads the request and writes the reply; its result is the transaction's.
    using Handler = std::function<int(uint32_t code, MessageParcel& data, MessageParcel& reply)>;

    explicit RecordingStub(Handler handler = {}, std::u16string descriptor = u"test.RecordingStub") :
        IPCObjectStub(std::move(descriptor)), handler_(std::move(handler))
    {
    }

    int OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override
    {
        (void)option;
        {
            std::lock_guard<std::mutex> lock(mutex_);
            codes_.push_back(code);
            requestBytes_ = BytesOf(data);
            requestParcel_ = &data;
        }
        return handler_ ? handler_(code, data, reply) : ERR_NONE;
    }

    std::vector<uint32_t> Codes() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return codes_;
    }
    std::vector<uint8_t> RequestBytes() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return requestBytes_;
    }
    const MessageParcel* RequestParcel() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return requestParcel_;
    }

private:
    const Handler handler_;
    mutable std::mutex mutex_;
    std::vector<uint32_t> codes_;
    std::vector<uint8_t> requestBytes_;
    const MessageParcel* requestParcel_ = nullptr;
};

class CountingRecipient : public IRemoteObject::DeathRecipient {
public:
    void OnRemoteDied(const wptr<IRemoteObject>& object) override
    {
        sptr<IRemoteObject> died = object.promote();
        std::lock_guard<std::mutex> lock(mutex_);
        ++calls_;
        died_ = died;
        threads_.push_back(std::this_thread::get_id());
        onIpcThread_ = IpcThreads::IsIpcThread();
        changed_.notify_all();
    }

    void WaitForCalls(int count)
    {
        std::unique_lock<std::mutex> lock(mutex_);
        changed_.wait(lock, [this, count] { return calls_ >= count; });
    }
    int Calls() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return calls_;
    }
    sptr<IRemoteObject> Died() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return died_;
    }
    std::vector<std::thread::id> Threads() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return threads_;
    }
    bool OnIpcThread() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return onIpcThread_;
    }

private:
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    int calls_ = 0;
    sptr<IRemoteObject> died_;
    std::vector<std::thread::id> threads_;
    bool onIpcThread_ = false;
};

} // namespace OHOS

#endif // IPC_TEST_HELPERS_H
