#include "log/DayIndex.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Errors.h"

namespace ordalyn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

void Fill(cStringArray& dates, const std::vector<std::string>& values) {
    dates.Clear();
    for (const std::string& value : values)
        dates.AddItem(value);
}

std::vector<std::int32_t> Items(const cLongArray& list) {
    std::vector<std::int32_t> items;
    for (std::int32_t i = 0; i <= list.ListCount(); ++i)
        items.push_back(list.List(i));
    return items;
}

TEST(DayIndex, OneDateIsOneDay) {
    cStringArray dates;
    Fill(dates, {"A", "A", "A"});
    DayIndex index;
    EXPECT_THAT(index.Build(dates), ElementsAre("A"));
    EXPECT_THAT(Items(index.DayStarts()), ElementsAre(0, 3));
    EXPECT_EQ(index.FirstDayItem(), 0);
    EXPECT_EQ(index.DayCount(), 1);
}

TEST(DayIndex, ADateThatComesBackIsListedAgain) {
    cStringArray dates;
    Fill(dates, {"A", "A", "B", "A"});
    DayIndex index;
    EXPECT_THAT(index.Build(dates), ElementsAre("A", "B", "A"));
    EXPECT_THAT(Items(index.DayStarts()), ElementsAre(0, 2, 3, 4));
    EXPECT_EQ(index.FirstDayItem(), 1);
    EXPECT_EQ(index.DayCount(), 3);
}

TEST(DayIndex, LeadingCommentsBelongToTheFirstDay) {
    cStringArray dates;
    Fill(dates, {"", "", "A", "A", "B"});
    DayIndex index;
    EXPECT_THAT(index.Build(dates), ElementsAre("A", "B"));
    EXPECT_THAT(Items(index.DayStarts()), ElementsAre(0, 4, 5));
    EXPECT_EQ(index.DateOfDay(0, dates), "") << "the first entry of the day is a comment";
    EXPECT_EQ(index.DateOfDay(1, dates), "B");
}

TEST(DayIndex, CommentsBetweenBelongToTheDayBefore) {
    cStringArray dates;
    Fill(dates, {"A", "", "A", "", "B", ""});
    DayIndex index;
    EXPECT_THAT(index.Build(dates), ElementsAre("A", "B"));
    EXPECT_THAT(Items(index.DayStarts()), ElementsAre(0, 4, 6));
}

TEST(DayIndex, DatesAreComparedWithoutLetterCase) {
    cStringArray dates;
    Fill(dates, {"1 Mar", "1 MAR", "1 m\xC3\xA4r", "1 M\xC3\x84R", "1 mar"});
    DayIndex index;
    EXPECT_THAT(index.Build(dates), ElementsAre("1 Mar", "1 m\xC3\xA4r", "1 mar"));
    EXPECT_THAT(Items(index.DayStarts()), ElementsAre(0, 2, 4, 5));
}

TEST(DayIndex, TheSpareSlotsAreGivenBack) {
    cStringArray dates;
    Fill(dates, {"A", "B"});
    DayIndex index;
    index.Build(dates);
    EXPECT_EQ(index.DayStarts().List(2), 2);
    EXPECT_THROW(index.DayStarts().List(3), SubscriptOutOfRange);
}

TEST(DayIndex, WithoutADateThereIsNoDayAndTheRestStays) {
    cStringArray dates;
    Fill(dates, {"A", "B"});
    DayIndex index;
    index.Build(dates);
    Fill(dates, {"", ""});
    EXPECT_THAT(index.Build(dates), IsEmpty());
    EXPECT_EQ(index.DayStarts().ListCount(), -1);
    EXPECT_EQ(index.FirstDayItem(), 1);
    EXPECT_EQ(index.DayCount(), 0);
    EXPECT_THROW(index.DateOfDay(0, dates), TypeMismatch);
    EXPECT_THROW(index.DayStarts().List(366), SubscriptOutOfRange) << "0 to the step of 365";
    EXPECT_THROW(index.DayStarts().List(365), TypeMismatch);
}

