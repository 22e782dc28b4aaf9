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

#include "string_ex.h"

#include <cstdint>

namespace OHOS {
namespace {

bool DecodeUtf8(const std::string& str, size_t& pos, char32_t& codePoint)
{
    auto byte = [&str](size_t i) { return static_cast<uint8_t>(str[i]); };
    uint8_t lead = byte(pos);
    size_t length = lead < 0x80 ? 1 : (lead >> 5) == 0x6 ? 2 : (lead >> 4) == 0xE ? 3 : (lead >> 3) == 0x1E ? 4 : 0;
    if (length == 0 || pos + length > str.size()) {
        return false;
    }
    codePoint = length == 1 ? lead : lead & (0x7F >> length);
    for (size_t i = 1; i < length; ++i) {
        if ((byte(pos + i) & 0xC0) != 0x80) {
            return false;
        }
        codePoint = (codePoint << 6) | (byte(pos + i) & 0x3F);
    }
    pos += length;
    return codePoint <= 0x10FFFF && (codePoint < 0xD800 || codePoint > 0xDFFF);
}

void AppendUtf8(std::string& out, char32_t codePoint)
{
    if (codePoint < 0x80) {
        out.push_back(static_cast<char>(codePoint));
    } else if (codePoint < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (codePoint >> 6)));
        out.push_back(static_cast<char>(0x80 | (codePoint & 0x3F)));
    } else if (codePoint < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | (codePoint >> 12)));
        out.push_back(static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (codePoint & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | (codePoint >> 18)));
        out.push_back(static_cast<char>(0x80 | ((codePoint >> 12) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (codePoint & 0x3F)));
    }
}

} // namespace

std::u16string Str8ToStr16(const std::string& str)
{
    std::u16string out;
    out.reserve(str.size());
    for (size_t pos = 0; pos < str.size();) {
        char32_t codePoint = 0;
        if (!DecodeUtf8(str, pos, codePoint)) {
            return u"";
        }
        if (codePoint < 0x10000) {
            out.push_back(static_cast<char16_t>(codePoint));
        } else {
            codePoint -= 0x10000;
            out.push_back(static_cast<char16_t>(0xD800 | (codePoint >> 10)));
            out.push_back(static_cast<char16_t>(0xDC00 | (codePoint & 0x3FF)));
        }
    }
    return out;
}

std::string Str16ToStr8(const std::u16string& str16)
{
    std::string out;
    out.reserve(str16.size());
    for (size_t i = 0; i < str16.size(); ++i) {
        char32_t unit = str16[i];
        if (unit >= 0xD800 && unit <= 0xDBFF) {
            if (i + 1 >= str16.size() || str16[i + 1] < 0xDC00 || str16[i + 1] > 0xDFFF) {
                return "";
            }
            unit = 0x10000 + ((unit - 0xD800) << 10) + (str16[++i] - 0xDC00);
        } else if (unit >= 0xDC00 && unit <= 0xDFFF) {
            return "";
        }
        AppendUtf8(out, unit);
    }
    return out;
}

} // namespace OHOS
