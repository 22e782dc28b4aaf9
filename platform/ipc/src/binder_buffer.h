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
 * Host: the binder buffer of a receiving process, 1 MiB minus two pages, which holds every transaction and reply in
 * flight to it, from the moment it is sent until the receiver's parcel of it is gone. One that does not fit fails
 * with BR_FAILED_REPLY, whatever the sender's parcel allowed. Raw data above 32 KiB travels in shared memory and
 * takes only its record.
 */
#ifndef OHOS_IPC_BINDER_BUFFER_H
#define OHOS_IPC_BINDER_BUFFER_H

#include <cstddef>
#include <memory>
#include <mutex>

#include "message_parcel.h"

namespace OHOS {

class BinderBuffer : public std::enable_shared_from_this<BinderBuffer> {
public:
    static constexpr size_t SIZE = 1024 * 1024 - 2 * 4096;
    // Space taken in a buffer, given back when the last copy of it goes.
    using Space = std::shared_ptr<const size_t>;

    // This process's own buffer: what other processes send to it, and the replies to its calls.
    static const std::shared_ptr<BinderBuffer>& OfProcess();
    // What a transaction takes in a buffer: its data and its table of object offsets, each aligned to 8 bytes.
    static size_t SpaceOf(size_t dataSize, size_t objectCount);
    static size_t SpaceOf(const MessageParcel& parcel);

    // The space, or null (logged) if it does not fit beside what is in flight.
    Space Take(size_t space);
    // The received parcel holds the space for as long as it lives.
    static void KeepWith(MessageParcel& received, Space space);

private:
    void Release(size_t space);

    std::mutex mutex_;
    size_t used_ = 0;
};

} // namespace OHOS

#endif // OHOS_IPC_BINDER_BUFFER_H
