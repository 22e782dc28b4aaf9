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
 * The platform's parcel: a growable byte buffer with independent write and read cursors, 4-byte words,
 * padded strings and buffers, and a maximum capacity that only ever rises.
 */
#ifndef UTILS_PARCEL_H
#define UTILS_PARCEL_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "nocopyable.h"
#include "refbase.h"

namespace OHOS {

class Parcel;

class Parcelable : public virtual RefBase {
public:
    enum BehaviorFlag { IPC = 0x01, RPC = 0x02, HOLD_OBJECT = 0x10 };

    Parcelable() : Parcelable(false) {}
    explicit Parcelable(bool asRemote) : asRemote_(asRemote) {}
    ~Parcelable() override = default;

    virtual bool Marshalling(Parcel& parcel) const = 0;

    void SetBehavior(BehaviorFlag b) const { behavior_ |= static_cast<uint8_t>(b); }
    void ClearBehavior(BehaviorFlag b) const { behavior_ &= static_cast<uint8_t>(~b); }
    bool TestBehavior(BehaviorFlag b) const { return (behavior_ & b) != 0; }

    bool asRemote_;
    mutable uint8_t behavior_ = 0;
};

// Where a parcel's memory comes from; the host parcel always uses the heap.
class Allocator {
public:
    virtual ~Allocator() = default;
};

class Parcel {
public:
    static constexpr size_t DEFAULT_CPACITY = 204800;

    Parcel();
    explicit Parcel(Allocator* allocator);
    virtual ~Parcel();
    DISALLOW_COPY_AND_MOVE(Parcel);

    size_t GetDataSize() const { return dataSize_; }
    uintptr_t GetData() const { return reinterpret_cast<uintptr_t>(data_); }
    size_t GetDataCapacity() const { return capacity_; }
    size_t GetMaxCapacity() const { return maxCapacity_; }
    size_t GetWritableBytes() const { return capacity_ - writeCursor_; }
    size_t GetReadableBytes() const { return dataSize_ - readCursor_; }
    size_t GetReadPosition() { return readCursor_; }
    size_t GetWritePosition() { return writeCursor_; }

    // Raises the maximum capacity; a value not above the current one is refused.
    bool SetMaxCapacity(size_t newMaxCapacity);
    bool SetDataCapacity(size_t newCapacity);
    bool SetDataSize(size_t dataSize);
    bool RewindRead(size_t newPosition);
    bool RewindWrite(size_t offsets);
    void SkipBytes(size_t bytes);

    bool WriteBool(bool value);
    bool WriteInt8(int8_t value);
    bool WriteInt16(int16_t value);
    bool WriteInt32(int32_t value);
    bool WriteInt64(int64_t value);
    bool WriteUint8(uint8_t value);
    bool WriteUint16(uint16_t value);
    bool WriteUint32(uint32_t value);
    bool WriteUint64(uint64_t value);
    bool WriteFloat(float value);
    bool WriteDouble(double value);
    bool WritePointer(uintptr_t value);
    bool WriteBuffer(const void* data, size_t size);
    bool WriteUnpadBuffer(const void* data, size_t size);
    bool WriteCString(const char* value);
    bool WriteString(const std::string& value);
    bool WriteString16(const std::u16string& value);
    bool WriteString16Vector(const std::vector<std::u16string>& values);
    bool WriteParcelable(const Parcelable* object);
    bool WriteStrongParcelable(const sptr<Parcelable>& object);

    bool ReadBool();
    bool ReadBool(bool& value);
    int8_t ReadInt8();
    bool ReadInt8(int8_t& value);
    int16_t ReadInt16();
    bool ReadInt16(int16_t& value);
    int32_t ReadInt32();
    bool ReadInt32(int32_t& value);
    int64_t ReadInt64();
    bool ReadInt64(int64_t& value);
    uint8_t ReadUint8();
    bool ReadUint8(uint8_t& value);
    uint16_t ReadUint16();
    bool ReadUint16(uint16_t& value);
    uint32_t ReadUint32();
    bool ReadUint32(uint32_t& value);
    uint64_t ReadUint64();
    bool ReadUint64(uint64_t& value);
    float ReadFloat();
    bool ReadFloat(float& value);
    double ReadDouble();
    bool ReadDouble(double& value);
    uintptr_t ReadPointer();
    const uint8_t* ReadBuffer(size_t length);
    const uint8_t* ReadUnpadBuffer(size_t length);
    const char* ReadCString();
    std::string ReadString();
    bool ReadString(std::string& value);
    std::u16string ReadString16();
    bool ReadString16(std::u16string& value);
    // A count then each text; false (and nothing kept) if the count is negative or runs past the data.
    bool ReadString16Vector(std::vector<std::u16string>* values);

    template <typename T>
    T* ReadParcelable()
    {
        return ReadInt32() == 0 ? nullptr : T::Unmarshalling(*this);
    }
    template <typename T>
    sptr<T> ReadStrongParcelable()
    {
        return ReadInt32() == 0 ? nullptr : sptr<T>(T::Unmarshalling(*this));
    }

protected:
    // Reserves size bytes at the write cursor within the maximum capacity and returns where they start.
    uint8_t* Reserve(size_t size);
    // Object records (remote objects, file descriptors) in the data: no primitive or text read may overlap one, so
    // that a hostile peer cannot have a record read as a number or a text is read into one.
    void AddObject(size_t offset, size_t size);
    bool HasObjectAt(size_t offset) const;

private:
    template <typename T>
    bool WriteWord(T value);
    template <typename T>
    bool ReadWord(T& value);
    template <typename T, typename Word = T>
    T ReadWordOr(T fallback);
    bool WritePadded(const void* data, size_t size);
    bool EnsureCapacity(size_t required);
    template <typename Str>
    bool WriteText(const Str& value, size_t maxLength);
    template <typename Str>
    bool ReadText(Str& value);
    bool OverlapsObject(size_t start, size_t size) const;

    uint8_t* data_ = nullptr;
    size_t capacity_ = 0;
    size_t maxCapacity_ = DEFAULT_CPACITY;
    size_t dataSize_ = 0;
    size_t writeCursor_ = 0;
    size_t readCursor_ = 0;
    // Start offset to size, disjoint.
    std::map<size_t, size_t> objects_;
};

} // namespace OHOS

#endif // UTILS_PARCEL_H
