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
 * Host: the remote object that stands for a local object living "in another process". Transactions cross the
 * process boundary (the request and the reply are copied as the driver would), death recipients are kept, and
 * the process can be killed, after which every recipient is told once on an IPC thread.
 */
#ifndef OHOS_IPC_IPC_OBJECT_PROXY_H
#define OHOS_IPC_IPC_OBJECT_PROXY_H

#include <mutex>
#include <string>
#include <vector>

#include "iremote_object.h"

namespace OHOS {

class IPCObjectProxy : public IRemoteObject {
public:
    explicit IPCObjectProxy(const sptr<IRemoteObject>& target);
    ~IPCObjectProxy() override;

    int32_t GetObjectRefCount() override;
    int SendRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override;
    bool IsObjectDead() const override;
    bool AddDeathRecipient(const sptr<DeathRecipient>& recipient) override;
    bool RemoveDeathRecipient(const sptr<DeathRecipient>& recipient) override;
    int Dump(int fd, const std::vector<std::u16string>& args) override;
    HostProxyKind GetHostProxyKind() const override { return HostProxyKind::IN_PROCESS; }

    // The object as the in-process world's proxy, or null if it is none.
    static IPCObjectProxy* InProcessOf(IRemoteObject* object);

    // The process of the target died: later requests fail with ERR_DEAD_OBJECT and the recipients are told on an
    // IPC thread. Returns once they have been told, unless called on an IPC thread (it would wait for itself).
    void Kill();
    void RefuseDeathRecipients(bool refuse);

private:
    sptr<IRemoteObject> Target() const;

    mutable std::mutex mutex_;
    sptr<IRemoteObject> target_;
    bool dead_ = false;
    bool refuseDeathRecipients_ = false;
    std::vector<sptr<DeathRecipient>> recipients_;
};

} // namespace OHOS

#endif // OHOS_IPC_IPC_OBJECT_PROXY_H
