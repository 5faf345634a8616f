#include "platform/Wildcard.h"

#include <string>

#include "base/Text.h"
#include "base/Utf8.h"

namespace ordalyn::platform {

namespace {

// Both arguments are folded. Goes back to the latest "*" only, which is enough for this kind of
// pattern and keeps the work linear in practice.
bool MatchesFolded(std::string_view name, std::string_view pattern) {
    constexpr std::size_t kNone = std::string_view::npos;
    std::size_t n = 0;
    std::size_t p = 0;
    std::size_t star = kNone;  // position behind the latest "*"
    std::size_t retry = 0;     // where that star's match ends
    const auto step = [&](std::size_t at) { return DecodeUtf8(name, at).length; };
    for (;;) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = ++p;
            retry = n;
        } else if (p < pattern.size() && pattern[p] == '?') {
            if (n < name.size() && name[n] != '.')
                n += step(n);
            ++p;
        } else if (n < name.size() && p < pattern.size() && pattern[p] == name[n]) {
            ++n;
            ++p;
        } else if (n == name.size() && p == pattern.size()) {
            return true;
        } else if (star != kNone && retry < name.size()) {
            retry += step(retry);
            n = retry;
            p = star;
        } else {
            return false;
        }
    }
}

}  // namespace

bool MatchesWildcard(std::string_view name, std::string_view pattern) {
    if (pattern == "*.*")
        return true;
    if (pattern.size() >= 2 && pattern.substr(pattern.size() - 2) == "*.") {
        if (name.find('.') != std::string_view::npos)
            return false;
        pattern.remove_suffix(1);
    }
    return MatchesFolded(FoldCase(name), FoldCase(pattern));
}

}  // namespace ordalyn::platform
