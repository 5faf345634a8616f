// What no handler catches ends in a message box, and the program goes on.
#include "contract/toolkit/ToolkitContract.h"

namespace ordalyn::contract {
namespace {

using namespace toolkit;

class LastHandlers : public ToolkitContract {
  protected:
    void SetUp() override { Show(); }
    void ExpectTold(const std::string& text) {
        Settle();
        ASSERT_EQ(User().boxes.size(), 1U);
        EXPECT_EQ(User().boxes[0].text, text);
        EXPECT_EQ(User().boxes[0].buttons, MessageButtons::Ok);
        User().boxes.clear();
        // It goes on.
        Counter pressed(Get<CommandButton>("cmdNoStop").Click);
        User().Press(Get<CommandButton>("cmdNoStop"));
        EXPECT_EQ(pressed.Take(), 1);
        EXPECT_TRUE(User().boxes.empty());
    }
};
INSTANTIATE_TEST_SUITE_P(Toolkit, LastHandlers, AllRealisations(), RealisationName);

TEST_P(LastHandlers, TellOfAButtonsError) {
    Get<CommandButton>("cmdOk").Click.Subscribe([] { throw TypeMismatch(); });
    User().Press(Get<CommandButton>("cmdOk"));
    ExpectTold("Type mismatch");
}

TEST_P(LastHandlers, TellOfAKeysError) {
    Form().KeyDown.Subscribe([](int key, Modifiers) {
        if (key == key::F3)
            throw Overflow();
    });
    User().PressKey(Form(), key::F3);
    ExpectTold("Overflow");
}

TEST_P(LastHandlers, TellOfAMenuItemsError) {
    Form().Menu("mnuFileOpen").Click.Subscribe([] { throw SubscriptOutOfRange(); });
    User().ChooseMenu(Form(), {0, 0});
    ExpectTold("Subscript out of range");
    User().PressKey(Form(), 'O', kControlKey);
    ExpectTold("Subscript out of range");
}

TEST_P(LastHandlers, TellOfAChoicesError) {
    auto& box = Get<ComboBox>("cboList");
    box.AddItem("a");
    box.AddItem("b");
    box.Click.Subscribe([] { throw TypeMismatch(); });
    User().Choose(box, 1);
    ExpectTold("Type mismatch");
    EXPECT_EQ(box.ListIndex(), 1);
}

TEST_P(LastHandlers, TellOfARowsError) {
    auto& list = Get<ListView>("lvwRows");
    list.AddColumn("a", 1200, 0);
    list.Fill(std::make_shared<CountedRows>(), TagsFrom(0, 5));
    list.ItemClick.Subscribe([](int) { throw TypeMismatch(); });
    User().ClickRow(list, 2);
    ExpectTold("Type mismatch");
    EXPECT_EQ(list.SelectedRow(), 2);
}

TEST_P(LastHandlers, TellOfAResizesError) {
    bool thrown = false;
    Form().Resize.Subscribe([&] {
        if (std::exchange(thrown, true))
            return;
        throw InvalidPropertyValue("height of x");
    });
    User().ResizeTo(Form(), {600, 450});
    ExpectTold("Invalid property value: height of x");
    EXPECT_NEAR(Form().Width(), 600 * Kit().TwipsPerPixelX(), 1);
}

TEST_P(LastHandlers, TellOfAnActivationsError) {
    auto dialog = NewForm();
    bool thrown = false;
    // Only once: the form may become the active one again when the box is closed.
    dialog->Activate.Subscribe([&] {
        if (!std::exchange(thrown, true))
            throw Overflow();
    });
    dialog->Show();
    Settle();
    dialog.reset();
    ExpectTold("Overflow");
}

TEST_P(LastHandlers, TellOfAClosingsError) {
    auto dialog = NewForm();
    dialog->QueryUnload.Subscribe([](bool&) { throw Overflow(); });
    dialog->Show();
    Settle();
    User().Close(*dialog);
    EXPECT_FALSE(dialog->Unloaded());
    dialog.reset();
    ExpectTold("Overflow");
}

TEST_P(LastHandlers, TellOfAModalFormsErrorWithoutEndingIt) {
    auto dialog = NewForm();
    auto& button = dialog->Get<CommandButton>("cmdOk");
    button.Click.Subscribe([] { throw TypeMismatch(); });
    bool stillThere = false;
    User().RunModal(*dialog, &Form(), [&] {
        User().Press(button);
        stillThere = User().IsVisible(*dialog);
        dialog->Hide();
    });
    EXPECT_TRUE(stillThere);
    ExpectTold("Type mismatch");
}

TEST_P(LastHandlers, TellOfWhatIsNoErrorOfTheProgramToo) {
    Get<CommandButton>("cmdOk").Click.Subscribe([] { throw std::runtime_error("other"); });
    User().Press(Get<CommandButton>("cmdOk"));
    ExpectTold("other");
}

TEST_P(LastHandlers, TellOfAMouseHandlersError) {
    Get<PictureBox>("picBox").MouseDown.Subscribe(
        [](int, Modifiers, Twips, Twips) { throw TypeMismatch(); });
    User().DragMouse(Get<PictureBox>("picBox"), kLeftButton, {{3, 3}});
    ExpectTold("Type mismatch");
}

TEST_P(LastHandlers, AnErrorOfWhatCodeSetsReachesTheCode) {
    Get<CheckBox>("chkBox").Click.Subscribe([] { throw TypeMismatch(); });
    EXPECT_THROW(Get<CheckBox>("chkBox").SetChecked(true), TypeMismatch);
    Get<TextBox>("txtBox").Change.Subscribe([] { throw TypeMismatch(); });
    EXPECT_THROW(Get<TextBox>("txtBox").SetText("x"), TypeMismatch);
    Form().Resize.Subscribe([] { throw TypeMismatch(); });
    EXPECT_THROW(Form().SetWidth(5555), TypeMismatch);
    Settle();
    EXPECT_TRUE(User().boxes.empty());
}

}  // namespace
}  // namespace ordalyn::contract
