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

#include "parcel.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace OHOS {
namespace {

constexpr size_t MIN_CAPACITY = 64;
// Below it the capacity doubles; above it the capacity grows in steps of it.
constexpr size_t CAPACITY_STEP = 4096;
constexpr size_t OBJECT_SIZE = sizeof(parcel_flat_binder_object);
static_assert(OBJECT_SIZE == 24, "the object record has the driver's 64-bit layout");

// The zero bytes that round size up to a word (size modulo 2^N, so it cannot overflow).
size_t PadSize(size_t size)
{
    return (0 - size) & (sizeof(uint32_t) - 1);
}

} // namespace

void* DefaultAllocator::Alloc(size_t size)
{
    return std::malloc(size);
}

void DefaultAllocator::Dealloc(void* data)
{
    std::free(data);
}

void* DefaultAllocator::Realloc(void* data, size_t newSize)
{
    return std::realloc(data, newSize);
}

Parcel::Parcel() = default;

Parcel::Parcel(Allocator* allocator) : allocator_(allocator) {}

Parcel::~Parcel()
{
    if (allocator_ == nullptr) {
        std::free(data_);
        return;
    }
    if (data_ != nullptr) {
        allocator_->Dealloc(data_);
    }
    delete allocator_;
}

void* Parcel::Reallocate(size_t newCapacity)
{
    return allocator_ != nullptr ? allocator_->Realloc(data_, newCapacity) : std::realloc(data_, newCapacity);
}

binder_size_t Parcel::GetObjectOffsets() const
{
    return objects_ == nullptr || objects_->capacity == 0 ? 0 : reinterpret_cast<uintptr_t>(objects_->offsets.data());
}

bool Parcel::SetMaxCapacity(size_t newMaxCapacity)
{
    if (newMaxCapacity <= maxCapacity_) {
        return false;
    }
    maxCapacity_ = newMaxCapacity;
    return true;
}

bool Parcel::SetDataCapacity(size_t newCapacity)
{
    if (newCapacity <= dataSize_) {
        return false;
    }
    void* grown = Reallocate(newCapacity);
    if (grown == nullptr) {
        return false;
    }
    data_ = static_cast<uint8_t*>(grown);
    capacity_ = newCapacity;
    return true;
}

bool Parcel::SetDataSize(size_t dataSize)
{
    if (dataSize > capacity_) {
        return false;
    }
    dataSize_ = dataSize;
    return true;
}

size_t Parcel::CalcNewCapacity(size_t minNewCapacity) const
{
    if (minNewCapacity == CAPACITY_STEP) {
        return CAPACITY_STEP;
    }
    if (minNewCapacity > CAPACITY_STEP) {
        const size_t steps = minNewCapacity / CAPACITY_STEP * CAPACITY_STEP;
        // The maximum capacity never falls below its default, far above one step.
        return steps > maxCapacity_ - CAPACITY_STEP ? maxCapacity_ : steps + CAPACITY_STEP;
    }
    size_t capacity = MIN_CAPACITY;
    while (capacity < minNewCapacity) {
        capacity *= 2;
    }
    return std::min(capacity, maxCapacity_);
}

bool Parcel::EnsureWritableCapacity(size_t desiredBytes)
{
    if (desiredBytes <= GetWritableBytes()) {
        return data_ != nullptr;
    }
    if (desiredBytes > SIZE_MAX - writeCursor_) {
        return false;
    }
    const size_t minNewCapacity = writeCursor_ + desiredBytes;
    const size_t newCapacity = CalcNewCapacity(minNewCapacity);
    if (newCapacity <= capacity_ || newCapacity < minNewCapacity) {
        return false;
    }
    void* grown = Reallocate(newCapacity);
    if (grown == nullptr) {
        return false;
    }
    data_ = static_cast<uint8_t*>(grown);
    capacity_ = newCapacity;
    return true;
}

bool Parcel::EnsureObjectsCapacity()
{
    if (objects_ == nullptr) {
        objects_ = std::make_unique<ObjectRecords>();
    }
    if (objects_->capacity > objects_->offsets.size()) {
        return true;
    }
    objects_->capacity = (objects_->capacity + 2) * 3 / 2;
    objects_->offsets.reserve(objects_->capacity);
    return true;
}

bool Parcel::WriteObjectOffset(binder_size_t offset)
{
    // Without the room EnsureObjectsCapacity makes, the device's parcel would write past its array.
    if (offset > dataSize_ || GetOffsetsSize() >= (objects_ != nullptr ? objects_->capacity : 0) ||
        IsObjectOffset(offset)) {
        return false;
    }
    std::vector<binder_size_t>& offsets = objects_->offsets;
    objects_->ascending = objects_->ascending && (offsets.empty() || offset > offsets.back());
    offsets.push_back(offset);
    return true;
}

