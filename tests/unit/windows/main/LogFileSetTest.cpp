#include "windows/main/LogFileSet.h"

#include "support/windows/LogWindow.h"

namespace ordalyn {
namespace {

using test::LogWindow;
using testing::ElementsAre;
using testing::IsEmpty;

class LogFileSetTest : public LogWindow {
  protected:
    LogFileSetTest() {
        Write(kLog, {"03.03.2024 10:00:00: Copy live -> l"});
        Write("C:\\logs\\x_old.log", {"01.03.2024 10:00:00: Copy old -> o"});
        Write("C:\\logs\\xa.log",
              {"02.03.2024 10:00:00: Copy a -> a", "03.03.2024 09:00:00: Move b"});
    }
};

TEST_F(LogFileSetTest, OffersAllFilesTheLiveLogAndItsSiblings) {
    Load({"03.03.2024 10:00:00: Copy live -> l"});
    progress.steps.clear();
    files.BuildLogFileList();
    EXPECT_THAT(Files(), ElementsAre("All files", "x.log", "x_old.log", "xa.log"));
    EXPECT_TRUE(cboFiles.Visible());
    EXPECT_EQ(cboFiles.Text(), "x.log");
    EXPECT_EQ(files.LiveLogName(), "x.log");
    EXPECT_EQ(files.LogFolder(), "C:\\logs\\");
    EXPECT_THAT(progress.steps, IsEmpty());  // selected without reading
}

TEST_F(LogFileSetTest, NumberedSiblingsAreThoseThatExist) {
    Write("C:\\logs\\x.1.log", {});
    Write("C:\\logs\\x.3.log", {});
    SetRotation("1000");
    files.BuildLogFileList();
    EXPECT_THAT(Files(), ElementsAre("All files", "x.log", "x.1.log", "x.3.log"));
}

TEST_F(LogFileSetTest, WithoutRotationTheListIsHiddenWhateverExists) {
    files.BuildLogFileList();
    ASSERT_TRUE(cboFiles.Visible());
    SetRotation("0");
    files.BuildLogFileList();
    EXPECT_FALSE(cboFiles.Visible());
}

TEST_F(LogFileSetTest, ALiveLogAloneIsNotShown) {
    system.files.Delete("C:\\logs\\x_old.log");
    system.files.Delete("C:\\logs\\xa.log");
    files.BuildLogFileList();
    EXPECT_THAT(Files(), ElementsAre("x.log"));
    EXPECT_FALSE(cboFiles.Visible());
}

TEST_F(LogFileSetTest, WithoutALogFileTheListIsEmptyAndStaysAsItWas) {
    files.BuildLogFileList();
    system.files.Set("C:\\tc\\wincmd.ini", "[Configuration]\r\n");
    files.BuildLogFileList();
    EXPECT_THAT(Files(), IsEmpty());
    EXPECT_TRUE(cboFiles.Visible());
    EXPECT_EQ(files.LogFolder(), "");
}

TEST_F(LogFileSetTest, AChosenSiblingIsReadAloneAndCannotGrow) {
    files.BuildLogFileList();
    cboFiles.UserSelected(2);
    EXPECT_EQ(reading.CurrentLogFile(), "C:\\logs\\x_old.log");
    EXPECT_THAT(Sources(), ElementsAre("Copy old "));
    EXPECT_FALSE(mnuViewRefresh.Enabled());
    EXPECT_THAT(remembered, IsEmpty());
    cboFiles.UserSelected(1);
    EXPECT_TRUE(mnuViewRefresh.Enabled());
    EXPECT_THAT(Sources(), ElementsAre("Copy live "));
}

TEST_F(LogFileSetTest, TheLiveLogIsKnownInAnyLetterCase) {
    SetRotation("-1", "C:\\logs\\X.LOG");
    files.BuildLogFileList();
    EXPECT_THAT(Files(), ElementsAre("All files", "X.LOG", "x_old.log", "xa.log"));
    cboFiles.UserSelected(2);
    cboFiles.UserSelected(1);
    EXPECT_TRUE(mnuViewRefresh.Enabled());
}

// The dot stays at the end of the numbered names. Windows drops it and finds the file.
TEST_F(LogFileSetTest, ALogWithoutAnExtensionHasSiblingsToo) {
    Write("C:\\logs\\log", {"03.03.2024 10:00:00: Copy live -> l"});
    Write("C:\\logs\\log_old", {"01.03.2024 10:00:00: Copy old -> o"});
    Write("C:\\logs\\log.1", {"02.03.2024 10:00:00: Copy first -> f"});
    Write("C:\\logs\\log.txt", {});
    SetRotation("-1", "C:\\logs\\log");
    files.BuildLogFileList();
    EXPECT_THAT(Files(), ElementsAre("All files", "log", "log_old"));
    SetRotation("1000", "C:\\logs\\log");
    files.BuildLogFileList();
    EXPECT_THAT(Files(), ElementsAre("All files", "log", "log.1."));
    cboFiles.UserSelected(2);
    EXPECT_THAT(Sources(), ElementsAre("Copy first "));
    EXPECT_FALSE(mnuViewRefresh.Enabled());
}

TEST_F(LogFileSetTest, PickingTheSelectedItemAgainDoesNothing) {
    files.BuildLogFileList();
    cboFiles.UserSelected(2);
    progress.steps.clear();
    cboFiles.UserSelected(2);
    EXPECT_THAT(progress.steps, IsEmpty());
}

TEST_F(LogFileSetTest, BuildingTheListRecordsTheLiveLogsItemAsHandled) {
    Load({"03.03.2024 10:00:00: Copy live -> l"});
    progress.steps.clear();
    files.BuildLogFileList();
    cboFiles.UserSelected(1);
    EXPECT_THAT(progress.steps, IsEmpty());
}

TEST_F(LogFileSetTest, AllFilesReadsTheSiblingsInOrderAndTheLiveLogLast) {
    files.BuildLogFileList();
    cboFiles.UserSelected(0);
    std::vector<std::string> names;
    for (std::int32_t i = 0; i <= entries.EntryFiles().ListCount(); ++i)
        names.emplace_back(entries.EntryFiles().List(i));
    EXPECT_THAT(names, ElementsAre("x_old.log", "xa.log", "xa.log", "x.log"));
    // The days are merged by position: the date that two files share is one run here.
    EXPECT_THAT(Dates(), ElementsAre("All dates", "01.03.2024", "02.03.2024", "03.03.2024"));
    EXPECT_EQ(panels.SelectedDay(), kAllDates);
    EXPECT_THAT(progress.steps,
                ElementsAre("tall x_old.log", "show Reading... Please wait. 2", "tall xa.log",
                            "show Reading... Please wait. 3", "tall x.log",
                            "show Reading... Please wait. 2", "hide"));
    EXPECT_THAT(Titles(), ElementsAre("All files"));
    EXPECT_FALSE(mnuViewRefresh.Enabled());
    EXPECT_EQ(reading.CurrentLogFile(), kLog);
    EXPECT_TRUE(form.Enabled());
    for (const cStringArray* list :
         {&entries.EntryDates(), &entries.EntrySources(), &entries.EntryTargets()})
        EXPECT_THROW(list->List(4), SubscriptOutOfRange);  // trimmed, unlike the files
    EXPECT_EQ(entries.EntryFiles().List(4), "");
}

TEST_F(LogFileSetTest, NothingOfTheMainWindowCanBeUsedWhileAllFilesAreRead) {
    files.BuildLogFileList();
    std::vector<bool> enabled;
    tools.onDoEvents = [&] { enabled.push_back(form.Enabled()); };
    cboFiles.UserSelected(0);
    EXPECT_THAT(enabled, ElementsAre(false, false));
}

TEST_F(LogFileSetTest, AWindowThatClosesBetweenFilesEndsTheReadWithoutAWord) {
    files.BuildLogFileList();
    tools.onDoEvents = [&] {
        reading.CancelReading = true;
        reading.Stop();
    };
    cboFiles.UserSelected(0);
    EXPECT_EQ(entries.EntryDates().ListCount(), -1);
    EXPECT_EQ(SourceListView.RowCount(), 0);
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(LogFileSetTest, CancelIsAskedAboutBetweenFilesWithNoAsTheDefault) {
    files.BuildLogFileList();
    int events = 0;
    tools.onDoEvents = [&] {
        if (++events == 1)
            reading.CancelReading = true;
    };
    cboFiles.UserSelected(0);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "Are you sure?");
    EXPECT_EQ(tools.messages[0].buttons, toolkit::MessageButtons::YesNo);
    EXPECT_EQ(tools.messages[0].icon, toolkit::MessageIcon::Question);
    EXPECT_EQ(tools.messages[0].defaultAnswer, toolkit::Answer::No);
    // Answered with the default: the read goes on to its end.
    EXPECT_FALSE(reading.CancelReading);
    EXPECT_EQ(entries.EntryDates().ListCount(), 3);
}

TEST_F(LogFileSetTest, AStoppedReadShowsTheLiveLogAloneAndLeavesRefreshDisabled) {
    files.BuildLogFileList();
    tools.onDoEvents = [&] { reading.CancelReading = true; };
    tools.onMessage = [](const test::ShownMessage&) { return toolkit::Answer::Yes; };
    cboFiles.UserSelected(0);
    EXPECT_THAT(Sources(), ElementsAre("Copy live "));
    EXPECT_EQ(entries.EntryDates().ListCount(), 0);
    EXPECT_TRUE(reading.CancelReading);
    EXPECT_FALSE(mnuViewRefresh.Enabled());
    EXPECT_EQ(cboFiles.ListIndex(), 1);
    EXPECT_EQ(Titles().back(), kLog);
    EXPECT_FALSE(progress.visible);
    EXPECT_EQ(tools.focus, &SourceListView);
    EXPECT_TRUE(form.Enabled());
    // One question is enough: no other sibling is read behind it.
    EXPECT_EQ(tools.messages.size(), 1U);
    EXPECT_THAT(progress.steps, ElementsAre("tall x_old.log", "show Reading... Please wait. 2",
                                            "compact", "show Reading... Please wait. 2", "hide"));
    // The selection was recorded without reading again.
    progress.steps.clear();
    cboFiles.UserSelected(1);
    EXPECT_THAT(progress.steps, IsEmpty());
    // The next read of all files is not asked about before somebody stops that one, too.
    tools.onDoEvents = nullptr;
    tools.messages.clear();
    cboFiles.UserSelected(0);
    EXPECT_THAT(tools.messages, IsEmpty());
    EXPECT_FALSE(reading.CancelReading);
    EXPECT_EQ(entries.EntryDates().ListCount(), 3);
}

TEST_F(LogFileSetTest, AfterAStoppedReadTheKeysGoToTheSourcePanel) {
    Load({"02.03.2024 10:00:00: Copy live -> l"});
    // A live log without a day: listing days moves the focus, too.
    Write(kLog, {"; no day"});
    files.BuildLogFileList();
    tools.onDoEvents = [&] { reading.CancelReading = true; };
    tools.onMessage = [](const test::ShownMessage&) { return toolkit::Answer::Yes; };
    cboFiles.SetFocus();
    cboFiles.UserSelected(0);
    EXPECT_EQ(tools.focus, &SourceListView);
}

TEST_F(LogFileSetTest, NothingOfTheListIsARecentFile) {
    files.BuildLogFileList();
    for (const int item : {2, 0, 1})
        cboFiles.UserSelected(item);
    ASSERT_EQ(entries.EntryDates().ListCount(), 0);
    tools.onDoEvents = [&] { reading.CancelReading = true; };
    tools.onMessage = [](const test::ShownMessage&) { return toolkit::Answer::Yes; };
    cboFiles.UserSelected(0);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_THAT(remembered, IsEmpty());
}

TEST_F(LogFileSetTest, TheDaysOfAllFilesAreListedWhenTheReadIsOver) {
    files.BuildLogFileList();
    int listed = 0;
    panels.DayShown.Subscribe([&] {
        ++listed;
        EXPECT_FALSE(progress.visible);
        EXPECT_EQ(entries.EntrySources().UpperIndex(), 3) << "the lists are trimmed";
    });
    cboFiles.UserSelected(0);
    EXPECT_EQ(listed, 1);
}

TEST_F(LogFileSetTest, NothingButEmptyFilesIsNoError) {
    for (const char* name : {"x", "x_old", "xa"})
        system.files.Set("C:\\logs\\" + std::string(name) + ".log", "");
    files.BuildLogFileList();
    cboFiles.UserSelected(0);
    EXPECT_THAT(tools.messages, IsEmpty());
    EXPECT_FALSE(progress.visible);
    EXPECT_FALSE(mnuViewRefresh.Enabled());
}

TEST_F(LogFileSetTest, ABadSiblingIsReportedAndTheOthersAreStillRead) {
    Write("C:\\logs\\x_old.log", {"garbage"});
    files.BuildLogFileList();
    cboFiles.UserSelected(0);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_THAT(tools.messages[0].text, testing::HasSubstr("x_old.log"));
    EXPECT_EQ(entries.EntryDates().ListCount(), 2);
    EXPECT_THAT(Titles(), ElementsAre("All files"));
}

TEST_F(LogFileSetTest, OnlyTheLogThatIsShownIsSelected) {
    files.BuildLogFileList();
    EXPECT_EQ(cboFiles.ListIndex(), -1) << "nothing is shown";
    EXPECT_TRUE(cboFiles.Visible());
    Write("C:\\other\\x.log", {"05.03.2024 10:00:00: Copy other -> o"});
    ASSERT_TRUE(reading.ReadLogFile(false, "C:\\other\\x.log", false));
    mnuViewRefresh.SetEnabled(false);
    files.LogOpened();
    EXPECT_EQ(cboFiles.ListIndex(), -1) << "the live log's name in another folder";
    EXPECT_TRUE(mnuViewRefresh.Enabled());
    files.BuildLogFileList();
    EXPECT_EQ(cboFiles.ListIndex(), -1) << "after a refresh";
    // Every item can be picked then.
    cboFiles.UserSelected(1);
    EXPECT_EQ(reading.CurrentLogFile(), kLog);
    ASSERT_TRUE(reading.ReadLogFile(false, "C:\\other\\x.log", false));
    files.LogOpened();
    cboFiles.UserSelected(0);
    EXPECT_EQ(entries.EntryDates().ListCount(), 3);
    EXPECT_FALSE(mnuViewRefresh.Enabled());
    // The live log opened by its path, in whatever letter case.
    ASSERT_TRUE(reading.ReadLogFile(false, "c:\\LOGS\\x.LOG", false));
    files.LogOpened();
    EXPECT_EQ(cboFiles.ListIndex(), 1);
    EXPECT_TRUE(mnuViewRefresh.Enabled());
}

TEST_F(LogFileSetTest, AFileThatCannotBeReadIsNotSelected) {
    Load({"03.03.2024 10:00:00: Copy live -> l"});
    files.BuildLogFileList();
    cboFiles.UserSelected(3);
    ASSERT_FALSE(mnuViewRefresh.Enabled());
    system.files.Lock("C:\\logs\\x_old.log");
    cboFiles.UserSelected(2);
    EXPECT_EQ(cboFiles.ListIndex(), 3);
    EXPECT_FALSE(mnuViewRefresh.Enabled());
    EXPECT_EQ(reading.CurrentLogFile(), "C:\\logs\\xa.log");
    system.files.Lock("C:\\logs\\x.log");
    cboFiles.UserSelected(1);
    EXPECT_EQ(cboFiles.ListIndex(), 3);
    EXPECT_FALSE(mnuViewRefresh.Enabled());
    // A stop before the live log that cannot be read either.
    tools.onDoEvents = [&] { reading.CancelReading = true; };
    tools.onMessage = [](const test::ShownMessage&) { return toolkit::Answer::Yes; };
    cboFiles.UserSelected(0);
    EXPECT_EQ(cboFiles.ListIndex(), 3);
    EXPECT_THAT(Sources(), ElementsAre("Move b"));
    // It is not taken for the one that was handled last.
    tools.onDoEvents = nullptr;
    system.files.Lock("C:\\logs\\x_old.log", false);
    cboFiles.UserSelected(2);
    EXPECT_THAT(Sources(), ElementsAre("Copy old "));
}

TEST_F(LogFileSetTest, OnlyAllFilesIsNamedInANewLanguage) {
    Load({"03.03.2024 10:00:00: Copy live -> l"});
    files.BuildLogFileList();
    UseLanguageFile("4006=Alle Dateien");
    files.LanguageChanged();
    EXPECT_THAT(Files(), ElementsAre("Alle Dateien", "x.log", "x_old.log", "xa.log"));
    // A list that nobody sees is made anew before it is seen.
    cboFiles.SetVisible(false);
    UseLanguageFile("4006=Alle");
    files.LanguageChanged();
    EXPECT_THAT(Files(), ElementsAre("Alle Dateien", "x.log", "x_old.log", "xa.log"));
    cboFiles.SetVisible(true);
    system.files.Delete("C:\\logs\\x_old.log");
    system.files.Delete("C:\\logs\\xa.log");
    files.BuildLogFileList();
    ASSERT_TRUE(cboFiles.Visible());
    files.LanguageChanged();
    EXPECT_THAT(Files(), ElementsAre("x.log"));
}

TEST_F(LogFileSetTest, TheLiveLogAloneInAListThatStillShowsIsReadLikeAnyFile) {
    files.BuildLogFileList();
    ASSERT_TRUE(cboFiles.Visible());
    system.files.Delete("C:\\logs\\x_old.log");
    system.files.Delete("C:\\logs\\xa.log");
    files.BuildLogFileList();
    ASSERT_EQ(cboFiles.ListCount(), 1);
    cboFiles.UserSelected(0);
    EXPECT_EQ(reading.CurrentLogFile(), kLog);
    EXPECT_THAT(Sources(), ElementsAre("Copy live "));
    EXPECT_TRUE(mnuViewRefresh.Enabled());
}

TEST_F(LogFileSetTest, WhatWasPassedOverInAllFilesIsReportedOnceAtTheEnd) {
    settings.SkipMalformedLines = 1;
    system.files.Append("C:\\logs\\xa.log", "garbage\r\n");
    system.files.Append(kLog, "rubbish\r\n");
    files.BuildLogFileList();
    std::vector<std::string> dates;
    tools.onMessage = [&](const test::ShownMessage&) {
        dates = Dates();
        return toolkit::Answer::Ok;
    };
    cboFiles.UserSelected(0);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text,
              "Lines passed over that are not lines of a log: 2\r\nC:\\logs\\xa.log\r\n"
              "The first one is line: 3");
    EXPECT_THAT(dates, ElementsAre("All dates", "01.03.2024", "02.03.2024", "03.03.2024"))
        << "what was read is shown behind the message";
}

}  // namespace
}  // namespace ordalyn
