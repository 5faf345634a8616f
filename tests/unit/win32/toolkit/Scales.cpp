#include <gtest/gtest.h>

#include <limits>

#include "win32/common/Scale.h"

namespace ordalyn::test {
namespace {

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
