#include "toolkit/RowRanges.h"

#include <gmock/gmock.h>

#include <bitset>
#include <random>

namespace ordalyn::toolkit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Range = RowRanges::Range;

TEST(RowRangesTest, BeginsWithoutRows) {
    const RowRanges none;
    EXPECT_TRUE(none.Empty());
    EXPECT_EQ(none.Count(), 0);
    EXPECT_EQ(none.From(0), -1);
    EXPECT_EQ(none.Nearest(3), -1);
    EXPECT_FALSE(none.Contains(0));
    EXPECT_EQ(RowRanges(4, 4), none);
    EXPECT_EQ(RowRanges(0, -1), none);
}

TEST(RowRangesTest, RangesThatTouchBecomeOne) {
    RowRanges rows(2, 4);
    rows.Add(8, 9);
    rows.Add(4, 5);
    EXPECT_THAT(rows.Ranges(), ElementsAre(Range{2, 5}, Range{8, 9}));
    rows.Add(5, 8);
    EXPECT_THAT(rows.Ranges(), ElementsAre(Range{2, 9}));
}

TEST(RowRangesTest, TheMiddleCanBeTakenOut) {
    RowRanges rows(0, 1'000'000);
    rows.Remove(10, 20);
    EXPECT_THAT(rows.Ranges(), ElementsAre(Range{0, 10}, Range{20, 1'000'000}));
    EXPECT_EQ(rows.Count(), 999'990);
    rows.Remove(0, 1'000'000);
    EXPECT_THAT(rows.Ranges(), IsEmpty());
}

TEST(RowRangesTest, TheNearestRowIsTheOneBelowWhenTwoAre) {
    RowRanges rows(2, 4);
    rows.Add(7, 9);
    EXPECT_EQ(rows.Nearest(0), 2);
    EXPECT_EQ(rows.Nearest(3), 3);
    EXPECT_EQ(rows.Nearest(4), 3);
    EXPECT_EQ(rows.Nearest(5), 7);
    EXPECT_EQ(rows.Nearest(6), 7);
    EXPECT_EQ(rows.Nearest(20), 8);
}

TEST(RowRangesTest, AreWhatASetOfRowsWouldBe) {
    constexpr int kRows = 24;
    std::mt19937 random(7);
    RowRanges rows;
    std::bitset<kRows> model;
    for (int step = 0; step < 2000; ++step) {
        const int first = static_cast<int>(random() % kRows);
        const int end =
            first + static_cast<int>(random() % static_cast<unsigned>(kRows - first + 1));
        const bool add = random() % 2 == 0;
        if (add)
            rows.Add(first, end);
        else
            rows.Remove(first, end);
        for (int row = first; row < end; ++row)
            model[static_cast<std::size_t>(row)] = add;
        int next = -1;
        for (int row = kRows - 1; row >= 0; --row) {
            ASSERT_EQ(rows.Contains(row), model[static_cast<std::size_t>(row)]) << step;
            next = model[static_cast<std::size_t>(row)] ? row : next;
            ASSERT_EQ(rows.From(row), next) << step;
        }
        ASSERT_EQ(rows.Count(), static_cast<int>(model.count()));
        for (std::size_t i = 1; i < rows.Ranges().size(); ++i)
            ASSERT_LT(rows.Ranges()[i - 1].end, rows.Ranges()[i].first);
    }
}

}  // namespace
}  // namespace ordalyn::toolkit
