#ifndef CONTACT_INFO_H
#define CONTACT_INFO_H

#include <string>

#include "parcelable_record.h"

namespace OHOS {
namespace Zelkon {

// The contact that a peer device belongs to; carried inside ShareDeviceInfo.
class ContactInfo : public ParcelableRecord {
public:
    int32_t contactKind = 0;
    std::string contactName;
    std::string contactPhoto;

    bool Marshalling(Parcel& parcel) const override;
    bool ReadFromParcel(Parcel& parcel);
};

} // namespace Zelkon
} // namespace OHOS

#endif // CONTACT_INFO_H
