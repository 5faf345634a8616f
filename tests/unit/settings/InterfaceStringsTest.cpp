#include "base/Errors.h"
#include "base/Text.h"
#include "support/settings/SettingsFixture.h"

namespace ordalyn::test {
namespace {

class InterfaceStringsTest : public SettingsFixture {};

std::string Section(std::string_view entries) {
    return "[UserLanguage]\r\n" + std::string(entries);
}

TEST_F(InterfaceStringsTest, WithTheDefaultLanguageTheFileIsNotLookedAt) {
    UseLanguageFile(Section("4000=Zeit\r\nRightToLeftLanguage=1\r\n"));
    settings.UseDefaultLanguage = 1;
    EXPECT_EQ(strings.GetInterfaceString(4000), "Time");
    EXPECT_FALSE(strings.RightToLeftLanguage());
    settings.UseDefaultLanguage = -1;
    EXPECT_EQ(strings.GetInterfaceString(4000), "Time");
    EXPECT_FALSE(strings.RightToLeftLanguage());
}

TEST_F(InterfaceStringsTest, ATranslatedTextCountsAndTheRestIsEnglish) {
    UseLanguageFile(Section("4000=Zeit\r\n4002=\r\n"));
    EXPECT_EQ(strings.GetInterfaceString(4000), "Zeit");
    EXPECT_EQ(strings.GetInterfaceString(4001), "Source");
    EXPECT_EQ(strings.GetInterfaceString(4002), "Target");
    EXPECT_EQ(strings.GetInterfaceString(102), "");
}

TEST_F(InterfaceStringsTest, TheFileMayHaveTextsThatTheTableLacks) {
    UseLanguageFile(Section("102=extra\r\n"));
    EXPECT_EQ(strings.GetInterfaceString(102), "extra");
}

TEST_F(InterfaceStringsTest, SlashEInAnyCaseWithBlanksMeansEnglish) {
    for (const char* value : {"/e", "/E", "\"  /E \"", "'/e  '"}) {
        UseLanguageFile(Section(std::string("4000=") + value + "\r\n"));
        EXPECT_EQ(strings.GetInterfaceString(4000), "Time") << value;
    }
    UseLanguageFile(Section("4000=/en\r\n"));
    EXPECT_EQ(strings.GetInterfaceString(4000), "/en");
}

TEST_F(InterfaceStringsTest, ARealTextIsNotTrimmed) {
    UseLanguageFile(Section("4000=\" Zeit\"\r\n4032=\"Filter:  \"\r\n4001=\"  \"\r\n"));
    EXPECT_EQ(strings.GetInterfaceString(4000), " Zeit");
    EXPECT_EQ(strings.GetInterfaceString(4032), "Filter:  ");
    EXPECT_EQ(strings.GetInterfaceString(4001), "  ");
}

TEST_F(InterfaceStringsTest, OnlyTheSectionUserLanguageCounts) {
    UseLanguageFile("[Other]\r\n4000=Zeit\r\n[userLANGUAGE]\r\n4001=Quelle\r\n");
    EXPECT_EQ(strings.GetInterfaceString(4000), "Time");
    EXPECT_EQ(strings.GetInterfaceString(4001), "Quelle");
}

TEST_F(InterfaceStringsTest, AMissingFileGivesEnglishWithoutAMessage) {
    UseLanguageFile("");
    system.files.Delete(kLanguageFile);
    EXPECT_EQ(strings.GetInterfaceString(4000), "Time");
    EXPECT_TRUE(strings.LanguageFileMissing());
}

TEST_F(InterfaceStringsTest, AnUnreadableFileGivesEnglish) {
    UseLanguageFile(Section("4000=Zeit\r\n"));
    system.files.Lock(kLanguageFile);
    EXPECT_EQ(strings.GetInterfaceString(4000), "Time");
    EXPECT_FALSE(strings.LanguageFileMissing());
}

TEST_F(InterfaceStringsTest, AChangedFileCountsFromTheNextLookupOn) {
    UseLanguageFile(Section("4000=Zeit\r\n"));
    EXPECT_EQ(strings.GetInterfaceString(4000), "Zeit");
    system.files.Set(kLanguageFile, Section("4000=Temps\r\n"));
    EXPECT_EQ(strings.GetInterfaceString(4000), "Temps");
    system.files.Set(kLanguageFile, Section(""));
    EXPECT_EQ(strings.GetInterfaceString(4000), "Time");
}

TEST_F(InterfaceStringsTest, ATextIsReadUpTo4095Characters) {
    UseLanguageFile(Section("4000=" + std::string(5000, 'x') + "\r\n"));
    EXPECT_EQ(strings.GetInterfaceString(4000), std::string(4095, 'x'));
}

// Encodings.

TEST_F(InterfaceStringsTest, AFileWithAMarkIsUtf8WhateverTheCharacterSet) {
    UseLanguageFile(std::string(kUtf8Mark) + Section("4000=Время\r\n4001=Größe\r\n"));
    for (const std::int32_t script : {1, 0, 204, 161}) {
        settings.FontScript = script;
        EXPECT_EQ(strings.GetInterfaceString(4000), "Время") << script;
        EXPECT_EQ(strings.GetInterfaceString(4001), "Größe") << script;
    }
}

TEST_F(InterfaceStringsTest, AFileInUtf16IsReadAsSuch) {
    std::string bytes = "\xFF\xFE";
    for (const char16_t unit : Utf8ToUtf16(Section("4000=Время\r\n"))) {
        bytes += static_cast<char>(unit & 0xFFU);
        bytes += static_cast<char>(unit >> 8U);
    }
    UseLanguageFile(bytes);
    EXPECT_EQ(strings.GetInterfaceString(4000), "Время");
    settings.FontScript = 161;
    EXPECT_EQ(strings.GetInterfaceString(4000), "Время");
}

TEST_F(InterfaceStringsTest, WithoutAMarkTheCodePageIsThatOfTheCharacterSet) {
    // "Время" in 1251; in the system's 1252 the bytes mean something else.
    UseLanguageFile(Section("4000=\xC2\xF0\xE5\xEC\xFF\r\n"));
    settings.FontScript = 204;
    EXPECT_EQ(strings.GetInterfaceString(4000), "Время");
    settings.FontScript = 1;  // the system's code page
    EXPECT_EQ(strings.GetInterfaceString(4000), "Âðåìÿ");
    settings.FontScript = 0;  // western: 1252 too
    EXPECT_EQ(strings.GetInterfaceString(4000), "Âðåìÿ");
    settings.FontScript = 77;  // unknown: as the default
    EXPECT_EQ(strings.GetInterfaceString(4000), "Âðåìÿ");
}

TEST_F(InterfaceStringsTest, WithoutAMarkAFileThatIsUtf8IsReadAsSuch) {
    for (const std::int32_t script : {1, 204, 128}) {
        settings.FontScript = script;
        UseLanguageFile(Section("4000=Время\r\n4001=\"Quelle \"\r\n"));
        EXPECT_EQ(strings.GetInterfaceString(4000), "Время") << script;
        EXPECT_EQ(strings.GetInterfaceString(4001), "Quelle ") << script;
        EXPECT_EQ(strings.GetInterfaceString(4002), "Target") << script;
        // One letter that is none makes it a file of a code page.
        UseLanguageFile(Section("4000=Время\r\n4001=\xFF\r\n"));
        EXPECT_NE(strings.GetInterfaceString(4000), "Время") << script;
    }
}

TEST_F(InterfaceStringsTest, EveryCharacterSetHasItsCodePage) {
    UseLanguageFile(Section("4000=\xBF\xF1\xE1\r\n"));
    settings.FontScript = 161;  // Greek
    EXPECT_EQ(strings.GetInterfaceString(4000), "Ώρα");
    // In this one a letter may take two bytes, the second of them a backslash.
    UseLanguageFile(Section("4000=\x95\x5C\r\n4001=\x93\xFA\x96\x7B\x8C\xEA\r\n"));
    settings.FontScript = 128;  // Japanese
    EXPECT_EQ(strings.GetInterfaceString(4001), "日本語");
    EXPECT_EQ(strings.GetInterfaceString(4000), "表");
}

TEST_F(InterfaceStringsTest, OnASystemOfThatCodePageTheDefaultCharacterSetWillDo) {
    system.codePages.systemCodePage = 1251;
    UseLanguageFile(Section("4000=\xC2\xF0\xE5\xEC\xFF\r\n"));
    EXPECT_EQ(strings.GetInterfaceString(4000), "Время");
    settings.FontScript = 161;  // Greek
    EXPECT_NE(strings.GetInterfaceString(4000), "Время");
}

TEST_F(InterfaceStringsTest, ASingleTextWithAMarkIsUtf8InAFileOfACodePage) {
    UseLanguageFile(Section("4000=" + std::string(kUtf8Mark) + "Größe\r\n"));
    for (const std::int32_t script : {1, 204}) {
        settings.FontScript = script;
        EXPECT_EQ(strings.GetInterfaceString(4000), "Größe") << script;
    }
}

TEST_F(InterfaceStringsTest, TheRulesForEmptyTextsHoldInEveryCodePage) {
    settings.FontScript = 204;
    UseLanguageFile(Section("4000=\" /E \"\r\n4001=\r\n4002=\" \xC2\"\r\n"));
    EXPECT_EQ(strings.GetInterfaceString(4000), "Time");
    EXPECT_EQ(strings.GetInterfaceString(4001), "Source");
    EXPECT_EQ(strings.GetInterfaceString(4002), " В");
    EXPECT_EQ(strings.GetInterfaceString(4003), "&Source");
    EXPECT_FALSE(strings.RightToLeftLanguage());
}

TEST_F(InterfaceStringsTest, ARedirectedSectionIsFollowedInEveryCodePage) {
    for (const std::int32_t script : {1, 204}) {
        settings.FontScript = script;
        UseLanguageFile(Section("RedirectSection=more.lng\r\n4000=Zeit\r\n"));
        system.files.Set("C:\\Ordalyn\\Languages\\more.lng", Section("4000=Temps\r\n"));
        EXPECT_EQ(strings.GetInterfaceString(4000), "Temps") << script;
    }
}

// Reading order.

TEST_F(InterfaceStringsTest, ALanguageIsRightToLeftWhenTheFileSaysSo) {
    const auto of = [&](const char* entry) {
        UseLanguageFile(Section(entry));
        return strings.RightToLeftLanguage();
    };
    EXPECT_TRUE(of("RightToLeftLanguage=1\r\n"));
    EXPECT_TRUE(of("righttoleftlanguage=-1\r\n"));
    EXPECT_FALSE(of("RightToLeftLanguage=0\r\n"));
    EXPECT_FALSE(of("RightToLeftLanguage=\r\n"));
    EXPECT_FALSE(of("4000=x\r\n"));
    EXPECT_THROW(of("RightToLeftLanguage=yes\r\n"), TypeMismatch);
}

TEST_F(InterfaceStringsTest, AMissingFileIsLeftToRight) {
    UseLanguageFile("");
    system.files.Delete(kLanguageFile);
    EXPECT_FALSE(strings.RightToLeftLanguage());
}

TEST_F(InterfaceStringsTest, ALanguageFileThatWasNeverChosenIsMissing) {
    settings.UseDefaultLanguage = 0;
    EXPECT_TRUE(strings.LanguageFileMissing());
    settings.UseDefaultLanguage = 1;
    EXPECT_FALSE(strings.LanguageFileMissing());
}

}  // namespace
}  // namespace ordalyn::test
