// Where the things come from that had a path at some time: found by going through the log backward
// and following each move to the name from which it came.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "history/EntryOrder.h"
#include "log/EntryLists.h"
#include "log/Operation.h"

namespace ordalyn {

// A place where a thing of interest begins.
struct Origin {
    std::int32_t entry;  // the thing is there when this entry has not happened yet, or by it
    std::string path;
    enum class Beginning {
        WithLog,     // it may have been there before the log began
        AfterEmpty,  // something was there before and went away; nothing says how this one came
        ByEntry      // the entry brings it
    } beginning;
};

struct Origins {
    // Everything that is to be followed forward besides the path itself, in the order of time.
    std::vector<Origin> origins;
    // No entry before this one has to do with any of it; the number of entries when none has.
    std::int32_t first = 0;
};
// Entries are given by their positions.
Origins FindOrigins(const EntryLists& entries, const EntryOrder& order,
                    const OperationReader& reader, std::string_view path);

}  // namespace ordalyn
