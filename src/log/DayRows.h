// DayRows: which entries are the rows of a day.
#pragma once

#include <cstdint>
#include <vector>

#include "log/DayIndex.h"
#include "log/EntryLists.h"

namespace ordalyn {

// The rows of a day, or of all days for kAllDates: entry indices, ascending. A day that is not in
// the index has none, and every row is one of an entry that the lists hold. Rows of entries in
// front of `from` are left out.
std::vector<std::int32_t> DayRows(const EntryLists& entries, const DayIndex& days, std::int32_t day,
                                  std::int32_t from = 0);

}  // namespace ordalyn
