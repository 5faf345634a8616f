// Keys: forms first, then controls; shortcuts; Tab, Enter and Escape.
#include "contract/toolkit/ToolkitContract.h"

namespace ordalyn::contract {
namespace {

using namespace toolkit;
using testing::ElementsAre;

class Keys : public ToolkitContract {
  protected:
    void SetUp() override { Show(); }
    void Press(int key, Modifiers modifiers = {}) { User().PressKey(Form(), key, modifiers); }
};
INSTANTIATE_TEST_SUITE_P(Toolkit, Keys, AllRealisations(), RealisationName);

TEST_P(Keys, GoToTheFormAndThenToTheControlWithTheFocus) {
    auto& box = Get<TextBox>("txtBox");
    std::vector<std::string> order;
    Form().KeyDown.Subscribe([&](int, Modifiers) { order.emplace_back("form down"); });
    Form().KeyUp.Subscribe([&](int, Modifiers) { order.emplace_back("form up"); });
    box.KeyDown.Subscribe([&](int, Modifiers) { order.emplace_back("box down"); });
    box.KeyUp.Subscribe([&](int, Modifiers) { order.emplace_back("box up"); });
    box.SetFocus();
    Settle();
    Press(key::F3);
    EXPECT_THAT(order, ElementsAre("form down", "box down", "form up", "box up"));
}

TEST_P(Keys, InsideAnEditableComboBoxGoToTheForm) {
    Counter down(Form().KeyDown);
    Counter boxDown(Get<ComboBox>("cboEdit").KeyDown);
    Get<ComboBox>("cboEdit").SetFocus();
    Settle();
    Press(key::F3);
    EXPECT_EQ(down.Take(), 1);
    EXPECT_EQ(boxDown.Take(), 1);
}

TEST_P(Keys, TellWhichOneAndWithWhat) {
    std::vector<std::pair<int, Modifiers>> seen;
    Form().KeyDown.Subscribe([&](int key, Modifiers m) { seen.emplace_back(key, m); });
    Press(key::F3, {true, false, false});
    Press('G', {false, true, false});
    Press('G', {true, true, false});
    ASSERT_EQ(seen.size(), 3U);
    EXPECT_EQ(seen[0], (std::pair<int, Modifiers>(key::F3, {true, false, false})));
    EXPECT_EQ(seen[1], (std::pair<int, Modifiers>('G', {false, true, false})));
    EXPECT_EQ(seen[2], (std::pair<int, Modifiers>('G', {true, true, false})));
}

TEST_P(Keys, AShortcutChoosesItsMenuItemWhateverHasTheFocus) {
    Counter chosen(Form().Menu("mnuFileOpen").Click);
    for (Control* control : {static_cast<Control*>(&Get<TextBox>("txtBox")),
                             static_cast<Control*>(&Get<ListView>("lvwRows")),
                             static_cast<Control*>(&Get<ComboBox>("cboEdit")),
                             static_cast<Control*>(&Get<ComboBox>("cboList"))}) {
        control->SetFocus();
        Settle();
        Press('O', kControlKey);
        EXPECT_EQ(chosen.Take(), 1) << control->Name();
    }
    EXPECT_EQ(Get<TextBox>("txtBox").Text(), "");
    EXPECT_EQ(Get<ComboBox>("cboEdit").Text(), "");
}

TEST_P(Keys, AShortcutNeverReachesTheControl) {
    auto& box = Get<TextBox>("txtBox");
    box.SetFocus();
    Settle();
    Counter down(box.KeyDown);
    Counter chosen(Form().Menu("mnuFileRecentFirst").Click);
    Press(key::F4);
    EXPECT_EQ(chosen.Take(), 1);
    EXPECT_EQ(down.Take(), 0);
}

TEST_P(Keys, AShortcutNeedsItsModifiers) {
    Counter open(Form().Menu("mnuFileOpen").Click);
    Counter first(Form().Menu("mnuFileRecentFirst").Click);
    Press('O');
    Press('O', {true, true, false});
    Press(key::F4, kControlKey);
    EXPECT_EQ(open.Take(), 0);
    EXPECT_EQ(first.Take(), 0);
}

TEST_P(Keys, TheShortcutOfADisabledItemOrOfADisabledMenuDoesNothing) {
    MenuItem& open = Form().Menu("mnuFileOpen");
    Counter chosen(open.Click);
    open.SetEnabled(false);
    Press('O', kControlKey);
    open.SetEnabled(true);
    Form().Menu("mnuFile").SetEnabled(false);
    Press('O', kControlKey);
    EXPECT_EQ(chosen.Take(), 0);
    Form().Menu("mnuFile").SetEnabled(true);
    Press('O', kControlKey);
    EXPECT_EQ(chosen.Take(), 1);
}

TEST_P(Keys, EnterAndEscapePressTheFormsButtons) {
    Counter ok(Get<CommandButton>("cmdOk").Click);
    Counter cancel(Get<CommandButton>("cmdCancel").Click);
    Get<TextBox>("txtBox").SetFocus();
    Settle();
    Press(key::Enter);
    EXPECT_EQ(ok.Take(), 1);
    EXPECT_EQ(cancel.Take(), 0);
    Press(key::Escape);
    EXPECT_EQ(ok.Take(), 0);
    EXPECT_EQ(cancel.Take(), 1);
}

TEST_P(Keys, EnterPressesTheButtonThatHasTheFocus) {
    Counter ok(Get<CommandButton>("cmdOk").Click);
    Counter cancel(Get<CommandButton>("cmdCancel").Click);
    Get<CommandButton>("cmdCancel").SetFocus();
    Settle();
    Press(key::Enter);
    EXPECT_EQ(ok.Take(), 0);
    EXPECT_EQ(cancel.Take(), 1);
}

TEST_P(Keys, ADisabledOrHiddenButtonIsNotPressedByAKey) {
    Counter ok(Get<CommandButton>("cmdOk").Click);
    Counter cancel(Get<CommandButton>("cmdCancel").Click);
    Get<TextBox>("txtBox").SetFocus();
    Get<CommandButton>("cmdOk").SetEnabled(false);
    Get<CommandButton>("cmdCancel").SetVisible(false);
    Settle();
    Press(key::Enter);
    Press(key::Escape);
    EXPECT_EQ(ok.Take(), 0);
    EXPECT_EQ(cancel.Take(), 0);
}

TEST_P(Keys, TabWalksTheControlsInDesignOrder) {
    Get<CheckBox>("chkBox").SetFocus();
    Settle();
    std::vector<std::string> walked;
    for (int i = 0; i < 8; ++i) {
        Press(key::Tab);
        for (const auto& control : Form().Controls()) {
            if (User().HasFocus(*control))
                walked.push_back(control->Name());
        }
    }
    EXPECT_THAT(walked, ElementsAre("txtBox", "cboList", "cboEdit", "lvwRows", "tabStrip", "cmdOk",
                                    "cmdCancel", "optSide"));
    Press(key::Tab, {true, false, false});
    EXPECT_TRUE(User().HasFocus(Get<CommandButton>("cmdCancel")));
}

TEST_P(Keys, TabOrderStaysWhenAControlIsBroughtToTheFront) {
    Get<ComboBox>("cboEdit").BringToFront();
    Get<TextBox>("txtBox").SetFocus();
    Settle();
    Press(key::Tab);
    EXPECT_TRUE(User().HasFocus(Get<ComboBox>("cboList")));
}

TEST_P(Keys, TabLeavesOutWhatIsHiddenOrDisabled) {
    Get<TextBox>("txtBox").SetEnabled(false);
    Get<ComboBox>("cboList").SetVisible(false);
    Get<CheckBox>("chkBox").SetFocus();
    Settle();
    Press(key::Tab);
    EXPECT_TRUE(User().HasFocus(Get<ComboBox>("cboEdit")));
}

TEST_P(Keys, TheFirstTabStopHasTheFocusOfANewForm) {
    auto dialog = NewForm();
    dialog->Show();
    Settle();
    EXPECT_TRUE(User().HasFocus(dialog->Get<TextBox>("txtName")));
}

TEST_P(Keys, OneOptionOfAGroupIsATabStop) {
    Get<OptionButton>("optSide", 1).SetChecked(true);
    Get<CommandButton>("cmdCancel").SetFocus();
    Settle();
    Press(key::Tab);
    EXPECT_TRUE(User().HasFocus(Get<OptionButton>("optSide", 1)));
    Press(key::Tab);
    EXPECT_TRUE(User().HasFocus(Get<CheckBox>("chkInside")));
}

TEST_P(Keys, HandlersMayUnloadTheForm) {
    Form().KeyDown.Subscribe([&](int key, Modifiers) {
        if (key == key::F3)
            Form().Unload();
    });
    Get<TextBox>("txtBox").SetFocus();
    Settle();
    Press(key::F3);
    EXPECT_TRUE(Form().Unloaded());
    EXPECT_TRUE(User().boxes.empty());
}

}  // namespace
}  // namespace ordalyn::contract
