// LogGenerator: a log such as the file manager writes over two years, the same for the same seed.
#pragma once

#include <cstdint>
#include <iosfwd>

namespace ordalyn::bench {

// Writes `lines` lines of about 95 bytes: UTF-8 with a byte order mark, CR LF, some 700 days,
// sessions between start and shutdown lines, errors, and names in other scripts.
void WriteLog(std::ostream& out, int lines, std::uint32_t seed);

}  // namespace ordalyn::bench
