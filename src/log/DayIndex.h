// DayIndex: where each day of the log begins. A day is a run of entries whose dates are equal,
// letter case ignored; entries without a date belong to the day in which they stand, those before
// the first dated entry to the first day. A date that comes back later begins a new day.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "lists/cLongArray.h"
#include "lists/cStringArray.h"

namespace ordalyn {

// Stands for all days where a day's number is asked for.
inline constexpr std::int32_t kAllDates = -1;
// No day: an entry that is in none of them.
inline constexpr std::int32_t kNoDay = -1;

class DayIndex {
  public:
    DayIndex();

    // Rebuilds the index and returns the date of each day, in order, as it stands in the log.
    // When no entry has a date there are no days, DayStarts is empty too, and FirstDayItem keeps
    // its value.
    std::vector<std::string> Build(const cStringArray& dates);
    // The same, when the entries before this one are those that the index was built from: only
    // those from it on are looked at.
    std::vector<std::string> Extend(const cStringArray& dates, std::int32_t firstNew);

    // Element k is the first entry of day k; one more element behind the last day holds the number
    // of entries. Element 0 is always 0, so the first day's first entry can be one without a date.
    const cLongArray& DayStarts() const { return starts_; }
    // 1 when there is more than one day, and "All dates" therefore stands before the days in the
    // list of dates; else 0. Item j of that list is day j - FirstDayItem.
    std::int32_t FirstDayItem() const { return firstDayItem_; }
    // How many days DayStarts holds, its end marker left out.
    std::int32_t DayCount() const { return starts_.ListCount() < 0 ? 0 : starts_.ListCount(); }
    // The first entry of a day; for the number behind the last day, the number of entries. Throws
    // SubscriptOutOfRange and TypeMismatch for a day that is not indexed.
    std::int32_t FirstEntryOf(std::int32_t day) const { return starts_.List(day); }
    // The day whose entries this one is among, or kNoDay.
    std::int32_t DayOf(std::int32_t entry) const;
    // The date field of the day's first entry: empty for a first day that begins with comments.
    // Throws SubscriptOutOfRange and TypeMismatch for a day that is not indexed or no longer in the
    // lists.
    std::string_view DateOfDay(std::int32_t day, const cStringArray& dates) const {
        return dates.List(starts_.List(day));
    }

  private:
    void AddDays(const cStringArray& dates, std::int32_t first, std::vector<std::string>& days);

    cLongArray starts_;
    std::int32_t firstDayItem_ = 0;
};

}  // namespace ordalyn
