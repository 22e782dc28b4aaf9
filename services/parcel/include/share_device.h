#ifndef SHARE_DEVICE_H
#define SHARE_DEVICE_H

#include <string>

#include "parcelable_record.h"

namespace OHOS {
namespace Zelkon {

// A device found by collaborative discovery. The library reads only its nearby version and its OH flag (0 marks a
// device of the older platform). Its layout is the share service's: an application that talks to a service with
// another layout overrides Marshalling. The host default writes WriteString(deviceId), WriteString(deviceName),
// WriteInt32(nearby version), WriteInt32(OH flag).
class ShareDevice : public ParcelableRecord {
public:
    std::string deviceId;
    std::string deviceName;
    int32_t nbVersion_ = 0;
    int32_t ohFlag_ = 0;

    int32_t GetNearbyVersion() const { return nbVersion_; }
    int32_t GetOHFlag() { return ohFlag_; }

    bool Marshalling(Parcel& parcel) const override;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_DEVICE_H
