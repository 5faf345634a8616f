// What Alt with a character does in a form.
#include "KeyboardFixture.h"

namespace ordalyn::toolkit {
namespace {

using test::Counter;
using AccessKeysTest = KeyboardFixture;

TEST_F(AccessKeysTest, LabelsAndFramesSpeakForWhatFollows) {
    Get<Label>("lblName").SetCaption("&Name");
    Get<Frame>("fraSide").SetCaption("Si&de");
    Side(1).SetChecked(true);
    Get<TextBox>("txtName").SetText("text");
    Get<CheckBox>("chkBox").SetFocus();
    EXPECT_TRUE(Alt('N'));
    EXPECT_EQ(FocusedName(), "txtName");
    EXPECT_EQ(test::MemoryToolkit::Of(Get<TextBox>("txtName")).selectionLength, 4U);
    EXPECT_TRUE(Alt('d'));
    EXPECT_EQ(FocusedName(), "optSide1");
}

TEST_F(AccessKeysTest, ALabelThatIsAStopTakesTheFocusItself) {
    auto& label = Get<Label>("lblStop");
    label.SetCaption("&Stop");
    Counter clicked(label.Click);
    EXPECT_TRUE(Alt('S'));
    EXPECT_EQ(FocusedName(), "lblStop");
    EXPECT_EQ(clicked.Take(), 0);
}

TEST_F(AccessKeysTest, ALabelBehindTheLastStopGoesNowhere) {
    Get<Label>("lblStop").SetTabStop(false);
    Get<Label>("lblStop").SetCaption("&Stop");
    Get<CommandButton>("cmdOk").SetEnabled(false);
    Get<CheckBox>("chkBox").SetFocus();
    EXPECT_TRUE(Alt('S'));
    EXPECT_EQ(FocusedName(), "chkBox");
}

TEST_F(AccessKeysTest, ButtonsAndTogglesArePressed) {
    Get<CommandButton>("cmdCancel").SetCaption("&Go");
    Get<CheckBox>("chkBox").SetCaption("&Box");
    Side(1).SetCaption("O&ne");
    Counter pressed(Get<CommandButton>("cmdCancel").Click);
    EXPECT_TRUE(Alt('G'));
    EXPECT_EQ(FocusedName(), "cmdCancel");
    EXPECT_EQ(pressed.Take(), 1);
    EXPECT_TRUE(Alt('b'));
    EXPECT_EQ(FocusedName(), "chkBox");
    EXPECT_TRUE(Get<CheckBox>("chkBox").Checked());
    EXPECT_TRUE(Alt('N'));
    EXPECT_EQ(FocusedName(), "optSide1");
    EXPECT_TRUE(Side(1).Checked());
}

TEST_F(AccessKeysTest, AButtonThatItsFocusDisablesIsNotPressed) {
    auto& button = Get<CommandButton>("cmdCancel");
    button.SetCaption("&Go");
    Counter pressed(button.Click);
    button.GotFocus.Subscribe([&] { button.SetEnabled(false); });
    EXPECT_TRUE(Alt('G'));
    EXPECT_EQ(pressed.Take(), 0);
}

TEST_F(AccessKeysTest, AKeyOfSeveralControlsGoesFromOneToTheNext) {
    Get<CheckBox>("chkBox").SetCaption("&Same");
    Get<CommandButton>("cmdOk").SetCaption("al&so");
    Get<Label>("lblName").SetCaption("&s");
    Counter pressed(Get<CommandButton>("cmdOk").Click);
    Get<TextBox>("txtName").SetFocus();
    for (const char* name : {"chkBox", "cmdOk", "txtName", "chkBox"}) {
        EXPECT_TRUE(Alt('S'));
        EXPECT_EQ(FocusedName(), name);
    }
    EXPECT_EQ(pressed.Take(), 0);
    EXPECT_FALSE(Get<CheckBox>("chkBox").Checked());
    // From the first one on when nothing has the focus.
    EXPECT_TRUE(keyboard.AccessKey(nullptr, 'S'));
    EXPECT_EQ(FocusedName(), "txtName");
}

TEST_F(AccessKeysTest, WhatCannotBeUsedHasNoAccessKey) {
    Get<CheckBox>("chkBox").SetCaption("&Same");
    Get<CommandButton>("cmdOk").SetCaption("&Same");
    Get<CommandButton>("cmdOk").SetEnabled(false);
    Get<TextBox>("txtName").SetFocus();
    EXPECT_TRUE(Alt('S'));
    EXPECT_TRUE(Get<CheckBox>("chkBox").Checked()) << "the only one";
    Get<CheckBox>("chkBox").SetVisible(false);
    EXPECT_FALSE(Alt('S'));
    EXPECT_FALSE(Alt(0));
}

}  // namespace
}  // namespace ordalyn::toolkit
