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
 * Interfaces on top of remote objects, and the process-wide registry that turns a remote object into the proxy
 * of the interface it implements.
 */
#ifndef OHOS_IPC_IREMOTE_BROKER_H
#define OHOS_IPC_IREMOTE_BROKER_H

#include <atomic>
#include <functional>
#include <mutex>
#include <new>
#include <string>
#include <unordered_map>

#include "iremote_object.h"
#include "refbase.h"

namespace OHOS {

class IRemoteBroker : public virtual RefBase {
public:
    IRemoteBroker() = default;
    ~IRemoteBroker() override = default;
    virtual sptr<IRemoteObject> AsObject() = 0;
};

// The literal's length is known at compile time: a fresh descriptor for every request costs its copy only.
#define DECLARE_INTERFACE_DESCRIPTOR(DESCRIPTOR)                                                                       \
    static constexpr const char16_t* metaDescriptor_ = DESCRIPTOR;                                                     \
    static inline const std::u16string GetDescriptor()                                                                 \
    {                                                                                                                  \
        return std::u16string(DESCRIPTOR, sizeof(DESCRIPTOR) / sizeof(char16_t) - 1);                                  \
    }

class BrokerDelegatorBase {
public:
    BrokerDelegatorBase() = default;
    virtual ~BrokerDelegatorBase() = default;

    std::atomic<bool> isSoUnloaded = false;
    std::u16string descriptor_;
};

template <typename T>
class BrokerCreator {
public:
    BrokerCreator() = default;
    ~BrokerCreator() = default;
    sptr<IRemoteBroker> operator()(const sptr<IRemoteObject>& object)
    {
        T* proxy = new (std::nothrow) T(object);
        if (proxy != nullptr) {
            return static_cast<IRemoteBroker*>(proxy);
        }
        return nullptr;
    }
};

class BrokerRegistration {
    using Constructor = std::function<sptr<IRemoteBroker>(const sptr<IRemoteObject>& object)>;

public:
    static BrokerRegistration& Get();
    // First registration of a descriptor wins; an empty descriptor is refused.
    bool Register(const std::u16string& descriptor, const Constructor& creator, const BrokerDelegatorBase* object);
    void Unregister(const std::u16string& descriptor);
    // A remote object gets the registered proxy; a local object its own interface if the descriptor matches.
    sptr<IRemoteBroker> NewInstance(const std::u16string& descriptor, const sptr<IRemoteObject>& object);

private:
    BrokerRegistration() = default;
    ~BrokerRegistration() = default;
    BrokerRegistration(const BrokerRegistration&) = delete;
    BrokerRegistration& operator=(const BrokerRegistration&) = delete;

    std::mutex creatorMutex_;
    std::unordered_map<std::u16string, Constructor> creators_;
};

template <typename T>
class BrokerDelegator : public BrokerDelegatorBase {
public:
    BrokerDelegator();
    ~BrokerDelegator() override;

private:
    BrokerDelegator(const BrokerDelegator&) = delete;
    BrokerDelegator& operator=(const BrokerDelegator&) = delete;
    std::mutex regMutex_;
};

template <typename T>
BrokerDelegator<T>::BrokerDelegator()
{
    std::lock_guard<std::mutex> lock(regMutex_);
    const std::u16string descriptor = T::GetDescriptor();
    if (BrokerRegistration::Get().Register(descriptor, BrokerCreator<T>(), this)) {
        descriptor_ = descriptor;
    }
}

template <typename T>
BrokerDelegator<T>::~BrokerDelegator()
{
    if (!isSoUnloaded && !descriptor_.empty()) {
        BrokerRegistration::Get().Unregister(descriptor_);
    }
}

template <typename INTERFACE>
inline sptr<INTERFACE> iface_cast(const sptr<IRemoteObject>& object)
{
    const std::u16string descriptor = INTERFACE::GetDescriptor();
    sptr<IRemoteBroker> broker = BrokerRegistration::Get().NewInstance(descriptor, object);
    return static_cast<INTERFACE*>(broker.GetRefPtr());
}

} // namespace OHOS

#endif // OHOS_IPC_IREMOTE_BROKER_H
