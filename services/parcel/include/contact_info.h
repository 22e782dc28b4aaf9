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

#ifndef CONTACT_INFO_H
#define CONTACT_INFO_H

#include <string>

#include "parcelable_record.h"

namespace OHOS {
namespace Zelkon {

// The contact that a peer device belongs to; carried inside ShareDeviceInfo.
class ContactInfo : public ParcelableRecord {
public:
    int32_t contactKind = 0;
    std::string contactName;
    std::string contactPhoto;

    bool Marshalling(Parcel& parcel) const override;
    bool ReadFromParcel(Parcel& parcel);
};

} // namespace Zelkon
} // namespace OHOS

#endif // CONTACT_INFO_H
