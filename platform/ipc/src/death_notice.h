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
 * Host: the death recipients of one proxy, kept as the binder driver keeps a death notification. The first recipient
 * registers the proxy, and the registration holds a strong reference to it, as the driver's does, until the notice
 * is delivered or the last recipient removed. The end of the process behind the proxy reaches it only through a
 * registration, made then or later: the notice marks the proxy dead and tells each recipient once. Until it has,
 * the proxy is not dead and its calls answer BR_DEAD_REPLY; a proxy never registered stays so for good.
 */
#ifndef OHOS_IPC_DEATH_NOTICE_H
#define OHOS_IPC_DEATH_NOTICE_H

#include <mutex>
#include <vector>

#include "iremote_object.h"
#include "refbase.h"

namespace OHOS {

class DeathNotice {
public:
    using Recipient = sptr<IRemoteObject::DeathRecipient>;

    explicit DeathNotice(IRemoteObject& proxy) : proxy_(proxy) {}

    // False once the notice has reached the proxy. A recipient added after the process ended brings the notice at
    // once, on an IPC thread.
    bool Add(const Recipient& recipient);
    // True iff one matching entry was removed; removing the last one ends the registration.
    bool Remove(const Recipient& recipient);
    // The process behind the proxy ended: the proxy to hold while Deliver() runs on an IPC thread, or null if no
    // notice is due (the proxy is not registered, or the end was seen before).
    sptr<IRemoteObject> ProcessEnded();
    // Marks the proxy dead, then tells each recipient.
    void Deliver();

    bool HasProcessEnded() const;
    // What IsObjectDead() answers: the notice has reached the proxy.
    bool IsDead() const;
    // What a call to the proxy answers once its process ended.
    int DeadResult() const;

private:
    IRemoteObject& proxy_;
    mutable std::mutex mutex_;
    std::vector<Recipient> recipients_;
    sptr<IRemoteObject> registration_;
    bool processEnded_ = false;
    bool noticeDue_ = false;
    bool dead_ = false;
};

} // namespace OHOS

#endif // OHOS_IPC_DEATH_NOTICE_H