// Records are written in ascending order, and then a peer's many records cost a search by halves each, not a scan.
bool Parcel::IsObjectOffset(binder_size_t offset) const
{
    if (objects_ == nullptr) {
        return false;
    }
    const std::vector<binder_size_t>& offsets = objects_->offsets;
    if (objects_->ascending) {
        return std::binary_search(offsets.begin(), offsets.end(), offset);
    }
    return std::find(offsets.begin(), offsets.end(), offset) != offsets.end();
}

bool Parcel::CheckOffsets()
{
    return readCursor_ + OBJECT_SIZE <= dataSize_ && IsObjectOffset(readCursor_);
}

// Records are checked in the order written, from the first one that the reads have not passed yet: a read of
// [readCursor_, upperBound) fails if it takes a byte of one.
bool Parcel::ValidateReadData(size_t upperBound)
{
    if (objects_ == nullptr) {
        return true;
    }
    const std::vector<binder_size_t>& offsets = objects_->offsets;
    size_t next = objects_->nextIndex;
    if (next >= offsets.size() || upperBound <= offsets[next]) {
        return true;
    }
    do {
        if (readCursor_ < offsets[next] + OBJECT_SIZE) {
            return false;
        }
        ++next;
    } while (next < offsets.size() && upperBound > offsets[next]);
    objects_->nextIndex = next;
    return true;
}

bool Parcel::RewindRead(size_t newPosition)
{
    if (newPosition > dataSize_) {
        return false;
    }
    readCursor_ = newPosition;
    if (objects_ != nullptr) {
        objects_->nextIndex = 0;
    }
    return true;
}

bool Parcel::RewindWrite(size_t offsets)
{
    if (offsets > dataSize_) {
        return false;
    }
    writeCursor_ = offsets;
    dataSize_ = offsets;
    size_t kept = GetOffsetsSize();
    while (kept > 0 && objects_->offsets[kept - 1] + OBJECT_SIZE > offsets) {
        --kept;
    }
    if (kept == GetOffsetsSize()) {
        return true;
    }
    if (kept == 0) {
        objects_.reset();
    } else {
        objects_->offsets.resize(kept);
        objects_->capacity = kept;
        objects_->holder.resize(std::min(objects_->holder.size(), kept));
        objects_->nextIndex = 0;
    }
    return true;
}

void Parcel::SkipBytes(size_t bytes)
{
    if (GetReadableBytes() >= bytes) {
        readCursor_ += bytes;
    } else if (readCursor_ < capacity_) {
        readCursor_ = capacity_;
    }
}

template <typename T>
bool Parcel::Write(T value)
{
    if (!EnsureWritableCapacity(sizeof(T))) {
        return false;
    }
    std::memcpy(data_ + writeCursor_, &value, sizeof(T));
    writeCursor_ += sizeof(T);
    dataSize_ += sizeof(T);
    return true;
}

// size bytes of data, then zeroTail zero bytes (a text's terminator), then the padding to a word.
bool Parcel::WritePadded(const void* data, size_t size, size_t zeroTail)
{
    const size_t total = size + zeroTail;
    const size_t padded = total + PadSize(total);
    if (total < size || padded < total || !EnsureWritableCapacity(padded)) {
        return false;
    }
    std::memcpy(data_ + writeCursor_, data, size);
    std::memset(data_ + writeCursor_ + size, 0, padded - size);
    writeCursor_ += padded;
    dataSize_ += padded;
    return true;
}

bool Parcel::WriteBool(bool value)
{
    return Write<int32_t>(value ? 1 : 0);
}

bool Parcel::WriteInt8(int8_t value)
{
    return Write<int32_t>(value);
}

bool Parcel::WriteInt16(int16_t value)
{
    return Write<int32_t>(value);
}

bool Parcel::WriteInt32(int32_t value)
{
    return Write(value);
}

bool Parcel::WriteInt64(int64_t value)
{
    return Write(value);
}

bool Parcel::WriteUint8(uint8_t value)
{
    return Write<uint32_t>(value);
}

bool Parcel::WriteUint16(uint16_t value)
{
    return Write<uint32_t>(value);
}

bool Parcel::WriteUint32(uint32_t value)
{
    return Write(value);
}

bool Parcel::WriteUint64(uint64_t value)
{
    return Write(value);
}