TEST(DayIndex, AnEmptyLogHasNoDays) {
    const cStringArray dates;
    DayIndex index;
    EXPECT_THAT(index.Build(dates), IsEmpty());
    EXPECT_EQ(index.FirstDayItem(), 0);
    EXPECT_EQ(index.DayCount(), 0);
}

TEST(DayIndex, BuildingAgainStartsAfresh) {
    cStringArray dates;
    Fill(dates, {"A", "B", "C"});
    DayIndex index;
    index.Build(dates);
    Fill(dates, {"D"});
    EXPECT_THAT(index.Build(dates), ElementsAre("D"));
    EXPECT_THAT(Items(index.DayStarts()), ElementsAre(0, 1));
    EXPECT_EQ(index.FirstDayItem(), 0);
}

// The index of all dates at once, and that of those before `firstNew`, in which a last line without
// an end may have been another one, extended by the others.
void ExpectSameWhenExtended(const std::vector<std::string>& values, std::size_t firstNew,
                            const std::string& lastBefore) {
    cStringArray dates;
    Fill(dates, values);
    DayIndex whole;
    const std::vector<std::string> days = whole.Build(dates);
    cStringArray before;
    Fill(before, {values.begin(), values.begin() + static_cast<std::ptrdiff_t>(firstNew)});
    if (lastBefore != "-")
        before.AddItem(lastBefore);
    DayIndex index;
    index.Build(before);
    SCOPED_TRACE("from " + std::to_string(firstNew) + ", before " + lastBefore);
    EXPECT_EQ(index.Extend(dates, static_cast<std::int32_t>(firstNew)), days);
    EXPECT_EQ(Items(index.DayStarts()), Items(whole.DayStarts()));
    EXPECT_EQ(index.FirstDayItem(), whole.FirstDayItem());
}

TEST(DayIndex, ExtendedIsWhatIsBuiltAtOnce) {
    for (const std::vector<std::string>& values :
         {std::vector<std::string>{"A", "A", "B", "", "b", "A", "A"},
          {"", "", "A", "", "B", "B"},
          {"", ""},
          {"A"},
          {"A", "a", ""}}) {
        for (std::size_t firstNew = 0; firstNew <= values.size(); ++firstNew) {
            for (const char* const lastBefore : {"-", "", "A", "B", "C"})
                ExpectSameWhenExtended(values, firstNew, lastBefore);
        }
    }
}

TEST(DayIndex, ExtendingLooksAtNothingThatIsNotNew) {
    cStringArray dates;
    Fill(dates, {"A", "A", "B", "B"});
    DayIndex index;
    index.Build(dates);
    Fill(dates, {"A", "X", "B", "Y", "B", "C"});
    EXPECT_THAT(index.Extend(dates, 4), ElementsAre("A", "B", "C"));
    EXPECT_THAT(Items(index.DayStarts()), ElementsAre(0, 2, 5, 6));
}

TEST(DayIndex, ADayThatIsNotIndexedOrNotInTheListsIsAnError) {
    cStringArray dates;
    Fill(dates, {"A", "A", "A", "B"});
    DayIndex index;
    index.Build(dates);
    EXPECT_THROW(index.DateOfDay(-2, dates), SubscriptOutOfRange);
    EXPECT_THROW(index.DateOfDay(3, dates), SubscriptOutOfRange);
    Fill(dates, {"C"});
    EXPECT_THROW(index.DateOfDay(1, dates), SubscriptOutOfRange);
}

TEST(DayIndex, ManyDays) {
    cStringArray dates;
    dates.InitialCount(2000);
    for (int i = 0; i < 5000; ++i)
        dates.AddItem("day " + std::to_string(i / 2));
    DayIndex index;
    EXPECT_EQ(index.Build(dates).size(), 2500U);
    for (std::int32_t day = 0; day <= 2500; ++day)
        ASSERT_EQ(index.DayStarts().List(day), day * 2);
}

}  // namespace
}  // namespace ordalyn
