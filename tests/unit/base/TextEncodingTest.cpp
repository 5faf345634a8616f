// UTF-8 and UTF-16.
#include <gtest/gtest.h>

#include "base/Text.h"

namespace ordalyn {
namespace {

// U+FFFD in UTF-8.
const std::string kBad = "\xEF\xBF\xBD";

TEST(TextEncoding, KnowsAscii) {
    EXPECT_TRUE(IsAscii(""));
    EXPECT_TRUE(IsAscii("az\x7F"));
    EXPECT_FALSE(IsAscii("a\x80"));
    EXPECT_FALSE(IsAscii("ä"));
}

TEST(TextEncoding, AsciiAloneIsNotToldFromACodePage) {
    EXPECT_FALSE(IsUtf8BeyondAscii(""));
    EXPECT_FALSE(IsUtf8BeyondAscii("plain"));
    EXPECT_FALSE(IsUtf8BeyondAscii("a\xE4"));
    EXPECT_TRUE(IsUtf8BeyondAscii("aä"));
}

TEST(TextEncoding, KnowsValidUtf8) {
    EXPECT_TRUE(IsValidUtf8(""));
    EXPECT_TRUE(IsValidUtf8("aä€𐐀"));
    EXPECT_TRUE(IsValidUtf8("\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"));
    EXPECT_TRUE(IsValidUtf8("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"));
}

TEST(TextEncoding, KnowsInvalidUtf8) {
    for (const char* bytes :
         {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xC3", "\xC3(", "\xE0\x80\x80", "\xE0\x9F\xBF",
          "\xE2\x82", "\xED\xA0\x80", "\xED\xBF\xBF", "\xF0\x80\x80\x80", "\xF0\x8F\xBF\xBF",
          "\xF0\x90\x90", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFE", "\xFF"})
        EXPECT_FALSE(IsValidUtf8(bytes)) << testing::PrintToString(std::string(bytes));
}

TEST(TextEncoding, EachMaximalInvalidPartBecomesOneReplacement) {
    EXPECT_EQ(ToValidUtf8("aä€𐐀"), "aä€𐐀");
    EXPECT_EQ(ToValidUtf8("a\xFFz"), "a" + kBad + "z");
    EXPECT_EQ(ToValidUtf8("\xE2\x82z"), kBad + "z");
    EXPECT_EQ(ToValidUtf8("\xF0\x90\x90z"), kBad + "z");
    EXPECT_EQ(ToValidUtf8("\xF0\x90"), kBad);
    // An encoded surrogate: none of its bytes continues the first.
    EXPECT_EQ(ToValidUtf8("\xED\xA0\x80"), kBad + kBad + kBad);
    EXPECT_EQ(ToValidUtf8("\xC0\x80"), kBad + kBad);
    EXPECT_EQ(ToValidUtf8("\xE2\xC3\xA4"), kBad + "ä");
}

TEST(TextEncoding, CharactersBeyond16BitsBecomeSurrogatePairs) {
    EXPECT_EQ(Utf8ToUtf16("aä€"), u"aä€");
    EXPECT_EQ(Utf8ToUtf16("\xF0\x90\x80\x80"), (std::u16string{0xD800, 0xDC00}));
    EXPECT_EQ(Utf8ToUtf16("\xF4\x8F\xBF\xBF"), (std::u16string{0xDBFF, 0xDFFF}));
    EXPECT_EQ(Utf8ToUtf16("\xEF\xBF\xBF"), (std::u16string{0xFFFF}));
    EXPECT_EQ(Utf8ToUtf16("a\xE2\x82z"), (std::u16string{u'a', 0xFFFD, u'z'}));
    EXPECT_EQ(Utf8ToUtf16(std::string_view("a\0b", 3)), std::u16string(u"a\0b", 3));
}

TEST(TextEncoding, SurrogatePairsBecomeCharacters) {
    EXPECT_EQ(Utf16ToUtf8(u"aä€"), "aä€");
    EXPECT_EQ(Utf16ToUtf8(std::u16string{0xD800, 0xDC00}), "\xF0\x90\x80\x80");
    EXPECT_EQ(Utf16ToUtf8(std::u16string{0xDBFF, 0xDFFF}), "\xF4\x8F\xBF\xBF");
    EXPECT_EQ(Utf16ToUtf8(u""), "");
}

TEST(TextEncoding, LoneSurrogatesAreReplaced) {
    EXPECT_EQ(Utf16ToUtf8(std::u16string{0xD800}), kBad);
    EXPECT_EQ(Utf16ToUtf8(std::u16string{0xDC00, u'a'}), kBad + "a");
    EXPECT_EQ(Utf16ToUtf8(std::u16string{0xD800, u'a'}), kBad + "a");
    EXPECT_EQ(Utf16ToUtf8(std::u16string{0xD800, 0xD800, 0xDC00}), kBad + "\xF0\x90\x80\x80");
    EXPECT_EQ(Utf16ToUtf8(std::u16string{0xDC00, 0xD800}), kBad + kBad);
}

TEST(TextEncoding, EveryCharacterComesBack) {
    for (char32_t c = 1; c < 0x110000; c += c < 0x3000 ? 1 : 61) {
        if (c >= 0xD800 && c <= 0xDFFF)
            continue;
        std::string text;
        AppendUtf8(text, c);
        ASSERT_TRUE(IsValidUtf8(text)) << static_cast<std::uint32_t>(c);
        ASSERT_EQ(CharacterCount(text), 1U) << static_cast<std::uint32_t>(c);
        ASSERT_EQ(Utf16ToUtf8(Utf8ToUtf16(text)), text) << static_cast<std::uint32_t>(c);
    }
}

TEST(TextEncoding, TheMarkIsTheEncodedByteOrderMark) {
    std::string mark;
    AppendUtf8(mark, 0xFEFF);
    EXPECT_EQ(mark, kUtf8Mark);
}

}  // namespace
}  // namespace ordalyn
