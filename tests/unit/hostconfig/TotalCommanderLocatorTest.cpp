#include "hostconfig/TotalCommanderLocator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "LocatorRoom.h"

namespace ordalyn {
namespace {

class CommanderFolder : public testing::Test, public test::LocatorRoom {
  protected:
    std::string Variable() { return system.environment.Variable("Commander_Path"); }
};

TEST_F(CommanderFolder, TheVariableComesFirstAndIsRemembered) {
    system.environment.SetVariable("Commander_Path", "d:\\tc");
    Register(kUser, "InstallDir", "c:\\user");
    EXPECT_EQ(locator.FindCommanderFolder(), "d:\\tc\\");
    EXPECT_EQ(Remembered("TCInstallDir"), "d:\\tc");
    EXPECT_EQ(common.CommanderFolder(), "d:\\tc\\");
}

TEST_F(CommanderFolder, TheVariablesFolderNeedNotExist) {
    system.environment.SetVariable("COMMANDER_PATH", "d:\\nowhere");
    ASSERT_FALSE(common.FileExists("d:\\nowhere"));
    EXPECT_EQ(locator.FindCommanderFolder(), "d:\\nowhere\\");
}

TEST_F(CommanderFolder, TheVariableIsNotExpanded) {
    system.environment.SetVariable("Drive", "d:");
    system.environment.SetVariable("Commander_Path", "%Drive%\\tc");
    EXPECT_EQ(locator.FindCommanderFolder(), "%Drive%\\tc\\");
    EXPECT_EQ(Remembered("TCInstallDir"), "%Drive%\\tc");
}

// Not by the program's folder: it is found again when the program has been moved.
TEST_F(CommanderFolder, AFolderBelowTheProgramsIsRememberedAsItWasFound) {
    system.environment.SetVariable("Commander_Path", "C:\\Ordalyn\\tc");
    EXPECT_EQ(locator.FindCommanderFolder(), "C:\\Ordalyn\\tc\\");
    EXPECT_EQ(Remembered("TCInstallDir"), "C:\\Ordalyn\\tc");
    system.environment.RemoveVariable("Commander_Path");
    Register(kUser, "InstallDir", "C:\\Ordalyn\\other");
    EXPECT_EQ(locator.FindCommanderFolder(), "C:\\Ordalyn\\other\\");
    EXPECT_EQ(Remembered("TCInstallDir"), "C:\\Ordalyn\\other");
}

TEST_F(CommanderFolder, TheUsersRegistryComesSecond) {
    Register(kUser, "InstallDir", "c:\\user\\");
    Register(kMachine, "InstallDir", "c:\\machine");
    EXPECT_EQ(locator.FindCommanderFolder(), "c:\\user\\");
    EXPECT_EQ(Remembered("TCInstallDir"), "c:\\user\\");
}

TEST_F(CommanderFolder, TheRegistrysFolderIsExpandedAndRememberedSo) {
    system.environment.SetVariable("Drive", "d:");
    Register(kUser, "InstallDir", "%drive%\\tc");
    EXPECT_EQ(locator.FindCommanderFolder(), "d:\\tc\\");
    EXPECT_EQ(Remembered("TCInstallDir"), "d:\\tc");
}

TEST_F(CommanderFolder, TheMachinesRegistryComesThird) {
    Register(kMachine, "InstallDir", "c:\\machine");
    Remember("TCInstallDir", "c:\\before");
    EXPECT_EQ(locator.FindCommanderFolder(), "c:\\machine\\");
    EXPECT_EQ(Remembered("TCInstallDir"), "c:\\machine");
}

TEST_F(CommanderFolder, TheRememberedFolderComesLast) {
    system.environment.SetVariable("Drive", "d:");
    Remember("TCInstallDir", "%Drive%\\before");
    EXPECT_EQ(locator.FindCommanderFolder(), "d:\\before\\");
    EXPECT_EQ(Remembered("TCInstallDir"), "%Drive%\\before");
}

TEST_F(CommanderFolder, AnEmptyRegistryValueIsNone) {
    Register(kUser, "InstallDir", "");
    Register(kMachine, "InstallDir", "c:\\machine");
    EXPECT_EQ(locator.FindCommanderFolder(), "c:\\machine\\");
    EXPECT_EQ(Remembered("TCInstallDir"), "c:\\machine");
}

TEST_F(CommanderFolder, AnEmptyRememberedFolderIsNone) {
    system.files.Set(kOwnFile, "[Common]\r\nTCInstallDir=\r\n");
    EXPECT_EQ(locator.FindCommanderFolder(), common.NoValueMarker());
    EXPECT_EQ(Remembered("TCInstallDir"), "");
    EXPECT_EQ(Variable(), "");
}

TEST_F(CommanderFolder, WithoutAnyItIsTheMarkerAndNothingIsRemembered) {
    EXPECT_EQ(locator.FindCommanderFolder(), common.NoValueMarker());
    EXPECT_EQ(common.CommanderFolder(), common.NoValueMarker());
    EXPECT_EQ(Remembered("TCInstallDir"), "(absent)");
}

TEST_F(CommanderFolder, WhatWasFoundCanBeReadBack) {
    Register(kUser, "InstallDir", "c:\\user\\");
    locator.FindCommanderFolder();
    EXPECT_EQ(Variable(), "c:\\user");
    EXPECT_EQ(common.ExpandPath(common.UnExpandPath("C:\\User\\a.ini")), "c:\\user\\a.ini");
}

TEST_F(CommanderFolder, WhatWasRememberedCanBeReadBackBeforeTheSearch) {
    system.environment.SetVariable("Drive", "d:");
    Remember("TCInstallDir", "%Drive%\\before");
    ProvideRememberedCommanderFolder(common, profile);
    EXPECT_EQ(common.ExpandPath("%commander_path%\\a.ini"), "d:\\before\\a.ini");
    EXPECT_EQ(locator.FindCommanderFolder(), "d:\\before\\");
    EXPECT_EQ(Variable(), "d:\\before");
}

TEST_F(CommanderFolder, WhatWasRememberedDoesNotHideTheRegistry) {
    Remember("TCInstallDir", "c:\\before");
    Register(kMachine, "InstallDir", "c:\\machine");
    ProvideRememberedCommanderFolder(common, profile);
    EXPECT_EQ(locator.FindCommanderFolder(), "c:\\machine\\");
    EXPECT_EQ(Remembered("TCInstallDir"), "c:\\machine");
    EXPECT_EQ(Variable(), "c:\\machine");
}

// Not even by a reference to the variable.
TEST_F(CommanderFolder, TheRegistryDoesNotReferToWhatWasRemembered) {
    Remember("TCInstallDir", "c:\\before");
    Register(kUser, "InstallDir", "%Commander_Path%");
    ProvideRememberedCommanderFolder(common, profile);
    EXPECT_EQ(locator.FindCommanderFolder(), "%Commander_Path%\\");
}

TEST_F(CommanderFolder, AVariableOfTheStartStaysAsItIs) {
    system.environment.SetVariable("Commander_Path", "d:\\tc\\");
    Remember("TCInstallDir", "c:\\before");
    ProvideRememberedCommanderFolder(common, profile);
    EXPECT_EQ(Variable(), "d:\\tc\\");
    EXPECT_EQ(locator.FindCommanderFolder(), "d:\\tc\\");
    EXPECT_EQ(Variable(), "d:\\tc\\");
}

TEST_F(CommanderFolder, WithoutAnyThereIsNoVariable) {
    ProvideRememberedCommanderFolder(common, profile);
    EXPECT_EQ(Variable(), "");
    locator.FindCommanderFolder();
    EXPECT_EQ(Variable(), "");
}

class AbsolutePath : public testing::Test, public test::LocatorRoom {
  protected:
    AbsolutePath() { common.SetCommanderFolder("c:\\totalcmd\\"); }
};

TEST_F(AbsolutePath, ADotMeansTheFileManagersFolder) {
    system.files.Set("c:\\totalcmd\\wincmd.ini", "");
    EXPECT_EQ(locator.MakeAbsolutePath(".\\wincmd.ini"), "c:\\totalcmd\\wincmd.ini");
}

TEST_F(AbsolutePath, TheFileManagersFolderIsExpanded) {
    system.environment.SetVariable("Drive", "d:");
    common.SetCommanderFolder("%Drive%\\tc\\");
    system.files.Set("d:\\tc\\wincmd.ini", "");
    EXPECT_EQ(locator.MakeAbsolutePath(".\\wincmd.ini"), "d:\\tc\\wincmd.ini");
}

TEST_F(AbsolutePath, ADotWithoutSuchAFileGoesOnToTheWindowsFolder) {
    system.files.Set("C:\\Windows\\wincmd.ini", "");
    EXPECT_EQ(locator.MakeAbsolutePath(".\\wincmd.ini"), "C:\\Windows\\.\\wincmd.ini");
}

TEST_F(AbsolutePath, AFullPathThatExistsIsTheAnswer) {
    system.files.Set("d:\\ini\\my.ini", "");
    EXPECT_EQ(locator.MakeAbsolutePath("d:\\ini\\my.ini"), "d:\\ini\\my.ini");
}

TEST_F(AbsolutePath, AFullPathThatDoesNotExistIsNone) {
    EXPECT_EQ(locator.MakeAbsolutePath("d:\\ini\\my.ini"), common.NoValueMarker());
}

TEST_F(AbsolutePath, ABareNameIsAFileOfTheWindowsFolder) {
    system.files.Set("C:\\Windows\\wincmd.ini", "");
    EXPECT_EQ(locator.MakeAbsolutePath("wincmd.ini"), "C:\\Windows\\wincmd.ini");
}

TEST_F(AbsolutePath, ABareNameThatIsNotInTheWindowsFolderIsNone) {
    system.files.SetCurrentFolder("E:\\here");
    system.files.Set("E:\\here\\wincmd.ini", "");
    system.files.Set("c:\\totalcmd\\wincmd.ini", "");
    EXPECT_EQ(locator.MakeAbsolutePath("wincmd.ini"), common.NoValueMarker());
}

TEST_F(AbsolutePath, VariablesAreExpandedFirst) {
    system.environment.SetVariable("APPDATA", "d:\\data");
    system.environment.SetVariable("Dot", ".");
    system.files.Set("d:\\data\\wincmd.ini", "");
    system.files.Set("c:\\totalcmd\\my.ini", "");
    EXPECT_EQ(locator.MakeAbsolutePath("%APPDATA%\\wincmd.ini"), "d:\\data\\wincmd.ini");
    EXPECT_EQ(locator.MakeAbsolutePath("%Dot%\\my.ini"), "c:\\totalcmd\\my.ini");
}

// Kept: only a drive makes a path absolute here.
TEST_F(AbsolutePath, ANetworkPathIsNone) {
    system.files.Set("\\\\server\\share\\wincmd.ini", "");
    ASSERT_TRUE(common.FileExists("\\\\server\\share\\wincmd.ini"));
    EXPECT_EQ(locator.MakeAbsolutePath("\\\\server\\share\\wincmd.ini"), common.NoValueMarker());
}

TEST_F(AbsolutePath, TheMarkerAndAnEmptyTextAreNone) {
    EXPECT_EQ(locator.MakeAbsolutePath(common.NoValueMarker()), common.NoValueMarker());
    EXPECT_EQ(locator.MakeAbsolutePath(""), common.NoValueMarker());
}

// The second character counts, not the second byte.
TEST_F(AbsolutePath, TheDriveIsOneCharacter) {
    EXPECT_EQ(locator.MakeAbsolutePath("\xC3:\\x"), common.NoValueMarker());
    EXPECT_EQ(locator.MakeAbsolutePath("x"), common.NoValueMarker());
}

class LogFile : public testing::Test, public test::LocatorRoom {
  protected:
    LogFile() {
        common.SetCommanderIni("C:\\tc\\wincmd.ini");
        system.environment.SetVariable("TEMP", "C:\\Temp");
        system.environment.SetVariable("TMP", "D:\\Tmp\\");
        Configure("LogFile=C:\\configured.log");
        system.files.Set("C:\\configured.log", "");
    }
    void Configure(const std::string& entry) {
        system.files.Set("C:\\tc\\wincmd.ini", "[Configuration]\r\n" + entry + "\r\n");
    }
};

TEST_F(LogFile, TheSettingsFileNamesIt) {
    EXPECT_EQ(locator.FindLogFile(), "C:\\configured.log");
}

TEST_F(LogFile, TheCommandLineComesFirst) {
    system.environment.commandLine = "c:\\logs\\tc.log";
    EXPECT_EQ(locator.FindLogFile(), "c:\\logs\\tc.log");
}

TEST_F(LogFile, QuotesAroundTheCommandLineGo) {
    system.environment.commandLine = "\"c:\\my logs\\tc.log\"";
    EXPECT_EQ(locator.FindLogFile(), "c:\\my logs\\tc.log");
}

TEST_F(LogFile, OneQuoteAtOneEndStays) {
    system.environment.commandLine = "\"c:\\my logs\\tc.log";
    EXPECT_EQ(locator.FindLogFile(), "\"c:\\my logs\\tc.log");
    system.environment.commandLine = "c:\\tc.log\"";
    EXPECT_EQ(locator.FindLogFile(), "c:\\tc.log\"");
}

TEST_F(LogFile, OnlyTheOuterQuotesGo) {
    system.environment.commandLine = "\"a\" \"b\"";
    EXPECT_EQ(locator.FindLogFile(), "a\" \"b");
}

TEST_F(LogFile, QuotesAroundNothingAreNoCommandLine) {
    system.environment.commandLine = "\"\"";
    EXPECT_EQ(locator.FindLogFile(), "C:\\configured.log");
    system.environment.commandLine = "\"";
    EXPECT_EQ(locator.FindLogFile(), "C:\\configured.log");
}

TEST_F(LogFile, TheCommandLineIsTakenAsItStands) {
    system.environment.commandLine = "%TEMP%\\missing file.log";
    EXPECT_EQ(locator.FindLogFile(), "%TEMP%\\missing file.log");
}

TEST_F(LogFile, TheConfiguredNameIsExpanded) {
    Configure("LogFile=%TEMP%\\totalcmd.log");
    system.files.Set("C:\\Temp\\totalcmd.log", "");
    EXPECT_EQ(locator.FindLogFile(), "C:\\Temp\\totalcmd.log");
}

TEST_F(LogFile, RedirectionsCount) {
    Configure("RedirectSection=other.ini\r\nLogFile=C:\\configured.log");
    system.files.Set("C:\\tc\\other.ini", "[Configuration]\r\nLogFile=C:\\redirected.log\r\n");
    system.files.Set("C:\\redirected.log", "");
    EXPECT_EQ(locator.FindLogFile(), "C:\\redirected.log");
}

TEST_F(LogFile, ABareNameIsAFileOfTheCurrentFolderFirst) {
    Configure("LogFile=tc.log");
    system.files.SetCurrentFolder("E:\\here");
    system.files.Set("E:\\here\\tc.log", "");
    system.files.Set("C:\\Temp\\tc.log", "");
    EXPECT_EQ(locator.FindLogFile(), "tc.log");
}

TEST_F(LogFile, ThenItIsLookedForInTheTempFolder) {
    Configure("LogFile=tc.log");
    system.files.Set("C:\\Temp\\tc.log", "");
    system.files.Set("D:\\Tmp\\tc.log", "");
    EXPECT_EQ(locator.FindLogFile(), "C:\\Temp\\tc.log");
}

TEST_F(LogFile, ThenInTheTmpFolder) {
    Configure("LogFile=tc.log");
    system.files.Set("D:\\Tmp\\tc.log", "");
    EXPECT_EQ(locator.FindLogFile(), "D:\\Tmp\\tc.log");
}

TEST_F(LogFile, TheLastCandidateIsKeptThoughItDoesNotExist) {
    Configure("LogFile=tc.log");
    EXPECT_EQ(locator.FindLogFile(), "D:\\Tmp\\tc.log");
    Configure("LogFile=X:\\gone.log");
    EXPECT_EQ(locator.FindLogFile(), "D:\\Tmp\\X:\\gone.log");
}

TEST_F(LogFile, WithoutAnEntryOrWithAnEmptyOneNothingExists) {
    system.files.AddFolder("C:\\Temp");
    system.files.AddFolder("D:\\Tmp");
    Configure("Other=1");
    EXPECT_EQ(locator.FindLogFile(), "D:\\Tmp\\" + common.NoValueMarker());
    Configure("LogFile=");
    EXPECT_EQ(locator.FindLogFile(), "D:\\Tmp\\");
    EXPECT_FALSE(common.FileExists(locator.FindLogFile()));
}

}  // namespace
}  // namespace ordalyn
