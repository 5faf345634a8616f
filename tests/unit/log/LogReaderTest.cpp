#include "log/LogReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "unit/log/ScriptedFiles.h"

namespace ordalyn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kPath = "C:\\logs\\x.log";

class LogReaderTest : public testing::Test {
  protected:
    void ReadFile(const std::string& path) {
        reader.BeginFile(path);
        reader.ReadEntries();
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
    LogReader reader{files, codePages, entries};
};

TEST_F(LogReaderTest, StartsWithoutAFile) {
    EXPECT_EQ(reader.CurrentLogFile(), "");
    EXPECT_EQ(reader.LineCount(), 0);
    EXPECT_EQ(reader.LineNumber(), 0);
}

TEST_F(LogReaderTest, ReadsCommentsAndOperations) {
    files.Put(kPath, "; hello\r\nd t: Copy x -> y\r\n;\r\ne u: Delete z\r\n");
    ReadFile(kPath);
    EXPECT_THAT(Files(), ElementsAre("x.log", "x.log", "x.log", "x.log"));
    EXPECT_THAT(Dates(), ElementsAre("", "d", "", "e"));
    EXPECT_THAT(Sources(), ElementsAre(";  hello", "t: Copy x ", "; ", "u: Delete z"));
    EXPECT_THAT(Targets(), ElementsAre("", "y", "", ""));
    EXPECT_EQ(reader.CurrentLogFile(), kPath);
    EXPECT_EQ(reader.LineCount(), 5);
    EXPECT_EQ(reader.LineNumber(), 4);
    EXPECT_EQ(files.openNow, 0);
}

TEST_F(LogReaderTest, BlanksAroundALineAreIgnored) {
    files.Put(kPath, "   d t: Copy x -> y   \n  ; c  \n\t\n");
    reader.BeginFile(kPath);
    EXPECT_THROW(reader.ReadEntries(), MalformedText) << "a tab is no blank";
    EXPECT_EQ(reader.LineNumber(), 3);
    EXPECT_THAT(Sources(), ElementsAre("t: Copy x ", ";  c"));
    EXPECT_THAT(Targets(), ElementsAre("y", ""));
}

TEST_F(LogReaderTest, ATrimmedLineCanEndInItsArrow) {
    files.Put(kPath, "d t: Copy x ->   \n");
    ReadFile(kPath);
    EXPECT_THAT(Sources(), ElementsAre("t: Copy x "));
    EXPECT_THAT(Targets(), ElementsAre(""));
}

TEST_F(LogReaderTest, BlankLinesAreNoEntriesButCount) {
    files.Put(kPath, "\r\n   \r\nd t: a\r\n\r\ngarbage\r\nd t: b\r\n");
    reader.BeginFile(kPath);
    EXPECT_EQ(reader.LineCount(), 7);
    EXPECT_THROW(reader.ReadEntries(), MalformedText);
    EXPECT_EQ(reader.LineNumber(), 5);
    EXPECT_THAT(Sources(), ElementsAre("t: a")) << "what was read before the failure stays";
    EXPECT_EQ(files.openNow, 0) << "the file is closed after a failure";
}

TEST_F(LogReaderTest, AnEmptyFileAppendsNothing) {
    files.Put(kPath, "");
    ReadFile(kPath);
    EXPECT_EQ(reader.LineCount(), 1);
    EXPECT_EQ(reader.LineNumber(), 0);
    EXPECT_THROW(entries.FreeExtraItems(), SubscriptOutOfRange);
}

TEST_F(LogReaderTest, AFileThatCannotBeOpenedFailsAtLineZero) {
    files.Put(kPath, "d t: a\nd t: b");
    ReadFile(kPath);
    EXPECT_THROW(reader.BeginFile("C:\\missing.log"), FileError);
    EXPECT_EQ(reader.LineNumber(), 0);
    EXPECT_EQ(reader.CurrentLogFile(), "C:\\missing.log");
    EXPECT_EQ(reader.LineCount(), 3) << "the count of the file before";
}

TEST_F(LogReaderTest, AFileThatVanishesBetweenThePassesFailsAtLineZero) {
    files.Put(kPath, "d t: a");
    reader.BeginFile(kPath);
    files.Remove(kPath);
    EXPECT_THROW(reader.ReadEntries(), FileError);
    EXPECT_EQ(reader.LineNumber(), 0);
    EXPECT_EQ(reader.LineCount(), 2);
}

TEST_F(LogReaderTest, AFileThatGrowsBetweenThePassesFailsAtTheFirstLineThatWasNotCounted) {
    files.Put(kPath, "d t: a\nd t: b\n");
    files.PutNext(kPath, "d t: a\nd t: b\nd t: c\nd t: d\n");
    reader.BeginFile(kPath);
    EXPECT_EQ(reader.LineCount(), 3);
    EXPECT_THROW(reader.ReadEntries(), InvalidPropertyValue);
    EXPECT_EQ(reader.LineNumber(), 3);
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: b"));
    EXPECT_EQ(files.openNow, 0);
}

TEST_F(LogReaderTest, TheFirstLineThatWasNotCountedFailsAlsoBetweenTwoStepsOfTheProgress) {
    std::string lines;
    for (int line = 0; line < 404; ++line)
        lines += "d t: a\n";
    files.Put(kPath, lines);
    files.PutNext(kPath, lines + "d t: b\nd t: c\nd t: d\n");
    reader.BeginFile(kPath);
    std::int32_t shown = 0;
    EXPECT_THROW(reader.ReadEntries([&](std::int32_t value) { shown = value; }),
                 InvalidPropertyValue);
    EXPECT_EQ(reader.LineNumber(), 405);
    EXPECT_EQ(shown, 405);
    EXPECT_EQ(entries.EntrySources().ListCount(), 403);
}

TEST_F(LogReaderTest, AFileThatShrinksBetweenThePassesIsRead) {
    files.Put(kPath, "d t: a\nd t: b\n");
    files.PutNext(kPath, "d t: a\n");
    ReadFile(kPath);
    EXPECT_EQ(reader.LineCount(), 3);
    EXPECT_EQ(reader.LineNumber(), 1);
}

TEST_F(LogReaderTest, AReadThatBreaksOffFailsAtTheLineBefore) {
    files.Put(kPath, "d t: a\nd t: b\nd t: c\n");
    reader.BeginFile(kPath);
    files.mostAtOnce = 4;
    files.failAfter = 8;
    EXPECT_THROW(reader.ReadEntries(), FileError);
    EXPECT_EQ(reader.LineNumber(), 1);
    EXPECT_EQ(files.openNow, 0);
}

TEST_F(LogReaderTest, SeveralFilesFormOneModel) {
    files.Put("C:\\logs\\x.1.log", "d t: a\n");
    files.Put(kPath, "d t: b\ne t: c\n");
    ReadFile("C:\\logs\\x.1.log");
    ReadFile(kPath);
    EXPECT_THAT(Files(), ElementsAre("x.1.log", "x.log", "x.log"));
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: b", "t: c"));
    EXPECT_EQ(reader.LineCount(), 3) << "of the last file only";
}

TEST_F(LogReaderTest, ProgressGrowsToItsMaximumInFewSteps) {
    std::string bytes;
    for (int i = 0; i < 10'000; ++i)
        bytes += "d t: a\n";
    files.Put(kPath, bytes);
    reader.BeginFile(kPath);
    std::vector<std::int32_t> values;
    reader.ReadEntries([&](std::int32_t value) { values.push_back(value); });
    ASSERT_FALSE(values.empty());
    EXPECT_LE(values.size(), 201U);
    EXPECT_TRUE(std::is_sorted(values.begin(), values.end()));
    EXPECT_GT(values.front(), 1);
    EXPECT_LE(values.back(), reader.LineCount());
    EXPECT_GE(values.back(), reader.LineCount() - 50);
}

TEST_F(LogReaderTest, ProgressOfAShortFileShowsEveryLine) {
    files.Put(kPath, "d t: a\n\n;c\n");
    reader.BeginFile(kPath);
    std::vector<std::int32_t> values;
    reader.ReadEntries([&](std::int32_t value) { values.push_back(value); });
    EXPECT_THAT(values, ElementsAre(2, 3, 4));
}

TEST_F(LogReaderTest, MarksAndEncodingsNeverReachAField) {
    files.Put(kPath,
              "\xEF\xBB\xBF"
              "d t: Copy \xC3\xA4 -> \xC3\xB6\r\n\xEF\xBB\xBF"
              "e u: x\r\n");
    ReadFile(kPath);
    EXPECT_THAT(Dates(), ElementsAre("d", "e"));
    EXPECT_THAT(Sources(), ElementsAre("t: Copy \xC3\xA4 ", "u: x"));
    EXPECT_THAT(Targets(), ElementsAre("\xC3\xB6", ""));
}

// A file that another program writes.

TEST_F(LogReaderTest, AGrowingFileIsReadInOnePassHoweverManyLinesItHas) {
    std::string bytes;
    for (int i = 0; i < 1000; ++i)
        bytes += "d t: a\r\n";
    files.Put(kPath, bytes + ";c\r\n");
    files.PutNext(kPath, "");
    reader.ReadGrowingFile(kPath);
    EXPECT_EQ(entries.EntrySources().ListCount(), 1000);
    EXPECT_EQ(entries.EntrySources().List(1000), "; c");
    EXPECT_EQ(files.opened, 1);
    EXPECT_EQ(reader.Mark().lineCount, 1002);
    EXPECT_EQ(reader.LineCount(), 1002);
}

TEST_F(LogReaderTest, OfAGrowingFileALineThatIsJustBegunIsLeftForLater) {
    files.Put(kPath, "d t: a\r\n01.0");
    reader.ReadGrowingFile(kPath);
    EXPECT_THAT(Sources(), ElementsAre("t: a"));
    EXPECT_EQ(reader.Mark().lineCount, 2);
    EXPECT_EQ(reader.Mark().lastLine, LogMark::LastLine::Finished);
    files.Put(kPath, "d t: a\r\n01.0\r\n");
    EXPECT_THROW(reader.ReadGrowingFile(kPath), MalformedText) << "it has its end";
}

TEST_F(LogReaderTest, TheMarkSaysHowTheFileEnded) {
    using LastLine = LogMark::LastLine;
    for (const auto& [bytes, last] : {std::pair{"d t: a\r\n", LastLine::Finished},
                                      {"d t: a", LastLine::UnfinishedEntry},
                                      {"d t: a\n  ", LastLine::UnfinishedBlank},
                                      {"d t: a\r", LastLine::Finished},
                                      {"d t: a\n;", LastLine::UnfinishedEntry}}) {
        files.Put(kPath, bytes);
        ReadFile(kPath);
        EXPECT_EQ(reader.Mark().lastLine, last) << bytes;
        EXPECT_EQ(reader.Mark().lineCount, reader.LineCount());
        EXPECT_EQ(reader.Mark().trace.Size(), std::string(bytes).size());
        EXPECT_EQ(reader.Mark().path, kPath);
    }
}

TEST_F(LogReaderTest, LinesThatNoLogHasArePassedOverWhereTheyAreNoted) {
    PassedOverLines passedOver;
    LogReader tolerant(files, codePages, entries, &passedOver);
    files.Put(kPath, "d t: a\n\ngarbage\n;comment\nd\tt:\tb\nd t: c\n");
    tolerant.BeginFile(kPath);
    std::vector<std::int32_t> progress;
    tolerant.ReadEntries([&](std::int32_t value) { progress.push_back(value); });
    EXPECT_THAT(Sources(), ElementsAre("t: a", "; comment", "t: c"));
    EXPECT_THAT(Files(), ElementsAre("x.log", "x.log", "x.log"));
    EXPECT_EQ(passedOver.count, 2);
    EXPECT_EQ(passedOver.firstFile, kPath);
    EXPECT_EQ(passedOver.firstLine, 3) << "blank lines count";
    EXPECT_EQ(tolerant.LineNumber(), 6);
    EXPECT_EQ(tolerant.Mark().lineCount, 7);
    EXPECT_EQ(progress.back(), 7);
}

TEST_F(LogReaderTest, WhatIsPassedOverOfSeveralFilesIsCountedTogether) {
    PassedOverLines passedOver;
    LogReader tolerant(files, codePages, entries, &passedOver);
    files.Put(kPath, "d t: a\n");
    files.Put("C:\\logs\\y.log", "garbage\nrubbish\n");
    files.Put("C:\\logs\\z.log", "d t: b\nlitter\n");
    const std::vector<std::string> paths = {kPath, "C:\\logs\\y.log", "C:\\logs\\z.log"};
    for (const std::string& path : paths) {
        tolerant.BeginFile(path);
        tolerant.ReadEntries();
    }
    EXPECT_THAT(Sources(), ElementsAre("t: a", "t: b"));
    EXPECT_EQ(passedOver.count, 3);
    EXPECT_EQ(passedOver.firstFile, "C:\\logs\\y.log");
    EXPECT_EQ(passedOver.firstLine, 1);
}

TEST_F(LogReaderTest, APassedOverLineWithoutAnEndMayStillBecomeOne) {
    PassedOverLines passedOver;
    LogReader tolerant(files, codePages, entries, &passedOver);
    files.Put(kPath, "d t: a\ngarb");
    tolerant.BeginFile(kPath);
    tolerant.ReadEntries();
    EXPECT_EQ(passedOver.count, 1);
    EXPECT_EQ(tolerant.Mark().lastLine, LogMark::LastLine::UnfinishedBlank)
        << "there is no entry to replace";

    passedOver = {};
    tolerant.ReadGrowingFile(kPath);
    EXPECT_EQ(passedOver.count, 0) << "in a file that grows it is left for later";
    EXPECT_EQ(tolerant.Mark().lineCount, 2);
}

// Memory for it is made ready while it is counted and read.
TEST_F(LogReaderTest, ALargeLogIsReadLikeASmallOne) {
    constexpr std::int32_t kLines = 1000;
    const std::string path(10'000, 'p');
    std::string text;
    for (std::int32_t i = 0; i < kLines; ++i)
        text.append("d t: Copy ").append(std::to_string(i)).append(path).append(" -> y\n");
    files.Put(kPath, text);
    reader.BeginFile(kPath);
    reader.BeginFile(kPath);
    reader.ReadEntries();
    ASSERT_EQ(entries.EntrySources().ListCount(), kLines - 1);
    for (std::int32_t i = 0; i < kLines; ++i)
        ASSERT_EQ(entries.EntrySources().List(i), "t: Copy " + std::to_string(i) + path + " ");
    EXPECT_EQ(entries.EntryTargets().List(kLines - 1), "y");
}

TEST_F(LogReaderTest, AFailureInALargeLogIsTheSameAsInASmallOne) {
    std::string text;
    while (text.size() < 40 * TextStore::kLeastLoan)
        text.append("d t: a\n").append(100'000, ' ').append("\n");
    files.Put(kPath, "d t: a\ngarbage\n" + text);
    reader.BeginFile(kPath);
    EXPECT_THROW(reader.ReadEntries(), MalformedText);
    EXPECT_EQ(reader.LineNumber(), 2);
    EXPECT_EQ(files.openNow, 0);
    files.failAfter = text.size() / 2;
    EXPECT_THROW(reader.BeginFile(kPath), FileError);
    EXPECT_EQ(files.openNow, 0);
}

}  // namespace
}  // namespace ordalyn
