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
 * Reads records from JSON strictly, field by field, for the emulator's world files and sharectl's arguments. A
 * record lists its fields once, in a VisitFields(visitor, record) found next to the record's type; this reader and
 * JsonFieldWriter are two visitors of that one list. Every refusal names the field by its path
 * ("users[1].deviceType: expected an int32, got \"phone\"").
 */
#ifndef JSON_FIELD_READER_H
#define JSON_FIELD_READER_H

#include <algorithm>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

#include <nlohmann/json.hpp>

#include "json_field_types.h"

namespace OHOS {
namespace Zelkon {

// The one error of reading: the message begins with the path of the field.
class JsonFieldError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Far deeper than any record nests. A deeper document is refused while it is read, before it is built: building,
// printing and destroying a value recurse as deep as it nests.
inline constexpr int MAX_JSON_DEPTH = 64;

// Parses a whole document (nlohmann::json or nlohmann::ordered_json); a syntax error, a number out of the range
// of a double, or nesting deeper than MAX_JSON_DEPTH is a JsonFieldError that says where or what.
template <typename Json = nlohmann::json>
Json ParseJsonText(const std::string& text)
{
    const auto boundDepth = [](int depth, typename Json::parse_event_t event, Json&) {
        if (depth >= MAX_JSON_DEPTH &&
            (event == Json::parse_event_t::object_start || event == Json::parse_event_t::array_start)) {
            throw JsonFieldError("invalid JSON: nested deeper than " + std::to_string(MAX_JSON_DEPTH) + " levels");
        }
        return true;
    };
    try {
        return Json::parse(text, boundDepth);
    } catch (const nlohmann::json::exception& error) {
        const std::string what = error.what();
        throw JsonFieldError("invalid JSON: " + what.substr(what.find(' ') + 1));
    }
}

class JsonFieldReader {
public:
    // `path` names the object in messages; empty for the document itself.
    JsonFieldReader(const nlohmann::json& object, std::string path) : object_(object), path_(std::move(path))
    {
        if (!object_.is_object()) {
            throw Refusal(path_, "expected an object", object_);
        }
    }

    // A key that is absent leaves the value as it is.
    template <typename Value>
    void Field(const char* name, Value& value)
    {
        known_.emplace_back(name);
        auto found = object_.find(name);
        if (found != object_.end()) {
            Read(*found, Join(path_, name), value);
        }
    }

    // After every field was visited.
    void RefuseUnknownKeys() const
    {
        for (const auto& [key, unused] : object_.items()) {
            if (std::find(known_.begin(), known_.end(), key) == known_.end()) {
                std::string fields;
                for (const std::string& name : known_) {
                    fields += (fields.empty() ? "" : ", ") + name;
                }
                throw JsonFieldError(Join(path_, key) + ": unknown field (known: " + fields + ")");
            }
        }
    }

    template <typename Value>
    static void Read(const nlohmann::json& json, const std::string& path, Value& value)
    {
        if constexpr (std::is_same_v<Value, std::string>) {
            value = Checked(json, json.is_string(), path, "a string").template get<std::string>();
        } else if constexpr (std::is_same_v<Value, bool>) {
            value = Checked(json, json.is_boolean(), path, "true or false").template get<bool>();
        } else if constexpr (std::is_enum_v<Value>) {
            std::underlying_type_t<Value> number{};
            Read(json, path, number);
            value = static_cast<Value>(number);
        } else if constexpr (std::is_integral_v<Value>) {
            value = ReadInteger<Value>(json, path);
        } else if constexpr (IS_JSON_LIST<Value>) {
            Checked(json, json.is_array(), path, "an array");
            value.assign(json.size(), typename Value::value_type{});
            for (size_t i = 0; i < json.size(); ++i) {
                Read(json[i], path + "[" + std::to_string(i) + "]", value[i]);
            }
        } else {
            JsonFieldReader record(json, path);
            VisitFields(record, value);
            record.RefuseUnknownKeys();
        }
    }

private:
    static std::string Join(const std::string& path, const std::string& name)
    {
        return path.empty() ? name : path + "." + name;
    }

    static JsonFieldError Refusal(const std::string& path, const std::string& what, const nlohmann::json& json)
    {
        constexpr size_t SHOWN = 40;
        // A record or a list is named, not printed: it may be as large as the document.
        std::string shown = json.is_object() ? "an object" : json.is_array() ? "an array" : json.dump();
        if (shown.size() > SHOWN) {
            shown = shown.substr(0, SHOWN) + "...";
        }
        return JsonFieldError((path.empty() ? "the document" : path) + ": " + what + ", got " + shown);
    }

    static const nlohmann::json& Checked(const nlohmann::json& json, bool ok, const std::string& path,
                                         const char* expected)
    {
        if (!ok) {
            throw Refusal(path, std::string("expected ") + expected, json);
        }
        return json;
    }

    template <typename Integer>
    static Integer ReadInteger(const nlohmann::json& json, const std::string& path)
    {
        const std::string expected = std::string("an ") + JsonTypeName<Integer>();
        Checked(json, json.is_number_integer(), path, expected.c_str());
        using Limits = std::numeric_limits<Integer>;
        // A JSON integer is unsigned when it is not negative.
        const bool inRange = json.is_number_unsigned() ? json.get<uint64_t>() <= static_cast<uint64_t>(Limits::max())
                                                       : json.get<int64_t>() >= static_cast<int64_t>(Limits::min());
        if (!inRange) {
            throw Refusal(path, std::string("out of the range of ") + JsonTypeName<Integer>(), json);
        }
        return static_cast<Integer>(json.is_number_unsigned() ? json.get<uint64_t>() : json.get<int64_t>());
    }

    const nlohmann::json& object_;
    const std::string path_;
    std::vector<std::string> known_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // JSON_FIELD_READER_H
