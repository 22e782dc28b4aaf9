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

#include "share_item.h"

#include "message_parcel.h"
#include "share_common_constants.h"
#include "share_log.h"

namespace OHOS {
namespace Zelkon {

bool ShareItem::Marshalling(Parcel& parcel) const
{
    if (!parcel.WriteString(uri)) {
        return false;
    }
    // Items travel only inside a common share's request parcel, a message parcel: the descriptor needs one.
    if (!static_cast<MessageParcel&>(parcel).WriteFileDescriptor(fd)) {
        SHARE_NAPI_LOGE("WriteFileDescriptor failed, fd %{public}d.", fd);
        return false;
    }
    return true;
}

} // namespace Zelkon
} // namespace OHOS
