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
 * Result codes and transaction constants of the IPC part.
 */
#ifndef OHOS_IPC_IPC_TYPES_H
#define OHOS_IPC_IPC_TYPES_H

#include <cerrno>
#include <cstdint>

#include "errors.h"

namespace OHOS {

enum {
    FIRST_CALL_TRANSACTION = 0x00000001,
    LAST_CALL_TRANSACTION = 0x00ffffff,
};

enum {
    ERR_NONE = 0,
    ERR_TRANSACTION_FAILED = 1,
    ERR_UNKNOWN_OBJECT = 2,
    ERR_FLATTEN_OBJECT = 3,
    ERR_UNKNOWN_TRANSACTION = 4,
    ERR_INVALID_DATA = 5,
    ERR_NULL_OBJECT = 7,
    ERR_UNKNOWN_REASON = 8,
    ERR_INVALID_REPLY = 9,
    ERR_INVALID_STATE = 10,
    IPC_PROXY_ERR = 200,
    IPC_PROXY_DEAD_OBJECT_ERR = 201,
    IPC_PROXY_NULL_INVOKER_ERR = 202,
    IPC_PROXY_TRANSACTION_ERR = 203,
    IPC_PROXY_INVALID_CODE_ERR = 204,
    IPC_STUB_ERR = 300,
    IPC_STUB_WRITE_PARCEL_ERR = 301,
    IPC_STUB_INVOKE_THREAD_ERR = 302,
    IPC_STUB_INVALID_DATA_ERR = 303,
    IPC_STUB_CURRENT_NULL_ERR = 304,
    IPC_STUB_UNKNOW_TRANS_ERR = 305,
};

// Legacy negative code some callers still compare against.
enum {
    DEAD_OBJECT = -EPIPE,
};

constexpr int INVALID_FD = -1;

} // namespace OHOS

#endif // OHOS_IPC_IPC_TYPES_H
