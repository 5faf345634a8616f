// Keys: forms first, then controls; shortcuts; Tab, Enter and Escape; access keys.
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

TEST_P(Keys, F1AsksForThePageOfTheFormWhateverHasTheFocus) {
    std::vector<std::string> pages;
    Kit().SetHelpHandler([&](toolkit::Form&, std::string_view page) { pages.emplace_back(page); });
    Form().SetHelpPage("find");
    for (Control* control : {static_cast<Control*>(&Get<TextBox>("txtBox")),
                             static_cast<Control*>(&Get<ListView>("lvwRows")),
                             static_cast<Control*>(&Get<ComboBox>("cboEdit"))}) {
        control->SetFocus();
        Settle();
        Press(key::F1);
        EXPECT_THAT(std::exchange(pages, {}), ElementsAre("find")) << control->Name();
    }
    Press(key::F1, kControlKey);
    EXPECT_THAT(pages, testing::IsEmpty());
    Kit().SetHelpHandler(nullptr);
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

TEST_P(Keys, EnterInAListIsTheListsOnceSomebodyListens) {
    Counter ok(Get<CommandButton>("cmdOk").Click);
    auto& list = Get<ListView>("lvwRows");
    list.AddColumn("Text", 2000, 0);
    list.Fill(std::make_shared<CountedRows>(), TagsFrom(0, 3));
    list.SelectRow(1);
    list.SetFocus();
    Settle();
    Press(key::Enter);
    EXPECT_EQ(ok.Take(), 1);
    std::vector<int> activated;
    list.RowActivated.Subscribe([&](int row) { activated.push_back(row); });
    Press(key::Enter);
    EXPECT_EQ(ok.Take(), 0);
    EXPECT_EQ(activated, std::vector<int>{1});
    list.SelectRow(-1);
    Press(key::Enter);
    EXPECT_EQ(ok.Take(), 1);
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
    for (int i = 0; i < 9; ++i) {
        Press(key::Tab);
        for (const auto& control : Form().Controls()) {
            if (User().HasFocus(*control))
                walked.push_back(control->Name());
        }
    }
    EXPECT_THAT(walked, ElementsAre("txtBox", "cboList", "cboEdit", "lvwRows", "tabStrip",
                                    "tbrTools", "cnvArea", "cmdOk", "cmdCancel"));
    Press(key::Tab);
    EXPECT_TRUE(User().HasFocus(Get<OptionButton>("optSide", 0)));
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

constexpr Modifiers kAltKey{.alt = true};

constexpr ControlDesign kMarkedControls[] = {
    {.kind = Kind::TextBox, .name = "txtFirst", .bounds = {120, 120, 2400, 300}},
    {.kind = Kind::Label, .name = "lblFor", .bounds = {120, 480, 1200, 300}},
    {.kind = Kind::Label, .name = "lblOther", .bounds = {1400, 480, 1200, 300}},
    {.kind = Kind::TextBox, .name = "txtSecond", .bounds = {120, 840, 2400, 300}},
    {.kind = Kind::PictureBox, .name = "picPage", .bounds = {120, 1200, 2400, 1200}},
    {.kind = Kind::CheckBox,
     .name = "chkOnPage",
     .bounds = {0, 0, 1200, 300},
     .container = "picPage"},
    {.kind = Kind::CommandButton,
     .name = "cmdOnPage",
     .bounds = {0, 400, 1200, 375},
     .container = "picPage"},
    {.kind = Kind::CheckBox, .name = "chkBox", .bounds = {120, 2500, 1200, 300}},
    {.kind = Kind::OptionButton, .name = "optOne", .bounds = {1400, 2500, 1200, 300}},
    {.kind = Kind::Label, .name = "lblStop", .bounds = {120, 2900, 1200, 300}, .tabStop = true},
    {.kind = Kind::CommandButton,
     .name = "cmdOk",
     .bounds = {120, 3300, 1200, 375},
     .isDefault = true},
    {.kind = Kind::CommandButton, .name = "cmdOther", .bounds = {1400, 3300, 1200, 375}},
};
const FormDesign kMarkedDesign = {.name = "frmMarked",
                                  .tag = "",
                                  .clientSize = {3000, 3900},
                                  .style = {},
                                  .controls = kMarkedControls};

class AccessKeys : public ToolkitContract {
  protected:
    void SetUp() override {
        form->Show();
        Settle();
        Focus(Of<TextBox>("txtFirst"));
    }
    template <typename T>
    T& Of(std::string_view name) {
        return form->Get<T>(name);
    }
    void Focus(Control& control) {
        control.SetFocus();
        Settle();
        ASSERT_TRUE(User().HasFocus(control));
    }
    void Alt(int key) { User().PressKey(*form, key, kAltKey); }
    void Press(int key) { User().PressKey(*form, key); }
    // What has the focus.
    std::string Focused() {
        for (const auto& control : form->Controls()) {
            if (User().HasFocus(*control))
                return control->Name();
        }
        return "";
    }
    std::unique_ptr<toolkit::Form> form = NewForm(kMarkedDesign);
};
INSTANTIATE_TEST_SUITE_P(Toolkit, AccessKeys, AllRealisations(), RealisationName);

TEST_P(AccessKeys, OfALabelGoesToWhatComesNextInTabOrder) {
    Of<Label>("lblFor").SetCaption("&Name:");
    Alt('N');
    EXPECT_EQ(Focused(), "txtSecond");
    Focus(Of<TextBox>("txtFirst"));
    Of<TextBox>("txtSecond").SetEnabled(false);
    Alt('N');
    EXPECT_EQ(Focused(), "chkOnPage");
}

TEST_P(AccessKeys, PressButtonsAndTurnBoxesOver) {
    auto& other = Of<CommandButton>("cmdOther");
    auto& box = Of<CheckBox>("chkBox");
    auto& option = Of<OptionButton>("optOne");
    other.SetCaption("&Go");
    box.SetCaption("&Turn");
    option.SetCaption("Ta&ke");
    Counter pressed(other.Click);
    Alt('G');
    EXPECT_EQ(pressed.Take(), 1);
    EXPECT_EQ(Focused(), "cmdOther");
    Alt('T');
    EXPECT_TRUE(box.Checked());
    EXPECT_EQ(Focused(), "chkBox");
    Alt('T');
    EXPECT_FALSE(box.Checked());
    Alt('K');
    EXPECT_TRUE(option.Checked());
    EXPECT_EQ(Focused(), "optOne");
    // Without Alt, or where there is no mark, nothing happens.
    Press('G');
    Alt('O');
    EXPECT_EQ(pressed.Take(), 0);
    EXPECT_EQ(Focused(), "optOne");
}

TEST_P(AccessKeys, OfWhatIsDisabledOrHiddenDoNothing) {
    Of<CommandButton>("cmdOther").SetCaption("&Go");
    Of<CheckBox>("chkBox").SetCaption("&Turn");
    Counter pressed(Of<CommandButton>("cmdOther").Click);
    Of<CommandButton>("cmdOther").SetEnabled(false);
    Of<CheckBox>("chkBox").SetVisible(false);
    Alt('G');
    Alt('T');
    EXPECT_EQ(pressed.Take(), 0);
    EXPECT_FALSE(Of<CheckBox>("chkBox").Checked());
    EXPECT_EQ(Focused(), "txtFirst");
}

TEST_P(AccessKeys, OnADisabledPageDoNothing) {
    Of<CheckBox>("chkOnPage").SetCaption("&Turn");
    Of<CommandButton>("cmdOnPage").SetCaption("&Go");
    Counter pressed(Of<CommandButton>("cmdOnPage").Click);
    Of<PictureBox>("picPage").SetLeft(-20000);
    Of<PictureBox>("picPage").SetEnabled(false);
    Alt('T');
    Alt('G');
    EXPECT_FALSE(Of<CheckBox>("chkOnPage").Checked());
    EXPECT_EQ(pressed.Take(), 0);
    EXPECT_EQ(Focused(), "txtFirst");
    Of<PictureBox>("picPage").SetEnabled(true);
    Alt('T');
    EXPECT_TRUE(Of<CheckBox>("chkOnPage").Checked());
}

TEST_P(AccessKeys, OfSeveralControlsGoFromOneToTheNextAndPressNone) {
    Of<CheckBox>("chkBox").SetCaption("&Same");
    Of<CommandButton>("cmdOther").SetCaption("al&so");
    Counter pressed(Of<CommandButton>("cmdOther").Click);
    for (const char* name : {"chkBox", "cmdOther", "chkBox"}) {
        Alt('S');
        EXPECT_EQ(Focused(), name);
    }
    EXPECT_EQ(pressed.Take(), 0);
    EXPECT_FALSE(Of<CheckBox>("chkBox").Checked());
    // One that cannot be used does not count.
    Of<CheckBox>("chkBox").SetEnabled(false);
    Alt('S');
    EXPECT_EQ(pressed.Take(), 1);
}

TEST_P(AccessKeys, AreNotMarkedByADoubledSignNorInData) {
    Of<CommandButton>("cmdOther").SetCaption("R&&D");
    auto& label = Of<Label>("lblFor");
    label.SetCaption("R&D.log");
    Counter pressed(Of<CommandButton>("cmdOther").Click);
    Alt('D');
    EXPECT_EQ(Focused(), "txtSecond") << "a mark like any other so far";
    label.SetPlainText(true);
    Focus(Of<TextBox>("txtFirst"));
    Alt('D');
    EXPECT_EQ(Focused(), "txtFirst");
    EXPECT_EQ(pressed.Take(), 0);
    EXPECT_EQ(label.Caption(), "R&D.log");
    EXPECT_EQ(User().CaptionOf(label), "R&D.log");
}

using LabelStops = AccessKeys;
INSTANTIATE_TEST_SUITE_P(Toolkit, LabelStops, AllRealisations(), RealisationName);

TEST_P(LabelStops, AreReachedByTabAndClickedBySpace) {
    auto& label = Of<Label>("lblStop");
    Counter clicked(label.Click);
    Counter plain(Of<Label>("lblFor").Click);
    Counter ok(Of<CommandButton>("cmdOk").Click);
    Press(key::Tab);
    EXPECT_EQ(Focused(), "txtSecond") << "other labels are passed over";
    Focus(Of<OptionButton>("optOne"));
    Press(key::Tab);
    EXPECT_EQ(Focused(), "lblStop");
    Press(key::Space);
    EXPECT_EQ(clicked.Take(), 1);
    EXPECT_EQ(ok.Take(), 0);
    Press(key::Enter);
    EXPECT_EQ(clicked.Take(), 0) << "Enter is the default button's";
    EXPECT_EQ(ok.Take(), 1);
    EXPECT_EQ(Focused(), "lblStop");
    Press(key::Tab);
    EXPECT_EQ(Focused(), "cmdOk");
    EXPECT_EQ(plain.Take(), 0);
}

TEST_P(LabelStops, AreClickedByTheMouseAsOtherLabelsAre) {
    auto& label = Of<Label>("lblStop");
    Counter clicked(label.Click);
    User().Press(label);
    EXPECT_EQ(clicked.Take(), 1);
    EXPECT_EQ(Focused(), "txtFirst");
}

TEST_P(LabelStops, AreLeftOutWhileDisabled) {
    Of<Label>("lblStop").SetEnabled(false);
    Focus(Of<OptionButton>("optOne"));
    Press(key::Tab);
    EXPECT_EQ(Focused(), "cmdOk");
}

TEST_P(LabelStops, TakeTheFocusByTheirOwnAccessKey) {
    Of<Label>("lblStop").SetCaption("&Colour");
    Alt('C');
    EXPECT_EQ(Focused(), "lblStop");
}

}  // namespace
}  // namespace ordalyn::contract
