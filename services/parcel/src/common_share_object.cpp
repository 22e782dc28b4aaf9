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

#include "common_share_object.h"

#include "parcel_util.h"
#include "share_common_constants.h"
#include "share_log.h"
#include "share_message_constants.h"

namespace OHOS {
namespace Zelkon {

#define WRITE_STEP(ok, text) SHARE_CHECKED(SHARE_NAPI_LABEL, ok, text)

bool CommonShareObject::Marshalling(MessageParcel& parcel) const
{
    if (!WRITE_STEP(parcel.WriteString(networkId), "Write networkId failed.") ||
        !WRITE_STEP(parcel.WriteInt32(timeout), "Write timeout failed.") ||
        !WRITE_STEP(parcel.WriteInt32(type), "Write type failed.") ||
        !WRITE_STEP(parcel.WriteBool(resumable), "Write resumable failed.") ||
        !WRITE_STEP(ParcelUtil::WriteBigString(parcel, content), "Write big string failed.") ||
        !WRITE_STEP(parcel.WriteUint32(static_cast<uint32_t>(items.size())), "Write file size failed.")) {
        return false;
    }
    for (const ShareItem& item : items) {
        if (!WRITE_STEP(item.WriteToParcel(parcel), "item.WriteToParcel failed.")) {
            return false;
        }
    }
    return true;
}

} // namespace Zelkon
} // namespace OHOS
