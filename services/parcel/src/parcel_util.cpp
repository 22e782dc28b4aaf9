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

#include "parcel_util.h"

#include <cstring>

#include "share_common_constants.h"
#include "share_log.h"

namespace OHOS {
namespace Zelkon {

bool ParcelUtil::WriteBigString(MessageParcel& parcel, const std::string& text)
{
    if (!parcel.WriteUint32(static_cast<uint32_t>(text.size() + 1))) {
        SHARE_SERVICE_LOGE("Write message size failed.");
        return false;
    }
    if (text.empty()) {
        SHARE_SERVICE_LOGI("Empty message.");
        return true;
    }
    SHARE_SERVICE_LOGI("Send message size:%{public}lu.", static_cast<unsigned long>(text.size()));
    if (!parcel.WriteRawData(text.c_str(), text.size() + 1)) {
        SHARE_SERVICE_LOGE("Write message failed.");
        return false;
    }
    return true;
}

bool ParcelUtil::ReadBigString(MessageParcel& parcel, std::string& out, uint32_t maxSize, uint32_t terminatorSize)
{
    uint32_t size = 0;
    if (!parcel.ReadUint32(size)) {
        SHARE_MANAGER_SERVICE_LOGE("Read message size failed.");
        return false;
    }
    if (size > maxSize) {
        SHARE_MANAGER_SERVICE_LOGE("The read data is too large.");
        return false;
    }
    if (size <= terminatorSize) {
        return true;
    }
    const auto* block = static_cast<const char*>(parcel.ReadRawData(size));
    if (block == nullptr) {
        SHARE_MANAGER_SERVICE_LOGE("ReadRawData failed ");
        return false;
    }
    if (block[size - 1] != '\0') {
        SHARE_MANAGER_SERVICE_LOGE("Read chars error: %{public}d.", static_cast<int32_t>(size));
        return false;
    }
    // A zero inside the block ends the text; the search never leaves the block.
    out.assign(block, strnlen(block, size));
    SHARE_MANAGER_SERVICE_LOGI("Read message size %{public}d, real size:%{public}lu", static_cast<int32_t>(size),
                               static_cast<unsigned long>(out.size()));
    return true;
}

} // namespace Zelkon
} // namespace OHOS
