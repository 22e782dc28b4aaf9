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

#ifndef SHARE_DEVICE_INFO_H
#define SHARE_DEVICE_INFO_H

#include <string>

#include "contact_info.h"
#include "parcelable_record.h"

namespace OHOS {
namespace Zelkon {

// One peer device as the share widgets show it. The field order is the wire order.
class ShareDeviceInfo : public ParcelableRecord {
public:
    std::string deviceName;
    std::string norvaneIdName;
    std::string avatar;
    int32_t colorId = 0;
    int32_t eventCode = 0;
    int32_t stateCode = 0;
    int32_t percent = 0;
    int32_t speed = 0;
    bool isDisappeared = false;
    int32_t deviceType = 0;
    std::string deviceId;
    int32_t nearbyVersion = 0;
    int64_t lastSharedTime = 0;
    bool isSameAccount = false;
    ContactInfo contactInfo;
    bool isOHDevice = false;
    uint32_t deviceFounder = 0;
    std::string concurentId;
    int32_t extraValue = 0;

    bool Marshalling(Parcel& parcel) const override;
    bool MarshallingHelper(Parcel& parcel) const;
    bool ReadFromParcel(Parcel& parcel);
    bool ReadFromParcelHelper(Parcel& parcel);
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_DEVICE_INFO_H
