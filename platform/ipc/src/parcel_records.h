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
 * Host: what a parcel carries beside its bytes (remote objects and descriptors at the offsets of their 24-byte
 * records), taken out of a parcel and put into a new one. Whatever moves a parcel to another process, in this one
 * or across a socket, moves the bytes plus these records.
 */
#ifndef OHOS_IPC_PARCEL_RECORDS_H
#define OHOS_IPC_PARCEL_RECORDS_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include "iremote_object.h"
#include "message_parcel.h"

namespace OHOS {

// One record: an object, or else a descriptor.
struct ParcelRecord {
    size_t offset = 0;
    sptr<IRemoteObject> object;
    int fd = -1;
};

class ParcelRecords {
public:
    // The records still in place in the parcel, in offset order; their descriptors remain the parcel's.
    static std::vector<ParcelRecord> Of(const MessageParcel& parcel);
    // Appends the bytes to the parcel with the records at their offsets: an object record's type word says whether
    // the object is local or a proxy and its value words are 0; a descriptor record holds the new descriptor's number.
    // The parcel owns the descriptors from then on; on failure they are closed, as they are when one is missing.
    static bool Append(MessageParcel& parcel, uint8_t* bytes, size_t size, std::vector<ParcelRecord> records);
};

} // namespace OHOS

#endif // OHOS_IPC_PARCEL_RECORDS_H
