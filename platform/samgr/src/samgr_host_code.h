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
 * Host: the requests that the host system ability manager serves to other processes. The first ones are the
 * manager's interface; the last ones are the host controls that a process across the boundary may use.
 */
#ifndef OHOS_SAMGR_SAMGR_HOST_CODE_H
#define OHOS_SAMGR_SAMGR_HOST_CODE_H

#include <cstdint>

namespace OHOS {

enum class SamgrHostCode : uint32_t {
    LIST = 1,     // dump flags: int32 count, then each name
    GET,          // id: the ability or none, after loading it if it can be loaded
    CHECK,        // id: the ability or none
    ADD,          // id, the ability: int32 result
    REMOVE,       // id: int32 result
    LOAD,         // id, the callback: int32 result; the outcome reaches the callback later
    UNLOAD,       // id: int32 result
    SCRIPT_LOADS, // outcome, delay in ms, other id, refuse code, fail code, count
    KILL,         // id: int32 pid of the process killed, or -1
    LOOKUP_COUNT, // id: int32
    LOAD_COUNT,   // id: int32
};

} // namespace OHOS

#endif // OHOS_SAMGR_SAMGR_HOST_CODE_H
