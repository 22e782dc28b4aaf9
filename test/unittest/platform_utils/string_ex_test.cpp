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

// The platform's UTF-8 and UTF-16 conversions, corner by corner: what they decode without checking, where they stop
// and what they drop.
#include <gtest/gtest.h>

#include <string>

#include "string_ex.h"

namespace OHOS {
namespace {

// Which conversions a row holds for: most pairs convert both ways, but what one direction drops or decodes without
// checking does not come back the same.
enum class Direction { BOTH, TO_UTF16, TO_UTF8 };

TEST(StringExTest, DecodesWithoutCheckingLeavesOutLoneSurrogatesAndStopsAtANul)
{
    const struct {
        const char* name;
        std::string utf8;
        std::u16string utf16;
        Direction direction;
    } cases[] = {
        {"empty", "", u"", Direction::BOTH},
        {"ASCII", "share", u"share", Direction::BOTH},
        {"two and three bytes", "caf\xc3\xa9 \xe8\xae\xbe", u"caf\u00e9 \u8bbe", Direction::BOTH},
        {"four bytes are a surrogate pair", "\xf0\x9f\x98\x80", u"\xd83d\xde00", Direction::BOTH},
        {"an encoded surrogate", "\xed\xa0\x80", std::u16string(1, 0xd800), Direction::TO_UTF16},
        {"an overlong form", "\xc1\xa1", u"a", Direction::TO_UTF16},
        {"an unchecked continuation byte", "\xc3\x41", u"\u00c1", Direction::TO_UTF16},
        {"a stray continuation byte", "a\x80", u"a\u0080", Direction::TO_UTF16},
        {"an embedded NUL ends UTF-8", std::string("a\0b", 3), u"a", Direction::TO_UTF16},
        {"a sequence cut off by the end", "ab\xe8\xae", u"", Direction::TO_UTF16},
        {"a sequence cut off after a NUL", std::string("a\0\xc3", 3), u"", Direction::TO_UTF16},
        {"a high surrogate alone", "ab", std::u16string{u'a', 0xd83d, u'b'}, Direction::TO_UTF8},
        {"a low surrogate alone", "b", std::u16string{0xde00, u'b'}, Direction::TO_UTF8},
        {"two high surrogates", "\xf0\x9f\x98\x80", std::u16string{0xd83d, 0xd83d, 0xde00}, Direction::TO_UTF8},
        {"an embedded NUL ends UTF-16", "a", std::u16string(u"a\0b", 3), Direction::TO_UTF8},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        if (c.direction != Direction::TO_UTF8) {
            EXPECT_EQ(Str8ToStr16(c.utf8), c.utf16);
        }
        if (c.direction != Direction::TO_UTF16) {
            EXPECT_EQ(Str16ToStr8(c.utf16), c.utf8);
        }
    }
}

} // namespace
} // namespace OHOS
