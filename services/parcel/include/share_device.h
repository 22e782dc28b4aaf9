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

#ifndef SHARE_DEVICE_H
#define SHARE_DEVICE_H

#include <string>

#include "parcelable_record.h"

namespace OHOS {
namespace Zelkon {

// A device found by collaborative discovery. The library reads only its nearby version and its OH flag (0 marks a
// device of the older platform). Its layout is the share service's: an application that talks to a service with
// another layout overrides Marshalling. The host default writes WriteString(deviceId), WriteString(deviceName),
// WriteInt32(nearby version), WriteInt32(OH flag).
class ShareDevice : public ParcelableRecord {
public:
    std::string deviceId;
    std::string deviceName;
    int32_t nbVersion_ = 0;
    int32_t ohFlag_ = 0;

    int32_t GetNearbyVersion() const { return nbVersion_; }
    int32_t GetOHFlag() { return ohFlag_; }

    bool Marshalling(Parcel& parcel) const override;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_DEVICE_H
