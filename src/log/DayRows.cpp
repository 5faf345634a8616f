#include "log/DayRows.h"

#include <algorithm>
#include <numeric>

namespace ordalyn {

std::vector<std::int32_t> DayRows(const EntryLists& entries, const DayIndex& days, std::int32_t day,
                                  std::int32_t from) {
    std::int32_t first = 0;
    std::int32_t end = entries.EntrySources().ListCount() + 1;
    if (day != kAllDates) {
        if (day < 0 || day >= days.DayCount())
            return {};
        first = days.FirstEntryOf(day);
        end = std::min(end, days.FirstEntryOf(day + 1));
    }
    first = std::max(first, from);
    std::vector<std::int32_t> tags(static_cast<std::size_t>(std::max(end - first, 0)));
    std::iota(tags.begin(), tags.end(), first);
    return tags;
}

}  // namespace ordalyn
