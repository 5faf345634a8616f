#include "log/OrdinaryLine.h"

#include <cstddef>

#include "log/Operation.h"

namespace ordalyn {

std::optional<OrdinaryLine> ReadOrdinaryLine(std::string_view sourceField) {
    const char* at = sourceField.data();
    const char* const end = at + sourceField.size();
    // Behind the clock time.
    for (;; ++at) {
        if (end - at < 2)
            return std::nullopt;
        if (at[0] == ':' && at[1] == ' ')
            break;
    }
    const char* const word = at += 2;
    while (at != end && *at != ':' && *at != ' ' && *at != '(' && *at != '\\')
        ++at;
    if (at == word || end - at <= 2 || at[0] != ':' || at[1] != ' ')
        return std::nullopt;
    const std::string_view path(at + 2, static_cast<std::size_t>(end - at - 2));
    if (!IsWholePath(path))
        return std::nullopt;
    return OrdinaryLine{{word, static_cast<std::size_t>(at - word)}, path};
}

}  // namespace ordalyn
