#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "LocatorRoom.h"

namespace ordalyn {
namespace {

class CommanderIni : public testing::Test, public test::LocatorRoom {
  protected:
    CommanderIni() { common.SetCommanderFolder("c:\\totalcmd\\"); }
    void Choose(const std::string& path) {
        user.answer = {SettingsFileQuestion::Outcome::Chosen, path};
    }
};

TEST_F(CommanderIni, TheVariableComesFirst) {
    system.environment.SetVariable("Commander_INI", "d:\\ini\\my.ini");
    system.files.Set("d:\\ini\\my.ini", "");
    Register(kUser, "IniFileName", "d:\\ini\\user.ini");
    system.files.Set("d:\\ini\\user.ini", "");
    EXPECT_EQ(locator.FindCommanderIni(), "d:\\ini\\my.ini");
    EXPECT_EQ(common.CommanderIni(), "d:\\ini\\my.ini");
    EXPECT_EQ(Remembered("UserDefinedWincmd"), "(absent)");
    EXPECT_TRUE(AskedNothing());
}

TEST_F(CommanderIni, AVariableThatNamesNoFileIsPassedOver) {
    system.environment.SetVariable("Commander_INI", "d:\\ini\\missing.ini");
    Register(kUser, "IniFileName", "d:\\ini\\user.ini");
    system.files.Set("d:\\ini\\user.ini", "");
    EXPECT_EQ(locator.FindCommanderIni(), "d:\\ini\\user.ini");
}

// As the variable stands: its own references are not expanded.
TEST_F(CommanderIni, TheVariableIsNotExpanded) {
    system.environment.SetVariable("Dir", "d:\\ini");
    system.environment.SetVariable("Commander_INI", "%Dir%\\my.ini");
    system.files.Set("d:\\ini\\my.ini", "");
    system.files.Set("C:\\Windows\\wincmd.ini", "");
    Register(kUser, "IniFileName", "wincmd.ini");
    EXPECT_EQ(locator.FindCommanderIni(), "C:\\Windows\\wincmd.ini");
}

TEST_F(CommanderIni, TheUsersRegistryComesBeforeTheMachines) {
    Register(kUser, "IniFileName", ".\\wincmd.ini");
    Register(kMachine, "IniFileName", "d:\\ini\\machine.ini");
    system.files.Set("c:\\totalcmd\\wincmd.ini", "");
    system.files.Set("d:\\ini\\machine.ini", "");
    EXPECT_EQ(locator.FindCommanderIni(), "c:\\totalcmd\\wincmd.ini");
    EXPECT_TRUE(AskedNothing());
}

TEST_F(CommanderIni, TheMachinesRegistryComesThird) {
    Register(kUser, "IniFileName", "missing.ini");
    Register(kMachine, "IniFileName", "d:\\ini\\machine.ini");
    system.files.Set("d:\\ini\\machine.ini", "");
    Remember("UserDefinedWincmd", "d:\\ini\\before.ini");
    system.files.Set("d:\\ini\\before.ini", "");
    EXPECT_EQ(locator.FindCommanderIni(), "d:\\ini\\machine.ini");
}

TEST_F(CommanderIni, ABareNameOfTheRegistryThatIsNotInTheWindowsFolderGoesOn) {
    Register(kUser, "IniFileName", "wincmd.ini");
    Remember("UserDefinedWincmd", "d:\\ini\\before.ini");
    system.files.Set("d:\\ini\\before.ini", "");
    EXPECT_EQ(locator.FindCommanderIni(), "d:\\ini\\before.ini");
}

TEST_F(CommanderIni, TheRememberedFileComesLastAndIsExpanded) {
    Remember("UserDefinedWincmd", "velmordane:\\ini\\before.ini");
    system.files.Set("C:\\Ordalyn\\ini\\before.ini", "");
    EXPECT_EQ(locator.FindCommanderIni(), "C:\\Ordalyn\\ini\\before.ini");
    EXPECT_TRUE(AskedNothing());
}

TEST_F(CommanderIni, WithoutAnyTheUserIsAskedOnceAndLooksInTheCommandersFolderFirst) {
    Choose("d:\\ini\\mine.ini");
    locator.FindCommanderIni();
    EXPECT_THAT(user.askedIn, testing::ElementsAre("c:\\totalcmd\\"));
}

TEST_F(CommanderIni, ARememberedFileThatIsGoneIsAskedForAgain) {
    Remember("UserDefinedWincmd", "d:\\ini\\gone.ini");
    Choose("d:\\ini\\mine.ini");
    EXPECT_EQ(locator.FindCommanderIni(), "d:\\ini\\mine.ini");
    EXPECT_EQ(Remembered("UserDefinedWincmd"), "d:\\ini\\mine.ini");
}

TEST_F(CommanderIni, TheMarkerIsTheFolderToLookInWhenNoneIsKnown) {
    common.SetCommanderFolder(common.NoValueMarker());
    locator.FindCommanderIni();
    EXPECT_THAT(user.askedIn, testing::ElementsAre(common.NoValueMarker()));
}

TEST_F(CommanderIni, TheChosenFileIsRememberedInItsSymbolicForm) {
    Choose("c:\\totalcmd\\ini\\mine.ini");
    EXPECT_EQ(locator.FindCommanderIni(), "c:\\totalcmd\\ini\\mine.ini");
    EXPECT_EQ(Remembered("UserDefinedWincmd"), "%Commander_Path%\\ini\\mine.ini");
    EXPECT_EQ(common.CommanderIni(), "c:\\totalcmd\\ini\\mine.ini");
}

TEST_F(CommanderIni, TheChosenFileIsExpanded) {
    system.environment.SetVariable("Dir", "odd");
    Choose("d:\\%Dir%\\mine.ini");
    EXPECT_EQ(locator.FindCommanderIni(), "d:\\odd\\mine.ini");
}

TEST_F(CommanderIni, AUserWhoCancelsGetsAFreshFileInTheWindowsFolder) {
    EXPECT_EQ(locator.FindCommanderIni(), "C:\\Windows\\wincmd.ini");
    EXPECT_EQ(system.files.Get("C:\\Windows\\wincmd.ini"),
              "[Configuration]\r\nfirstmnu=512\r\nPanelsVertical=0\r\n");
    EXPECT_EQ(Remembered("UserDefinedWincmd"), "C:\\Windows\\wincmd.ini");
    EXPECT_EQ(common.CommanderIni(), "C:\\Windows\\wincmd.ini");
}

TEST_F(CommanderIni, TheFreshFileIsFoundWithoutAskingNextTime) {
    locator.FindCommanderIni();
    user.askedIn.clear();
    EXPECT_EQ(locator.FindCommanderIni(), "C:\\Windows\\wincmd.ini");
    EXPECT_TRUE(AskedNothing());
}

// The file may be there already when the registry does not name it: it is the file manager's.
TEST_F(CommanderIni, AFileThatIsThereAlreadyIsTakenAsItIs) {
    const std::string before = "[Configuration]\r\nfirstmnu=1717\r\nLogFile=d:\\tc.log\r\n";
    system.files.Set("C:\\Windows\\wincmd.ini", before);
    EXPECT_EQ(locator.FindCommanderIni(), "C:\\Windows\\wincmd.ini");
    EXPECT_EQ(system.files.Get("C:\\Windows\\wincmd.ini"), before);
    EXPECT_EQ(Remembered("UserDefinedWincmd"), "C:\\Windows\\wincmd.ini");
}

TEST_F(CommanderIni, NorIsAFileWrittenThatItRedirectsTo) {
    system.files.Set("C:\\Windows\\wincmd.ini", "[Configuration]\r\nRedirectSection=own.ini\r\n");
    system.files.Set("C:\\Windows\\own.ini", "");
    locator.FindCommanderIni();
    EXPECT_EQ(system.files.Get("C:\\Windows\\own.ini"), "");
}

// Windows' folder is not everybody's to write in.
TEST_F(CommanderIni, AFileThatCannotBeMadeIsNotRemembered) {
    system.environment.SetVariable("windir", "C:\\Nowhere");
    EXPECT_EQ(locator.FindCommanderIni(), "C:\\Nowhere\\wincmd.ini");
    ASSERT_FALSE(system.files.Get("C:\\Nowhere\\wincmd.ini").has_value());
    EXPECT_EQ(Remembered("UserDefinedWincmd"), "(absent)");
}

TEST_F(CommanderIni, TheFreshFileIsRememberedInItsSymbolicForm) {
    common.SetCommanderFolder("C:\\Windows\\");
    EXPECT_EQ(locator.FindCommanderIni(), "C:\\Windows\\wincmd.ini");
    EXPECT_EQ(Remembered("UserDefinedWincmd"), "%Commander_Path%\\wincmd.ini");
}

// A user who ends the program behind the question has not answered it.
TEST_F(CommanderIni, AProgramThatEndsMeanwhileGetsNoFileAndLeavesNone) {
    user.answer = {SettingsFileQuestion::Outcome::ProgramEnded, ""};
    EXPECT_EQ(locator.FindCommanderIni(), common.NoValueMarker());
    EXPECT_FALSE(system.files.Get("C:\\Windows\\wincmd.ini").has_value());
    EXPECT_EQ(Remembered("UserDefinedWincmd"), "(absent)");
}

// Later than at the start, when the user wants to.
using ChosenIni = CommanderIni;

TEST_F(ChosenIni, IsTheSettingsFileFromThenOnAndRemembered) {
    Choose("c:\\totalcmd\\own.ini");
    EXPECT_TRUE(locator.ChooseCommanderIni());
    EXPECT_EQ(common.CommanderIni(), "c:\\totalcmd\\own.ini");
    EXPECT_EQ(Remembered("UserDefinedWincmd"), "%Commander_Path%\\own.ini");
    EXPECT_EQ(user.choseIn, std::vector<std::string>{"c:\\totalcmd\\"});
    EXPECT_TRUE(AskedNothing());
    EXPECT_EQ(Remembered("TCInstallDir"), "(absent)");
}

TEST_F(ChosenIni, ThatWasNotChosenChangesNothing) {
    common.SetCommanderIni("d:\\before.ini");
    for (const auto outcome :
         {SettingsFileQuestion::Outcome::Cancelled, SettingsFileQuestion::Outcome::ProgramEnded}) {
        user.answer = {outcome, ""};
        EXPECT_FALSE(locator.ChooseCommanderIni());
    }
    EXPECT_EQ(common.CommanderIni(), "d:\\before.ini");
    EXPECT_EQ(Remembered("UserDefinedWincmd"), "(absent)");
    EXPECT_FALSE(system.files.Get("C:\\Windows\\wincmd.ini").has_value());
}

// One on a stick, which no registry knows.
TEST_F(ChosenIni, LeadsToAFileManagerThatNobodyHasFound) {
    for (const char* program : {"TOTALCMD64.EXE", "TOTALCMD.EXE"}) {
        system.environment.RemoveVariable("Commander_Path");
        common.SetCommanderFolder(common.NoValueMarker());
        system.files.Set(std::string("E:\\tc\\") + program, "");
        Choose("E:\\tc\\wincmd.ini");
        EXPECT_TRUE(locator.ChooseCommanderIni());
        EXPECT_EQ(common.CommanderFolder(), "E:\\tc\\") << program;
        EXPECT_EQ(system.environment.Variable("Commander_Path"), "E:\\tc");
        EXPECT_EQ(Remembered("TCInstallDir"), "E:\\tc");
        EXPECT_EQ(Remembered("UserDefinedWincmd"), "%Commander_Path%\\wincmd.ini");
        system.files.Delete(std::string("E:\\tc\\") + program);
    }
}

TEST_F(ChosenIni, InAnotherFolderFindsNoFileManager) {
    common.SetCommanderFolder(common.NoValueMarker());
    Choose("E:\\ini\\wincmd.ini");
    EXPECT_TRUE(locator.ChooseCommanderIni());
    EXPECT_TRUE(common.IsNoValue(common.CommanderFolder()));
    EXPECT_EQ(Remembered("TCInstallDir"), "(absent)");
}

TEST_F(ChosenIni, LeavesAFolderThatWasFoundAsItIs) {
    system.files.Set("E:\\tc\\TOTALCMD.EXE", "");
    Choose("E:\\tc\\wincmd.ini");
    EXPECT_TRUE(locator.ChooseCommanderIni());
    EXPECT_EQ(common.CommanderFolder(), "c:\\totalcmd\\");
}

}  // namespace
}  // namespace ordalyn
