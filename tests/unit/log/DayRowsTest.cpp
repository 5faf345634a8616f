#include "log/DayRows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "log/DayIndex.h"

namespace ordalyn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DayRowsTest : public testing::Test {
  protected:
    void Add(std::string_view date, std::string_view source) { entries.Add({date, source, ""}); }
    void Build() { index.Build(entries.EntryDates()); }
    void ExpectRows(std::int32_t day, const testing::Matcher<std::vector<std::int32_t>>& tags) {
        EXPECT_THAT(DayRows(entries, index, day), tags);
    }
    EntryLists entries;
    DayIndex index;
};

TEST_F(DayRowsTest, EachDayHasItsEntries) {
    Add("", "; c");
    Add("A", "t: a");
    Add("B", "t: b");
    Add("B", "t: c");
    Build();
    ExpectRows(0, ElementsAre(0, 1));
    ExpectRows(1, ElementsAre(2, 3));
    ExpectRows(kAllDates, ElementsAre(0, 1, 2, 3));
}

TEST_F(DayRowsTest, RowsInFrontOfAnEntryCanBeLeftOut) {
    for (const char* const date : {"A", "B", "B", "C"})
        Add(date, "t: a");
    Build();
    EXPECT_THAT(DayRows(entries, index, 1, 0), ElementsAre(1, 2));
    EXPECT_THAT(DayRows(entries, index, 1, 2), ElementsAre(2));
    EXPECT_THAT(DayRows(entries, index, 1, 3), IsEmpty());
    EXPECT_THAT(DayRows(entries, index, kAllDates, 2), ElementsAre(2, 3));
    EXPECT_THAT(DayRows(entries, index, kAllDates, 9), IsEmpty());
}

TEST_F(DayRowsTest, AnEmptyLogHasNoRows) {
    ExpectRows(kAllDates, IsEmpty());
}

TEST_F(DayRowsTest, AllDatesNeedsNoIndex) {
    Add("", "; only");
    Add("", "; comments");
    Build();
    ExpectRows(kAllDates, ElementsAre(0, 1));
}

TEST_F(DayRowsTest, ADayThatIsNotIndexedHasNoRows) {
    ExpectRows(0, IsEmpty());
    Add("A", "t: a");
    Add("B", "t: b");
    Build();
    ExpectRows(2, IsEmpty());  // its start is the end marker, its end is missing
    ExpectRows(3, IsEmpty());
    ExpectRows(-2, IsEmpty());
}

TEST_F(DayRowsTest, AnEntryWithoutATimeIsARow) {
    Add("A", "t: a");
    Add("A", "word");
    Add("A", "t: b");
    Add("C", " blank first");
    Build();
    ExpectRows(kAllDates, ElementsAre(0, 1, 2, 3));
    ExpectRows(0, ElementsAre(0, 1, 2));
    ExpectRows(1, ElementsAre(3));
}

TEST_F(DayRowsTest, AnIndexThatIsOlderThanTheListsNamesOnlyWhatTheyHold) {
    Add("A", "t: a");
    Add("B", "t: b");
    Add("B", "t: c");
    Build();
    entries.Clear();
    Add("C", "t: d");
    Add("C", "t: e");
    ExpectRows(0, ElementsAre(0));
    ExpectRows(1, ElementsAre(1));
    entries.Clear();
    ExpectRows(1, IsEmpty());
}

}  // namespace
}  // namespace ordalyn
