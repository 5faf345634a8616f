#include <gtest/gtest.h>

#include <algorithm>

#include "toolkit/ToolBarPictures.h"

namespace ordalyn::toolkit {
namespace {

constexpr PictureColors kColors = {0x102030, 0x4080C0};

std::uint32_t AlphaAt(const Picture& picture, int x, int y) {
    return picture.pixels[static_cast<std::size_t>(y * picture.size + x)] >> 24U;
}

TEST(ToolBarPictures, AreDrawnInTheGivenColoursAtAnySize) {
    for (const int size : {16, 20, 24, 32}) {
        const Picture picture = DrawToolBarPicture(kApplyFilterImage, size, kColors);
        ASSERT_EQ(picture.pixels.size(), static_cast<std::size_t>(size * size));
        const auto has = [&](std::uint32_t color) {
            return std::count(picture.pixels.begin(), picture.pixels.end(), 0xFF000000U | color);
        };
        EXPECT_GT(has(kColors.lines), 0);
        EXPECT_GT(has(kColors.accent), 0);
        EXPECT_EQ(AlphaAt(picture, 0, size - 1), 0U) << "clear where nothing is drawn";
    }
}

TEST(ToolBarPictures, SlopesStandWhereTheDrawingHasThem) {
    // The funnel narrows from 14 units to 4; in the sixth row it begins within the third pixel.
    const Picture picture = DrawToolBarPicture(kApplyFilterImage, 16, kColors);
    for (const int outside : {0, 1, 14, 15})
        EXPECT_EQ(AlphaAt(picture, outside, 5), 0U) << outside;
    for (int inside = 3; inside <= 12; ++inside)
        EXPECT_EQ(AlphaAt(picture, inside, 5), 255U) << inside;
}

TEST(ToolBarPictures, ColourPartsNeverExceedTheAlphaPart) {
    const Picture picture = DrawToolBarPicture(kRemoveFilterImage, 20, {0xFFFFFF, 0xFFFFFF});
    for (const std::uint32_t pixel : picture.pixels) {
        EXPECT_LE(pixel & 0xFFU, pixel >> 24U);
        EXPECT_LE(pixel >> 8U & 0xFFU, pixel >> 24U);
        EXPECT_LE(pixel >> 16U & 0xFFU, pixel >> 24U);
    }
}

TEST(ToolBarPictures, EveryNameHasAPictureOfItsOwn) {
    const auto pixels = [](std::string_view name) {
        return DrawToolBarPicture(name, 16, kColors).pixels;
    };
    EXPECT_NE(pixels(kApplyFilterImage), pixels(kRemoveFilterImage));
    const auto plain = pixels("unknown");
    EXPECT_NE(plain, pixels(kApplyFilterImage));
    EXPECT_NE(plain, pixels(kRemoveFilterImage));
    EXPECT_TRUE(std::any_of(plain.begin(), plain.end(), [](auto p) { return p != 0; }));
}

}  // namespace
}  // namespace ordalyn::toolkit
