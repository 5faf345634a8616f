// What all kinds have in common, and the values of buttons and text boxes: the same events for code
// and for the user.
#include "contract/toolkit/ToolkitContract.h"

namespace ordalyn::contract {
namespace {

using namespace toolkit;
using testing::ElementsAre;

class Controls : public ToolkitContract {};
INSTANTIATE_TEST_SUITE_P(Toolkit, Controls, AllRealisations(), RealisationName);

TEST_P(Controls, CaptionsAreShownInEveryScript) {
    Show();
    const std::string text = "&Größe Привет ελλάδα 日本 𐐀 &&";
    for (Control* control :
         {static_cast<Control*>(&Get<Label>("lblText")),
          static_cast<Control*>(&Get<Frame>("fraOne")),
          static_cast<Control*>(&Get<CommandButton>("cmdOk")),
          static_cast<Control*>(&Get<CheckBox>("chkBox")),
          static_cast<Control*>(&Get<OptionButton>("optAlone")), static_cast<Control*>(&Form())}) {
        control->SetCaption(text);
        EXPECT_EQ(User().CaptionOf(*control), text) << control->Name();
        control->SetCaption("");
        EXPECT_EQ(User().CaptionOf(*control), "") << control->Name();
        EXPECT_EQ(control->Caption(), "");
    }
}

TEST_P(Controls, AllAreShownWhenTheirFormIs) {
    for (const auto& control : Form().Controls())
        EXPECT_FALSE(User().IsVisible(*control)) << control->Name();
    Show();
    for (const auto& control : Form().Controls())
        EXPECT_EQ(User().IsVisible(*control), control->Name() != "cmdHidden") << control->Name();
}

TEST_P(Controls, HidingAndDisablingAreShown) {
    Show();
    for (const auto& control : Form().Controls()) {
        control->SetVisible(false);
        control->SetEnabled(false);
        Settle();
        EXPECT_FALSE(control->Visible());
        EXPECT_FALSE(User().IsVisible(*control)) << control->Name();
        EXPECT_FALSE(User().IsEnabled(*control)) << control->Name();
        control->SetVisible(true);
        control->SetEnabled(true);
        Settle();
        EXPECT_TRUE(User().IsVisible(*control)) << control->Name();
        EXPECT_TRUE(User().IsEnabled(*control)) << control->Name();
    }
}

TEST_P(Controls, AHiddenContainerHidesWhatItHolds) {
    Show();
    Get<Frame>("fraOne").SetVisible(false);
    EXPECT_FALSE(User().IsVisible(Get<CheckBox>("chkInside")));
    EXPECT_TRUE(Get<CheckBox>("chkInside").Visible());
    Get<Frame>("fraOne").SetVisible(true);
    EXPECT_TRUE(User().IsVisible(Get<CheckBox>("chkInside")));
}

TEST_P(Controls, LooksOfEveryKindCanChangeWithoutAnEventOrANewPlace) {
    Show();
    for (const auto& control : Form().Controls()) {
        const Rect before = control->Bounds();
        Counter clicked(control->Click);
        Counter resized(control->Resize);
        for (const bool rightToLeft : {true, false}) {
            EXPECT_NO_THROW(control->SetRightToLeft(rightToLeft)) << control->Name();
            EXPECT_EQ(control->RightToLeft(), rightToLeft);
        }
        for (const Alignment alignment : {Alignment::Right, Alignment::Left}) {
            EXPECT_NO_THROW(control->SetTextAlignment(alignment)) << control->Name();
            EXPECT_EQ(control->TextAlignment(), alignment);
        }
        for (const Color color : {Color{0x00FF8040}, kWindowText, kButtonFace}) {
            EXPECT_NO_THROW(control->SetForeColor(color));
            EXPECT_NO_THROW(control->SetBackColor(color));
            EXPECT_EQ(control->ForeColor(), color);
            EXPECT_EQ(control->BackColor(), color);
        }
        for (const BorderStyle border : {BorderStyle::FixedSingle, BorderStyle::None})
            EXPECT_NO_THROW(control->SetBorder(border));
        for (const Appearance look : {Appearance::Flat, Appearance::ThreeDimensional})
            EXPECT_NO_THROW(control->SetLook(look));
        for (const Pointer pointer : {Pointer::Hourglass, Pointer::SizeEastWest,
                                      Pointer::SizeNorthSouth, Pointer::Hand, Pointer::Default})
            EXPECT_NO_THROW(control->SetMousePointer(pointer));
        EXPECT_NO_THROW(control->SetToolTip("Größe"));
        EXPECT_NO_THROW(control->SetToolTip(""));
        EXPECT_NO_THROW(control->BringToFront());
        EXPECT_NO_THROW(control->Refresh());
        Settle();
        EXPECT_EQ(control->Bounds(), before) << control->Name();
        EXPECT_EQ(clicked.Take(), 0) << control->Name();
        EXPECT_EQ(resized.Take(), 0) << control->Name();
        EXPECT_TRUE(User().IsVisible(*control) || control->Name() == "cmdHidden");
    }
    EXPECT_NO_THROW(Form().SetRightToLeft(true));
    EXPECT_NO_THROW(Form().SetRightToLeft(false));
    EXPECT_TRUE(User().boxes.empty());
}

TEST_P(Controls, EveryKindTakesEveryFont) {
    Show();
    Font font;
    font.name = "There is no such font";
    font.size = 11.25;
    font.characterSet = 204;
    font.bold = font.italic = font.strikethrough = font.underline = true;
    for (const auto& control : Form().Controls()) {
        EXPECT_NO_THROW(control->SetFont(font)) << control->Name();
        EXPECT_EQ(control->Font(), font);
    }
    EXPECT_NO_THROW(Form().SetFont(font));
}

TEST_P(Controls, AButtonThatIsPressedRaisesClick) {
    Show();
    auto& button = Get<CommandButton>("cmdOk");
    Counter clicked(button.Click);
    User().Press(button);
    EXPECT_EQ(clicked.Take(), 1);
    button.SetEnabled(false);
    User().Press(button);
    button.SetEnabled(true);
    button.SetVisible(false);
    User().Press(button);
    EXPECT_EQ(clicked.Take(), 0);
}

TEST_P(Controls, TheSecondPressOfADoubleClickCountsToo) {
    auto& button = Get<CommandButton>("cmdOk");
    auto& box = Get<CheckBox>("chkBox");
    auto& option = Get<OptionButton>("optAlone");
    auto& label = Get<Label>("lblText");
    Counter pressed(button.Click);
    Counter turned(box.Click);
    Counter chosen(option.Click);
    Counter clicked(label.Click);
    Show();
    User().PressTwice(button);
    EXPECT_EQ(pressed.Take(), 2);
    User().PressTwice(box);
    EXPECT_EQ(turned.Take(), 2);
    EXPECT_FALSE(box.Checked());
    User().PressTwice(option);
    EXPECT_EQ(chosen.Take(), 1) << "it is chosen once";
    EXPECT_TRUE(option.Checked());
    User().PressTwice(label);
    EXPECT_EQ(clicked.Take(), 2);
}

TEST_P(Controls, ALabelSaysHowHighItsCaptionIs) {
    auto& label = Get<Label>("lblText");
    label.SetCaption("One");
    const Twips line = label.HeightFor(3000);
    EXPECT_GT(line, 0);
    EXPECT_EQ(label.HeightFor(300000), line);
    label.SetCaption("Several words that are broken between them where there is no more room");
    EXPECT_EQ(label.HeightFor(300000), line);
    EXPECT_GE(label.HeightFor(1500), 2 * line);
    EXPECT_GE(label.HeightFor(900), label.HeightFor(1500));
    toolkit::Font font = label.Font();
    font.size = 2 * font.size;
    label.SetFont(font);
    EXPECT_GT(label.HeightFor(300000), line);
    // What is no width leaves room for something.
    EXPECT_GT(label.HeightFor(0), 0);
    // A path stays on its line, and programs that speak the screen find all of it.
    label.SetPlainText(true);
    label.SetShortensPath(true);
    label.SetCaption("C:\\R&D\\a folder\\another folder\\one more folder\\totalcmd.log");
    EXPECT_EQ(label.HeightFor(1500), label.HeightFor(300000));
    Show();
    EXPECT_EQ(User().CaptionOf(label), label.Caption());
    label.SetShortensPath(false);
    EXPECT_GT(label.HeightFor(1500), label.HeightFor(300000));
}

TEST_P(Controls, OneControlAndWhatIsAroundItHasTheFocus) {
    auto& button = Get<CommandButton>("cmdOk");
    auto& box = Get<CheckBox>("chkBox");
    EXPECT_FALSE(button.HasFocus());
    EXPECT_FALSE(Form().HasFocus());
    Show();
    button.SetFocus();
    EXPECT_TRUE(button.HasFocus());
    EXPECT_TRUE(Form().HasFocus());
    EXPECT_FALSE(box.HasFocus());
    EXPECT_FALSE(Get<Frame>("fraOne").HasFocus());
    // What is around it has it, too.
    Get<OptionButton>("optSide", 0).SetFocus();
    EXPECT_TRUE(Get<Frame>("fraOne").HasFocus());
    EXPECT_FALSE(button.HasFocus());
    box.SetFocus();
    EXPECT_FALSE(button.HasFocus());
    EXPECT_TRUE(box.HasFocus());
}

TEST_P(Controls, ACheckBoxRaisesTheSameForCodeAndForTheUser) {
    Show();
    auto& box = Get<CheckBox>("chkBox");
    std::vector<bool> seen;
    box.Click.Subscribe([&] { seen.push_back(box.Checked()); });
    User().Press(box);
    EXPECT_TRUE(User().IsChecked(box));
    User().Press(box);
    EXPECT_FALSE(User().IsChecked(box));
    EXPECT_THAT(seen, ElementsAre(true, false));
    box.SetChecked(true);
    EXPECT_TRUE(User().IsChecked(box));
    box.SetChecked(true);
    box.SetChecked(false);
    EXPECT_FALSE(User().IsChecked(box));
    Settle();
    EXPECT_THAT(seen, ElementsAre(true, false, true, false));
}

TEST_P(Controls, OptionsOfOneContainerExcludeEachOtherForCodeAndForTheUser) {
    Show();
    auto& first = Get<OptionButton>("optSide", 0);
    auto& second = Get<OptionButton>("optSide", 1);
    auto& alone = Get<OptionButton>("optAlone");
    Counter firstClicked(first.Click);
    Counter secondClicked(second.Click);
    alone.SetChecked(true);
    first.SetChecked(true);
    Settle();
    EXPECT_EQ(firstClicked.Take(), 1);
    User().Press(second);
    EXPECT_EQ(secondClicked.Take(), 1);
    EXPECT_EQ(firstClicked.Take(), 0);
    EXPECT_FALSE(User().IsChecked(first));
    EXPECT_TRUE(User().IsChecked(second));
    EXPECT_TRUE(User().IsChecked(alone));
    User().Press(second);
    EXPECT_EQ(secondClicked.Take(), 0);
    EXPECT_TRUE(User().IsChecked(second));
    User().Press(first);
    EXPECT_EQ(firstClicked.Take(), 1);
    EXPECT_TRUE(first.Checked());
    EXPECT_FALSE(second.Checked());
}

TEST_P(Controls, TheFocusAloneChoosesNoOption) {
    Show();
    auto& first = Get<OptionButton>("optSide", 0);
    Counter clicked(first.Click);
    first.SetFocus();
    Settle();
    EXPECT_TRUE(User().HasFocus(first));
    EXPECT_FALSE(first.Checked());
    EXPECT_FALSE(User().IsChecked(first));
    EXPECT_EQ(clicked.Take(), 0);
}

TEST_P(Controls, ATextBoxRaisesChangeForCodeAndForTheUser) {
    Show();
    auto& box = Get<TextBox>("txtBox");
    std::vector<std::string> seen;
    box.Change.Subscribe([&] { seen.push_back(box.Text()); });
    box.SetText("abc");
    Settle();
    EXPECT_EQ(User().TextOf(box), "abc");
    EXPECT_THAT(seen, ElementsAre("abc"));
    box.SetText("abc");
    Settle();
    EXPECT_THAT(seen, ElementsAre("abc"));
    seen.clear();
    User().Type(box, "xäЖ");
    EXPECT_EQ(box.Text(), "xäЖ");
    EXPECT_EQ(User().TextOf(box), "xäЖ");
    ASSERT_FALSE(seen.empty());
    EXPECT_EQ(seen.back(), "xäЖ");
    seen.clear();
    User().Type(box, "");
    EXPECT_EQ(box.Text(), "");
    EXPECT_THAT(seen, ElementsAre(""));
}

TEST_P(Controls, ADisabledTextBoxTakesNothingFromTheUserButFromCode) {
    Show();
    auto& box = Get<TextBox>("txtBox");
    box.SetEnabled(false);
    User().Type(box, "x");
    EXPECT_EQ(box.Text(), "");
    box.SetText("y");
    EXPECT_EQ(User().TextOf(box), "y");
}

TEST_P(Controls, EveryTextIsKept) {
    Show();
    auto& box = Get<TextBox>("txtBox");
    for (const std::string& text : {std::string("Größe 日本 𐐀 \u0301"), std::string(5000, 'x'),
                                    std::string("a\tb"), std::string()}) {
        box.SetText(text);
        Settle();
        EXPECT_EQ(box.Text(), text);
        EXPECT_EQ(User().TextOf(box), text);
    }
}

TEST_P(Controls, AllOfATextBoxsTextCanBeSelected) {
    Show();
    auto& box = Get<TextBox>("txtBox");
    box.SetText("abcdef");
    box.SelectAll();
    EXPECT_EQ(User().SelectionOf(box), (Selection{0, 6}));
}

TEST_P(Controls, GotFocusIsRaisedWhenTheFocusComes) {
    Show();
    auto& text = Get<TextBox>("txtBox");
    auto& button = Get<CommandButton>("cmdOk");
    auto& combo = Get<ComboBox>("cboList");
    auto& edit = Get<ComboBox>("cboEdit");
    button.SetFocus();
    Settle();
    for (Control* control : {static_cast<Control*>(&text), static_cast<Control*>(&combo),
                             static_cast<Control*>(&edit), static_cast<Control*>(&button)}) {
        Counter focused(control->GotFocus);
        control->SetFocus();
        Settle();
        EXPECT_TRUE(User().HasFocus(*control)) << control->Name();
        EXPECT_EQ(focused.Take(), 1) << control->Name();
        control->SetFocus();
        Settle();
        EXPECT_EQ(focused.Take(), 0) << control->Name();
    }
}

TEST_P(Controls, AFocusThatWasSetBeforeTheFormIsShownIsGivenThen) {
    auto& text = Get<TextBox>("txtBox");
    Counter focused(text.GotFocus);
    text.SetFocus();
    Settle();
    EXPECT_EQ(focused.Take(), 0);
    Show();
    EXPECT_TRUE(User().HasFocus(text));
    EXPECT_EQ(focused.Take(), 1);
}

}  // namespace
}  // namespace ordalyn::contract
