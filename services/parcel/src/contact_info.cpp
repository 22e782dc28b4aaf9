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

#include "contact_info.h"

#include "share_common_constants.h"

namespace OHOS {
namespace Zelkon {

bool ContactInfo::Marshalling(Parcel& parcel) const
{
    if (!parcel.WriteInt32(contactKind) || !parcel.WriteString(contactName)) {
        return false;
    }
    // A photo may exceed the parcel's default limit; the limit stays raised.
    parcel.SetMaxCapacity(parcel.GetMaxCapacity() + contactPhoto.size());
    return parcel.WriteString(contactPhoto);
}

bool ContactInfo::ReadFromParcel(Parcel& parcel)
{
    return parcel.ReadInt32(contactKind) && parcel.ReadString(contactName) && parcel.ReadString(contactPhoto);
}

} // namespace Zelkon
} // namespace OHOS