bool Parcel::WriteFloat(float value)
{
    return Write(value);
}

bool Parcel::WriteDouble(double value)
{
    return Write(value);
}

bool Parcel::WritePointer(uintptr_t value)
{
    return Write<binder_uintptr_t>(value);
}

bool Parcel::WriteBuffer(const void* data, size_t size)
{
    return data != nullptr && size != 0 && WritePadded(data, size, 0);
}

bool Parcel::WriteUnpadBuffer(const void* data, size_t size)
{
    return WriteBuffer(data, size);
}

bool Parcel::WriteCString(const char* value)
{
    return value != nullptr && WritePadded(value, std::strlen(value), 1);
}

// The length word is written first: when the body does not fit, it stays in the parcel.
template <typename Str>
bool Parcel::WriteText(const Str& value, size_t maxLength)
{
    using Unit = typename Str::value_type;
    const size_t length = value.size();
    return length < maxLength && Write<int32_t>(static_cast<int32_t>(length)) &&
           WritePadded(value.data(), length * sizeof(Unit), sizeof(Unit));
}

bool Parcel::WriteString(const std::string& value)
{
    return WriteText(value, INT32_MAX);
}

bool Parcel::WriteString16(const std::u16string& value)
{
    return WriteText(value, INT32_MAX / sizeof(char16_t));
}

bool Parcel::WriteString16Vector(const std::vector<std::u16string>& values)
{
    if (values.size() > static_cast<size_t>(INT32_MAX) || !WriteInt32(static_cast<int32_t>(values.size()))) {
        return false;
    }
    for (const std::u16string& value : values) {
        if (!WriteString16(value)) {
            return false;
        }
    }
    return true;
}

bool Parcel::WriteRemoteObject(const Parcelable* object)
{
    const size_t start = writeCursor_;
    if (object == nullptr || !object->asRemote_ || !EnsureObjectsCapacity() || !object->Marshalling(*this)) {
        return false;
    }
    // The marshalling may have recorded its record itself; a second offset at the same place is refused.
    (void)WriteObjectOffset(start);
    if (object->TestBehavior(Parcelable::BehaviorFlag::HOLD_OBJECT)) {
        objects_->holder.emplace_back(const_cast<Parcelable*>(object));
    }
    return true;
}

bool Parcel::WriteParcelable(const Parcelable* object)
{
    if (object == nullptr) {
        return WriteInt32(0);
    }
    if (!object->asRemote_) {
        return WriteInt32(1) && object->Marshalling(*this);
    }
    const size_t start = writeCursor_;
    const size_t size = dataSize_;
    if (WriteInt32(1) && WriteRemoteObject(object)) {
        return true;
    }
    // A remote object's record is withdrawn with its presence word; a plain record keeps what it wrote.
    writeCursor_ = start;
    dataSize_ = size;
    return false;
}

bool Parcel::WriteStrongParcelable(const sptr<Parcelable>& object)
{
    if (object == nullptr) {
        (void)WriteInt32(0);
        return true;
    }
    object->SetBehavior(Parcelable::BehaviorFlag::HOLD_OBJECT);
    return WriteParcelable(object.GetRefPtr());
}

// A read that would take a byte of an object record fails, but the read position moves past it all the same.
template <typename T>
bool Parcel::Read(T& value)
{
    if (GetReadableBytes() < sizeof(T)) {
        return false;
    }
    const size_t start = readCursor_;
    const bool valid = ValidateReadData(start + sizeof(T));
    readCursor_ = start + sizeof(T);
    if (valid) {
        std::memcpy(&value, data_ + start, sizeof(T));
    }
    return valid;
}

template <typename T>
T Parcel::Read()
{
    T value{};
    return Read(value) ? value : T{};
}

// Small integers travel as one word; the value is its low bits.
template <typename T>
bool Parcel::ReadPadded(T& value)
{
    int32_t word;
    if (!Read(word)) {
        return false;
    }
    value = static_cast<T>(word);
    return true;
}

bool Parcel::ReadBool()
{
    return Read<int32_t>() != 0;
}

bool Parcel::ReadBool(bool& value)
{
    return ReadPadded(value);
}

int8_t Parcel::ReadInt8()
{
    return static_cast<int8_t>(Read<int32_t>());
}

bool Parcel::ReadInt8(int8_t& value)
{
    return ReadPadded(value);
}

int16_t Parcel::ReadInt16()
{
    return static_cast<int16_t>(Read<int32_t>());
}

bool Parcel::ReadInt16(int16_t& value)
{
    return ReadPadded(value);
}

