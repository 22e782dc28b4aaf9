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

#include "parcel_records.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <unistd.h>

#include "flat_obj.h"
#include "flat_object.h"
#include "ipc_log.h"

namespace OHOS {
namespace {

void CloseAll(const std::vector<ParcelRecord>& records)
{
    for (const ParcelRecord& record : records) {
        if (record.object == nullptr && record.fd >= 0) {
            close(record.fd);
        }
    }
}
} // namespace

std::vector<ParcelRecord> ParcelRecords::Of(const MessageParcel& parcel)
{
    std::vector<ParcelRecord> records;
    if (parcel.GetOffsetsSize() == 0) {
        return records;
    }
    const auto* offsets = reinterpret_cast<const binder_size_t*>(static_cast<uintptr_t>(parcel.GetObjectOffsets()));
    for (size_t i = 0; i < parcel.GetOffsetsSize(); ++i) {
        auto carried = parcel.carried_.find(offsets[i]);
        // One cut off by SetDataSize does not travel.
        if (carried == parcel.carried_.end() || offsets[i] + FlatObject::SIZE > parcel.GetDataSize()) {
            continue;
        }
        const bool object = carried->second.kind == MessageParcel::CarriedKind::OBJECT;
        records.push_back(
            {carried->first, object ? carried->second.object : nullptr, object ? INVALID_FD : carried->second.fd});
    }
    // Recorded in the order written, which the rollback of a failed marshalling can make other than the data's.
    std::sort(records.begin(), records.end(),
              [](const ParcelRecord& a, const ParcelRecord& b) { return a.offset < b.offset; });
    return records;
}

bool ParcelRecords::Append(MessageParcel& parcel, uint8_t* bytes, size_t size, std::vector<ParcelRecord> records)
{
    for (const ParcelRecord& record : records) {
        if (record.object == nullptr && record.fd < 0) {
            CloseAll(records);
            return false;
        }
        if (record.object != nullptr) {
            const uint32_t type = record.object->IsProxyObject() ? FlatObject::TYPE_HANDLE : FlatObject::TYPE_BINDER;
            std::memcpy(bytes + record.offset, &type, sizeof(type));
            std::memset(bytes + record.offset + FlatObject::VALUE_OFFSET, 0, FlatObject::VALUE_SIZE);
        } else {
            const uint64_t value = static_cast<uint64_t>(record.fd);
            std::memcpy(bytes + record.offset + FlatObject::VALUE_OFFSET, &value, sizeof(value));
        }
    }
    if (size == 0) {
        return true;
    }
    const size_t base = parcel.GetWritePosition();
    // The receiving side is not bound by the default maximum: whatever the sender could write arrives.
    if (base + size > parcel.GetMaxCapacity()) {
        parcel.SetMaxCapacity(base + size);
    }
    if (!parcel.WriteBuffer(bytes, size)) {
        IPC_HOST_LOGE("copy of %{public}zu bytes failed", size);
        CloseAll(records);
        return false;
    }
    for (ParcelRecord& record : records) {
        const bool object = record.object != nullptr;
        parcel.Carry(
            base + record.offset,
            MessageParcel::Carried{object ? MessageParcel::CarriedKind::OBJECT : MessageParcel::CarriedKind::FD,
                                   std::move(record.object), object ? INVALID_FD : record.fd});
        // The offsets are distinct and within the data, so each is recorded; the parcel owns the descriptor anyway.
        (void)(parcel.EnsureObjectsCapacity() && parcel.WriteObjectOffset(base + record.offset));
    }
    return true;
}

} // namespace OHOS
