// Following the log: what is added to it appears by itself.
#include "windows/main/LogFollowing.h"

#include <chrono>
#include <thread>

#include "support/windows/ProgramWindow.h"
#include "windows/main/frmMain.h"

namespace ordalyn {
namespace {

using test::MemoryToolkit;
using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::WindowState;

constexpr const char* kLog = "C:\\logs\\tc.log";
// Within this long, new lines appear.
constexpr int kASecond = 1000;
constexpr int kHours = 10'000'000;

std::string Line(const std::string& name, const std::string& date = "02.03.2024") {
    return date + " 11:00:00: Delete: C:\\" + name;
}

class Following : public test::ProgramWindow {
  protected:
    // A log of two days, the second of which is shown with its first row selected.
    void StartFollowing(std::vector<std::string> lastDay = {"a", "b"}) {
        SetSettings("FollowLog=1");
        std::vector<std::string> lines = {Line("old1", "01.03.2024"), Line("old2", "01.03.2024")};
        for (const std::string& name : lastDay)
            lines.push_back(Line(name));
        SetLog(kLog, lines);
        Start();
        tools.PassTime(kASecond);
    }
    void Append(const std::vector<std::string>& lines) {
        for (const std::string& line : lines)
            system.files.Append(kLog, line + "\r\n");
    }
    void AppendAndWait(const std::vector<std::string>& lines) {
        Append(lines);
        tools.PassTime(kASecond);
    }
    // The names of the files that the source panel shows.
    std::vector<std::string> Rows() { return Names(Source(), 1); }
    static std::vector<std::string> Names(const toolkit::ListView& list, int column) {
        std::vector<std::string> names;
        for (int row = 0; row < list.RowCount(); ++row) {
            const std::string_view text = list.Text(row, column);
            names.emplace_back(text.substr(text.rfind('\\') + 1));
        }
        return names;
    }
    int TimesOpened() const { return opened_; }
    void CountOpenings() {
        opened_ = 0;
        system.files.onOpen = [this](const std::string& path) { opened_ += path == kLog ? 1 : 0; };
    }
    void FilterFor(const std::string& text) {
        Choose("mnuSearchFilter");
        toolkit::Form& filter = tools.FormNamed("frmFilters");
        auto& box = filter.Get<toolkit::ComboBox>("cboFilter");
        box.UserEdited(text);
        tools.PressIn(filter, box, toolkit::key::Enter);
    }
    const std::vector<std::string>& Dates() { return MemoryToolkit::Of(Date()).items; }
    void Select(int row) { Source().UserSelected(row); }

