#include "contract/toolkit/ToolkitContract.h"

namespace ordalyn::contract {
namespace {

using namespace toolkit;
using testing::ElementsAre;

struct MouseEvent {
    std::string what;
    int buttons;
    int x, y;  // pixels
    bool operator==(const MouseEvent&) const = default;
    friend void PrintTo(const MouseEvent& e, std::ostream* out) {
        *out << e.what << ' ' << e.buttons << " at " << e.x << ',' << e.y;
    }
};

class Mouse : public ToolkitContract {
  protected:
    void SetUp() override { Show(); }
    void Listen(Control& control) {
        const auto note = [this](const char* what) {
            return [this, what](int buttons, Modifiers, Twips x, Twips y) {
                events.push_back({what, buttons,
                                  static_cast<int>(std::lround(x / Kit().TwipsPerPixelX())),
                                  static_cast<int>(std::lround(y / Kit().TwipsPerPixelY()))});
            };
        };
        control.MouseDown.Subscribe(note("down"));
        control.MouseMove.Subscribe(note("move"));
        control.MouseUp.Subscribe(note("up"));
    }
    std::vector<MouseEvent> events;
};
INSTANTIATE_TEST_SUITE_P(Toolkit, Mouse, AllRealisations(), RealisationName);

TEST_P(Mouse, ADragTellsPressMovesAndRelease) {
    for (Control* control : {static_cast<Control*>(&Get<PictureBox>("picBox")),
                             static_cast<Control*>(&Get<Frame>("fraOne")),
                             static_cast<Control*>(&Get<Label>("lblText"))}) {
        events.clear();
        Listen(*control);
        Counter clicked(control->Click);
        // It goes on outside of the control.
        User().DragMouse(*control, kLeftButton, {{10, 5}, {14, 7}, {-40, 300}});
        EXPECT_THAT(events, ElementsAre(MouseEvent{"down", kLeftButton, 10, 5},
                                        MouseEvent{"move", kLeftButton, 14, 7},
                                        MouseEvent{"move", kLeftButton, -40, 300},
                                        MouseEvent{"up", kLeftButton, -40, 300}))
            << control->Name();
        EXPECT_EQ(clicked.Take(), 0) << control->Name();
    }
}

TEST_P(Mouse, AMoveWithoutAButtonSaysSo) {
    Listen(Get<PictureBox>("picBox"));
    User().MoveMouse(Get<PictureBox>("picBox"), {3, 4});
    EXPECT_THAT(events, ElementsAre(MouseEvent{"move", 0, 3, 4}));
}

TEST_P(Mouse, AClickOnAPictureOrLabelIsTold) {
    for (Control* control : {static_cast<Control*>(&Get<PictureBox>("picBox")),
                             static_cast<Control*>(&Get<Label>("lblText"))}) {
        Counter clicked(control->Click);
        User().DragMouse(*control, kLeftButton, {{10, 5}});
        EXPECT_EQ(clicked.Take(), 1) << control->Name();
        User().DragMouse(*control, kRightButton, {{10, 5}});
        EXPECT_EQ(clicked.Take(), 0) << control->Name();
    }
}

TEST_P(Mouse, OtherButtonsAreToldApart) {
    Listen(Get<PictureBox>("picBox"));
    User().DragMouse(Get<PictureBox>("picBox"), kRightButton, {{10, 5}, {12, 6}});
    EXPECT_THAT(events, ElementsAre(MouseEvent{"down", kRightButton, 10, 5},
                                    MouseEvent{"move", kRightButton, 12, 6},
                                    MouseEvent{"up", kRightButton, 12, 6}));
}

TEST_P(Mouse, AnAreaMayMoveUnderTheMouse) {
    Control& area = Get<PictureBox>("picBox");
    area.MouseMove.Subscribe(
        [&](int, Modifiers, Twips x, Twips) { area.SetLeft(area.Left() + x); });
    Counter released(area.MouseUp);
    const Twips before = area.Left();
    User().DragMouse(area, kLeftButton, {{0, 0}, {10, 0}});
    EXPECT_NEAR(area.Left(), before + 10 * Kit().TwipsPerPixelX(), 0.1);
    EXPECT_EQ(released.Take(), 1);
}

TEST_P(Mouse, NothingIsToldOfADisabledControl) {
    Control& area = Get<PictureBox>("picBox");
    Listen(area);
    area.SetEnabled(false);
    User().DragMouse(area, kLeftButton, {{0, 0}, {10, 0}});
    EXPECT_TRUE(events.empty());
}

}  // namespace
}  // namespace ordalyn::contract
