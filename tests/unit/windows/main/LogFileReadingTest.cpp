#include "windows/main/LogFileReading.h"

#include "support/windows/LogWindow.h"

namespace ordalyn {
namespace {

using test::LogWindow;
using test::MemoryToolkit;
using testing::ElementsAre;
using testing::IsEmpty;

using LogFileReadingTest = LogWindow;

constexpr const char* kLine = "01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt";

TEST_F(LogFileReadingTest, ReadsShowsAndFinishesInOrder) {
    Load({kLine, "", "02.03.2024 10:00:00: Delete x"});
    EXPECT_THAT(Titles(), ElementsAre(kLog));
    EXPECT_THAT(progress.steps, ElementsAre("compact", "show Reading... Please wait. 4", "hide"));
    EXPECT_EQ(progress.lastValue, 4);  // it starts at 1 and grows with each line
    EXPECT_EQ(reader.CurrentLogFile(), kLog);
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

TEST_F(LogFileReadingTest, AppendingToTheListShowsTheTallFormAndChangesNoPanel) {
    Load({kLine});
    progress.steps.clear();
    ForgetTitles();
    Write("C:\\logs\\x.1.log", {kLine, kLine});
    reading.ReadLogFile(false, "C:\\logs\\x.1.log", false, false);
    EXPECT_THAT(progress.steps, ElementsAre("tall x.1.log", "show Reading... Please wait. 3"));
    EXPECT_THAT(Titles(), IsEmpty());
    EXPECT_EQ(entries.EntryDates().ListCount(), 2);
    EXPECT_EQ(entries.EntryFiles().List(2), "x.1.log");
    EXPECT_EQ(SourceListView.RowCount(), 1);
}

TEST_F(LogFileReadingTest, TheOpenDialogStartsInTheCurrentLogsFolder) {
    Load({kLine});
    Write("C:\\other\\y.log", {kLine});
    chosenFile = "C:\\other\\y.log";
    reading.ReadLogFile(true, "", true, true);
    EXPECT_THAT(dialogFolders, ElementsAre("C:\\logs\\"));
    EXPECT_EQ(reader.CurrentLogFile(), "C:\\other\\y.log");
    EXPECT_THAT(remembered, ElementsAre("C:\\other\\y.log"));
}

TEST_F(LogFileReadingTest, CancellingTheOpenDialogLeavesTheViewUntouched) {
    Load({kLine});
    ForgetTitles();
    progress.steps.clear();
    chosenFile.reset();
    reading.ReadLogFile(true, "", true, true);
    EXPECT_EQ(reader.CurrentLogFile(), kLog);
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
    EXPECT_EQ(entries.EntryDates().ListCount(), 0);  // what came before it stays
    EXPECT_THAT(Dates(), IsEmpty());                 // the days are not listed anew
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
    reading.ReadLogFile(false, kLog, true, true);
    EXPECT_THAT(remembered, ElementsAre(kLog));  // it was read; only its lists cannot be trimmed
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "There is an error in file\r\nC:\\logs\\x.log\r\nLine: 0");
    EXPECT_EQ(reader.LineCount(), 1);
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
        reading.ReadLogFile(false, path, true, true);
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
    reading.ReadLogFile(false, kLog, false, true);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_THAT(tools.messages[0].text, testing::EndsWith("Line: 2"));
}

TEST_F(LogFileReadingTest, AFailureWhileReadingKeepsWhatWasRead) {
    std::string bytes;
    for (int i = 0; i < 1000; ++i)
        bytes += std::string(kLine) + "\r\n";
    system.files.Set(kLog, bytes);
    int opened = 0;
    system.files.onOpen = [&](const std::string&) {
        if (++opened == 2)
            system.files.FailReadingAfter(kLog, bytes.size() / 2);
    };
    reading.ReadLogFile(false, kLog, false, true);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_GT(entries.EntryDates().ListCount(), 0);
}

TEST_F(LogFileReadingTest, RefreshOfAnUnchangedFileChangesNothing) {
    Load({kLine, kLine});
    const int fills = MemoryToolkit::Of(SourceListView).fills;
    SourceListView.SelectRow(0);
    tools.pointers.clear();
    reading.ReadAppendedLines(kLog);
    EXPECT_EQ(tools.pointers.front(), toolkit::Pointer::Hourglass);
    EXPECT_EQ(MemoryToolkit::Of(SourceListView).fills, fills);
    EXPECT_EQ(SourceListView.SelectedRow(), 0);
    EXPECT_EQ(reader.LineCount(), 3);
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Default);
}

TEST_F(LogFileReadingTest, RefreshAppendsAndSelectsTheLastDayAndRow) {
    Load({kLine});
    progress.steps.clear();
    tools.pointers.clear();
    system.files.Append(
        kLog, "02.03.2024 11:00:00: Move a -> b\r\n\r\n02.03.2024 11:00:01: Delete c\r\n");
    reading.ReadAppendedLines(kLog);
    EXPECT_EQ(cboDate.ListIndex(), 2);
    EXPECT_THAT(Sources(), ElementsAre("Move a ", "Delete c"));
    EXPECT_EQ(SourceListView.SelectedRow(), 1);
    EXPECT_EQ(TargetListView.SelectedRow(), 1);
    EXPECT_EQ(shownRows.back(), 1);
    EXPECT_EQ(reader.LineCount(), 5);
    EXPECT_EQ(entries.EntryFiles().ListCount(), 0);
    EXPECT_THAT(progress.steps, IsEmpty());
    EXPECT_THAT(tools.messages, IsEmpty());
    EXPECT_EQ(tools.pointers.front(), toolkit::Pointer::Hourglass);
}

TEST_F(LogFileReadingTest, RefreshHasNoCommentRule) {
    Load({kLine});
    system.files.Append(kLog, "; a comment\r\n");
    reading.ReadAppendedLines(kLog);
    EXPECT_EQ(entries.EntryDates().List(1), ";");
    EXPECT_EQ(entries.EntrySources().List(1), "a comment");
}

TEST_F(LogFileReadingTest, ARefreshThatFailsNamesTheOldLineCount) {
    Load({kLine, kLine});
    system.files.Append(kLog, std::string(kLine) + "\r\ngarbage\r\n");
    toolkit::Pointer during = toolkit::Pointer::Hourglass;
    tools.onMessage = [&](const test::ShownMessage&) {
        during = tools.pointer;
        return toolkit::Answer::Ok;
    };
    reading.ReadAppendedLines(kLog);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "There is an error in file\r\nC:\\logs\\x.log\r\nLine: 3");
    EXPECT_EQ(during, toolkit::Pointer::Default);
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Default);
}

