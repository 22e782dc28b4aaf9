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
 * The kinds of field that the JSON field visitors know: texts, flags, integers of fixed width (and enumerations
 * over them), lists, and records that list their own fields.
 */
#ifndef JSON_FIELD_TYPES_H
#define JSON_FIELD_TYPES_H

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace OHOS {
namespace Zelkon {

template <typename Value>
inline constexpr bool IS_JSON_LIST = false;
template <typename Element>
inline constexpr bool IS_JSON_LIST<std::vector<Element>> = true;

template <typename Value>
constexpr const char* JsonTypeName()
{
    if constexpr (std::is_same_v<Value, std::string>) {
        return "string";
    } else if constexpr (std::is_same_v<Value, bool>) {
        return "bool";
    } else if constexpr (std::is_same_v<Value, int8_t>) {
        return "int8";
    } else if constexpr (std::is_same_v<Value, int32_t>) {
        return "int32";
    } else if constexpr (std::is_same_v<Value, uint32_t>) {
        return "uint32";
    } else {
        static_assert(std::is_same_v<Value, int64_t>, "a field type without a JSON name");
        return "int64";
    }
}

} // namespace Zelkon
} // namespace OHOS

#endif // JSON_FIELD_TYPES_H
