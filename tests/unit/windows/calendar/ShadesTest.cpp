#include "windows/calendar/Shades.h"

#include <gtest/gtest.h>

#include <utility>

#include "toolkit/TextColors.h"

namespace ordalyn {
namespace {

using toolkit::Color;
using toolkit::Contrast;

TEST(Shades, AreMixedPartByPart) {
    EXPECT_EQ(Mixed(0x000000, 0xFFFFFF, 0), 0x000000);
    EXPECT_EQ(Mixed(0x000000, 0xFFFFFF, 1), 0xFFFFFF);
    EXPECT_EQ(Mixed(0x204060, 0x406020, 0.5), 0x305040);
}

TEST(Shades, TheFirstColorThatIsSeenWellIsTaken) {
    EXPECT_EQ(SeenOn(0xFFFFFF, {0xC0C0C0, 0x404040, 0x000000}, 4.5), 0x404040);
    EXPECT_EQ(SeenOn(0x000000, {0xC0C0C0, 0x404040}, 4.5), 0xC0C0C0);
    EXPECT_EQ(SeenOn(0xFFFFFF, {0xC0C0C0, 0xA0A0A0, 0xD0D0D0}, 4.5), 0xA0A0A0) << "the best";
}

TEST(Shades, TheBusiestDayHasTheDarkestAndNoDayWithoutEntriesIsDark) {
    for (const int most : {1, 2, 10, 1000, 2'000'000'000}) {
        EXPECT_EQ(Busyness(0, most), 0);
        EXPECT_EQ(Busyness(most, most), kBusiest);
    }
    EXPECT_EQ(Busyness(1, 2), 1);
    int before = 0;
    for (int entries = 0; entries <= 10'000; ++entries) {
        const int now = Busyness(entries, 10'000);
        EXPECT_TRUE(now == before || now == before + 1) << entries;
        before = now;
    }
    EXPECT_EQ(before, kBusiest);
}

TEST(Shades, OneVeryBusyDayDoesNotMakeTheOthersAlike) {
    EXPECT_LT(Busyness(3, 100'000), Busyness(100, 100'000));
    EXPECT_LT(Busyness(100, 100'000), Busyness(5000, 100'000));
}

TEST(Shades, EachStepIsNearerToTheTextsColor) {
    for (const auto& [text, background] : {std::pair<Color, Color>{0x000000, 0xFFFFFF},
                                           {0xE0E0E0, 0x202020},
                                           {0x800000, 0xC0FFFF}}) {
        EXPECT_NE(ShadeOf(0, text, background), background) << "every day is a square";
        for (int step = 1; step <= kBusiest; ++step) {
            EXPECT_LT(Contrast(ShadeOf(step, text, background), text),
                      Contrast(ShadeOf(step - 1, text, background), text));
            EXPECT_GT(
                Contrast(ShadeOf(step, text, background), ShadeOf(step - 1, text, background)),
                1.1);
        }
    }
}

}  // namespace
}  // namespace ordalyn
