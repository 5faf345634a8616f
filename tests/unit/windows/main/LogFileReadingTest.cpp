#include "windows/main/LogFileReading.h"

#include "support/windows/LogWindow.h"

namespace ordalyn {
namespace {

using test::LogWindow;
using testing::ElementsAre;
using testing::IsEmpty;

using LogFileReadingTest = LogWindow;

constexpr const char* kLine = "01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt";

TEST_F(LogFileReadingTest, ReadsShowsAndFinishesInOrder) {
    Load({kLine, "", "02.03.2024 10:00:00: Delete x"});
    EXPECT_THAT(Titles(), ElementsAre(kLog));
    EXPECT_THAT(progress.steps, ElementsAre("compact", "show Reading... Please wait. 4", "hide"));
    EXPECT_EQ(progress.lastValue, 4);  // it starts at 1 and grows with each line
    EXPECT_EQ(reading.CurrentLogFile(), kLog);
    EXPECT_EQ(entries.EntrySources().List(0), "10:15:30: Copy C:\\a.txt ");
    EXPECT_THAT(Dates(), ElementsAre("All dates", "01.03.2024", "02.03.2024"));
    EXPECT_THAT(remembered, IsEmpty());
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(LogFileReadingTest, TrimsThreeListsButNotTheFiles) {
    Load({kLine});
    EXPECT_THROW(entries.EntryDates().List(1), SubscriptOutOfRange);
    EXPECT_THROW(entries.EntrySources().List(1), SubscriptOutOfRange);
    EXPECT_THROW(entries.EntryTargets().List(1), SubscriptOutOfRange);
    EXPECT_EQ(entries.EntryFiles().List(1), "");
}

TEST_F(LogFileReadingTest, TheDaysAreListedBeforeTheProgressWindowGoes) {
    int listed = 0;
    panels.DayShown.Subscribe([&] {
        ++listed;
        EXPECT_TRUE(progress.visible);
        EXPECT_EQ(entries.EntrySources().UpperIndex(), 0) << "the lists are trimmed";
    });
    Load({kLine});
    EXPECT_EQ(listed, 1);
}

TEST_F(LogFileReadingTest, TheTitleNamesTheFileBeforeTheProgressWindowShows) {
    std::string during;
    progress.onShow = [&] { during = title.Text(); };
    Load({kLine});
    EXPECT_EQ(during, kLog);
}

TEST_F(LogFileReadingTest, OneOfSeveralFilesShowsTheTallFormAndChangesNothingYet) {
    Load({kLine});
    progress.steps.clear();
    ForgetTitles();
    Write("C:\\logs\\x.1.log", {kLine, kLine});
    LogFileReading::Set set;
    reading.AddLogFile("C:\\logs\\x.1.log", set);
    EXPECT_THAT(progress.steps, ElementsAre("tall x.1.log", "show Reading... Please wait. 3"));
    EXPECT_THAT(Titles(), IsEmpty());
    EXPECT_EQ(set.entries.EntryDates().ListCount(), 1);
    EXPECT_EQ(set.entries.EntryFiles().List(1), "x.1.log");
    EXPECT_EQ(entries.EntryDates().ListCount(), 0);
    EXPECT_EQ(SourceListView.RowCount(), 1);
}

TEST_F(LogFileReadingTest, TheOpenDialogStartsInTheCurrentLogsFolder) {
    Load({kLine});
    Write("C:\\other\\y.log", {kLine});
    chosenFile = "C:\\other\\y.log";
    reading.ReadLogFile(true, "", true);
    EXPECT_THAT(dialogFolders, ElementsAre("C:\\logs\\"));
    EXPECT_EQ(reading.CurrentLogFile(), "C:\\other\\y.log");
    EXPECT_THAT(remembered, ElementsAre("C:\\other\\y.log"));
}

TEST_F(LogFileReadingTest, TheMainWindowOwnsTheOpenDialog) {
    reading.ReadLogFile(true, "", true);
    EXPECT_EQ(system.dialogs.openRequests.at(0).owner, form.Handle());
}

TEST_F(LogFileReadingTest, CancellingTheOpenDialogLeavesTheViewUntouched) {
    Load({kLine});
    ForgetTitles();
    progress.steps.clear();
    chosenFile.reset();
    reading.ReadLogFile(true, "", true);
    EXPECT_EQ(reading.CurrentLogFile(), kLog);
    EXPECT_EQ(SourceListView.RowCount(), 1);
    EXPECT_THAT(Titles(), IsEmpty());
    EXPECT_THAT(progress.steps, IsEmpty());
    EXPECT_THAT(remembered, IsEmpty());
}

TEST_F(LogFileReadingTest, ALineWithoutABlankEndsInAMessageWithItsNumber) {
    Load({kLine, "", "garbage", kLine});
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "There is an error in file\r\nC:\\logs\\x.log\r\nLine: 3");
    EXPECT_EQ(tools.messages[0].icon, toolkit::MessageIcon::None);
    EXPECT_EQ(tools.messages[0].buttons, toolkit::MessageButtons::Ok);
    EXPECT_FALSE(progress.visible);
    EXPECT_EQ(entries.EntryDates().ListCount(), -1);
    EXPECT_THAT(Dates(), IsEmpty());
    EXPECT_EQ(reading.CurrentLogFile(), "");
}

TEST_F(LogFileReadingTest, TheProgressWindowIsGoneBeforeTheMessageShows) {
    bool visible = true;
    tools.onMessage = [&](const test::ShownMessage&) {
        visible = progress.visible;
        return toolkit::Answer::Ok;
    };
    Load({"garbage"});
    EXPECT_FALSE(visible);
}

TEST_F(LogFileReadingTest, AnEmptyFileIsAnErrorAtLine0) {
    system.files.Set(kLog, "");
    reading.ReadLogFile(false, kLog, true);
    EXPECT_THAT(remembered, ElementsAre(kLog));  // it was read; only its lists cannot be trimmed
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "There is an error in file\r\nC:\\logs\\x.log\r\nLine: 0");
}

TEST_F(LogFileReadingTest, AWindowThatClosesInTheMiddleEndsTheReadWithoutAWord) {
    progress.onShow = [&] { reading.Stop(); };
    Load(std::vector<std::string>(500, kLine));
    EXPECT_EQ(entries.EntryDates().ListCount(), -1);
    EXPECT_EQ(SourceListView.RowCount(), 0);
    EXPECT_THAT(tools.messages, IsEmpty());
    Load({kLine});
    EXPECT_EQ(SourceListView.RowCount(), 0);
}

TEST_F(LogFileReadingTest, AFileThatCannotBeOpenedIsAnErrorAtLine0) {
    Load({kLine});
    system.files.Set("C:\\logs\\locked.log", "x");
    system.files.Lock("C:\\logs\\locked.log");
    for (const char* path : {"C:\\logs\\missing.log", "C:\\logs\\locked.log", "C:\\logs"}) {
        tools.messages.clear();
        reading.ReadLogFile(false, path, true);
        ASSERT_EQ(tools.messages.size(), 1U);
        EXPECT_EQ(tools.messages[0].text,
                  "There is an error in file\r\n" + std::string(path) + "\r\nLine: 0");
        EXPECT_EQ(SourceListView.RowCount(), 1);
        EXPECT_EQ(SourceListView.Text(0, 1), "Copy C:\\a.txt ");
    }
    EXPECT_EQ(entries.EntryDates().ListCount(), 0);  // nothing that was there is lost
    EXPECT_THAT(remembered, IsEmpty());
}

TEST_F(LogFileReadingTest, AFileThatGrowsBetweenThePassesIsAnError) {
    Write(kLog, {kLine});
    int opened = 0;
    system.files.onOpen = [&](const std::string&) {
        if (++opened == 2)
            system.files.Append(kLog, std::string(kLine) + "\r\n");
    };
    reading.ReadLogFile(false, kLog, false);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_THAT(tools.messages[0].text, testing::EndsWith("Line: 2"));
}

TEST_F(LogFileReadingTest, AReadThatFailsLeavesTheWindowAsItWas) {
    Load({kLine, "02.03.2024 10:00:00: Delete x", "02.03.2024 10:00:01: Copy y -> z"});
    filter = {.boxText = "copy", .FilterText = "copy"};
    panels.ApplyFilter(false);
    title.SetTitle("the title");
    ForgetTitles();
    const std::string bad = "C:\\logs\\bad.log";
    std::string half;
    for (int i = 0; i < 1000; ++i)
        half += std::string(kLine) + "\r\n";
    const auto failsAs = [&](const char* what, const std::string& bytes) {
        SCOPED_TRACE(what);
        system.files.Set(bad, bytes);
        tools.messages.clear();
        tools.onMessage = [&](const test::ShownMessage&) {
            EXPECT_EQ(title.Text(), "the title") << "before the message";
            return toolkit::Answer::Ok;
        };
        EXPECT_FALSE(reading.ReadLogFile(false, bad, false));
        EXPECT_EQ(tools.messages.size(), 1U);
        EXPECT_THAT(Dates(), ElementsAre("All dates", "01.03.2024", "02.03.2024"));
        EXPECT_EQ(cboDate.ListIndex(), 2);
        EXPECT_THAT(Sources(), ElementsAre("Copy y "));
        EXPECT_EQ(entries.EntryTargets().List(SourceListView.Tag(0)), "z");
        EXPECT_EQ(reading.CurrentLogFile(), kLog);
        EXPECT_EQ(title.Text(), "the title");
        EXPECT_TRUE(form.Enabled());
    };
    failsAs("empty", "");
    failsAs("malformed", half + "garbage\r\n" + half);
    int opened = 0;
    system.files.onOpen = [&](const std::string&) {
        if (++opened % 2 == 0)
            system.files.FailReadingAfter(bad, half.size() / 2);
    };
    failsAs("breaks off", half);
    system.files.onOpen = [&](const std::string&) {
        if (++opened % 2 == 0)
            system.files.Append(bad, half);
    };
    failsAs("grows", half);
    system.files.onOpen = [&](const std::string&) {
        if (++opened % 2 == 0)
            system.files.Delete(bad);
    };
    failsAs("gone", half);
    system.files.onOpen = nullptr;
    // What goes on is the file that is shown.
    system.files.Append(kLog, "02.03.2024 10:00:02: Copy new -> n\r\n");
    reading.Refresh();
    EXPECT_THAT(Sources(), ElementsAre("Copy y ", "Copy new "));
}

TEST_F(LogFileReadingTest, AfterALogWithoutDatesWhatIsShownCanBeWorkedWith) {
    Load({"01.03.2024 10:00:00: Copy a -> b", "02.03.2024 10:00:00: Copy c -> d"});
    Write("C:\\logs\\comments.log", {"; one", "; two", "; three"});
    EXPECT_TRUE(reading.ReadLogFile(false, "C:\\logs\\comments.log", false));
    EXPECT_THAT(Dates(), IsEmpty());
    EXPECT_EQ(title.Text(), "C:\\logs\\comments.log");
    EXPECT_THAT(Sources(), ElementsAre("Copy c "));
    EXPECT_EQ(entries.EntryTargets().List(SourceListView.Tag(0)), "d");
    panels.LanguageChanged();
    panels.ApplyNewDateFormat(1);
    EXPECT_THAT(Dates(), IsEmpty());
    panels.ApplyFilter(true);
    EXPECT_THAT(Sources(), ElementsAre("Copy c "));
    EXPECT_TRUE(panels.ShowEntry(0));
    EXPECT_THAT(Sources(), ElementsAre("Copy a "));
    // Refresh brings what is new in the log that was opened.
    system.files.Append("C:\\logs\\comments.log", "03.03.2024 10:00:00: Copy e -> f\r\n");
    reading.Refresh();
    EXPECT_THAT(Dates(), ElementsAre("03.03.2024"));
    EXPECT_EQ(entries.EntrySources().ListCount(), 3);
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(LogFileReadingTest, NothingCanBeginAnotherReadWhileTheProgressWindowIsShown) {
    Write("C:\\logs\\y.log", {kLine, kLine});
    std::vector<bool> enabled;
    progress.onShow = [&] {
        enabled.push_back(form.Enabled());
        reading.ReadLogFile(false, "C:\\logs\\y.log", true);
        reading.Refresh();
    };
    Load({kLine});
    EXPECT_THAT(enabled, ElementsAre(false));
    EXPECT_TRUE(form.Enabled());
    EXPECT_EQ(reading.CurrentLogFile(), kLog);
    EXPECT_EQ(entries.EntryDates().ListCount(), 0);
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(LogFileReadingTest, AFileThatCannotBeOpenedLeavesTheWindowsUsable) {
    reading.ReadLogFile(false, "C:\\logs\\missing.log", false);
    EXPECT_TRUE(form.Enabled());
}

TEST_F(LogFileReadingTest, LinesThatNoLogHasCanBePassedOverAndAreReportedOnceAtTheEnd) {
    settings.SkipMalformedLines = -1;  // a flag: any value but 0
    bool visible = true;
    int rows = 0;
    tools.onMessage = [&](const test::ShownMessage&) {
        visible = progress.visible;
        rows = SourceListView.RowCount();
        return toolkit::Answer::Ok;
    };
    Load({kLine, "", "garbage", kLine, "rubbish"});
    EXPECT_EQ(SourceListView.RowCount(), 2);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text,
              "Lines passed over that are not lines of a log: 2\r\nC:\\logs\\x.log\r\n"
              "The first one is line: 3");
    EXPECT_EQ(tools.messages[0].icon, toolkit::MessageIcon::None);
    EXPECT_EQ(tools.messages[0].buttons, toolkit::MessageButtons::Ok);
    EXPECT_FALSE(visible) << "the progress window is gone";
    EXPECT_EQ(rows, 2) << "what was read is shown behind the message";
    tools.messages.clear();
    Load({kLine});
    EXPECT_THAT(tools.messages, IsEmpty());
}

class LogThatDoesNotFit : public LogFileReadingTest {
  protected:
    LogThatDoesNotFit() {
        Load({kLine});
        ForgetTitles();
        system.files.Set(kBig, kLine);
    }
    // Opening the file behind those that are to be opened before it runs out of memory.
    void RunOut(int before = 0) {
        system.files.onOpen = [this, before, opened = 0](const std::string&) mutable {
            if (opened++ == before)
                failure();
        };
    }
    void ExpectTheMessage(const std::string& path) {
        ASSERT_EQ(tools.messages.size(), 1U);
        EXPECT_EQ(tools.messages[0].text, "There is not enough memory for this log:\r\n" + path);
        tools.messages.clear();
        EXPECT_FALSE(progress.visible);
        EXPECT_EQ(reading.CurrentLogFile(), kLog);
        EXPECT_EQ(SourceListView.RowCount(), 1);
        EXPECT_EQ(SourceListView.Text(0, 1), "Copy C:\\a.txt ");
    }
    static constexpr const char* kBig = "C:\\logs\\big.log";
    std::function<void()> failure = [] { throw std::bad_alloc(); };
};

TEST_F(LogThatDoesNotFit, IsRefusedAndTheOneThatIsShownStays) {
    RunOut(1);
    reading.ReadLogFile(false, kBig, true);
    ExpectTheMessage(kBig);
    EXPECT_THAT(Titles(), testing::SizeIs(2)) << "the one of before again";
    EXPECT_THAT(remembered, IsEmpty());
}

TEST_F(LogThatDoesNotFit, IsOneThatIsBeyondOtherBoundsAsWell) {
    failure = [] { throw std::length_error("as many as there can be"); };
    RunOut();
    reading.ReadLogFile(false, kBig, true);
    ExpectTheMessage(kBig);
    failure = [] { throw Overflow(); };
    RunOut();
    reading.ReadLogFile(false, kBig, true);
    ExpectTheMessage(kBig);
}

TEST_F(LogThatDoesNotFit, IsNamedAmongSeveralFilesAndByRefresh) {
    LogFileReading::Set set;
    RunOut();
    reading.AddLogFile(kBig, set);
    ExpectTheMessage(kBig);
    RunOut();
    reading.Refresh();
    ExpectTheMessage(kLog);
    // The file at the path is another one, which is read anew.
    Write(kLog, {"02.03.2024 10:00:00: Delete x"});
    RunOut(1);
    reading.Refresh();
    ExpectTheMessage(kLog);
}

}  // namespace
}  // namespace ordalyn
