// DayRows: which entries are the rows of a day.
#pragma once

#include <cstdint>
#include <vector>

#include "log/DayIndex.h"
#include "log/EntryLists.h"

namespace ordalyn {

struct DayRowsResult {
    std::vector<std::int32_t> tags;  // entry indices, ascending
    // The fill stopped before its end: at an entry whose time cannot be taken from its source, at
    // one outside the storage of the lists, or at once because the day is not in the index.
    bool failed;
};

// The rows of a day, or of all days for kAllDates. Never throws for what the lists hold. An index
// that is older than the lists can name entries beyond the last one: slots of the storage give
// empty rows.
DayRowsResult DayRows(const EntryLists& entries, const DayIndex& days, std::int32_t day);

}  // namespace ordalyn
