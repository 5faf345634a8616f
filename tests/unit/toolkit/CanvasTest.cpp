#include "SampleTest.h"

namespace ordalyn::toolkit {
namespace {

using testing::ElementsAre;

constexpr ControlDesign kControls[] = {
    {.kind = Kind::Canvas, .name = "cnvArea", .bounds = {100, 100, 900, 600}},
};
constexpr FormDesign kDesign = {"frmCanvas", "", {2000, 1000}, {}, kControls};

class CanvasTest : public testing::Test {
  protected:
    test::MemoryToolkit kit;
    Form form{kit, kDesign};
    Canvas& area = form.Get<Canvas>("cnvArea");
};

TEST_F(CanvasTest, IsATabStopThatStandsWhereItsDesignSays) {
    EXPECT_EQ(area.ControlKind(), Kind::Canvas);
    EXPECT_EQ(area.Container(), &form);
    EXPECT_TRUE(area.TabStop());
    EXPECT_EQ(area.Bounds(), (Rect{100, 100, 900, 600}));
}

TEST_F(CanvasTest, IsDrawnOnlyWhileItIsSeen) {
    test::Counter painted(area.Paint);
    area.Invalidate();
    kit.DoLaterWork();
    EXPECT_EQ(painted.Take(), 0);
    form.Show();
    area.Invalidate();
    kit.DoLaterWork();
    EXPECT_EQ(painted.Take(), 1);
}

TEST_F(CanvasTest, AKeyThatNobodyWantsIsLeftToTheForm) {
    EXPECT_FALSE(area.UserPressedKey(key::Down, false));
    area.KeyOffered.Subscribe([](int key, bool& used) { used = key == key::Down; });
    EXPECT_TRUE(area.UserPressedKey(key::Down, true));
    EXPECT_FALSE(area.UserPressedKey(key::Up, false));
}

TEST_F(CanvasTest, PartsOfANotchAddUpUntilTheWheelTurnsBack) {
    std::vector<int> notches;
    area.Wheel.Subscribe([&](int turned) { notches.push_back(turned); });
    for (const int delta : {30, 30, 30, 30, 90, -119, -1, 360, -120})
        area.UserTurnedWheel(delta);
    EXPECT_THAT(notches, ElementsAre(1, -1, 3, -1));
}

}  // namespace
}  // namespace ordalyn::toolkit
