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
 * The shape of a record as describe shows it: each field with its type ("deviceType": "int32"), nested records as
 * objects and lists as one-element arrays. A third visitor of the records' field lists, beside the reader and the
 * writer.
 */
#ifndef JSON_FIELD_SCHEMA_H
#define JSON_FIELD_SCHEMA_H

#include <type_traits>

#include <nlohmann/json.hpp>

#include "json_field_types.h"

namespace OHOS {
namespace Zelkon {

class JsonFieldSchema {
public:
    explicit JsonFieldSchema(nlohmann::ordered_json& object) : object_(object) {}

    template <typename Value>
    void Field(const char* name, const Value&)
    {
        object_[name] = Of<Value>();
    }

    template <typename Value>
    static nlohmann::ordered_json Of()
    {
        if constexpr (std::is_enum_v<Value>) {
            return JsonTypeName<std::underlying_type_t<Value>>();
        } else if constexpr (std::is_arithmetic_v<Value> || std::is_same_v<Value, std::string>) {
            return JsonTypeName<Value>();
        } else if constexpr (IS_JSON_LIST<Value>) {
            return nlohmann::ordered_json::array({Of<typename Value::value_type>()});
        } else {
            nlohmann::ordered_json object = nlohmann::ordered_json::object();
            JsonFieldSchema schema(object);
            Value record;
            VisitFields(schema, record);
            return object;
        }
    }

private:
    nlohmann::ordered_json& object_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // JSON_FIELD_SCHEMA_H
