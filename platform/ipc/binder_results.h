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
 * Host: the binder driver's answers that reach a caller of SendRequest as its result (on a device they come from
 * the kernel's binder header, linux/android/binder.h).
 */
#ifndef OHOS_IPC_BINDER_RESULTS_H
#define OHOS_IPC_BINDER_RESULTS_H

namespace OHOS {

enum {
    // The process of the target died before or during the transaction, and its death notice has not reached the
    // proxy (it never does to a proxy without death recipients).
    BR_DEAD_REPLY = 29189,
    // The transaction or its reply did not fit the receiving process's binder buffer.
    BR_FAILED_REPLY = 29201,
};

} // namespace OHOS

#endif // OHOS_IPC_BINDER_RESULTS_H
