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
 * A fault that the emulated services play on demand, so that an application can see its own error paths: loads
 * that fail or answer late, a share service process that dies, hostile replies. Written as text by
 * `sharectl --fault FAULT`; EmulatorFault::GRAMMAR says how.
 */
#ifndef EMULATOR_FAULT_H
#define EMULATOR_FAULT_H

#include <cstdint>
#include <optional>
#include <string>

namespace OHOS {
namespace Zelkon {

struct EmulatorFault {
    enum class Kind {
        LOAD_FAILS,           // the next `value` loads of the share service fail, as timed out
        LOAD_DELAYED,         // the next load answers after `value` milliseconds
        LOAD_ERROR,           // the next load fails with the error code `value`, as a service whose start failed
        DIES_AFTER_REQUESTS,  // the share service process dies right after answering `value` more requests
        DIES_IN_REQUEST,      // it dies in the middle of its next request with code `value`: no reply
        STALLS_IN_REQUEST,    // it stalls in its next request with code `value` until its watchdog ends it
        HOSTILE_COUNT,        // the next list reply counts more records than the bound of 1000
        TRUNCATED_RECORD,     // the next reply that carries records ends in the middle of its last record
        OVERSIZED_BIG_STRING, // the next big string reply (the preview data) is above its limit of 5 MiB
        OVERSIZED_REPLY,      // the next reply of the share service does not fit the caller's binder buffer
    };

    Kind kind = Kind::LOAD_FAILS;
    uint32_t value = 1;

    // One line per form of FAULT, for help texts.
    static const char* const GRAMMAR;
    // Empty, with the reason in `error`, for a FAULT text that is not one of GRAMMAR's forms.
    static std::optional<EmulatorFault> Parse(const std::string& text, std::string& error);
    // The FAULT text that Parse reads back as this fault.
    std::string Text() const;
    // Whether the system ability manager plays it (a load's outcome), not the share service.
    bool IsLoadFault() const;
};

} // namespace Zelkon
} // namespace OHOS

#endif // EMULATOR_FAULT_H
