// UTF-8 and UTF-16 conversions: every encoded length both ways, and malformed input giving an empty string.
#include <gtest/gtest.h>

#include <string>

#include "string_ex.h"

namespace OHOS {
namespace {

TEST(StringExTest, ConvertsEveryEncodedLengthBothWays)
{
    const struct {
        std::string name;
        std::string utf8;
        std::u16string utf16;
    } cases[] = {
        {"empty", "", u""},
        {"ascii", "abc", u"abc"},
        {"embedded zero", std::string("a\0b", 3), std::u16string(u"a\0b", 3)},
        {"two bytes", "caf\xc3\xa9", u"caf\u00e9"},
        {"three bytes", "\xe8\xae\xbe\xe5\xa4\x87", u"\u8bbe\u5907"},
        {"largest unit before the surrogates", "\xed\x9f\xbf", u"\ud7ff"},
        {"largest single unit", "\xef\xbf\xbf", u"\uffff"},
        {"four bytes as a surrogate pair", "\xf0\x9f\x98\x80", u"\U0001F600"},
        {"largest code point", "\xf4\x8f\xbf\xbf", u"\U0010FFFF"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Str8ToStr16(c.utf8), c.utf16);
        EXPECT_EQ(Str16ToStr8(c.utf16), c.utf8);
    }
}

TEST(StringExTest, MalformedUtf8GivesAnEmptyString)
{
    const struct {
        std::string name;
        std::string utf8;
    } cases[] = {
        {"lone continuation byte", "\x80"},
        {"invalid lead byte", "\xff"},
        {"two-byte sequence cut short", "\xc3"},
        {"three-byte sequence cut short", "\xe8\xae"},
        {"four-byte sequence cut short", "\xf0\x9f\x98"},
        {"continuation replaced by ascii", "\xc3\x41"},
        {"encoded high surrogate", "\xed\xa0\x80"},
        {"encoded low surrogate", "\xed\xbf\xbf"},
        {"beyond the largest code point", "\xf4\x90\x80\x80"},
        {"valid text then garbage", "abc\xff"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Str8ToStr16(c.utf8), u"");
    }
}

TEST(StringExTest, UnpairedSurrogatesGiveAnEmptyString)
{
    const struct {
        std::string name;
        std::u16string utf16;
    } cases[] = {
        {"high surrogate at the end", {u'a', 0xD83D}},          {"lone low surrogate", {0xDE00, u'a'}},
        {"high surrogate before a plain unit", {0xD83D, u'a'}}, {"pair in the wrong order", {0xDE00, 0xD83D}},
        {"two high surrogates", {0xD83D, 0xD83D, 0xDE00}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Str16ToStr8(c.utf16), "");
    }
}

} // namespace
} // namespace OHOS
