#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "win32/common/Scale.h"
#include "win32/drawing/ToolBarPictures.h"
#include "win32/forms/FormMenus.h"

namespace ordalyn::test {
namespace {

using win32::DrawToolBarPicture;
using win32::Picture;

constexpr win32::PictureColors kColors = {0x102030, 0x4080C0};

std::uint32_t AlphaAt(const Picture& picture, int x, int y) {
    return picture.pixels[static_cast<std::size_t>(y * picture.size + x)] >> 24U;
}

TEST(ToolBarPictures, AreDrawnInTheGivenColoursAtAnySize) {
    for (const int size : {16, 20, 24, 32}) {
        const Picture picture = DrawToolBarPicture("apply-filter", size, kColors);
        ASSERT_EQ(picture.pixels.size(), static_cast<std::size_t>(size * size));
        const auto has = [&](std::uint32_t color) {
            return std::count(picture.pixels.begin(), picture.pixels.end(), 0xFF000000U | color);
        };
        EXPECT_GT(has(kColors.lines), 0);
        EXPECT_GT(has(kColors.accent), 0);
        EXPECT_EQ(AlphaAt(picture, 0, size - 1), 0U) << "clear where nothing is drawn";
    }
}

TEST(ToolBarPictures, ColourPartsNeverExceedTheAlphaPart) {
    const Picture picture = DrawToolBarPicture("remove-filter", 20, {0xFFFFFF, 0xFFFFFF});
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
    EXPECT_NE(pixels("apply-filter"), pixels("remove-filter"));
    EXPECT_NE(pixels("separator"), pixels("apply-filter"));
    EXPECT_NE(pixels("unknown"), pixels("separator"));
    const auto plain = pixels("unknown");
    EXPECT_TRUE(std::any_of(plain.begin(), plain.end(), [](auto p) { return p != 0; }));
}

TEST(ShortcutText, NamesTheKeyBehindItsModifiers) {
    EXPECT_EQ(win32::ShortcutText({'O', {false, true, false}}), "Ctrl+O");
    EXPECT_EQ(win32::ShortcutText({'C', {true, true, true}}), "Ctrl+Alt+Shift+C");
    EXPECT_EQ(win32::ShortcutText({toolkit::key::F5, {}}), "F5");
    EXPECT_EQ(win32::ShortcutText({}), "");
}

TEST(Scale, RoundsTwipsToTheNearestPixelAtAnyResolution) {
    const win32::Scale normal(96, 96);
    EXPECT_EQ(normal.PixelsX(15), 1);
    EXPECT_EQ(normal.PixelsX(22), 1);
    EXPECT_EQ(normal.PixelsX(23), 2);
    EXPECT_EQ(normal.PixelsX(-20000), -1333);
    EXPECT_EQ(normal.TwipsX(3), 45);
    const win32::Scale large(144, 144);
    EXPECT_EQ(large.PixelsX(45), 5);
    EXPECT_EQ(large.TwipsY(3), 30);
}

TEST(Scale, TakesAnyNumber) {
    const win32::Scale scale(96, 96);
    EXPECT_EQ(scale.PixelsX(1e30F), 1'000'000);
    EXPECT_EQ(scale.PixelsX(-1e30F), -1'000'000);
    EXPECT_EQ(scale.PixelsX(std::numeric_limits<float>::quiet_NaN()), 0);
}

}  // namespace
}  // namespace ordalyn::test
