#include "hostconfig/LogOperations.h"

#include <gtest/gtest.h>

#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"
#include "support/platform/MemoryPlatform.h"

namespace ordalyn::test {
namespace {

class LogOperationsTest : public testing::Test {
  protected:
    LogOperationsTest() {
        system.files.Set(kCommanderIni, "[Configuration]\r\n");
        common.SetCommanderFolder("C:\\tc\\");
        common.SetCommanderIni(kCommanderIni);
    }
    void UseLanguageFile(std::string_view path, std::string_view value, std::string_view bytes) {
        system.files.Set(path, bytes);
        system.ansiProfile.WriteEntry("Configuration", "LanguageIni", value, kCommanderIni);
    }
    OperationKind KindOf(std::string_view operation) {
        const std::string field = "10:00:00: " + std::string(operation) + ": C:\\a";
        return operations.Reader().Read(field, "").kind;
    }

    static constexpr std::string_view kCommanderIni = "C:\\tc\\wincmd.ini";
    static constexpr std::string_view kGerman = "C:\\tc\\Language\\WCMD_DEU.LNG";
    MemoryPlatform system;
    mAppCommon common{system.services};
    cProfile profile{system.services, common};
    LogOperations operations{{common, profile, system.files, system.codePages}};
};

TEST_F(LogOperationsTest, KnowTheTwelveEnglishWords) {
    const std::string_view words[] = {"Program start", "Program shutdown", "Copy",   "Move",
                                      "Shortcut",      "NewFolder",        "Delete", "DeleteFolder",
                                      "Pack",          "Unpack",           "Test",   "CreateFile"};
    int kind = static_cast<int>(OperationKind::ProgramStart);
    for (const std::string_view word : words)
        EXPECT_EQ(KindOf(word), static_cast<OperationKind>(kind++)) << word;
    EXPECT_EQ(KindOf("Kopieren"), OperationKind::Other);
    EXPECT_EQ(KindOf("Failed"), OperationKind::Other) << "an outcome is no operation";
}

TEST_F(LogOperationsTest, KnowThoseOfTheFileManagersLanguageToo) {
    UseLanguageFile(kGerman, "WCMD_DEU.LNG",
                    "Deutsch\r\n 1802 =\"Kopieren\"\r\n1803=\"Umzug, ganz\"\r\n1804=\"\r\n"
                    "1805=Ordner\r\n1901=\"Kaputt\"\r\n18021=\"Nichts\"\r\n");
    EXPECT_EQ(KindOf("Kopieren"), OperationKind::Copy);
    EXPECT_EQ(KindOf("Umzug, ganz"), OperationKind::Move);
    EXPECT_EQ(KindOf("Copy"), OperationKind::Copy);
    EXPECT_EQ(KindOf("Ordner"), OperationKind::Other);
    EXPECT_EQ(KindOf("Kaputt"), OperationKind::Other);
    EXPECT_EQ(KindOf("Nichts"), OperationKind::Other);
}

TEST_F(LogOperationsTest, TheFileManagersLanguageCountsBeforeEnglish) {
    UseLanguageFile(kGerman, "WCMD_DEU.LNG", "1803=\"Copy\"\r\n");
    EXPECT_EQ(KindOf("Copy"), OperationKind::Move);
}

TEST_F(LogOperationsTest, ReadALanguageFileOutsideTheLanguageFolder) {
    UseLanguageFile("D:\\mine.lng", "D:\\mine.lng", "1802=\"Kopieren\"\r\n");
    EXPECT_EQ(KindOf("Kopieren"), OperationKind::Copy);
}

TEST_F(LogOperationsTest, ALanguageFileThatIsMissingLeavesEnglish) {
    system.ansiProfile.WriteEntry("Configuration", "LanguageIni", "gone.lng", kCommanderIni);
    EXPECT_EQ(KindOf("Copy"), OperationKind::Copy);
}

TEST_F(LogOperationsTest, AreReadOnceUntilTheyAreForgotten) {
    EXPECT_EQ(KindOf("Kopieren"), OperationKind::Other);
    UseLanguageFile(kGerman, "WCMD_DEU.LNG", "1802=\"Kopieren\"\r\n");
    EXPECT_EQ(KindOf("Kopieren"), OperationKind::Other);
    operations.Forget();
    EXPECT_EQ(KindOf("Kopieren"), OperationKind::Copy);
}

TEST_F(LogOperationsTest, WriteNothing) {
    system.files.AddFolder("C:\\Ordalyn");
    EXPECT_EQ(KindOf("Copy"), OperationKind::Copy);
    EXPECT_FALSE(system.files.Exists("C:\\Ordalyn\\Ordalyn.ini"));
}

}  // namespace
}  // namespace ordalyn::test
