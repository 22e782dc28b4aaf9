/*
 * Base of the records that cross the process boundary as parcelables. Request code writes a record through
 * WriteToParcel, so the record's dynamic type decides the layout through its virtual Marshalling.
 */
#ifndef PARCELABLE_RECORD_H
#define PARCELABLE_RECORD_H

#include "parcel.h"

namespace OHOS {
namespace Zelkon {

class ParcelableRecord : public Parcelable {
public:
    bool WriteToParcel(Parcel& parcel) const { return Marshalling(parcel); }
};

} // namespace Zelkon
} // namespace OHOS

#endif // PARCELABLE_RECORD_H
