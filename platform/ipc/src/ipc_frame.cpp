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

#include "ipc_frame.h"

#include <cstring>
#include <set>

#include "flat_object.h"

namespace OHOS {
namespace {
constexpr uint32_t MAGIC = 0x46435049; // "IPCF"
constexpr uint16_t VERSION = 2;
constexpr size_t ENTRY_FIXED_SIZE = 24;

size_t Pad4(size_t size)
{
    return (size + 3) & ~size_t{3};
}

constexpr size_t MAX_ENTRY_SIZE = ENTRY_FIXED_SIZE + ((IpcFrame::MAX_DESCRIPTOR_UNITS * 2 + 3) & ~size_t{3}) +
                                  ((IpcFrame::MAX_ADDRESS_SIZE + 3) & ~size_t{3});

// Header fields, in wire order.
struct Header {
    uint32_t magic;
    uint16_t version;
    uint16_t kind;
    uint32_t dataSize;
    uint32_t tableSize;
    uint32_t objectCount;
    uint32_t fdCount;
    uint64_t handle;
    uint32_t code;
    uint32_t flags;
    int32_t status;
    int32_t pid;
    uint64_t transaction;
};
static_assert(sizeof(Header) == IpcFrame::HEADER_SIZE, "the header has no padding");

class Writer {
public:
    explicit Writer(std::vector<uint8_t>& bytes) : bytes_(bytes) {}
    template <typename T>
    void Put(const T& value)
    {
        Append(&value, sizeof(value));
    }
    void Append(const void* data, size_t size)
    {
        const auto* begin = static_cast<const uint8_t*>(data);
        bytes_.insert(bytes_.end(), begin, begin + size);
    }
    void PutPadded(const void* data, size_t size)
    {
        Append(data, size);
        bytes_.resize(bytes_.size() + Pad4(size) - size, 0);
    }

private:
    std::vector<uint8_t>& bytes_;
};

// Reads the object table; every read is checked against what is left.
class TableReader {
public:
    TableReader(const uint8_t* data, size_t size) : data_(data), left_(size) {}
    template <typename T>
    bool Take(T& value)
    {
        if (left_ < sizeof(T)) {
            return false;
        }
        std::memcpy(&value, data_, sizeof(T));
        Skip(sizeof(T));
        return true;
    }
    // The bytes of a padded field, whose padding must be zero so that every frame has one encoding.
    const uint8_t* TakePadded(size_t size)
    {
        const size_t padded = Pad4(size);
        if (left_ < padded) {
            return nullptr;
        }
        const uint8_t* start = data_;
        for (size_t i = size; i < padded; ++i) {
            if (start[i] != 0) {
                return nullptr;
            }
        }
        Skip(padded);
        return start;
    }
    size_t Left() const { return left_; }

private:
    void Skip(size_t size)
    {
        data_ += size;
        left_ -= size;
    }

