#include "toolkit/TextColors.h"

#include <gtest/gtest.h>

namespace ordalyn::toolkit {
namespace {

constexpr Color kRed = 0x000000FF, kBlue = 0x00FF0000;
constexpr Color kHighlight = SystemColor(13);

TEST(TextColors, DifferInBrightnessAsTheGuidelinesMeasureIt) {
    EXPECT_NEAR(Contrast(0x000000, 0xFFFFFF), 21, 0.001);
    EXPECT_NEAR(Contrast(0xFFFFFF, 0xFFFFFF), 1, 0.001);
    EXPECT_NEAR(Contrast(0xFFFFFF, 0x000000), 21, 0.001);
    EXPECT_NEAR(Contrast(0x777777, 0x777777), 1, 0.001);
    EXPECT_NEAR(Contrast(0x0000FF, 0xFFFFFF), 3.998, 0.01);
    EXPECT_NEAR(Contrast(0xFFFFFF, 0xFF0000), 8.592, 0.01);
}

TEST(TextColors, TheRedCanBeReadOnEveryBackground) {
    EXPECT_EQ(RedOn(0xFFFFFF), 0x0000A0);
    const Color onBlack = RedOn(0x000000);
    EXPECT_GT(onBlack & 0xFF, 0xA0) << "lighter";
    for (int red = 0; red < 256; red += 15)
        for (int green = 0; green < 256; green += 15)
            for (int blue = 0; blue < 256; blue += 15) {
                const Color background = red | green << 8 | blue << 16;
                const Color shade = RedOn(background);
                ASSERT_GE(Contrast(shade, background), 4.5) << background;
                ASSERT_GE(shade & 0xFF, (shade >> 8) & 0xFF) << "no other tone";
            }
}

TEST(TextColors, AreAsTheyWereChosenWithoutHighContrast) {
    for (const TextColors& wanted :
         {TextColors{kRed, kBlue}, TextColors{kRed, kWindowBackground},
          TextColors{kWindowText, kBlue}, TextColors{kWindowText, kButtonFace},
          TextColors{kHighlight, kButtonFace}})
        EXPECT_EQ(ReadableColors(wanted, false), wanted);
}

TEST(TextColors, ThatWereChosenTogetherStayWithHighContrast) {
    const TextColors both = {kRed, kBlue};
    EXPECT_EQ(ReadableColors(both, true), both);
    const TextColors black = {0, 0x00FFFFFF};
    EXPECT_EQ(ReadableColors(black, true), black);
}

TEST(TextColors, OfOnesOwnNeverMeetThoseOfTheSystemWithHighContrast) {
    const TextColors ofWindows = {kWindowText, kWindowBackground};
    EXPECT_EQ(ReadableColors({kRed, kWindowBackground}, true), ofWindows);
    EXPECT_EQ(ReadableColors({kWindowText, kBlue}, true), ofWindows);
    EXPECT_EQ(ReadableColors({kRed, kButtonFace}, true), (TextColors{kButtonText, kButtonFace}));
}

TEST(TextColors, OfTheSystemBelongTogetherWithHighContrast) {
    const TextColors ofButtons = {kButtonText, kButtonFace};
    EXPECT_EQ(ReadableColors({kWindowText, kButtonFace}, true), ofButtons);
    EXPECT_EQ(ReadableColors({kHighlight, kButtonFace}, true), ofButtons);
    const TextColors ofWindows = {kWindowText, kWindowBackground};
    EXPECT_EQ(ReadableColors(ofWindows, true), ofWindows);
}

TEST(TextColors, WhatIsSelectedElsewhereIsBetweenBackgroundAndText) {
    EXPECT_EQ(ShadeOfSelection({0xE0E0E0, 0x202020}), 0x505050);
    EXPECT_EQ(ShadeOfSelection({0x000000, 0xFFFFFF}), 0xC0C0C0);
    EXPECT_EQ(ShadeOfSelection({0x00FF00, 0x400000}), 0x303F00);
    // Closer to the background where the text could not be read else.
    const Color close = ShadeOfSelection({0x909090, 0x202020});
    EXPECT_GT(close, 0x202020);
    EXPECT_LT(close, 0x3C3C3C);
    EXPECT_GE(Contrast(0x909090, close), 4.5);
    // What cannot be read anyway stays.
    EXPECT_EQ(ShadeOfSelection({0x404040, 0x202020}), 0x202020);
}

}  // namespace
}  // namespace ordalyn::toolkit
