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

IRemoteObject::HostProxyKind IRemoteObject::GetHostProxyKind() const
{
    return HostProxyKind::NONE;
}

// Objects travel in message parcels only, as on the platform: the parcel is one.
bool IRemoteObject::Marshalling(Parcel& parcel) const
{
    return static_cast<MessageParcel&>(parcel).WriteRemoteObject(const_cast<IRemoteObject*>(this));
}

bool IRemoteObject::Marshalling(Parcel& parcel, const sptr<IRemoteObject>& object)
{
    return static_cast<MessageParcel&>(parcel).WriteRemoteObject(object);
}

sptr<IRemoteObject> IRemoteObject::Unmarshalling(Parcel& parcel)
{
    return static_cast<MessageParcel&>(parcel).ReadRemoteObject();
}

std::u16string IRemoteObject::GetObjectDescriptor() const
{
    return descriptor_;
}

} // namespace OHOS
