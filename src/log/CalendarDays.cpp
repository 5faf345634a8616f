#include "log/CalendarDays.h"

#include <algorithm>
#include <limits>
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
    ForgetTail();
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

std::optional<CalendarDays::Date> CalendarDays::DateOf(std::int32_t dayInLog) const {
    const auto found = std::find_if(runs_.begin(), runs_.end(),
                                    [=](const Run& run) { return run.inLog == dayInLog; });
    return found != runs_.end() ? std::optional(found->date) : std::nullopt;
}

bool CalendarDays::LookAt(const Day& day, std::int32_t& most) {
    for (std::int32_t i = 0; i < day.runs; ++i) {
        if (!LookAtRun(RunOf(day, i), most))
            return false;
    }
    return true;
}

// What is appended lengthens the last run: the rest of it is known.
bool CalendarDays::LookAtRun(const Run& run, std::int32_t& most) {
    Looked& looked = looked_.try_emplace(run.first, Looked{run.first, 0}).first->second;
    for (; looked.end < run.end && most > 0; ++looked.end, --most) {
        const bool failed = hasFailed_(looked.end);
        looked.failed += failed ? 1 : 0;
        if (looked.end == entries_ - 1)
            tail_ = {run.first, failed};
    }
    return looked.end >= run.end;
}

// The log's last entry may be replaced, when its line was not complete.
void CalendarDays::ForgetTail() {
    if (!tail_)
        return;
    Looked& looked = looked_[tail_->run];
    --looked.end;
    looked.failed -= tail_->failed ? 1 : 0;
    tail_.reset();
}

std::int32_t CalendarDays::FailedSoFar(const Day& day) const {
    std::int32_t failed = 0;
    for (std::int32_t i = 0; i < day.runs; ++i) {
        const auto found = looked_.find(RunOf(day, i).first);
        failed += found != looked_.end() ? found->second.failed : 0;
    }
    return failed;
}

std::int32_t CalendarDays::FailedOn(const Day& day) {
    std::int32_t most = std::numeric_limits<std::int32_t>::max();
    LookAt(day, most);
    return FailedSoFar(day);
}

}  // namespace ordalyn
