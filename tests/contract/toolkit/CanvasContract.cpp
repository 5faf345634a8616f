// Areas that the code of a form draws itself.
#include <cmath>

#include "contract/toolkit/ToolkitContract.h"

namespace ordalyn::contract {
namespace {

using namespace toolkit;
using testing::ElementsAre;

constexpr Color kRed = 0x0000FF, kGreen = 0x00FF00, kBlue = 0xFF0000, kWhite = 0xFFFFFF;

class Canvases : public ToolkitContract {
  protected:
    Canvas& area = Get<Canvas>("cnvArea");
    // Of so many pixels.
    Rect At(int left, int top, int width, int height) {
        const Twips pixel = area.WholePixels(0);
        return {static_cast<Twips>(left) * pixel, static_cast<Twips>(top) * pixel,
                static_cast<Twips>(width) * pixel, static_cast<Twips>(height) * pixel};
    }
    void Draw(std::function<void(Painter&)> draw) { area.Paint.Subscribe(std::move(draw)); }
    Color Seen(int x, int y) { return User().ColorAt(area, {x, y}); }
};
INSTANTIATE_TEST_SUITE_P(Toolkit, Canvases, AllRealisations(), RealisationName);

TEST_P(Canvases, AreFilledWithinTheGivenEdges) {
    area.SetBackColor(kWhite);
    Draw([&](Painter& on) {
        on.Fill(At(10, 20, 5, 4), kRed);
        on.Fill(At(15, 20, 5, 4), kBlue);
        on.Fill(At(12, 21, 1, 1), kGreen);
    });
    Show();
    EXPECT_EQ(Seen(10, 20), kRed);
    EXPECT_EQ(Seen(14, 23), kRed);
    EXPECT_EQ(Seen(15, 20), kBlue);
    EXPECT_EQ(Seen(19, 23), kBlue);
    EXPECT_EQ(Seen(12, 21), kGreen) << "what is drawn later lies above";
    for (const Pixels& outside : {Pixels{9, 20}, {10, 19}, {20, 20}, {10, 24}})
        EXPECT_EQ(Seen(outside.x, outside.y), kWhite) << outside.x << ',' << outside.y;
}

TEST_P(Canvases, TextsAreDrawnInTheirAreaAndColor) {
    area.SetBackColor(kWhite);
    Font large;
    large.size = 24;
    area.SetFont(large);
    Draw([&](Painter& on) { on.Text(At(20, 20, 80, 60), "MW", kRed, TextPlace::Centre); });
    Show();
    EXPECT_TRUE(User().HasColor(area, {20, 20}, {100, 80}, kRed));
    EXPECT_FALSE(User().HasColor(area, {0, 0}, {100, 20}, kRed));
    EXPECT_FALSE(User().HasColor(area, {100, 0}, {110, 90}, kRed));
}

TEST_P(Canvases, TextsAreMeasuredInTheirFont) {
    Show();
    Font font;
    font.size = 8;
    area.SetFont(font);
    const Size small = area.Measure("Text");
    font.size = 24;
    area.SetFont(font);
    const Size large = area.Measure("Text");
    EXPECT_GT(small.width, 0);
    EXPECT_GT(large.width, 2 * small.width);
    EXPECT_GT(large.height, 2 * small.height);
    EXPECT_GT(area.Measure("TextText").width, 1.5 * large.width);
    EXPECT_EQ(area.Measure("").width, 0);
}

TEST_P(Canvases, LengthsAreMadeWholePixels) {
    const double pixel = Kit().TwipsPerPixelX();
    for (const double pixels : {0.0, 0.2, 1.0, 1.4, 1.6, 17.4, 17.6}) {
        const double expected = std::max(std::round(pixels), 1.0) * pixel;
        EXPECT_NEAR(area.WholePixels(static_cast<Twips>(pixels * pixel)), expected, 0.01) << pixels;
    }
}

TEST_P(Canvases, ManyChangesAreDrawnOnceAndLater) {
    Color color = kRed;
    Draw([&](Painter& on) { on.Fill(At(0, 0, 9, 9), color); });
    Show();
    EXPECT_EQ(Seen(4, 4), kRed);
    Counter painted(area.Paint);
    color = kBlue;
    for (int i = 0; i < 5; ++i)
        area.Invalidate();
    EXPECT_EQ(painted.Take(), 0);
    Settle();
    EXPECT_EQ(painted.Take(), 1);
    EXPECT_EQ(Seen(4, 4), kBlue);
}

TEST_P(Canvases, WhatDecidesOnTheirLookDrawsThemAgain) {
    Show();
    Counter painted(area.Paint);
    const auto drawn = [&] {
        Settle();
        return painted.Take() > 0;
    };
    area.SetBackColor(kGreen);
    EXPECT_TRUE(drawn());
    EXPECT_EQ(Seen(4, 4), kGreen);
    area.SetForeColor(kRed);
    EXPECT_TRUE(drawn());
    area.SetWidth(area.Width() + 300);
    EXPECT_TRUE(drawn());
    Font font;
    font.size = 12;
    area.SetFont(font);
    EXPECT_TRUE(drawn());
    area.SetRightToLeft(true);
    EXPECT_TRUE(drawn());
    EXPECT_FALSE(drawn());
}

TEST_P(Canvases, TheSystemsColorsAreSeenAsWhatTheyAre) {
    area.SetForeColor(0x123456);
    area.SetBackColor(0x654321);
    EXPECT_EQ(area.ShownColors(), (TextColors{0x123456, 0x654321}));
    area.SetForeColor(kWindowText);
    area.SetBackColor(kWindowBackground);
    EXPECT_GE(area.ShownColors().text, 0);
    EXPECT_GE(area.ShownColors().background, 0);
    EXPECT_NE(area.ShownColors().text, area.ShownColors().background);
}

TEST_P(Canvases, TellThatThePointerHasLeft) {
    Show();
    Counter left(area.MouseLeave);
    User().MoveMouse(area, {10, 10});
    User().LeaveWithMouse(area);
    EXPECT_EQ(left.Take(), 1);
}

TEST_P(Canvases, TellWholeNotchesOfTheWheel) {
    Show();
    std::vector<int> notches;
    area.Wheel.Subscribe([&](int turned) { notches.push_back(turned); });
    for (const int delta : {120, -240, 60, 60, 40, -100, -20, 250})
        User().TurnWheel(area, delta);
    EXPECT_THAT(notches, ElementsAre(1, -2, 1, -1, 2));
}

TEST_P(Canvases, AreOfferedKeysBeforeTheForm) {
    Counter ok(Get<CommandButton>("cmdOk").Click);
    std::vector<int> keys;
    bool use = true;
    area.KeyOffered.Subscribe([&](int key, bool& used) {
        keys.push_back(key);
        used = use;
    });
    Show();
    area.SetFocus();
    Settle();
    ASSERT_TRUE(User().HasFocus(area));
    User().PressKey(Form(), key::Down);
    User().PressKey(Form(), key::Enter);
    EXPECT_EQ(ok.Take(), 0);
    use = false;
    User().PressKey(Form(), key::Enter);
    EXPECT_EQ(ok.Take(), 1);
    EXPECT_THAT(keys, ElementsAre(key::Down, key::Enter, key::Enter));
}

TEST_P(Canvases, TabStopsAtThem) {
    Show();
    Get<ToolBar>("tbrTools").SetFocus();
    Settle();
    User().PressKey(Form(), key::Tab);
    EXPECT_TRUE(User().HasFocus(area));
    User().PressKey(Form(), key::Tab);
    EXPECT_TRUE(User().HasFocus(Get<CommandButton>("cmdOk")));
}

TEST_P(Canvases, AClickGivesThemTheFocusAndIsTold) {
    Show();
    Counter clicked(area.Click);
    User().DragMouse(area, kLeftButton, {{10, 10}});
    EXPECT_EQ(clicked.Take(), 1);
    EXPECT_TRUE(User().HasFocus(area));
}

}  // namespace
}  // namespace ordalyn::contract
