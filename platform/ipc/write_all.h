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

#ifndef OHOS_IPC_WRITE_ALL_H
#define OHOS_IPC_WRITE_ALL_H

#include <cerrno>
#include <cstddef>
#include <sys/types.h>

namespace OHOS {

// Hands `size` bytes to `writeFrom(offset)` (a write, send or sendmsg of the bytes from `offset` on) until all are
// taken: a signal only interrupts, a short write only delays. False once the other end takes nothing more.
template <typename WriteFrom>
bool WriteAll(size_t size, WriteFrom writeFrom)
{
    for (size_t written = 0; written < size;) {
        const ssize_t count = writeFrom(written);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return false;
        }
        written += static_cast<size_t>(count);
    }
    return true;
}

} // namespace OHOS
#endif // OHOS_IPC_WRITE_ALL_H
