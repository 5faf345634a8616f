// Places and sizes: twips are kept exactly as they were set, pixels are their rounding.
#include "contract/toolkit/ToolkitContract.h"

namespace ordalyn::contract {
namespace {

using namespace toolkit;

class Geometry : public ToolkitContract {
  protected:
    // The kinds that take every height.
    std::vector<Control*> Obedient() {
        std::vector<Control*> controls;
        for (const auto& control : Form().Controls()) {
            if (control->ControlKind() != Kind::ComboBox &&
                control->ControlKind() != Kind::StatusBar)
                controls.push_back(control.get());
        }
        return controls;
    }
};
INSTANTIATE_TEST_SUITE_P(Toolkit, Geometry, AllRealisations(), RealisationName);

TEST_P(Geometry, ADesignsBoundsAreKeptAndShown) {
    Show();
    for (Control* control : Obedient()) {
        const auto* row = std::find_if(
            std::begin(kContractControls), std::end(kContractControls), [&](const auto& design) {
                return design.name == control->Name() && design.index == control->Index();
            });
        EXPECT_EQ(control->Bounds(), row->bounds) << control->Name();
        ExpectShownAt(*control);
    }
}

TEST_P(Geometry, OddTwipsAreKeptExactlyWhilePixelsAreRounded) {
    Show();
    const Rect odd{101.25F, 77.7F, 1003.4F, 333.3F};
    for (Control* control : Obedient()) {
        control->Move(odd);
        Settle();
        EXPECT_EQ(control->Bounds(), odd) << control->Name();
        ExpectShownAt(*control);
    }
}

TEST_P(Geometry, NeighboursInTwipsAreNeighboursOnTheScreen) {
    Show();
    Control& left = Get<Label>("lblText");
    Control& right = Get<PictureBox>("picBox");
    for (int i = 0; i < 15; ++i) {
        const auto edge = static_cast<Twips>(1000 + i);
        left.Move({7.0F + static_cast<Twips>(i), 0, edge - 7.0F - static_cast<Twips>(i), 300});
        right.Move({edge, 0, 500, 300});
        const Rect a = User().BoundsOf(left);
        const Rect b = User().BoundsOf(right);
        EXPECT_EQ(a.left + a.width, b.left) << edge;
    }
}

TEST_P(Geometry, ANegativeSizeThrowsAndMovesNothing) {
    Show();
    for (Control* control : Obedient()) {
        const Rect before = control->Bounds();
        const Rect shown = User().BoundsOf(*control);
        EXPECT_THROW(control->Move({0, 0, -1, 300}), InvalidPropertyValue);
        EXPECT_THROW(control->SetHeight(-15), InvalidPropertyValue);
        EXPECT_EQ(control->Bounds(), before);
        EXPECT_EQ(User().BoundsOf(*control), shown);
    }
    const Rect before = Form().Bounds();
    EXPECT_THROW(Form().SetWidth(-1), InvalidPropertyValue);
    EXPECT_THROW(Form().SetClientHeight(-1), InvalidPropertyValue);
    EXPECT_EQ(Form().Bounds(), before);
}

TEST_P(Geometry, ASizeOfNoughtIsAllowed) {
    Show();
    for (Control* control : Obedient()) {
        EXPECT_NO_THROW(control->Move({-300, -300, 0, 0})) << control->Name();
        EXPECT_EQ(control->Bounds(), (Rect{-300, -300, 0, 0})) << control->Name();
    }
}

TEST_P(Geometry, PlacesFarOutsideTheScreenAreKept) {
    Show();
    Control& label = Get<Label>("lblText");
    label.Move({-2000000, 3000000, 100, 100});
    EXPECT_EQ(label.Bounds(), (Rect{-2000000, 3000000, 100, 100}));
}

TEST_P(Geometry, ResizeIsRaisedOnceForEachNewSizeAndNeverForANewPlace) {
    Show();
    for (Control* control : Obedient()) {
        Counter resized(control->Resize);
        control->SetLeft(control->Left() + 30);
        control->SetTop(control->Top() + 30);
        Settle();
        EXPECT_EQ(resized.Take(), 0) << control->Name();
        control->SetWidth(control->Width() + 30);
        Settle();
        EXPECT_EQ(resized.Take(), 1) << control->Name();
        control->Move(control->Bounds());
        Settle();
        EXPECT_EQ(resized.Take(), 0) << control->Name();
    }
}

TEST_P(Geometry, WhatIsInAContainerMovesWithIt) {
    Show();
    Control& inside = Get<CheckBox>("chkInside");
    const Rect before = User().BoundsOf(inside);
    Get<Frame>("fraOne").Move({600, 600, 3000, 1800});
    EXPECT_EQ(inside.Bounds(), (Rect{1500, 300, 1200, 300}));
    EXPECT_EQ(User().BoundsOf(inside), before);
}

TEST_P(Geometry, AnotherContainerKeepsTheBounds) {
    Show();
    Control& label = Get<Label>("lblText");
    label.Move({31, 46, 501, 301});
    label.SetContainer(Get<PictureBox>("picBox"));
    EXPECT_EQ(label.Container(), &Get<PictureBox>("picBox"));
    EXPECT_EQ(label.Bounds(), (Rect{31, 46, 501, 301}));
    ExpectShownAt(label);
    EXPECT_TRUE(User().IsVisible(label));
    Get<PictureBox>("picBox").SetVisible(false);
    EXPECT_FALSE(User().IsVisible(label));
    EXPECT_TRUE(label.Visible());
    label.SetContainer(Form());
    EXPECT_TRUE(User().IsVisible(label));
    ExpectShownAt(label);
}

TEST_P(Geometry, AComboBoxDecidesOnItsHeightAndAnswersIt) {
    Show();
    for (const char* name : {"cboList", "cboEdit"}) {
        auto& box = Get<ComboBox>(name);
        const Twips height = box.Height();
        EXPECT_GT(height, 0);
        EXPECT_NEAR(User().BoundsOf(box).height, height, Kit().TwipsPerPixelY() * 0.51);
        Counter resized(box.Resize);
        box.SetHeight(5000);
        EXPECT_EQ(box.Height(), height) << name;
        box.SetHeight(0);
        EXPECT_EQ(box.Height(), height) << name;
        EXPECT_NEAR(User().BoundsOf(box).height, height, Kit().TwipsPerPixelY() * 0.51);
        EXPECT_EQ(resized.Take(), 0) << name;
        box.Move({33.3F, 44.4F, 1555.5F, 1});
        EXPECT_EQ(box.Bounds(), (Rect{33.3F, 44.4F, 1555.5F, height})) << name;
        EXPECT_EQ(resized.Take(), 1) << name;
    }
}

TEST_P(Geometry, AFontChangesTheHeightOfAComboBox) {
    Show();
    Font large;
    large.size = 24;
    for (const char* name : {"cboList", "cboEdit"}) {
        auto& box = Get<ComboBox>(name);
        const Rect before = box.Bounds();
        Counter resized(box.Resize);
        box.SetFont(large);
        EXPECT_GT(box.Height(), before.height) << name;
        EXPECT_EQ(box.Width(), before.width) << name;
        EXPECT_EQ(resized.Take(), 1) << name;
        EXPECT_NEAR(User().BoundsOf(box).height, box.Height(), Kit().TwipsPerPixelY() * 0.51);
        box.SetFont({});
        EXPECT_EQ(box.Height(), before.height) << name;
    }
}

TEST_P(Geometry, AFontChangesNoOtherBounds) {
    Show();
    Font large;
    large.size = 24;
    large.bold = true;
    for (Control* control : Obedient()) {
        const Rect before = control->Bounds();
        control->SetFont(large);
        EXPECT_EQ(control->Bounds(), before) << control->Name();
        EXPECT_EQ(control->Font(), large);
        ExpectShownAt(*control);
    }
}

TEST_P(Geometry, TheStatusBarLiesAlongTheLowerEdge) {
    Show();
    auto& bar = Get<StatusBar>("sbrStatus");
    const auto expectAtTheBottom = [&](const char* when) {
        const Size inside = Form().ClientSize();
        const double pixel = Kit().TwipsPerPixelY() * 0.51;
        EXPECT_NEAR(bar.Left(), 0, pixel) << when;
        EXPECT_NEAR(bar.Width(), inside.width, pixel) << when;
        EXPECT_NEAR(bar.Top() + bar.Height(), inside.height, pixel) << when;
        EXPECT_GT(bar.Height(), 0) << when;
        ExpectShownAt(bar);
    };
    expectAtTheBottom("shown");
    bar.Move({500, 500, 500, 5000});
    expectAtTheBottom("moved");
    Form().Move({300, 300, 6000.5F, 5000.5F});
    expectAtTheBottom("resized by code");
    User().ResizeTo(Form(), {700, 500});
    expectAtTheBottom("resized by the user");
    Form().SetState(WindowState::Maximised);
    Settle();
    expectAtTheBottom("maximised");
}

TEST_P(Geometry, TheStatusBarIsInPlaceWhenTheFormsResizeIsRaised) {
    Show();
    auto& bar = Get<StatusBar>("sbrStatus");
    std::vector<Twips> gaps;
    Form().Resize.Subscribe(
        [&] { gaps.push_back(Form().ClientSize().height - bar.Top() - bar.Height()); });
    Form().SetHeight(6000);
    User().ResizeTo(Form(), {700, 500});
    ASSERT_GE(gaps.size(), 2U);
    for (const Twips gap : gaps)
        EXPECT_NEAR(gap, 0, Kit().TwipsPerPixelY() * 0.51);
}

TEST_P(Geometry, AFormsBoundsAreKeptExactly) {
    const Rect odd{321.25F, 123.75F, 6003.4F, 5001.1F};
    Form().Move(odd);
    EXPECT_EQ(Form().Bounds(), odd);
    Show();
    EXPECT_EQ(Form().Bounds(), odd);
    ExpectShownAt(Form());
    const Rect other{301.5F, 150.2F, 7003.4F, 4001.1F};
    Form().Move(other);
    Settle();
    EXPECT_EQ(Form().Bounds(), other);
    Form().Hide();
    Settle();
    EXPECT_EQ(Form().Bounds(), other);
    Show();
    EXPECT_EQ(Form().Bounds(), other);
}

TEST_P(Geometry, AFormsResizeIsRaisedOnceForEachNewSize) {
    Show();
    Counter resized(Form().Resize);
    Form().SetWidth(7000.3F);
    Settle();
    EXPECT_EQ(resized.Take(), 1);
    Form().SetLeft(200);
    Settle();
    EXPECT_EQ(resized.Take(), 0);
    Form().Move(Form().Bounds());
    Settle();
    EXPECT_EQ(resized.Take(), 0);
}

TEST_P(Geometry, AFormsInsideHasTheSizeOfItsDesign) {
    EXPECT_NEAR(Form().ClientSize().width, 8400, Kit().TwipsPerPixelX());
    EXPECT_NEAR(Form().ClientSize().height, 6600, Kit().TwipsPerPixelY());
    EXPECT_GT(Form().Height(), 6600);  // a caption and a menu bar
    Show();
    EXPECT_NEAR(Form().ClientSize().width, 8400, Kit().TwipsPerPixelX());
    EXPECT_NEAR(Form().ClientSize().height, 6600, Kit().TwipsPerPixelY());
}

TEST_P(Geometry, TheHeightOfAFormsInsideCanBeSet) {
    Show();
    const Rect before = Form().Bounds();
    Form().SetClientHeight(4500);
    EXPECT_NEAR(Form().ClientSize().height, 4500, Kit().TwipsPerPixelY());
    EXPECT_EQ(Form().Left(), before.left);
    EXPECT_EQ(Form().Top(), before.top);
    EXPECT_EQ(Form().Width(), before.width);
}

TEST_P(Geometry, AFormThatTheUserResizesTellsItsNewSize) {
    Show();
    const Rect before = Form().Bounds();
    Counter resized(Form().Resize);
    User().ResizeTo(Form(), {500, 400});
    EXPECT_EQ(resized.Take(), 1);
    EXPECT_NEAR(Form().Width(), 500 * Kit().TwipsPerPixelX(), 1);
    EXPECT_NEAR(Form().Height(), 400 * Kit().TwipsPerPixelY(), 1);
    EXPECT_EQ(Form().Left(), before.left);
    EXPECT_EQ(Form().Top(), before.top);
}

TEST_P(Geometry, AFormThatTheUserMovesKeepsItsSizeExactly) {
    Show();
    Form().Move({150, 150, 6003.4F, 5001.1F});
    Counter resized(Form().Resize);
    User().MoveTo(Form(), {33, 44});
    EXPECT_EQ(resized.Take(), 0);
    EXPECT_EQ(Form().Width(), 6003.4F);
    EXPECT_EQ(Form().Height(), 5001.1F);
    EXPECT_NEAR(Form().Left(), 33 * Kit().TwipsPerPixelX(), 8 * Kit().TwipsPerPixelX());
    EXPECT_NE(Form().Left(), 150);
}

TEST_P(Geometry, MaximisingKeepsTheNormalBounds) {
    Show();
    const Rect normal{300.5F, 300.5F, 6003.4F, 5001.1F};
    Form().Move(normal);
    Counter resized(Form().Resize);
    Form().SetState(WindowState::Maximised);
    Settle();
    EXPECT_EQ(Form().State(), WindowState::Maximised);
    EXPECT_GT(Form().Width(), normal.width);
    EXPECT_GT(Form().Height(), normal.height);
    EXPECT_GE(resized.Take(), 1);
    Form().SetState(WindowState::Normal);
    Settle();
    EXPECT_EQ(Form().State(), WindowState::Normal);
    EXPECT_EQ(Form().Bounds(), normal);
    EXPECT_GE(resized.Take(), 1);
}

TEST_P(Geometry, AFormCanBeShownMaximised) {
    const Rect normal = Form().Bounds();
    Form().SetState(WindowState::Maximised);
    EXPECT_EQ(Form().State(), WindowState::Maximised);
    Show();
    EXPECT_EQ(Form().State(), WindowState::Maximised);
    EXPECT_GT(Form().Width(), normal.width);
    Form().SetState(WindowState::Normal);
    Settle();
    EXPECT_EQ(Form().Bounds(), normal);
}

TEST_P(Geometry, AMinimisedFormIsNotLaidOut) {
    Show();
    const Rect before = Form().Bounds();
    Counter resized(Form().Resize);
    Form().SetState(WindowState::Minimised);
    Settle();
    EXPECT_EQ(Form().State(), WindowState::Minimised);
    EXPECT_EQ(Form().Bounds(), before);
    EXPECT_EQ(resized.Take(), 0);
    Form().SetState(WindowState::Normal);
    Settle();
    EXPECT_EQ(Form().State(), WindowState::Normal);
    EXPECT_EQ(Form().Bounds(), before);
    EXPECT_EQ(resized.Take(), 0);
}

TEST_P(Geometry, AFormIsCentredInTheWorkArea) {
    Form().Move({0, 0, 6000, 4500});
    Form().CentreOnScreen();
    const Rect area = Kit().WorkArea();
    EXPECT_NEAR(Form().Left() - area.left, area.left + area.width - Form().Left() - 6000, 1);
    EXPECT_NEAR(Form().Top() - area.top, area.top + area.height - Form().Top() - 4500, 1);
}

}  // namespace
}  // namespace ordalyn::contract
