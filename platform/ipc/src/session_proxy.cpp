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

#include "session_proxy.h"

#include <chrono>
#include <cstring>
#include <string>

#include "binder_buffer.h"
#include "binder_results.h"
#include "export_table.h"
#include "ipc_log.h"
#include "parcel_wire.h"
#include "session_registry.h"
#include "thread_channels.h"

namespace OHOS {
namespace {
// Taking or granting a reference is the driver's own work, which a device does at once: an owner that does not
// answer within this long is stuck, and the object is taken as dead.
constexpr std::chrono::seconds REFERENCE_WAIT{8};
} // namespace

SessionProxy::SessionProxy(std::shared_ptr<Session> session, uint64_t handle, std::u16string descriptor) :
    IRemoteObject(std::move(descriptor)), ImportedHandle{std::move(session), handle}, notice_(*this)
{
    if (this->session == nullptr) {
        notice_.ProcessEnded();
    }
}

const ImportedHandle* SessionProxy::ImportedOf(const IRemoteObject* object)
{
    if (object == nullptr || object->GetHostProxyKind() != HostProxyKind::ACROSS_PROCESSES) {
        return nullptr;
    }
    return static_cast<const SessionProxy*>(object);
}

int32_t SessionProxy::GetObjectRefCount()
{
    return GetSptrRefCount();
}

int SessionProxy::SendRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option)
{
    if (code > LAST_CALL_TRANSACTION) {
        IPC_HOST_LOGE("invalid code %{public}u", code);
        return IPC_PROXY_INVALID_CODE_ERR;
    }
    return Transact(code, data, reply, option);
}

int SessionProxy::Transact(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option)
{
    if (session == nullptr || !session->IsAlive()) {
        IPC_HOST_LOGW("code %{public}u sent to an object whose process ended", code);
        return notice_.DeadResult();
    }
    if (BinderBuffer::SpaceOf(data) > BinderBuffer::SIZE) {
        IPC_HOST_LOGE("code %{public}u: a parcel of %{public}zu bytes does not fit a binder buffer", code,
                      data.GetDataSize());
        return BR_FAILED_REPLY;
    }
    std::shared_ptr<Channel> channel = ThreadChannels::To(session);
    if (channel == nullptr) {
        return BR_DEAD_REPLY;
    }
    IpcFrame request;
    request.kind = IpcFrame::Kind::TRANSACTION;
    request.handle = handle;
    request.code = code;
    request.flags = static_cast<uint32_t>(option.GetFlags());
    request.transaction = Channel::NewTransaction();
    std::vector<uint8_t> bytes;
    std::vector<int> fds;
    int result = ParcelWire::ToFrame(data, *session, request, bytes, fds);
    if (result != ERR_NONE) {
        return result;
    }
    // A one-way request is answered as soon as the other process has taken it.
    IpcFrame answer;
    result = channel->Call(request.transaction, bytes, fds, std::nullopt, answer);
    if (result != ERR_NONE) {
        IPC_HOST_LOGE("code %{public}u to pid %{public}d failed: %{public}d", code, session->PeerPid(), result);
        // The channel ends with the process: the reply never comes.
        return result == ERR_DEAD_OBJECT ? BR_DEAD_REPLY : result;
    }
    // A status travels only with an empty reply.
    if (answer.status != ERR_NONE || (option.GetFlags() & MessageOption::TF_ASYNC) != 0) {
        return answer.status;
    }
    BinderBuffer::Space space =
        BinderBuffer::OfProcess()->Take(BinderBuffer::SpaceOf(answer.DataSize(), answer.objects.size()));
    // A reply that does not fit is still taken apart, so that the references it carried are given back.
    MessageParcel dropped;
    if (!ParcelWire::ToParcel(answer, session, &SessionProxy::Import, space != nullptr ? reply : dropped)) {
        channel->Close();
        return ERR_INVALID_REPLY;
    }
    if (space == nullptr) {
        return BR_FAILED_REPLY;
    }
    BinderBuffer::KeepWith(reply, std::move(space));
    return ERR_NONE;
}

bool SessionProxy::IsObjectDead() const
{
    return notice_.IsDead();
}

bool SessionProxy::AddDeathRecipient(const sptr<DeathRecipient>& recipient)
{
    if (recipient == nullptr) {
        return false;
    }
    if (!notice_.Add(recipient)) {
        IPC_HOST_LOGE("death recipient refused: the object is dead");
        return false;
    }
    return true;
}

bool SessionProxy::RemoveDeathRecipient(const sptr<DeathRecipient>& recipient)
{
    return recipient != nullptr && notice_.Remove(recipient);
}

