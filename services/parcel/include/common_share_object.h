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

#ifndef COMMON_SHARE_OBJECT_H
#define COMMON_SHARE_OBJECT_H

#include <string>
#include <vector>

#include "message_parcel.h"
#include "share_item.h"

namespace OHOS {
namespace Zelkon {

// A generic share: files and a payload text that may exceed the parcel's string limits.
class CommonShareObject {
public:
    int32_t type = 0;
    int32_t timeout = 0;
    std::vector<ShareItem> items;
    std::string content;
    std::string networkId;
    bool resumable = false;

    // Wire order: networkId, timeout, type, resumable, content (big string), item count, items.
    bool Marshalling(MessageParcel& parcel) const;
    bool WriteToParcel(MessageParcel& parcel) const { return Marshalling(parcel); }
};

} // namespace Zelkon
} // namespace OHOS

#endif // COMMON_SHARE_OBJECT_H
