/*
 * Shared steps of the record fuzzers: read a record from fuzzed bytes, and check that whatever a reader accepted
 * is stable under its own writer and reader (a field that the writer and the reader see differently shows up
 * as a difference in bytes).
 */
#ifndef RECORD_FUZZ_H
#define RECORD_FUZZ_H

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "parcel.h"

namespace OHOS {
namespace Zelkon {

// A parcel of type ParcelType that holds the bytes, as a received reply would.
template <typename ParcelType>
void FillParcel(ParcelType& parcel, const uint8_t* data, size_t size)
{
    // A buffer of zero bytes is refused by the parcel: an empty input stays an empty parcel.
    if (size > 0 && !parcel.WriteBuffer(data, size)) {
        abort();
    }
}

inline std::string ParcelBytes(Parcel& parcel)
{
    return std::string(reinterpret_cast<const char*>(parcel.GetData()), parcel.GetDataSize());
}

template <typename Record>
std::string WrittenBytes(const Record& record)
{
    Parcel parcel;
    if (!record.Marshalling(parcel)) {
        abort();
    }
    return ParcelBytes(parcel);
}

// Aborts (a finding) when writing the record and reading it back does not give the same record.
template <typename Record>
void CheckRewriteStable(const Record& record)
{
    const std::string written = WrittenBytes(record);
    Parcel parcel;
    FillParcel(parcel, reinterpret_cast<const uint8_t*>(written.data()), written.size());
    Record reread;
    if (!reread.ReadFromParcel(parcel) || parcel.GetReadableBytes() != 0 || WrittenBytes(reread) != written) {
        abort();
    }
}

} // namespace Zelkon
} // namespace OHOS

#endif // RECORD_FUZZ_H
