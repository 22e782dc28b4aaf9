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

TEST(StringExTest, Str8ToStr16DecodesWithoutCheckingAndStopsAtANul)
{
    const struct {
        const char* name;
        std::string utf8;
        std::u16string utf16;
    } cases[] = {
        {"empty", "", u""},
        {"ASCII", "share", u"share"},
        {"two and three bytes", "caf\xc3\xa9 \xe8\xae\xbe", u"caf\u00e9 \u8bbe"},
        {"four bytes become a surrogate pair", "\xf0\x9f\x98\x80", u"\xd83d\xde00"},
        {"an encoded surrogate", "\xed\xa0\x80", std::u16string(1, 0xd800)},
        {"an overlong form", "\xc1\xa1", u"a"},
        {"an unchecked continuation byte", "\xc3\x41", u"\u00c1"},
        {"a stray continuation byte", "a\x80", u"a\u0080"},
        {"an embedded NUL ends it", std::string("a\0b", 3), u"a"},
        {"a sequence cut off by the end", "ab\xe8\xae", u""},
        {"a sequence cut off after a NUL", std::string("a\0\xc3", 3), u""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Str8ToStr16(c.utf8), c.utf16);
    }
}

TEST(StringExTest, Str16ToStr8LeavesOutLoneSurrogatesAndStopsAtANul)
{
    const struct {
        const char* name;
        std::u16string utf16;
        std::string utf8;
    } cases[] = {
        {"empty", u"", ""},
        {"two and three bytes", u"caf\u00e9 \u8bbe", "caf\xc3\xa9 \xe8\xae\xbe"},
        {"a surrogate pair", u"\xd83d\xde00", "\xf0\x9f\x98\x80"},
        {"a high surrogate alone", std::u16string{u'a', 0xd83d, u'b'}, "ab"},
        {"a low surrogate alone", std::u16string{0xde00, u'b'}, "b"},
        {"two high surrogates", std::u16string{0xd83d, 0xd83d, 0xde00}, "\xf0\x9f\x98\x80"},
        {"an embedded NUL ends it", std::u16string(u"a\0b", 3), "a"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Str16ToStr8(c.utf16), c.utf8);
    }
}

} // namespace
} // namespace OHOS
