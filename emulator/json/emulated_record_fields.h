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
 * device, an account) are written for any record with the same members: sharectl's own records of the library take
 * them, and the emulator stays free of the library's types.
 */
#ifndef EMULATED_RECORD_FIELDS_H
#define EMULATED_RECORD_FIELDS_H

#include <type_traits>
#include <utility>

#include "emulated_records.h"
#include "emulated_world.h"

namespace OHOS {
namespace Zelkon {

// The emulated record whose field list a record takes: its own type's by default. Another side declares an overload
// for each of its records that takes one ("ContactEntry FieldListOf(const ContactInfo&);").
template <typename Record>
Record FieldListOf(const Record&);

template <typename Record, typename Emulated>
using IfFieldListOf = std::enable_if_t<std::is_same_v<decltype(FieldListOf(std::declval<const Record&>())), Emulated>>;

template <typename Visitor, typename Contact>
IfFieldListOf<Contact, ContactEntry> VisitFields(Visitor& visitor, Contact& contact)
{
    visitor.Field("contactKind", contact.contactKind);
    visitor.Field("contactName", contact.contactName);
    visitor.Field("contactPhoto", contact.contactPhoto);
}

template <typename Visitor, typename User>
IfFieldListOf<User, UserEntry> VisitFields(Visitor& visitor, User& user)
{
    visitor.Field("deviceName", user.deviceName);
    visitor.Field("norvaneIdName", user.norvaneIdName);
    visitor.Field("avatar", user.avatar);
    visitor.Field("colorId", user.colorId);
    visitor.Field("eventCode", user.eventCode);
    visitor.Field("stateCode", user.stateCode);
    visitor.Field("percent", user.percent);
    visitor.Field("speed", user.speed);
    visitor.Field("isDisappeared", user.isDisappeared);
    visitor.Field("deviceType", user.deviceType);
    visitor.Field("deviceId", user.deviceId);
    visitor.Field("nearbyVersion", user.nearbyVersion);
    visitor.Field("lastSharedTime", user.lastSharedTime);
    visitor.Field("isSameAccount", user.isSameAccount);
    visitor.Field("contactInfo", user.contactInfo);
    visitor.Field("isOHDevice", user.isOHDevice);
    visitor.Field("deviceFounder", user.deviceFounder);
    visitor.Field("concurentId", user.concurentId);
    visitor.Field("extraValue", user.extraValue);
}

template <typename Visitor, typename Permanent>
IfFieldListOf<Permanent, PermanentEntry> VisitFields(Visitor& visitor, Permanent& device)
{
    visitor.Field("id", device.id);
    visitor.Field("deviceName", device.deviceName);
    visitor.Field("deviceType", device.deviceType);
    visitor.Field("deviceId", device.deviceId);
    visitor.Field("timestamp", device.timestamp);
}

template <typename Visitor, typename Account>
IfFieldListOf<Account, AccountEntry> VisitFields(Visitor& visitor, Account& account)
{
    visitor.Field("norvaneAccountID", account.norvaneAccountID);
    visitor.Field("norvaneAccountIDHash", account.norvaneAccountIDHash);
    visitor.Field("status", account.status);
    visitor.Field("callingUid", account.callingUid);
    visitor.Field("nickName", account.nickName);
    visitor.Field("avatar", account.avatar);
}

template <typename Visitor>
void VisitFields(Visitor& visitor, SharingSwitch& sharingSwitch)
{
    visitor.Field("enabled", sharingSwitch.enabled);
    visitor.Field("state", sharingSwitch.state);
}

template <typename Visitor>
void VisitFields(Visitor& visitor, FoundDevice& device)
{
    visitor.Field("deviceId", device.deviceId);
    visitor.Field("deviceName", device.deviceName);
    visitor.Field("nearbyVersion", device.nearbyVersion);
    visitor.Field("ohFlag", device.ohFlag);
}

template <typename Visitor>
void VisitFields(Visitor& visitor, TransferPayload& payload)
{
    visitor.Field("files", payload.files);
    visitor.Field("bytes", payload.bytes);
}

template <typename Visitor>
void VisitFields(Visitor& visitor, EmulatedWorld& world)
{
    visitor.Field("users", world.users);
    visitor.Field("permanentDevices", world.permanentDevices);
    visitor.Field("account", world.account);
    visitor.Field("sharingSwitch", world.sharingSwitch);
    visitor.Field("previewData", world.previewData);
}

} // namespace Zelkon
} // namespace OHOS

#endif // EMULATED_RECORD_FIELDS_H