  private:
    int opened_ = 0;
};

TEST_F(Following, IsOffUntilItIsChosenAndThenRemembered) {
    Start();
    EXPECT_FALSE(Main().Menu("mnuViewFollow").Checked());
    const int before = Source().RowCount();
    AppendAndWait({Line("new")});
    EXPECT_EQ(Source().RowCount(), before);
    EXPECT_THAT(tools.timers, IsEmpty());
    Choose("mnuViewFollow");
    EXPECT_TRUE(Main().Menu("mnuViewFollow").Checked());
    // What came before is caught up with.
    tools.PassTime(kASecond);
    EXPECT_EQ(Source().RowCount(), before + 1);
    Choose("mnuViewFollow");
    EXPECT_FALSE(Main().Menu("mnuViewFollow").Checked());
    AppendAndWait({Line("newer")});
    EXPECT_EQ(Source().RowCount(), before + 1);
    Choose("mnuViewFollow");
    EXPECT_THAT(SettingsAfterClose(), testing::HasSubstr("FollowLog=1\r\n"));
    EXPECT_THAT(tools.timers, IsEmpty());
}

TEST_F(Following, BringsNewLinesWithinASecondAndLeavesTheUserAlone) {
    StartFollowing();
    EXPECT_TRUE(Main().Menu("mnuViewFollow").Checked());
    Select(0);
    Date().SetFocus();
    const auto& shown = MemoryToolkit::Of(Source());
    const int fills = shown.fills, inSight = shown.updatesInSight;
    const int visibleRow = shown.visibleRow;
    const auto texts = MemoryToolkit::Of(Main()).captions;
    tools.pointers.clear();
    AppendAndWait({Line("c")});
    EXPECT_THAT(Rows(), ElementsAre("a", "b", "c"));
    AppendAndWait({Line("d"), Line("e")});
    EXPECT_THAT(Rows(), ElementsAre("a", "b", "c", "d", "e"));
    EXPECT_EQ(Target().RowCount(), 5);
    EXPECT_EQ(Status().PanelText(1), "5 Operation(s)  ");
    EXPECT_EQ(Source().SelectedRow(), 0);
    EXPECT_EQ(Target().SelectedRow(), 0);
    EXPECT_EQ(shown.visibleRow, visibleRow);
    EXPECT_EQ(tools.focus, &Date());
    EXPECT_EQ(Date().ListIndex(), 2);
    // Nothing is filled anew, hidden, waited for or said.
    EXPECT_EQ(shown.fills, fills);
    EXPECT_EQ(shown.updatesInSight, inSight);
    EXPECT_THAT(tools.pointers, IsEmpty());
    EXPECT_EQ(MemoryToolkit::Of(Main()).captions, texts);
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(Following, TheLastRowRemainsTheSelectedOne) {
    StartFollowing();
    Select(1);
    Date().SetFocus();
    AppendAndWait({Line("c"), Line("d")});
    EXPECT_EQ(Source().SelectedRow(), 3);
    EXPECT_EQ(Target().SelectedRow(), 3);
    EXPECT_EQ(MemoryToolkit::Of(Source()).visibleRow, 3);
    EXPECT_EQ(MemoryToolkit::Of(Target()).visibleRow, 3);
    EXPECT_EQ(tools.focus, &Date());
    AppendAndWait({Line("e")});
    EXPECT_EQ(Source().SelectedRow(), 4);
}

TEST_F(Following, NothingIsSelectedWhereNothingWas) {
    StartFollowing();
    Source().SelectRow(-1);
    AppendAndWait({Line("c")});
    EXPECT_EQ(Source().SelectedRow(), -1);
}

TEST_F(Following, ANewDayIsListedAndTheChosenOneStays) {
    StartFollowing();
    Select(0);
    AppendAndWait({Line("c", "03.03.2024"), Line("d", "04.03.2024")});
    EXPECT_THAT(Dates(),
                ElementsAre("All dates", "01.03.2024", "02.03.2024", "03.03.2024", "04.03.2024"));
    EXPECT_EQ(Date().ListIndex(), 2);
    EXPECT_EQ(MemoryToolkit::Of(Date()).listIndex, 2);
    EXPECT_THAT(Rows(), ElementsAre("a", "b"));
    Date().UserSelected(4);
    EXPECT_THAT(Rows(), ElementsAre("d"));
    // The last row of an earlier day is not the end of the log.
    Date().UserSelected(1);
    Select(1);
    AppendAndWait({Line("e", "05.03.2024")});
    EXPECT_EQ(Date().ListIndex(), 1);
    EXPECT_EQ(Source().SelectedRow(), 1);
}

TEST_F(Following, AtTheEndOfTheLogANewDayIsGoneTo) {
    StartFollowing();
    Select(1);
    Date().SetFocus();
    AppendAndWait({Line("c"), Line("d", "03.03.2024"), Line("e", "03.03.2024")});
    EXPECT_EQ(Date().ListIndex(), 3);
    EXPECT_THAT(Rows(), ElementsAre("d", "e"));
    EXPECT_EQ(Source().SelectedRow(), 1);
    EXPECT_EQ(tools.focus, &Date());
}

TEST_F(Following, TheSecondDayBringsAllDates) {
    SetSettings("FollowLog=1");
    SetLog(kLog, {Line("a"), Line("b")});
    Start();
    Select(0);
    EXPECT_THAT(Dates(), ElementsAre("02.03.2024"));
    AppendAndWait({Line("c", "03.03.2024")});
    EXPECT_THAT(Dates(), ElementsAre("All dates", "02.03.2024", "03.03.2024"));
    EXPECT_EQ(Date().ListIndex(), 1);
    EXPECT_THAT(Rows(), ElementsAre("a", "b"));
    EXPECT_EQ(Source().SelectedRow(), 0);
}

TEST_F(Following, NewDaysAreListedInTheLongFormWhenDatesAre) {
    SetSettings("FollowLog=1\r\nLongDate=1");
    Start();
    AppendAndWait({Line("c", "03.03.2024")});
    EXPECT_EQ(Dates().back(), "Sunday, March 3, 2024");
    EXPECT_EQ(Dates()[2], "Saturday, March 2, 2024");
}

TEST_F(Following, AllDatesGrow) {
    StartFollowing();
    Date().UserSelected(0);
    Select(1);
    AppendAndWait({Line("c", "03.03.2024")});
    EXPECT_THAT(Rows(), ElementsAre("old1", "old2", "a", "b", "c"));
    EXPECT_EQ(Source().SelectedRow(), 1);
    Select(4);
    AppendAndWait({Line("d", "04.03.2024")});
    EXPECT_EQ(Date().ListIndex(), 0);
    EXPECT_EQ(Source().SelectedRow(), 5);
}

TEST_F(Following, TheFilterNarrowsWhatIsNew) {
    StartFollowing({"a", "xb"});
    FilterFor("x");
    ASSERT_THAT(Rows(), ElementsAre("xb"));
    Select(0);
    AppendAndWait({Line("c"), Line("xd"), Line("e")});
    EXPECT_THAT(Rows(), ElementsAre("xb", "xd"));
    EXPECT_EQ(Source().SelectedRow(), 1);
    EXPECT_EQ(Status().PanelText(1), "2 Operation(s)  ");
    AppendAndWait({Line("f")});
    EXPECT_THAT(Rows(), ElementsAre("xb", "xd"));
    // A day of which nothing passes is gone to, and the first row that does is selected.
    AppendAndWait({Line("g", "03.03.2024")});
    EXPECT_THAT(Rows(), IsEmpty());
    AppendAndWait({Line("xh", "03.03.2024")});
    EXPECT_THAT(Rows(), ElementsAre("xh"));
    EXPECT_EQ(Source().SelectedRow(), 0);
}

TEST_F(Following, WhatFailedIsMarkedAndAloneAlsoWhenItIsNew) {
    StartFollowing();
    const std::string failed = "02.03.2024 11:00:01: Delete(Error: Access denied): C:\\locked";
    AppendAndWait({failed});
    EXPECT_THAT(Rows(), ElementsAre("a", "b", "locked"));
    EXPECT_FALSE(Source().IsMarked(1));
    EXPECT_TRUE(Source().IsMarked(2));
    EXPECT_TRUE(Target().IsMarked(2));
    Choose("mnuViewFailedOnly");
    AppendAndWait({Line("c"), failed});
    EXPECT_THAT(Rows(), ElementsAre("locked", "locked"));
}

TEST_F(Following, SeveralSelectedRowsStaySelected) {
    StartFollowing({"a", "b", "c"});
    Select(0);
    Source().UserSelected(1, toolkit::Choice::Extend);
    AppendAndWait({Line("d")});
    EXPECT_EQ(Source().RowCount(), 4);
    EXPECT_EQ(Source().SelectedRows(), toolkit::RowRanges(0, 2));
    EXPECT_EQ(Target().SelectedRows(), toolkit::RowRanges(0, 2));
}

TEST_F(Following, TheHistoryAndTheCalendarThatAreOpenFollowToo) {
    StartFollowing();
    Choose("mnuSearchHistory");
    toolkit::Form& history = tools.FormNamed("frmHistory");
    auto& path = history.Get<toolkit::ComboBox>("cboPath");
    path.UserEdited("C:\\new");
    tools.PressIn(history, path, toolkit::key::Enter);
    EXPECT_EQ(history.Get<toolkit::ListView>("lvwSteps").RowCount(), 0);
    Choose("mnuViewCalendar");
    tools.DoLaterWork();
    toolkit::Form& calendar = tools.FormNamed("frmCalendar");
    const auto count = [&] {
        tools.DoLaterWork();
        tools.Press(calendar, toolkit::key::End);
        return calendar.Get<toolkit::Label>("lblDay").Caption();
    };
    EXPECT_THAT(count(), testing::HasSubstr("2 "));
    AppendAndWait({Line("new")});
    EXPECT_EQ(history.Get<toolkit::ListView>("lvwSteps").RowCount(), 1);
    EXPECT_THAT(count(), testing::HasSubstr("3 "));
}

TEST_F(Following, OnePanelGrows) {
    SetSettings("FollowLog=1\r\nTwoPanels=0");
    SetLog(kLog, {Line("a"), Line("b")});
    Start();
    AppendAndWait({"02.03.2024 11:00:01: Copy: C:\\c -> D:\\d"});
    EXPECT_EQ(Source().RowCount(), 3);
    EXPECT_EQ(Source().Text(2, 2), "D:\\d");
    EXPECT_EQ(Source().SelectedRow(), 0);
}

TEST_F(Following, ALineWithoutAnEndIsShownAgainWhole) {
    StartFollowing();
    Select(1);
    system.files.Append(kLog, Line("unfin"));
    tools.PassTime(kASecond);
    EXPECT_THAT(Rows(), ElementsAre("a", "b", "unfin"));
    Select(0);
    system.files.Append(kLog, "ished\r\n");
    tools.PassTime(kASecond);
    EXPECT_THAT(Rows(), ElementsAre("a", "b", "unfinished"));
    EXPECT_EQ(Names(Target(), 0).size(), 3U);
    EXPECT_EQ(Source().SelectedRow(), 0);
}

// It may pass now, or no longer.
TEST_F(Following, ALineThatHadNoEndIsFilteredAgain) {
    StartFollowing({"xa"});
    FilterFor("x.t");
    ASSERT_THAT(Rows(), IsEmpty());
    system.files.Append(kLog, Line("b"));
    tools.PassTime(kASecond);
    EXPECT_THAT(Rows(), IsEmpty());
    system.files.Append(kLog, "x.txt\r\n");
    tools.PassTime(kASecond);
    EXPECT_THAT(Rows(), ElementsAre("bx.txt"));
    EXPECT_EQ(Status().PanelText(1), "1 Operation(s)  ");
}

// The writer keeps the file open: no watch and no stamp tells of it.
TEST_F(Following, AWriterThatKeepsTheLogOpenIsFollowed) {
    StartFollowing();
    system.files.AppendUnnoticed(kLog, Line("c") + "\r\n");
    tools.PassTime(kASecond);
    EXPECT_THAT(Rows(), ElementsAre("a", "b", "c"));
}

TEST_F(Following, AFolderThatCannotBeWatchedIsLookedAt) {
    system.files.unwatchable = true;
    StartFollowing();
    AppendAndWait({Line("c")});
    EXPECT_THAT(Rows(), ElementsAre("a", "b", "c"));
}

// A watch would keep it from being taken out.
TEST_F(Following, ADriveThatCanBeTakenOutIsNotWatched) {
    system.files.drives['C'] = platform::DriveKind::Removable;
    StartFollowing();
    EXPECT_EQ(std::count(system.files.looks.begin(), system.files.looks.end(), "C:\\logs"), 0);
    AppendAndWait({Line("c")});
    EXPECT_THAT(Rows(), ElementsAre("a", "b", "c"));
}

TEST_F(Following, AWatchMakesItQuicker) {
    StartFollowing();
    for (int turn = 0; turn < 5; ++turn) {
        Append({Line("x")});
        tools.PassTime(260);
        EXPECT_EQ(Source().RowCount(), 3 + turn);
    }
}

TEST_F(Following, ALogThatDoesNotChangeIsNotOpened) {
    StartFollowing();
    CountOpenings();
    tools.PassTime(kHours / 100);
    EXPECT_EQ(TimesOpened(), 0);
    // Another file of the folder is nothing to read.
    system.files.Set("C:\\logs\\other.txt", "x");
    tools.PassTime(kASecond);
    EXPECT_EQ(TimesOpened(), 0);
    AppendAndWait({Line("c")});
    EXPECT_EQ(TimesOpened(), 1);
}

// Of a large log that would take as long as opening it.
TEST_F(Following, ALogThatHasJustBeenOpenedIsNotReadAgain) {
    SetSettings("FollowLog=1");
    CountOpenings();
    Start();
    const int forReading = TimesOpened();
    EXPECT_GT(forReading, 0);
    tools.PassTime(3 * kASecond);
    EXPECT_EQ(TimesOpened(), forReading);
    AppendAndWait({Line("c")});
    EXPECT_EQ(TimesOpened(), forReading + 1);
}

TEST_F(Following, RestsAfterAReadThatTookLong) {
    StartFollowing();
    system.files.onOpen = [&](const std::string& path) {
        if (path == kLog)
            std::this_thread::sleep_for(std::chrono::milliseconds(510));
    };
    AppendAndWait({Line("c")});
    EXPECT_EQ(Source().RowCount(), 3);
    system.files.onOpen = nullptr;
    AppendAndWait({Line("d")});
    EXPECT_EQ(Source().RowCount(), 3);
    tools.PassTime(10 * kASecond);
    EXPECT_EQ(Source().RowCount(), 4);
    AppendAndWait({Line("e")});
    EXPECT_EQ(Source().RowCount(), 5);
}

TEST_F(Following, RestsWhileTheWindowIsMinimisedAndCatchesUp) {
    StartFollowing();
    Main().SetState(WindowState::Minimised);
    Append({Line("c")});
    system.files.looks.clear();
    tools.PassTime(kASecond);
    EXPECT_THAT(system.files.looks, IsEmpty());
    EXPECT_EQ(Source().RowCount(), 2);
    Main().SetState(WindowState::Normal);
    tools.PassTime(260);
    EXPECT_THAT(Rows(), ElementsAre("a", "b", "c"));
}

TEST_F(Following, RestsWhileSomethingIsAskedOrOpen) {
    StartFollowing();
    Append({Line("c")});
    tools.modalScripts.push_back([&](toolkit::Form&) {
        tools.PassTime(kASecond);
        EXPECT_EQ(Source().RowCount(), 2) << "a dialog";
    });
    Choose("mnuHelpAbout");
    tools.onMessage = [&](const test::ShownMessage&) {
        tools.PassTime(kASecond);
        EXPECT_EQ(Source().RowCount(), 2) << "a message";
        return toolkit::Answer::Ok;
    };
    Choose("mnuHelpHelpTopics");
    EXPECT_FALSE(tools.messages.empty());
    tools.onPopUp = [&](toolkit::MenuItem&) {
        tools.PassTime(kASecond);
        EXPECT_EQ(Source().RowCount(), 2) << "a menu";
    };
    Source().MouseUp.Raise(toolkit::kRightButton, {}, 0, 0);
    for (toolkit::ComboBox* box : {&Date(), &Files()}) {
        MemoryToolkit::Mutable(*box).droppedDown = true;
        tools.PassTime(kASecond);
        EXPECT_EQ(Source().RowCount(), 2) << "a list";
        MemoryToolkit::Mutable(*box).droppedDown = false;
    }
    tools.PassTime(kASecond);
    EXPECT_EQ(Source().RowCount(), 3);
}

TEST_F(Following, ARotatedLogIsReadAnewAndOfferedBesideTheNewOne) {
    SetIni("LogFile=C:\\logs\\tc.log\r\nLogRotateLimit=1000\r\nLogKeepCount=3");
    StartFollowing();
    Select(0);
    Date().SetFocus();
    system.files.Rename(kLog, "C:\\logs\\tc.1.log");
    tools.PassTime(kASecond);
    EXPECT_THAT(Rows(), ElementsAre("a", "b"));
    system.files.Set(kLog, "");
    tools.PassTime(kASecond);
    EXPECT_THAT(Rows(), ElementsAre("a", "b"));
    AppendAndWait({Line("n1", "03.03.2024"), Line("n2", "03.03.2024")});
    EXPECT_THAT(Rows(), ElementsAre("n1", "n2"));
    EXPECT_EQ(Source().SelectedRow(), 1);
    EXPECT_EQ(tools.focus, &Date());
    EXPECT_THAT(MemoryToolkit::Of(Files()).items, ElementsAre("All files", "tc.log", "tc.1.log"));
    EXPECT_EQ(Files().ListIndex(), 1);
    AppendAndWait({Line("n3", "03.03.2024")});
    EXPECT_THAT(Rows(), ElementsAre("n1", "n2", "n3"));
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(Following, ATruncatedLogIsReadAnew) {
    StartFollowing();
    SetLog(kLog, {Line("z")});
    tools.PassTime(kASecond);
    EXPECT_THAT(Rows(), ElementsAre("z"));
    EXPECT_EQ(Source().SelectedRow(), 0);
}

TEST_F(Following, WaitsWhileAnotherFileOfTheSetIsShown) {
    SetIni("LogFile=C:\\logs\\tc.log\r\nLogRotateLimit=1000\r\nLogKeepCount=3");
    SetLog("C:\\logs\\tc.1.log", {Line("r1"), Line("r2")});
    StartFollowing();
    for (const int other : {0, 2}) {
        Files().UserSelected(other);
        const int before = Source().RowCount();
        system.files.looks.clear();
        AppendAndWait({Line("c")});
        EXPECT_EQ(Source().RowCount(), before) << other;
        EXPECT_THAT(system.files.looks, IsEmpty()) << other;
    }
    Files().UserSelected(1);
    const int before = Source().RowCount();
    AppendAndWait({Line("d")});
    EXPECT_EQ(Source().RowCount(), before + 1);
}

TEST_F(Following, AnotherLogThatIsOpenedIsTheOneThatIsFollowed) {
    StartFollowing();
    SetLog("C:\\other\\x.log", {Line("x")});
    Main().FilesDropped.Raise({"C:\\other\\x.log"});
    ASSERT_THAT(Rows(), ElementsAre("x"));
    AppendAndWait({Line("c")});
    EXPECT_THAT(Rows(), ElementsAre("x"));
    system.files.Append("C:\\other\\x.log", Line("y") + "\r\n");
    tools.PassTime(kASecond);
    EXPECT_THAT(Rows(), ElementsAre("x", "y"));
}

TEST_F(Following, ALogThatIsGoneOrHeldIsNoMatterUntilItIsBack) {
    StartFollowing();
    const std::string bytes = *system.files.Get(kLog);
    system.files.Delete(kLog);
    tools.PassTime(10 * kASecond);
    system.files.Set(kLog, bytes + Line("c") + "\r\n");
    tools.PassTime(kASecond);
    EXPECT_THAT(Rows(), ElementsAre("a", "b", "c"));
    system.files.Lock(kLog);
    Append({Line("d")});
    tools.PassTime(10 * kASecond);
    EXPECT_THAT(Rows(), ElementsAre("a", "b", "c"));
    EXPECT_THAT(tools.messages, IsEmpty());
    // By hand it is still reported.
    Choose("mnuViewRefresh");
    EXPECT_EQ(tools.messages.size(), 1U);
    system.files.Lock(kLog, false);
    tools.PassTime(kASecond);
    EXPECT_THAT(Rows(), ElementsAre("a", "b", "c", "d"));
    EXPECT_EQ(tools.messages.size(), 1U);
}

TEST_F(Following, ALineThatNoLogHasIsGoneOverInSilence) {
    StartFollowing();
    AppendAndWait({Line("c"), "garbage", Line("d"), "rubbish", Line("e")});
    tools.PassTime(3 * kASecond);
    EXPECT_THAT(Rows(), ElementsAre("a", "b", "c", "d", "e"));
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(Following, AnotherLogThatCannotBeReadIsNotReadAgainAndAgain) {
    StartFollowing();
    system.files.Set(kLog, "garbage\r\n");
    CountOpenings();
    tools.PassTime(100 * kASecond);
    EXPECT_THAT(Rows(), ElementsAre("a", "b"));
    EXPECT_LE(TimesOpened(), 2);
    EXPECT_THAT(tools.messages, IsEmpty());
    SetLog(kLog, {Line("z")});
    tools.PassTime(kASecond);
    EXPECT_THAT(Rows(), ElementsAre("z"));
}

TEST_F(Following, TwoHundredLinesAppearOnceEachInTheirOrder) {
    StartFollowing({});
    std::vector<std::string> expected;
    for (int i = 0; i < 200; ++i) {
        expected.push_back("n" + std::to_string(i));
        Append({Line(expected.back(), "03.03.2024")});
        tools.PassTime(i % 7 * 100);
    }
    tools.PassTime(kASecond);
    Date().UserSelected(Date().ListCount() - 1);
    EXPECT_EQ(Rows(), expected);
    EXPECT_THAT(tools.messages, IsEmpty());
}

}  // namespace
}  // namespace ordalyn
