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
 * Host: what the binder driver does to a transaction that crosses into another process.
 */
#ifndef OHOS_IPC_PROCESS_BOUNDARY_H
#define OHOS_IPC_PROCESS_BOUNDARY_H

#include "iremote_object.h"
#include "message_parcel.h"

namespace OHOS {

class ProcessBoundary {
public:
    // A local object arrives as the remote object that stands for it (the same one while it lives and its
    // process is not killed); a remote object arrives as itself.
    static sptr<IRemoteObject> Translate(const sptr<IRemoteObject>& object);
    // Copies the bytes and everything `from` carries into the fresh parcel `to`, whatever the size: objects
    // translated, descriptors dup'ed, shared-memory blocks shared. `to` is read from position 0.
    static bool Copy(const MessageParcel& from, MessageParcel& to);
};

} // namespace OHOS

#endif // OHOS_IPC_PROCESS_BOUNDARY_H
