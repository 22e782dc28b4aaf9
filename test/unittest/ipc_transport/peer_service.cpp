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

#include "peer_service.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

#include "ipc_object_stub.h"
#include "peer_process.h"

namespace OHOS {
namespace {
using std::chrono::milliseconds;

class PeerService : public IPCObjectStub {
public:
    PeerService() : IPCObjectStub(PEER_DESCRIPTOR) {}

    int OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override
    {
        (void)option;
        switch (code) {
        case ECHO:
            return Answer(reply.WriteBuffer(reinterpret_cast<const void*>(data.GetData()), data.GetDataSize()));
        case SLEEP:
            Sleep(milliseconds(data.ReadInt32()));
            return Answer(reply.WriteBool(true));
        case SLEEPERS:
            return Answer(reply.WriteInt32(Await(data.ReadInt32(), sleepers_, false)));
        case READ_FD:
            return Answer(reply.WriteString(ReadAll(data.ReadFileDescriptor())));
        case RAW_DATA: {
            const int32_t size = data.ReadInt32();
            const void* raw = data.ReadRawData(static_cast<size_t>(size));
            return Answer(raw != nullptr && reply.WriteRawData(raw, static_cast<size_t>(size)));
        }
        case GIVE_STUB:
            return Answer(reply.WriteRemoteObject(GivenStub()));
        case GIVE_YES:
            return Answer(reply.WriteRemoteObject(yes_));
        case STUBS_ALIVE:
            return Answer(reply.WriteInt32(Await(data.ReadInt32(), given_, true)));
        case HOLD:
            return Answer(reply.WriteRemoteObject(Hold(data.ReadRemoteObject())));
        case DROP:
            return Answer(Hold(nullptr) == nullptr);
        case CALL:
            return CallHeld(data.ReadInt32(), reply);
        case RENDEZVOUS:
            return Answer(reply.WriteBool(Rendezvous(data.ReadInt32())));
        case FAIL_WITH: {
            const int32_t status = data.ReadInt32();
            return data.ReadBool() && !reply.WriteInt32(status) ? ERR_INVALID_DATA : status;
        }
        case BIG_REPLY: {
            const std::vector<uint8_t> bytes(static_cast<size_t>(data.ReadInt32()), 0x5a);
            return Answer(reply.SetMaxCapacity(reply.GetMaxCapacity() + bytes.size()) &&
                          reply.WriteBuffer(bytes.data(), bytes.size()));
        }
        default:
            return IPC_STUB_UNKNOW_TRANS_ERR;
        }
    }

    // Writes how many arguments it got into the descriptor, which is the caller's.
    int Dump(int fd, const std::vector<std::u16string>& args) override
    {
        const std::string text = "dump " + std::to_string(args.size());
        return Answer(write(fd, text.data(), text.size()) == static_cast<ssize_t>(text.size()));
    }

private:
    class YesStub : public IPCObjectStub {
    public:
        int OnRemoteRequest(uint32_t, MessageParcel&, MessageParcel& reply, MessageOption&) override
        {
            return Answer(reply.WriteBool(true));
        }
    };

    // Lets the service know when the stub it gave out is gone.
    class GivenStubObject : public IPCObjectStub {
    public:
        explicit GivenStubObject(PeerService& service) : IPCObjectStub(u"test.ipc.GivenStub"), service_(service) {}
        ~GivenStubObject() override
        {
            service_.Changed([this] { --service_.given_; });
        }

    private:
        PeerService& service_;
    };

    static int Answer(bool written) { return written ? ERR_NONE : ERR_INVALID_DATA; }

    static std::string ReadAll(int fd)
    {
        char text[64];
        const ssize_t count = read(fd, text, sizeof(text));
        close(fd);
        return std::string(text, count > 0 ? static_cast<size_t>(count) : 0);
    }

    template <typename Change>
    void Changed(Change change)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        change();
        changed_.notify_all();
    }

    // Waits up to the timeout until the counter is zero (or until it is not); its value then.
    int Await(int32_t timeoutMs, const int& counter, bool untilZero)
    {
        std::unique_lock<std::mutex> lock(mutex_);
        changed_.wait_for(lock, milliseconds(timeoutMs), [&] { return (counter == 0) == untilZero; });
        return counter;
    }

    void Sleep(milliseconds duration)
    {
        Changed([this] { ++sleepers_; });
        std::this_thread::sleep_for(duration);
        Changed([this] { --sleepers_; });
    }

    sptr<IRemoteObject> GivenStub()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        sptr<IRemoteObject> stub = givenStub_.promote();
        if (stub == nullptr) {
            stub = new GivenStubObject(*this);
            givenStub_ = stub;
            ++given_;
        }
        return stub;
    }

    sptr<IRemoteObject> Hold(const sptr<IRemoteObject>& object)
    {
        sptr<IRemoteObject> previous;
        std::lock_guard<std::mutex> lock(mutex_);
        previous = held_;
        held_ = object;
        return held_;
    }

    int CallHeld(int32_t value, MessageParcel& reply)
    {
        sptr<IRemoteObject> held;
        {
            std::lock_guard<std::mutex> lock(mutex_);
            held = held_;
        }
        MessageParcel data;
        MessageParcel answer;
        MessageOption option;
        data.WriteInt32(value);
        const int result = held != nullptr ? held->SendRequest(NESTED, data, answer, option) : ERR_NULL_OBJECT;
        return result != ERR_NONE ? result : Answer(reply.WriteInt32(answer.ReadInt32()));
    }

    bool Rendezvous(int32_t count)
    {
        std::unique_lock<std::mutex> lock(mutex_);
        ++arrived_;
        changed_.notify_all();
        return changed_.wait_for(lock, std::chrono::seconds(5), [&] { return arrived_ >= count; });
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    int sleepers_ = 0;
    int given_ = 0;
    int arrived_ = 0;
    wptr<IRemoteObject> givenStub_;
    sptr<IRemoteObject> held_;
    const sptr<IRemoteObject> yes_ = new YesStub();
};

} // namespace

sptr<IRemoteObject> MakePeerService()
{
    return new PeerService();
}

} // namespace OHOS
