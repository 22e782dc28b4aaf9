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
 * An object that can receive transactions, either locally (a stub) or in another process (a proxy).
 */
#ifndef OHOS_IPC_IREMOTE_OBJECT_H
#define OHOS_IPC_IREMOTE_OBJECT_H

#include <cstdint>
#include <string>
#include <vector>

#include "ipc_types.h"
#include "message_option.h"
#include "message_parcel.h"
#include "parcel.h"
#include "refbase.h"
#include "string_ex.h"

namespace OHOS {

class IRemoteBroker;

class IRemoteObject : public virtual Parcelable, public virtual RefBase {
public:
    class DeathRecipient : public virtual RefBase {
    public:
        virtual void OnRemoteDied(const wptr<IRemoteObject>& object) = 0;
    };

    virtual int32_t GetObjectRefCount() = 0;
    virtual int SendRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) = 0;
    virtual bool IsProxyObject() const;
    virtual bool IsObjectDead() const;
    virtual std::u16string GetInterfaceDescriptor();
    virtual bool CheckObjectLegality() const;
    virtual bool AddDeathRecipient(const sptr<DeathRecipient>& recipient) = 0;
    virtual bool RemoveDeathRecipient(const sptr<DeathRecipient>& recipient) = 0;
    virtual sptr<IRemoteBroker> AsInterface();
    virtual int Dump(int fd, const std::vector<std::u16string>& args) = 0;

    // Host only, not in the platform's header: which of the host's own proxies this object is, so that the host's
    // IPC and system ability manager tell them apart without RTTI, as IsProxyObject() tells a proxy from a stub.
    // The library never asks.
    enum class HostProxyKind { NONE, IN_PROCESS, ACROSS_PROCESSES };
    virtual HostProxyKind GetHostProxyKind() const;

    bool Marshalling(Parcel& parcel) const override;
    static sptr<IRemoteObject> Unmarshalling(Parcel& parcel);
    static bool Marshalling(Parcel& parcel, const sptr<IRemoteObject>& object);

    std::u16string GetObjectDescriptor() const;

    const std::u16string descriptor_;

protected:
    explicit IRemoteObject(std::u16string descriptor = {});
};

} // namespace OHOS

#endif // OHOS_IPC_IREMOTE_OBJECT_H
