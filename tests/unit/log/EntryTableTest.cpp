#include "log/EntryTable.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace ordalyn {
namespace {

class EntryTableTest : public testing::Test {
  protected:
    std::string Line(const LogLine& fields, TableForm form = TableForm::TabSeparated) {
        entries.Add(fields);
        std::string text;
        EntryTable(entries, reader, form).AddEntry(text, entries.EntrySources().ListCount());
        return text;
    }
    EntryLists entries;
    OperationReader reader{{{OperationKind::Copy, "Copy"},
                            {OperationKind::Move, "Move"},
                            {OperationKind::ProgramStart, "Program start"}}};
};

TEST_F(EntryTableTest, AReadableLineIsSplitIntoOperationAndPaths) {
    EXPECT_EQ(Line({"01.03.2024", "10:15:30: Copy: C:\\a b.txt ", "D:\\a b.txt"}),
              "01.03.2024\t10:15:30\tCopy\tC:\\a b.txt\tD:\\a b.txt\r\n");
    EXPECT_EQ(Line({"01.03.2024", "10:15:30: Delete: C:\\a", ""}),
              "01.03.2024\t10:15:30\tDelete\tC:\\a\t\r\n");
}

TEST_F(EntryTableTest, AnOutcomeStandsBehindTheOperation) {
    EXPECT_EQ(Line({"01.03.2024", "10:15:30: Copy(Error: Disk full): C:\\a ", "D:\\a"}),
              "01.03.2024\t10:15:30\tCopy (Error: Disk full)\tC:\\a\tD:\\a\r\n");
    EXPECT_EQ(Line({"01.03.2024", "10:15:30: Move: Skipped: C:\\a ", "D:\\a"}),
              "01.03.2024\t10:15:30\tMove (Skipped)\tC:\\a\tD:\\a\r\n");
}

TEST_F(EntryTableTest, NothingIsLostOfWhatCannotBeRead) {
    EXPECT_EQ(Line({"", "; a comment", ""}), "\t\ta comment\t\t\r\n");
    EXPECT_EQ(Line({"01.03.2024", "10:15:30: 12 strange things ", "where"}),
              "01.03.2024\t10:15:30\t12 strange things\t\twhere\r\n");
    EXPECT_EQ(Line({"01.03.2024", "10:15:30: Program start: User@Computer", ""}),
              "01.03.2024\t10:15:30\tProgram start: User@Computer\t\t\r\n");
    EXPECT_EQ(Line({"01.03.2024", "withouttime", ""}), "01.03.2024\t\twithouttime\t\t\r\n");
}

TEST_F(EntryTableTest, TabsAndLineBreaksDoNotBreakATableWithTabs) {
    EXPECT_EQ(Line({"1.1.\t2024", "10:15:30: Copy: C:\\a\tb\nc ", "D:\\\rd"}),
              "1.1. 2024\t10:15:30\tCopy\tC:\\a b c\tD:\\ d\r\n");
    EXPECT_EQ(Line({"d", "10:15:30: Copy: C:\\a\"b ", "\"D:\\x\""}),
              "d\t10:15:30\tCopy\tC:\\a\"b\t\"\"\"D:\\x\"\"\"\r\n");
}

TEST_F(EntryTableTest, WithCommasTheyAreQuoted) {
    const auto line = [this](const LogLine& fields) {
        return Line(fields, TableForm::CommaSeparated);
    };
    EXPECT_EQ(line({"01.03.2024", "10:15:30: Copy: C:\\a b ", "D:\\\xC3\xA4"}),
              "01.03.2024,10:15:30,Copy,C:\\a b,D:\\\xC3\xA4\r\n");
    EXPECT_EQ(line({"d", "10:15:30: Copy: C:\\a,b ", "D:\\\"c\""}),
              "d,10:15:30,Copy,\"C:\\a,b\",\"D:\\\"\"c\"\"\"\r\n");
    EXPECT_EQ(line({"d", "10:15:30: Copy: C:\\a\nb ", "D:\\a\tb"}),
              "d,10:15:30,Copy,\"C:\\a\nb\",\"D:\\a\tb\"\r\n");
}

// An ordinary line is not read word by word; what stands in the table is the same.
TEST_F(EntryTableTest, OrdinaryLinesAreThoseThatReadingGives) {
    const std::vector<std::string> parts = {"Copy", "Odd", "7x",    ": ",       ":",   " ",
                                            "(",    ")",   "C:\\a", "\\\\s\\x", "-> ", "y"};
    const std::vector<std::string> targets = {"", "D:\\b ", " E:\\c -> d", "name"};
    std::mt19937 random(5);
    for (int i = 0; i < 20'000; ++i) {
        std::string source = random() % 8 == 0 ? "no: " : "10:00:00: ";
        for (auto part = random() % 6; part > 0; --part)
            source += parts[random() % parts.size()];
        const std::string& target = targets[random() % targets.size()];
        const Operation read = reader.Read(source, target);
        if (read.source.empty() || read.Failed())
            continue;
        ASSERT_EQ(Line({"d", source, target}),
                  "d\t" + std::string(TimeText(source)) + "\t" + std::string(read.word) + "\t" +
                      std::string(read.source) + "\t" + std::string(read.target) + "\r\n")
            << source;
    }
}

TEST_F(EntryTableTest, TheFirstLineHasTheNamesOfTheColumns) {
    std::string text;
    EntryTable(entries, reader, TableForm::CommaSeparated)
        .AddHeader(text, {"Date", "Time", "Operation", "Source, old", "Target"});
    EXPECT_EQ(text, "Date,Time,Operation,\"Source, old\",Target\r\n");
}

}  // namespace
}  // namespace ordalyn
