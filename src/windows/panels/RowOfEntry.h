// Rows are numbered from 0, in the order of their entries.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace ordalyn {

inline constexpr int kNoRow = -1;

// The row that shows the entry, or kNoRow. `entries` are those of the rows, ascending.
inline int RowOfEntry(const std::vector<std::int32_t>& entries, std::int32_t entry) {
    const auto found = std::lower_bound(entries.begin(), entries.end(), entry);
    return found == entries.end() || *found != entry ? kNoRow
                                                     : static_cast<int>(found - entries.begin());
}

}  // namespace ordalyn
