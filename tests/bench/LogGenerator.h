// LogGenerator: a log such as the file manager writes over two years, the same for the same seed.
#pragma once

#include <cstdint>
#include <iosfwd>

namespace ordalyn::bench {

// Writes `lines` lines of about 95 bytes: UTF-8 with a byte order mark, CR LF, some 700 days,
// sessions between start and shutdown lines, errors, and some names beyond ASCII.
void WriteLog(std::ostream& out, int lines, std::uint32_t seed);

// The same with folders and names in another script only, of 120 to 190 bytes a line.
enum class Script { Cyrillic, Greek, Chinese, Thai };
void WriteLog(std::ostream& out, int lines, std::uint32_t seed, Script script);

}  // namespace ordalyn::bench
