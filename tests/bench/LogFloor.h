// LogFloor: the least that reading a log can cost. What the program takes is given as a multiple of
// it, so that the figures mean something on any machine.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Platform.h"

namespace ordalyn::bench {

// Where a line's end, first blank and first arrow behind it stand in the file.
struct LineOffsets {
    std::uint32_t end, blank, arrow;
};

// One pass over the file in pieces of 1 MiB that stores three offsets for each line and does
// nothing else: no counting pass, no decoding, no copying of text.
void FindLines(platform::Files& files, const std::string& path, std::vector<LineOffsets>& lines);

}  // namespace ordalyn::bench
