// What all controls have in common.
#include <cmath>
#include <limits>

#include "SampleTest.h"

namespace ordalyn::toolkit {
namespace {

using test::Counter;
using ControlTest = test::SampleTest;

TEST(Caption, WithoutItsKeyIsWhatAReaderSays) {
    EXPECT_EQ(CaptionWithoutKey("Status &Bar"), "Status Bar");
    EXPECT_EQ(CaptionWithoutKey("R&&D"), "R&D");
    EXPECT_EQ(CaptionWithoutKey("状态栏(&B)"), "状态栏");
    EXPECT_EQ(CaptionWithoutKey("a (&"), "a (&");
    EXPECT_EQ(CaptionWithoutKey("&"), "&");
    EXPECT_EQ(CaptionWithoutKey(""), "");
}

TEST_F(ControlTest, TabStopsAtTheKindsThatAUserWorksWith) {
    std::vector<Kind> kinds;
    for (const auto& control : form.Controls()) {
        if (control->TabStop() && control->Name() != "optSide" && control->Name() != "cboList")
            kinds.push_back(control->ControlKind());
    }
    EXPECT_THAT(kinds, testing::ElementsAre(Kind::OptionButton, Kind::CheckBox, Kind::TextBox,
                                            Kind::ComboBox, Kind::ListView, Kind::TabStrip,
                                            Kind::ToolBar, Kind::CommandButton));
    EXPECT_FALSE(form.TabStop());
}

TEST_F(ControlTest, ATabStopCanBeAddedAndTakenAway) {
    auto& label = Get<Label>("lblText");
    label.SetTabStop(true);
    EXPECT_TRUE(label.TabStop());
    EXPECT_EQ(On(label).tabStop, true);
    label.SetTabStop(false);
    EXPECT_FALSE(label.TabStop());
    EXPECT_EQ(On(label).tabStop, false);
}

// A window lays itself out and paints anew for each of these.
TEST_F(ControlTest, APeerIsToldOfItsLooksOnlyWhatIsNew) {
    auto& label = Get<Label>("lblText");
    const int before = On(label).looksTold;
    label.SetFont(label.Font());
    label.SetRightToLeft(false);
    label.SetTextAlignment(Alignment::Left);
    EXPECT_EQ(On(label).looksTold, before);
    // What a kind looks like by itself is not known here.
    label.SetBorder(BorderStyle::None);
    label.SetForeColor(kWindowText);
    EXPECT_EQ(On(label).looksTold, before + 2);
    for (int round = 0; round < 2; ++round) {
        Font font;
        font.size = 12;
        label.SetFont(font);
        label.SetBorder(BorderStyle::FixedSingle);
        label.SetLook(Appearance::Flat);
        label.SetForeColor(0x0000FF);
        label.SetBackColor(0x00FF00);
        label.SetRightToLeft(true);
        label.SetTextAlignment(Alignment::Right);
        EXPECT_EQ(On(label).looksTold, before + 9);
    }
}

TEST_F(ControlTest, ALabelsTextCanBePlain) {
    auto& label = Get<Label>("lblText");
    label.SetCaption("R&D.log");
    EXPECT_EQ(label.AccessKey(), U'd');
    label.SetPlainText(true);
    EXPECT_TRUE(On(label).plainText);
    EXPECT_EQ(label.AccessKey(), 0U);
    label.SetPlainText(false);
    EXPECT_FALSE(On(label).plainText);
    EXPECT_EQ(label.AccessKey(), U'd');
}

TEST_F(ControlTest, GeometryIsKeptExactly) {
    Control& label = Get<Label>("lblText");
    const Rect odd{1.25F, -7.5F, 33.3F, 0.1F};
    label.Move(odd);
    EXPECT_EQ(label.Bounds(), odd);
    EXPECT_EQ(On(label).bounds, odd);
    label.SetLeft(1);
    label.SetTop(2);
    label.SetWidth(3);
    label.SetHeight(4);
    EXPECT_EQ(label.Bounds(), (Rect{1, 2, 3, 4}));
    EXPECT_EQ(label.Left(), 1);
    EXPECT_EQ(label.Top(), 2);
    EXPECT_EQ(label.Width(), 3);
    EXPECT_EQ(label.Height(), 4);
}

TEST_F(ControlTest, ANegativeSizeThrowsAndChangesNothing) {
    Control& label = Get<Label>("lblText");
    const Rect before = label.Bounds();
    Counter resized(label.Resize);
    EXPECT_THROW(label.SetWidth(-1), InvalidPropertyValue);
    EXPECT_THROW(label.SetHeight(-0.5F), InvalidPropertyValue);
    EXPECT_THROW(label.Move({0, 0, 5, -5}), InvalidPropertyValue);
    EXPECT_EQ(label.Bounds(), before);
    EXPECT_EQ(On(label).bounds, before);
    EXPECT_EQ(resized.Take(), 0);
}

TEST_F(ControlTest, ASizeThatIsNoNumberThrows) {
    const float none = std::numeric_limits<float>::quiet_NaN();
    EXPECT_THROW(Get<Label>("lblText").SetWidth(none), InvalidPropertyValue);
    EXPECT_THROW(form.SetHeight(none), InvalidPropertyValue);
    EXPECT_THROW(form.SetClientHeight(none), InvalidPropertyValue);
}

TEST_F(ControlTest, ASizeOfNoughtAndANegativePlaceAreAllowed) {
    Control& label = Get<Label>("lblText");
    EXPECT_NO_THROW(label.Move({-100, -200, 0, 0}));
    EXPECT_EQ(label.Bounds(), (Rect{-100, -200, 0, 0}));
}

TEST_F(ControlTest, ResizeIsRaisedWhenTheSizeChanges) {
    Control& label = Get<Label>("lblText");
    Counter resized(label.Resize);
    label.SetLeft(1);
    label.SetTop(1);
    EXPECT_EQ(resized.Take(), 0);
    label.SetWidth(label.Width());
    EXPECT_EQ(resized.Take(), 0);
    label.SetWidth(77);
    EXPECT_EQ(resized.Take(), 1);
    label.Move({0, 0, 78, 79});
    EXPECT_EQ(resized.Take(), 1);
}

TEST_F(ControlTest, TheBoundsAreNewWhenResizeIsRaised) {
    Control& label = Get<Label>("lblText");
    Twips seen = 0;
    label.Resize.Subscribe([&] { seen = label.Width(); });
    label.SetWidth(77);
    EXPECT_EQ(seen, 77);
}

TEST_F(ControlTest, AKindThatFixesItsHeightAnswersIt) {
    auto& combo = Get<ComboBox>("cboList");
    EXPECT_NE(combo.Height(), 999);
    const Twips height = combo.Height();
    combo.SetHeight(5);
    EXPECT_EQ(combo.Height(), height);
    combo.SetWidth(1234.5F);
    EXPECT_EQ(combo.Width(), 1234.5F);
}

TEST_F(ControlTest, ALargerFontMakesAComboBoxHigher) {
    auto& combo = Get<ComboBox>("cboList");
    const Twips height = combo.Height();
    Counter resized(combo.Resize);
    Font large;
    large.size = 20;
    combo.SetFont(large);
    EXPECT_GT(combo.Height(), height);
    EXPECT_EQ(resized.Take(), 1);
    EXPECT_EQ(combo.Font(), large);
    EXPECT_EQ(On(combo).font, large);
}

TEST_F(ControlTest, ItsOwnFlagSaysWhetherItIsVisible) {
    Control& option = Get<OptionButton>("optSide", 0);
    Get<Frame>("fraOne").SetVisible(false);
    EXPECT_TRUE(option.Visible());
    option.SetVisible(false);
    EXPECT_FALSE(option.Visible());
    EXPECT_FALSE(On(option).visible);
}

TEST_F(ControlTest, StateIsShown) {
    Control& label = Get<Label>("lblText");
    label.SetEnabled(false);
    EXPECT_FALSE(label.Enabled());
    EXPECT_FALSE(On(label).enabled);
    label.SetCaption("&Größe");
    EXPECT_EQ(label.Caption(), "&Größe");
    EXPECT_EQ(On(label).caption, "&Größe");
    label.SetToolTip("tip");
    EXPECT_EQ(label.ToolTip(), "tip");
    EXPECT_EQ(On(label).toolTip, "tip");
    label.SetMousePointer(Pointer::Hand);
    EXPECT_EQ(label.MousePointer(), Pointer::Hand);
    EXPECT_EQ(On(label).pointer, Pointer::Hand);
    label.SetRightToLeft(true);
    EXPECT_TRUE(label.RightToLeft());
    EXPECT_TRUE(On(label).rightToLeft);
    EXPECT_EQ(On(label).alignment, Alignment::Left);
    label.SetTextAlignment(Alignment::Right);
    EXPECT_EQ(label.TextAlignment(), Alignment::Right);
    EXPECT_EQ(On(label).alignment, Alignment::Right);
    EXPECT_TRUE(On(label).rightToLeft);
}

TEST_F(ControlTest, OneColorStaysWhenTheOtherIsSet) {
    Control& label = Get<Label>("lblText");
    EXPECT_EQ(label.ForeColor(), kWindowText);
    EXPECT_EQ(label.BackColor(), kButtonFace);
    label.SetForeColor(0x0000FF);
    label.SetBackColor(0x00FF00);
    EXPECT_EQ(On(label).foreground, 0x0000FF);
    EXPECT_EQ(On(label).background, 0x00FF00);
    label.SetForeColor(0x112233);
    EXPECT_EQ(On(label).background, 0x00FF00);
    EXPECT_EQ(label.ForeColor(), 0x112233);
    EXPECT_EQ(label.BackColor(), 0x00FF00);
}

TEST_F(ControlTest, WhatIsTypedInHasTheBackgroundOfAWindow) {
    for (Control* control : {static_cast<Control*>(&Get<TextBox>("txtBox")),
                             static_cast<Control*>(&Get<ComboBox>("cboList")),
                             static_cast<Control*>(&Get<ListView>("SourceListView"))}) {
        EXPECT_EQ(control->BackColor(), kWindowBackground) << control->Name();
        EXPECT_EQ(On(*control).background, kWindowBackground) << control->Name();
    }
}

TEST_F(ControlTest, BorderAndLookAreIndependent) {
    Control& list = Get<ListView>("SourceListView");
    EXPECT_EQ(list.Border(), BorderStyle::FixedSingle);
    list.SetLook(Appearance::Flat);
    EXPECT_EQ(On(list).border, BorderStyle::FixedSingle);
    EXPECT_EQ(On(list).appearance, Appearance::Flat);
    list.SetBorder(BorderStyle::None);
    EXPECT_EQ(On(list).border, BorderStyle::None);
    EXPECT_EQ(list.Look(), Appearance::Flat);
}

TEST_F(ControlTest, NothingContainsItself) {
    Control& frame = Get<Frame>("fraOne");
    EXPECT_THROW(frame.SetContainer(frame), InvalidPropertyValue);
    EXPECT_EQ(frame.Container(), &form);
}

TEST_F(ControlTest, MovingIntoAnotherContainerKeepsTheBounds) {
    Control& label = Get<Label>("lblText");
    Control& picture = Get<PictureBox>("picBox");
    const Rect before = label.Bounds();
    label.SetContainer(picture);
    EXPECT_EQ(label.Container(), &picture);
    EXPECT_EQ(label.Bounds(), before);
    EXPECT_EQ(On(label).container, static_cast<ControlPeer*>(&picture.peer()));
}

TEST_F(ControlTest, WhatIsAskedOfThePeerArrives) {
    Control& label = Get<Label>("lblText");
    label.BringToFront();
    label.Refresh();
    label.Refresh();
    EXPECT_EQ(On(label).broughtToFront, 1);
    EXPECT_EQ(On(label).refreshes, 2);
    label.SetFocus();
    EXPECT_EQ(kit.focus, &label);
}

TEST_F(ControlTest, TheSystemMayChangeTheBounds) {
    Control& label = Get<Label>("lblText");
    Counter resized(label.Resize);
    label.SystemChangedBounds({5, 6, label.Width(), label.Height()});
    EXPECT_EQ(resized.Take(), 0);
    EXPECT_EQ(label.Left(), 5);
    label.SystemChangedBounds({5, 6, 7, 8});
    EXPECT_EQ(resized.Take(), 1);
    EXPECT_EQ(label.Bounds(), (Rect{5, 6, 7, 8}));
}

TEST_F(ControlTest, AClickOfTheUserIsRaised) {
    Control& button = Get<CommandButton>("cmdOk");
    Counter clicked(button.Click);
    button.UserClicked();
    EXPECT_EQ(clicked.Take(), 1);
}

}  // namespace
}  // namespace ordalyn::toolkit
