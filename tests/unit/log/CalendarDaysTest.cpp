#include "log/CalendarDays.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "base/Text.h"

namespace ordalyn {
namespace {

using std::chrono::sys_days;
using std::chrono::year;
using testing::ElementsAre;
using testing::IsEmpty;

sys_days Day(int dayOfMarch) {
    return sys_days(year(2024) / 3 / dayOfMarch);
}

// The dates of these logs are days of March 2024 ("5"), and all others nothing.
std::optional<sys_days> ReadDay(std::string_view text) {
    int day = 0;
    for (const char c : text)
        day = c >= '0' && c <= '9' ? day * 10 + c - '0' : 99;
    return day >= 1 && day <= 31 ? std::optional(Day(day)) : std::nullopt;
}

class CalendarDaysTest : public testing::Test {
  protected:
    // Entries of the dates; those with "!" behind the date have failed.
    void Add(const std::vector<std::string>& dates) {
        for (const std::string& date : dates) {
            const bool failed = date.ends_with('!');
            entries.Add({date.substr(0, date.size() - (failed ? 1 : 0)), failed ? "!" : "", ""});
        }
        Count();
    }
    void Count() {
        index.Build(entries.EntryDates());
        calendar.Count(entries, index);
    }
    // Day of March, entries, failed, place in the log.
    std::vector<std::vector<int>> All() {
        std::vector<std::vector<int>> all;
        for (const CalendarDays::Day& day : calendar.Days())
            all.push_back({static_cast<int>((day.date - Day(0)).count()), day.entries,
                           calendar.FailedOn(day), day.inLog});
        return all;
    }
    int Looks() { return std::exchange(looks, 0); }

