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
 * What the death recipients of both clients share: the caller's died callback, held weakly behind a lock of its own,
 * and the handling of a death notice.
 */
#ifndef CLIENT_DEATH_RECIPIENT_H
#define CLIENT_DEATH_RECIPIENT_H

#include <memory>
#include <mutex>

#include "iremote_object.h"

namespace OHOS {
namespace Zelkon {

// Client is the client singleton whose proxy a death concerns; NOTIFY is the operation of its died callback.
template <typename Client, typename DiedCallback, void (DiedCallback::*NOTIFY)()>
class ClientDeathRecipient : public IRemoteObject::DeathRecipient {
public:
    // The client drops its proxy if remote is the object behind it; then the callback, if its owner still holds
    // it, is told with no lock held.
    void OnRemoteDied(const wptr<IRemoteObject>& remote) override;

protected:
    // Held weakly: the caller keeps the callback alive. An empty pointer clears the slot.
    void SetCallback(const std::weak_ptr<DiedCallback>& callback)
    {
        std::lock_guard<std::mutex> lock(callbackMutex_);
        callback_ = callback;
    }

private:
    // Registration may race with a death notice.
    std::mutex callbackMutex_;
    std::weak_ptr<DiedCallback> callback_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // CLIENT_DEATH_RECIPIENT_H
