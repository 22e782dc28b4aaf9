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
 * Base of the stub of an interface: a local object that is the interface itself.
 */
#ifndef OHOS_IPC_IREMOTE_STUB_H
#define OHOS_IPC_IREMOTE_STUB_H

#include "ipc_object_stub.h"
#include "iremote_broker.h"

namespace OHOS {

template <typename INTERFACE>
class IRemoteStub : public IPCObjectStub, public INTERFACE {
public:
    explicit IRemoteStub(bool serialInvokeFlag = false) : IPCObjectStub(INTERFACE::GetDescriptor(), serialInvokeFlag) {}
    ~IRemoteStub() override = default;

    sptr<IRemoteObject> AsObject() override { return this; }
    sptr<IRemoteBroker> AsInterface() override { return this; }
};

} // namespace OHOS

#endif // OHOS_IPC_IREMOTE_STUB_H
