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
 * Byte-level access to a parcel for tests: what it holds, a parcel made to hold exactly some bytes (any length, not
 * only whole words), and a parcel filled up to a given room.
 */
#ifndef PARCEL_BYTES_H
#define PARCEL_BYTES_H

#include <cstdint>
#include <vector>

#include "parcel.h"

namespace OHOS {

inline std::vector<uint8_t> BytesOf(const Parcel& parcel, size_t from = 0)
{
    const auto* data = reinterpret_cast<const uint8_t*>(parcel.GetData());
    if (data == nullptr || from >= parcel.GetDataSize()) {
        return {};
    }
    return std::vector<uint8_t>(data + from, data + parcel.GetDataSize());
}

// Puts exactly the first length bytes into the parcel: WriteBuffer pads to a word, so the padding is cut off again.
// The read position stays at 0.
inline void LoadBytes(Parcel& parcel, const std::vector<uint8_t>& bytes, size_t length)
{
    if (length == 0) {
        return;
    }
    const size_t padded = (length + 3) / 4 * 4;
    if (padded > parcel.GetMaxCapacity()) {
        parcel.SetMaxCapacity(padded);
    }
    parcel.WriteBuffer(bytes.data(), length);
    parcel.RewindWrite(length);
}

inline void LoadBytes(Parcel& parcel, const std::vector<uint8_t>& bytes)
{
    LoadBytes(parcel, bytes, bytes.size());
}

// Fills the parcel with zero bytes so that exactly room bytes (a multiple of 4) still fit under its limit.
inline void FillLeaving(Parcel& parcel, size_t room)
{
    const std::vector<uint8_t> zeros(parcel.GetMaxCapacity() - parcel.GetDataSize() - room, 0);
    if (!zeros.empty()) {
        parcel.WriteBuffer(zeros.data(), zeros.size());
    }
}

} // namespace OHOS

#endif // PARCEL_BYTES_H
