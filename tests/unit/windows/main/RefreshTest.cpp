#include "windows/main/LogFileReading.h"

#include "support/windows/LogWindow.h"

namespace ordalyn {
namespace {

using test::LogWindow;
using test::MemoryToolkit;
using testing::ElementsAre;
using testing::IsEmpty;

using RefreshTest = LogWindow;

constexpr const char* kCopyOfA = "01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt";

TEST_F(RefreshTest, RefreshOfAnUnchangedFileChangesNothing) {
    Load({kCopyOfA, kCopyOfA});
    const int fills = MemoryToolkit::Of(SourceListView).fills;
    SourceListView.SelectRow(0);
    tools.pointers.clear();
    reading.Refresh();
    EXPECT_EQ(tools.pointers.front(), toolkit::Pointer::Hourglass);
    EXPECT_EQ(MemoryToolkit::Of(SourceListView).fills, fills);
    EXPECT_EQ(SourceListView.SelectedRow(), 0);
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Default);
}

TEST_F(RefreshTest, RefreshAppendsAndSelectsTheLastDayAndRow) {
    Load({kCopyOfA});
    progress.steps.clear();
    tools.pointers.clear();
    system.files.Append(
        kLog, "02.03.2024 11:00:00: Move a -> b\r\n\r\n02.03.2024 11:00:01: Delete c\r\n");
    reading.Refresh();
    EXPECT_EQ(cboDate.ListIndex(), 2);
    EXPECT_THAT(Sources(), ElementsAre("Move a ", "Delete c"));
    EXPECT_EQ(SourceListView.SelectedRow(), 1);
    EXPECT_EQ(TargetListView.SelectedRow(), 1);
    EXPECT_EQ(shownRows.back(), 1);
    EXPECT_EQ(entries.EntryFiles().ListCount(), 0);
    EXPECT_THAT(progress.steps, IsEmpty());
    EXPECT_THAT(tools.messages, IsEmpty());
    EXPECT_EQ(tools.pointers.front(), toolkit::Pointer::Hourglass);
}

TEST_F(RefreshTest, LinesOfTheDayThatIsShownAreAddedToItsRows) {
    Load({kCopyOfA, "02.03.2024 11:00:00: Move a -> b"});
    SourceListView.SelectRow(0);
    cboDate.SetFocus();
    daysShown.clear();
    const int fills = MemoryToolkit::Of(SourceListView).fills;
    const int otherFills = MemoryToolkit::Of(TargetListView).fills;
    system.files.Append(kLog, "02.03.2024 11:00:01: Move c -> d\r\n");
    reading.Refresh();
    EXPECT_THAT(Sources(), ElementsAre("Move a ", "Move c "));
    EXPECT_THAT(Targets(), ElementsAre("b", "d"));
    EXPECT_EQ(SourceListView.SelectedRow(), 1);
    EXPECT_EQ(TargetListView.SelectedRow(), 1);
    EXPECT_EQ(tools.focus, &SourceListView);
    EXPECT_THAT(daysShown, ElementsAre(1));
    EXPECT_EQ(MemoryToolkit::Of(SourceListView).fills, fills);
    EXPECT_EQ(MemoryToolkit::Of(TargetListView).fills, otherFills);
}

// Whatever was shown before, and however the added lines go on, a refresh ends with what a person
// sees when days and rows are built from the beginning.
class RefreshedAndBuilt : public RefreshTest {
  protected:
    std::vector<std::string> See() const {
        std::vector<std::string> seen = Dates();
        for (const auto& texts : {Sources(), Targets()})
            seen.insert(seen.end(), texts.begin(), texts.end());
        for (int panel = 1; panel <= 3; ++panel)
            seen.push_back(Status(panel));
        for (const int number : {MemoryToolkit::Of(cboDate).listIndex, SourceListView.SelectedRow(),
                                 TargetListView.SelectedRow()})
            seen.push_back(std::to_string(number));
        seen.emplace_back(tools.focus == &SourceListView ? "focus" : "none");
        return seen;
    }
    void ExpectTheSame(int shownItem, const std::string& before, const std::string& added) {
        SCOPED_TRACE("item " + std::to_string(shownItem) + " of\n" + before + "then\n" + added);
        system.files.Set(kLog, before);
        reading.ReadLogFile(false, kLog, false);
        if (shownItem < cboDate.ListCount())
            cboDate.UserSelected(shownItem);
        cboDate.SetFocus();
        system.files.Append(kLog, added);
        reading.Refresh();
        const std::vector<std::string> refreshed = See();
        panels.BuildDateList(true);
        panels.SelectLastRow();
        EXPECT_EQ(refreshed, See());
    }
    void ExpectTheSame() {
        const std::string first = "01.03.2024 10:15:30: Copy a -> b\r\n";
        const std::string second = "02.03.2024 11:00:00: Move b -> c\r\n";
        for (const std::string& before :
             {first, first + second, "; a comment\r\n" + first, first + second + "02.03.2024 1",
              first + second + "03.03.2024 12:00:00: Copy x", std::string("; a comment\r\n")}) {
            for (const char* const added :
                 {"2:00:00: Copy(Error: full): c -> d\r\n",
                  "\r\n02.03.2024 12:00:00: Move c -> d\r\n; a comment\r\n",
                  "\r\n03.03.2024 12:00:00: Copy c -> d\r\n04.03.2024 12:00:00: Copy d -> "
                  "e\r\n"}) {
                for (int shown = 0; shown < 4; ++shown)
                    ExpectTheSame(shown, before, added);
            }
        }
    }
};

TEST_F(RefreshedAndBuilt, AreTheSame) {
    ExpectTheSame();
}

TEST_F(RefreshedAndBuilt, AreTheSameWithLongDatesAndASinglePanel) {
    settings.LongDate = 1;
    SinglePanel();
    ExpectTheSame();
}

TEST_F(RefreshedAndBuilt, AreTheSameUnderAFilter) {
    filter = {.boxText = "move", .FilterText = "move"};
    ExpectTheSame();
}

TEST_F(RefreshedAndBuilt, AreTheSameOfFailedOperations) {
    panels.ShowFailedOnly(true);
    ExpectTheSame();
}

// The file is another one than before, so its end is shown.
TEST_F(RefreshTest, RefreshThatFindsOnlyBlankCopyOfAsShowsTheLastDayAndRow) {
    Load({kCopyOfA, "02.03.2024 11:00:00: Move a -> b", "02.03.2024 11:00:01: Delete c"});
    cboDate.UserSelected(1);
    system.files.Append(kLog, "\r\n  \r\n");
    reading.Refresh();
    EXPECT_EQ(cboDate.ListIndex(), 2);
    EXPECT_THAT(Sources(), ElementsAre("Move a ", "Delete c"));
    EXPECT_EQ(SourceListView.SelectedRow(), 1);
    EXPECT_EQ(entries.EntryDates().ListCount(), 2);
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(RefreshTest, RefreshUnderAFilterThatLetsNothingPassIsNoError) {
    Load({kCopyOfA});
    filter = {.boxText = "xyz", .FilterText = "xyz"};
    panels.ApplyFilter(false);
    system.files.Append(kLog, "02.03.2024 11:00:00: Move a -> b\r\n");
    reading.Refresh();
    EXPECT_THAT(tools.messages, IsEmpty());
    EXPECT_EQ(cboDate.ListIndex(), 2);
    EXPECT_EQ(SourceListView.RowCount(), 0);
    EXPECT_EQ(entries.EntryDates().ListCount(), 1);
}

TEST_F(RefreshTest, RefreshHasNoCommentRule) {
    Load({kCopyOfA});
    system.files.Append(kLog, "; a comment\r\n");
    reading.Refresh();
    EXPECT_EQ(entries.EntryDates().List(1), ";");
    EXPECT_EQ(entries.EntrySources().List(1), "a comment");
}

TEST_F(RefreshTest, ARefreshThatFailsNamesTheOldLineCount) {
    Load({kCopyOfA, kCopyOfA});
    system.files.Append(kLog, std::string(kCopyOfA) + "\r\ngarbage\r\n");
    toolkit::Pointer during = toolkit::Pointer::Hourglass;
    tools.onMessage = [&](const test::ShownMessage&) {
        during = tools.pointer;
        return toolkit::Answer::Ok;
    };
    reading.Refresh();
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "There is an error in file\r\nC:\\logs\\x.log\r\nLine: 3");
    EXPECT_EQ(during, toolkit::Pointer::Default);
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Default);
}

