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

#include <algorithm>
#include <chrono>
#include <future>
#include <memory>

#include "ipc_log.h"
#include "ipc_threads.h"
#include "process_boundary.h"

namespace OHOS {
namespace {
// Only a recipient that never returns makes a kill wait this long; the process then goes on without it.
constexpr std::chrono::seconds DEATH_NOTICE_WAIT{10};
} // namespace

IPCObjectProxy::IPCObjectProxy(const sptr<IRemoteObject>& target) :
    IRemoteObject(target != nullptr ? target->GetObjectDescriptor() : std::u16string()), target_(target)
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
    return dead_ ? nullptr : target_;
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
        IPC_HOST_LOGW("code %{public}u sent to a dead object", code);
        return ERR_DEAD_OBJECT;
    }
    auto request = std::make_shared<MessageParcel>();
    if (!ProcessBoundary::Copy(data, *request)) {
        return ERR_FLATTEN_OBJECT;
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
    const int result = target->SendRequest(code, *request, answer, option);
    if (result != ERR_NONE) {
        return result;
    }
    return ProcessBoundary::Copy(answer, reply) ? ERR_NONE : ERR_INVALID_REPLY;
}

bool IPCObjectProxy::IsObjectDead() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return dead_;
}

bool IPCObjectProxy::AddDeathRecipient(const sptr<DeathRecipient>& recipient)
{
    if (recipient == nullptr) {
        return false;
    }
    std::lock_guard<std::mutex> lock(mutex_);
    if (dead_ || refuseDeathRecipients_) {
        IPC_HOST_LOGE("death recipient refused (dead %{public}d)", dead_);
        return false;
    }
    recipients_.push_back(recipient);
    return true;
}

bool IPCObjectProxy::RemoveDeathRecipient(const sptr<DeathRecipient>& recipient)
{
    if (recipient == nullptr) {
        return false;
    }
    std::lock_guard<std::mutex> lock(mutex_);
    if (dead_) {
        return false;
    }
    auto it = std::find(recipients_.begin(), recipients_.end(), recipient);
    if (it == recipients_.end()) {
        return false;
    }
    recipients_.erase(it);
    return true;
}

int IPCObjectProxy::Dump(int fd, const std::vector<std::u16string>& args)
{
    sptr<IRemoteObject> target = Target();
    return target != nullptr ? target->Dump(fd, args) : ERR_DEAD_OBJECT;
}

void IPCObjectProxy::Kill()
{
    std::vector<sptr<DeathRecipient>> recipients;
    sptr<IRemoteObject> target;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (dead_) {
            return;
        }
        dead_ = true;
        recipients.swap(recipients_);
        target = target_;
        target_ = nullptr;
    }
    if (recipients.empty()) {
        return;
    }
    sptr<IPCObjectProxy> self = this;
    auto delivered = std::make_shared<std::promise<void>>();
    std::future<void> done = delivered->get_future();
    IpcThreads::Post([self, recipients, delivered] {
        const wptr<IRemoteObject> object(static_cast<IRemoteObject*>(self.GetRefPtr()));
        for (const sptr<DeathRecipient>& recipient : recipients) {
            recipient->OnRemoteDied(object);
        }
        delivered->set_value();
    });
    // The killer may count on every notice of this kill having run, as "the next call reloads" needs; an IPC
    // thread would wait for itself.
    if (!IpcThreads::IsIpcThread() && done.wait_for(DEATH_NOTICE_WAIT) != std::future_status::ready) {
        IPC_HOST_LOGE("death notices still running after %{public}lld s",
                      static_cast<long long>(DEATH_NOTICE_WAIT.count()));
    }
}

void IPCObjectProxy::RefuseDeathRecipients(bool refuse)
{
    std::lock_guard<std::mutex> lock(mutex_);
    refuseDeathRecipients_ = refuse;
}

} // namespace OHOS
