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

#include "record_codec.h"

#include <unistd.h>

#include "unique_fd.h"

namespace OHOS {
namespace Zelkon {
namespace {
// Smallest encodings, to tell a hostile count from one that the remaining data can hold.
constexpr size_t MIN_STRING_BYTES = 4;
constexpr size_t MIN_FD_RECORD_BYTES = 24;
constexpr size_t MIN_SEND_FILE_BYTES = 2 * MIN_STRING_BYTES + sizeof(int64_t);
constexpr size_t MIN_SHARE_ITEM_BYTES = MIN_STRING_BYTES + MIN_FD_RECORD_BYTES;

// A descriptor of a device or of a file that keeps growing would otherwise be read forever.
constexpr uint64_t MAX_FILE_READ = 64 * 1024 * 1024;

// pread leaves the offset that the sender shares with this descriptor where it was.
uint64_t ReadToEnd(int fd)
{
    char buffer[4096];
    uint64_t total = 0;
    while (total < MAX_FILE_READ) {
        const ssize_t count = pread(fd, buffer, sizeof(buffer), static_cast<off_t>(total));
        if (count <= 0) {
            return total;
        }
        total += static_cast<uint64_t>(count);
    }
    return total;
}

bool ReadFile(RequestReader& reader, const char* field, TransferPayload& payload)
{
    UniqueFd fd;
    if (!reader.FileDescriptor(field, fd)) {
        return false;
    }
    const uint64_t size = ReadToEnd(fd.Get());
    reader.Note(std::string(field) + ".readable",
                std::to_string(size) + (size < MAX_FILE_READ ? " bytes" : " bytes, and not read further"));
    ++payload.files;
    payload.bytes += size;
    return true;
}

std::string ListRecord(const char* list, uint32_t index)
{
    return std::string(list) + "[" + std::to_string(index) + "].";
}
} // namespace

// The one field order of a user record, for the reader (Entry = UserEntry) and the writer (const UserEntry).
template <typename Codec, typename Entry>
bool TransferUserEntry(Codec& codec, Entry& user)
{
    return codec.String("deviceName", user.deviceName) && codec.String("norvaneIdName", user.norvaneIdName) &&
           codec.String("avatar", user.avatar) && codec.Int32("colorId", user.colorId) &&
           codec.Int32("eventCode", user.eventCode) && codec.Int32("stateCode", user.stateCode) &&
           codec.Int32("percent", user.percent) && codec.Int32("speed", user.speed) &&
           codec.Bool("isDisappeared", user.isDisappeared) && codec.Int32("deviceType", user.deviceType) &&
           codec.String("deviceId", user.deviceId) && codec.Int32("nearbyVersion", user.nearbyVersion) &&
           codec.Int64("lastSharedTime", user.lastSharedTime) && codec.Bool("isSameAccount", user.isSameAccount) &&
           codec.Int32("contact.kind", user.contactInfo.contactKind) &&
           codec.String("contact.name", user.contactInfo.contactName) &&
           codec.String("contact.photo", user.contactInfo.contactPhoto) && codec.Bool("isOHDevice", user.isOHDevice) &&
           codec.Uint32("deviceFounder", user.deviceFounder) && codec.String("concurentId", user.concurentId) &&
           codec.Int32("extraValue", user.extraValue);
}

bool ReadUserEntry(RequestReader& reader, UserEntry& user)
{
    return TransferUserEntry(reader, user);
}

bool WriteUserEntry(ReplyWriter& writer, const UserEntry& user)
{
    writer.MakeRoom(user.avatar.size() + user.contactInfo.contactPhoto.size());
    return TransferUserEntry(writer, user);
}

bool WritePermanentEntry(ReplyWriter& writer, const PermanentEntry& entry)
{
    return writer.Int32("id", entry.id) && writer.String("deviceName", entry.deviceName) &&
           writer.Int32("deviceType", entry.deviceType) && writer.String("deviceId", entry.deviceId) &&
           writer.Int64("timestamp", entry.timestamp);
}

bool WriteAccountEntry(ReplyWriter& writer, const AccountEntry& account)
{
    return writer.String("norvaneAccountID", account.norvaneAccountID) &&
           writer.String("norvaneAccountIDHash", account.norvaneAccountIDHash) &&
           writer.Int32("status", account.status) && writer.Int32("callingUid", account.callingUid) &&
           writer.String("nickName", account.nickName) && writer.String("avatar", account.avatar);
}

bool ReadFoundDevice(RequestReader& reader, FoundDevice& device)
{
    int32_t present = 0;
    if (!reader.Int32("device.present", present)) {
        return false;
    }
    if (present == 0) {
        reader.Note("device", "<absent>");
        return true;
    }
    return reader.String("device.deviceId", device.deviceId) && reader.String("device.deviceName", device.deviceName) &&
           reader.Int32("device.nearbyVersion", device.nearbyVersion) && reader.Int32("device.ohFlag", device.ohFlag);
}

bool ReadSendBean(RequestReader& reader, TransferPayload& payload)
{
    std::string previewText;
    uint32_t count = 0;
    if (!reader.String("sendBean.previewText", previewText) ||
        !reader.Count("sendBean.files", count, MIN_SEND_FILE_BYTES, MAX_PAYLOAD_ITEMS)) {
        return false;
    }
    for (uint32_t i = 0; i < count; ++i) {
        std::string uri;
        std::string name;
        int64_t size = 0;
        reader.SetRecordPrefix(ListRecord("sendBean.files", i));
        if (!reader.String("uri", uri) || !reader.String("name", name) || !reader.Int64("size", size)) {
            return false;
        }
        ++payload.files;
        payload.bytes += static_cast<uint64_t>(size < 0 ? 0 : size);
    }
    reader.SetRecordPrefix("");
    return true;
}

bool ReadDataBean(RequestReader& reader, TransferPayload& payload)
{
    std::string fileName;
    int64_t fileSize = 0;
    return reader.String("dataBean.fileName", fileName) && reader.Int64("dataBean.fileSize", fileSize) &&
           ReadFile(reader, "dataBean.fd", payload);
}

bool ReadBytesInfo(RequestReader& reader, TransferPayload& payload)
{
    std::string mimeType;
    std::string bytes;
    if (!reader.String("bytesInfo.mimeType", mimeType) || !reader.String("bytesInfo.bytes", bytes)) {
        return false;
    }
    payload.bytes += bytes.size();
    return true;
}

bool ReadCommonShareObject(RequestReader& reader, std::string& networkId, TransferPayload& payload)
{
    int32_t timeout = 0;
    int32_t type = 0;
    bool resumable = false;
    std::string content;
    uint32_t count = 0;
    if (!reader.String("share.networkId", networkId) || !reader.Int32("share.timeout", timeout) ||
        !reader.Int32("share.type", type) || !reader.Bool("share.resumable", resumable) ||
        !reader.BigString("share.content", content, MAX_BIG_STRING_SIZE) ||
        !reader.Count("share.items", count, MIN_SHARE_ITEM_BYTES, MAX_PAYLOAD_ITEMS)) {
        return false;
    }
    payload.bytes += content.size();
    for (uint32_t i = 0; i < count; ++i) {
        std::string uri;
        reader.SetRecordPrefix(ListRecord("share.items", i));
        if (!reader.String("uri", uri) || !ReadFile(reader, "fd", payload)) {
            return false;
        }
    }
    reader.SetRecordPrefix("");
    return true;
}

} // namespace Zelkon
} // namespace OHOS
