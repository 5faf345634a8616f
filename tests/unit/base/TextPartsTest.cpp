// Parts of a text, counted in characters.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Text.h"

namespace ordalyn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(TextParts, CountsCodePoints) {
    EXPECT_EQ(CharacterCount(""), 0U);
    EXPECT_EQ(CharacterCount("abc"), 3U);
    EXPECT_EQ(CharacterCount("aä€𐐀"), 4U);
}

TEST(TextParts, AByteThatIsNotValidCountsAsOneCharacter) {
    EXPECT_EQ(CharacterCount("a\xFF"), 2U);
    EXPECT_EQ(CharacterCount("\xE2\x82"), 2U);  // the euro sign's beginning
    EXPECT_EQ(CharacterCount("\xF0\x90\x90"
                             "a"),
              4U);
}

TEST(TextParts, TakesTheFirstCharacters) {
    EXPECT_EQ(FirstCharacters("aä€𐐀z", 0), "");
    EXPECT_EQ(FirstCharacters("aä€𐐀z", 3), "aä€");
    EXPECT_EQ(FirstCharacters("aä€𐐀z", 4), "aä€𐐀");
    EXPECT_EQ(FirstCharacters("\xE2\x82z", 1), "\xE2");
}

TEST(TextParts, TakesTheLastCharacters) {
    EXPECT_EQ(LastCharacters("aä€𐐀z", 0), "");
    EXPECT_EQ(LastCharacters("aä€𐐀z", 2), "𐐀z");
    EXPECT_EQ(LastCharacters("aä€𐐀z", 4), "ä€𐐀z");
    EXPECT_EQ(LastCharacters("z\xE2\x82", 1), "\x82");
    EXPECT_EQ(LastCharacters("z\xE2\x82", 2), "\xE2\x82");
}

TEST(TextParts, AskingForMoreGivesWhatThereIs) {
    EXPECT_EQ(FirstCharacters("äb", 9), "äb");
    EXPECT_EQ(LastCharacters("äb", 9), "äb");
    EXPECT_EQ(FirstCharacters("", 1), "");
    EXPECT_EQ(LastCharacters("", 1), "");
}

TEST(TextParts, DropsTheFirstCharacter) {
    EXPECT_EQ(WithoutFirstCharacter("€a"), "a");
    EXPECT_EQ(WithoutFirstCharacter("a"), "");
    EXPECT_EQ(WithoutFirstCharacter(""), "");
    EXPECT_EQ(WithoutFirstCharacter("\xE2\x82z"), "\x82z");
}

TEST(TextParts, DropsTheLastCharacter) {
    EXPECT_EQ(WithoutLastCharacter("a€"), "a");
    EXPECT_EQ(WithoutLastCharacter("a𐐀"), "a");
    EXPECT_EQ(WithoutLastCharacter("a"), "");
    EXPECT_EQ(WithoutLastCharacter(""), "");
    EXPECT_EQ(WithoutLastCharacter("ä\x80"), "ä");  // the byte belongs to nothing
}

TEST(TextParts, TrimsBlanksOnly) {
    EXPECT_EQ(TrimBlanks("  a b  "), "a b");
    EXPECT_EQ(TrimBlanks("\ta\n "), "\ta\n");
    EXPECT_EQ(TrimBlanks(" \u00A0 "), "\u00A0");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimBlanks(""), "");
}

TEST(TextParts, SplitsAndKeepsEmptyParts) {
    EXPECT_THAT(Split("a;b", ';'), ElementsAre("a", "b"));
    EXPECT_THAT(Split("a", ';'), ElementsAre("a"));
    EXPECT_THAT(Split(";a;;b;", ';'), ElementsAre("", "a", "", "b", ""));
    EXPECT_THAT(Split(";", ';'), ElementsAre("", ""));
    EXPECT_THAT(Split("", ';'), IsEmpty());
}

TEST(TextParts, JoinsWithTheSeparatorBetween) {
    EXPECT_EQ(Join({}, ", "), "");
    EXPECT_EQ(Join({"a"}, ", "), "a");
    EXPECT_EQ(Join({"a", "", "b"}, ", "), "a, , b");
}

TEST(TextParts, JoiningUndoesSplitting) {
    for (const char* text : {"", "a", ";", "a;b;;c", ";;"})
        EXPECT_EQ(Join(Split(text, ';'), ";"), text);
}

}  // namespace
}  // namespace ordalyn
