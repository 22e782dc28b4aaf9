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

#include "death_notice.h"

#include <algorithm>
#include <utility>

#include "binder_results.h"
#include "ipc_threads.h"
#include "ipc_types.h"

namespace OHOS {

bool DeathNotice::Add(const Recipient& recipient)
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (dead_) {
        return false;
    }
    recipients_.push_back(recipient);
    if (registration_ == nullptr) {
        registration_ = &proxy_;
    }
    // The driver answers a registration for a dead process with the notice right away.
    if (processEnded_ && !noticeDue_) {
        noticeDue_ = true;
        IpcThreads::Post([held = registration_, this] { Deliver(); });
    }
    return true;
}

bool DeathNotice::Remove(const Recipient& recipient)
{
    sptr<IRemoteObject> ended;
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = std::find(recipients_.begin(), recipients_.end(), recipient);
    if (dead_ || it == recipients_.end()) {
        return false;
    }
    recipients_.erase(it);
    if (recipients_.empty()) {
        // Let go after the lock: it may be the proxy's last reference.
        ended = std::move(registration_);
    }
    return true;
}

sptr<IRemoteObject> DeathNotice::ProcessEnded()
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (processEnded_) {
        return nullptr;
    }
    processEnded_ = true;
    if (registration_ == nullptr) {
        return nullptr;
    }
    noticeDue_ = true;
    return registration_;
}

void DeathNotice::Deliver()
{
    std::vector<Recipient> recipients;
    sptr<IRemoteObject> registration;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        dead_ = true;
        recipients.swap(recipients_);
        registration = std::move(registration_);
    }
    const wptr<IRemoteObject> object(&proxy_);
    for (const Recipient& recipient : recipients) {
        recipient->OnRemoteDied(object);
    }
}

bool DeathNotice::HasProcessEnded() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return processEnded_;
}

bool DeathNotice::IsDead() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return dead_;
}

int DeathNotice::DeadResult() const
{
    return IsDead() ? static_cast<int>(ERR_DEAD_OBJECT) : static_cast<int>(BR_DEAD_REPLY);
}

} // namespace OHOS
