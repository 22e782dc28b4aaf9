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
 * The emulator's own view of the records that cross the service boundary, kept apart from the library's records
 * so that a layout mistake on either side shows up as a failed exchange.
 */
#ifndef EMULATED_RECORDS_H
#define EMULATED_RECORDS_H

#include <cstdint>
#include <string>

namespace OHOS {
namespace Zelkon {

struct ContactEntry {
    int32_t contactKind = 0;
    std::string contactName;
    std::string contactPhoto;
};

// A peer as the share manager service shows it to the user.
struct UserEntry {
    std::string deviceName;
    std::string norvaneIdName;
    std::string avatar;
    int32_t colorId = 0;
    int32_t eventCode = 0;
    int32_t stateCode = 0;
    int32_t percent = 0;
    int32_t speed = 0;
    bool isDisappeared = false;
    int32_t deviceType = 0;
    std::string deviceId;
    int32_t nearbyVersion = 0;
    int64_t lastSharedTime = 0;
    bool isSameAccount = false;
    ContactEntry contactInfo;
    bool isOHDevice = false;
    uint32_t deviceFounder = 0;
    std::string concurentId;
    int32_t extraValue = 0;
};

struct PermanentEntry {
    int32_t id = 0;
    std::string deviceName;
    int32_t deviceType = 0;
    std::string deviceId;
    int64_t timestamp = 0;
};

// The switch of the share manager service: on or off, and the state value it was last given.
struct SharingSwitch {
    bool enabled = true;
    int32_t state = 1;
};

struct AccountEntry {
    std::string norvaneAccountID;
    std::string norvaneAccountIDHash;
    int32_t status = 0;
    int32_t callingUid = -1;
    std::string nickName;
    std::string avatar;
};

// A device reported by collaborative discovery.
struct FoundDevice {
    std::string deviceId;
    std::string deviceName;
    int32_t nearbyVersion = 0;
    int32_t ohFlag = 0;
};

// What a transfer carried, as far as the service looked at it.
struct TransferPayload {
    uint32_t files = 0;
    uint64_t bytes = 0;
};

} // namespace Zelkon
} // namespace OHOS

#endif // EMULATED_RECORDS_H
