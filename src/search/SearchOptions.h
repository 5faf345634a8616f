// What a search looks for and where, as the find dialog shows it and the next search takes it.
#pragma once

#include <cstdint>
#include <string>

namespace ordalyn {

struct SearchOptions {
    std::string text;  // empty: there is nothing to search for
    // The place of the text in the list of earlier texts, 0-based; -1 when it is none of them.
    std::int32_t historyItem = -1;
    std::int32_t ColumnNo = 0;  // 0: the sources are searched, any other value: the targets
    bool wholeWord = false;
    bool selectedDateOnly = false;
};

}  // namespace ordalyn
