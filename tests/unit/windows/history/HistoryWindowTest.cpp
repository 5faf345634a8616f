// The history of a file or folder, as the whole program shows it.
#include "windows/history/frmHistory.h"

#include "support/settings/DesignIds.h"
#include "support/windows/ProgramWindow.h"

namespace ordalyn {
namespace {

using test::MemoryToolkit;
using test::ProgramWindow;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
namespace key = toolkit::key;

class HistoryWindow : public ProgramWindow {
  protected:
    HistoryWindow() {
        SetLog("C:\\logs\\tc.log",
               {
                   R"(01.03.2024 10:00:00: Copy: C:\x.txt -> D:\x.txt)",
                   R"(01.03.2024 10:00:01: Move: D:\plan.txt -> D:\plan&1.txt)",
                   R"(02.03.2024 11:00:00: Delete(Error: Aborted): D:\plan&1.txt)",
                   R"(02.03.2024 11:00:01: Move: D:\plan&1.txt -> E:\plan.txt)",
                   R"(03.03.2024 12:00:00: Delete: E:\plan.txt)",
                   R"(03.03.2024 12:00:01: CreateFile: D:\plan.txt)",
                   R"(03.03.2024 12:00:02: Delete: bare.txt)",
               });
    }

    frmHistory& Window() { return dynamic_cast<frmHistory&>(tools.FormNamed("frmHistory")); }
    void Open() {
        tools.Press(Main(), 'H', {.control = true});
        tools.DoLaterWork();
    }
    toolkit::ComboBox& Path() { return Window().Get<toolkit::ComboBox>("cboPath"); }
    toolkit::ComboBox& Lives() { return Window().Get<toolkit::ComboBox>("cboLives"); }
    toolkit::ListView& Steps() { return Window().Get<toolkit::ListView>("lvwSteps"); }
    toolkit::CommandButton& ReadAll() { return Window().Get<toolkit::CommandButton>("cmdReadAll"); }
    std::string Words() { return Window().Get<toolkit::Label>("lblSummary").Caption(); }
    // Types the path and presses Enter.
    void Ask(std::string_view path) {
        Path().UserEdited(path);
        tools.PressIn(Window(), Path(), key::Enter);
    }
    std::vector<std::string> Column(int column) {
        std::vector<std::string> texts;
        for (int row = 0; row < Steps().RowCount(); ++row)
            texts.emplace_back(Steps().Text(row, column));
        return texts;
    }
    void SelectRow(int row) { Source().UserSelected(row); }
    std::string ShownRow() { return std::string(Source().Text(Source().SelectedRow(), 1)); }
    toolkit::MenuItem& OfSource() { return Main().Menu("mnuContextHistorySource"); }
    toolkit::MenuItem& OfTarget() { return Main().Menu("mnuContextHistoryTarget"); }
};

TEST_F(HistoryWindow, CtrlHShowsItWithTheFocusInThePath) {
    Start();
    Open();
    EXPECT_TRUE(Window().Visible());
    EXPECT_EQ(tools.focus, &Path());
    EXPECT_EQ(Words(), "");
    EXPECT_THAT(test::DesignIdFaults(Window()), IsEmpty());
}

TEST_F(HistoryWindow, APathIsFollowedToItsEnd) {
    Start();
    Open();
    Ask(R"("d:\PLAN&1.txt")");
    EXPECT_EQ(Words(),
              R"(Moved 2 times, last seen at E:\plan.txt on 02.03.2024, deleted on 03.03.2024)");
    EXPECT_TRUE(Window().Get<toolkit::Label>("lblSummary").PlainText());
    EXPECT_THAT(Column(0), ElementsAre("01.03.2024", "02.03.2024", "02.03.2024", "03.03.2024"));
    EXPECT_THAT(Column(1), ElementsAre("10:00:01", "11:00:00", "11:00:01", "12:00:00"));
    EXPECT_THAT(Column(2), ElementsAre("Move", "Delete", "Move", "Delete"));
    EXPECT_THAT(Column(3), ElementsAre(R"(D:\plan.txt)", R"(D:\plan&1.txt)", R"(D:\plan&1.txt)",
                                       R"(E:\plan.txt)"));
    EXPECT_THAT(Column(4), ElementsAre(R"(D:\plan&1.txt)", "", R"(E:\plan.txt)", ""));
    EXPECT_THAT(Column(5), ElementsAre("", "Error: Aborted", "", ""));
    EXPECT_THAT(Column(6), ElementsAre("tc.log", "tc.log", "tc.log", "tc.log"));
    EXPECT_EQ(Steps().SelectedRow(), 0);
    EXPECT_FALSE(Lives().Visible());
}

TEST_F(HistoryWindow, TheLastLifeIsShownAndTheOthersAreOffered) {
    Start();
    Open();
    Ask(R"(D:\plan.txt)");
    ASSERT_TRUE(Lives().Visible());
    EXPECT_THAT(MemoryToolkit::Of(Lives()).items, ElementsAre("1 of 2: 01.03.2024 to 03.03.2024",
                                                              "2 of 2: 03.03.2024 to 03.03.2024"));
    EXPECT_EQ(Lives().ListIndex(), 1);
    EXPECT_THAT(Column(2), ElementsAre("CreateFile"));
    EXPECT_GE(Steps().Top(), Lives().Top() + Lives().Height());
    Lives().UserSelected(0);
    EXPECT_EQ(Steps().RowCount(), 4);
    EXPECT_THAT(Words(), StartsWith("Moved 2 times"));
    Ask(R"(D:\x.txt)");
    EXPECT_FALSE(Lives().Visible());
    EXPECT_LT(Steps().Top(), Lives().Top() + Lives().Height());
}

TEST_F(HistoryWindow, ItSaysWhenNothingIsFound) {
    Start();
    Open();
    Ask(R"(D:\nothing.txt)");
    EXPECT_EQ(Words(), R"(No operation with D:\nothing.txt was found)");
    EXPECT_EQ(Steps().RowCount(), 0);
    Ask("bare.txt");
    EXPECT_EQ(Words(), "Please enter the whole path, with its drive or network folder");
    EXPECT_THAT(MemoryToolkit::Of(Path()).items, IsEmpty());
}

TEST_F(HistoryWindow, PathsThatWereAskedForAreKept) {
    Start();
    Open();
    Ask(R"(D:\plan.txt)");
    Ask(R"(D:\x.txt)");
    Ask(R"(D:\PLAN.txt)");
    EXPECT_THAT(MemoryToolkit::Of(Path()).items, ElementsAre(R"(D:\x.txt)", R"(D:\plan.txt)"));
    EXPECT_EQ(Path().Text(), R"(D:\PLAN.txt)");
    Path().UserSelected(0);
    EXPECT_THAT(Words(), StartsWith(R"(Last seen at D:\x.txt)"));
    tools.Press(Window(), key::Escape);
    Open();
    EXPECT_EQ(Path().Text(), R"(D:\x.txt)");
    EXPECT_EQ(MemoryToolkit::Of(Path()).selectionLength, 8U);
}

TEST_F(HistoryWindow, EnterOnARowShowsItInTheMainWindow) {
    Start();
    Open();
    Ask(R"(E:\plan.txt)");
    Steps().SelectRow(0);
    tools.PressIn(Window(), Steps(), key::Enter);
    EXPECT_EQ(Date().Text(), "01.03.2024");
    EXPECT_EQ(ShownRow(), R"(Move: D:\plan.txt )");
    EXPECT_EQ(tools.focus, &Source());
    EXPECT_TRUE(tools.messages.empty());
    Steps().UserActivated(3);
    EXPECT_EQ(Date().Text(), "03.03.2024");
    EXPECT_EQ(ShownRow(), R"(Delete: E:\plan.txt)");
}

TEST_F(HistoryWindow, AFilterThatHidesTheRowIsClearedAfterAQuestion) {
    Start();
    Choose("mnuSearchFilter");
    toolkit::Form& filters = tools.FormNamed("frmFilters");
    auto& cboFilter = filters.Get<toolkit::ComboBox>("cboFilter");
    cboFilter.UserEdited("CreateFile");
    tools.PressIn(filters, cboFilter, key::Enter);
    Open();
    Ask(R"(E:\plan.txt)");
    toolkit::Answer answer = toolkit::Answer::No;
    tools.onMessage = [&](const test::ShownMessage&) { return answer; };
    Steps().UserActivated(0);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "The filter hides this entry. Clear the filter?");
    EXPECT_EQ(tools.messages[0].owner, &Window());
    EXPECT_EQ(cboFilter.Text(), "CreateFile");
    answer = toolkit::Answer::Yes;
    Steps().UserActivated(0);
    EXPECT_EQ(cboFilter.Text(), "");
    EXPECT_EQ(ShownRow(), R"(Move: D:\plan.txt )");
}

TEST_F(HistoryWindow, FailedOperationsOnlyIsAFilterToo) {
    Start();
    Choose("mnuViewFailedOnly");
    Open();
    Ask(R"(E:\plan.txt)");
    tools.onMessage = [&](const test::ShownMessage&) { return toolkit::Answer::Yes; };
    Steps().UserActivated(0);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "The filter hides this entry. Clear the filter?");
    EXPECT_FALSE(Main().Menu("mnuViewFailedOnly").Checked());
    EXPECT_EQ(ShownRow(), R"(Move: D:\plan.txt )");
}

