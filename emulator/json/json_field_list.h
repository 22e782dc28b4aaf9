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
 * How a record lists its fields for the JSON field visitors (JsonFieldReader, JsonFieldWriter, sharectl's schema):
 * JSON_FIELD_LIST(Record, member, ...) defines the record's VisitFields, which hands the visitor each member under
 * its own name. A key is always the member's name, so it cannot drift from it.
 */
#ifndef JSON_FIELD_LIST_H
#define JSON_FIELD_LIST_H

#include <type_traits>
#include <utility>

#include <nlohmann/json.hpp>

namespace OHOS {
namespace Zelkon {

// The record whose field list a record takes: its own type's by default. A record with the same members as one
// that lists its fields may take that list instead, by declaring an overload ("ContactEntry FieldListOf(const
// ContactInfo&);"); the two sides then share one list and neither needs the other's types.
template <typename Record>
Record FieldListOf(const Record&);

template <typename Record, typename Listed>
using IfFieldListOf = std::enable_if_t<std::is_same_v<decltype(FieldListOf(std::declval<const Record&>())), Listed>>;

} // namespace Zelkon
} // namespace OHOS

#define JSON_VISIT_FIELD(member) visitor.Field(#member, record.member);

// A member's name is text only to the preprocessor: the JSON library's own for-each over macro arguments (the one
// behind its type definition macros) expands JSON_VISIT_FIELD once a member.
#define JSON_FIELD_LIST(Listed, ...)                                                                                   \
    template <typename Visitor, typename Record>                                                                       \
    IfFieldListOf<Record, Listed> VisitFields(Visitor& visitor, Record& record)                                        \
    {                                                                                                                  \
        NLOHMANN_JSON_PASTE(JSON_VISIT_FIELD, __VA_ARGS__)                                                             \
    }

#endif // JSON_FIELD_LIST_H
