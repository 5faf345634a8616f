// Showing what a row tells of in the file manager.
#include "support/windows/ProgramWindow.h"
#include "windows/main/frmMain.h"

namespace ordalyn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kSource = "mnuContextShowSource";
constexpr const char* kTarget = "mnuContextShowTarget";

class FileManager : public test::ProgramWindow {
  protected:
    FileManager() { system.files.Set("C:\\tc\\TOTALCMD.EXE", ""); }

    // Starts the program on a log with these operations, the first of which is selected.
    void StartWith(const std::vector<std::string>& operations) {
        std::vector<std::string> lines;
        for (const std::string& operation : operations)
            lines.push_back("01.03.2024 10:15:30: " + operation);
        SetLog("C:\\logs\\tc.log", lines);
        Start();
        system.files.looks.clear();
    }
    static std::string Line(const std::string& argument) {
        return "C:\\tc\\TOTALCMD.EXE /O /A /S /L=" + argument;
    }
    // What the context menu lets be chosen for a row: source, target.
    std::vector<bool> Offered(int row) {
        Source().UserSelected(row);
        Source().MouseUp.Raise(toolkit::kRightButton, {}, 0, 0);
        return {Main().Menu(kSource).Enabled(), Main().Menu(kTarget).Enabled()};
    }
    bool WasAskedFor(const std::string& path) {
        const auto& looks = system.files.looks;
        return std::find(looks.begin(), looks.end(), path) != looks.end();
    }
};

