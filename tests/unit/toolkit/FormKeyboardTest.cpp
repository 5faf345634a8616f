// The rules of the keyboard, as each realisation of the toolkit uses them.
#include "KeyboardFixture.h"

namespace ordalyn::toolkit {
namespace {

using test::Counter;
using testing::ElementsAre;
using testing::IsEmpty;

class FormKeyboardTest : public KeyboardFixture {
  protected:
    // What the key reaches, in this order.
    void Record(std::vector<std::string>& order) {
        form->KeyDown.Subscribe([&](int, Modifiers) { order.emplace_back("form"); });
        form->Menu("mnuFileOpen").Click.Subscribe([&] { order.emplace_back("menu"); });
        for (const char* name : {"lblStop", "cboText"})
            Get<Control>(name).KeyDown.Subscribe(
                [&](int, Modifiers) { order.emplace_back("control"); });
        Get<Label>("lblStop").Click.Subscribe([&] { order.emplace_back("used by control"); });
        Get<CommandButton>("cmdOk").Click.Subscribe([&] { order.emplace_back("button"); });
    }
};

// In which order a key is offered.

TEST_F(FormKeyboardTest, AKeyGoesToTheFormThenToTheControlThenToTheRules) {
    std::vector<std::string> order;
    Record(order);
    Get<Label>("lblStop").SetFocus();
    EXPECT_TRUE(Press(key::Space));
    EXPECT_THAT(order, ElementsAre("form", "control", "used by control"));
    order.clear();
    EXPECT_TRUE(Press(key::Enter));
    EXPECT_THAT(order, ElementsAre("form", "control", "button"));
    order.clear();
    EXPECT_FALSE(Press('A'));
    EXPECT_THAT(order, ElementsAre("form", "control"));
}

TEST_F(FormKeyboardTest, AShortcutIsUsedUpByTheForm) {
    std::vector<std::string> order;
    Record(order);
    Get<Label>("lblStop").SetFocus();
    EXPECT_TRUE(Press(key::F4));
    EXPECT_THAT(order, ElementsAre("form", "menu"));
}

TEST_F(FormKeyboardTest, F1AsksForThePageOfTheForm) {
    std::vector<std::string> pages;
    kit.SetHelpHandler([&](Form& asking, std::string_view page) {
        EXPECT_EQ(&asking, form.get());
        pages.emplace_back(page);
    });
    Get<Label>("lblStop").SetFocus();
    EXPECT_FALSE(Press(key::F1));
    form->SetHelpPage("find");
    EXPECT_TRUE(Press(key::F1));
    EXPECT_FALSE(PressHeld(key::F1));
    EXPECT_FALSE(Press(key::F1, kShift));
    EXPECT_THAT(pages, ElementsAre("find"));
    kit.SetHelpHandler(nullptr);
    EXPECT_TRUE(Press(key::F1));
}

TEST_F(FormKeyboardTest, AnOpenListGetsEnterAndEscapeAfterTheForm) {
    std::vector<std::string> order;
    Record(order);
    Counter cancel(Get<CommandButton>("cmdCancel").Click);
    auto& box = Get<ComboBox>("cboText");
    box.SetFocus();
    test::MemoryToolkit::Mutable(box).droppedDown = true;
    for (const int key : {key::Enter, key::Escape}) {
        EXPECT_FALSE(Press(key));
        EXPECT_THAT(std::exchange(order, {}), ElementsAre("form"));
    }
    EXPECT_TRUE(Press(key::Tab));
    EXPECT_THAT(std::exchange(order, {}), ElementsAre("form", "control"));
    box.SetFocus();
    test::MemoryToolkit::Mutable(box).droppedDown = false;
    EXPECT_TRUE(Press(key::Enter));
    EXPECT_TRUE(Press(key::Escape));
    EXPECT_THAT(order, ElementsAre("form", "control", "button", "form", "control"));
    EXPECT_EQ(cancel.Take(), 1);
}

TEST_F(FormKeyboardTest, ShiftF10IsTheContextMenuKeyExceptInTexts) {
    std::vector<std::string> keys;
    form->KeyDown.Subscribe([&](int key, Modifiers) { keys.push_back(std::to_string(key)); });
    form->KeyUp.Subscribe([&](int key, Modifiers) { keys.push_back("up " + std::to_string(key)); });
    Get<Label>("lblStop").SetFocus();
    EXPECT_TRUE(Press(key::F10, kShift));
    EXPECT_THAT(std::exchange(keys, {}), ElementsAre("93", "up 93"));
    EXPECT_TRUE(Press(KeyPress{.key = key::F10, .modifiers = kShift, .held = true}));
    EXPECT_THAT(keys, IsEmpty());
    EXPECT_FALSE(Press(key::F10));
    EXPECT_THAT(std::exchange(keys, {}), ElementsAre("121"));
    for (const char* text : {"txtName", "cboText"}) {
        Get<Control>(text).SetFocus();
        EXPECT_FALSE(Press(key::F10, kShift));
    }
    EXPECT_THAT(keys, ElementsAre("121", "121"));
}

TEST_F(FormKeyboardTest, AKeyThatTheControlUsesIsNotUsedTwice) {
    Get<Label>("lblStop").SetFocus();
    Counter clicked(Get<Label>("lblStop").Click);
    EXPECT_TRUE(PressHeld(key::Space));
    EXPECT_EQ(clicked.Take(), 0);
    EXPECT_FALSE(Press(key::Space, kShift)) << "it is only for the key alone";
    EXPECT_EQ(clicked.Take(), 0);
}

TEST_F(FormKeyboardTest, KeysWithControlOrAltOrForMenusOnlyRaiseEvents) {
    Counter down(form->KeyDown);
    Counter ok(Get<CommandButton>("cmdOk").Click);
    Get<TextBox>("txtName").SetFocus();
    for (const Modifiers modifiers : {Modifiers{.control = true}, Modifiers{.alt = true}}) {
        EXPECT_FALSE(Press(key::Enter, modifiers));
        EXPECT_FALSE(Press(key::Tab, modifiers));
        EXPECT_EQ(down.Take(), 2);
    }
    EXPECT_FALSE(Press(KeyPress{.key = key::Enter, .forMenus = true}));
    EXPECT_EQ(down.Take(), 1);
    EXPECT_EQ(ok.Take(), 0);
    EXPECT_EQ(FocusedName(), "txtName");
}

TEST_F(FormKeyboardTest, NothingFollowsWhenTheFormIsUnloadedMeanwhile) {
    std::vector<std::string> order;
    Record(order);
    form->KeyDown.Subscribe([&](int, Modifiers) { form->Unload(); });
    Get<Label>("lblStop").SetFocus();
    EXPECT_TRUE(Press(key::Space));
    EXPECT_THAT(order, ElementsAre("form"));
}

TEST_F(FormKeyboardTest, NothingFollowsWhenTheControlUnloadsTheForm) {
    auto& label = Get<Label>("lblStop");
    Counter clicked(label.Click);
    label.KeyDown.Subscribe([&](int, Modifiers) { form->Unload(); });
    label.SetFocus();
    EXPECT_TRUE(Press(key::Space));
    EXPECT_EQ(clicked.Take(), 0);
}

TEST_F(FormKeyboardTest, TheFormMayBeDestroyedByTheItemOfAShortcut) {
    form->Menu("mnuFileOpen").Click.Subscribe([&] { form.reset(); });
    Control* const focused = Focused();
    EXPECT_TRUE(keyboard.KeyDown(focused, {.key = key::F4}));
    EXPECT_EQ(form, nullptr);
}

TEST_F(FormKeyboardTest, AReleaseGoesToTheFormAndThenToTheControl) {
    std::vector<std::string> order;
    auto& box = Get<TextBox>("txtName");
    form->KeyUp.Subscribe([&](int, Modifiers) { order.emplace_back("form"); });
    box.KeyUp.Subscribe([&](int, Modifiers) { order.emplace_back("box"); });
    EXPECT_FALSE(keyboard.KeyUp(&box, key::F3, {}));
    EXPECT_FALSE(keyboard.KeyUp(nullptr, key::F3, {}));
    EXPECT_THAT(std::exchange(order, {}), ElementsAre("form", "box", "form"));
    form->KeyUp.Subscribe([&](int, Modifiers) { form->Unload(); });
    EXPECT_TRUE(keyboard.KeyUp(&box, key::F3, {}));
    EXPECT_THAT(order, ElementsAre("form"));
}

// Enter and Escape.

TEST_F(FormKeyboardTest, EnterPressesTheButtonWithTheFocusOrElseTheDefaultButton) {
    Counter ok(Get<CommandButton>("cmdOk").Click);
    Counter cancel(Get<CommandButton>("cmdCancel").Click);
    Get<CheckBox>("chkBox").SetFocus();
    EXPECT_TRUE(Press(key::Enter));
    EXPECT_EQ(ok.Take(), 1);
    Get<CommandButton>("cmdCancel").SetFocus();
    EXPECT_TRUE(Press(key::Enter));
    EXPECT_EQ(ok.Take(), 0);
    EXPECT_EQ(cancel.Take(), 1);
    EXPECT_TRUE(keyboard.KeyDown(nullptr, {.key = key::Enter}));
    EXPECT_EQ(ok.Take(), 1);
    EXPECT_FALSE(Get<CheckBox>("chkBox").Checked());
}

TEST_F(FormKeyboardTest, EscapePressesTheCancelButtonWhateverHasTheFocus) {
    Counter ok(Get<CommandButton>("cmdOk").Click);
    Counter cancel(Get<CommandButton>("cmdCancel").Click);
    Get<CommandButton>("cmdOk").SetFocus();
    EXPECT_TRUE(Press(key::Escape));
    EXPECT_EQ(ok.Take(), 0);
    EXPECT_EQ(cancel.Take(), 1);
}

TEST_F(FormKeyboardTest, AButtonThatCannotBeUsedLeavesTheKey) {
    Counter ok(Get<CommandButton>("cmdOk").Click);
    Get<CommandButton>("cmdOk").SetEnabled(false);
    Get<CommandButton>("cmdCancel").SetVisible(false);
    Get<TextBox>("txtName").SetFocus();
    EXPECT_FALSE(Press(key::Enter));
    EXPECT_FALSE(Press(key::Escape));
    EXPECT_EQ(ok.Take(), 0);
}

TEST_F(FormKeyboardTest, AKeyThatIsHeldDownPressesOnce) {
    Counter ok(Get<CommandButton>("cmdOk").Click);
    Counter cancel(Get<CommandButton>("cmdCancel").Click);
    Get<TextBox>("txtName").SetFocus();
    EXPECT_TRUE(PressHeld(key::Enter));
    EXPECT_TRUE(PressHeld(key::Escape));
    EXPECT_EQ(ok.Take() + cancel.Take(), 0);
    EXPECT_TRUE(PressHeld(key::Tab));
    EXPECT_EQ(FocusedName(), "optSide0") << "the focus moves on";
}

// Tab.

TEST_F(FormKeyboardTest, TabWalksTheStopsInDesignOrderAndRoundTheEnds) {
    std::vector<std::string> walked;
    Get<TextBox>("txtName").SetFocus();
    for (int i = 0; i < 7; ++i) {
        EXPECT_TRUE(Press(key::Tab));
        walked.push_back(FocusedName());
    }
    EXPECT_THAT(walked, ElementsAre("optSide0", "optAlone", "cboText", "chkBox", "lblStop", "cmdOk",
                                    "txtName"));
    walked.clear();
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(Press(key::Tab, kShift));
        walked.push_back(FocusedName());
    }
    EXPECT_THAT(walked, ElementsAre("cmdOk", "lblStop", "chkBox"));
}

TEST_F(FormKeyboardTest, TabBeginsAtAnEndWhenNothingHasTheFocus) {
    Get<Label>("lblName").SetTabStop(true);  // the form's first control
    EXPECT_TRUE(keyboard.KeyDown(nullptr, {.key = key::Tab}));
    EXPECT_EQ(FocusedName(), "lblName");
    EXPECT_TRUE(keyboard.KeyDown(nullptr, {.key = key::Tab, .modifiers = kShift}));
    EXPECT_EQ(FocusedName(), "cmdOk");
}

TEST_F(FormKeyboardTest, TabLeavesOutWhatCannotBeUsed) {
    Get<Frame>("fraSide").SetEnabled(false);
    Get<OptionButton>("optAlone").SetVisible(false);
    Get<ComboBox>("cboText").SetTabStop(false);
    Get<TextBox>("txtName").SetFocus();
    EXPECT_TRUE(Press(key::Tab));
    EXPECT_EQ(FocusedName(), "chkBox");
    EXPECT_TRUE(Press(key::Tab, kShift));
    EXPECT_EQ(FocusedName(), "txtName");
}

TEST_F(FormKeyboardTest, TheChosenOptionOfAGroupIsItsStop) {
    Side(2).SetChecked(true);
    Get<TextBox>("txtName").SetFocus();
    Press(key::Tab);
    EXPECT_EQ(FocusedName(), "optSide2");
    Press(key::Tab);
    EXPECT_EQ(FocusedName(), "optAlone");
    Press(key::Tab, kShift);
    EXPECT_EQ(FocusedName(), "optSide2");
    // One that cannot be used does not speak for its group.
    Side(2).SetEnabled(false);
    Side(0).SetVisible(false);
    Get<TextBox>("txtName").SetFocus();
    Press(key::Tab);
    EXPECT_EQ(FocusedName(), "optSide1");
    EXPECT_FALSE(Side(1).Checked());
}

TEST_F(FormKeyboardTest, TabSelectsTheTextThatItComesTo) {
    auto& name = Get<TextBox>("txtName");
    auto& box = Get<ComboBox>("cboText");
    name.SetText("name");
    box.SetText("a text");
    name.SetFocus();
    EXPECT_EQ(test::MemoryToolkit::Of(name).selectionLength, 0U) << "code does not select";
    Get<OptionButton>("optAlone").SetFocus();
    Press(key::Tab);
    EXPECT_EQ(test::MemoryToolkit::Of(box).selectionLength, 6U);
    Get<OptionButton>("optSide", 0).SetFocus();
    Press(key::Tab, kShift);
    EXPECT_EQ(test::MemoryToolkit::Of(name).selectionLength, 4U);
}

TEST_F(FormKeyboardTest, TheFirstStopIsTheFirstThatCanBeUsed) {
    EXPECT_EQ(keyboard.FirstTabStop(), &Get<TextBox>("txtName"));
    Get<TextBox>("txtName").SetEnabled(false);
    EXPECT_EQ(keyboard.FirstTabStop(), &Side(0));
    form->SetEnabled(false);
    EXPECT_EQ(keyboard.FirstTabStop(), nullptr);
    Get<CheckBox>("chkBox").SetFocus();
    EXPECT_TRUE(Press(key::Tab));
    EXPECT_EQ(FocusedName(), "chkBox");
}

TEST_F(FormKeyboardTest, AFormWithoutControlsHasNothingToGoTo) {
    const FormDesign bare{
        .name = "frmBare", .tag = "", .clientSize = {100, 100}, .style = {}, .controls = {}};
    Form other(kit, bare);
    other.Show();
    const FormKeyboard keys(other);
    for (const Modifiers modifiers : {Modifiers{}, kShift})
        EXPECT_TRUE(keys.KeyDown(nullptr, {.key = key::Tab, .modifiers = modifiers}));
    EXPECT_FALSE(keys.KeyDown(nullptr, {.key = key::Enter}));
    EXPECT_FALSE(keys.AccessKey(nullptr, 'n'));
    EXPECT_EQ(keys.FirstTabStop(), nullptr);
}

// Arrows.

TEST_F(FormKeyboardTest, ArrowsChooseTheNextOptionOfTheGroup) {
    Side(0).SetFocus();
    for (const int key : {key::Right, key::Down, key::Right}) {
        EXPECT_TRUE(Press(key));
        EXPECT_TRUE(static_cast<OptionButton*>(Focused())->Checked());
    }
    EXPECT_EQ(FocusedName(), "optSide0") << "round the end";
    EXPECT_TRUE(Press(key::Left));
    EXPECT_EQ(FocusedName(), "optSide2");
    EXPECT_TRUE(Press(key::Up));
    EXPECT_EQ(FocusedName(), "optSide1");
    EXPECT_TRUE(Side(1).Checked());
    EXPECT_FALSE(Side(2).Checked());
    EXPECT_FALSE(Get<OptionButton>("optAlone").Checked());
}

TEST_F(FormKeyboardTest, ArrowsPassOverOptionsThatCannotBeUsed) {
    Side(1).SetEnabled(false);
    Side(0).SetFocus();
    EXPECT_TRUE(Press(key::Down));
    EXPECT_EQ(FocusedName(), "optSide2");
}

TEST_F(FormKeyboardTest, ArrowsAtAnOptionAloneAreUsedUp) {
    Get<OptionButton>("optAlone").SetFocus();
    EXPECT_TRUE(Press(key::Down));
    EXPECT_EQ(FocusedName(), "optAlone");
    EXPECT_FALSE(Get<OptionButton>("optAlone").Checked());
}

TEST_F(FormKeyboardTest, ArrowsElsewhereAreLeftToTheControl) {
    Get<CheckBox>("chkBox").SetFocus();
    for (const int key : {key::Left, key::Right, key::Up, key::Down})
        EXPECT_FALSE(Press(key));
    EXPECT_FALSE(keyboard.KeyDown(nullptr, {.key = key::Down}));
    EXPECT_EQ(FocusedName(), "chkBox");
}

// Cues.

TEST_F(FormKeyboardTest, CuesAreShownWhenKeysMoveTheFocus) {
    Get<CheckBox>("chkBox").SetCaption("&Box");
    Get<TextBox>("txtName").SetFocus();
    Press('A');
    Press(key::Enter);
    Alt('Q');
    EXPECT_FALSE(CuesShown());
    Press(key::Tab);
    EXPECT_TRUE(CuesShown());
    Press(key::Down);
    EXPECT_TRUE(CuesShown());
    Alt('B');
    EXPECT_TRUE(CuesShown());
}

}  // namespace
}  // namespace ordalyn::toolkit
