#include "base/Utf8.h"

#include <gtest/gtest.h>

namespace ordalyn {
namespace {

void ExpectDecoded(std::string_view text, char32_t value, std::size_t length, bool valid) {
    const DecodedCharacter c = DecodeUtf8(text, 0);
    EXPECT_EQ(c.value, value);
    EXPECT_EQ(c.length, length);
    EXPECT_EQ(c.valid, valid);
}

TEST(Utf8, DecodesOneCharacter) {
    ExpectDecoded("a", U'a', 1, true);
    ExpectDecoded("\u00E4x", 0xE4, 2, true);
    ExpectDecoded("\u20ACx", 0x20AC, 3, true);
    ExpectDecoded("\U00010400x", 0x10400, 4, true);
    ExpectDecoded("\xF4\x8F\xBF\xBF", 0x10FFFF, 4, true);
    ExpectDecoded("\xEF\xBF\xBD", 0xFFFD, 3, true);  // written out, it is a valid character
}

TEST(Utf8, DecodesInsideAText) {
    EXPECT_EQ(DecodeUtf8("a\u20ACz", 1).value, 0x20ACU);
    EXPECT_EQ(DecodeUtf8("a\u20ACz", 4).value, U'z');
}

TEST(Utf8, AnInvalidPartEndsWhereItBecomesInvalid) {
    ExpectDecoded("\x80", 0xFFFD, 1, false);
    ExpectDecoded("\xC3", 0xFFFD, 1, false);
    ExpectDecoded("\xE2\x82", 0xFFFD, 2, false);
    ExpectDecoded("\xE2\x82z", 0xFFFD, 2, false);
    ExpectDecoded("\xE2z\x82", 0xFFFD, 1, false);
    ExpectDecoded("\xF0\x90\x90z", 0xFFFD, 3, false);
    ExpectDecoded("\xE0\x9F\xBF", 0xFFFD, 1, false);
    ExpectDecoded("\xF4\x90\x80\x80", 0xFFFD, 1, false);
}

TEST(Utf8, FindsWhereThePreviousCharacterBegins) {
    const std::string_view text = "a\u00E4\u20AC\U00010400z";
    EXPECT_EQ(PreviousCharacter(text, 11), 10U);
    EXPECT_EQ(PreviousCharacter(text, 10), 6U);
    EXPECT_EQ(PreviousCharacter(text, 6), 3U);
    EXPECT_EQ(PreviousCharacter(text, 3), 1U);
    EXPECT_EQ(PreviousCharacter(text, 1), 0U);
}

TEST(Utf8, AnInvalidByteIsAPreviousCharacter) {
    EXPECT_EQ(PreviousCharacter("a\x80", 2), 1U);
    EXPECT_EQ(PreviousCharacter("\x80", 1), 0U);
    EXPECT_EQ(PreviousCharacter("\xE2\x82", 2), 1U);
    EXPECT_EQ(PreviousCharacter("\xE2\x82", 1), 0U);
    EXPECT_EQ(PreviousCharacter("\u00E4\x80", 3), 2U);  // one byte too many
    EXPECT_EQ(PreviousCharacter("\x80\x80\x80\x80\x80", 5), 4U);
    EXPECT_EQ(PreviousCharacter("\xED\xA0\x80", 3), 2U);  // an encoded surrogate
}

TEST(Utf8, WalkingBackMeetsTheCharactersOfWalkingForward) {
    const std::string_view texts[] = {"a\u00E4\u20AC\U00010400z", "\xE2\x82z\xFF\u00E4\x80",
                                      "\xF0\x90\x90\xF0\x90\x90\x80"};
    for (const std::string_view text : texts) {
        std::string_view rest = text;
        while (!rest.empty()) {
            const std::size_t start = PreviousCharacter(rest, rest.size());
            const DecodedCharacter c = DecodeUtf8(text, start);
            EXPECT_EQ(c.valid ? c.length : 1, rest.size() - start);
            rest = rest.substr(0, start);
        }
    }
}

}  // namespace
}  // namespace ordalyn
