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

#include "channel_server.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <vector>

#include "binder_buffer.h"
#include "binder_results.h"
#include "export_table.h"
#include "frame_socket.h"
#include "ipc_log.h"
#include "parcel_wire.h"
#include "session_proxy.h"

namespace OHOS {
namespace {
// At exit a request still running is given this long to finish before the process goes on without it.
constexpr std::chrono::seconds EXIT_GRACE{2};

// The requests being served, so that the exit of the process waits a little for them, as it does for the work of
// the IPC threads. Never destroyed: serving threads outlive the statics.
class RunningRequests {
public:
    static RunningRequests& OfProcess()
    {
        static RunningRequests* running = new RunningRequests();
        return *running;
    }

    bool Enter()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (stopped_) {
            return false;
        }
        ++count_;
        return true;
    }

    void Leave()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (--count_ == 0) {
            idle_.notify_all();
        }
    }

    void Stop()
    {
        std::unique_lock<std::mutex> lock(mutex_);
        stopped_ = true;
        idle_.wait_for(lock, EXIT_GRACE, [this] { return count_ == 0; });
    }

private:
    std::mutex mutex_;
    std::condition_variable idle_;
    int count_ = 0;
    bool stopped_ = false;
};

int DumpTo(IRemoteObject& target, MessageParcel& data)
{
    UniqueFd fd(data.ReadFileDescriptor());
    const int32_t count = data.ReadInt32();
    std::vector<std::u16string> args;
    std::u16string arg;
    for (int32_t i = 0; i < count && data.ReadString16(arg); ++i) {
        args.push_back(arg);
    }
    return target.Dump(fd.Get(), args);
}

// The reply to the request, with its transaction id: a status, and data only with ERR_NONE.
std::vector<uint8_t> Answer(const IpcFrame& request, int status, const void* data = nullptr, size_t size = 0)
{
    IpcFrame reply;
    reply.kind = IpcFrame::Kind::REPLY;
    reply.transaction = request.transaction;
    reply.status = status;
    return reply.Encode(static_cast<const uint8_t*>(data), size, 0);
}

// The peer named a handle that was never given to it: refused, and its session ends.
bool RefuseForged(Session& session, int socket, const IpcFrame& request, int status)
{
    IPC_HOST_LOGE("pid %{public}d used handle %{public}llu, which was never given to it: the session is closed",
                  session.PeerPid(), static_cast<unsigned long long>(request.handle));
    FrameSocket::Send(socket, Answer(request, status), {});
    session.Close();
    return false;
}

bool AnswerAcquire(Session& session, int socket, const IpcFrame& request)
{
    bool forged = false;
    sptr<IRemoteObject> object =
        ExportTable::OfProcess().Acquire(request.handle, session.Serial(), session.PeerAddress(), forged);
    if (forged) {
        return RefuseForged(session, socket, request, ERR_UNKNOWN_OBJECT);
    }
    const std::u16string descriptor = object != nullptr ? object->GetObjectDescriptor() : std::u16string();
    const std::vector<uint8_t> bytes = Answer(request, object != nullptr ? ERR_NONE : ERR_UNKNOWN_OBJECT,
                                              descriptor.data(), descriptor.size() * sizeof(char16_t));
    if (!FrameSocket::Send(socket, bytes, {})) {
        // The caller went away before it knew it held the reference.
        if (object != nullptr) {
            ExportTable::OfProcess().Release(request.handle, session.Serial());
        }
        return false;
    }
    return true;
}

// A handle that the peer holds, passed on to a third process, which may acquire it from now on.
bool AnswerGrant(Session& session, int socket, const IpcFrame& request)
{
    if (!ExportTable::OfProcess().Grant(request.handle, session.Serial(), request.Address())) {
        return RefuseForged(session, socket, request, ERR_UNKNOWN_OBJECT);
    }
    return FrameSocket::Send(socket, Answer(request, ERR_NONE), {});
}

