#include "log/DayRows.h"

#include <algorithm>
#include <numeric>

#include "base/Attempt.h"

namespace ordalyn {

DayRowsResult DayRows(const EntryLists& entries, const DayIndex& days, std::int32_t day) {
    std::int32_t first = 0;
    std::int32_t end = entries.EntrySources().ListCount() + 1;
    if (day != kAllDates) {
        const bool indexed = Attempt([&] {
            first = days.FirstEntryOf(day);
            end = days.FirstEntryOf(day + 1);
        });
        if (!indexed)
            return {{}, true};
    }
    std::int32_t stop = std::min(end, entries.EntrySources().UpperIndex() + 1);
    const std::vector<std::int32_t>& without = entries.EntriesWithoutTime();
    const auto failing = std::lower_bound(without.begin(), without.end(), first);
    if (failing != without.end())
        stop = std::min(stop, *failing);
    DayRowsResult rows{{}, stop < end};
    if (first < stop) {
        rows.tags.resize(static_cast<std::size_t>(stop - first));
        std::iota(rows.tags.begin(), rows.tags.end(), first);
    }
    return rows;
}

}  // namespace ordalyn
