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

#include "binder_buffer.h"

#include "ipc_frame.h"
#include "ipc_log.h"

namespace OHOS {
namespace {
constexpr size_t ALIGNMENT = 8;
// The driver's entry for each object record: a 64-bit offset.
constexpr size_t OFFSET_ENTRY_SIZE = 8;

size_t Aligned(size_t size)
{
    return (size + ALIGNMENT - 1) / ALIGNMENT * ALIGNMENT;
}
static_assert(IpcFrame::MAX_DATA_SIZE == BinderBuffer::SIZE, "a frame carries whatever a binder buffer holds");
} // namespace

const std::shared_ptr<BinderBuffer>& BinderBuffer::OfProcess()
{
    // Never destroyed: parcels received by threads that outlive the statics still give their space back.
    static const auto* buffer = new std::shared_ptr<BinderBuffer>(std::make_shared<BinderBuffer>());
    return *buffer;
}

size_t BinderBuffer::SpaceOf(size_t dataSize, size_t objectCount)
{
    return Aligned(dataSize) + objectCount * OFFSET_ENTRY_SIZE;
}

size_t BinderBuffer::SpaceOf(const MessageParcel& parcel)
{
    return SpaceOf(parcel.GetDataSize(), parcel.GetOffsetsSize());
}

BinderBuffer::Space BinderBuffer::Take(size_t space)
{
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (space > SIZE - used_) {
            IPC_HOST_LOGE(
                "a transaction of %{public}zu bytes does not fit the %{public}zu bytes left of a binder buffer", space,
                SIZE - used_);
            return nullptr;
        }
        used_ += space;
    }
    return Space(new size_t(space), [buffer = shared_from_this()](const size_t* taken) {
        buffer->Release(*taken);
        delete taken;
    });
}

void BinderBuffer::KeepWith(MessageParcel& received, Space space)
{
    received.bufferSpace_ = std::move(space);
}

void BinderBuffer::Release(size_t space)
{
    std::lock_guard<std::mutex> lock(mutex_);
    used_ -= space;
}

} // namespace OHOS
