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

#include "message_parcel.h"

#include <cstdint>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "flat_obj.h"
#include "flat_object.h"
#include "ipc_log.h"
#include "ipc_types.h"
#include "iremote_object.h"
#include "write_all.h"

namespace OHOS {
namespace {
constexpr int32_t STRICT_MODE_POLICY = 0x100;
constexpr int32_t WORK_SOURCE = 0;
// A block that can neither change size nor be written again: what its receiver maps stays as it was checked.
constexpr int SENT_BLOCK_SEALS = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL;
// What a received block must carry at least: shrunk, it would fault its reader; rewritten, it would change under it.
constexpr int REQUIRED_BLOCK_SEALS = F_SEAL_SHRINK | F_SEAL_WRITE;

uint32_t RecordTypeAt(const uint8_t* data, size_t offset)
{
    uint32_t type = 0;
    std::memcpy(&type, data + offset, sizeof(type));
    return type;
}
} // namespace

MessageParcel::MessageParcel() = default;

MessageParcel::MessageParcel(Allocator* allocator) : Parcel(allocator) {}

MessageParcel::~MessageParcel()
{
    for (const auto& [offset, carried] : carried_) {
        if (carried.kind == CarriedKind::FD) {
            close(carried.fd);
        }
    }
    for (const auto& [address, size] : mappings_) {
        munmap(address, size);
    }
}

bool MessageParcel::WriteRecord(uint32_t type, uint64_t value, const Carried& carried)
{
    const size_t start = GetWritePosition();
    if (!EnsureObjectsCapacity()) {
        return false;
    }
    if (!(WriteUint32(type) && WriteUint32(FlatObject::FLAGS) && WriteUint64(value) && WriteUint64(0))) {
        RewindWrite(start);
        return false;
    }
    Carry(start, carried);
    // Refused only where an offset is already recorded (after a failed marshalling), or past a data size set
    // smaller: the record is written all the same, as on the platform.
    (void)WriteObjectOffset(start);
    return true;
}

void MessageParcel::Carry(size_t offset, Carried carried)
{
    auto [it, inserted] = carried_.try_emplace(offset, carried);
    // A record written again where a rewind dropped one: the descriptor of the dropped one is this parcel's to close.
    if (!inserted) {
        if (it->second.kind == CarriedKind::FD) {
            close(it->second.fd);
        }
        it->second = std::move(carried);
    }
}

const MessageParcel::Carried* MessageParcel::RecordAtReadPosition()
{
    if (!CheckOffsets()) {
        return nullptr;
    }
    const size_t position = GetReadPosition();
    auto it = carried_.find(position);
    if (it == carried_.end()) {
        return nullptr;
    }
    // A failed marshalling may leave an offset behind whose bytes were written over; the record must still be there.
    const uint32_t type = RecordTypeAt(reinterpret_cast<const uint8_t*>(GetData()), position);
    const bool objectRecord = type == FlatObject::TYPE_BINDER || type == FlatObject::TYPE_HANDLE;
    if (it->second.kind == CarriedKind::OBJECT ? !objectRecord : type != FlatObject::TYPE_FD) {
        return nullptr;
    }
    // A read of a record takes it, whatever it holds: a record of the other kind is passed over.
    SkipBytes(FlatObject::SIZE);
    return &it->second;
}

bool MessageParcel::WriteRemoteObject(const sptr<IRemoteObject>& object)
{
    if (object == nullptr) {
        return false;
    }
    const uint32_t type = object->IsProxyObject() ? FlatObject::TYPE_HANDLE : FlatObject::TYPE_BINDER;
    // On a device the 16 value bytes name the object to the driver (its counter and address, or its handle). Only the
    // driver reads them, never a caller; the host keeps the object in the parcel's own table and writes zeros.
    return WriteRecord(type, 0, Carried{CarriedKind::OBJECT, object, INVALID_FD});
}

sptr<IRemoteObject> MessageParcel::ReadRemoteObject()
{
    const Carried* carried = RecordAtReadPosition();
    return carried != nullptr && carried->kind == CarriedKind::OBJECT ? carried->object : nullptr;
}

bool MessageParcel::WriteFileDescriptor(int fd)
{
    if (fd < 0) {
        return false;
    }
    const int copy = dup(fd);
    if (copy < 0) {
        IPC_HOST_LOGE("dup of fd %{public}d failed, errno %{public}d", fd, errno);
        return false;
    }
    if (!WriteRecord(FlatObject::TYPE_FD, static_cast<uint64_t>(copy), Carried{CarriedKind::FD, nullptr, copy})) {
        close(copy);
        return false;
    }
    return true;
}

int MessageParcel::ReadFileDescriptor()
{
    const Carried* carried = RecordAtReadPosition();
    if (carried == nullptr || carried->kind != CarriedKind::FD) {
        return INVALID_FD;
    }
    const int copy = dup(carried->fd);
    if (copy < 0) {
        IPC_HOST_LOGE("dup of carried fd failed, errno %{public}d", errno);
    }
    return copy;
}

bool MessageParcel::ContainFileDescriptors() const
{
    const auto* offsets = reinterpret_cast<const binder_size_t*>(static_cast<uintptr_t>(GetObjectOffsets()));
    for (size_t i = 0; i < GetOffsetsSize(); ++i) {
        auto it = carried_.find(offsets[i]);
        if (it != carried_.end() && it->second.kind == CarriedKind::FD) {
            return true;
        }
    }
    return false;
}

bool MessageParcel::WriteInterfaceToken(std::u16string name)
{
    const size_t start = GetWritePosition();
    if (!WriteInt32(STRICT_MODE_POLICY)) {
        return false;
    }
    if (!WriteInt32(WORK_SOURCE)) {
        RewindWrite(start);
        return false;
    }
    const bool written = WriteString16(name);
    interfaceToken_ = std::move(name);
    return written;
}

std::u16string MessageParcel::ReadInterfaceToken()
{
    ReadInt32();
    ReadInt32();
    interfaceToken_ = ReadString16();
    return interfaceToken_;
}

std::u16string MessageParcel::GetInterfaceToken() const
{
    return interfaceToken_;
}

bool MessageParcel::WriteRawData(const void* data, size_t size)
{
    if (data == nullptr || size == 0 || size > MAX_RAW_DATA_SIZE) {
        IPC_HOST_LOGE("refused raw data of %{public}zu bytes", size);
        return false;
    }
    if (sharedBlockWritten_) {
        IPC_HOST_LOGE("a shared raw data block was already written to this parcel");
        return false;
    }
    if (!WriteInt32(static_cast<int32_t>(size))) {
        return false;
    }
    rawDataSize_ = size;
    if (size <= MAX_INLINE_RAW_DATA_SIZE) {
        return WriteUnpadBuffer(data, size);
    }
    return WriteSharedMemoryBlock(data, size);
}

bool MessageParcel::WriteSharedMemoryBlock(const void* data, size_t size)
{
    const int fd = memfd_create("RawData", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (fd < 0) {
        IPC_HOST_LOGE("memfd_create failed, errno %{public}d", errno);
        return false;
    }
    if (ftruncate(fd, static_cast<off_t>(size)) != 0) {
        IPC_HOST_LOGE("ftruncate to %{public}zu failed, errno %{public}d", size, errno);
        close(fd);
        return false;
    }
    // Written through the descriptor: a writable mapping would have the kernel zero, map and unmap every page
    // on top of the one copy.
    const auto* bytes = static_cast<const uint8_t*>(data);
    const auto writeFrom = [fd, bytes, size](size_t written) {
        return pwrite(fd, bytes + written, size - written, static_cast<off_t>(written));
    };
    if (!WriteAll(size, writeFrom)) {
        IPC_HOST_LOGE("writing %{public}zu bytes of raw data failed, errno %{public}d", size, errno);
        close(fd);
        return false;
    }
    if (fcntl(fd, F_ADD_SEALS, SENT_BLOCK_SEALS) != 0) {
        IPC_HOST_LOGE("sealing %{public}zu bytes of raw data failed, errno %{public}d", size, errno);
        close(fd);
        return false;
    }
    if (!WriteRecord(FlatObject::TYPE_FD, static_cast<uint64_t>(fd), Carried{CarriedKind::FD, nullptr, fd})) {
        close(fd);
        return false;
    }
    sharedBlockWritten_ = true;
    return true;
}

const void* MessageParcel::ReadRawData(size_t size)
{
    if (size == 0) {
        return nullptr;
    }
    const int32_t writtenSize = ReadInt32();
    if (writtenSize < 0 || static_cast<size_t>(writtenSize) != size) {
        IPC_HOST_LOGE("raw data size %{public}d does not match the expected %{public}zu", writtenSize, size);
        return nullptr;
    }
    if (size <= MAX_INLINE_RAW_DATA_SIZE) {
        rawDataSize_ = size;
        return ReadUnpadBuffer(size);
    }
    return MapSharedMemoryBlock(size);
}

const void* MessageParcel::MapSharedMemoryBlock(size_t size)
{
    const Carried* carried = RecordAtReadPosition();
    if (carried == nullptr || carried->kind != CarriedKind::FD) {
        IPC_HOST_LOGE("no shared memory block at the read position");
        return nullptr;
    }
    // Its sender may still hold it: only seals make the checks below hold for as long as the block is read.
    const int seals = fcntl(carried->fd, F_GET_SEALS);
    if (seals < 0 || (seals & REQUIRED_BLOCK_SEALS) != REQUIRED_BLOCK_SEALS) {
        IPC_HOST_LOGE("refused a shared memory block that can change (seals %{public}d)", seals);
        return nullptr;
    }
    struct stat status {};
    if (fstat(carried->fd, &status) != 0 || status.st_size < 0 || static_cast<size_t>(status.st_size) < size) {
        IPC_HOST_LOGE("shared memory block is smaller than %{public}zu bytes", size);
        return nullptr;
    }
    void* mapping = mmap(nullptr, size, PROT_READ, MAP_SHARED, carried->fd, 0);
    if (mapping == MAP_FAILED) {
        IPC_HOST_LOGE("mmap of %{public}zu bytes failed, errno %{public}d", size, errno);
        return nullptr;
    }
    mappings_.emplace_back(mapping, size);
    rawData_ = mapping;
    rawDataSize_ = size;
    return mapping;
}

const void* MessageParcel::GetRawData() const
{
    return rawData_;
}

size_t MessageParcel::GetRawDataSize() const
{
    return rawDataSize_;
}

size_t MessageParcel::GetRawDataCapacity() const
{
    return MAX_RAW_DATA_SIZE;
}

pid_t MessageParcel::GetSenderPid() const
{
    return senderPid_ > 0 ? senderPid_ : getpid();
}

void MessageParcel::WriteNoException()
{
    WriteInt32(0);
}

int32_t MessageParcel::ReadException()
{
    const int32_t code = ReadInt32();
    // A failure comes with its message.
    if (code != 0) {
        ReadString16();
    }
    return code;
}

} // namespace OHOS
