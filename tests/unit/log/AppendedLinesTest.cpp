#include "log/AppendedLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "log/LogReader.h"
#include "unit/log/ScriptedFiles.h"

namespace ordalyn {
namespace {

using testing::ElementsAre;
using Found = AppendedLines::Found;

class AppendedLinesTest : public testing::Test {
  protected:
    static constexpr const char* kLog = "C:\\logs\\x.log";

    void ReadFile(const std::string& bytes) {
        files.Put(kLog, bytes);
        entries.Clear();
        LogReader reader(files, codePages, entries);
        reader.BeginFile(kLog);
        reader.ReadEntries();
        mark = reader.Mark();
    }
    Found Refresh(const std::string& bytes) {
        files.Put(kLog, bytes);
        return appended.Read(mark);
    }
    static std::vector<std::string> Items(const cStringArray& list) {
        std::vector<std::string> items;
        for (std::int32_t i = 0; i <= list.ListCount(); ++i)
            items.emplace_back(list.List(i));
        return items;
    }
    std::vector<std::string> Files() const { return Items(entries.EntryFiles()); }
    std::vector<std::string> Dates() const { return Items(entries.EntryDates()); }
    std::vector<std::string> Sources() const { return Items(entries.EntrySources()); }
    std::vector<std::string> Targets() const { return Items(entries.EntryTargets()); }

