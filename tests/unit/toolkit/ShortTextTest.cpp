#include "toolkit/ShortText.h"

#include <gtest/gtest.h>

#include "base/Text.h"

namespace ordalyn::toolkit {
namespace {

// Ten for a character; nothing for a mark on one.
int Tens(std::string_view text) {
    int width = 0;
    for (const char c : text)
        width += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U ? 10 : 0;
    return width;
}

std::string Short(std::string_view text, int characters) {
    return ShortenMiddle(text, characters * 10, Tens);
}

TEST(ShortText, WhatFitsStaysAsItIs) {
    EXPECT_EQ(Short("", 0), "");
    EXPECT_EQ(Short("C:\\a\\b.txt", 10), "C:\\a\\b.txt");
}

TEST(ShortText, APathKeepsItsRootAndItsFileName) {
    const std::string path = "C:\\Users\\Anna\\Documents\\Plan.odt";
    EXPECT_EQ(Short(path, 20), "C:\\Users\\A…\\Plan.odt");
    EXPECT_EQ(Short(path, 13), "C:\\…\\Plan.odt");
    EXPECT_EQ(Short(path, 10), "…\\Plan.odt");
    EXPECT_EQ(Short("/home/anna/documents/plan.odt", 16), "/home/…/plan.odt");
    EXPECT_EQ(Short("\\\\nas\\photos\\2024\\Summer.jpg", 19), "\\\\nas\\p…\\Summer.jpg");
}

TEST(ShortText, AFolderKeepsItsNameAndTheSeparatorBehindIt) {
    EXPECT_EQ(Short("C:\\Users\\Anna\\Documents\\", 16), "C:\\U…\\Documents\\");
}

TEST(ShortText, TheWordsInFrontOfAPathAreABeginningLikeAnyOther) {
    EXPECT_EQ(Short("Copy(Error: Disk full): C:\\work\\plan.txt", 30),
              "Copy(Error: Disk ful…\\plan.txt");
}

TEST(ShortText, ANameThatDoesNotFitLosesItsMiddle) {
    EXPECT_EQ(Short("C:\\work\\a long file name.xlsx", 11), "a lon….xlsx");
    EXPECT_EQ(Short("C:\\work\\a long file name.xlsx", 3), "a…x");
}

TEST(ShortText, ATextWithoutSeparatorLosesItsMiddle) {
    EXPECT_EQ(Short("abcdefghij", 5), "ab…ij");
    EXPECT_EQ(Short("abcdefghij", 6), "ab…hij");
}

TEST(ShortText, WhereNothingFitsThereAreOnlyDots) {
    EXPECT_EQ(Short("C:\\a\\b.txt", 1), "…");
    EXPECT_EQ(Short("C:\\a\\b.txt", 0), "…");
    EXPECT_EQ(ShortenMiddle("abc", -20, Tens), "…");
    EXPECT_EQ(Short("\\\\\\", 1), "…");
}

TEST(ShortText, CharactersBeyondTheFirstPlaneStayWhole) {
    // Each a surrogate pair on Windows.
    EXPECT_EQ(Short("😀😁😂🤣😃😄", 3), "😀…😄");
    for (int characters = 0; characters < 12; ++characters)
        EXPECT_TRUE(IsValidUtf8(Short("C:\\Fotos 😀😁\\😂🤣😃😄.jpg", characters)))
            << characters;
}

TEST(ShortText, ACharacterKeepsTheMarksThatStandOnIt) {
    // Each letter with a combining acute accent. The measure counts it as a character of its own.
    EXPECT_EQ(Short("a\u0301b\u0301c\u0301d\u0301", 5), "a\u0301…d\u0301");
    EXPECT_EQ(Short("a\u0301b\u0301c\u0301d\u0301", 4), "…d\u0301");
    // A family of three, joined to one.
    EXPECT_EQ(Short("xx👨\u200D👩\u200D👧yy", 8), "xx…yy");
}

TEST(ShortText, TextsFromRightToLeftKeepTheirTwoEnds) {
    EXPECT_EQ(Short("C:\\מסמכים\\תמונות\\קיץ.jpg", 13), "C:\\מ…\\קיץ.jpg");
}

TEST(ShortText, BytesThatAreNoTextAreCutAnywhere) {
    EXPECT_EQ(
        ShortenMiddle("\xFF\xFF\xFF\xFF", 30,
                      [](std::string_view text) { return static_cast<int>(text.size()) * 10; }),
        "…");
}

TEST(ShortText, AVeryLongTextIsMeasuredInPartsOnly) {
    std::size_t longest = 0;
    const std::string text = "C:\\" + std::string(1'000'000, 'x') + "\\end.txt";
    EXPECT_EQ(ShortenMiddle(text, 120,
                            [&](std::string_view part) {
                                longest = std::max(longest, part.size());
                                return Tens(part);
                            }),
              "C:\\…\\end.txt");
    EXPECT_LT(longest, 10'000U);
    EXPECT_EQ(CharacterCount(ShortenMiddle(text, 1'000'000'000, Tens)), 8193U)
        << "the same where the column is wide beyond any screen";
}

TEST(ShortText, AVeryLongTextIsNotCutInsideACharacter) {
    EXPECT_TRUE(IsValidUtf8(Short(
        std::string(1, 'x') +
            [] {
                std::string smiles;
                for (int i = 0; i < 5000; ++i)
                    smiles += "😀";
                return smiles;
            }(),
        100'000)));
}

std::string Behind(std::string_view words, std::string_view path, int characters) {
    return ShortenPathBehind(words, path, characters * 10, Tens);
}

TEST(ShortText, WordsInFrontOfAPathCanBeKeptWhole) {
    const std::string path = "C:\\Users\\Anna\\totalcmd.log";
    EXPECT_EQ(Behind("Title - ", path, 34), "Title - " + path);
    EXPECT_EQ(Behind("Title - ", path, 33), "Title - C:\\Users\\An…\\totalcmd.log");
    EXPECT_EQ(Behind("Title - ", path, 22), "Title - …\\totalcmd.log");
    EXPECT_EQ(Behind("Title - ", path, 18), "Title - tota…d.log");
    // Where there is no room for anything else, they are cut by whoever shows them.
    EXPECT_EQ(Behind("Title - ", path, 5), "Title - …");
    EXPECT_EQ(Behind("Title - ", "", 8), "Title - ");
}

std::string Line(std::string_view line, int characters) {
    return ShortenLine(line, characters * 10, Tens);
}

TEST(ShortText, ALineLosesItsEnd) {
    EXPECT_EQ(Line("Friday, March 15, 2024  ", 22), "Friday, March 15, 2024  ");
    EXPECT_EQ(Line("Friday, March 15, 2024  ", 21), "Friday, March 15, 20…");
    EXPECT_EQ(Line("15/03/2024  ", 6), "15/03…");
    EXPECT_EQ(Line("e\u0301e\u0301e\u0301", 3), "e\u0301…");
    EXPECT_EQ(Line("abc", 1), "…");
    EXPECT_EQ(Line("abc", 0), "…");
    EXPECT_EQ(Line("", 0), "");
    EXPECT_EQ(Line("  ", 0), "  ");
}

TEST(ShortText, ALineWithAPathLosesItsMiddle) {
    EXPECT_EQ(Line("Filter: C:\\Users\\Anna\\Plan.odt  ", 31),
              "Filter: C:\\Users\\Anna\\Plan.odt  ");
    EXPECT_EQ(Line("Filter: C:\\Users\\Anna\\Plan.odt  ", 24), "Filter: C:\\Use…\\Plan.odt");
}

}  // namespace
}  // namespace ordalyn::toolkit