TEST_F(LogFileReadingTest, ARefreshOfAMissingFileNamesLine0) {
    Load({kLine});
    system.files.Delete(kLog);
    reading.ReadAppendedLines(kLog);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_THAT(tools.messages[0].text, testing::EndsWith("Line: 0"));
    EXPECT_EQ(SourceListView.RowCount(), 1);
}

TEST_F(LogFileReadingTest, NothingCanBeginAnotherReadWhileTheProgressWindowIsShown) {
    Write("C:\\logs\\y.log", {kLine, kLine});
    std::vector<bool> enabled;
    progress.onShow = [&] {
        enabled.push_back(form.Enabled());
        reading.ReadLogFile(false, "C:\\logs\\y.log", true, true);
        reading.ReadAppendedLines("C:\\logs\\y.log");
    };
    Load({kLine});
    EXPECT_THAT(enabled, ElementsAre(false));
    EXPECT_TRUE(form.Enabled());
    EXPECT_EQ(reader.CurrentLogFile(), kLog);
    EXPECT_EQ(entries.EntryDates().ListCount(), 0);
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(LogFileReadingTest, AFileThatCannotBeOpenedLeavesTheWindowsUsable) {
    reading.ReadLogFile(false, "C:\\logs\\missing.log", false, true);
    EXPECT_TRUE(form.Enabled());
}

TEST_F(LogFileReadingTest, ARefreshBeyondTheStorageOfTheFilesIsAnError) {
    // A list of files that has never grown has two slots: a third entry has none to name its file.
    panels.RowShown.Subscribe(
        [this](int row) { static_cast<void>(entries.EntryFiles().List(SourceListView.Tag(row))); });
    Load(std::vector<std::string>(2, kLine));
    system.files.Append(kLog, std::string(kLine) + "\r\n");
    reading.ReadAppendedLines(kLog);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_THAT(tools.messages[0].text, testing::EndsWith("Line: 3"));
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Default);
    EXPECT_EQ(SourceListView.RowCount(), 3);
}

}  // namespace
}  // namespace ordalyn
