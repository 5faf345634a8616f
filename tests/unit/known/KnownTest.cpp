// What is known needs no window: a log is read, its days are listed, a day's entries are filtered
// and searched, settings and the file manager's words are read, by a program that is not even
// linked with the toolkit.
#include <gmock/gmock.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "hostconfig/OperationWords.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"
#include "log/AppendedLines.h"
#include "log/DayIndex.h"
#include "log/DayRows.h"
#include "log/EntryLists.h"
#include "log/LogReader.h"
#include "search/EntryFilter.h"
#include "search/EntrySearch.h"
#include "settings/mAppSpecific.h"
#include "support/platform/MemoryPlatform.h"

namespace ordalyn {
namespace {

using testing::Contains;
using testing::ElementsAre;

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
        return DayRows(entries, index, day);
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

TEST_F(Known, ADayIsFilteredByWhatGoesToAFolder) {
    Read();
    FilterChoice filter;
    filter.FilterText = "d:\\backup";
    filter.target = true;
    EXPECT_THAT(EntriesThatPass(entries, RowsOf(1), filter), ElementsAre(3));
    EXPECT_THAT(EntriesThatPass(entries, RowsOf(kAllDates), filter), ElementsAre(0, 3));
    filter.doesNotContain = true;
    EXPECT_THAT(EntriesThatPass(entries, RowsOf(kAllDates), filter), ElementsAre(4));
}

// Remembers what a search has it show.
struct Display : EntryDisplay {
    std::int32_t SelectedDay() const override { return kAllDates; }
    bool ShowEntry(std::int32_t entry) override {
        shown.push_back(entry);
        return true;
    }
    std::vector<std::int32_t> shown;
};

TEST_F(Known, ATextIsFoundWhateverItsLetterCaseAndAsAWholeWord) {
    Read();
    Display display;
    EntrySearch search(entries, index, display);
    search.SetText("пётр", -1);
    EXPECT_TRUE(search.FindNext());
    EXPECT_FALSE(search.FindNext());
    search.SetText("copy", -1);
    search.SetWholeWord(true);
    EXPECT_TRUE(search.FindNext());
    EXPECT_TRUE(search.FindNext());
    EXPECT_THAT(display.shown, ElementsAre(3, 0, 3));
    search.SetText("cop", -1);
    EXPECT_FALSE(search.FindNext());
}

TEST_F(Known, WhatIsAppendedIsKnownNext) {
    Read();
    AppendedLines appended(system.files, system.codePages, entries);
    LogMark mark = reader.Mark();
    EXPECT_EQ(appended.Read(mark), AppendedLines::Found::Nothing);
    system.files.Append(kPath, "03.03.2024 09:00:00: Delete C:\\d.txt\r\n");
    EXPECT_EQ(appended.Read(mark), AppendedLines::Found::Lines);
    EXPECT_THAT(index.Build(entries.EntryDates()),
                ElementsAre("01.03.2024", "02.03.2024", "03.03.2024"));
    EXPECT_THAT(RowsOf(2), ElementsAre(5));
}

TEST_F(Known, SettingsAndTheFileManagersWordsAreReadFromTheirFiles) {
    system.files.Set("C:\\Ordalyn\\Ordalyn.ini", "[Ordalyn]\r\nTwoPanels=0\r\n");
    system.files.Set("C:\\tc\\wincmd.ini", "[Configuration]\r\nLanguageIni=WCMD_DEU.LNG\r\n");
    system.files.Set("C:\\tc\\Language\\WCMD_DEU.LNG", "1802=\"Kopieren\"\r\n");
    mAppCommon common(system.services);
    common.SetCommanderFolder("C:\\tc\\");
    common.SetCommanderIni("C:\\tc\\wincmd.ini");
    cProfile profile(system.services, common);
    mAppSpecific settings(profile, common);
    settings.LoadSettings();
    EXPECT_EQ(settings.TwoPanels, 0);
    OperationWords words({common, profile, system.files, system.codePages});
    EXPECT_THAT(words.LoadOperationKeywords(), Contains(OperationWord{"k1802", "Kopieren"}));
}

}  // namespace
}  // namespace ordalyn
