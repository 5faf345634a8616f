// Rows are numbered from 0, in the order of their entries.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "toolkit/RowRanges.h"

namespace ordalyn {

inline constexpr int kNoRow = -1;

// The row that shows the entry, or kNoRow. `entries` are those of the rows, ascending.
inline int RowOfEntry(const std::vector<std::int32_t>& entries, std::int32_t entry) {
    const auto found = std::lower_bound(entries.begin(), entries.end(), entry);
    return found == entries.end() || *found != entry ? kNoRow
                                                     : static_cast<int>(found - entries.begin());
}

// Which rows show the entries of these rows when the list shows `after` instead of `before`; both
// ascending.
inline toolkit::RowRanges RowsOfEntries(const std::vector<std::int32_t>& before,
                                        const toolkit::RowRanges& rows,
                                        const std::vector<std::int32_t>& after) {
    toolkit::RowRanges kept;
    for (const toolkit::RowRanges::Range& range : rows.Ranges()) {
        const auto from = before.begin() + range.first;
        const auto end = before.begin() + range.end;
        auto next = std::lower_bound(after.begin(), after.end(), *from);
        for (auto entry = from; entry != end && next != after.end(); ++entry) {
            if (*entry > *next)
                next = std::lower_bound(next, after.end(), *entry);
            if (next == after.end() || *next != *entry)
                continue;
            const int row = static_cast<int>(next++ - after.begin());
            kept.Add(row, row + 1);
        }
    }
    return kept;
}

}  // namespace ordalyn