uint8_t Parcel::ReadUint8()
{
    return static_cast<uint8_t>(Read<uint32_t>());
}

bool Parcel::ReadUint8(uint8_t& value)
{
    return ReadPadded(value);
}

uint16_t Parcel::ReadUint16()
{
    return static_cast<uint16_t>(Read<uint32_t>());
}

bool Parcel::ReadUint16(uint16_t& value)
{
    return ReadPadded(value);
}

#define WORD_READERS(Name, Type)                                                                                       \
    Type Parcel::Read##Name()                                                                                          \
    {                                                                                                                  \
        return Read<Type>();                                                                                           \
    }                                                                                                                  \
    bool Parcel::Read##Name(Type& value)                                                                               \
    {                                                                                                                  \
        return Read(value);                                                                                            \
    }

WORD_READERS(Int32, int32_t)
WORD_READERS(Uint32, uint32_t)
WORD_READERS(Int64, int64_t)
WORD_READERS(Uint64, uint64_t)
WORD_READERS(Float, float)
WORD_READERS(Double, double)

#undef WORD_READERS

uintptr_t Parcel::ReadPointer()
{
    return static_cast<uintptr_t>(Read<binder_uintptr_t>());
}

const uint8_t* Parcel::ReadBuffer(size_t length)
{
    if (GetReadableBytes() < length || !ValidateReadData(readCursor_ + length)) {
        return nullptr;
    }
    const uint8_t* start = data_ + readCursor_;
    readCursor_ += length;
    return start;
}

const uint8_t* Parcel::ReadUnpadBuffer(size_t length)
{
    const uint8_t* start = ReadBuffer(length);
    if (start != nullptr) {
        SkipBytes(PadSize(length));
    }
    return start;
}

const char* Parcel::ReadCString()
{
    const auto* start = reinterpret_cast<const char*>(data_ + readCursor_);
    const size_t readable = GetReadableBytes();
    const void* end = readable == 0 ? nullptr : std::memchr(start, 0, readable);
    if (end == nullptr) {
        return nullptr;
    }
    const size_t bytes = static_cast<size_t>(static_cast<const char*>(end) - start) + 1;
    if (!ValidateReadData(readCursor_ + bytes)) {
        return nullptr;
    }
    readCursor_ += bytes;
    SkipBytes(PadSize(bytes));
    return start;
}

template <typename Str>
bool Parcel::ReadText(Str& value)
{
    using Unit = typename Str::value_type;
    const size_t start = readCursor_;
    int32_t length;
    if (!Read(length) || length < 0 || length == INT32_MAX) {
        value.clear();
        return false;
    }
    const size_t count = static_cast<size_t>(length);
    const size_t bytes = (count + 1) * sizeof(Unit);
    // bytes > count: the size of a string16 body can wrap around on 32 bits.
    if (bytes > count && bytes <= GetReadableBytes() && ValidateReadData(readCursor_ + bytes)) {
        const uint8_t* body = data_ + readCursor_;
        readCursor_ += bytes;
        SkipBytes(PadSize(bytes));
        Unit terminator;
        // memcpy: a string16 body need not be aligned for its units.
        std::memcpy(&terminator, body + count * sizeof(Unit), sizeof(Unit));
        if (terminator == 0) {
            if constexpr (sizeof(Unit) == 1) {
                // A string built and moved in costs less than an assignment, which must allow for overlap and growth.
                value = std::string(reinterpret_cast<const char*>(body), count);
            } else {
                value.resize(count);
                std::memcpy(&value[0], body, count * sizeof(Unit));
            }
            return true;
        }
    }
    readCursor_ = start;
    value.clear();
    return false;
}

const std::string Parcel::ReadString()
{
    std::string value;
    ReadText(value);
    return value;
}

bool Parcel::ReadString(std::string& value)
{
    return ReadText(value);
}

const std::u16string Parcel::ReadString16()
{
    std::u16string value;
    ReadText(value);
    return value;
}

bool Parcel::ReadString16(std::u16string& value)
{
    return ReadText(value);
}

bool Parcel::ReadString16Vector(std::vector<std::u16string>* values)
{
    if (values == nullptr) {
        return false;
    }
    // A count that cannot be read is 0: an empty list.
    const int32_t count = ReadInt32();
    if (count < 0 || static_cast<size_t>(count) > GetReadableBytes()) {
        return false;
    }
    values->resize(static_cast<size_t>(count));
    for (std::u16string& value : *values) {
        ReadText(value);
    }
    return true;
}

} // namespace OHOS
