#include "hostconfig/OperationWords.h"

#include <gmock/gmock.h>

#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"
#include "support/platform/MemoryPlatform.h"

namespace ordalyn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kOwnFile = "C:\\Ordalyn\\Ordalyn.ini";
constexpr std::string_view kCommanderIni = "C:\\tc\\wincmd.ini";

class Keywords : public testing::Test {
  protected:
    Keywords() {
        system.files.AddFolder("C:\\Ordalyn");
        system.files.Set(kCommanderIni, "[Configuration]\r\n");
        common.SetCommanderFolder("C:\\tc\\");
        common.SetCommanderIni(kCommanderIni);
    }

    // An entry of the program's settings file; "(absent)" when there is none.
    std::string Stored(std::string_view key) {
        return system.ansiProfile.ReadEntry("Ordalyn", key, "(absent)", kOwnFile, 4096);
    }
    void Put(std::string_view key, std::string_view value) {
        system.ansiProfile.WriteEntry("Ordalyn", key, value, kOwnFile);
    }
    void UseLanguageFile(std::string_view bytes, std::string_view name = "WCMD_DEU.LNG") {
        system.files.Set("C:\\tc\\Language\\" + std::string(name), bytes);
        PutLanguageIni(name);
    }
    void PutLanguageIni(std::string_view value) {
        system.ansiProfile.WriteEntry("Configuration", "LanguageIni", value, kCommanderIni);
    }
    std::vector<std::string> Load() {
        items = keywords.LoadOperationKeywords();
        return Texts();
    }
    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (const OperationWord& item : items)
            texts.push_back(item.text);
        return texts;
    }
    std::vector<std::string> Keys() const {
        std::vector<std::string> keys;
        for (const OperationWord& item : items)
            keys.push_back(item.key);
        return keys;
    }
    static auto EnglishWords() {
        return ElementsAre("Program start", "Program shutdown", "-", "Copy", "Move", "Delete",
                           "DeleteFolder", "-", "NewFolder", "CreateFile", "Shortcut", "-", "Pack",
                           "Unpack", "Test");
    }

    MemoryPlatform system;
    mAppCommon common{system.services};
    cProfile profile{system.services, common};
    OperationWords keywords{{common, profile, system.files, system.codePages}};
    std::vector<OperationWord> items;
};

TEST_F(Keywords, WithoutALanguageFileAreTheEnglishOnesInTheDefaultOrder) {
    EXPECT_THAT(Load(), EnglishWords());
    EXPECT_THAT(Keys(), ElementsAre("k1800", "k1801", "", "k1802", "k1803", "k1806", "k1807", "",
                                    "k1805", "k1811", "k1804", "", "k1808", "k1809", "k1810"));
}

TEST_F(Keywords, TheMarkerOfAnAbsentEntryNamesNoLanguageFile) {
    system.files.Set("C:\\tc\\Language\\" + common.NoValueMarker(), "1802=\"Kopie\"\r\n");
    EXPECT_THAT(Load(), EnglishWords());
}

TEST_F(Keywords, TheDefaultOrderIsWrittenToTheSettingsFileAtOnce) {
    EXPECT_EQ(Stored("LoggingID"), "(absent)");
    Load();
    EXPECT_EQ(Stored("LoggingID"),
              "1800,1801,-,1802,1803,1806,1807,-,1805,1811,1804,-,1808,1809,1810");
    EXPECT_THAT(
        system.files.Get(kOwnFile).value_or(""),
        testing::HasSubstr(
            "\r\nLoggingID=1800,1801,-,1802,1803,1806,1807,-,1805,1811,1804,-,1808,1809,1810\r\n"));
}

TEST_F(Keywords, TheUsersOrderIsLeftInTheSettingsFile) {
    Put("LoggingID", "1803,-,1802");
    EXPECT_THAT(Load(), ElementsAre("Move", "-", "Copy"));
    EXPECT_EQ(Stored("LoggingID"), "1803,-,1802");
}

TEST_F(Keywords, ElementsAreNotTrimmed) {
    Put("LoggingID", "1802, 1803, -");
    EXPECT_THAT(Load(), ElementsAre("Copy"));
}

TEST_F(Keywords, OutcomesAreShownWhenTheUserListsThem) {
    Put("LoggingID", "1900,1921");
    EXPECT_THAT(Load(), ElementsAre("Error:", "File exists"));
    EXPECT_THAT(Keys(), ElementsAre("k1900", "k1921"));
}

