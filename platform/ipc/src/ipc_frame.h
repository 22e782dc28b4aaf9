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
 * Host: one frame of the transport between processes. A fixed header (magic, version, kind, sizes, handle, code,
 * flags, status, pid, transaction), the data bytes, then the table of the objects that the data holds. Descriptors
 * travel beside the bytes (SCM_RIGHTS) and the table names them by index. Decoding is a pure function of the bytes and
 * the descriptors received with them: anything that is not exactly a frame is refused.
 */
#ifndef OHOS_IPC_IPC_FRAME_H
#define OHOS_IPC_IPC_FRAME_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "unique_fd.h"

namespace OHOS {

class IpcFrame {
public:
    enum class Kind : uint16_t {
        SESSION_HELLO = 1, // both ways when a session opens: handle = session nonce, pid, data = listening address
        CHANNEL_HELLO,     // when a caller opens a channel: handle = session nonce, pid, data = caller's address
        TRANSACTION,       // handle = target, code, flags; data with objects and descriptors
        REPLY,             // status; data with objects and descriptors when the status is 0
        ACQUIRE,           // handle: take one reference for the session; the reply's data is the descriptor
        RELEASE,           // on the session: one reference on handle given back
        GRANT,             // handle, held by the caller, may be acquired by the process at the address in the data
    };
    enum class ObjectKind : uint32_t {
        EXPORTED = 1, // a stub of the sender (value = its handle there), carrying one reference
        RETURNED,     // an object of the receiver (value = its own handle)
        FOREIGN,      // an object of a third process (value = its handle there, address = that process)
        DESCRIPTOR,   // value = index among the descriptors that came with the frame
    };
    struct Object {
        uint32_t offset = 0;
        ObjectKind kind = ObjectKind::EXPORTED;
        uint64_t value = 0;
        std::u16string descriptor;
        std::string address;
    };

    static constexpr size_t HEADER_SIZE = 56;
    // A binder buffer's size: no larger parcel is ever sent (raw data above 32 KiB travels in shared memory).
    static constexpr size_t MAX_DATA_SIZE = 1024 * 1024 - 2 * 4096;
    static constexpr size_t MAX_FDS = 253;
    static constexpr size_t MAX_ADDRESS_SIZE = 107;
    static constexpr size_t MAX_DESCRIPTOR_UNITS = 512;
    // The transaction code of a dump ('_DMP'), outside the codes that callers may use.
    static constexpr uint32_t DUMP_CODE = 0x5f444d50;

    Kind kind = Kind::TRANSACTION;
    uint64_t handle = 0;
    uint32_t code = 0;
    uint32_t flags = 0;
    int32_t status = 0;
    int32_t pid = 0;
    // Chosen by the caller of a channel; its reply carries the same, so that a stray reply is told apart.
    uint64_t transaction = 0;
    std::vector<Object> objects;
    // Received frames own their descriptors.
    std::vector<UniqueFd> fds;

    // The bytes of this frame around the given data; fdCount descriptors are sent beside them.
    std::vector<uint8_t> Encode(const uint8_t* data, size_t size, size_t fdCount) const;
    // A hello of the process pid for the session nonce, carrying an address.
    static std::vector<uint8_t> EncodeHello(Kind kind, uint64_t nonce, int32_t pid, const std::string& address);
    // How many bytes follow the header, or false with the reason if the header is refused.
    static bool BodySize(const uint8_t* header, size_t& size, const char*& error);
    // The frame held by bytes (header included) and the descriptors received with them; nullopt with the reason if
    // refused, the descriptors closed.
    static std::optional<IpcFrame> Decode(std::vector<uint8_t> bytes, std::vector<UniqueFd> fds, const char*& error);

    const uint8_t* Data() const { return bytes_.data() + HEADER_SIZE; }
    uint8_t* MutableData() { return bytes_.data() + HEADER_SIZE; }
    size_t DataSize() const { return dataSize_; }
    // The address that a hello or a grant carries.
    std::string Address() const { return std::string(reinterpret_cast<const char*>(Data()), dataSize_); }

private:
    std::vector<uint8_t> bytes_;
    size_t dataSize_ = 0;
};

} // namespace OHOS

#endif // OHOS_IPC_IPC_FRAME_H
