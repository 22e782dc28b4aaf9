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

#ifndef UTILS_BASE_ERRORS_H
#define UTILS_BASE_ERRORS_H

#include <cerrno>

namespace OHOS {

using ErrCode = int;

enum {
    ERR_OK = 0,
    ERR_PERMISSION_DENIED = EPERM,
    ERR_INVALID_VALUE = EINVAL,
    ERR_DEAD_OBJECT = EPIPE,
    ERR_INVALID_OPERATION = ENOSYS,
    ERR_TIMED_OUT = ETIMEDOUT,
};

} // namespace OHOS

#endif // UTILS_BASE_ERRORS_H
