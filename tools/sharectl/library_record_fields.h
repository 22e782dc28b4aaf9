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
 * The JSON field lists of the library's records, as an application fills them: the arguments of `sharectl call`
 * are read with them and its results written with them. Keys are the records' own member names; the records that
 * the emulator holds too take the emulator's lists (emulated_record_fields.h). The callback of a TransmitParam is
 * not among them: sharectl creates it.
 */
#ifndef LIBRARY_RECORD_FIELDS_H
#define LIBRARY_RECORD_FIELDS_H

#include "emulated_record_fields.h"
#include "json_field_list.h"
#include "share_client.h"
#include "share_manager_client.h"

namespace OHOS {
namespace Zelkon {

// The records that the emulator holds too take the emulator's field lists.
ContactEntry FieldListOf(const ContactInfo&);
UserEntry FieldListOf(const ShareDeviceInfo&);
PermanentEntry FieldListOf(const PermanentDeviceInfo&);
AccountEntry FieldListOf(const ShareAccountInfo&);

JSON_FIELD_LIST(FileItem, uri, name, size)

JSON_FIELD_LIST(SendBean, previewText, files)

JSON_FIELD_LIST(DataBean, fileName, fileSize, fd)

JSON_FIELD_LIST(BytesInfo, mimeType, bytes)

JSON_FIELD_LIST(ShareItem, uri, fd)

JSON_FIELD_LIST(CommonShareObject, type, timeout, items, content, networkId, resumable)

JSON_FIELD_LIST(ShareDevice, deviceId, deviceName, nbVersion_, ohFlag_)

JSON_FIELD_LIST(TransmitParam, deviceId, timeout, transmitEventType)

} // namespace Zelkon
} // namespace OHOS

#endif // LIBRARY_RECORD_FIELDS_H