    test::ScriptedFiles files;
    test::Latin1CodePages codePages;
    EntryLists entries;
    LogMark mark;
    AppendedLines appended{files, codePages, entries};
};

TEST_F(AppendedLinesTest, AnUnchangedFileHasNothing) {
    ReadFile("d t: a\r\n\r\nd t: b\r\n");
    EXPECT_EQ(appended.Read(mark), Found::Nothing);
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: b"));
    EXPECT_EQ(mark.lineCount, 4);
    EXPECT_EQ(files.openNow, 0);
}

TEST_F(AppendedLinesTest, EachLineIsReadOnce) {
    ReadFile("d t: a\r\n");
    entries.FreeExtraItems();
    const std::string more = "d t: a\r\nd t: Copy b -> c\r\n\r\n  e t: d  \r\n";
    EXPECT_EQ(Refresh(more), Found::Lines);
    EXPECT_THAT(Dates(), ElementsAre("d", "d", "e"));
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: Copy b ", "t: d"));
    EXPECT_THAT(Targets(), ElementsAre("", "c", ""));
    EXPECT_EQ(mark.lineCount, 5);
    EXPECT_EQ(appended.Read(mark), Found::Nothing);
    EXPECT_EQ(Refresh(more + "e t: f\r\n"), Found::Lines);
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: Copy b ", "t: d", "t: f"));
    EXPECT_EQ(files.openNow, 0);
}

TEST_F(AppendedLinesTest, BlankLinesCountAsNewLines) {
    ReadFile("d t: a\n");
    EXPECT_EQ(Refresh("d t: a\n\n"), Found::Lines);
    EXPECT_THAT(Sources(), ElementsAre("t: a"));
    EXPECT_EQ(mark.lineCount, 3);
}

TEST_F(AppendedLinesTest, TheyExtendNeitherFilesNorAreTheyTrimmed) {
    ReadFile("d t: a\n");
    entries.FreeExtraItems();
    Refresh("d t: a\nd t: b\n");
    EXPECT_THAT(Files(), ElementsAre("x.log"));
    EXPECT_EQ(entries.FileOf(0), "x.log");
    EXPECT_EQ(entries.FileOf(1), "");
    EXPECT_EQ(entries.FileOf(1'000'000), "");
    EXPECT_EQ(entries.EntrySources().UpperIndex(), 2000);
}

TEST_F(AppendedLinesTest, TheyKnowNoComments) {
    ReadFile("d t: a\n");
    EXPECT_EQ(Refresh("d t: a\n; hello world -> x\n"), Found::Lines);
    EXPECT_THAT(Dates(), ElementsAre("d", ";"));
    EXPECT_THAT(Sources(), ElementsAre("t: a", "hello world "));
    EXPECT_THROW(Refresh("d t: a\n; hello world -> x\n;comment\n"), MalformedText);
}

TEST_F(AppendedLinesTest, AMalformedLineNamesTheCountBeforeAndIsNotMetAgain) {
    ReadFile("d t: a\nd t: b\n");
    EXPECT_THROW(Refresh("d t: a\nd t: b\nd t: c\n\ngarbage\nd t: e\n"), MalformedText);
    EXPECT_EQ(appended.LineNumber(), 3);
    EXPECT_EQ(mark.lineCount, 6);
    EXPECT_EQ(files.openNow, 0);
    EXPECT_EQ(appended.Read(mark), Found::Lines);
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: b", "t: c", "t: e"));
}

TEST_F(AppendedLinesTest, AMissingFileNamesZero) {
    ReadFile("d t: a\nd t: b\n");
    files.Remove(kLog);
    EXPECT_THROW(appended.Read(mark), FileError);
    EXPECT_EQ(appended.LineNumber(), 0);
    EXPECT_EQ(mark.lineCount, 3);
}

TEST_F(AppendedLinesTest, AFailureWhilePassingOverOldLinesNamesTheCountBefore) {
    ReadFile("d t: a\nd t: b\n");
    files.mostAtOnce = 4;
    files.failAfter = 8;
    EXPECT_THROW(appended.Read(mark), FileError);
    EXPECT_EQ(appended.LineNumber(), 3);
}

TEST_F(AppendedLinesTest, AFailureBehindNewLinesBringsNoneOfThemTwice) {
    ReadFile("d t: a\n");
    files.mostAtOnce = 4;
    files.failAfter = 16;
    EXPECT_THROW(Refresh("d t: a\nd t: b\nd t: c\n"), FileError);
    EXPECT_THAT(Sources(), ElementsAre("t: a"));
    files.failAfter = std::numeric_limits<std::size_t>::max();
    EXPECT_EQ(appended.Read(mark), Found::Lines);
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: b", "t: c"));
}

TEST_F(AppendedLinesTest, AFileThatDoesNotBeginWithWhatWasReadIsAnother) {
    const std::string read = "d t: a\nd t: b\nd t: c\n";
    for (const std::string& other :
         {std::string(), std::string("d t: a\n"), std::string("d t: a\nd t: b\nd t: c"),
          std::string("d t: a\nd t: x\nd t: c\n"), std::string("x t: a\nd t: b\nd t: c\nd t: d\n"),
          std::string("d t: a\nd t: b\nd t: x\nd t: d\n"), std::string("garbage\n"),
          std::string(100'000, '\n')}) {
        SCOPED_TRACE(other.substr(0, 40));
        for (const std::size_t atOnce : {std::size_t{3}, std::size_t{1} << 20U}) {
            ReadFile(read);
            files.mostAtOnce = atOnce;
            EXPECT_EQ(Refresh(other), Found::AnotherFile);
            EXPECT_THAT(Sources(), ElementsAre("t: a", "t: b", "t: c"));
            EXPECT_EQ(mark.lineCount, 4);
        }
    }
}

TEST_F(AppendedLinesTest, ALongFileIsKnownByItsBeginningAndByWhereItsReadingEnded) {
    std::string read;
    for (int i = 0; i < 40'000; ++i)
        read += "d 10:00:00: Delete " + std::to_string(100'000 + i) + "\n";
    const std::string more = "d t: new\n";
    for (const std::size_t at : {std::size_t{5}, read.size() - 2}) {
        ReadFile(read);
        std::string other = read + more;
        other[at] = 'x';
        EXPECT_EQ(Refresh(other), Found::AnotherFile) << at;
    }
    ReadFile(read);
    EXPECT_EQ(Refresh(read.substr(0, read.size() - 20)), Found::AnotherFile);
    EXPECT_EQ(Refresh(read + more), Found::Lines);
    EXPECT_EQ(entries.EntrySources().ListCount(), 40'000);
    EXPECT_EQ(entries.EntrySources().List(40'000), "t: new");
    EXPECT_EQ(appended.Read(mark), Found::Nothing);
}

TEST_F(AppendedLinesTest, ALastLineThatHadNoEndIsReadAgain) {
    ReadFile("d t: a\ne t: unfin");
    EXPECT_EQ(Refresh("d t: a\ne t: unfinished -> x\nd t: c\n"), Found::Lines);
    EXPECT_THAT(Dates(), ElementsAre("d", "e", "d"));
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: unfinished ", "t: c"));
    EXPECT_THAT(Targets(), ElementsAre("", "x", ""));
    EXPECT_THAT(Files(), ElementsAre("x.log", "x.log"));
    EXPECT_EQ(mark.lineCount, 4);
}

TEST_F(AppendedLinesTest, AnUnfinishedLineCanGrowManyTimes) {
    ReadFile("d t: a\n");
    const std::string lines = "d t: a\n01.03.2024 t: Copy b -> c\r\nd t: e\r\n";
    for (std::size_t size = 8; size <= lines.size(); ++size) {
        SCOPED_TRACE(size);
        EXPECT_NO_THROW(Refresh(lines.substr(0, size)));
    }
    EXPECT_THAT(Dates(), ElementsAre("d", "01.03.2024", "d"));
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: Copy b ", "t: e"));
    EXPECT_THAT(Targets(), ElementsAre("", "c", ""));
    EXPECT_EQ(mark.lineCount, 4);
}

TEST_F(AppendedLinesTest, AnEndForTheLastLineIsNothingNew) {
    ReadFile("d t: a\nd t: b");
    EXPECT_EQ(appended.Read(mark), Found::Nothing);
    EXPECT_EQ(Refresh("d t: a\nd t: b\r\n"), Found::Nothing);
    EXPECT_EQ(mark.lastLine, LogMark::LastLine::Finished);
    EXPECT_EQ(Refresh("d t: a\nd t: b\r\nd t: c\r\n"), Found::Lines);
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: b", "t: c"));
}

TEST_F(AppendedLinesTest, ABlankLastLineCanBecomeAnEntry) {
    ReadFile("d t: a\n  ");
    EXPECT_EQ(Refresh("d t: a\n  d t: b\n"), Found::Lines);
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: b"));
}

TEST_F(AppendedLinesTest, ACommentThatHadNoEndStaysOne) {
    ReadFile("d t: a\n;com");
    EXPECT_EQ(Refresh("d t: a\n;comment\n"), Found::Lines);
    EXPECT_THAT(Dates(), ElementsAre("d", ""));
    EXPECT_THAT(Sources(), ElementsAre("t: a", "; comment"));
    ReadFile(";com");
    EXPECT_EQ(Refresh(";comment\n"), Found::Lines);
    EXPECT_THAT(Sources(), ElementsAre("; comment"));
}

TEST_F(AppendedLinesTest, AShorterFileIsAnotherAlsoWhenALineOfItIsMalformed) {
    ReadFile("d t: a\nd t: something long");
    EXPECT_EQ(Refresh("d t: a\nmalformed\n"), Found::AnotherFile);
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: something long"));
}

class TolerantAppendedLinesTest : public AppendedLinesTest {
  protected:
    Found Refresh(const std::string& bytes) {
        files.Put(kLog, bytes);
        return tolerant.Read(mark);
    }
    PassedOverLines passedOver;
    AppendedLines tolerant{files, codePages, entries, &passedOver};
};

TEST_F(TolerantAppendedLinesTest, LinesThatNoLogHasArePassedOverWhereTheyAreNoted) {
    ReadFile("d t: a\n\n");
    EXPECT_EQ(Refresh("d t: a\n\nd t: b\ngarbage\n;comment\nd t: c\n"), Found::Lines);
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: b", "t: c"));
    EXPECT_EQ(passedOver.count, 2) << "an appended comment is split like any other line";
    EXPECT_EQ(passedOver.firstFile, kLog);
    EXPECT_EQ(passedOver.firstLine, 4);
    EXPECT_EQ(mark.lineCount, 7);

    EXPECT_EQ(tolerant.Read(mark), Found::Nothing);
    EXPECT_EQ(passedOver.count, 0) << "they are not met again";
}

TEST_F(TolerantAppendedLinesTest, OneWithoutAnEndIsLeftForLater) {
    ReadFile("d t: a\n");
    EXPECT_EQ(Refresh("d t: a\ngarb"), Found::Nothing);
    EXPECT_EQ(passedOver.count, 0);
    EXPECT_EQ(Refresh("d t: a\ngarbage\nd t: b\n"), Found::Lines);
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: b"));
    EXPECT_EQ(passedOver.count, 1);
    EXPECT_EQ(passedOver.firstLine, 2);
}

TEST_F(TolerantAppendedLinesTest, OneThatAWholeReadHasPassedOverIsReadAgain) {
    files.Put(kLog, "d t: a\n2024");
    LogReader reader(files, codePages, entries, &passedOver);
    reader.BeginFile(kLog);
    reader.ReadEntries();
    mark = reader.Mark();
    EXPECT_EQ(Refresh("d t: a\n2024 t: b\n"), Found::Lines);
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: b"));
    EXPECT_EQ(passedOver.count, 0);
}

TEST_F(TolerantAppendedLinesTest, NothingIsNotedOfAnotherFile) {
    ReadFile("d t: a\nd t: b\n");
    passedOver = {};
    EXPECT_EQ(Refresh("garbage\ngarbage\ngarbage\ngarbage\n"), Found::AnotherFile);
    EXPECT_EQ(passedOver.count, 0);
}

// Enough that its first and its last bytes are not all of it.
std::string LongLog(const std::string& begin = "") {
    std::string bytes = begin;
    for (int i = 0; bytes.size() < 5 * FileTrace::kKept; ++i)
        bytes += "d t: line " + std::to_string(i) + "\r\n";
    return bytes;
}

TEST_F(AppendedLinesTest, OnlyWhatIsNewIsReadOfALongLog) {
    const std::string log = LongLog();
    ReadFile(log);
    const std::int32_t count = entries.EntrySources().ListCount();
    const std::int32_t lines = mark.lineCount;
    files.bytesRead = 0;
    EXPECT_EQ(Refresh(log + "d t: new\r\nd t: unfin"), Found::Lines);
    EXPECT_LT(files.bytesRead, 2 * FileTrace::kKept + 100);
    EXPECT_EQ(mark.lineCount, lines + 2);
    EXPECT_EQ(Refresh(log + "d t: new\r\nd t: unfinished\r\n\r\n"), Found::Lines);
    ASSERT_EQ(entries.EntrySources().ListCount(), count + 2);
    EXPECT_EQ(entries.EntrySources().List(count + 1), "t: new");
    EXPECT_EQ(entries.EntrySources().List(count + 2), "t: unfinished");
    EXPECT_EQ(mark.lineCount, lines + 3);
    EXPECT_EQ(appended.Read(mark), Found::Nothing);
    EXPECT_EQ(files.openNow, 0);
}

TEST_F(AppendedLinesTest, ALongLogThatHasChangedIsAnother) {
    const std::string log = LongLog();
    for (const std::size_t place :
         {std::size_t{0}, FileTrace::kKept - 1, log.size() - 1, log.size() - FileTrace::kKept}) {
        ReadFile(log);
        std::string other = log + "d t: new\r\n";
        other[place] = 'x';
        EXPECT_EQ(Refresh(other), Found::AnotherFile) << place;
    }
    ReadFile(log);
    EXPECT_EQ(Refresh(log.substr(0, log.size() - 9)), Found::AnotherFile);
    EXPECT_EQ(Refresh("d t: a\r\n"), Found::AnotherFile);
    EXPECT_EQ(Refresh(""), Found::AnotherFile);
}

// However a log ends and goes on, and however it is encoded, its entries are those of a whole read,
// whether or not the file can be gone on with at a place.
TEST_F(AppendedLinesTest, ALongLogGoesOnAsIfItWereReadWhole) {
    const std::string marks[] = {"", "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"};
    const std::string pieces[] = {"d t: a",
                                  "\r",
                                  "\n",
                                  "\r\n",
                                  "",
                                  "\xEF\xBB\xBF"
                                  "d t: m\r\n",
                                  "\xFF\xFE"
                                  "d t: n\n",
                                  "d t: \xE4\n",
                                  "d t: \xC3\xA4",
                                  "d",
                                  " t: x\n\n",
                                  std::string(2 * FileTrace::kKept, 'y')};
    for (const std::string& begin : marks) {
        for (const std::string& first : pieces) {
            for (const std::string& second : pieces) {
                const std::string log = LongLog(begin) + first;
                files.Put(kLog, log);
                entries.Clear();
                PassedOverLines passedOver;
                LogReader reader(files, codePages, entries, &passedOver);
                reader.ReadGrowingFile(kLog);
                mark = reader.Mark();
                AppendedLines lenient(files, codePages, entries, &passedOver);
                files.Put(kLog, log + second);
                EXPECT_NE(lenient.Read(mark), Found::AnotherFile);
                files.Put(kLog, log + second + "d t: end\n");
                EXPECT_NE(lenient.Read(mark), Found::AnotherFile);
                const std::vector<std::string> grown = Sources();
                entries.Clear();
                LogReader whole(files, codePages, entries, &passedOver);
                whole.ReadGrowingFile(kLog);
                EXPECT_EQ(grown, Sources()) << begin.size() << first << "|" << second;
            }
        }
    }
}

TEST_F(AppendedLinesTest, AFileThatCannotBeGoneOnWithAtAPlaceIsReadFromItsBeginning) {
    files.canSeek = false;
    const std::string log = LongLog();
    ReadFile(log);
    const std::int32_t count = entries.EntrySources().ListCount();
    EXPECT_EQ(Refresh(log + "d t: new\r\n"), Found::Lines);
    EXPECT_EQ(entries.EntrySources().ListCount(), count + 1);
}

// The read ended in front of what the trace covers.
TEST_F(AppendedLinesTest, WhatStandsBehindALineThatNoLogHasIsReadAllTheSame) {
    const std::string log = LongLog();
    ReadFile(log);
    const std::int32_t count = entries.EntrySources().ListCount();
    files.Put(kLog, log + "garbage\r\nd t: a\r\nrubbish\r\nd t: b\r\n");
    EXPECT_THROW(appended.Read(mark), MalformedText);
    EXPECT_THROW(appended.Read(mark), MalformedText);
    EXPECT_EQ(appended.Read(mark), Found::Lines);
    EXPECT_EQ(entries.EntrySources().ListCount(), count + 2);
    EXPECT_EQ(entries.EntrySources().List(count + 2), "t: b");
}

}  // namespace
}  // namespace ordalyn
