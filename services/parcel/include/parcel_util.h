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

/*
 * Big strings: texts too large for the parcel's string encoding travel as a size word (length plus one) and a
 * raw data block holding the text and its terminating zero byte. The platform parcel puts a large block in
 * shared memory by itself.
 */
#ifndef PARCEL_UTIL_H
#define PARCEL_UTIL_H

#include <cstdint>
#include <string>

#include "message_parcel.h"

namespace OHOS {
namespace Zelkon {

class ParcelUtil {
public:
    // Writes the size word, then the block; an empty text is the size word 1 alone.
    static bool WriteBigString(MessageParcel& parcel, const std::string& text);
    // Reads one big string into out. A size word above maxSize is refused; one at or below terminatorSize is an
    // empty text and leaves out as it was. out is untouched on every failure.
    static bool ReadBigString(MessageParcel& parcel, std::string& out, uint32_t maxSize, uint32_t terminatorSize);
};

} // namespace Zelkon
} // namespace OHOS

#endif // PARCEL_UTIL_H
