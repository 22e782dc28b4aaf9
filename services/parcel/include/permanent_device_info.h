#ifndef PERMANENT_DEVICE_INFO_H
#define PERMANENT_DEVICE_INFO_H

#include <string>

#include "message_parcel.h"

namespace OHOS {
namespace Zelkon {

// One entry of the share service's list of permanent (trusted) devices.
class PermanentDeviceInfo {
public:
    virtual ~PermanentDeviceInfo() = default;

    int32_t id = 0;
    std::string deviceName;
    int32_t deviceType = 0;
    std::string deviceId;
    int64_t timestamp = 0;

    // Fails at the first field that cannot be read, without a message: the list reader logs.
    bool ReadFromParcel(MessageParcel& parcel);
};

} // namespace Zelkon
} // namespace OHOS

#endif // PERMANENT_DEVICE_INFO_H
