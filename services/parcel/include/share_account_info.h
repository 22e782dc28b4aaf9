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

#ifndef SHARE_ACCOUNT_INFO_H
#define SHARE_ACCOUNT_INFO_H

#include <string>

#include "parcelable_record.h"

namespace OHOS {
namespace Zelkon {

// The account signed in on this device, as the share manager service reports it.
class ShareAccountInfo : public ParcelableRecord {
public:
    std::string norvaneAccountID;
    std::string norvaneAccountIDHash;
    int32_t status = 0;
    int32_t callingUid = -1;
    std::string nickName;
    std::string avatar;

    bool Marshalling(Parcel& parcel) const override;
    bool ReadFromParcel(Parcel& parcel);
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_ACCOUNT_INFO_H
