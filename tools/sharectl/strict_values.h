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
 * Values typed on the command line, read strictly: a decimal integer within its type's range and nothing else
 * ("2abc", "0x10", " 1", and "4294967297" for an int32 are refused), a flag spelled true or false.
 */
#ifndef STRICT_VALUES_H
#define STRICT_VALUES_H

#include <charconv>
#include <limits>
#include <string>

#include "json_field_types.h"
#include "usage_error.h"

namespace OHOS {
namespace Zelkon {

// `what` names the value in the error ("remove-device ID").
template <typename Integer>
Integer RequireInteger(const std::string& text, const std::string& what)
{
    Integer value{};
    const char* end = text.data() + text.size();
    auto [stop, error] = std::from_chars(text.data(), end, value);
    if (text.empty() || error != std::errc() || stop != end) {
        using Limits = std::numeric_limits<Integer>;
        throw UsageError(what + ": '" + text + "' is not an " + JsonTypeName<Integer>() + " (a decimal number from " +
                         std::to_string(Limits::min()) + " to " + std::to_string(Limits::max()) + ")");
    }
    return value;
}

inline bool RequireBool(const std::string& text, const std::string& what)
{
    if (text != "true" && text != "false") {
        throw UsageError(what + ": '" + text + "' is not a bool (true or false)");
    }
    return text == "true";
}

} // namespace Zelkon
} // namespace OHOS

#endif // STRICT_VALUES_H
