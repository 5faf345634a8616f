// How the main window opens, lists and refreshes logs.
#include "windows/main/frmMain.h"

#include <utility>

#include "support/windows/ProgramWindow.h"

namespace ordalyn {
namespace {

using test::ProgramWindow;
using testing::EndsWith;
namespace key = toolkit::key;

class MainWindowLogs : public ProgramWindow {
  protected:
    static constexpr toolkit::Modifiers kCtrl{.control = true};
    static constexpr toolkit::Modifiers kCtrlAlt{.control = true, .alt = true};

    std::string Clipboard() const { return system.clipboard.text.value_or("(empty)"); }
};

TEST_F(MainWindowLogs, RefreshShowsWhatWasAppended) {
    Start();
    system.files.Append("C:\\logs\\tc.log", "03.03.2024 12:00:00: Delete z\r\n");
    tools.Press(Main(), key::F5);
    EXPECT_EQ(Date().ListIndex(), 3);
    EXPECT_EQ(Source().Text(0, 1), "Delete z");
    // The entry has no file: the title names the folder alone.
    EXPECT_EQ(Main().Caption(), Title("C:\\logs\\"));
    // Where there is too little room for it, the words in front stay.
    EXPECT_EQ(tools.Of(Main()).pathInCaption, Title("").size());
}

TEST_F(MainWindowLogs, RefreshRebuildsTheListOfFiles) {
    SetIni("LogFile=C:\\logs\\tc.log\r\nLogRotateLimit=1000\r\nLogKeepCount=3");
    Start();
    EXPECT_FALSE(Files().Visible());
    SetLog("C:\\logs\\tc.1.log", {"01.01.2024 10:00:00: Copy o -> p"});
    Choose("mnuViewRefresh");
    EXPECT_TRUE(Files().Visible());
    EXPECT_EQ(Files().ListCount(), 3);
}

// The list is built when the rotation that Refresh waits for is over.
TEST_F(MainWindowLogs, RefreshListsTheFileThatARotationHasJustMade) {
    SetIni("LogFile=C:\\logs\\tc.log\r\nLogRotateLimit=1000\r\nLogKeepCount=3");
    Start();
    system.files.Delete("C:\\logs\\tc.log");
    bool rotated = false;
    system.files.onOpen = [&](const std::string& path) {
        if (path != "C:\\logs\\tc.log" || std::exchange(rotated, true))
            return;
        SetLog("C:\\logs\\tc.1.log", {"01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt"});
        SetLog("C:\\logs\\tc.log", {"07.03.2024 10:00:00: Copy x -> y"});
    };
    Choose("mnuViewRefresh");
    ASSERT_TRUE(rotated);
    EXPECT_EQ(Source().Text(0, 1), "Copy x ");
    EXPECT_EQ(Files().ListCount(), 3);
    EXPECT_EQ(Files().ListIndex(), 1);
}

TEST_F(MainWindowLogs, ARefreshThatFailsRebuildsTheListOfFilesToo) {
    SetIni("LogFile=C:\\logs\\tc.log\r\nLogRotateLimit=1000\r\nLogKeepCount=3");
    SetLog("C:\\logs\\tc.1.log", {"01.01.2024 10:00:00: Copy o -> p"});
    Start();
    ASSERT_EQ(Files().ListCount(), 3);
    // Rotated, and nothing has been logged since.
    system.files.Rename("C:\\logs\\tc.log", "C:\\logs\\tc.2.log");
    Choose("mnuViewRefresh");
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_THAT(tools.messages[0].text, EndsWith("Line: 0"));
    EXPECT_EQ(Files().ListCount(), 4);
    EXPECT_EQ(Source().Text(0, 1), "Move C:\\c ");
}

TEST_F(MainWindowLogs, FileOpenReadsAndRemembersAndLeavesNoFileSelected) {
    SetIni("LogFile=C:\\logs\\tc.log\r\nLogRotateLimit=1000\r\nLogKeepCount=3");
    SetLog("C:\\logs\\tc.1.log", {"01.01.2024 10:00:00: Copy o -> p"});
    SetLog("D:\\x.log", {"07.03.2024 10:00:00: Copy x -> y"});
    Start();
    ASSERT_EQ(Files().ListIndex(), 1);
    system.dialogs.onOpenFile = [](const auto& request) -> std::optional<std::string> {
        EXPECT_EQ(request.initialFolder, "C:\\logs\\");
        EXPECT_TRUE(request.filter.starts_with("TC Log File(*.log)"));
        EXPECT_EQ(request.flags, 0x1088140EU);
        return "D:\\x.log";
    };
    tools.Press(Main(), 'O', kCtrl);
    EXPECT_EQ(Source().Text(0, 1), "Copy x ");
    EXPECT_EQ(Files().ListIndex(), -1);
    EXPECT_EQ(Stored("RecentFiles1"), "D:\\x.log");
    EXPECT_EQ(Main().Menu("mnuFileRecentFiles").Caption(), "&1 D:\\x.log");
    // Kept as it is: the live log's folder with the name of a file from elsewhere.
    EXPECT_EQ(Main().Caption(), Title("C:\\logs\\x.log"));
}

TEST_F(MainWindowLogs, AllFilesStandInTheTitleOnlyUntilTheFirstRowIsClicked) {
    SetIni("LogFile=C:\\logs\\tc.log\r\nLogRotateLimit=1000\r\nLogKeepCount=3");
    SetLog("C:\\logs\\tc.1.log", {"01.01.2024 10:00:00: Copy o -> p"});
    Start();
    Files().UserSelected(0);
    ASSERT_EQ(Source().RowCount(), 4);
    EXPECT_EQ(Main().Caption(), Title("C:\\logs\\tc.1.log"));
    Source().UserSelected(3);
    EXPECT_EQ(Main().Caption(), Title("C:\\logs\\tc.log"));
}

TEST_F(MainWindowLogs, OpeningALogLeavesTheListOfFilesAsItIs) {
    SetSettings("RecentFiles1=D:\\x.log");
    SetIni("LogFile=C:\\logs\\tc.log\r\nLogRotateLimit=1000\r\nLogKeepCount=3");
    SetLog("C:\\logs\\tc.1.log", {"01.01.2024 10:00:00: Copy o -> p"});
    SetLog("D:\\x.log", {"07.03.2024 10:00:00: Copy x -> y"});
    Start();
    SetLog("C:\\logs\\tc.2.log", {"01.01.2024 09:00:00: Copy m -> n"});
    Main().Menu("mnuFileRecentFiles").Choose();
    EXPECT_EQ(Files().ListCount(), 3);
    system.dialogs.onOpenFile = [](const auto&) -> std::optional<std::string> {
        return "D:\\x.log";
    };
    Choose("mnuFileOpen");
    EXPECT_EQ(Files().ListCount(), 3);
    Choose("mnuViewRefresh");
    EXPECT_EQ(Files().ListCount(), 4);
}

TEST_F(MainWindowLogs, DateAndTitleFollowTheRowsOfASinglePanel) {
    SetIni("LogFile=C:\\logs\\tc.log\r\nLogRotateLimit=1000\r\nLogKeepCount=3");
    SetLog("C:\\logs\\tc.1.log", {"01.01.2024 10:00:00: Copy o -> p"});
    SetSettings("TwoPanels=0\r\nLongDate=0");
    Start();
    Files().UserSelected(0);
    Source().UserSelected(1);
    EXPECT_EQ(Status().PanelText(2), "Friday, March 1, 2024  ");
    EXPECT_EQ(Main().Caption(), Title("C:\\logs\\tc.log"));
    Source().UserSelected(0);
    EXPECT_EQ(Status().PanelText(2), "Monday, January 1, 2024  ");
    EXPECT_EQ(Main().Caption(), Title("C:\\logs\\tc.1.log"));
}

TEST_F(MainWindowLogs, ACancelledOpenChangesNothing) {
    SetIni("LogFile=C:\\logs\\tc.log\r\nLogRotateLimit=1000\r\nLogKeepCount=3");
    SetLog("C:\\logs\\tc.1.log", {"01.01.2024 10:00:00: Copy o -> p"});
    Start();
    Choose("mnuFileOpen");
    EXPECT_EQ(Files().ListIndex(), 1);
    EXPECT_EQ(Main().Caption(), Title("C:\\logs\\tc.log"));
    EXPECT_EQ(Source().Text(0, 1), "Move C:\\c ");
    EXPECT_EQ(Stored("RecentFiles1"), "(absent)");
}

TEST_F(MainWindowLogs, ARecentFileIsOpenedAgain) {
    SetSettings("RecentFiles1=D:\\x.log\r\nRecentFiles2=D:\\y.log");
    SetLog("D:\\y.log", {"07.03.2024 10:00:00: Copy y -> z"});
    Start();
    Main().Menu("mnuFileRecentGroup").Items()[1]->Choose();
    EXPECT_EQ(Source().Text(0, 1), "Copy y ");
    EXPECT_EQ(Stored("RecentFiles1"), "D:\\y.log");
    EXPECT_EQ(Stored("RecentFiles2"), "D:\\x.log");
}

TEST_F(MainWindowLogs, ARecentFilesPathIsExpandedWhenItIsChosen) {
    system.environment.SetVariable("Dir", "odd");
    SetLog("D:\\%Dir%\\x.log", {"07.03.2024 10:00:00: Copy literal -> y"});
    SetLog("D:\\odd\\x.log", {"07.03.2024 10:00:00: Copy expanded -> y"});
    Start();
    Main().FilesDropped.Raise({"D:\\%Dir%\\x.log"});
    ASSERT_EQ(Source().Text(0, 1), "Copy literal ");
    Main().Menu("mnuFileRecentFiles").Choose();
    EXPECT_EQ(Source().Text(0, 1), "Copy expanded ");
}

TEST_F(MainWindowLogs, AMissingRecentFileIsReportedAndDropped) {
    SetSettings("RecentFiles1=D:\\gone.log\r\nRecentFiles2=D:\\y.log");
    Start();
    Main().Menu("mnuFileRecentFiles").Choose();
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text,
              "Cannot find this file D:\\gone.log\r\n\r\n"
              "Please verify that the correct path and file name are given.");
    EXPECT_EQ(tools.messages[0].icon, toolkit::MessageIcon::Exclamation);
    EXPECT_EQ(Stored("RecentFiles1"), "D:\\y.log");
    EXPECT_EQ(Stored("RecentFiles2"), "(absent)");
    EXPECT_EQ(Source().Text(0, 1), "Move C:\\c ");
}

TEST_F(MainWindowLogs, ClearingTheRecentFilesAsksAndSaves) {
    SetSettings("RecentFiles1=D:\\x.log");
    Start();
    const auto& items = Main().Menu("mnuFileRecentGroup").Items();
    items.back()->Choose();  // answered with the default, No
    EXPECT_EQ(Stored("RecentFiles1"), "D:\\x.log");
    tools.onMessage = [](const test::ShownMessage&) { return toolkit::Answer::Yes; };
    items.back()->Choose();
    EXPECT_EQ(Stored("RecentFiles1"), "(absent)");
    EXPECT_EQ(Main().Menu("mnuFileRecentFiles").Caption(), "No Recent Files");
}

TEST_F(MainWindowLogs, ADroppedLogIsOpenedLikeAChosenOne) {
    SetLog("D:\\x.log", {"07.03.2024 10:00:00: Copy x -> y"});
    Start();
    Main().FilesDropped.Raise({"D:\\x.log", "D:\\second.log"});
    EXPECT_EQ(Source().Text(0, 1), "Copy x ");
    EXPECT_EQ(Stored("RecentFiles1"), "D:\\x.log");
}

TEST_F(MainWindowLogs, AFileWithoutAnyLogIsReportedAndTheOldRowsStay) {
    Start();
    system.files.Set("D:\\empty.log", "");
    Main().FilesDropped.Raise({"D:\\empty.log"});
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_THAT(tools.messages[0].text, EndsWith("Line: 0"));
    EXPECT_EQ(Source().Text(0, 1), "Move C:\\c ");
}

TEST_F(MainWindowLogs, AfterAReadThatFailedTheRowsCanBeWalkedThroughAndCopied) {
    SetLog("D:\\long.log", std::vector<std::string>(2500, "07.03.2024 10:00:00: Copy x -> y"));
    system.files.Set("D:\\empty.log", "");
    Start();
    Main().FilesDropped.Raise({"D:\\long.log"});
    Main().FilesDropped.Raise({"D:\\empty.log"});
    ASSERT_EQ(tools.messages.size(), 1U);
    Source().UserSelected(2400);
    EXPECT_EQ(tools.messages.size(), 1U);
    tools.Press(Main(), 'C', kCtrlAlt);
    EXPECT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(Clipboard(), "y");
}

TEST_F(MainWindowLogs, WithoutALogRefreshLooksForItAgain) {
    SetIni("LogFile=C:\\late.log");
    Start();
    ASSERT_EQ(tools.messages.size(), 1U);
    Choose("mnuViewRefresh");
    ASSERT_EQ(tools.messages.size(), 2U);
    EXPECT_EQ(tools.messages[1].text, "Cannot find Total Commander log file.");
    SetLog("C:\\late.log", {"07.03.2024 10:00:00: Copy x -> y"});
    Choose("mnuViewRefresh");
    EXPECT_EQ(tools.messages.size(), 2U);
    EXPECT_EQ(Source().Text(0, 1), "Copy x ");
}

TEST_F(MainWindowLogs, ALogThatWasLockedAtTheStartIsReadByRefresh) {
    system.files.Lock("C:\\logs\\tc.log");
    Start();
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(Source().RowCount(), 0);
    system.files.Lock("C:\\logs\\tc.log", false);
    Choose("mnuViewRefresh");
    EXPECT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(Source().Text(0, 1), "Move C:\\c ");
}

}  // namespace
}  // namespace ordalyn