    EntryLists entries;
    DayIndex index;
    int looks = 0;  // at entries
    int reads = 0;  // of dates
    CalendarDays calendar{[this](std::string_view text) {
                              ++reads;
                              return ReadDay(text);
                          },
                          [this](std::int32_t entry) {
                              ++looks;
                              return entries.EntrySources().List(entry) == "!";
                          }};
};

TEST_F(CalendarDaysTest, NothingReadIsNoDay) {
    Count();
    EXPECT_THAT(calendar.Days(), IsEmpty());
    EXPECT_EQ(calendar.MostEntriesOfADay(), 0);
    EXPECT_EQ(calendar.LeftOut(), 0);
    EXPECT_EQ(calendar.Find(Day(1)), nullptr);
}

TEST_F(CalendarDaysTest, EachDayHasItsEntriesAndThoseThatFailed) {
    Add({"1", "1!", "1", "2", "4!", "4!"});
    EXPECT_THAT(All(), ElementsAre(ElementsAre(1, 3, 1, 0), ElementsAre(2, 1, 0, 1),
                                   ElementsAre(4, 2, 2, 2)));
    EXPECT_EQ(calendar.MostEntriesOfADay(), 3);
    EXPECT_EQ(calendar.Find(Day(3)), nullptr);
    ASSERT_NE(calendar.Find(Day(4)), nullptr);
    EXPECT_EQ(calendar.Find(Day(4))->entries, 2);
}

TEST_F(CalendarDaysTest, ADateThatComesBackIsTheSameDayAndItsFirstPlaceCounts) {
    Add({"5", "5!", "3", "5!", "5", "3", "4"});
    EXPECT_THAT(All(), ElementsAre(ElementsAre(3, 2, 0, 1), ElementsAre(4, 1, 0, 4),
                                   ElementsAre(5, 4, 2, 0)));
    EXPECT_EQ(calendar.MostEntriesOfADay(), 4);
}

TEST_F(CalendarDaysTest, EachDateIsReadOnce) {
    Add({"5", "3", "5", "3", "5", "x", "5", "x"});
    EXPECT_EQ(reads, 3);
}

TEST_F(CalendarDaysTest, EntriesWithoutADateBelongToTheDayInWhichTheyStand) {
    Add({"", "", "7", "", "8"});
    EXPECT_THAT(All(), ElementsAre(ElementsAre(7, 4, 0, 0), ElementsAre(8, 1, 0, 1)));
}

TEST_F(CalendarDaysTest, DaysThatCannotBeToldAreLeftOutAndCounted) {
    Add({"x", "x!", "7", "99", "8", "x"});
    EXPECT_THAT(All(), ElementsAre(ElementsAre(7, 1, 0, 1), ElementsAre(8, 1, 0, 3)));
    EXPECT_EQ(calendar.LeftOut(), 4);
}

TEST_F(CalendarDaysTest, WithoutAnyDateAllEntriesAreLeftOut) {
    Add({"", "", ""});
    EXPECT_THAT(calendar.Days(), IsEmpty());
    EXPECT_EQ(calendar.LeftOut(), 3);
}

TEST_F(CalendarDaysTest, NoEntryIsLookedAtUntilItsDayIsAskedFor) {
    Add({"1", "1", "2", "2", "2"});
    EXPECT_EQ(Looks(), 0);
    EXPECT_EQ(calendar.FailedOn(*calendar.Find(Day(1))), 0);
    EXPECT_EQ(Looks(), 2);
    EXPECT_EQ(calendar.FailedOn(*calendar.Find(Day(1))), 0);
    EXPECT_EQ(Looks(), 0);
}

TEST_F(CalendarDaysTest, EntriesAreLookedAtAsManyAsOneLikes) {
    Add({"1", "1!", "2!", "1", "1!"});
    const CalendarDays::Day& day = *calendar.Find(Day(1));
    std::int32_t most = 1;
    EXPECT_FALSE(calendar.LookAt(day, most));
    EXPECT_EQ(most, 0);
    EXPECT_EQ(calendar.FailedSoFar(day), 0);
    most = 2;
    EXPECT_FALSE(calendar.LookAt(day, most));
    EXPECT_EQ(calendar.FailedSoFar(day), 1);
    EXPECT_EQ(Looks(), 3);
    most = 10;
    EXPECT_TRUE(calendar.LookAt(day, most));
    EXPECT_EQ(most, 9);
    EXPECT_EQ(calendar.FailedSoFar(day), 2);
    EXPECT_EQ(calendar.FailedOn(day), 2);
    EXPECT_EQ(Looks(), 1);
}

TEST_F(CalendarDaysTest, EachDayOfTheLogIsOneOfTheCalendar) {
    Add({"5", "x", "3", "5"});
    EXPECT_EQ(calendar.DateOf(0), Day(5));
    EXPECT_EQ(calendar.DateOf(1), std::nullopt);
    EXPECT_EQ(calendar.DateOf(2), Day(3));
    EXPECT_EQ(calendar.DateOf(3), Day(5));
    EXPECT_EQ(calendar.DateOf(kAllDates), std::nullopt);
    EXPECT_EQ(calendar.DateOf(4), std::nullopt);
}

TEST_F(CalendarDaysTest, WhatIsAppendedIsAllThatIsLookedAt) {
    Add(std::vector<std::string>(1000, "1"));
    All();
    Looks();
    Add({"1!", "1", "2!"});
    EXPECT_THAT(All(), ElementsAre(ElementsAre(1, 1002, 1, 0), ElementsAre(2, 1, 1, 1)));
    EXPECT_LE(Looks(), 5);
    Add({"2", "1!"});
    EXPECT_THAT(All(), ElementsAre(ElementsAre(1, 1003, 2, 0), ElementsAre(2, 2, 1, 1)));
}

TEST_F(CalendarDaysTest, TheLastEntryCanTurnOutAsAnotherOne) {
    Add({"1", "1"});
    EXPECT_THAT(All(), ElementsAre(ElementsAre(1, 2, 0, 0)));
    entries.ReplaceLast({"1", "!", ""});
    Count();
    EXPECT_THAT(All(), ElementsAre(ElementsAre(1, 2, 1, 0)));
    Add({"1"});
    EXPECT_THAT(All(), ElementsAre(ElementsAre(1, 3, 1, 0)));
}

TEST_F(CalendarDaysTest, AnotherLogIsCountedFromItsBeginning) {
    Add({"1!", "1!", "1", "2"});
    All();
    EntryLists other;
    for (int i = 0; i < 3; ++i)
        other.Add({"1", "", ""});
    other.Add({"2", "!", ""});
    entries.Swap(other);
    Count();
    EXPECT_THAT(All(), ElementsAre(ElementsAre(1, 3, 0, 0), ElementsAre(2, 1, 1, 1)));
    entries.Clear();
    Add({"1!", "1", "2"});
    EXPECT_THAT(All(), ElementsAre(ElementsAre(1, 2, 1, 0), ElementsAre(2, 1, 0, 1)));
}

// The index can be older than the lists: lines are read while messages are handled.
TEST_F(CalendarDaysTest, ListsThatAreShorterThanTheIndexAreNoError) {
    Add({"1", "1", "2", "2"});
    entries.Clear();
    entries.Add({"1", "!", ""});
    calendar.Count(entries, index);
    EXPECT_EQ(calendar.LeftOut(), 0);
    EXPECT_THAT(All(), ElementsAre(ElementsAre(1, 1, 1, 0)));
}

TEST_F(CalendarDaysTest, RandomLogsGiveWhatAPlainCountGives) {
    std::mt19937 random(7);
    const auto below = [&](unsigned n) { return static_cast<int>(random() % n); };
    for (int round = 0; round < 60; ++round) {
        if (below(4) == 0)
            entries.Clear();
        std::vector<std::string> added;
        for (int i = below(30); i > 0; --i) {
            const std::string date = below(8) == 0 ? "" : std::to_string(below(5) + 27);
            added.push_back(below(3) == 0 ? date + "!" : date);
        }
        Add(added);
        std::map<sys_days, std::pair<int, int>> expected;
        int leftOut = 0;
        std::string date;
        for (std::int32_t i = 0; i <= entries.EntryDates().ListCount() && date.empty(); ++i)
            date = entries.EntryDates().List(i);
        for (std::int32_t i = 0; i <= entries.EntryDates().ListCount(); ++i) {
            if (const std::string_view own = entries.EntryDates().List(i); !own.empty())
                date = own;
            const auto day = ReadDay(date);
            if (!day) {
                ++leftOut;
                continue;
            }
            ++expected[*day].first;
            expected[*day].second += entries.EntrySources().List(i) == "!" ? 1 : 0;
        }
        EXPECT_EQ(calendar.LeftOut(), leftOut);
        ASSERT_EQ(calendar.Days().size(), expected.size());
        for (const CalendarDays::Day& day : calendar.Days()) {
            EXPECT_EQ(day.entries, expected[day.date].first);
            EXPECT_EQ(calendar.FailedOn(day), expected[day.date].second);
        }
    }
}

}  // namespace
}  // namespace ordalyn
