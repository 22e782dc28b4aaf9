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

#include <string>

#include "fuzz_harness.h"
#include "message_parcel.h"
#include "parcel_util.h"

// A text that was read must come back unchanged through the writer and the reader; a refused one leaves the text.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using OHOS::Zelkon::ParcelUtil;
    constexpr uint32_t maxSize = 5242880;
    OHOS::MessageParcel parcel;
    OHOS::Zelkon::FillParcel(parcel, data, size);
    const std::string untouched = "kept when nothing is read";
    std::string text = untouched;
    if (!ParcelUtil::ReadBigString(parcel, text, maxSize, 1)) {
        if (text != untouched) {
            abort();
        }
        return 0;
    }
    // An empty text leaves it as it was.
    if (text == untouched) {
        return 0;
    }
    OHOS::MessageParcel rewritten;
    std::string reread;
    if (!ParcelUtil::WriteBigString(rewritten, text) || !ParcelUtil::ReadBigString(rewritten, reread, maxSize, 1) ||
        reread != text) {
        abort();
    }
    return 0;
}
