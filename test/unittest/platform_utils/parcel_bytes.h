/*
 * Byte-level access to a parcel for the tests of the parcel itself: what it holds, and a parcel made to hold
 * exactly some bytes (any length, not only whole words).
 */
#ifndef PARCEL_BYTES_H
#define PARCEL_BYTES_H

#include <cstdint>
#include <vector>

#include "parcel.h"

namespace OHOS {

inline std::vector<uint8_t> BytesOf(const Parcel& parcel)
{
    const auto* data = reinterpret_cast<const uint8_t*>(parcel.GetData());
    if (data == nullptr) {
        return {};
    }
    return std::vector<uint8_t>(data, data + parcel.GetDataSize());
}

// WriteBuffer pads to a word, so the padding is cut off again; the read position stays at 0.
inline void LoadBytes(Parcel& parcel, const std::vector<uint8_t>& bytes)
{
    if (bytes.empty()) {
        return;
    }
    const size_t padded = (bytes.size() + 3) / 4 * 4;
    if (padded > parcel.GetMaxCapacity()) {
        parcel.SetMaxCapacity(padded);
    }
    parcel.WriteBuffer(bytes.data(), bytes.size());
    parcel.RewindWrite(bytes.size());
}

} // namespace OHOS

#endif // PARCEL_BYTES_H
