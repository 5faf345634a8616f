#include "platform/IniFile.h"

#include <gtest/gtest.h>

namespace ordalyn::platform {

namespace {

std::string Shown(std::string list) {
    for (char& c : list)
        if (c == '\0')
            c = '|';
    return list;
}

}  // namespace

TEST(IniFile, AnEmptyTextHasNoSections) {
    const IniFile ini("");
    EXPECT_EQ(ini.SectionNames(), "");
    EXPECT_EQ(ini.Entry("A", "k"), std::nullopt);
    EXPECT_EQ(ini.Text(), "");
}

TEST(IniFile, BlanksAroundHeadersNamesAndValuesDoNotCount) {
    const IniFile ini("  [ A ]  \r\n\t k \t= \x0B v \x0C\r\n");
    EXPECT_EQ(ini.Entry("A", "k"), "v");
    EXPECT_EQ(ini.Entry(" A ", " k "), "v");
    EXPECT_EQ(Shown(ini.SectionNames()), "A|");
}

TEST(IniFile, ANoBreakSpaceIsNoBlank) {
    const IniFile ini("[A]\r\nk=\xC2\xA0v\xC2\xA0\r\n");
    EXPECT_EQ(ini.Entry("A", "k"), "\xC2\xA0v\xC2\xA0");
}

TEST(IniFile, AnEndOfFileCharacterIsABlank) {
    IniFile ini("[A]\r\nk=1\r\n\x1A");
    EXPECT_EQ(ini.Entry("A", "k"), "1");
    EXPECT_EQ(Shown(ini.Section("A")), "k=1|");
}

TEST(IniFile, NamesOfEveryScriptMatchIgnoringCase) {
    const IniFile ini("[\xC3\x84]\r\n\xD0\x96=1\r\n");
    EXPECT_EQ(ini.Entry("\xC3\xA4", "\xD0\xB6"), "1");
}

TEST(IniFile, AHeaderEndsAtItsLastBracket) {
    const IniFile ini("[A]b] rest\r\nk=1\r\n");
    EXPECT_EQ(ini.Entry("A]b", "k"), "1");
}

TEST(IniFile, ALineWithoutClosingBracketOpensNoSection) {
    const IniFile ini("[A]\r\n[B\r\nk=1\r\n");
    EXPECT_EQ(ini.Entry("A", "k"), "1");
    EXPECT_EQ(Shown(ini.SectionNames()), "A|");
}

TEST(IniFile, WhatStandsBeforeTheFirstHeaderBelongsToTheNamelessSection) {
    const IniFile ini("k=1\r\n[A]\r\nk=2\r\n");
    EXPECT_EQ(ini.Entry("", "k"), "1");
    EXPECT_EQ(ini.Entry("A", "k"), "2");
    EXPECT_EQ(Shown(ini.SectionNames()), "A|");
}

TEST(IniFile, OfTwoSectionsWithOneNameTheFirstCounts) {
    IniFile ini("[A]\r\n[B]\r\nx=1\r\n[A]\r\nk=2\r\n");
    EXPECT_EQ(ini.Entry("A", "k"), std::nullopt);
    EXPECT_EQ(ini.KeyNames("A"), "");
    EXPECT_EQ(Shown(ini.SectionNames()), "A|B|A|");
    EXPECT_TRUE(ini.WriteEntry("A", "k", "1"));
    EXPECT_EQ(ini.Text(), "[A]\r\nk=1\r\n[B]\r\nx=1\r\n[A]\r\nk=2\r\n");
    EXPECT_TRUE(ini.DeleteSection("A"));
    EXPECT_EQ(ini.Text(), "[B]\r\nx=1\r\n[A]\r\nk=2\r\n");
}

TEST(IniFile, AnEntryIsDeletedFromTheFirstSectionThatHoldsIt) {
    IniFile ini("[A]\r\na=1\r\n[A]\r\nk=2\r\n");
    EXPECT_TRUE(ini.DeleteEntry("A", "k"));
    EXPECT_EQ(ini.Text(), "[A]\r\na=1\r\n[A]\r\n");
}

TEST(IniFile, OnlyOnePairOfEqualQuotesIsTakenOff) {
    const IniFile ini("[A]\r\na=\"'x'\"\r\nb='\"x\"'\r\nc=\"x'\r\nd=\"\r\ne=\"\"\r\nf=a\"b\"\r\n");
    EXPECT_EQ(ini.Entry("A", "a"), "'x'");
    EXPECT_EQ(ini.Entry("A", "b"), "\"x\"");
    EXPECT_EQ(ini.Entry("A", "c"), "\"x'");
    EXPECT_EQ(ini.Entry("A", "d"), "\"");
    EXPECT_EQ(ini.Entry("A", "e"), "");
    EXPECT_EQ(ini.Entry("A", "f"), "a\"b\"");
}

TEST(IniFile, ADefaultLosesBlanksAtItsEndAndQuotes) {
    EXPECT_EQ(IniFile::Otherwise("  d  "), "  d");
    EXPECT_EQ(IniFile::Otherwise("' d ' "), " d ");
    EXPECT_EQ(IniFile::Otherwise(""), "");
}

TEST(IniFile, ListsLeaveOutCommentsAndKeyNamesNeedAnEqualsSign) {
    const IniFile ini("[A]\r\n;c=1\r\nplain\r\nk = \"v\"\r\n=nameless\r\n");
    EXPECT_EQ(Shown(ini.KeyNames("a")), "k||");
    EXPECT_EQ(Shown(ini.Section("a")), "plain|k=\"v\"|=nameless|");
}

TEST(IniFile, AChangeDropsEmptyLinesAndBlanksAndKeepsComments) {
    IniFile ini("; head\n\n[ A ] junk\n  k = 1 \n\n;tail\n[B]\nx = 'y' ");
    EXPECT_TRUE(ini.WriteEntry("A", "k", "2"));
    EXPECT_EQ(ini.Text(), "; head\r\n[A]\r\nk=2\r\n;tail\r\n[B]\r\nx='y'\r\n");
}

TEST(IniFile, WhatChangesNothingLeavesTheTextAlone) {
    const std::string text = "; head\n\n[ A ]\n  k = 1 \n";
    IniFile ini(text);
    EXPECT_FALSE(ini.WriteEntry("a", "K", "1"));
    EXPECT_FALSE(ini.DeleteEntry("A", "none"));
    EXPECT_FALSE(ini.DeleteEntry("none", "k"));
    EXPECT_FALSE(ini.DeleteSection("none"));
    EXPECT_EQ(ini.Text(), text);
    EXPECT_FALSE(IniFile("[A]\r\n").DeleteSection(""));
}

TEST(IniFile, WritingGivesALineWithoutEqualsSignAValue) {
    IniFile ini("[A]\r\nk\r\nl=1\r\n");
    EXPECT_TRUE(ini.WriteEntry("A", "k", ""));
    EXPECT_EQ(ini.Text(), "[A]\r\nk=\r\nl=1\r\n");
}

TEST(IniFile, TheNamelessSectionStaysFirst) {
    IniFile ini("a=1\r\n[B]\r\nx=1\r\n");
    EXPECT_TRUE(ini.DeleteSection(""));
    EXPECT_EQ(ini.Text(), "[B]\r\nx=1\r\n");
    EXPECT_TRUE(ini.WriteEntry("", "k", "1"));
    EXPECT_EQ(ini.Text(), "k=1\r\n[B]\r\nx=1\r\n");
}

TEST(IniFile, AHeaderWithoutANameKeepsItsLinesApart) {
    IniFile ini("[A]\r\nk=1\r\n[ ]\r\nl=2\r\n");
    EXPECT_EQ(ini.Entry("A", "l"), std::nullopt);
    EXPECT_TRUE(ini.WriteEntry("A", "m", "3"));
    EXPECT_EQ(ini.Text(), "[A]\r\nk=1\r\nm=3\r\n[]\r\nl=2\r\n");
}

TEST(IniFile, ALastLineWithoutLineEndIsFollowedByNewOnes) {
    IniFile ini("[A]\r\nk=1");
    EXPECT_TRUE(ini.WriteEntry("A", "l", "2"));
    EXPECT_TRUE(ini.WriteEntry("B", "m", "3"));
    EXPECT_EQ(ini.Text(), "[A]\r\nk=1\r\nl=2\r\n[B]\r\nm=3\r\n");
}

TEST(IniFile, BlanksAtTheEndOfAWrittenValueStayInTheText) {
    IniFile ini("");
    EXPECT_TRUE(ini.WriteEntry(" A ", " k ", " v "));
    EXPECT_EQ(ini.Text(), "[A]\r\nk=v \r\n");
}

TEST(IniFile, BuffersLeaveRoomForTheirNuls) {
    EXPECT_EQ(IniFile::CutValue(std::string("abc"), 4), "abc");
    EXPECT_EQ(IniFile::CutValue(std::string("abc"), 3), "ab");
    EXPECT_EQ(IniFile::CutValue(std::string("abc"), 0), "");
    EXPECT_EQ(IniFile::CutList(std::string("a\0b\0", 4), 6), std::string("a\0b\0", 4));
    EXPECT_EQ(IniFile::CutList(std::string("a\0b\0", 4), 5), std::string("a\0b", 3));
    EXPECT_EQ(IniFile::CutList(std::string("a\0", 2), 1), "");
}

TEST(IniFile, TheCallerMayDecideWhichNamesAreTheSame) {
    const IniFile exact("[A]\r\nk=1\r\n",
                        [](std::string_view a, std::string_view b) { return a == b; });
    EXPECT_EQ(exact.Entry("A", "k"), "1");
    EXPECT_EQ(exact.Entry("a", "k"), std::nullopt);
}

}  // namespace ordalyn::platform