TEST_F(RefreshTest, ARefreshOfAMissingFileNamesLine0) {
    Load({kCopyOfA});
    system.files.Delete(kLog);
    reading.Refresh();
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_THAT(tools.messages[0].text, testing::EndsWith("Line: 0"));
    EXPECT_EQ(SourceListView.RowCount(), 1);
}

TEST_F(RefreshTest, ARefreshReadsALogAnewThatDoesNotGoOn) {
    Load({kCopyOfA, kCopyOfA});
    for (const char* bytes : {"05.03.2024 10:00:00: Delete x\r\n06.03.2024 10:00:00: Delete y\r\n"
                              "06.03.2024 10:00:00: Delete z\r\n06.03.2024 10:00:01: Delete z\r\n",
                              "07.03.2024 10:00:00: Delete x\r\n;c\r\n"}) {
        system.files.Set(kLog, bytes);
        ForgetTitles();
        reading.Refresh();
        EXPECT_EQ(Titles().front(), kLog);
        EXPECT_EQ(cboDate.ListIndex(), cboDate.ListCount() - 1);
        EXPECT_EQ(SourceListView.SelectedRow(), SourceListView.RowCount() - 1);
        EXPECT_EQ(entries.FileOf(entries.EntrySources().ListCount()), "x.log");
    }
    EXPECT_THAT(Sources(), ElementsAre("Delete x", "c"));
    EXPECT_THAT(tools.messages, IsEmpty());
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Default);
    // One that is empty is about to begin.
    system.files.Set(kLog, "");
    reading.Refresh();
    EXPECT_THAT(Sources(), ElementsAre("Delete x", "c"));
    system.files.Set(kLog, "08.03.2024 10:00:00: Delete n\r\n");
    reading.Refresh();
    EXPECT_THAT(Sources(), ElementsAre("Delete n"));
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(RefreshTest, AnotherLogThatCannotBeReadLeavesTheWindowAsItWas) {
    Load({kCopyOfA, kCopyOfA});
    system.files.Set(kLog, "05.03.2024 10:00:00: Delete x\r\ngarbage\r\n");
    reading.Refresh();
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "There is an error in file\r\nC:\\logs\\x.log\r\nLine: 2");
    EXPECT_THAT(Dates(), ElementsAre("01.03.2024"));
    EXPECT_EQ(SourceListView.RowCount(), 2);
}

