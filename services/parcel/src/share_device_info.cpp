/*
 * Copyright (c) 2026 The libshare_client Authors.
 * Licensed under the Apache License, Version 2.0 (the "License");
 * you may not use this file except in compliance with the License.
 * You may obtain a copy of the License at
 *
 *     http://www.apache.org/licenses/LICENSE-2.0
 *
 * Unless required by applicable law or agreed to in writing, software
 * distributed under the License is distributed on an "AS IS" BASIS,
 * WITHOUT WARRANTIES OR CONDITIONS OF ANY KIND, either express or implied.
 * See the License for the specific language governing permissions and
 * limitations under the License.
 */

#include "share_device_info.h"

#include "share_common_constants.h"
#include "share_log.h"

namespace OHOS {
namespace Zelkon {

#define WRITE_STEP(ok, text) SHARE_CHECKED(SHARE_PROXY_LABEL, ok, text)
#define READ_STEP(ok, text) SHARE_CHECKED(SHARE_STUB_LABEL, ok, text)

bool ShareDeviceInfo::Marshalling(Parcel& parcel) const
{
    if (!parcel.WriteString(deviceName) ||
        !WRITE_STEP(parcel.WriteString(norvaneIdName), "WriteString norvaneIdName failed.")) {
        return false;
    }
    // An avatar may exceed the parcel's default limit; the limit stays raised, once per record written.
    parcel.SetMaxCapacity(parcel.GetMaxCapacity() + avatar.size());
    return WRITE_STEP(parcel.WriteString(avatar), "WriteString avatar failed.") &&
           WRITE_STEP(parcel.WriteInt32(colorId), "WriteInt32 colorId failed.") &&
           WRITE_STEP(parcel.WriteInt32(eventCode), "WriteInt32 eventCode failed.") &&
           WRITE_STEP(parcel.WriteInt32(stateCode), "WriteInt32 stateCode failed.") &&
           WRITE_STEP(parcel.WriteInt32(percent), "WriteInt32 percent failed.") &&
           WRITE_STEP(parcel.WriteInt32(speed), "WriteInt32 speed failed.") && MarshallingHelper(parcel);
}

bool ShareDeviceInfo::MarshallingHelper(Parcel& parcel) const
{
    // deviceFounder is unsigned on the wire; its message names WriteInt32 all the same.
    return WRITE_STEP(parcel.WriteBool(isDisappeared), "WriteBool isDisappeared failed.") &&
           WRITE_STEP(parcel.WriteInt32(deviceType), "WriteInt32 deviceType failed.") &&
           WRITE_STEP(parcel.WriteString(deviceId), "WriteString deviceId failed.") &&
           WRITE_STEP(parcel.WriteInt32(nearbyVersion), "WriteInt32 nearbyVersion failed.") &&
           WRITE_STEP(parcel.WriteInt64(lastSharedTime), "WriteInt64 lastSharedTime failed.") &&
           WRITE_STEP(parcel.WriteBool(isSameAccount), "WriteBool isSameAccount failed.") &&
           WRITE_STEP(contactInfo.WriteToParcel(parcel), "Write contactInfo failed.") &&
           WRITE_STEP(parcel.WriteBool(isOHDevice), "Write isOHDevice failed.") &&
           WRITE_STEP(parcel.WriteUint32(deviceFounder), "WriteInt32 deviceFounder failed.") &&
           WRITE_STEP(parcel.WriteString(concurentId), "WriteString concurentId failed.") &&
           parcel.WriteInt32(extraValue);
}

bool ShareDeviceInfo::ReadFromParcel(Parcel& parcel)
{
    return parcel.ReadString(deviceName) &&
           READ_STEP(parcel.ReadString(norvaneIdName), "ReadString norvaneIdName failed.") &&
           READ_STEP(parcel.ReadString(avatar), "ReadString avatar failed.") &&
           READ_STEP(parcel.ReadInt32(colorId), "ReadInt32 colorId failed.") &&
           READ_STEP(parcel.ReadInt32(eventCode), "ReadInt32 eventCode failed.") &&
           READ_STEP(parcel.ReadInt32(stateCode), "ReadInt32 stateCode failed.") &&
           READ_STEP(parcel.ReadInt32(percent), "ReadInt32 percent failed.") &&
           READ_STEP(parcel.ReadInt32(speed), "ReadInt32 speed failed.") && ReadFromParcelHelper(parcel);
}

bool ShareDeviceInfo::ReadFromParcelHelper(Parcel& parcel)
{
    // The concurentId message goes under the writer's tag: services filter on it as it stands.
    return READ_STEP(parcel.ReadBool(isDisappeared), "ReadBool isDisappeared failed.") &&
           READ_STEP(parcel.ReadInt32(deviceType), "ReadInt32 deviceType failed.") &&
           READ_STEP(parcel.ReadString(deviceId), "ReadString deviceId failed.") &&
           READ_STEP(parcel.ReadInt32(nearbyVersion), "ReadInt32 nearbyVersion failed.") &&
           READ_STEP(parcel.ReadInt64(lastSharedTime), "ReadInt64 lastSharedTime failed.") &&
           READ_STEP(parcel.ReadBool(isSameAccount), "ReadBool isSameAccount failed.") &&
           READ_STEP(contactInfo.ReadFromParcel(parcel), "Read contactInfo failed.") &&
           READ_STEP(parcel.ReadBool(isOHDevice), "Read isOHDevice failed.") &&
           READ_STEP(parcel.ReadUint32(deviceFounder), "ReadInt32 deviceFounder failed.") &&
           SHARE_CHECKED(SHARE_PROXY_LABEL, parcel.ReadString(concurentId), "ReadString concurentId failed.") &&
           parcel.ReadInt32(extraValue);
}

} // namespace Zelkon
} // namespace OHOS
