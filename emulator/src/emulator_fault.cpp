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

#include "emulator_fault.h"

#include <charconv>
#include <cstdint>
#include <vector>

namespace OHOS {
namespace Zelkon {
namespace {
using Kind = EmulatorFault::Kind;

constexpr uint32_t LAST_SHARE_SERVICE_CODE = 27;
constexpr uint32_t MAX_SCRIPTED_LOADS = 1000;
constexpr uint32_t MAX_LOAD_DELAY_MS = 3600 * 1000;

struct Form {
    const char* name;
    Kind kind;
    // Whether ":NUMBER" follows the name: never, optionally (with the value 1 when it is left out), or always.
    enum class Number { NONE, OPTIONAL, REQUIRED } number;
    uint32_t minimum;
    uint32_t maximum;
};

const std::vector<Form> FORMS = {
    {"load-fail", Kind::LOAD_FAILS, Form::Number::OPTIONAL, 1, MAX_SCRIPTED_LOADS},
    {"load-delay", Kind::LOAD_DELAYED, Form::Number::REQUIRED, 0, MAX_LOAD_DELAY_MS},
    {"load-error", Kind::LOAD_ERROR, Form::Number::REQUIRED, 1, INT32_MAX},
    {"die-after", Kind::DIES_AFTER_REQUESTS, Form::Number::REQUIRED, 1, UINT32_MAX},
    {"die-in", Kind::DIES_IN_REQUEST, Form::Number::REQUIRED, 1, LAST_SHARE_SERVICE_CODE},
    {"stall-in", Kind::STALLS_IN_REQUEST, Form::Number::REQUIRED, 1, LAST_SHARE_SERVICE_CODE},
    {"hostile-count", Kind::HOSTILE_COUNT, Form::Number::NONE, 0, 0},
    {"truncated-record", Kind::TRUNCATED_RECORD, Form::Number::NONE, 0, 0},
    {"big-string", Kind::OVERSIZED_BIG_STRING, Form::Number::NONE, 0, 0},
    {"oversized-reply", Kind::OVERSIZED_REPLY, Form::Number::NONE, 0, 0},
};

bool ParseNumber(const std::string& text, uint32_t& value)
{
    const char* end = text.data() + text.size();
    auto [stop, error] = std::from_chars(text.data(), end, value);
    return !text.empty() && error == std::errc() && stop == end;
}
} // namespace

const char* const EmulatorFault::GRAMMAR =
    "  load-fail[:COUNT]   the next COUNT loads of the share service fail (1 by default), as timed out (error\n"
    "                      code 999)\n"
    "  load-delay:MS       the next load of the share service answers after MS milliseconds\n"
    "  load-error:CODE     the next load of the share service fails with error code CODE, as a service whose\n"
    "                      start failed reports it\n"
    "  die-after:N         the share service process dies right after answering N more requests\n"
    "  die-in:CODE         the share service process dies in the middle of its next request with code CODE\n"
    "                      (1 to 27): the caller gets no reply\n"
    "  stall-in:CODE       the share service stalls in its next request with code CODE until its watchdog ends\n"
    "                      its process 2 s later: the caller waits, then gets no reply\n"
    "  hostile-count       the next list reply counts 1001 records, above the bound of 1000\n"
    "  truncated-record    the next reply that carries records ends in the middle of its last record\n"
    "  big-string          the next preview data reply is a big string above its limit of 5 MiB\n"
    "  oversized-reply     the next reply of the share service is larger than the caller's binder buffer\n";

std::optional<EmulatorFault> EmulatorFault::Parse(const std::string& text, std::string& error)
{
    const size_t colon = text.find(':');
    const std::string name = text.substr(0, colon);
    for (const Form& form : FORMS) {
        if (name != form.name) {
            continue;
        }
        EmulatorFault fault;
        fault.kind = form.kind;
        if (colon == std::string::npos) {
            if (form.number == Form::Number::REQUIRED) {
                error = "fault '" + text + "' needs a number: " + name + ":NUMBER";
                return std::nullopt;
            }
            return fault;
        }
        if (form.number == Form::Number::NONE) {
            error = "fault '" + name + "' takes no number";
            return std::nullopt;
        }
        const std::string number = text.substr(colon + 1);
        if (!ParseNumber(number, fault.value) || fault.value < form.minimum || fault.value > form.maximum) {
            error = "fault '" + text + "': '" + number + "' is not a number from " + std::to_string(form.minimum) +
                    " to " + std::to_string(form.maximum);
            return std::nullopt;
        }
        return fault;
    }
    error = "unknown fault '" + text + "'";
    return std::nullopt;
}

std::string EmulatorFault::Text() const
{
    for (const Form& form : FORMS) {
        if (form.kind == kind) {
            return form.number == Form::Number::NONE ? form.name : form.name + (":" + std::to_string(value));
        }
    }
    return "";
}

bool EmulatorFault::IsLoadFault() const
{
    return kind == Kind::LOAD_FAILS || kind == Kind::LOAD_DELAYED || kind == Kind::LOAD_ERROR;
}

} // namespace Zelkon
} // namespace OHOS
