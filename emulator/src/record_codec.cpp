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

// pread leaves the offset that the sender shares with this descriptor where it was.
uint64_t ReadToEnd(int fd)
{
    char buffer[4096];
    uint64_t total = 0;
    for (;;) {
        const ssize_t count = pread(fd, buffer, sizeof(buffer), static_cast<off_t>(total));
        if (count <= 0) {
            return total;
        }
        total += static_cast<uint64_t>(count);
    }
}

bool ReadFile(RequestReader& reader, const char* field, TransferPayload& payload)
{
    UniqueFd fd;
    if (!reader.FileDescriptor(field, fd)) {
        return false;
    }
    const uint64_t size = ReadToEnd(fd.Get());
    reader.Note(std::string(field) + ".readable", std::to_string(size) + " bytes");
    ++payload.files;
    payload.bytes += size;
    return true;
}
} // namespace

bool ReadUserEntry(RequestReader& reader, UserEntry& user)
{
    return reader.String("deviceName", user.deviceName) && reader.String("norvaneIdName", user.norvaneIdName) &&
           reader.String("avatar", user.avatar) && reader.Int32("colorId", user.colorId) &&
           reader.Int32("eventCode", user.eventCode) && reader.Int32("stateCode", user.stateCode) &&
           reader.Int32("percent", user.percent) && reader.Int32("speed", user.speed) &&
           reader.Bool("isDisappeared", user.isDisappeared) && reader.Int32("deviceType", user.deviceType) &&
           reader.String("deviceId", user.deviceId) && reader.Int32("nearbyVersion", user.nearbyVersion) &&
           reader.Int64("lastSharedTime", user.lastSharedTime) && reader.Bool("isSameAccount", user.isSameAccount) &&
           reader.Int32("contact.kind", user.contact.kind) && reader.String("contact.name", user.contact.name) &&
           reader.String("contact.photo", user.contact.photo) && reader.Bool("isOHDevice", user.isOHDevice) &&
           reader.Uint32("deviceFounder", user.deviceFounder) && reader.String("concurentId", user.concurentId) &&
           reader.Int32("extraValue", user.extraValue);
}

bool WriteUserEntry(ReplyWriter& writer, const UserEntry& user)
{
    writer.MakeRoom(user.avatar.size() + user.contact.photo.size());
    return writer.String("deviceName", user.deviceName) && writer.String("norvaneIdName", user.norvaneIdName) &&
           writer.String("avatar", user.avatar) && writer.Int32("colorId", user.colorId) &&
           writer.Int32("eventCode", user.eventCode) && writer.Int32("stateCode", user.stateCode) &&
           writer.Int32("percent", user.percent) && writer.Int32("speed", user.speed) &&
           writer.Bool("isDisappeared", user.isDisappeared) && writer.Int32("deviceType", user.deviceType) &&
           writer.String("deviceId", user.deviceId) && writer.Int32("nearbyVersion", user.nearbyVersion) &&
           writer.Int64("lastSharedTime", user.lastSharedTime) && writer.Bool("isSameAccount", user.isSameAccount) &&
           writer.Int32("contact.kind", user.contact.kind) && writer.String("contact.name", user.contact.name) &&
           writer.String("contact.photo", user.contact.photo) && writer.Bool("isOHDevice", user.isOHDevice) &&
           writer.Uint32("deviceFounder", user.deviceFounder) && writer.String("concurentId", user.concurentId) &&
           writer.Int32("extraValue", user.extraValue);
}

bool WritePermanentEntry(ReplyWriter& writer, const PermanentEntry& entry)
{
    return writer.Int32("id", entry.id) && writer.String("deviceName", entry.deviceName) &&
           writer.Int32("deviceType", entry.deviceType) && writer.String("deviceId", entry.deviceId) &&
           writer.Int64("timestamp", entry.timestamp);
}

bool WriteAccountEntry(ReplyWriter& writer, const AccountEntry& account)
{
    return writer.String("norvaneAccountID", account.accountId) &&
           writer.String("norvaneAccountIDHash", account.accountIdHash) && writer.Int32("status", account.status) &&
           writer.Int32("callingUid", account.callingUid) && writer.String("nickName", account.nickName) &&
           writer.String("avatar", account.avatar);
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
        if (!reader.String("file.uri", uri) || !reader.String("file.name", name) || !reader.Int64("file.size", size)) {
            return false;
        }
        ++payload.files;
        payload.bytes += static_cast<uint64_t>(size < 0 ? 0 : size);
    }
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
        if (!reader.String("item.uri", uri) || !ReadFile(reader, "item.fd", payload)) {
            return false;
        }
    }
    return true;
}

} // namespace Zelkon
} // namespace OHOS
