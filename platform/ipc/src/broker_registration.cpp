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

#include "iremote_broker.h"

namespace OHOS {

BrokerRegistration& BrokerRegistration::Get()
{
    // Never destroyed: delegators of other libraries may unregister during static destruction.
    static BrokerRegistration* instance = new BrokerRegistration();
    return *instance;
}

bool BrokerRegistration::Register(const std::u16string& descriptor, const Constructor& creator,
                                  const BrokerDelegatorBase* object)
{
    (void)object;
    if (descriptor.empty()) {
        return false;
    }
    std::lock_guard<std::mutex> lock(creatorMutex_);
    return creators_.emplace(descriptor, creator).second;
}

void BrokerRegistration::Unregister(const std::u16string& descriptor)
{
    std::lock_guard<std::mutex> lock(creatorMutex_);
    creators_.erase(descriptor);
}

sptr<IRemoteBroker> BrokerRegistration::NewInstance(const std::u16string& descriptor, const sptr<IRemoteObject>& object)
{
    if (object == nullptr) {
        return nullptr;
    }
    if (!object->IsProxyObject()) {
        return descriptor == object->GetObjectDescriptor() ? object->AsInterface() : nullptr;
    }
    Constructor creator;
    {
        std::lock_guard<std::mutex> lock(creatorMutex_);
        auto it = creators_.find(descriptor);
        if (it == creators_.end()) {
            return nullptr;
        }
        creator = it->second;
    }
    return creator(object);
}

} // namespace OHOS
