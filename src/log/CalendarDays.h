// CalendarDays: how busy each day of the calendar was, and where something failed. A date that
// comes back later in the log, because the log holds several files or a clock was set back, is one
// day of the calendar all the same.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "log/DayIndex.h"
#include "log/EntryLists.h"

namespace ordalyn {

class CalendarDays {
  public:
    using Date = std::chrono::sys_days;
    // What a date field means; nothing when it cannot be told.
    using ReadDate = std::function<std::optional<Date>(std::string_view text)>;
    // Whether the entry says that its operation failed.
    using HasFailed = std::function<bool(std::int32_t entry)>;

    struct Day {
        Date date;
        std::int32_t entries = 0;
        std::int32_t inLog = kNoDay;  // the first of the log's days that have this date
        std::int32_t runs = 0;        // how many they are
        std::int32_t firstRun = 0;
    };

    CalendarDays(ReadDate readDate, HasFailed hasFailed)
        : readDate_(std::move(readDate)), hasFailed_(std::move(hasFailed)) {}

    // Counts the entries of all days anew. Takes a look at each day of the log, at no entry.
    void Count(const EntryLists& entries, const DayIndex& days);

    // The days that have entries, by date.
    const std::vector<Day>& Days() const { return days_; }
    const Day* Find(Date date) const;  // null when the day has no entries
    std::int32_t MostEntriesOfADay() const { return most_; }
    // How many entries are left out because nobody can tell their day.
    std::int32_t LeftOut() const { return leftOut_; }
    // The day of the calendar that one of the log's days is.
    std::optional<Date> DateOf(std::int32_t dayInLog) const;

    // Looks which entries of the day failed, at no more than `most` of them, which is lowered by
    // what was looked at; returns whether that was all. Each is looked at once, however often lines
    // are appended to the log and counted.
    bool LookAt(const Day& day, std::int32_t& most);
    // How many entries of the day failed, of those that have been looked at.
    std::int32_t FailedSoFar(const Day& day) const;
    // Looks at what has not been looked at of the day.
    std::int32_t FailedOn(const Day& day);

  private:
    struct Run {
        Date date;
        std::int32_t inLog, first, end;
    };
    struct Looked {
        std::int32_t end = 0;
        std::int32_t failed = 0;
    };
    // A last entry that was looked at, by the first one of its run.
    struct Tail {
        std::int32_t run;
        bool failed;
    };
    const Run& RunOf(const Day& day, std::int32_t number) const {
        return runs_[static_cast<std::size_t>(day.firstRun) + static_cast<std::size_t>(number)];
    }
    void ForgetTail();
    bool LookAtRun(const Run& run, std::int32_t& most);

    ReadDate readDate_;
    HasFailed hasFailed_;
    std::vector<Run> runs_;  // by date, those of one date in the order of the log
    std::vector<Day> days_;
    std::int32_t most_ = 0;
    std::int32_t leftOut_ = 0;
    std::int32_t entries_ = 0;
    std::weak_ptr<const void> log_;
    std::unordered_map<std::int32_t, Looked> looked_;  // by a run's first entry
    std::optional<Tail> tail_;
};

}  // namespace ordalyn
