// Texts that do not fit where they are shown. What tells one path from the next is its end: so the
// middle is left out, not the end.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace ordalyn::toolkit {

// How wide a text is, in the unit of the width that it is compared with.
using TextWidth = std::function<int(std::string_view)>;

// The text itself when it fits into `width`; otherwise with three dots for what is left out. A file
// name at its end stays whole as long as it fits, behind as much of the beginning as has room;
// without a name, or when not even that fits, the middle goes. A character is never separated from
// the marks that stand on it. Where even the dots do not fit there are only the dots.
std::string ShortenMiddle(std::string_view text, int width, const TextWidth& widthOf);

// The same for a path behind words that stay whole.
std::string ShortenPathBehind(std::string_view words, std::string_view path, int width,
                              const TextWidth& widthOf);

// For a line that says something: one with a path in it (a backslash tells) loses its middle, any
// other one its end. Blanks at its end take no room.
std::string ShortenLine(std::string_view line, int width, const TextWidth& widthOf);

}  // namespace ordalyn::toolkit
