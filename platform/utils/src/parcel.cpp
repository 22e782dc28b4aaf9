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
#include <climits>
#include <cstdlib>
#include <cstring>
#include <iterator>

namespace OHOS {
namespace {

constexpr size_t WORD = 4;
constexpr size_t MIN_CAPACITY = 64;

// A size too large to pad saturates instead of wrapping to 0, so it stays too large for every check that follows.
size_t Pad4(size_t size)
{
    return size > SIZE_MAX - (WORD - 1) ? SIZE_MAX : (size + WORD - 1) & ~(WORD - 1);
}

// 64 bytes, then doubling all the way: a parcel of several MiB is copied a few times as it grows, not once per
// 4 KiB as in steps of 4 KiB.
size_t GrownCapacity(size_t required)
{
    size_t capacity = MIN_CAPACITY;
    while (capacity < required && capacity <= SIZE_MAX / 2) {
        capacity *= 2;
    }
    return std::max(capacity, required);
}

} // namespace

Parcel::Parcel() = default;

Parcel::Parcel(Allocator*) {}

Parcel::~Parcel()
{
    std::free(data_);
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
    if (newCapacity < dataSize_) {
        return false;
    }
    auto* grown = static_cast<uint8_t*>(std::realloc(data_, newCapacity == 0 ? 1 : newCapacity));
    if (grown == nullptr) {
        return false;
    }
    data_ = grown;
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

bool Parcel::EnsureCapacity(size_t required)
{
    if (required <= capacity_) {
        return true;
    }
    return SetDataCapacity(std::min(GrownCapacity(required), maxCapacity_));
}

uint8_t* Parcel::Reserve(size_t size)
{
    if (size > maxCapacity_ || writeCursor_ > maxCapacity_ - size || !EnsureCapacity(writeCursor_ + size)) {
        return nullptr;
    }
    uint8_t* start = data_ + writeCursor_;
    writeCursor_ += size;
    dataSize_ = std::max(dataSize_, writeCursor_);
    return start;
}

bool Parcel::RewindRead(size_t newPosition)
{
    if (newPosition > dataSize_) {
        return false;
    }
    readCursor_ = newPosition;
    return true;
}

bool Parcel::RewindWrite(size_t offsets)
{
    if (offsets > dataSize_) {
        return false;
    }
    writeCursor_ = offsets;
    dataSize_ = offsets;
    readCursor_ = std::min(readCursor_, offsets);
    // Records cut by the rewind are gone: the bytes that replace them are plain data.
    auto firstCut = objects_.lower_bound(offsets);
    if (firstCut != objects_.begin() && std::prev(firstCut)->first + std::prev(firstCut)->second > offsets) {
        --firstCut;
    }
    objects_.erase(firstCut, objects_.end());
    return true;
}

void Parcel::AddObject(size_t offset, size_t size)
{
    objects_[offset] = size;
}

bool Parcel::HasObjectAt(size_t offset) const
{
    return objects_.count(offset) != 0;
}

bool Parcel::OverlapsObject(size_t start, size_t size) const
{
    if (objects_.empty() || size == 0) {
        return false;
    }
    auto after = objects_.lower_bound(start + size);
    if (after == objects_.begin()) {
        return false;
    }
    const auto& [offset, objectSize] = *std::prev(after);
    return offset + objectSize > start;
}

void Parcel::SkipBytes(size_t bytes)
{
    size_t padded = Pad4(bytes);
    readCursor_ = padded <= GetReadableBytes() ? readCursor_ + padded : dataSize_;
}

template <typename T>
bool Parcel::WriteWord(T value)
{
    uint8_t* target = Reserve(sizeof(T));
    if (target == nullptr) {
        return false;
    }
    std::memcpy(target, &value, sizeof(T));
    return true;
}

bool Parcel::WritePadded(const void* data, size_t size)
{
    uint8_t* target = Reserve(Pad4(size));
    if (target == nullptr) {
        return false;
    }
    std::memcpy(target, data, size);
    std::memset(target + size, 0, Pad4(size) - size);
    return true;
}

bool Parcel::WriteBool(bool value)
{
    return WriteWord<int32_t>(value ? 1 : 0);
}

bool Parcel::WriteInt8(int8_t value)
{
    return WriteWord<int32_t>(value);
}

bool Parcel::WriteInt16(int16_t value)
{
    return WriteWord<int32_t>(value);
}

bool Parcel::WriteInt32(int32_t value)
{
    return WriteWord(value);
}

bool Parcel::WriteInt64(int64_t value)
{
    return WriteWord(value);
}

bool Parcel::WriteUint8(uint8_t value)
{
    return WriteWord<uint32_t>(value);
}

bool Parcel::WriteUint16(uint16_t value)
{
    return WriteWord<uint32_t>(value);
}

bool Parcel::WriteUint32(uint32_t value)
{
    return WriteWord(value);
}

bool Parcel::WriteUint64(uint64_t value)
{
    return WriteWord(value);
}

bool Parcel::WriteFloat(float value)
{
    return WriteWord(value);
}

bool Parcel::WriteDouble(double value)
{
    return WriteWord(value);
}

bool Parcel::WritePointer(uintptr_t value)
{
    return WriteWord<uint64_t>(value);
}

bool Parcel::WriteBuffer(const void* data, size_t size)
{
    return data != nullptr && size != 0 && WritePadded(data, size);
}

bool Parcel::WriteUnpadBuffer(const void* data, size_t size)
{
    return WriteBuffer(data, size);
}

bool Parcel::WriteCString(const char* value)
{
    return value != nullptr && WritePadded(value, std::strlen(value) + 1);
}

// The length word is reserved first: when the body does not fit, it stays in the parcel.
template <typename Str>
bool Parcel::WriteText(const Str& value, size_t maxLength)
{
    using Unit = typename Str::value_type;
    size_t length = value.size();
    if (length >= maxLength || !WriteInt32(static_cast<int32_t>(length))) {
        return false;
    }
    size_t bytes = (length + 1) * sizeof(Unit);
    uint8_t* target = Reserve(Pad4(bytes));
    if (target == nullptr) {
        return false;
    }
    std::memcpy(target, value.data(), length * sizeof(Unit));
    std::memset(target + length * sizeof(Unit), 0, Pad4(bytes) - length * sizeof(Unit));
    return true;
}

bool Parcel::WriteString(const std::string& value)
{
    return WriteText(value, INT32_MAX);
}

bool Parcel::WriteString16(const std::u16string& value)
{
    return WriteText(value, INT32_MAX / 2);
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

bool Parcel::WriteParcelable(const Parcelable* object)
{
    if (object == nullptr) {
        return WriteInt32(0);
    }
    size_t start = writeCursor_;
    if (!WriteInt32(1)) {
        return false;
    }
    bool written = object->Marshalling(*this);
    // A remote object's record is withdrawn with its presence word; a plain record keeps what it wrote.
    if (!written && object->asRemote_) {
        RewindWrite(start);
    }
    return written;
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

template <typename T>
bool Parcel::ReadWord(T& value)
{
    if (GetReadableBytes() < sizeof(T) || OverlapsObject(readCursor_, sizeof(T))) {
        return false;
    }
    std::memcpy(&value, data_ + readCursor_, sizeof(T));
    readCursor_ += sizeof(T);
    return true;
}

// Small integers travel as one word; the value is its low bits.
template <typename T, typename Word>
T Parcel::ReadWordOr(T fallback)
{
    Word word;
    return ReadWord(word) ? static_cast<T>(word) : fallback;
}

bool Parcel::ReadBool()
{
    return ReadWordOr<int32_t>(0) != 0;
}

bool Parcel::ReadBool(bool& value)
{
    int32_t word;
    if (!ReadWord(word)) {
        return false;
    }
    value = word != 0;
    return true;
}

#define SMALL_WORD_READERS(Name, Type, Word)                                                                           \
    Type Parcel::Read##Name()                                                                                          \
    {                                                                                                                  \
        return ReadWordOr<Type, Word>(0);                                                                              \
    }                                                                                                                  \
    bool Parcel::Read##Name(Type& value)                                                                               \
    {                                                                                                                  \
        Word word;                                                                                                     \
        if (!ReadWord(word)) {                                                                                         \
            return false;                                                                                              \
        }                                                                                                              \
        value = static_cast<Type>(word);                                                                               \
        return true;                                                                                                   \
    }

SMALL_WORD_READERS(Int8, int8_t, int32_t)
SMALL_WORD_READERS(Int16, int16_t, int32_t)
SMALL_WORD_READERS(Uint8, uint8_t, uint32_t)
SMALL_WORD_READERS(Uint16, uint16_t, uint32_t)
SMALL_WORD_READERS(Int32, int32_t, int32_t)
SMALL_WORD_READERS(Uint32, uint32_t, uint32_t)
SMALL_WORD_READERS(Int64, int64_t, int64_t)
SMALL_WORD_READERS(Uint64, uint64_t, uint64_t)
SMALL_WORD_READERS(Float, float, float)
SMALL_WORD_READERS(Double, double, double)

#undef SMALL_WORD_READERS

uintptr_t Parcel::ReadPointer()
{
    return static_cast<uintptr_t>(ReadWordOr<uint64_t>(0));
}

const uint8_t* Parcel::ReadBuffer(size_t length)
{
    if (length > GetReadableBytes() || OverlapsObject(readCursor_, length)) {
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
        readCursor_ = std::min(readCursor_ + (Pad4(length) - length), dataSize_);
    }
    return start;
}

const char* Parcel::ReadCString()
{
    const auto* start = reinterpret_cast<const char*>(data_ + readCursor_);
    const void* end = GetReadableBytes() == 0 ? nullptr : std::memchr(start, 0, GetReadableBytes());
    if (end == nullptr) {
        return nullptr;
    }
    SkipBytes(static_cast<const char*>(end) - start + 1);
    return start;
}

// A negative length leaves the cursor after the length word; a body that is too short or not terminated puts it
// back before the length word. The target is emptied on every failure.
template <typename Str>
bool Parcel::ReadText(Str& value)
{
    using Unit = typename Str::value_type;
    size_t start = readCursor_;
    int32_t length;
    if (!ReadWord(length) || length < 0) {
        value.clear();
        return false;
    }
    size_t count = static_cast<size_t>(length);
    size_t bytes = (count + 1) * sizeof(Unit);
    const uint8_t* body = data_ + readCursor_;
    Unit terminator = 0;
    if (bytes <= GetReadableBytes()) {
        std::memcpy(&terminator, body + count * sizeof(Unit), sizeof(Unit));
    }
    if (bytes > GetReadableBytes() || terminator != 0 || OverlapsObject(readCursor_, bytes)) {
        readCursor_ = start;
        value.clear();
        return false;
    }
    if constexpr (sizeof(Unit) == 1) {
        // A string built and moved in costs less than an assignment, which must allow for overlap and growth.
        value = std::string(reinterpret_cast<const char*>(body), count);
    } else {
        // memcpy: a string16 body need not be aligned for its units.
        value.resize(count);
        std::memcpy(&value[0], body, count * sizeof(Unit));
    }
    readCursor_ = std::min(readCursor_ + Pad4(bytes), dataSize_);
    return true;
}

std::string Parcel::ReadString()
{
    std::string value;
    ReadText(value);
    return value;
}

bool Parcel::ReadString(std::string& value)
{
    return ReadText(value);
}

std::u16string Parcel::ReadString16()
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
    int32_t count = 0;
    // Each text takes at least one word, so a count beyond the words left is a lie.
    if (values == nullptr || !ReadInt32(count) || count < 0 ||
        static_cast<size_t>(count) > GetReadableBytes() / sizeof(int32_t)) {
        return false;
    }
    std::vector<std::u16string> read(static_cast<size_t>(count));
    for (std::u16string& value : read) {
        if (!ReadString16(value)) {
            return false;
        }
    }
    *values = std::move(read);
    return true;
}

} // namespace OHOS
