#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "LocatorRoom.h"

namespace ordalyn {
namespace {

class CommanderIni : public testing::Test, public test::LocatorRoom {
  protected:
    CommanderIni() { common.SetCommanderFolder("c:\\totalcmd\\"); }
    void Choose(const std::string& path) {
        system.dialogs.onOpenFile = [path](const platform::Dialogs::OpenRequest&) { return path; };
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

TEST_F(CommanderIni, WithoutAnyTheUserIsToldAndAsked) {
    Choose("d:\\ini\\mine.ini");
    locator.FindCommanderIni();
    ASSERT_EQ(kit.messages.size(), 1U);
    const test::ShownMessage& message = kit.messages[0];
    EXPECT_EQ(message.text, "text 3046");
    EXPECT_EQ(message.title, "Ordalyn");
    EXPECT_EQ(message.icon, toolkit::MessageIcon::Exclamation);
    EXPECT_EQ(message.buttons, toolkit::MessageButtons::Ok);
    EXPECT_EQ(message.owner, &form);
    ASSERT_EQ(system.dialogs.openRequests.size(), 1U);
    const platform::Dialogs::OpenRequest& request = system.dialogs.openRequests[0];
    EXPECT_EQ(request.owner, form.Handle());
    EXPECT_EQ(request.initialFolder, "c:\\totalcmd\\");
    EXPECT_EQ(request.fileName, "Wincmd.ini");
    EXPECT_THAT(request.filter, testing::StartsWith("Wincmd.ini (*.ini)"));
    EXPECT_EQ(request.title, "text 1605");
    EXPECT_EQ(request.flags, 0x1088140EU);
}

TEST_F(CommanderIni, TheMessageComesBeforeTheDialog) {
    kit.onMessage = [&](const test::ShownMessage&) {
        EXPECT_TRUE(system.dialogs.openRequests.empty());
        return toolkit::Answer::Ok;
    };
    locator.FindCommanderIni();
    EXPECT_EQ(system.dialogs.openRequests.size(), 1U);
}

TEST_F(CommanderIni, ARememberedFileThatIsGoneIsAskedForAgain) {
    Remember("UserDefinedWincmd", "d:\\ini\\gone.ini");
    Choose("d:\\ini\\mine.ini");
    EXPECT_EQ(locator.FindCommanderIni(), "d:\\ini\\mine.ini");
    EXPECT_EQ(Remembered("UserDefinedWincmd"), "d:\\ini\\mine.ini");
}

TEST_F(CommanderIni, TheMarkerIsTheDialogsFolderWhenNoneIsKnown) {
    common.SetCommanderFolder(common.NoValueMarker());
    locator.FindCommanderIni();
    EXPECT_EQ(system.dialogs.openRequests.at(0).initialFolder, common.NoValueMarker());
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
    kit.messages.clear();
    system.dialogs.openRequests.clear();
    EXPECT_EQ(locator.FindCommanderIni(), "C:\\Windows\\wincmd.ini");
    EXPECT_TRUE(AskedNothing());
}

// The file may be there already when the registry does not name it.
TEST_F(CommanderIni, TheFreshEntriesFollowARedirection) {
    system.files.Set("C:\\Windows\\wincmd.ini", "[Configuration]\r\nRedirectSection=own.ini\r\n");
    locator.FindCommanderIni();
    EXPECT_EQ(system.files.Get("C:\\Windows\\own.ini"),
              "[Configuration]\r\nfirstmnu=512\r\nPanelsVertical=0\r\n");
}

TEST_F(CommanderIni, TheFreshFileIsRememberedInItsSymbolicForm) {
    common.SetCommanderFolder("C:\\Windows\\");
    EXPECT_EQ(locator.FindCommanderIni(), "C:\\Windows\\wincmd.ini");
    EXPECT_EQ(Remembered("UserDefinedWincmd"), "%Commander_Path%\\wincmd.ini");
}

TEST_F(CommanderIni, WithoutAnOwnerTheDialogHasNone) {
    TotalCommanderLocator alone({common, registry, profile, dialog, system.environment, kit,
                                 nullptr, [](std::int32_t) { return std::string(); }});
    alone.FindCommanderIni();
    EXPECT_EQ(kit.messages.at(0).owner, nullptr);
    EXPECT_EQ(system.dialogs.openRequests.at(0).owner, 0U);
}

}  // namespace
}  // namespace ordalyn
