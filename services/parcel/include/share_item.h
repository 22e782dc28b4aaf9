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

#ifndef SHARE_ITEM_H
#define SHARE_ITEM_H

#include <string>

#include "parcelable_record.h"

namespace OHOS {
namespace Zelkon {

// One file of a generic share: its location and an open descriptor that the service receives a copy of.
class ShareItem : public ParcelableRecord {
public:
    std::string uri;
    int32_t fd = -1;

    // The parcel must be a MessageParcel: the descriptor travels as a descriptor record.
    bool Marshalling(Parcel& parcel) const override;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_ITEM_H
