#include "permanent_device_info.h"

#include "share_common_constants.h"

namespace OHOS {
namespace Zelkon {

bool PermanentDeviceInfo::ReadFromParcel(MessageParcel& parcel)
{
    return parcel.ReadInt32(id) && parcel.ReadString(deviceName) && parcel.ReadInt32(deviceType) &&
           parcel.ReadString(deviceId) && parcel.ReadInt64(timestamp);
}

} // namespace Zelkon
} // namespace OHOS
