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

constexpr char32_t SURROGATE_FIRST = 0xD800;
constexpr char32_t SURROGATE_LAST = 0xDFFF;
constexpr char32_t LOW_SURROGATE_FIRST = 0xDC00;
constexpr char32_t SUPPLEMENTARY_FIRST = 0x10000;
constexpr unsigned UTF16_SHIFT = 10;
constexpr unsigned UTF8_SHIFT = 6;

// The length a UTF-8 lead byte announces, as the platform counts it: any byte below 0xC0 (a stray continuation
// byte too) is one character, 0xF8 to 0xFF announce four bytes.
size_t SequenceLength(uint8_t lead)
{
    return lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

// The platform does not check continuation bytes: it takes their low six bits, so encoded surrogates and overlong
// forms decode. A one-byte character is the byte's value, as on the device, whose char is unsigned.
char32_t CodePoint(const uint8_t* bytes, size_t length)
{
    static constexpr uint8_t LEAD_BITS[] = {0, 0xFF, 0x1F, 0x0F, 0x07};
    char32_t codePoint = bytes[0] & LEAD_BITS[length];
    for (size_t i = 1; i < length; ++i) {
        codePoint = (codePoint << UTF8_SHIFT) | (bytes[i] & 0x3F);
    }
    return codePoint;
}

bool IsSurrogate(char32_t unit)
{
    return unit >= SURROGATE_FIRST && unit <= SURROGATE_LAST;
}

bool IsHighSurrogate(char32_t unit)
{
    return unit >= SURROGATE_FIRST && unit < LOW_SURROGATE_FIRST;
}

void AppendUtf8(std::string& out, char32_t codePoint)
{
    if (codePoint < 0x80) {
        out.push_back(static_cast<char>(codePoint));
    } else if (codePoint < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (codePoint >> 6)));
        out.push_back(static_cast<char>(0x80 | (codePoint & 0x3F)));
    } else if (codePoint < SUPPLEMENTARY_FIRST) {
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
    const auto* bytes = reinterpret_cast<const uint8_t*>(str.data());
    // The platform counts the whole input before it converts: a sequence cut off by the end fails it all, even
    // after a NUL.
    for (size_t pos = 0; pos < str.size(); pos += SequenceLength(bytes[pos])) {
        if (SequenceLength(bytes[pos]) > str.size() - pos) {
            return u"";
        }
    }
    std::u16string out;
    out.reserve(str.size());
    for (size_t pos = 0; pos < str.size();) {
        const size_t length = SequenceLength(bytes[pos]);
        char32_t codePoint = CodePoint(bytes + pos, length);
        pos += length;
        // Its result is copied as a C string: it ends at the first NUL.
        if (codePoint == 0) {
            break;
        }
        if (codePoint < SUPPLEMENTARY_FIRST) {
            out.push_back(static_cast<char16_t>(codePoint));
            continue;
        }
        codePoint -= SUPPLEMENTARY_FIRST;
        out.push_back(static_cast<char16_t>(SURROGATE_FIRST + (codePoint >> UTF16_SHIFT)));
        out.push_back(static_cast<char16_t>(LOW_SURROGATE_FIRST + (codePoint & 0x3FF)));
    }
    return out;
}

std::string Str16ToStr8(const std::u16string& str16)
{
    std::string out;
    out.reserve(str16.size());
    for (size_t i = 0; i < str16.size(); ++i) {
        char32_t codePoint = str16[i];
        if (IsHighSurrogate(codePoint) && i + 1 < str16.size() && IsSurrogate(str16[i + 1]) &&
            !IsHighSurrogate(str16[i + 1])) {
            codePoint = SUPPLEMENTARY_FIRST + ((codePoint - SURROGATE_FIRST) << UTF16_SHIFT) +
                        (str16[++i] - LOW_SURROGATE_FIRST);
        }
        // The result ends at the first NUL, as on the platform; a surrogate without its pair has no UTF-8 form
        // there and is left out.
        if (codePoint == 0) {
            break;
        }
        if (!IsSurrogate(codePoint)) {
            AppendUtf8(out, codePoint);
        }
    }
    return out;
}

} // namespace OHOS
