// OrdinaryLine: what nearly every line of a log is today, "TIME: WORD: PATH", an operation that
// went well. It is told from all others by its shape, without a look at any word.
#pragma once

#include <optional>
#include <string_view>

namespace ordalyn {

struct OrdinaryLine {
    std::string_view word, path;  // parts of the field; blanks can stand behind the path
};

// The word is one without blanks, brackets and backslashes, which could be part of a path; the path
// is a whole one, not a bare name.
std::optional<OrdinaryLine> ReadOrdinaryLine(std::string_view sourceField);

}  // namespace ordalyn
