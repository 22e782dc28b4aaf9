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
 * Writes records to JSON field by field, in the order of their VisitFields list (see JsonFieldReader).
 */
#ifndef JSON_FIELD_WRITER_H
#define JSON_FIELD_WRITER_H

#include <string>
#include <type_traits>

#include <nlohmann/json.hpp>

#include "json_field_types.h"

namespace OHOS {
namespace Zelkon {

class JsonFieldWriter {
public:
    explicit JsonFieldWriter(nlohmann::ordered_json& object) : object_(object) {}

    template <typename Value>
    void Field(const char* name, const Value& value)
    {
        object_[name] = Write(value);
    }

    template <typename Value>
    static nlohmann::ordered_json Write(const Value& value)
    {
        if constexpr (std::is_enum_v<Value>) {
            return static_cast<std::underlying_type_t<Value>>(value);
        } else if constexpr (std::is_arithmetic_v<Value> || std::is_same_v<Value, std::string>) {
            return value;
        } else if constexpr (IS_JSON_LIST<Value>) {
            nlohmann::ordered_json array = nlohmann::ordered_json::array();
            for (const auto& element : value) {
                array.push_back(Write(element));
            }
            return array;
        } else {
            nlohmann::ordered_json object = nlohmann::ordered_json::object();
            JsonFieldWriter record(object);
            // The field list takes its record by reference, for the reader's sake; a writer only reads it.
            Value copy = value;
            VisitFields(record, copy);
            return object;
        }
    }

private:
    nlohmann::ordered_json& object_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // JSON_FIELD_WRITER_H
