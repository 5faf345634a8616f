// PassedOverLines: lines that no log has, which a read has left out instead of ending at the first.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ordalyn {

// Of one read, whether of one file or of several.
struct PassedOverLines {
    std::int32_t count = 0;
    // Where the first one stands: its number in its file, from 1, blank lines counted.
    std::string firstFile;
    std::int32_t firstLine = 0;

    void Note(std::string_view file, std::int32_t line) {
        if (count++ == 0) {
            firstFile = file;
            firstLine = line;
        }
    }
};

}  // namespace ordalyn
