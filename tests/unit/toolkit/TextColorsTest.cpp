#include "toolkit/TextColors.h"

#include <gtest/gtest.h>

namespace ordalyn::toolkit {
namespace {

constexpr Color kRed = 0x000000FF, kBlue = 0x00FF0000;
constexpr Color kHighlight = SystemColor(13);

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

}  // namespace
}  // namespace ordalyn::toolkit
