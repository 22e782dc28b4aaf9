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

/*
 * Records with every field set, shared by the unit tests, the benchmarks and the fuzzers' seed corpora. The values
 * are those of the device's recorded parcels.
 */
#ifndef SAMPLE_RECORDS_H
#define SAMPLE_RECORDS_H

#include <string>

#include "share_account_info.h"
#include "share_device_info.h"

namespace OHOS {
namespace Zelkon {

inline ShareDeviceInfo FilledDevice()
{
    ShareDeviceInfo device;
    device.deviceName = "Living room tablet";
    device.norvaneIdName = "ada@example";
    device.avatar = "data:image/png;base64,iVBORw0KGgo=";
    device.colorId = 3;
    device.eventCode = 101;
    device.stateCode = 2;
    device.percent = 57;
    device.speed = 1200;
    device.isDisappeared = true;
    device.deviceType = 17;
    device.deviceId = "9F3C-11";
    device.nearbyVersion = 9;
    device.lastSharedTime = 1763800000123LL;
    device.isSameAccount = true;
    device.contactInfo.contactKind = 1;
    device.contactInfo.contactName = "Ada";
    device.contactInfo.contactPhoto = "photo";
    device.isOHDevice = true;
    device.deviceFounder = 0x80000001u;
    device.concurentId = "c-42";
    device.extraValue = -7;
    return device;
}

// The recorded case itself: the same record with a 2 KiB avatar.
inline ShareDeviceInfo FilledDeviceWithLargeAvatar()
{
    constexpr size_t avatarSize = 2048;
    ShareDeviceInfo device = FilledDevice();
    device.avatar = std::string(avatarSize, 'A');
    return device;
}

// The device's recorded "account_filled" case.
inline ShareAccountInfo FilledAccount()
{
    constexpr size_t avatarSize = 5000;
    ShareAccountInfo account;
    account.norvaneAccountID = "1234567890";
    account.norvaneAccountIDHash = "5FECEB66FFC86F";
    account.status = 1;
    account.callingUid = 20010042;
    account.nickName = "Ada";
    account.avatar = std::string(avatarSize, 'z');
    return account;
}

} // namespace Zelkon
} // namespace OHOS

#endif // SAMPLE_RECORDS_H
