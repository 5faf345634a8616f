#include "log/CalendarDays.h"

#include <algorithm>
#include <string>
#include <utility>

namespace ordalyn {

namespace {

bool SameOwner(const std::weak_ptr<const void>& a, const std::weak_ptr<const void>& b) {
    return !a.owner_before(b) && !b.owner_before(a);
}

// The first day of a log can begin with entries that have no date.
std::string_view DateInRun(const cStringArray& dates, std::int32_t first, std::int32_t end) {
    std::string_view date;
    for (std::int32_t entry = first; entry < end && date.empty(); ++entry)
        date = dates.List(entry);
    return date;
}

}  // namespace

void CalendarDays::Count(const EntryLists& entries, const DayIndex& days) {
    if (!SameOwner(log_, entries.Log()))
        looked_.clear();
    log_ = entries.Log();
    entries_ = entries.EntrySources().ListCount() + 1;
    runs_.clear();
    days_.clear();
    most_ = 0;
    leftOut_ = days.DayCount() == 0 ? entries_ : 0;
    std::unordered_map<std::string, std::optional<Date>> known;  // dates that come back
    for (std::int32_t day = 0; day < days.DayCount(); ++day) {
        const std::int32_t first = days.FirstEntryOf(day);
        const std::int32_t end = std::min(days.FirstEntryOf(day + 1), entries_);
        const std::string_view text = DateInRun(entries.EntryDates(), first, end);
        const auto [found, isNew] = known.try_emplace(std::string(text));
        if (isNew)
            found->second = readDate_(text);
        if (found->second)
            runs_.push_back({*found->second, day, first, end});
        else
            leftOut_ += std::max(end - first, 0);
    }
    std::stable_sort(runs_.begin(), runs_.end(),
                     [](const Run& a, const Run& b) { return a.date < b.date; });
    for (std::size_t i = 0; i < runs_.size(); ++i) {
        const Run& run = runs_[i];
        if (days_.empty() || days_.back().date != run.date)
            days_.push_back({run.date, 0, run.inLog, 0, static_cast<std::int32_t>(i)});
        days_.back().entries += std::max(run.end - run.first, 0);
        ++days_.back().runs;
        most_ = std::max(most_, days_.back().entries);
    }
}

const CalendarDays::Day* CalendarDays::Find(Date date) const {
    const auto found =
        std::lower_bound(days_.begin(), days_.end(), date,
                         [](const Day& day, Date wanted) { return day.date < wanted; });
    return found != days_.end() && found->date == date ? &*found : nullptr;
}

std::int32_t CalendarDays::FailedOn(const Day& day) {
    std::int32_t failed = 0;
    for (std::int32_t i = 0; i < day.runs; ++i)
        failed += FailedIn(runs_[static_cast<std::size_t>(day.firstRun + i)]);
    return failed;
}

// What is appended lengthens the last run, and may replace the log's last entry, whose line was not
// complete: that one is looked at each time.
std::int32_t CalendarDays::FailedIn(const Run& run) {
    Looked& looked = looked_.try_emplace(run.first, Looked{run.first, 0}).first->second;
    const std::int32_t settled = std::min(run.end, entries_ - 1);
    for (; looked.end < settled; ++looked.end)
        looked.failed += hasFailed_(looked.end) ? 1 : 0;
    return looked.failed + (settled < run.end && hasFailed_(settled) ? 1 : 0);
}

}  // namespace ordalyn
