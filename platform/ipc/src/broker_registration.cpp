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