TEST_F(Keywords, EveryBuiltInWordHasItsId) {
    Put("LoggingID",
        "1800,1801,1802,1803,1804,1805,1806,1807,1808,1809,1810,1811,1900,1901,1902,1903,1904,1905,"
        "1906,1907,1908,1909,1910,1911,1912,1913,1914,1915,1916,1917,1918,1919,1920,1921");
    EXPECT_THAT(Load(), ElementsAre("Program start", "Program shutdown", "Copy", "Move", "Shortcut",
                                    "NewFolder", "Delete", "DeleteFolder", "Pack", "Unpack", "Test",
                                    "CreateFile", "Error:", "Failed", "Aborted", "Skipped",
                                    "Not found", "Identical", "Read error", "Write error",
                                    "Invalid name", "Packer not found", "Temp file error",
                                    "Delete failed", "CRC error", "No files", "Too big",
                                    "Too many files", "Bad parameter(s)", "Archive bad",
                                    "Not supported", "Encrypted", "Module in use", "File exists"));
}

TEST_F(Keywords, AnEmptyOrderOffersNothing) {
    Put("LoggingID", "");
    EXPECT_THAT(Load(), IsEmpty());
    EXPECT_EQ(Stored("LoggingID"), "");
}

TEST_F(Keywords, AnElementOfTheListTwiceComesAtBothPlaces) {
    Put("LoggingID", "1802,-,-,1802,9999,1803");
    EXPECT_THAT(Load(), ElementsAre("Copy", "-", "-", "Copy", "Move"));
}

TEST_F(Keywords, OfTheLanguageFileComeInTheOrderOfTheList) {
    UseLanguageFile(
        "Deutsch\r\ncodepage=1252\r\n[x]\r\n; 1802 is a word\r\n\r\n"
        "1803=\"Verschieben\"\r\n1802=\"Kopieren\"\r\n1801=\"Programmende\"\r\n"
        "1800=\"Programmstart\"\r\n");
    EXPECT_THAT(Load(), ElementsAre("Programmstart", "Programmende", "-", "Kopieren", "Verschieben",
                                    "-", "-"));
    EXPECT_THAT(Keys(), ElementsAre("k1800", "k1801", "", "k1802", "k1803", "", ""));
}

TEST_F(Keywords, TheLanguageFilesNameIsExpanded) {
    system.environment.SetVariable("LNG", "WCMD_DEU.LNG");
    UseLanguageFile("1802=\"Kopieren\"\r\n");
    PutLanguageIni("%LNG%");
    Put("LoggingID", "1802");
    EXPECT_THAT(Load(), ElementsAre("Kopieren"));
}

TEST_F(Keywords, TheEntryFollowsTheFileManagersRedirection) {
    UseLanguageFile("1802=\"Kopieren\"\r\n");
    system.files.Set(kCommanderIni, "[Configuration]\r\nRedirectSection=user.ini\r\n");
    system.files.Set("C:\\tc\\user.ini", "[Configuration]\r\nLanguageIni=WCMD_DEU.LNG\r\n");
    Put("LoggingID", "1802");
    EXPECT_THAT(Load(), ElementsAre("Kopieren"));
}

TEST_F(Keywords, AMissingLanguageFileGivesTheEnglishWords) {
    PutLanguageIni("WCMD_RUS.LNG");
    EXPECT_THAT(Load(), EnglishWords());
}

TEST_F(Keywords, AnEmptyLanguageIniGivesTheEnglishWords) {
    PutLanguageIni("");
    EXPECT_THAT(Load(), EnglishWords());
}

TEST_F(Keywords, ALanguageIniThatNamesAnExistingFileGivesNoWords) {
    system.files.Set("C:\\tc\\Language\\WCMD_DEU.LNG", "1802=\"Kopieren\"\r\n");
    PutLanguageIni("C:\\tc\\Language\\WCMD_DEU.LNG");
    EXPECT_THAT(Load(), IsEmpty());
    EXPECT_NE(Stored("LoggingID"), "(absent)");  // written before
}

TEST_F(Keywords, ABareNameThatExistsInTheCurrentFolderGivesNoWords) {
    UseLanguageFile("1802=\"Kopieren\"\r\n");
    system.files.Set("C:\\Work\\WCMD_DEU.LNG", "x");
    system.files.SetCurrentFolder("C:\\Work");
    EXPECT_THAT(Load(), IsEmpty());
}

TEST_F(Keywords, ALanguageFileWithoutAnyOfTheWordsGivesTheEnglishOnes) {
    UseLanguageFile("Deutsch\r\n5000=\"anderes\"\r\n");
    EXPECT_THAT(Load(), EnglishWords());
}

TEST_F(Keywords, ALanguageFileThatCannotBeReadGivesNoWords) {
    UseLanguageFile("1802=\"Kopieren\"\r\n");
    system.files.Lock("C:\\tc\\Language\\WCMD_DEU.LNG");
    EXPECT_THAT(Load(), IsEmpty());
}

