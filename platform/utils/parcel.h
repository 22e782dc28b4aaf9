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
 * The platform's parcel: a growable byte buffer with independent write and read cursors, 4-byte words, padded
 * strings and buffers, a maximum capacity that only ever rises, and the offsets of the object records it carries
 * (no plain read may take a byte of one).
 */
#ifndef OHOS_UTILS_PARCEL_H
#define OHOS_UTILS_PARCEL_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "flat_obj.h"
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

// Where a parcel's memory comes from. A parcel owns the allocator it is given and deletes it.
class Allocator {
public:
    virtual ~Allocator() = default;
    virtual void* Realloc(void* data, size_t newSize) = 0;
    virtual void* Alloc(size_t size) = 0;
    virtual void Dealloc(void* data) = 0;
};

class DefaultAllocator : public Allocator {
public:
    void* Alloc(size_t size) override;
    void Dealloc(void* data) override;

private:
    void* Realloc(void* data, size_t newSize) override;
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
    // The address of the array of object record offsets, GetOffsetsSize() of them, in the order written.
    binder_size_t GetObjectOffsets() const;
    size_t GetOffsetsSize() const { return objects_ != nullptr ? objects_->offsets.size() : 0; }
    size_t GetWritableBytes() const { return capacity_ > writeCursor_ ? capacity_ - writeCursor_ : 0; }
    // The read position may pass the data size (SkipBytes past the end puts it at the capacity): nothing is left.
    size_t GetReadableBytes() const { return dataSize_ > readCursor_ ? dataSize_ - readCursor_ : 0; }
    size_t GetDataCapacity() const { return capacity_; }
    size_t GetMaxCapacity() const { return maxCapacity_; }
    size_t GetReadPosition() { return readCursor_; }
    size_t GetWritePosition() { return writeCursor_; }

    // Raises the maximum capacity; a value not above the current one is refused.
    bool SetMaxCapacity(size_t newMaxCapacity);
    // Only above the data size.
    bool SetDataCapacity(size_t newCapacity);
    bool SetDataSize(size_t dataSize);
    bool RewindRead(size_t newPosition);
    // Drops the object records that end past the new position; the read position stays where it is.
    bool RewindWrite(size_t offsets);
    // Not rounded up to a word; past the data the read position goes to the capacity.
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
    // Marshals a remote object and records its offset; the parcel holds it if it asks to be held.
    bool WriteRemoteObject(const Parcelable* object);

    // A refused primitive read still moves the read position past the bytes it refused.
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
    // A negative length, or INT32_MAX, leaves the read position after the length word; any other failure puts it
    // back before the length word. The string is empty on failure.
    const std::string ReadString();
    bool ReadString(std::string& value);
    const std::u16string ReadString16();
    bool ReadString16(std::u16string& value);
    // A count up to the readable bytes, then each text; a text that fails to read is left empty.
    bool ReadString16Vector(std::vector<std::u16string>* values);

    // Whether an object record starts at the read position.
    bool CheckOffsets();

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
    // Makes room for one more object record offset; WriteObjectOffset fails without it.
    bool EnsureObjectsCapacity();
    // Records an object record at offset (within the data, once).
    bool WriteObjectOffset(binder_size_t offset);

private:
    struct ObjectRecords {
        std::vector<binder_size_t> offsets;
        // Room made by EnsureObjectsCapacity; a rewind that drops records shrinks it to what is left.
        size_t capacity = 0;
        bool ascending = true;
        // The first record a forward read has not passed yet.
        size_t nextIndex = 0;
        std::vector<sptr<Parcelable>> holder;
    };

    template <typename T>
    bool Write(T value);
    template <typename T>
    bool Read(T& value);
    template <typename T>
    T Read();
    template <typename T>
    bool ReadPadded(T& value);
    bool WritePadded(const void* data, size_t size, size_t zeroTail);
    void* Reallocate(size_t newCapacity);
    bool EnsureWritableCapacity(size_t desiredBytes);
    size_t CalcNewCapacity(size_t minNewCapacity) const;
    bool IsObjectOffset(binder_size_t offset) const;
    bool ValidateReadData(size_t upperBound);
    template <typename Str>
    bool WriteText(const Str& value, size_t maxLength);
    template <typename Str>
    bool ReadText(Str& value);

    // Null for the heap (DefaultAllocator's memory, without a call through the allocator).
    Allocator* allocator_ = nullptr;
    uint8_t* data_ = nullptr;
    size_t capacity_ = 0;
    size_t maxCapacity_ = DEFAULT_CPACITY;
    size_t dataSize_ = 0;
    size_t writeCursor_ = 0;
    size_t readCursor_ = 0;
    // Made by the first EnsureObjectsCapacity: most parcels carry no object record and pay nothing for them.
    std::unique_ptr<ObjectRecords> objects_;
};

} // namespace OHOS

#endif // OHOS_UTILS_PARCEL_H
