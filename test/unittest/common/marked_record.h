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
 * A record that writes one marker word instead of its layout, so that a request test sees where the record sits
 * and whether it was written at all; a marker of 0 makes it unwritable. The layouts are the record tests' concern.
 */
#ifndef MARKED_RECORD_H
#define MARKED_RECORD_H

#include <cstdint>

#include "parcel.h"

namespace OHOS {
namespace Zelkon {

template <typename Record, int32_t MARKER>
class MarkedRecord : public Record {
public:
    bool Marshalling(Parcel& parcel) const override { return MARKER != 0 && parcel.WriteInt32(MARKER); }
};

// The markers of the records that the requests of both clients carry.
inline constexpr int32_t DEVICE = 0xDE71;
inline constexpr int32_t SEND_BEAN = 0x5EB0;
inline constexpr int32_t DATA_BEAN = 0xDA7A;
inline constexpr int32_t BYTES_INFO = 0xB17E;

} // namespace Zelkon
} // namespace OHOS

#endif // MARKED_RECORD_H