TEST_F(Keywords, AReadThatFailsHalfWayGivesNoWords) {
    std::string bytes = "1802=\"Kopieren\"\r\n";
    bytes.append(600000, '\n');
    UseLanguageFile(bytes);
    system.files.FailReadingAfter("C:\\tc\\Language\\WCMD_DEU.LNG", 300000);
    EXPECT_THAT(Load(), IsEmpty());
}

TEST_F(Keywords, LinesAreTrimmedBeforeTheyAreTakenApart) {
    UseLanguageFile("   1802=\"Kopieren\"   \r\n1803 =\"Verschieben\"\r\n");
    Put("LoggingID", "1802,1803");
    EXPECT_THAT(Load(), ElementsAre("Kopieren"));  // the key "1803 " is another
}

TEST_F(Keywords, AWordListedTwiceInTheFileComesTwiceTheFirstOneInFront) {
    UseLanguageFile("1802=\"Kopieren\"\r\n1802=\"Kopie\"\r\n");
    Put("LoggingID", "1802");
    EXPECT_THAT(Load(), ElementsAre("Kopieren", "Kopie"));
    EXPECT_THAT(Keys(), ElementsAre("k1802", "k1802"));
}

TEST_F(Keywords, AWordWithoutQuotesComesWithItsIdAndLosesItsLastCharacter) {
    UseLanguageFile("1802=Copy\r\n1803=Ü\r\n");
    Put("LoggingID", "1802,1803");
    EXPECT_THAT(Load(), ElementsAre("1802=Cop", "1803="));
}

TEST_F(Keywords, AWordWithACommaIsCutThereAndLosesACharacter) {
    UseLanguageFile("1802=\"Copy, or so\"\r\n1803=\"Move\"\r\n");
    Put("LoggingID", "1802,1803");
    EXPECT_THAT(Load(), ElementsAre("Cop", "Move"));
}

TEST_F(Keywords, AWordThatBeginsWithACommaIsLeftOut) {
    UseLanguageFile("1802=\", Copy\"\r\n1803=\"Move\"\r\n");
    Put("LoggingID", "1802,1803");
    EXPECT_THAT(Load(), ElementsAre("Move"));
}

TEST_F(Keywords, EmptyQuotesGiveAnEmptyWord) {
    UseLanguageFile("1802=\"\"\r\n");
    Put("LoggingID", "1802");
    EXPECT_THAT(Load(), ElementsAre(""));
    EXPECT_THAT(Keys(), ElementsAre("k1802"));
}

TEST_F(Keywords, BlanksInsideAWordStay) {
    UseLanguageFile("1802=\"Kopírovat         \"\r\n");
    Put("LoggingID", "1802");
    EXPECT_THAT(Load(), ElementsAre("Kopírovat         "));
}

TEST_F(Keywords, IdsAreComparedIgnoringCase) {
    UseLanguageFile("abc=\"Word\"\r\n");
    Put("LoggingID", "ABC");
    EXPECT_THAT(Load(), ElementsAre("Word"));
    EXPECT_THAT(Keys(), ElementsAre("kabc"));  // as the language file writes it
}

TEST_F(Keywords, OfACodePageFileAreReadInTheCodePage) {
    system.codePages.systemCodePage = 1251;
    UseLanguageFile("codepage=1251\r\n1802=\"\xCA\xEE\xEF\xE8\xF0\xEE\xE2\xE0\xED\xE8\xE5\"\r\n");
    Put("LoggingID", "1802");
    EXPECT_THAT(Load(), ElementsAre("Копирование"));
}

// "Копирование" on a western system.
TEST_F(Keywords, OfACodePageFileAreReadInTheCodePageThatItNames) {
    const std::string word = "1802=\"\xCA\xEE\xEF\xE8\xF0\xEE\xE2\xE0\xED\xE8\xE5\"\r\n";
    Put("LoggingID", "1802");
    UseLanguageFile("Russian\r\n CodePage=1251\r\n" + word);
    EXPECT_THAT(Load(), ElementsAre("Копирование"));
    for (const char* none : {"", "codepage=\r\n", "codepage=-1\r\n", "codepage=1e9\r\n",
                             "codepage=12345\r\n", "xcodepage=1251\r\n"}) {
        UseLanguageFile(none + word);
        EXPECT_THAT(Load(), ElementsAre("Êîïèðîâàíèå")) << none;
    }
    // What looks like UTF-8 is not, in a file that is not.
    UseLanguageFile("codepage=1251\r\n1801=\"\xD0\x90\"\r\n" + word);
    Put("LoggingID", "1801,1802");
    EXPECT_THAT(Load(), ElementsAre("Рђ", "Копирование"));
}

