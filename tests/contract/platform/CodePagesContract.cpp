// Conversion between code pages and UTF-8.
#include "contract/platform/Subject.h"

namespace ordalyn::contract {

namespace {

class CodePagesContract : public PlatformContract {
  protected:
    platform::CodePages& Pages() { return Services().codePages; }
};

struct Sample {
    unsigned codePage;
    const char* bytes;
    const char* text;
};

constexpr Sample kSamples[] = {
    {1250, "\xC8\xE1st\xEC", "\xC4\x8C\xC3\xA1st\xC4\x9B"},
    {1251, "\xC7\xE0\xEF\xF3\xF1\xEA", "\xD0\x97\xD0\xB0\xD0\xBF\xD1\x83\xD1\x81\xD0\xBA"},
    {1252, "L\xF6schen \x80", "L\xC3\xB6schen \xE2\x82\xAC"},
    {1253, "\xC1\xF9", "\xCE\x91\xCF\x89"},
    {1254, "\xDD\xFE", "\xC4\xB0\xC5\x9F"},
    {1257, "\xE0\xFE", "\xC4\x85\xC5\xBE"},
    {932, "\x95\x5C\x83\x5C\xB1", "\xE8\xA1\xA8\xE3\x82\xBD\xEF\xBD\xB1"},
    {65001, "\xC3\xA4", "\xC3\xA4"},
};

}  // namespace

TEST_P(CodePagesContract, BytesAndTextOfKnownCodePagesBelongTogether) {
    for (const Sample& sample : kSamples) {
        EXPECT_EQ(Pages().ToUtf8(sample.bytes, sample.codePage), sample.text) << sample.codePage;
        EXPECT_EQ(Pages().FromUtf8(sample.text, sample.codePage), sample.bytes) << sample.codePage;
    }
}

TEST_P(CodePagesContract, EmptyAndAsciiTextsAreTheSameEverywhere) {
    for (const Sample& sample : kSamples) {
        EXPECT_EQ(Pages().ToUtf8("", sample.codePage), "");
        EXPECT_EQ(Pages().FromUtf8("", sample.codePage), "");
        EXPECT_EQ(Pages().ToUtf8("C:\\a b.log", sample.codePage), "C:\\a b.log");
        EXPECT_EQ(Pages().FromUtf8("C:\\a b.log", sample.codePage), "C:\\a b.log");
    }
}

TEST_P(CodePagesContract, EveryByteOfASingleByteCodePageSurvives) {
    std::string bytes;
    for (int byte = 0x80; byte <= 0xFF; ++byte)
        bytes += static_cast<char>(byte);
    for (const unsigned codePage : {1250U, 1251U, 1252U, 1254U, 1256U})
        EXPECT_EQ(Pages().FromUtf8(Pages().ToUtf8(bytes, codePage), codePage), bytes) << codePage;
}

TEST_P(CodePagesContract, TextThatTheCodePageLacksIsRefused) {
    EXPECT_EQ(Pages().FromUtf8("a\xD0\x96", 1252), std::nullopt);
    EXPECT_EQ(Pages().FromUtf8("a\xC3\xA4", 1251), std::nullopt);
    EXPECT_EQ(Pages().FromUtf8("\xF0\x9F\x93\x81", 1252), std::nullopt);
    EXPECT_EQ(Pages().FromUtf8("?", 1252), "?");
}

TEST_P(CodePagesContract, ALetterIsNotReplacedByOneThatLooksAlike) {
    // a with macron, a full-width A, the fraction slash
    for (const char* text : {"\xC4\x81", "\xEF\xBC\xA1", "\xE2\x81\x84"})
        EXPECT_EQ(Pages().FromUtf8(text, 1252), std::nullopt) << text;
}

TEST_P(CodePagesContract, WhatIsNotUtf8CannotBeConverted) {
    EXPECT_EQ(Pages().FromUtf8("a\xFF", 1252), std::nullopt);
    EXPECT_EQ(Pages().FromUtf8("a\xFF", 65001), std::nullopt);
}

TEST_P(CodePagesContract, InvalidUtf8BecomesReplacementCharacters) {
    EXPECT_EQ(Pages().ToUtf8("a\xFF"
                             "b",
                             65001),
              "a\xEF\xBF\xBD"
              "b");
}

TEST_P(CodePagesContract, ZeroAndUnknownNumbersStandForTheSystemCodePage) {
    for (const unsigned codePage : {platform::CodePages::kSystem, 12345U}) {
        EXPECT_EQ(Pages().ToUtf8("\xB1", codePage), Pages().ToUtf8("\xB1", System().CodePage()));
        const std::string text = Pages().ToUtf8("\xB1", System().CodePage());
        EXPECT_EQ(Pages().FromUtf8(text, codePage), Pages().FromUtf8(text, System().CodePage()));
    }
}

TEST_P(CodePagesContract, CharacterSetsHaveTheirCodePages) {
    EXPECT_EQ(Pages().OfCharacterSet(0), 1252U);
    EXPECT_EQ(Pages().OfCharacterSet(128), 932U);
    EXPECT_EQ(Pages().OfCharacterSet(129), 949U);
    EXPECT_EQ(Pages().OfCharacterSet(134), 936U);
    EXPECT_EQ(Pages().OfCharacterSet(136), 950U);
    EXPECT_EQ(Pages().OfCharacterSet(161), 1253U);
    EXPECT_EQ(Pages().OfCharacterSet(162), 1254U);
    EXPECT_EQ(Pages().OfCharacterSet(163), 1258U);
    EXPECT_EQ(Pages().OfCharacterSet(177), 1255U);
    EXPECT_EQ(Pages().OfCharacterSet(178), 1256U);
    EXPECT_EQ(Pages().OfCharacterSet(186), 1257U);
    EXPECT_EQ(Pages().OfCharacterSet(204), 1251U);
    EXPECT_EQ(Pages().OfCharacterSet(222), 874U);
    EXPECT_EQ(Pages().OfCharacterSet(238), 1250U);
}

TEST_P(CodePagesContract, TheDefaultTheSymbolAndUnknownCharacterSetsMeanTheSystem) {
    for (const std::int32_t characterSet : {1, 2, 3, 200, 999, -1})
        EXPECT_EQ(Pages().OfCharacterSet(characterSet), platform::CodePages::kSystem)
            << characterSet;
}

INSTANTIATE_TEST_SUITE_P(, CodePagesContract, AllSubjects(), KindName);

}  // namespace ordalyn::contract
