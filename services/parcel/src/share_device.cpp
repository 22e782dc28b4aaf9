#include "share_device.h"

#include "share_common_constants.h"
#include "share_path_constants.h"

namespace OHOS {
namespace Zelkon {

bool ShareDevice::Marshalling(Parcel& parcel) const
{
    return parcel.WriteString(deviceId) && parcel.WriteString(deviceName) && parcel.WriteInt32(nbVersion_) &&
           parcel.WriteInt32(ohFlag_);
}

} // namespace Zelkon
} // namespace OHOS
