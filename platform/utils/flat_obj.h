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
 * The object record of a parcel as the kernel driver lays it out: a parcel keeps the offsets of these records, and
 * a plain read may not take any of their bytes. The host uses the 64-bit layout, as the platform does by default.
 */
#ifndef UTILS_BASE_FLAT_OBJ_H
#define UTILS_BASE_FLAT_OBJ_H

#include <cstdint>

using binder_size_t = uint64_t;
using binder_uintptr_t = uint64_t;

struct parcel_binder_object_header {
    uint32_t type;
};

struct parcel_flat_binder_object {
    struct parcel_binder_object_header hdr;
    uint32_t flags;
    union {
        binder_uintptr_t binder;
        uint32_t handle;
    };
    binder_uintptr_t cookie;
};

#endif // UTILS_BASE_FLAT_OBJ_H