TEST_F(RefreshTest, ALogThatIsMissingForAMomentIsWaitedFor) {
    Load({kCopyOfA});
    system.files.Delete(kLog);
    int opened = 0;
    system.files.onOpen = [&](const std::string&) {
        if (++opened == 5)
            system.files.Set(kLog, "05.03.2024 10:00:00: Delete x\r\n");
    };
    reading.Refresh();
    EXPECT_THAT(Sources(), ElementsAre("Delete x"));
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(RefreshTest, BesideAWriterEveryRefreshBringsEachLineOnce) {
    std::vector<std::string> written;
    const auto write = [&](bool begin) {
        const std::string text = "Delete " + std::to_string(written.size());
        const std::string line = "01.03.2024 10:00:00: " + text;
        // In the middle of a line as often as at its end.
        const std::string end = written.size() % 2 == 0 ? "\r\n" : "";
        const std::string gap = written.empty() || (written.size() - 1) % 2 == 0 ? "" : "\r\n";
        if (begin) {
            written.clear();
            system.files.Set(kLog, line + "\r\n");
        } else {
            system.files.Append(kLog, gap + line + end);
        }
        written.push_back(text);
    };
    Load({"01.03.2024 10:00:00: Delete 0"});
    written = {"Delete 0"};
    std::uint32_t random = 1;
    for (int i = 0; i < 200; ++i) {
        for (int lines = 0; lines < i % 4; ++lines)
            write(false);
        if (i == 70 || i == 140) {
            written.clear();
            system.files.Set(kLog, "");
            if (i == 140)
                system.files.Delete(kLog);
            system.files.onOpen = [&](const std::string&) {
                system.files.onOpen = nullptr;
                system.files.Set(kLog, "01.03.2024 10:00:00: Delete 0\r\n");
                written = {"Delete 0"};
            };
        } else {
            system.files.onOpen = [&](const std::string&) {
                random = random * 1664525U + 1013904223U;
                if (random % 3 == 0)
                    write(false);
            };
        }
        reading.Refresh();
        system.files.onOpen = nullptr;
        ASSERT_THAT(tools.messages, IsEmpty()) << i;
        ASSERT_THAT(Sources(), testing::ElementsAreArray(written)) << i;
        ASSERT_EQ(SourceListView.SelectedRow(), SourceListView.RowCount() - 1);
    }
}

TEST_F(RefreshTest, AnEntryWithoutASlotForItsFileIsNoErrorOfTheFile) {
    panels.RowShown.Subscribe(
        [this](int row) { title.ShowFile(entries.FileOf(SourceListView.Tag(row))); });
    title.SetLogFolder("C:\\logs\\");
    Load(std::vector<std::string>(2, kCopyOfA));
    system.files.Append(kLog, std::string(kCopyOfA) + "\r\n");
    reading.Refresh();
    EXPECT_THAT(tools.messages, IsEmpty());
    EXPECT_EQ(SourceListView.RowCount(), 3);
    EXPECT_EQ(title.Text(), "C:\\logs\\");
}

TEST_F(RefreshTest, RefreshReportsWhatItHasPassedOverOnce) {
    settings.SkipMalformedLines = 1;
    Load({kCopyOfA});
    system.files.Append(kLog, "garbage\r\n" + std::string(kCopyOfA) + "\r\n");
    bool hourglass = false;
    tools.onMessage = [&](const test::ShownMessage&) {
        hourglass = tools.pointer == toolkit::Pointer::Hourglass;
        return toolkit::Answer::Ok;
    };
    reading.Refresh();
    reading.Refresh();
    EXPECT_EQ(SourceListView.RowCount(), 2);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_THAT(tools.messages[0].text, testing::EndsWith("The first one is line: 2"));
    EXPECT_FALSE(hourglass) << "a person can answer";

    // Another file at the path: counted anew.
    Write(kLog, {"rubbish", "litter", "02.03.2024 10:00:00: Delete x"});
    reading.Refresh();
    EXPECT_EQ(SourceListView.RowCount(), 1);
    ASSERT_EQ(tools.messages.size(), 2U);
    EXPECT_THAT(tools.messages[1].text, testing::HasSubstr(": 2\r\n"));
    EXPECT_THAT(tools.messages[1].text, testing::EndsWith("The first one is line: 1"));
}

TEST_F(RefreshTest, OfALogThatHasOnlyBeenPassedOverTheRowsBeforeItStay) {
    settings.SkipMalformedLines = 1;
    Load({kCopyOfA, kCopyOfA});
    Write(kLog, {"garbage"});
    reading.Refresh();
    EXPECT_EQ(SourceListView.RowCount(), 2);
    ASSERT_EQ(tools.messages.size(), 1U) << "why they stay";
    EXPECT_THAT(tools.messages[0].text, testing::HasSubstr("of a log: 1\r\n"));
    tools.messages.clear();
    Write(kLog, {});
    reading.Refresh();
    EXPECT_EQ(SourceListView.RowCount(), 2);
    EXPECT_THAT(tools.messages, IsEmpty()) << "an empty file may be about to begin";
}

TEST_F(RefreshTest, AReadThatFailsInTheMiddleAndIsTriedAgainBringsEachLineOnce) {
    settings.SkipMalformedLines = 1;
    Load({kCopyOfA});
    std::vector<std::string> anew(2002, "02.03.2024 10:00:00: Delete x");
    anew.front() = anew.back() = "garbage";
    Write(kLog, anew);
    int opened = 0;
    // What Refresh opens first tells it that this is another log.
    system.files.onOpen = [&](const std::string& path) {
        system.files.FailReadingAfter(path, ++opened == 2 ? 50'000 : 1'000'000);
    };
    reading.Refresh();
    EXPECT_EQ(opened, 3);
    EXPECT_EQ(SourceListView.RowCount(), 2000);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_THAT(tools.messages[0].text, testing::HasSubstr("of a log: 2\r\n"));
}

}  // namespace
}  // namespace ordalyn
