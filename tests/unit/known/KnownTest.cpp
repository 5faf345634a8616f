// What is known needs no window: a log is read, its days are listed, a day's entries are narrowed
// and searched by a program that is not even linked with the toolkit.
#include <gmock/gmock.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "log/DayIndex.h"
#include "log/DayRows.h"
#include "log/EntryLists.h"
#include "log/LogReader.h"
#include "search/FieldScan.h"
#include "support/platform/MemoryPlatform.h"

namespace ordalyn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kPath = "C:\\tc\\tc.log";
constexpr std::string_view kLog =
    "\xEF\xBB\xBF"
    "01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\Backup\\a.txt\r\n"
    "01.03.2024 10:16:00: Delete C:\\b.txt\r\n"
    "02.03.2024 08:00:01: Program start (anna/DESK7)\r\n"
    "02.03.2024 08:00:05: Copy C:\\Пётр.txt -> D:\\Backup\\ПЁТР.txt\r\n"
    "02.03.2024 08:00:09: Move C:\\c.txt -> D:\\elsewhere\\c.txt\r\n";

class Known : public testing::Test {
  protected:
    void SetUp() override { system.files.Set(kPath, kLog); }
    void Read() {
        reader.BeginFile(kPath);
        reader.ReadEntries();
        days = index.Build(entries.EntryDates());
    }
    std::vector<std::int32_t> RowsOf(std::int32_t day) const {
        const DayRowsResult rows = DayRows(entries, index.DayStarts(), day);
        EXPECT_FALSE(rows.failed);
        return rows.tags;
    }
    // Those of the entries whose field holds the text.
    static std::vector<std::int32_t> Holding(const cStringArray& fields,
                                             const std::vector<std::int32_t>& tags,
                                             std::string_view text, bool wholeWord = false) {
        std::vector<std::int32_t> found;
        FieldScan(fields, text, wholeWord)
            .Run(
                static_cast<std::int32_t>(tags.size()),
                [&](std::int32_t row) { return tags[static_cast<std::size_t>(row)]; },
                [&](std::int32_t row) {
                    found.push_back(tags[static_cast<std::size_t>(row)]);
                    return false;
                });
        return found;
    }

    test::MemoryPlatform system;
    EntryLists entries;
    LogReader reader{system.files, system.codePages, entries};
    DayIndex index;
    std::vector<std::string> days;
};

TEST_F(Known, ALogIsReadAndItsDaysAreListed) {
    Read();
    EXPECT_EQ(entries.EntrySources().ListCount(), 4);
    EXPECT_EQ(entries.EntrySources().List(0), "10:15:30: Copy C:\\a.txt ");
    EXPECT_EQ(entries.EntryTargets().List(3), "D:\\Backup\\ПЁТР.txt");
    EXPECT_THAT(days, ElementsAre("01.03.2024", "02.03.2024"));
    EXPECT_EQ(index.FirstDayItem(), 1);
    EXPECT_THAT(RowsOf(0), ElementsAre(0, 1));
    EXPECT_THAT(RowsOf(1), ElementsAre(2, 3, 4));
    EXPECT_THAT(RowsOf(kAllDates), ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(Known, ADayIsNarrowedToWhatGoesToAFolder) {
    Read();
    EXPECT_THAT(Holding(entries.EntryTargets(), RowsOf(1), "d:\\backup"), ElementsAre(3));
    EXPECT_THAT(Holding(entries.EntryTargets(), RowsOf(kAllDates), "d:\\backup"),
                ElementsAre(0, 3));
}

TEST_F(Known, ATextIsFoundWhateverItsLetterCaseAndAsAWholeWord) {
    Read();
    EXPECT_THAT(Holding(entries.EntrySources(), RowsOf(kAllDates), "пётр"), ElementsAre(3));
    EXPECT_THAT(Holding(entries.EntrySources(), RowsOf(kAllDates), "copy", true),
                ElementsAre(0, 3));
    EXPECT_THAT(Holding(entries.EntrySources(), RowsOf(kAllDates), "cop", true), IsEmpty());
}

TEST_F(Known, WhatIsAppendedIsKnownNext) {
    Read();
    EXPECT_FALSE(reader.ReadAppendedLines(kPath));
    system.files.Append(kPath, "03.03.2024 09:00:00: Delete C:\\d.txt\r\n");
    EXPECT_TRUE(reader.ReadAppendedLines(kPath));
    EXPECT_THAT(index.Build(entries.EntryDates()),
                ElementsAre("01.03.2024", "02.03.2024", "03.03.2024"));
    EXPECT_THAT(Holding(entries.EntrySources(), RowsOf(2), "delete"), ElementsAre(5));
}

}  // namespace
}  // namespace ordalyn
