// Where they stand who stand in the place of the panels.
#include "unit/windows/main/FirstStepsFixture.h"

namespace ordalyn {
namespace {

using toolkit::Rect;

class StepsPlaces : public test::FirstStepsFixture {
  protected:
    // The texts and buttons from above to below, none over the other, all inside, without a word
    // that is cut off.
    void ExpectInside() {
        const Rect area = Place(Get<toolkit::PictureBox>("picFirstSteps"));
        float below = 0;
        for (const char* name : {"lblHeadline", "lblLogPath", "lblAdvice"}) {
            const auto& label = Get<toolkit::Label>(name);
            if (!label.Visible())
                continue;
            EXPECT_GE(label.Top(), below) << name;
            EXPECT_GE(label.Height(), label.HeightFor(label.Width())) << name;
            EXPECT_GE(label.Left(), 0) << name;
            EXPECT_LE(label.Left() + label.Width(), area.width) << name;
            below = label.Top() + label.Height();
        }
        const std::vector<toolkit::Control*> buttons = Buttons();
        for (const toolkit::Control* button : buttons) {
            EXPECT_GT(button->Top(), below) << button->Name();
            EXPECT_GE(button->Left(), 0) << button->Name();
            EXPECT_LE(button->Left() + button->Width(), area.width) << button->Name();
            EXPECT_LE(button->Top() + button->Height(), area.height) << button->Name();
        }
        if (buttons.size() > 1) {
            const Rect first = Place(*buttons[0]);
            const Rect second = Place(*buttons[1]);
            EXPECT_TRUE(second.left >= first.left + first.width ||
                        second.left + second.width <= first.left ||
                        second.top >= first.top + first.height);
        }
    }
};

TEST_F(StepsPlaces, AreThoseOfThePanelsWhateverTheWindowIsLike) {
    SetLog("C:\\other.log", kOneLine);
    Start();
    const auto place = [this] { return Place(Get<toolkit::PictureBox>("picFirstSteps")); };
    const Rect two = place();
    for (const float width : {12030.F, 6000.F, 4200.F, 20000.F}) {
        Main().Move({0, 0, width, 8520});
        ExpectInside();
    }
    Main().Move({0, 0, 12030, 8520});
    EXPECT_EQ(place(), two);
    Choose("mnuViewTwoPanels");
    EXPECT_EQ(place(), two);
    EXPECT_FALSE(Source().Visible());
    Choose("mnuViewTwoPanels");
    Choose("mnuViewVerticalPanels");
    EXPECT_FALSE(PanelsCanBeUsed());
    EXPECT_EQ(tools.focus, &Get<toolkit::CommandButton>("cmdLookAgain"));
    Choose("mnuViewStatusBar");
    EXPECT_EQ(place().height, two.height + Status().Height());
    Choose("mnuViewStatusBar");
    // The panels come back where they would have been.
    Main().FilesDropped.Raise({"C:\\other.log"});
    EXPECT_EQ(Place(Get<toolkit::PictureBox>("picSpliterContainer")), two);
    EXPECT_TRUE(Target().CanTakeInput());
}

TEST_F(StepsPlaces, HaveRoomForALargeFont) {
    SetSettings("FontSize=16");
    Start();
    ExpectInside();
    EXPECT_GT(Place(Get<toolkit::CommandButton>("cmdLookAgain")).width, 5000);
}

// Nothing is thrown away or reported.
TEST_F(StepsPlaces, CanBeSmallerThanWhatIsInThem) {
    Start();
    Main().Move({0, 0, 1500, 900});
    EXPECT_TRUE(Shown());
    Main().Move({0, 0, 12030, 8520});
    ExpectInside();
    EXPECT_EQ(tools.messages.size(), 1U);
}

}  // namespace
}  // namespace ordalyn
