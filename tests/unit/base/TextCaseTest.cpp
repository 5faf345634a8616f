// Letter case, as every comparison and search of the program ignores it.
#include <gtest/gtest.h>

#include "base/Text.h"

namespace ordalyn {
namespace {

TEST(TextCase, AsciiLettersFold) {
    EXPECT_EQ(FoldCase(std::string_view("AZ az @[`{ 09")), "az az @[`{ 09");
}

TEST(TextCase, LatinLettersFold) {
    EXPECT_TRUE(EqualsIgnoreCase("ÄÖÜ ÀÇÉÑÞ", "äöü àçéñþ"));
    EXPECT_TRUE(EqualsIgnoreCase("ŁÓDŹ ČŘŽ ŞĞ Ÿ", "łódź čřž şğ ÿ"));
    EXPECT_TRUE(EqualsIgnoreCase("ẞ", "ß"));
    EXPECT_TRUE(EqualsIgnoreCase("ǅ", "ǆ"));  // the title case letter too
    EXPECT_TRUE(EqualsIgnoreCase("Ǆ", "ǆ"));
}

TEST(TextCase, SignsBetweenLettersStay) {
    EXPECT_EQ(FoldCase(U'×'), U'×');  // amid the capital letters of Latin-1
    EXPECT_EQ(FoldCase(U'÷'), U'÷');
    EXPECT_FALSE(EqualsIgnoreCase("×", "÷"));
}

TEST(TextCase, GreekFoldsAndAllThreeSigmasAreOne) {
    EXPECT_TRUE(EqualsIgnoreCase("ΌΔΟΣ", "όδος"));
    EXPECT_TRUE(EqualsIgnoreCase("ΌΔΟΣ", "όδοσ"));
    EXPECT_TRUE(EqualsIgnoreCase("σ", "ς"));
    EXPECT_TRUE(EqualsIgnoreCase("ΆΈΉΊΌΎΏ", "άέήίόύώ"));
}

TEST(TextCase, CyrillicFolds) {
    EXPECT_TRUE(EqualsIgnoreCase("КОПИРОВАНИЕ ЁЪЭЯ", "копирование ёъэя"));
    EXPECT_TRUE(EqualsIgnoreCase("ЇЄІҐ", "їєіґ"));
    EXPECT_TRUE(EqualsIgnoreCase("Ӏ", "ӏ"));
}

TEST(TextCase, ArmenianAndGeorgianFold) {
    EXPECT_TRUE(EqualsIgnoreCase("ՀԱՅԵՐԵՆ", "հայերեն"));
    EXPECT_TRUE(EqualsIgnoreCase("ᲥᲐᲠᲗᲣᲚᲘ", "ქართული"));  // Mtavruli
    EXPECT_TRUE(EqualsIgnoreCase("Ⴀ", "ⴀ"));                            // Asomtavruli, Nuskhuri
    EXPECT_FALSE(EqualsIgnoreCase("ⴀ", "ა"));
}

TEST(TextCase, OtherScriptsFold) {
    EXPECT_TRUE(EqualsIgnoreCase("ꭰ", "Ꭰ"));  // Cherokee folds to its capitals
    EXPECT_EQ(FoldCase(U'\uAB70'), U'\u13A0');
    EXPECT_TRUE(EqualsIgnoreCase("𐐀", "𐐨"));  // beyond 16 bits
    EXPECT_TRUE(EqualsIgnoreCase("ＡＢＣ", "ａｂｃ"));
    EXPECT_TRUE(EqualsIgnoreCase("Ⅻ Ⓐ", "ⅻ ⓐ"));
}

TEST(TextCase, SymbolsThatAreLettersFoldToTheLetter) {
    EXPECT_EQ(FoldCase(U'\u212A'), U'k');  // Kelvin sign
    EXPECT_EQ(FoldCase(U'\u212B'), U'å');  // Angstrom sign
    EXPECT_EQ(FoldCase(U'\u017F'), U's');  // long s
    EXPECT_EQ(FoldCase(U'\u00B5'), U'\u03BC');
}

TEST(TextCase, OneLetterNeverBecomesTwo) {
    EXPECT_FALSE(EqualsIgnoreCase("ß", "ss"));
    EXPECT_FALSE(EqualsIgnoreCase("ﬁ", "fi"));
    EXPECT_FALSE(EqualsIgnoreCase("İ", "i"));  // the dotted capital has no single small letter
    EXPECT_FALSE(EqualsIgnoreCase("ı", "i"));
}

TEST(TextCase, EveryLetterThatFoldsIsFolded) {
    int folded = 0;
    for (char32_t c = 0; c < 0x110000; ++c) {
        const char32_t f = FoldCase(c);
        folded += f != c ? 1 : 0;
        ASSERT_EQ(FoldCase(f), f) << std::hex << static_cast<std::uint32_t>(c);
        ASSERT_LT(f, 0x110000U);
    }
    // 26 of ASCII and the 1428 simple and common foldings beyond it of Unicode 14.
    EXPECT_EQ(folded, 26 + 1428);
}

TEST(TextCase, FoldingKeepsInvalidBytes) {
    EXPECT_EQ(FoldCase(std::string_view("A\xFF"
                                        "B\xE2\x82")),
              "a\xFF"
              "b\xE2\x82");
    EXPECT_EQ(FoldCase(std::string_view()), "");
}

TEST(TextCase, ComparesByFoldedCodePoints) {
    EXPECT_EQ(CompareIgnoreCase("abc", "ABC"), 0);
    EXPECT_LT(CompareIgnoreCase("ABC", "abd"), 0);
    EXPECT_GT(CompareIgnoreCase("abd", "ABC"), 0);
    EXPECT_GT(CompareIgnoreCase("Z", "_"), 0);  // folded to z, which comes after the underline
    EXPECT_LT(CompareIgnoreCase("Z", "Ä"), 0);
    // By code points, not by UTF-16 units: U+FF21 comes before U+10400.
    EXPECT_LT(CompareIgnoreCase("Ａ", "𐐀"), 0);
}

TEST(TextCase, AShorterTextComesFirst) {
    EXPECT_LT(CompareIgnoreCase("", "a"), 0);
    EXPECT_GT(CompareIgnoreCase("a", ""), 0);
    EXPECT_LT(CompareIgnoreCase("ab", "ABC"), 0);
    EXPECT_EQ(CompareIgnoreCase("", ""), 0);
}

TEST(TextCase, InvalidBytesDifferFromEachOtherAndFromEveryCharacter) {
    EXPECT_EQ(CompareIgnoreCase("a\xFF", "A\xFF"), 0);
    EXPECT_NE(CompareIgnoreCase("\xFF", "\xFE"), 0);
    EXPECT_NE(CompareIgnoreCase("\xFF", "\xEF\xBF\xBD"), 0);
    EXPECT_NE(CompareIgnoreCase("\xE4", "ä"), 0);
    EXPECT_GT(CompareIgnoreCase("\x80", "\xF4\x8F\xBF\xBF"), 0);  // after the last code point
    EXPECT_NE(CompareIgnoreCase("\xE2\x82", "\xE2\x83"), 0);
}

TEST(TextCase, StartsWithIgnoresCase) {
    EXPECT_TRUE(StartsWithIgnoreCase("Größe", "GRÖ"));
    EXPECT_TRUE(StartsWithIgnoreCase("Kelvin", "\u212A"));  // of another length in bytes
    EXPECT_TRUE(StartsWithIgnoreCase("abc", "ABC"));
    EXPECT_TRUE(StartsWithIgnoreCase("abc", ""));
    EXPECT_TRUE(StartsWithIgnoreCase("", ""));
    EXPECT_FALSE(StartsWithIgnoreCase("ab", "abc"));
    EXPECT_FALSE(StartsWithIgnoreCase("", "a"));
    EXPECT_FALSE(StartsWithIgnoreCase("xabc", "abc"));
}

TEST(TextCase, ReplacesEveryOccurrenceIgnoringCase) {
    EXPECT_EQ(ReplaceIgnoreCase("%WinDir%\\%WINDIR%", "%windir%", "C:\\W"), "C:\\W\\C:\\W");
    EXPECT_EQ(ReplaceIgnoreCase("ΟΔΟΣ οδος", "ΔΟΣ", "x"), "Οx οx");
    EXPECT_EQ(ReplaceIgnoreCase("abc", "x", "y"), "abc");
    EXPECT_EQ(ReplaceIgnoreCase("", "x", "y"), "");
    EXPECT_EQ(ReplaceIgnoreCase("ab", "abc", "y"), "ab");
    EXPECT_EQ(ReplaceIgnoreCase("abab", "AB", ""), "");
}

TEST(TextCase, AReplacementIsNotSearchedAgain) {
    EXPECT_EQ(ReplaceIgnoreCase("aaa", "aa", "a"), "aa");
    EXPECT_EQ(ReplaceIgnoreCase("a", "a", "aa"), "aa");
}

TEST(TextCase, NothingIsFoundForAnEmptyText) {
    EXPECT_EQ(ReplaceIgnoreCase("abc", "", "x"), "abc");
}

TEST(TextCase, ReplacesAmidInvalidBytes) {
    EXPECT_EQ(ReplaceIgnoreCase("\xE2\x82"
                                "AB\xFF",
                                "ab", "x"),
              "\xE2\x82x\xFF");
    EXPECT_EQ(ReplaceIgnoreCase("a\xE2\x82z", "\x82", "-"), "a\xE2-z");
}

}  // namespace
}  // namespace ordalyn