TEST_F(HistoryWindow, TheContextMenuAsksForSourceAndTarget) {
    Start();
    Date().UserSelected(1);
    SelectRow(1);
    tools.Press(Main(), key::ContextMenu);
    EXPECT_TRUE(OfSource().Enabled());
    EXPECT_TRUE(OfTarget().Enabled());
    OfTarget().Choose();
    EXPECT_EQ(Path().Text(), R"(D:\plan&1.txt)");
    EXPECT_EQ(Steps().RowCount(), 4);
    EXPECT_EQ(tools.focus, &Steps());
    OfSource().Choose();
    EXPECT_EQ(Path().Text(), R"(D:\plan.txt)");
    // The life that the row belongs to, not the last one.
    EXPECT_EQ(Lives().ListIndex(), 0);
    EXPECT_EQ(Steps().SelectedRow(), 0);
    Date().UserSelected(2);
    SelectRow(1);
    OfSource().Choose();
    EXPECT_EQ(Steps().SelectedRow(), 2);
}

TEST_F(HistoryWindow, TheContextMenuOffersWhatHasAWholePath) {
    Start();
    Date().UserSelected(3);
    SelectRow(0);
    tools.Press(Main(), key::ContextMenu);
    EXPECT_TRUE(OfSource().Enabled());
    EXPECT_FALSE(OfTarget().Enabled());
    SelectRow(2);
    tools.Press(Main(), key::ContextMenu);
    EXPECT_FALSE(OfSource().Enabled());
    EXPECT_FALSE(OfTarget().Enabled());
}