TEST_F(Keywords, OfAUtf8FileAreReadAsSuchWhateverCodePageItNames) {
    Put("LoggingID", "1802");
    UseLanguageFile("codepage=1251\r\n1802=\"Копирование\"\r\n");
    EXPECT_THAT(Load(), ElementsAre("Копирование"));
    UseLanguageFile("codepage=65001\r\n1802=\"Kopi\xFF\"\r\n");
    EXPECT_THAT(Load(), ElementsAre("Kopi\xEF\xBF\xBD"));
}

TEST_F(Keywords, OfAUtf8FileAreReadAsSuchWithAndWithoutAMark) {
    system.codePages.systemCodePage = 1251;
    UseLanguageFile(
        "\xEF\xBB\xBF"
        "1802=\"Копирование\"\r\n1803=\"Перемещение\"\r\n");
    Put("LoggingID", "1802,1803");
    EXPECT_THAT(Load(), ElementsAre("Копирование", "Перемещение"));
    UseLanguageFile("Русский\r\ncodepage=65001\r\n1804=\"Создание ярлыка\"\r\n", "U.LNG");
    Put("LoggingID", "1804");
    EXPECT_THAT(Load(), ElementsAre("Создание ярлыка"));
}

// The mark says it, also where bytes are broken.
TEST_F(Keywords, OfAFileWithAMarkAreReadByItWhateverCodePageItNames) {
    Put("LoggingID", "1802");
    UseLanguageFile(
        "\xEF\xBB\xBF"
        "codepage=1251\r\n1802=\"Kopi\xFF\"\r\n");
    EXPECT_THAT(Load(), ElementsAre("Kopi\xEF\xBF\xBD"));
    std::string little = "\xFF\xFE";
    std::string big = "\xFE\xFF";
    for (const char c : std::string("codepage=1251\r\n1802=\"Kopie\"\r\n")) {
        little.append({c, '\0'});
        big.append({'\0', c});
    }
    UseLanguageFile(little);
    EXPECT_THAT(Load(), ElementsAre("Kopie"));
    UseLanguageFile(big);
    EXPECT_THAT(Load(), ElementsAre("Kopie"));
}

TEST_F(Keywords, TheFirstLineThatNamesACodePageCountsWhereverItStands) {
    const std::string word = "1802=\"\xCA\xEE\xEF\xE8\xFF\"\r\n";
    Put("LoggingID", "1802");
    for (const std::string& file :
         {"codepage=1251\r\ncodepage=1252\r\n" + word, "Russian\ncodepage=1251\n" + word,
          "Russian\rcodepage=1251\r\n" + word,
          "\xD0\xF3\xF1\xF1\xEA\xE8\xE9 \xFF\xFF\r\ncodepage=1251\r\n" + word,
          word + std::string(100'000, ';') + "\r\ncodepage=1251"}) {
        UseLanguageFile(file);
        EXPECT_THAT(Load(), ElementsAre("Копия")) << file.substr(0, 40);
    }
}

TEST_F(Keywords, TellOperationsFromOutcomesByTheirId) {
    EXPECT_TRUE(OperationWords::IsOperation("k1802"));
    EXPECT_TRUE(OperationWords::IsOperation("k1899"));
    EXPECT_FALSE(OperationWords::IsOperation("k1900"));
    EXPECT_FALSE(OperationWords::IsOperation("k1921"));
}

TEST_F(Keywords, AnEqualsSignInsideAWordBelongsToIt) {
    UseLanguageFile("1802=\"Kopie =1803=2\"\r\n1803=\"Umzug\"\r\n");
    Put("LoggingID", "1802,1803");
    EXPECT_THAT(Load(), ElementsAre("Kopie =1803=2", "Umzug"));
    EXPECT_THAT(Keys(), ElementsAre("k1802", "k1803"));
}

TEST_F(Keywords, TheOperationsAreAllTwelveWhateverTheMenuOffers) {
    Put("LoggingID", "1802,1900");
    Load();
    EXPECT_THAT(
        keywords.Operations(),
        ElementsAre("Program start", "Program shutdown", "Copy", "Move", "Shortcut", "NewFolder",
                    "Delete", "DeleteFolder", "Pack", "Unpack", "Test", "CreateFile"));
    UseLanguageFile("1900=\"Fehler:\"\r\n1807=\"Ordner weg\"\r\n1802=\"Kopie\"\r\n1812=\"x\"\r\n");
    EXPECT_THAT(Load(), ElementsAre("Kopie", "Fehler:"));
    EXPECT_THAT(keywords.Operations(), ElementsAre("Kopie", "Ordner weg"));
    // A file with none of the offered words is not used at all.
    UseLanguageFile("1807=\"Ordner weg\"\r\n");
    EXPECT_THAT(Load(), ElementsAre("Copy", "Error:"));
    EXPECT_EQ(keywords.Operations().size(), 12U);
}

}  // namespace
}  // namespace ordalyn::test
