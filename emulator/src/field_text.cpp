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

#include "field_text.h"

#include <cstdio>

namespace OHOS {
namespace Zelkon {
namespace {
constexpr size_t SHOWN_TEXT_LENGTH = 40;

// Control characters would break the one-line form of a traced field.
std::string Printable(const std::string& text)
{
    std::string shown;
    for (unsigned char c : text) {
        if (c == '\n') {
            shown += "\\n";
        } else if (c < 0x20 || c == 0x7f) {
            char escaped[8];
            std::snprintf(escaped, sizeof(escaped), "\\x%02x", c);
            shown += escaped;
        } else {
            shown.push_back(static_cast<char>(c));
        }
    }
    return shown;
}
} // namespace

std::string QuotedText(const std::string& text)
{
    if (text.size() <= SHOWN_TEXT_LENGTH) {
        return "\"" + Printable(text) + "\"";
    }
    return "\"" + Printable(text.substr(0, SHOWN_TEXT_LENGTH)) + "...\" (" + std::to_string(text.size()) + " bytes)";
}

std::string ObjectText(const sptr<IRemoteObject>& object)
{
    if (object == nullptr) {
        return "null object";
    }
    const std::u16string descriptor = object->GetObjectDescriptor();
    std::string name;
    for (char16_t unit : descriptor) {
        name.push_back(unit < 0x80 ? static_cast<char>(unit) : '?');
    }
    return std::string(object->IsProxyObject() ? "remote " : "local ") + (name.empty() ? "object" : name);
}

} // namespace Zelkon
} // namespace OHOS