int SessionProxy::Dump(int fd, const std::vector<std::u16string>& args)
{
    MessageParcel data;
    if (!data.WriteFileDescriptor(fd) || !data.WriteInt32(static_cast<int32_t>(args.size()))) {
        return ERR_INVALID_DATA;
    }
    for (const std::u16string& arg : args) {
        if (!data.WriteString16(arg)) {
            return ERR_INVALID_DATA;
        }
    }
    MessageParcel reply;
    MessageOption option;
    return Transact(IpcFrame::DUMP_CODE, data, reply, option);
}

void SessionProxy::OnLastStrongRef(const void* objectId)
{
    (void)objectId;
    if (session != nullptr) {
        session->Forget(handle, this);
    }
}

sptr<IRemoteObject> SessionProxy::Import(const std::shared_ptr<Session>& from, const IpcFrame::Object& object,
                                         FrameSocket::Clock::time_point deadline)
{
    if (object.kind == IpcFrame::ObjectKind::EXPORTED) {
        return Adopt(from, object.value, object.descriptor);
    }
    std::shared_ptr<Session> owner = SessionRegistry::OfProcess().SessionTo(object.address, deadline);
    if (owner == nullptr) {
        return new SessionProxy(nullptr, object.value, object.descriptor);
    }
    if (sptr<IRemoteObject> known = owner->FindImport(object.value)) {
        return known;
    }
    if (!Acquire(owner, object.value, deadline).has_value()) {
        IPC_HOST_LOGW("handle %{public}llu is unknown at pid %{public}d: its sender no longer held it",
                      static_cast<unsigned long long>(object.value), owner->PeerPid());
        return new SessionProxy(nullptr, object.value, object.descriptor);
    }
    return Adopt(owner, object.value, object.descriptor);
}

sptr<IRemoteObject> SessionProxy::ImportContext(const std::shared_ptr<Session>& session)
{
    std::optional<std::u16string> descriptor =
        Acquire(session, ExportTable::CONTEXT_HANDLE, FrameSocket::Clock::now() + REFERENCE_WAIT);
    if (!descriptor.has_value()) {
        IPC_HOST_LOGE("pid %{public}d serves no context object", session->PeerPid());
        return nullptr;
    }
    return Adopt(session, ExportTable::CONTEXT_HANDLE, *descriptor);
}

std::optional<IpcFrame> SessionProxy::Reference(const std::shared_ptr<Session>& session, IpcFrame& request,
                                                const std::string& data, FrameSocket::Clock::time_point deadline)
{
    std::shared_ptr<Channel> channel = ThreadChannels::To(session);
    if (channel == nullptr) {
        return std::nullopt;
    }
    request.transaction = Channel::NewTransaction();
    const std::vector<uint8_t> bytes = request.Encode(reinterpret_cast<const uint8_t*>(data.data()), data.size(), 0);
    IpcFrame answer;
    if (channel->Call(request.transaction, bytes, {}, deadline, answer) != ERR_NONE || answer.status != ERR_NONE) {
        return std::nullopt;
    }
    return answer;
}

bool SessionProxy::Grant(const std::shared_ptr<Session>& owner, uint64_t handle, const std::string& address)
{
    IpcFrame grant;
    grant.kind = IpcFrame::Kind::GRANT;
    grant.handle = handle;
    return Reference(owner, grant, address, FrameSocket::Clock::now() + REFERENCE_WAIT).has_value();
}

std::optional<std::u16string> SessionProxy::Acquire(const std::shared_ptr<Session>& session, uint64_t handle,
                                                    FrameSocket::Clock::time_point deadline)
{
    IpcFrame acquire;
    acquire.kind = IpcFrame::Kind::ACQUIRE;
    acquire.handle = handle;
    std::optional<IpcFrame> answer = Reference(session, acquire, std::string(), deadline);
    if (!answer.has_value() || answer->DataSize() % sizeof(char16_t) != 0) {
        return std::nullopt;
    }
    std::u16string descriptor(answer->DataSize() / sizeof(char16_t), u'\0');
    std::memcpy(descriptor.data(), answer->Data(), answer->DataSize());
    return descriptor;
}

sptr<IRemoteObject> SessionProxy::Adopt(const std::shared_ptr<Session>& session, uint64_t handle,
                                        const std::u16string& descriptor)
{
    bool created = false;
    sptr<IRemoteObject> proxy = session->ImportHandle(
        handle,
        [&] {
            sptr<SessionProxy> made = new SessionProxy(session, handle, descriptor);
            return Session::ImportedProxy{made, &made->notice_};
        },
        created);
    if (!created) {
        session->SendRelease(handle);
    }
    return proxy;
}

} // namespace OHOS
