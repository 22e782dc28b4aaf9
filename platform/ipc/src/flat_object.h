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
 * Host: the 24-byte record that stands for a remote object or a file descriptor in a parcel's data, as the
 * platform lays it out: type word, flags word, then 16 bytes of value (the host writes 0, or a descriptor number).
 */
#ifndef OHOS_IPC_FLAT_OBJECT_H
#define OHOS_IPC_FLAT_OBJECT_H

#include <cstddef>
#include <cstdint>

namespace OHOS {
namespace FlatObject {

constexpr uint32_t TYPE_BINDER = 0x73622a85;
constexpr uint32_t TYPE_HANDLE = 0x73682a85;
constexpr uint32_t TYPE_FD = 0x66642a85;
constexpr uint32_t FLAGS = 0x17f;
constexpr size_t SIZE = 24;
constexpr size_t VALUE_OFFSET = 8;
constexpr size_t VALUE_SIZE = 16;

} // namespace FlatObject
} // namespace OHOS

#endif // OHOS_IPC_FLAT_OBJECT_H
