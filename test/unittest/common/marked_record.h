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

} // namespace Zelkon
} // namespace OHOS

#endif // MARKED_RECORD_H
