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
 * A local object that answers transactions itself, on the caller's thread.
 */
#ifndef OHOS_IPC_IPC_OBJECT_STUB_H
#define OHOS_IPC_IPC_OBJECT_STUB_H

#include <string>
#include <vector>

#include "iremote_object.h"

namespace OHOS {

class IPCObjectStub : public IRemoteObject {
public:
    explicit IPCObjectStub(std::u16string descriptor = {}, bool serialInvokeFlag = false);
    ~IPCObjectStub() override;

    bool IsProxyObject() const override { return false; }
    int32_t GetObjectRefCount() override;
    int SendRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override;
    virtual int OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option);
    // A local object never dies on its own: there is nothing to watch.
    bool AddDeathRecipient(const sptr<DeathRecipient>& recipient) override;
    bool RemoveDeathRecipient(const sptr<DeathRecipient>& recipient) override;
    int Dump(int fd, const std::vector<std::u16string>& args) override;
};

} // namespace OHOS

#endif // OHOS_IPC_IPC_OBJECT_STUB_H