TEST_F(HistoryWindow, AnotherLogIsSearchedAgain) {
    Start();
    Open();
    Ask(R"(D:\x.txt)");
    Path().UserEdited("typed");
    SetLog("C:\\logs\\b.log", {R"(05.03.2024 10:00:00: Delete: D:\x.txt)"});
    Main().FilesDropped.Raise({"C:\\logs\\b.log"});
    EXPECT_EQ(Words(), R"(Deleted at D:\x.txt on 05.03.2024)");
    EXPECT_EQ(Steps().RowCount(), 1);
    EXPECT_EQ(Path().Text(), "typed");
    SetLog("C:\\logs\\c.log", {R"(05.03.2024 10:00:00: Delete: D:\y.txt)"});
    Main().FilesDropped.Raise({"C:\\logs\\c.log"});
    EXPECT_EQ(Steps().RowCount(), 0);
}

TEST_F(HistoryWindow, WhatIsAppendedIsFound) {
    Start();
    Open();
    Ask(R"(D:\x.txt)");
    system.files.Append("C:\\logs\\tc.log", "04.03.2024 12:00:00: Test: D:\\x.txt\r\n");
    Choose("mnuViewRefresh");
    EXPECT_EQ(Steps().RowCount(), 2);
}

TEST_F(HistoryWindow, AHiddenWindowIsBroughtUpToDateWhenItIsShown) {
    Start();
    Open();
    Ask(R"(D:\x.txt)");
    tools.Press(Window(), key::Escape);
    EXPECT_FALSE(Window().Visible());
    SetLog("C:\\logs\\b.log", {R"(05.03.2024 10:00:00: Delete: D:\x.txt)"});
    Main().FilesDropped.Raise({"C:\\logs\\b.log"});
    EXPECT_THAT(Words(), StartsWith("Last seen"));
    Open();
    EXPECT_THAT(Words(), StartsWith("Deleted"));
}

