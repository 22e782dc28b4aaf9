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
 * The frame decoder of the host transport reads what other processes send. Input: one byte whose low two bits say
 * how many descriptors came with the frame, then the frame's bytes.
 */
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <sys/eventfd.h>
#include <unistd.h>
#include <vector>

#include "ipc_frame.h"
#include "unique_fd.h"

namespace {
constexpr uint8_t DESCRIPTOR_COUNT_MASK = 0x3;

// The lowest free descriptor number: the same after an input as before it, unless one leaked.
int LowestFreeDescriptor()
{
    const int probe = eventfd(0, EFD_CLOEXEC);
    close(probe);
    return probe;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using OHOS::IpcFrame;
    if (size == 0) {
        return 0;
    }
    const int lowestFree = LowestFreeDescriptor();
    std::vector<OHOS::UniqueFd> fds;
    for (int i = 0; i < (data[0] & DESCRIPTOR_COUNT_MASK); ++i) {
        fds.emplace_back(eventfd(0, EFD_CLOEXEC));
    }
    const std::vector<uint8_t> bytes(data + 1, data + size);
    const char* error = nullptr;
    std::optional<IpcFrame> frame = IpcFrame::Decode(bytes, std::move(fds), error);
    // A refusal has a reason; an accepted frame has exactly one encoding, the one it arrived in (its transaction id
    // included).
    if (frame.has_value() ? frame->Encode(frame->Data(), frame->DataSize(), frame->fds.size()) != bytes
                          : error == nullptr) {
        abort();
    }
    // A hello or a grant names a process: an address of 1 to MAX_ADDRESS_SIZE bytes, and nothing else.
    const bool addressed =
        frame.has_value() && (frame->kind == IpcFrame::Kind::SESSION_HELLO ||
                              frame->kind == IpcFrame::Kind::CHANNEL_HELLO || frame->kind == IpcFrame::Kind::GRANT);
    if (addressed && (frame->Address().empty() || frame->Address().size() > IpcFrame::MAX_ADDRESS_SIZE ||
                      !frame->objects.empty() || !frame->fds.empty())) {
        abort();
    }
    frame.reset();
    if (LowestFreeDescriptor() != lowestFree) {
        abort();
    }
    return 0;
}