    const uint8_t* data_;
    size_t left_;
};

bool KnownKind(uint16_t kind)
{
    return kind >= static_cast<uint16_t>(IpcFrame::Kind::SESSION_HELLO) &&
           kind <= static_cast<uint16_t>(IpcFrame::Kind::GRANT);
}

bool CarriesObjects(IpcFrame::Kind kind)
{
    return kind == IpcFrame::Kind::TRANSACTION || kind == IpcFrame::Kind::REPLY;
}

const char* CheckHeader(const Header& header)
{
    if (header.magic != MAGIC || header.version != VERSION) {
        return "bad magic or version";
    }
    if (!KnownKind(header.kind)) {
        return "unknown kind";
    }
    if (header.dataSize > IpcFrame::MAX_DATA_SIZE) {
        return "data beyond the bound";
    }
    if (header.objectCount > header.dataSize / FlatObject::SIZE) {
        return "more objects than the data can hold";
    }
    if (header.tableSize < header.objectCount * ENTRY_FIXED_SIZE ||
        header.tableSize > header.objectCount * MAX_ENTRY_SIZE) {
        return "object table size does not fit its entries";
    }
    if (header.fdCount > IpcFrame::MAX_FDS) {
        return "too many descriptors";
    }
    const auto kind = static_cast<IpcFrame::Kind>(header.kind);
    if (!CarriesObjects(kind) && (header.objectCount != 0 || header.fdCount != 0)) {
        return "objects in a frame that carries none";
    }
    const bool addressed =
        kind == IpcFrame::Kind::SESSION_HELLO || kind == IpcFrame::Kind::CHANNEL_HELLO || kind == IpcFrame::Kind::GRANT;
    if (addressed && (header.dataSize == 0 || header.dataSize > IpcFrame::MAX_ADDRESS_SIZE)) {
        return "bad address in a hello or grant";
    }
    if ((kind == IpcFrame::Kind::RELEASE || kind == IpcFrame::Kind::ACQUIRE) && header.dataSize != 0) {
        return "data in a reference frame";
    }
    if (kind == IpcFrame::Kind::REPLY && header.status != 0 && (header.dataSize != 0 || header.fdCount != 0)) {
        return "data in a failed reply";
    }
    return nullptr;
}

bool ReadObject(TableReader& table, IpcFrame::Object& object)
{
    uint32_t kind = 0;
    uint32_t descriptorUnits = 0;
    uint32_t addressSize = 0;
    if (!table.Take(object.offset) || !table.Take(kind) || !table.Take(object.value) || !table.Take(descriptorUnits) ||
        !table.Take(addressSize)) {
        return false;
    }
    object.kind = static_cast<IpcFrame::ObjectKind>(kind);
    const bool named = object.kind == IpcFrame::ObjectKind::EXPORTED || object.kind == IpcFrame::ObjectKind::FOREIGN;
    const bool addressed = object.kind == IpcFrame::ObjectKind::FOREIGN;
    if (kind < static_cast<uint32_t>(IpcFrame::ObjectKind::EXPORTED) ||
        kind > static_cast<uint32_t>(IpcFrame::ObjectKind::DESCRIPTOR) ||
        descriptorUnits > (named ? IpcFrame::MAX_DESCRIPTOR_UNITS : 0) ||
        addressSize > (addressed ? IpcFrame::MAX_ADDRESS_SIZE : 0) || (addressed && addressSize == 0)) {
        return false;
    }
    const uint8_t* descriptor = table.TakePadded(descriptorUnits * sizeof(char16_t));
    const uint8_t* address = descriptor != nullptr ? table.TakePadded(addressSize) : nullptr;
    if (address == nullptr) {
        return false;
    }
    object.descriptor.resize(descriptorUnits);
    std::memcpy(object.descriptor.data(), descriptor, descriptorUnits * sizeof(char16_t));
    object.address.assign(reinterpret_cast<const char*>(address), addressSize);
    return true;
}

// Objects lie within the data in ascending order without overlapping, and the descriptors are named once each.
const char* CheckPlacement(const std::vector<IpcFrame::Object>& objects, size_t dataSize, size_t fdCount)
{
    size_t nextFree = 0;
    std::set<uint64_t> named;
    for (const IpcFrame::Object& object : objects) {
        if (object.offset % sizeof(uint32_t) != 0 || object.offset < nextFree ||
            object.offset + FlatObject::SIZE > dataSize) {
            return "object outside the data or overlapping another";
        }
        nextFree = object.offset + FlatObject::SIZE;
        if (object.kind == IpcFrame::ObjectKind::DESCRIPTOR &&
            (object.value >= fdCount || !named.insert(object.value).second)) {
            return "descriptor not announced or named twice";
        }
    }
    return named.size() == fdCount ? nullptr : "descriptor that no object names";
}
} // namespace

std::vector<uint8_t> IpcFrame::Encode(const uint8_t* data, size_t size, size_t fdCount) const
{
    std::vector<uint8_t> table;
    Writer tableWriter(table);
    for (const Object& object : objects) {
        tableWriter.Put(object.offset);
        tableWriter.Put(static_cast<uint32_t>(object.kind));
        tableWriter.Put(object.value);
        tableWriter.Put(static_cast<uint32_t>(object.descriptor.size()));
        tableWriter.Put(static_cast<uint32_t>(object.address.size()));
        tableWriter.PutPadded(object.descriptor.data(), object.descriptor.size() * sizeof(char16_t));
        tableWriter.PutPadded(object.address.data(), object.address.size());
    }
    const Header header{MAGIC,
                        VERSION,
                        static_cast<uint16_t>(kind),
                        static_cast<uint32_t>(size),
                        static_cast<uint32_t>(table.size()),
                        static_cast<uint32_t>(objects.size()),
                        static_cast<uint32_t>(fdCount),
                        handle,
                        code,
                        flags,
                        status,
                        pid,
                        transaction};
    std::vector<uint8_t> bytes;
    bytes.reserve(HEADER_SIZE + size + table.size());
    Writer writer(bytes);
    writer.Put(header);
    writer.Append(data, size);
    writer.Append(table.data(), table.size());
    return bytes;
}

std::vector<uint8_t> IpcFrame::EncodeHello(Kind kind, uint64_t nonce, int32_t pid, const std::string& address)
{
    IpcFrame hello;
    hello.kind = kind;
    hello.handle = nonce;
    hello.pid = pid;
    return hello.Encode(reinterpret_cast<const uint8_t*>(address.data()), address.size(), 0);
}

bool IpcFrame::BodySize(const uint8_t* bytes, size_t& size, const char*& error)
{
    Header header;
    std::memcpy(&header, bytes, sizeof(header));
    error = CheckHeader(header);
    size = static_cast<size_t>(header.dataSize) + header.tableSize;
    return error == nullptr;
}

std::optional<IpcFrame> IpcFrame::Decode(std::vector<uint8_t> bytes, std::vector<UniqueFd> fds, const char*& error)
{
    size_t bodySize = 0;
    if (bytes.size() < HEADER_SIZE) {
        error = "truncated header";
        return std::nullopt;
    }
    if (!BodySize(bytes.data(), bodySize, error)) {
        return std::nullopt;
    }
    if (bytes.size() != HEADER_SIZE + bodySize) {
        error = "size differs from the header's";
        return std::nullopt;
    }
    Header header;
    std::memcpy(&header, bytes.data(), sizeof(header));
    if (fds.size() != header.fdCount) {
        error = "descriptors differ from the announced count";
        return std::nullopt;
    }
    IpcFrame frame;
    TableReader table(bytes.data() + HEADER_SIZE + header.dataSize, header.tableSize);
    for (uint32_t i = 0; i < header.objectCount; ++i) {
        if (!ReadObject(table, frame.objects.emplace_back())) {
            error = "malformed object entry";
            return std::nullopt;
        }
    }
    if (table.Left() != 0) {
        error = "object table longer than its entries";
        return std::nullopt;
    }
    error = CheckPlacement(frame.objects, header.dataSize, header.fdCount);
    if (error != nullptr) {
        return std::nullopt;
    }
    frame.kind = static_cast<Kind>(header.kind);
    frame.handle = header.handle;
    frame.code = header.code;
    frame.flags = header.flags;
    frame.status = header.status;
    frame.pid = header.pid;
    frame.transaction = header.transaction;
    frame.fds = std::move(fds);
    frame.dataSize_ = header.dataSize;
    frame.bytes_ = std::move(bytes);
    return frame;
}

} // namespace OHOS