TEST_F(FileManager, IsStartedWithTheSourceOrTheTarget) {
    system.files.Set("C:\\a b\\x.txt", "");
    system.files.Set("D:\\y.txt", "");
    StartWith({"Copy: C:\\a b\\x.txt -> D:\\y.txt"});
    Choose(kSource);
    Choose(kTarget);
    EXPECT_THAT(system.shell.started,
                ElementsAre(Line("\"C:\\a b\\x.txt\""), Line("\"D:\\y.txt\"")));
    EXPECT_THAT(system.shell.selected, IsEmpty());
    EXPECT_THAT(system.shell.opened, IsEmpty());
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(FileManager, FoldersEndWithoutABackslash) {
    system.files.AddFolder("D:\\new folder");
    StartWith({"NewFolder: D:\\new folder\\", "NewFolder: D:\\"});
    Choose(kSource);
    Source().UserSelected(1);
    Choose(kSource);
    EXPECT_THAT(system.shell.started, ElementsAre(Line("\"D:\\new folder\""), Line("D:\\")));
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(FileManager, TheShellSelectsTheFileWhenItsProgramIsNotThere) {
    system.files.Delete("C:\\tc\\TOTALCMD.EXE");
    system.files.Set("C:\\x.exe", "");
    StartWith({"Copy: C:\\x.exe -> \\\\nas\\share\\y.txt"});
    Choose(kSource);
    Choose(kTarget);
    EXPECT_THAT(system.shell.selected, ElementsAre("C:\\x.exe", "\\\\nas\\share\\y.txt"));
    EXPECT_THAT(system.shell.started, IsEmpty());
    EXPECT_THAT(system.shell.opened, IsEmpty());
}

TEST_F(FileManager, EnterAndDoubleClickShowWhatThePanelIsFor) {
    system.files.Set("C:\\x.txt", "");
    system.files.Set("D:\\y.txt", "");
    StartWith({"Copy: C:\\x.txt -> D:\\y.txt", "Delete: C:\\x.txt"});
    tools.PressIn(Main(), Source(), toolkit::key::Enter);
    tools.PressIn(Main(), Target(), toolkit::key::Enter);
    Target().UserActivated(0);
    // There is no target: its source is all that can be meant.
    Target().UserSelected(1);
    tools.PressIn(Main(), Target(), toolkit::key::Enter);
    EXPECT_THAT(system.shell.started, ElementsAre(Line("\"C:\\x.txt\""), Line("\"D:\\y.txt\""),
                                                  Line("\"D:\\y.txt\""), Line("\"C:\\x.txt\"")));
}

TEST_F(FileManager, NothingIsOfferedForWhatNamesNoPlace) {
    system.files.Set("C:\\x.txt", "");
    StartWith({"Copy: C:\\x.txt -> D:\\y.txt", "Delete: C:\\x.txt", "Copy: x.txt -> D:\\y.txt",
               "what is this", "Program start (anna/DESK7) UTF-8"});
    EXPECT_THAT(Offered(0), ElementsAre(true, true));
    EXPECT_THAT(Offered(1), ElementsAre(true, false));
    EXPECT_THAT(Offered(2), ElementsAre(false, true));
    EXPECT_THAT(Offered(3), ElementsAre(false, false));
    EXPECT_THAT(Offered(4), ElementsAre(false, false));
    for (int row = 2; row <= 4; ++row) {
        Source().UserSelected(row);
        tools.PressIn(Main(), Source(), toolkit::key::Enter);
    }
    EXPECT_THAT(system.shell.started, IsEmpty());
    EXPECT_THAT(system.shell.selected, IsEmpty());
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(FileManager, WhatIsGoneOffersTheNearestFolderThatIsThere) {
    system.files.AddFolder("D:\\a");
    StartWith({"Delete: D:\\a\\b\\c\\x.txt", "Delete: D:\\z.txt"});
    tools.onMessage = [](const test::ShownMessage&) { return toolkit::Answer::No; };
    Choose(kSource);
    EXPECT_THAT(system.shell.started, IsEmpty());
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text,
              "This path does not exist:\r\nD:\\a\\b\\c\\x.txt\r\n\r\nShow D:\\a instead?");
    EXPECT_EQ(tools.messages[0].buttons, toolkit::MessageButtons::YesNo);
    EXPECT_EQ(tools.messages[0].defaultAnswer, toolkit::Answer::Yes);
    EXPECT_EQ(tools.messages[0].owner, &Main());
    tools.onMessage = nullptr;
    Choose(kSource);
    Source().UserSelected(1);
    Choose(kSource);
    EXPECT_THAT(system.shell.started, ElementsAre(Line("\"D:\\a\""), Line("D:\\")));
    EXPECT_THAT(tools.messages.back().text, testing::EndsWith("Show D:\\ instead?"));
}

// The archive that it lies in can be shown.
TEST_F(FileManager, AFileAboveIsAsGoodAsAFolder) {
    system.files.Set("D:\\x.zip", "");
    StartWith({"Unpack: D:\\x.zip\\in\\a.txt -> C:\\a.txt"});
    Choose(kSource);
    EXPECT_THAT(system.shell.started, ElementsAre(Line("\"D:\\x.zip\"")));
}

TEST_F(FileManager, ADriveThatIsNotThereIsSaidToBeMissing) {
    StartWith({"Delete: Q:\\a\\x.txt"});
    Choose(kSource);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "This path does not exist:\r\nQ:\\a\\x.txt");
    EXPECT_EQ(tools.messages[0].buttons, toolkit::MessageButtons::Ok);
    EXPECT_THAT(system.shell.started, IsEmpty());
    // Nothing was looked for on it.
    for (const char* path : {"Q:\\a\\x.txt", "Q:\\a", "Q:\\"})
        EXPECT_FALSE(WasAskedFor(path)) << path;
}

TEST_F(FileManager, PathsInANetworkAreHandedOverWithoutALook) {
    system.files.AddFolder("N:\\");
    system.files.drives['N'] = platform::DriveKind::Network;
    StartWith({"Copy: N:\\a\\x.txt -> \\\\nas\\share\\x.txt"});
    Choose(kSource);
    Choose(kTarget);
    EXPECT_THAT(system.shell.started,
                ElementsAre(Line("\"N:\\a\\x.txt\""), Line("\"\\\\nas\\share\\x.txt\"")));
    EXPECT_FALSE(WasAskedFor("N:\\a\\x.txt"));
    EXPECT_FALSE(WasAskedFor("\\\\nas\\share\\x.txt"));
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(FileManager, PathsOfPluginsGoToTheFileManagerOnlyAndAsTheyStand) {
    StartWith({"Copy: \\\\\\FTP\\host:21\\x?.txt -> D:\\x.txt"});
    Choose(kSource);
    EXPECT_THAT(system.shell.started, ElementsAre(Line("\"\\\\\\FTP\\host:21\\x?.txt\"")));
    EXPECT_FALSE(WasAskedFor("\\\\\\FTP\\host:21\\x?.txt"));
    system.files.Delete("C:\\tc\\TOTALCMD.EXE");
    Choose(kSource);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text,
              "Only the file manager can show this path, and its program was not found:\r\n"
              "\\\\\\FTP\\host:21\\x?.txt");
    EXPECT_THAT(system.shell.selected, IsEmpty());
    EXPECT_EQ(system.shell.started.size(), 1U);
}

TEST_F(FileManager, APathWithAQuotationMarkIsRefused) {
    system.files.AddFolder("D:\\");
    StartWith(
        {"Delete: D:\\x.txt\" /R=\"C:\\y.txt", "Delete: \\\\\\FTP\\x\"y", "Delete: D:\\*.txt"});
    for (int row = 0; row < 3; ++row) {
        Source().UserSelected(row);
        Choose(kSource);
        ASSERT_EQ(tools.messages.size(), static_cast<std::size_t>(row) + 1);
        EXPECT_THAT(tools.messages.back().text,
                    testing::StartsWith("This path holds a sign that no path can have:\r\n"));
    }
    EXPECT_THAT(system.shell.started, IsEmpty());
    EXPECT_THAT(system.shell.selected, IsEmpty());
}

TEST_F(FileManager, NothingIsStartedWhenTheProgramWasClosedDuringTheQuestion) {
    system.files.AddFolder("D:\\");
    StartWith({"Delete: D:\\x.txt"});
    tools.onMessage = [this](const test::ShownMessage&) {
        Main().UserClosed();
        return toolkit::Answer::Yes;
    };
    Choose(kSource);
    EXPECT_THAT(system.shell.started, IsEmpty());
}

TEST_F(FileManager, NothingHappensWithoutARow) {
    StartWith({"Delete: C:\\b.txt"});
    Source().SelectRow(-1);
    Choose(kSource);
    Choose(kTarget);
    EXPECT_THAT(system.shell.started, IsEmpty());
    EXPECT_THAT(tools.messages, IsEmpty());
}

}  // namespace
}  // namespace ordalyn
