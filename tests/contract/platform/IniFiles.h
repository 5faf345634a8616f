// What the tests of the profile calls and of INI files as text both say of files.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/Text.h"

namespace ordalyn::contract {

inline constexpr std::size_t kSize = 4096;

inline std::string Utf16(std::string_view text) {
    std::string bytes = "\xFF\xFE";
    for (const char16_t c : Utf8ToUtf16(text)) {
        bytes += static_cast<char>(c & 0xFF);
        bytes += static_cast<char>(c >> 8);
    }
    return bytes;
}

}  // namespace ordalyn::contract
