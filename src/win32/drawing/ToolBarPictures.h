// The pictures of tool bar buttons, drawn for any size in any two colours.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace ordalyn::win32 {

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

}  // namespace ordalyn::win32
