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
    void ExpectRows(std::int32_t day, const testing::Matcher<std::vector<std::int32_t>>& tags,
                    bool failed) {
        const DayRowsResult rows = DayRows(entries, index, day);
        EXPECT_THAT(rows.tags, tags);
        EXPECT_EQ(rows.failed, failed);
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
    ExpectRows(0, ElementsAre(0, 1), false);
    ExpectRows(1, ElementsAre(2, 3), false);
    ExpectRows(kAllDates, ElementsAre(0, 1, 2, 3), false);
}

TEST_F(DayRowsTest, AnEmptyLogHasNoRows) {
    ExpectRows(kAllDates, IsEmpty(), false);
}

TEST_F(DayRowsTest, AllDatesNeedsNoIndex) {
    Add("", "; only");
    Add("", "; comments");
    Build();
    ExpectRows(kAllDates, ElementsAre(0, 1), false);
}

TEST_F(DayRowsTest, ADayThatIsNotIndexedFailsWithoutRows) {
    ExpectRows(0, IsEmpty(), true);
    Add("A", "t: a");
    Add("B", "t: b");
    Build();
    ExpectRows(2, IsEmpty(), true);  // its start is the end marker, its end is missing
    ExpectRows(3, IsEmpty(), true);
    ExpectRows(-2, IsEmpty(), true);
}

TEST_F(DayRowsTest, StopsAtTheFirstEntryWithoutATime) {
    Add("A", "t: a");
    Add("A", "word");
    Add("A", "t: b");
    Add("B", "t: c");
    Add("C", " blank first");
    Build();
    ExpectRows(kAllDates, ElementsAre(0), true);
    ExpectRows(0, ElementsAre(0), true);
    ExpectRows(1, ElementsAre(3), false);
    ExpectRows(2, IsEmpty(), true);
}

TEST_F(DayRowsTest, AnOldIndexGivesEmptyRowsInsideTheStorage) {
    Add("A", "t: a");
    Add("B", "t: b");
    Add("B", "t: c");
    Build();
    entries.Clear();
    Add("C", "t: d");
    ExpectRows(0, ElementsAre(0), false);
    ExpectRows(1, ElementsAre(1, 2), false);
    ExpectRows(kAllDates, ElementsAre(0), false);
}

TEST_F(DayRowsTest, AnOldIndexStopsOutsideTheStorage) {
    for (int i = 0; i < 2003; ++i)
        Add("A", "t: a");
    Add("B", "t: b");
    Build();
    entries.Clear();  // storage 0 to 2000
    Add("C", "t: c");
    const DayRowsResult rows = DayRows(entries, index, 0);
    EXPECT_EQ(rows.tags.size(), 2001U);
    EXPECT_EQ(rows.tags.back(), 2000);
    EXPECT_TRUE(rows.failed);
    ExpectRows(1, IsEmpty(), true);
    entries.FreeExtraItems();
    ExpectRows(0, ElementsAre(0), true);
}

}  // namespace
}  // namespace ordalyn
