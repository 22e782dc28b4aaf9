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
 * process boundary as the driver takes them (the request and the reply are copied, within the binder buffers of
 * the receiving sides), death recipients are kept as the driver keeps them, and the process can be killed.
 */
#ifndef OHOS_IPC_IPC_OBJECT_PROXY_H
#define OHOS_IPC_IPC_OBJECT_PROXY_H

#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "iremote_object.h"

namespace OHOS {

class BinderBuffer;
class DeathNotice;

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

    // The process of the target died: a call in progress and later ones answer BR_DEAD_REPLY, and the death notice
    // goes to a registered proxy on an IPC thread, after which calls answer ERR_DEAD_OBJECT. Returns once the notice
    // has run, unless called on an IPC thread (it would wait for itself).
    void Kill();
    // Whether Kill was called: the host's own knowledge, ahead of any notice.
    bool HasProcessEnded() const;
    void RefuseDeathRecipients(bool refuse);

private:
    sptr<IRemoteObject> Target() const;

    mutable std::mutex mutex_;
    sptr<IRemoteObject> target_;
    bool refuseDeathRecipients_ = false;
    const std::unique_ptr<DeathNotice> notice_;
    // The target's process's buffer, which requests to it take.
    const std::shared_ptr<BinderBuffer> targetBuffer_;
};

} // namespace OHOS

#endif // OHOS_IPC_IPC_OBJECT_PROXY_H
