/*
 * The share manager service's side of the wire, written from the protocol's record layouts: writes device and
 * account records into replies and reads device records out of requests, field by field.
 */
#ifndef SHARE_MANAGER_WIRE_H
#define SHARE_MANAGER_WIRE_H

#include <cstdint>
#include <string>

#include "message_parcel.h"

namespace OHOS {
namespace Zelkon {

// The fields a test varies; the others get fixed values.
struct WireDevice {
    std::string deviceId;
    std::string avatar;
    int32_t percent = 0;
};

inline bool WriteWireDevice(Parcel& parcel, const WireDevice& device)
{
    return parcel.WriteString("name") && parcel.WriteString("norvane") && parcel.WriteString(device.avatar) &&
           parcel.WriteInt32(3) && parcel.WriteInt32(4) && parcel.WriteInt32(5) && parcel.WriteInt32(device.percent) &&
           parcel.WriteInt32(7) && parcel.WriteBool(false) && parcel.WriteInt32(9) &&
           parcel.WriteString(device.deviceId) && parcel.WriteInt32(11) && parcel.WriteInt64(1234567890123) &&
           parcel.WriteBool(true) && parcel.WriteInt32(15) && parcel.WriteString("contact") &&
           parcel.WriteString("phone") && parcel.WriteBool(true) && parcel.WriteUint32(17) &&
           parcel.WriteString("concurrent") && parcel.WriteInt32(19);
}

// Reads the nineteen fields of a device record; the device id when all were there, "?" otherwise.
inline std::string ReadWireDeviceId(Parcel& parcel)
{
    std::string text;
    std::string deviceId;
    int32_t number = 0;
    uint32_t unsignedNumber = 0;
    int64_t time = 0;
    bool flag = false;
    bool ok = parcel.ReadString(text) && parcel.ReadString(text) && parcel.ReadString(text);
    for (int i = 0; ok && i < 5; ++i) {
        ok = parcel.ReadInt32(number);
    }
    ok = ok && parcel.ReadBool(flag) && parcel.ReadInt32(number) && parcel.ReadString(deviceId) &&
         parcel.ReadInt32(number) && parcel.ReadInt64(time) && parcel.ReadBool(flag) && parcel.ReadInt32(number) &&
         parcel.ReadString(text) && parcel.ReadString(text) && parcel.ReadBool(flag) &&
         parcel.ReadUint32(unsignedNumber) && parcel.ReadString(text) && parcel.ReadInt32(number);
    return ok ? deviceId : "?";
}

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_MANAGER_WIRE_H
