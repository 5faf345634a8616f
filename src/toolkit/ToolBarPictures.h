// The pictures of tool bar buttons: their names, and drawings for any size in any two colours.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace ordalyn::toolkit {

inline constexpr std::string_view kApplyFilterImage = "apply-filter";
inline constexpr std::string_view kRemoveFilterImage = "remove-filter";
// No picture: a button of this name only keeps others apart.
inline constexpr std::string_view kSeparatorImage = "separator";

// 0xAARRGGBB with the colour parts multiplied by the alpha part, rows from the top.
struct Picture {
    int size = 0;
    std::vector<std::uint32_t> pixels;
};

struct PictureColors {
    std::uint32_t lines;   // 0x00RRGGBB
    std::uint32_t accent;  // 0x00RRGGBB
};

// An unknown name gives a plain mark.
Picture DrawToolBarPicture(std::string_view name, int size, const PictureColors& colors);

}  // namespace ordalyn::toolkit