TEST_F(HistoryWindow, RotatedLogsThatAreNotLoadedAreOffered) {
    SetIni("LogFile=C:\\logs\\tc.log\r\nLogRotateLimit=1000\r\nLogKeepCount=3");
    SetLog("C:\\logs\\tc.1.log", {R"(01.01.2024 10:00:00: CreateFile: C:\x.txt)",
                                  R"(01.01.2024 10:00:01: Move: C:\x.txt -> D:\x.txt)"});
    Start();
    Open();
    auto& lblOlderLogs = Window().Get<toolkit::Label>("lblOlderLogs");
    EXPECT_TRUE(lblOlderLogs.Visible());
    EXPECT_EQ(lblOlderLogs.Caption(), "Older log files have not been read.");
    ASSERT_TRUE(ReadAll().Visible());
    Ask(R"(D:\x.txt)");
    EXPECT_EQ(Steps().RowCount(), 1);
    bool disabled = false;
    tools.onDoEvents = [&] { disabled = disabled || !Window().Enabled(); };
    ReadAll().UserClicked();
    EXPECT_TRUE(disabled);
    EXPECT_TRUE(Window().Enabled());
    EXPECT_EQ(Lives().ListCount(), 2);
    EXPECT_FALSE(ReadAll().Visible());
    EXPECT_FALSE(lblOlderLogs.Visible());
    EXPECT_EQ(Files().ListIndex(), 0);
}

TEST_F(HistoryWindow, WithoutRotatedLogsNothingIsOffered) {
    Start();
    Open();
    EXPECT_FALSE(ReadAll().Visible());
}

TEST_F(HistoryWindow, ItTakesTheLanguageAndTheFormOfTheDates) {
    Start();
    Open();
    Ask(R"(D:\plan.txt)");
    mAppSpecific& settings = *program->Shared().settings;
    system.files.Set(
        "C:\\Ordalyn\\de.lng",
        "[UserLanguage]\r\n5113=Verlauf\r\n5118=%p am %d\r\n5130=Von\r\n5117=%n/%c\r\n");
    settings.UseDefaultLanguage = 0;
    settings.LanguageFile = "C:\\Ordalyn\\de.lng";
    Window().LanguageChanged();
    EXPECT_EQ(Window().Caption(), "Verlauf");
    EXPECT_EQ(Words(), R"(D:\plan.txt am 03.03.2024)");
    EXPECT_EQ(Steps().ColumnCaption(3), "Von");
    EXPECT_EQ(Lives().List(1), "2/2");
    EXPECT_EQ(Lives().ListIndex(), 1);
    settings.LongDate = 1;
    settings.GridLines = 1;
    Main().ApplySettings();
    const std::string longDate = system.locale.LongDate("03.03.2024").value_or("none");
    EXPECT_NE(longDate, "03.03.2024");
    EXPECT_EQ(Words(), R"(D:\plan.txt am )" + longDate);
    EXPECT_THAT(Column(0), ElementsAre(longDate));
    EXPECT_TRUE(Steps().GridLines());
}

