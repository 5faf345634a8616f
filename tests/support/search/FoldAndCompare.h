// FoldAndCompare: whether a text contains another, letter case ignored, said as simply as possible:
// both are folded, character by character, and the one is looked for in the other. The real search
// is compared with it.
#pragma once

#include <algorithm>
#include <string_view>
#include <vector>

#include "base/Text.h"
#include "base/Utf8.h"

namespace ordalyn::test {

inline std::vector<char32_t> FoldedCharacters(std::string_view text) {
    std::vector<char32_t> folded;
    for (std::size_t at = 0; at < text.size();) {
        const DecodedCharacter c = DecodeUtf8(text, at);
        // An invalid byte is a character of its own, unlike any other.
        folded.push_back(c.valid ? FoldCase(c.value)
                                 : 0x110000U + static_cast<unsigned char>(text[at]));
        at += c.valid ? c.length : 1;
    }
    return folded;
}

inline bool ContainsFolded(std::string_view text, std::string_view needle) {
    const std::vector<char32_t> in = FoldedCharacters(text);
    const std::vector<char32_t> what = FoldedCharacters(needle);
    return std::search(in.begin(), in.end(), what.begin(), what.end()) != in.end() || what.empty();
}

}  // namespace ordalyn::test
