// What the tests of the registry and of its accessor both say of values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ordalyn::contract {

inline constexpr std::uint32_t kCurrentUser = 0x80000001;
inline constexpr std::uint32_t kString = 1, kExpandable = 2, kBinary = 3, kNumber = 4;
inline constexpr std::size_t kLargestValue = 2048;

inline std::string WithNul(std::string_view text) {
    return std::string(text) + '\0';
}

}  // namespace ordalyn::contract