// The result of the request and its reply, as the driver carries them: a status only with an empty reply (a stub
// that wrote its reply has answered), and BR_FAILED_REPLY for a reply that no binder buffer holds.
int WriteReply(int result, const MessageParcel& reply, Session& to, IpcFrame& answer, std::vector<uint8_t>& bytes,
               std::vector<int>& fds)
{
    if (result != ERR_NONE && reply.GetDataSize() == 0) {
        return result;
    }
    if (BinderBuffer::SpaceOf(reply) > BinderBuffer::SIZE) {
        IPC_HOST_LOGE("a reply of %{public}zu bytes does not fit a binder buffer", reply.GetDataSize());
        return BR_FAILED_REPLY;
    }
    return ParcelWire::ToFrame(reply, to, answer, bytes, fds);
}

bool AnswerTransaction(const std::shared_ptr<Session>& session, int socket, IpcFrame& request)
{
    sptr<IRemoteObject> target = ExportTable::OfProcess().Find(request.handle, session->Serial());
    if (target == nullptr) {
        return RefuseForged(*session, socket, request, BR_FAILED_REPLY);
    }
    BinderBuffer::Space space =
        BinderBuffer::OfProcess()->Take(BinderBuffer::SpaceOf(request.DataSize(), request.objects.size()));
    // A request that does not fit is still taken apart, so that the references it carried are given back.
    MessageParcel data;
    MessageParcel dropped;
    if (!ParcelWire::ToParcel(request, session, &SessionProxy::Import, space != nullptr ? data : dropped)) {
        return false;
    }
    // A one-way request is taken once its target and what it carries are held here: its sender learns so before it
    // may give back the references it held for it, as the driver holds them for a one-way transaction.
    const bool oneWay = (request.flags & MessageOption::TF_ASYNC) != 0;
    if (oneWay && !FrameSocket::Send(
                      socket, Answer(request, space != nullptr ? static_cast<int>(ERR_NONE) : BR_FAILED_REPLY), {})) {
        return false;
    }
    int result = BR_FAILED_REPLY;
    MessageParcel reply;
    if (space != nullptr) {
        BinderBuffer::KeepWith(data, std::move(space));
        if (!RunningRequests::OfProcess().Enter()) {
            return false;
        }
        MessageOption option(static_cast<int>(request.flags));
        result = request.code == IpcFrame::DUMP_CODE ? DumpTo(*target, data)
                                                     : target->SendRequest(request.code, data, reply, option);
        RunningRequests::OfProcess().Leave();
    }
    if (oneWay) {
        return true;
    }
    IpcFrame answer;
    answer.kind = IpcFrame::Kind::REPLY;
    answer.transaction = request.transaction;
    std::vector<uint8_t> bytes;
    std::vector<int> fds;
    answer.status = WriteReply(result, reply, *session, answer, bytes, fds);
    if (answer.status != ERR_NONE) {
        bytes = Answer(request, answer.status);
    }
    if (!FrameSocket::Send(socket, bytes, fds)) {
        // The caller went away: what the reply carried never reached it.
        ParcelWire::Unexport(answer, *session);
        return false;
    }
    return true;
}
} // namespace

void ChannelServer::Serve(const std::shared_ptr<Session>& session, UniqueFd socket)
{
    for (;;) {
        IpcFrame request;
        if (FrameSocket::ReceiveRequest(socket.Get(), request) != FrameSocket::Result::OK) {
            return;
        }
        bool keepOpen = false;
        if (request.kind == IpcFrame::Kind::ACQUIRE) {
            keepOpen = AnswerAcquire(*session, socket.Get(), request);
        } else if (request.kind == IpcFrame::Kind::GRANT) {
            keepOpen = AnswerGrant(*session, socket.Get(), request);
        } else if (request.kind == IpcFrame::Kind::TRANSACTION) {
            keepOpen = AnswerTransaction(session, socket.Get(), request);
        } else {
            IPC_HOST_LOGE("refused a channel frame of kind %{public}u from pid %{public}d",
                          static_cast<unsigned>(request.kind), session->PeerPid());
        }
        if (!keepOpen) {
            return;
        }
    }
}

void ChannelServer::StopServing()
{
    RunningRequests::OfProcess().Stop();
}

} // namespace OHOS
