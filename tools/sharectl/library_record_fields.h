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
#include "share_client.h"
#include "share_manager_client.h"

namespace OHOS {
namespace Zelkon {

// The records that the emulator holds too take the emulator's field lists.
ContactEntry FieldListOf(const ContactInfo&);
UserEntry FieldListOf(const ShareDeviceInfo&);
PermanentEntry FieldListOf(const PermanentDeviceInfo&);
AccountEntry FieldListOf(const ShareAccountInfo&);

template <typename Visitor>
void VisitFields(Visitor& visitor, FileItem& file)
{
    visitor.Field("uri", file.uri);
    visitor.Field("name", file.name);
    visitor.Field("size", file.size);
}

template <typename Visitor>
void VisitFields(Visitor& visitor, SendBean& sendBean)
{
    visitor.Field("previewText", sendBean.previewText);
    visitor.Field("files", sendBean.files);
}

template <typename Visitor>
void VisitFields(Visitor& visitor, DataBean& dataBean)
{
    visitor.Field("fileName", dataBean.fileName);
    visitor.Field("fileSize", dataBean.fileSize);
    visitor.Field("fd", dataBean.fd);
}

template <typename Visitor>
void VisitFields(Visitor& visitor, BytesInfo& bytesInfo)
{
    visitor.Field("mimeType", bytesInfo.mimeType);
    visitor.Field("bytes", bytesInfo.bytes);
}

template <typename Visitor>
void VisitFields(Visitor& visitor, ShareItem& item)
{
    visitor.Field("uri", item.uri);
    visitor.Field("fd", item.fd);
}

template <typename Visitor>
void VisitFields(Visitor& visitor, CommonShareObject& share)
{
    visitor.Field("type", share.type);
    visitor.Field("timeout", share.timeout);
    visitor.Field("items", share.items);
    visitor.Field("content", share.content);
    visitor.Field("networkId", share.networkId);
    visitor.Field("resumable", share.resumable);
}

template <typename Visitor>
void VisitFields(Visitor& visitor, ShareDevice& device)
{
    visitor.Field("deviceId", device.deviceId);
    visitor.Field("deviceName", device.deviceName);
    visitor.Field("nbVersion_", device.nbVersion_);
    visitor.Field("ohFlag_", device.ohFlag_);
}

template <typename Visitor>
void VisitFields(Visitor& visitor, TransmitParam& param)
{
    visitor.Field("deviceId", param.deviceId);
    visitor.Field("timeout", param.timeout);
    visitor.Field("transmitEventType", param.transmitEventType);
}

} // namespace Zelkon
} // namespace OHOS

#endif // LIBRARY_RECORD_FIELDS_H
