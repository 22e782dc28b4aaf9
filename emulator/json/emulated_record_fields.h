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
 * The JSON field lists of the emulator's records, for the world file and the state dump. Keys are the field names
 * of the records as the services' interfaces name them, so that a user in a world file reads like the device
 * record an application passes. The lists of the records that the library holds too (a contact, a user, a permanent
 * device, an account) serve any record with the same members (see FieldListOf): sharectl's own records of the
 * library take them, and the emulator stays free of the library's types.
 */
#ifndef EMULATED_RECORD_FIELDS_H
#define EMULATED_RECORD_FIELDS_H

#include "emulated_records.h"
#include "emulated_world.h"
#include "json_field_list.h"

namespace OHOS {
namespace Zelkon {

JSON_FIELD_LIST(ContactEntry, contactKind, contactName, contactPhoto)

JSON_FIELD_LIST(UserEntry, deviceName, norvaneIdName, avatar, colorId, eventCode, stateCode, percent, speed,
                isDisappeared, deviceType, deviceId, nearbyVersion, lastSharedTime, isSameAccount, contactInfo,
                isOHDevice, deviceFounder, concurentId, extraValue)

JSON_FIELD_LIST(PermanentEntry, id, deviceName, deviceType, deviceId, timestamp)

JSON_FIELD_LIST(AccountEntry, norvaneAccountID, norvaneAccountIDHash, status, callingUid, nickName, avatar)

JSON_FIELD_LIST(SharingSwitch, enabled, state)

JSON_FIELD_LIST(FoundDevice, deviceId, deviceName, nearbyVersion, ohFlag)

JSON_FIELD_LIST(TransferPayload, files, bytes)

JSON_FIELD_LIST(EmulatedWorld, users, permanentDevices, account, sharingSwitch, previewData)

} // namespace Zelkon
} // namespace OHOS

#endif // EMULATED_RECORD_FIELDS_H
