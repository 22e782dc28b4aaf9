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

#include "ipc_object_proxy.h"

#include <chrono>
#include <future>
#include <memory>

#include "binder_buffer.h"
#include "binder_results.h"
#include "death_notice.h"
#include "ipc_log.h"
#include "ipc_threads.h"
#include "process_boundary.h"

namespace OHOS {
namespace {
// Only a recipient that never returns makes a kill wait this long; the process then goes on without it.
constexpr std::chrono::seconds DEATH_NOTICE_WAIT{10};

// The copy of a parcel that a receiving process gets in its binder buffer; BR_FAILED_REPLY if it does not fit.
int CopyInto(BinderBuffer& buffer, const MessageParcel& from, MessageParcel& to)
{
    BinderBuffer::Space space = buffer.Take(BinderBuffer::SpaceOf(from));
    if (space == nullptr) {
        return BR_FAILED_REPLY;
    }
    if (!ProcessBoundary::Copy(from, to)) {
        return ERR_FLATTEN_OBJECT;
    }
    BinderBuffer::KeepWith(to, std::move(space));
    return ERR_NONE;
}
} // namespace

IPCObjectProxy::IPCObjectProxy(const sptr<IRemoteObject>& target) :
    IRemoteObject(target != nullptr ? target->GetObjectDescriptor() : std::u16string()), target_(target),
    notice_(std::make_unique<DeathNotice>(*this)), targetBuffer_(std::make_shared<BinderBuffer>())
{
}

IPCObjectProxy::~IPCObjectProxy() = default;

IPCObjectProxy* IPCObjectProxy::InProcessOf(IRemoteObject* object)
{
    if (object == nullptr || object->GetHostProxyKind() != HostProxyKind::IN_PROCESS) {
        return nullptr;
    }
    return static_cast<IPCObjectProxy*>(object);
}

sptr<IRemoteObject> IPCObjectProxy::Target() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return target_;
}

int32_t IPCObjectProxy::GetObjectRefCount()
{
    sptr<IRemoteObject> target = Target();
    return target != nullptr ? target->GetObjectRefCount() : 0;
}

int IPCObjectProxy::SendRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option)
{
    if (code > LAST_CALL_TRANSACTION) {
        IPC_HOST_LOGE("invalid code %{public}u", code);
        return IPC_PROXY_INVALID_CODE_ERR;
    }
    sptr<IRemoteObject> target = Target();
    if (target == nullptr) {
        IPC_HOST_LOGW("code %{public}u sent to an object whose process ended", code);
        return notice_->DeadResult();
    }
    auto request = std::make_shared<MessageParcel>();
    int result = CopyInto(*targetBuffer_, data, *request);
    if (result != ERR_NONE) {
        return result;
    }
    if ((option.GetFlags() & MessageOption::TF_ASYNC) != 0) {
        // One-way: the other process handles it on one of its IPC threads; nothing comes back.
        IpcThreads::Post([target, code, request, option]() mutable {
            MessageParcel ignored;
            target->SendRequest(code, *request, ignored, option);
        });
        return ERR_NONE;
    }
    MessageParcel answer;
    result = target->SendRequest(code, *request, answer, option);
    if (HasProcessEnded()) {
        IPC_HOST_LOGW("the process of the target of code %{public}u ended during the call", code);
        return BR_DEAD_REPLY;
    }
    // The driver carries a status only with an empty reply: a stub that wrote its reply has answered.
    if (result != ERR_NONE && answer.GetDataSize() == 0) {
        return result;
    }
    return CopyInto(*BinderBuffer::OfProcess(), answer, reply);
}

bool IPCObjectProxy::IsObjectDead() const
{
    return notice_->IsDead();
}

bool IPCObjectProxy::AddDeathRecipient(const sptr<DeathRecipient>& recipient)
{
    if (recipient == nullptr) {
        return false;
    }
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (refuseDeathRecipients_) {
            IPC_HOST_LOGE("death recipient refused, as the host was told to");
            return false;
        }
    }
    if (!notice_->Add(recipient)) {
        IPC_HOST_LOGE("death recipient refused: the object is dead");
        return false;
    }
    return true;
}

bool IPCObjectProxy::RemoveDeathRecipient(const sptr<DeathRecipient>& recipient)
{
    return recipient != nullptr && notice_->Remove(recipient);
}

int IPCObjectProxy::Dump(int fd, const std::vector<std::u16string>& args)
{
    sptr<IRemoteObject> target = Target();
    return target != nullptr ? target->Dump(fd, args) : notice_->DeadResult();
}

void IPCObjectProxy::Kill()
{
    sptr<IRemoteObject> target;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        target = std::move(target_);
    }
    sptr<IRemoteObject> registered = notice_->ProcessEnded();
    if (registered == nullptr) {
        return;
    }
    auto delivered = std::make_shared<std::promise<void>>();
    std::future<void> done = delivered->get_future();
    IpcThreads::Post([registered, notice = notice_.get(), delivered] {
        notice->Deliver();
        delivered->set_value();
    });
    // The killer may count on every notice of this kill having run, as "the next call reloads" needs; an IPC
    // thread would wait for itself.
    if (!IpcThreads::IsIpcThread() && done.wait_for(DEATH_NOTICE_WAIT) != std::future_status::ready) {
        IPC_HOST_LOGE("death notices still running after %{public}lld s",
                      static_cast<long long>(DEATH_NOTICE_WAIT.count()));
    }
}

bool IPCObjectProxy::HasProcessEnded() const
{
    return notice_->HasProcessEnded();
}

void IPCObjectProxy::RefuseDeathRecipients(bool refuse)
{
    std::lock_guard<std::mutex> lock(mutex_);
    refuseDeathRecipients_ = refuse;
}

} // namespace OHOS
