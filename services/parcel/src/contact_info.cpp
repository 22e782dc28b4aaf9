#include "contact_info.h"

#include "share_common_constants.h"

namespace OHOS {
namespace Zelkon {

bool ContactInfo::Marshalling(Parcel& parcel) const
{
    if (!parcel.WriteInt32(contactKind) || !parcel.WriteString(contactName)) {
        return false;
    }
    // A photo may exceed the parcel's default limit; the limit stays raised.
    parcel.SetMaxCapacity(parcel.GetMaxCapacity() + contactPhoto.size());
    return parcel.WriteString(contactPhoto);
}

bool ContactInfo::ReadFromParcel(Parcel& parcel)
{
    return parcel.ReadInt32(contactKind) && parcel.ReadString(contactName) && parcel.ReadString(contactPhoto);
}

} // namespace Zelkon
} // namespace OHOS
