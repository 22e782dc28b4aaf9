#include "iremote_object.h"

#include "iremote_broker.h"

namespace OHOS {

IRemoteObject::IRemoteObject(std::u16string descriptor) : descriptor_(std::move(descriptor))
{
    asRemote_ = true;
}

bool IRemoteObject::IsProxyObject() const
{
    return true;
}

bool IRemoteObject::IsObjectDead() const
{
    return false;
}

std::u16string IRemoteObject::GetInterfaceDescriptor()
{
    return descriptor_;
}

bool IRemoteObject::CheckObjectLegality() const
{
    return false;
}

sptr<IRemoteBroker> IRemoteObject::AsInterface()
{
    return nullptr;
}

bool IRemoteObject::Marshalling(Parcel& parcel) const
{
    auto* messageParcel = dynamic_cast<MessageParcel*>(&parcel);
    if (messageParcel == nullptr) {
        return false;
    }
    return messageParcel->WriteRemoteObject(const_cast<IRemoteObject*>(this));
}

bool IRemoteObject::Marshalling(Parcel& parcel, const sptr<IRemoteObject>& object)
{
    auto* messageParcel = dynamic_cast<MessageParcel*>(&parcel);
    return messageParcel != nullptr && messageParcel->WriteRemoteObject(object);
}

sptr<IRemoteObject> IRemoteObject::Unmarshalling(Parcel& parcel)
{
    auto* messageParcel = dynamic_cast<MessageParcel*>(&parcel);
    return messageParcel != nullptr ? messageParcel->ReadRemoteObject() : nullptr;
}

std::u16string IRemoteObject::GetObjectDescriptor() const
{
    return descriptor_;
}

} // namespace OHOS
