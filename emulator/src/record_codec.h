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
 * Reads and writes the records of both services field by field, in the wire order that the services define.
 * Payload records (send, data, bytes and share objects, found devices) use the layouts of the host build.
 */
#ifndef RECORD_CODEC_H
#define RECORD_CODEC_H

#include "emulated_records.h"
#include "reply_writer.h"
#include "request_reader.h"

namespace OHOS {
namespace Zelkon {

inline constexpr uint32_t MAX_PAYLOAD_ITEMS = 1000;
inline constexpr uint32_t MAX_BIG_STRING_SIZE = 5 * 1024 * 1024;

bool ReadUserEntry(RequestReader& reader, UserEntry& user);
bool WriteUserEntry(ReplyWriter& writer, const UserEntry& user);
bool WritePermanentEntry(ReplyWriter& writer, const PermanentEntry& entry);
bool WriteAccountEntry(ReplyWriter& writer, const AccountEntry& account);
// A presence word, then the device; an absent device is malformed.
bool ReadFoundDevice(RequestReader& reader, FoundDevice& device);
bool ReadSendBean(RequestReader& reader, TransferPayload& payload);
// The descriptor is read to its end, so the payload holds the file's real size.
bool ReadDataBean(RequestReader& reader, TransferPayload& payload);
bool ReadBytesInfo(RequestReader& reader, TransferPayload& payload);
// The readers of the beans that a transfer request carries, for the handlers that differ in their bean alone.
using BeanReader = bool (*)(RequestReader& reader, TransferPayload& payload);
bool ReadCommonShareObject(RequestReader& reader, std::string& networkId, TransferPayload& payload);

} // namespace Zelkon
} // namespace OHOS

#endif // RECORD_CODEC_H
