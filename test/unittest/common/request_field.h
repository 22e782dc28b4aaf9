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
 * A request as the service reads it: the test lists the fields it expects after the interface token (a word, a
 * text, or any remote object), and the scripted service reads them off the request with the parcel's own
 * primitives, noting every field that differs and any bytes left over. Booleans and 8-bit values travel as whole
 * words, so a word covers them.
 */
#ifndef REQUEST_FIELD_H
#define REQUEST_FIELD_H

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "message_parcel.h"

namespace OHOS {
namespace Zelkon {

// A listener or callback: any remote object.
struct AnyObject {};
inline constexpr AnyObject OBJECT{};

using RequestField = std::variant<int32_t, std::string, AnyObject>;

inline bool ReadsAs(MessageParcel& data, const RequestField& field)
{
    if (const auto* word = std::get_if<int32_t>(&field)) {
        int32_t value = 0;
        return data.ReadInt32(value) && value == *word;
    }
    if (const auto* text = std::get_if<std::string>(&field)) {
        std::string value;
        return data.ReadString(value) && value == *text;
    }
    return data.ReadRemoteObject() != nullptr;
}

// What differs from the expected token and fields; empty when the request is exactly that.
inline std::vector<std::string> Mismatches(MessageParcel& data, const std::u16string& token,
                                           const std::vector<RequestField>& fields)
{
    std::vector<std::string> mismatches;
    if (data.ReadInterfaceToken() != token) {
        mismatches.push_back("token");
    }
    for (size_t i = 0; i < fields.size(); ++i) {
        if (!ReadsAs(data, fields[i])) {
            mismatches.push_back("field " + std::to_string(i));
        }
    }
    if (data.GetReadableBytes() != 0) {
        mismatches.push_back("bytes left over");
    }
    return mismatches;
}

} // namespace Zelkon
} // namespace OHOS

#endif // REQUEST_FIELD_H