TEST_F(HistoryWindow, ItStandsWhereItWasClosed) {
    SetSettings("HistoryPosition=300,450,9000,6000");
    Start();
    Open();
    EXPECT_EQ(Window().Bounds(), (toolkit::Rect{300, 450, 9000, 6000}));
    tools.ResizeByUser(Window(), {600, 450, 12000, 7500});
    const toolkit::Size inside = Window().ClientSize();
    EXPECT_EQ(Steps().Left() + Steps().Width() + 120, inside.width);
    auto& cmdClose = Window().Get<toolkit::CommandButton>("cmdClose");
    EXPECT_EQ(cmdClose.Top() + cmdClose.Height() + 120, inside.height);
    EXPECT_LE(Steps().Top() + Steps().Height(), cmdClose.Top());
    Window().UserClosed();
    EXPECT_FALSE(Window().Visible());
    EXPECT_EQ(Stored("HistoryPosition"), "600,450,12000,7500");
    EXPECT_THAT(SettingsAfterClose(), testing::HasSubstr("HistoryPosition=600,450,12000,7500"));
}

TEST_F(HistoryWindow, ItsColumnsAreAsWideAsTheyWere) {
    Start();
    Open();
    MemoryToolkit::DragColumn(Steps(), 2, 2000);
    MemoryToolkit::DragColumn(Steps(), 3, 1700);
    const toolkit::Twips list = Steps().Width();
    Window().UserClosed();
    const std::string stored = Stored("HistoryColumns");
    EXPECT_THAT(stored, testing::MatchesRegex("1100,850,2000,1700,\\w+,1200,1600,\\w+"));
    EXPECT_THAT(stored, testing::EndsWith("," + std::to_string(static_cast<int>(list))));
}

TEST_F(HistoryWindow, StoredWidthsAreTakenAndThePathsGetTheDifference) {
    SetSettings("HistoryColumns=1100,850,2000,1700,2500,1200,1600,9000");
    Start();
    Open();
    const toolkit::Twips more = (Steps().Width() - 9000) / 2;
    EXPECT_EQ(Steps().ColumnWidth(2), 2000);
    EXPECT_EQ(Steps().ColumnWidth(3), 1700 + more);
    EXPECT_EQ(Steps().ColumnWidth(4), 2500 + more);
}

TEST_F(HistoryWindow, TooFewStoredWidthsAreNotTaken) {
    SetSettings("HistoryColumns=1,2,3");
    Start();
    Open();
    EXPECT_EQ(Steps().ColumnWidth(2), 1250);
}

TEST_F(HistoryWindow, AStoredWidthThatNoColumnCanHaveLeavesAllAsDesigned) {
    SetSettings("HistoryColumns=1100,850,999,1700,2500,1200,1e30,9000");
    Start();
    Open();
    EXPECT_EQ(Steps().ColumnWidth(2), 1250);
    EXPECT_EQ(Steps().ColumnWidth(6), 1600);
}

TEST_F(HistoryWindow, AWiderWindowGivesThePathsMoreRoom) {
    Start();
    Open();
    const toolkit::Twips from = Steps().ColumnWidth(3);
    const toolkit::Twips date = Steps().ColumnWidth(0);
    const toolkit::Rect& outer = Window().Bounds();
    tools.ResizeByUser(Window(), {outer.left, outer.top, outer.width + 1000, outer.height});
    EXPECT_FLOAT_EQ(Steps().ColumnWidth(3), from + 500);
    EXPECT_FLOAT_EQ(Steps().ColumnWidth(0), date);
}

TEST_F(HistoryWindow, ALargerFontHasWiderColumns) {
    SetSettings("FontSize=12");
    Start();
    Open();
    EXPECT_FLOAT_EQ(Steps().ColumnWidth(0), 1.5F * 1100);
}

TEST_F(HistoryWindow, ItClosesWithTheProgram) {
    Start();
    Open();
    Main().UserClosed();
    EXPECT_THAT(tools.closedForms, testing::Contains("frmHistory"));
}

}  // namespace
}  // namespace ordalyn
