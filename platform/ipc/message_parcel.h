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
 * The parcel of one transaction: a Parcel that also carries remote objects, file descriptors, the interface
 * token and big raw data blocks in shared memory.
 */
#ifndef OHOS_IPC_MESSAGE_PARCEL_H
#define OHOS_IPC_MESSAGE_PARCEL_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>

#include "parcel.h"
#include "refbase.h"

namespace OHOS {

class IRemoteObject;

class MessageParcel : public Parcel {
public:
    MessageParcel();
    explicit MessageParcel(Allocator* allocator);
    ~MessageParcel() override;

    bool WriteRemoteObject(const sptr<IRemoteObject>& object);
    // Succeeds only at the offset of a record written by WriteRemoteObject; a descriptor's record there is passed
    // over, and elsewhere the cursor stays put.
    sptr<IRemoteObject> ReadRemoteObject();

    // Carries a dup of fd; the parcel closes its copies when destroyed.
    bool WriteFileDescriptor(int fd);
    // A new dup of the carried descriptor (the caller owns it), or INVALID_FD.
    int ReadFileDescriptor();
    bool ContainFileDescriptors() const;

    bool WriteInterfaceToken(std::u16string name);
    std::u16string ReadInterfaceToken();
    std::u16string GetInterfaceToken() const;

    // Up to 32 KiB inline, above that in one shared-memory block per parcel (128 MiB at most).
    bool WriteRawData(const void* data, size_t size);
    const void* ReadRawData(size_t size);
    const void* GetRawData() const;
    size_t GetRawDataSize() const;
    size_t GetRawDataCapacity() const;

    // Host: the process that wrote the parcel, as the platform tells a stub its calling pid: for a parcel read from
    // another process's frame, the pid the kernel confirmed when their session began; else this process's own.
    pid_t GetSenderPid() const;

    void WriteNoException();
    int32_t ReadException();

    static constexpr size_t MAX_INLINE_RAW_DATA_SIZE = 32768;
    static constexpr size_t MAX_RAW_DATA_SIZE = 128 * 1024 * 1024;

private:
    friend class BinderBuffer;
    friend class ParcelRecords;
    friend class ParcelWire;

    enum class CarriedKind { OBJECT, FD };
    struct Carried {
        CarriedKind kind;
        sptr<IRemoteObject> object;
        int fd;
    };

    bool WriteRecord(uint32_t type, uint64_t value, const Carried& carried);
    // What the record at offset carries; it replaces what a record dropped there carried.
    void Carry(size_t offset, Carried carried);
    // What the record at the read position carries, then past it; null (the cursor kept) if no record is there.
    const Carried* RecordAtReadPosition();
    bool WriteSharedMemoryBlock(const void* data, size_t size);
    const void* MapSharedMemoryBlock(size_t size);

    std::u16string interfaceToken_;
    // Keyed by the offset of each 24-byte record in the data.
    std::map<size_t, Carried> carried_;
    bool sharedBlockWritten_ = false;
    std::vector<std::pair<void*, size_t>> mappings_;
    const void* rawData_ = nullptr;
    size_t rawDataSize_ = 0;
    // Host: the space a received parcel takes in its receiver's binder buffer, given back when the parcel goes.
    std::shared_ptr<const size_t> bufferSpace_;
    // Host: set for a parcel read from another process's frame.
    pid_t senderPid_ = 0;
};

} // namespace OHOS

#endif // OHOS_IPC_MESSAGE_PARCEL_H
