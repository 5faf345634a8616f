// The life of forms: shown, hidden, modal, unloaded, destroyed.
#include <algorithm>

#include "contract/toolkit/ToolkitContract.h"

namespace ordalyn::contract {
namespace {

using namespace toolkit;
using testing::ElementsAre;

class Forms : public ToolkitContract {};
INSTANTIATE_TEST_SUITE_P(Toolkit, Forms, AllRealisations(), RealisationName);

TEST_P(Forms, ALoadedFormIsHidden) {
    Settle();
    EXPECT_FALSE(Form().Visible());
    EXPECT_FALSE(User().IsVisible(Form()));
    EXPECT_NE(Form().Handle(), 0U);
}

TEST_P(Forms, ShowingAndHidingCanBeRepeated) {
    for (int i = 0; i < 3; ++i) {
        Show();
        EXPECT_TRUE(User().IsVisible(Form()));
        Form().Hide();
        Settle();
        EXPECT_FALSE(User().IsVisible(Form()));
        EXPECT_FALSE(Form().Visible());
    }
    EXPECT_FALSE(Form().Unloaded());
}

TEST_P(Forms, ActivateComesFromTheMessageLoopOnce) {
    Counter activated(Form().Activate);
    Form().Show();
    EXPECT_EQ(activated.Take(), 0);
    Settle();
    EXPECT_EQ(activated.Take(), 1);
}

TEST_P(Forms, AFormSaysWhetherAClickOnAControlActivatedIt) {
    Show();
    auto dialog = NewForm();
    dialog->Show();
    Settle();
    std::vector<bool> byClick;
    Form().Activate.Subscribe([&] { byClick.push_back(Form().ActivatedByClickOnControl()); });
    auto& button = Get<CommandButton>("cmdOk");
    Counter clicked(button.Click);
    User().PressFromOutside(button);
    EXPECT_EQ(clicked.Take(), 1);
    EXPECT_THAT(byClick, ElementsAre(true));
    // The next time it is something else, also after clicks in the active form.
    User().Press(button);
    dialog->Show();
    Settle();
    Show();
    EXPECT_THAT(byClick, ElementsAre(true, false));
}

TEST_P(Forms, ClosingAsksTellsAndTakesTheFormAway) {
    std::vector<std::string> order;
    Form().QueryUnload.Subscribe([&](bool&) {
        EXPECT_TRUE(User().IsVisible(Form()));
        order.emplace_back("query");
    });
    Form().Unloading.Subscribe([&] {
        EXPECT_TRUE(User().IsVisible(Form()));
        order.emplace_back("unload");
    });
    Show();
    User().Close(Form());
    EXPECT_THAT(order, ElementsAre("query", "unload"));
    EXPECT_TRUE(Form().Unloaded());
    EXPECT_FALSE(User().IsVisible(Form()));
}

TEST_P(Forms, AFormThatWantsToStaysOpen) {
    Counter unloading(Form().Unloading);
    Form().QueryUnload.Subscribe([](bool& keep) { keep = true; });
    Show();
    User().Close(Form());
    EXPECT_EQ(unloading.Take(), 0);
    EXPECT_TRUE(User().IsVisible(Form()));
    EXPECT_FALSE(Form().Unload());
    EXPECT_TRUE(User().IsVisible(Form()));
}

TEST_P(Forms, AFormWithoutACloseBoxIsNotClosedByTheUser) {
    FormDesign design = kDialogDesign;
    design.style.closeBox = false;
    auto dialog = NewForm(design);
    Counter asked(dialog->QueryUnload);
    dialog->Show();
    Settle();
    User().Close(*dialog);
    EXPECT_EQ(asked.Take(), 0);
    EXPECT_TRUE(User().IsVisible(*dialog));
    EXPECT_TRUE(dialog->Unload());
}

TEST_P(Forms, DroppedFilesAreTold) {
    FormDesign design = kDialogDesign;
    std::vector<std::vector<std::string>> dropped;
    for (const bool takes : {true, false}) {
        design.style.takesDroppedFiles = takes;
        auto dialog = NewForm(design);
        dialog->FilesDropped.Subscribe(
            [&](const std::vector<std::string>& paths) { dropped.push_back(paths); });
        dialog->Show();
        Settle();
        User().DropFiles(*dialog, {"C:\\a.log", "C:\\Größe 日本\\b.log"});
    }
    ASSERT_EQ(dropped.size(), 1U);
    EXPECT_THAT(dropped[0], ElementsAre("C:\\a.log", "C:\\Größe 日本\\b.log"));
}

TEST_P(Forms, HidingInsteadOfUnloadingKeepsTheForm) {
    Form().QueryUnload.Subscribe([this](bool& keep) {
        keep = true;
        Form().Hide();
    });
    Show();
    User().Close(Form());
    EXPECT_FALSE(User().IsVisible(Form()));
    EXPECT_FALSE(Form().Unloaded());
    Show();
    EXPECT_TRUE(User().IsVisible(Form()));
}

TEST_P(Forms, TheBoundsCanBeReadWhenAFormIsUnloadingAndAfterwards) {
    Form().Move({300, 300, 6003.4F, 5001.1F});
    Show();
    Rect seen;
    Form().Unloading.Subscribe([&] { seen = Form().Bounds(); });
    Form().Unload();
    Settle();
    EXPECT_EQ(seen, (Rect{300, 300, 6003.4F, 5001.1F}));
    EXPECT_EQ(Form().Bounds(), seen);
}

TEST_P(Forms, WhatIsSetInAnUnloadedFormDoesNoHarm) {
    auto& list = Get<ListView>("lvwRows");
    list.AddColumn("a", 600.5F, 0);
    list.Fill(std::make_shared<CountedRows>(), TagsFrom(0, 5));
    Get<ComboBox>("cboEdit").AddItem("a");
    Get<StatusBar>("sbrStatus").AddPanel(0);
    Get<TabStrip>("tabStrip").AddTab("a");
    Show();
    Form().Unload();
    for (const auto& control : Form().Controls()) {
        EXPECT_NO_THROW(control->SetCaption("x")) << control->Name();
        EXPECT_NO_THROW(control->SetVisible(false)) << control->Name();
        EXPECT_NO_THROW(control->SetEnabled(false)) << control->Name();
        EXPECT_NO_THROW(control->Move({1, 2, 3, 4})) << control->Name();
        EXPECT_NO_THROW(control->SetFont({})) << control->Name();
        EXPECT_NO_THROW(control->SetForeColor(0)) << control->Name();
        EXPECT_NO_THROW(control->SetFocus()) << control->Name();
        EXPECT_NO_THROW(control->SetToolTip("x")) << control->Name();
        EXPECT_NO_THROW(control->Refresh()) << control->Name();
    }
    list.Fill(std::make_shared<CountedRows>(), TagsFrom(0, 7));
    list.SelectRow(3);
    EXPECT_EQ(list.ColumnWidth(0), 600.5F);
    EXPECT_EQ(list.ColumnPosition(0), 0);
    Get<ComboBox>("cboEdit").SetText("b");
    Get<ComboBox>("cboEdit").SetListIndex(0);
    EXPECT_EQ(Get<ComboBox>("cboEdit").Text(), "a");
    Get<StatusBar>("sbrStatus").SetPanelText(1, "x");
    Get<TextBox>("txtBox").SetText("x");
    Form().Menu("mnuFileOpen").SetEnabled(false);
    Form().Menu("mnuFile").AddItem("mnuMore", "more");
    EXPECT_NO_THROW(Form().SetState(WindowState::Maximised));
    EXPECT_NO_THROW(Form().SetWidth(5000));
    Settle();
    EXPECT_FALSE(User().IsVisible(Form()));
    EXPECT_TRUE(Form().Unload());
}

TEST_P(Forms, AModalFormDisablesTheOthersUntilItIsHidden) {
    Show();
    auto dialog = NewForm();
    auto& button = Get<CommandButton>("cmdOk");
    Counter pressed(button.Click);
    Counter keys(Form().KeyDown);
    Counter dialogPressed(dialog->Get<CommandButton>("cmdOk").Click);
    bool ran = false;
    User().RunModal(*dialog, &Form(), [&] {
        ran = true;
        EXPECT_TRUE(User().IsVisible(*dialog));
        EXPECT_TRUE(User().IsVisible(Form()));
        User().Press(button);
        User().PressKey(Form(), key::F3);
        User().Close(Form());
        EXPECT_FALSE(Form().Unloaded());
        User().Press(dialog->Get<CommandButton>("cmdOk"));
        dialog->Hide();
    });
    EXPECT_TRUE(ran);
    EXPECT_EQ(pressed.Take(), 0);
    EXPECT_EQ(keys.Take(), 0);
    EXPECT_EQ(dialogPressed.Take(), 1);
    EXPECT_FALSE(User().IsVisible(*dialog));
    EXPECT_FALSE(dialog->Unloaded());
    Settle();
    User().Press(button);
    EXPECT_EQ(pressed.Take(), 1);
}

TEST_P(Forms, AModalFormEndsWhenItIsClosed) {
    Show();
    auto dialog = NewForm();
    User().RunModal(*dialog, &Form(), [&] { User().Close(*dialog); });
    EXPECT_TRUE(dialog->Unloaded());
    Counter pressed(Get<CommandButton>("cmdOk").Click);
    User().Press(Get<CommandButton>("cmdOk"));
    EXPECT_EQ(pressed.Take(), 1);
}

TEST_P(Forms, AModalFormEndsWhenItIsUnloadedByOneOfItsButtons) {
    Show();
    auto dialog = NewForm();
    dialog->Get<CommandButton>("cmdOk").Click.Subscribe([&] { dialog->Unload(); });
    User().RunModal(*dialog, &Form(), [&] { User().Press(dialog->Get<CommandButton>("cmdOk")); });
    EXPECT_TRUE(dialog->Unloaded());
}

TEST_P(Forms, AModalFormIsActivatedOnce) {
    auto dialog = NewForm();
    Counter activated(dialog->Activate);
    User().RunModal(*dialog, nullptr, [&] {
        Settle();
        dialog->Hide();
    });
    EXPECT_EQ(activated.Take(), 1);
}

TEST_P(Forms, AModalFormCanBeShownAgain) {
    Show();
    auto dialog = NewForm();
    for (int i = 0; i < 2; ++i) {
        bool ran = false;
        User().RunModal(*dialog, &Form(), [&] {
            ran = true;
            dialog->Hide();
        });
        EXPECT_TRUE(ran);
    }
    EXPECT_FALSE(User().IsVisible(*dialog));
}

TEST_P(Forms, ModalFormsCanBeNested) {
    Show();
    auto outer = NewForm();
    auto inner = NewForm();
    auto& button = outer->Get<CommandButton>("cmdOk");
    Counter pressed(button.Click);
    std::vector<std::string> order;
    User().RunModal(*outer, &Form(), [&] {
        order.emplace_back("outer");
        User().RunModal(*inner, outer.get(), [&] {
            order.emplace_back("inner");
            User().Press(button);
            inner->Hide();
        });
        EXPECT_EQ(pressed.Take(), 0);
        order.emplace_back("back");
        User().Press(button);
        EXPECT_EQ(pressed.Take(), 1);
        Counter main(Get<CommandButton>("cmdOk").Click);
        User().Press(Get<CommandButton>("cmdOk"));
        EXPECT_EQ(main.Take(), 0);
        outer->Hide();
    });
    EXPECT_THAT(order, ElementsAre("outer", "inner", "back"));
    Counter main(Get<CommandButton>("cmdOk").Click);
    User().Press(Get<CommandButton>("cmdOk"));
    EXPECT_EQ(main.Take(), 1);
}

TEST_P(Forms, AnOwnedFormGoesOnWithoutBeingModal) {
    Show();
    auto dialog = NewForm();
    dialog->Show(&Form());
    Settle();
    Counter pressed(Get<CommandButton>("cmdOk").Click);
    User().Press(Get<CommandButton>("cmdOk"));
    EXPECT_EQ(pressed.Take(), 1);
    dialog->Hide();
    Settle();
    EXPECT_FALSE(User().IsVisible(*dialog));
    EXPECT_TRUE(User().IsVisible(Form()));
}

TEST_P(Forms, AnOwnedFormOutlivesItsOwnersWindow) {
    Show();
    auto dialog = NewForm();
    dialog->Show(&Form());
    Settle();
    Form().Unload();
    Settle();
    EXPECT_NO_THROW(dialog->Get<TextBox>("txtName").SetText("x"));
    EXPECT_NO_THROW(dialog->Hide());
    EXPECT_TRUE(dialog->Unload());
}

TEST_P(Forms, DestroyingAFormWhileMessagesWaitIsSafe) {
    Show();
    int activated = 0;
    Form().Activate.Subscribe([&] { ++activated; });
    for (int i = 0; i < 20; ++i) {
        auto dialog = NewForm(kContractDesign);
        dialog->Activate.Subscribe([&] { ++activated; });
        dialog->Show();
        dialog->Menu("mnuFile").AddItem("mnuMore", "more");
        dialog->Get<ListView>("lvwRows").SetVisible(false);
        dialog->Get<TextBox>("txtBox").SetFocus();
        dialog.reset();
    }
    activated = 0;
    DestroyForm();
    Settle();
    EXPECT_EQ(activated, 0);
    EXPECT_TRUE(User().boxes.empty());
}

TEST_P(Forms, AFormMayBeDestroyedFromTheMessageLoop) {
    auto dialog = NewForm();
    dialog->Get<CommandButton>("cmdOk").Click.Subscribe(
        [&] { User().Later([&] { dialog.reset(); }); });
    dialog->Show();
    Settle();
    User().Press(dialog->Get<CommandButton>("cmdOk"));
    Settle();
    EXPECT_EQ(dialog, nullptr);
}

TEST_P(Forms, RunEndsWithQuit) {
    bool ran = false;
    User().Later([&] {
        ran = true;
        Kit().Quit();
    });
    Kit().Run();
    EXPECT_TRUE(ran);
}

TEST_P(Forms, MessageBoxesShowWhatTheyAreGiven) {
    Show();
    const Answer answer = Kit().ShowMessage(&Form(), "Größe?\nnext line", "Title",
                                            MessageIcon::Information, MessageButtons::Ok);
    EXPECT_EQ(answer, Answer::Ok);
    ASSERT_EQ(User().boxes.size(), 1U);
    EXPECT_EQ(User().boxes[0].text, "Größe?\nnext line");
    EXPECT_EQ(User().boxes[0].title, "Title");
    EXPECT_EQ(User().boxes[0].buttons, MessageButtons::Ok);
}

TEST_P(Forms, QuestionsHaveADefaultAnswer) {
    Show();
    for (const Answer standard : {Answer::Yes, Answer::No}) {
        EXPECT_EQ(Kit().ShowMessage(&Form(), "?", "t", MessageIcon::Question, MessageButtons::YesNo,
                                    standard),
                  standard);
        EXPECT_EQ(User().boxes.back().buttons, MessageButtons::YesNo);
        EXPECT_EQ(User().boxes.back().defaultAnswer, standard);
    }
    for (const Answer chosen : {Answer::Yes, Answer::No}) {
        User().AnswerBoxes([chosen](const BoxSeen&) { return chosen; });
        EXPECT_EQ(Kit().ShowMessage(nullptr, "?", "t", MessageIcon::Question, MessageButtons::YesNo,
                                    Answer::Yes),
                  chosen);
    }
}

TEST_P(Forms, AHiddenFormCanOwnAMessageBox) {
    EXPECT_EQ(Kit().ShowMessage(&Form(), "text", "t"), Answer::Ok);
    EXPECT_EQ(User().boxes.size(), 1U);
    Form().Unload();
    EXPECT_EQ(Kit().ShowMessage(&Form(), "text", "t"), Answer::Ok);
    EXPECT_EQ(User().boxes.size(), 2U);
}

TEST_P(Forms, FormsCanBeUsedAfterAMessageBox) {
    Show();
    Kit().ShowMessage(&Form(), "text", "t");
    Counter pressed(Get<CommandButton>("cmdOk").Click);
    User().Press(Get<CommandButton>("cmdOk"));
    EXPECT_EQ(pressed.Take(), 1);
    EXPECT_TRUE(User().IsEnabled(Form()));
}

TEST_P(Forms, TheScreenIsKnown) {
    // For who reads the report: at which resolution the suite ran.
    RecordProperty("TwipsPerPixel", std::to_string(Kit().TwipsPerPixelX()));
    EXPECT_GT(Kit().TwipsPerPixelX(), 0);
    EXPECT_GT(Kit().TwipsPerPixelY(), 0);
    EXPECT_GT(Kit().WorkArea().width, 3000);
    EXPECT_GT(Kit().WorkArea().height, 3000);
    const std::vector<Rect> areas = Kit().WorkAreas();
    ASSERT_FALSE(areas.empty());
    EXPECT_EQ(areas.front(), Kit().WorkArea());
    for (const Rect& area : areas) {
        EXPECT_GT(area.width, 3000);
        EXPECT_GT(area.height, 3000);
        EXPECT_EQ(std::count(areas.begin(), areas.end(), area), 1);
    }
    EXPECT_EQ(Kit().ScreenTwips({300, 300, 3000, 3000}), 1);  // of the main screen
    // Room for a title bar and its buttons, and less than any form of this program has.
    EXPECT_GT(Kit().LeastFormSize().width, 600);
    EXPECT_LT(Kit().LeastFormSize().width, 6000);
    EXPECT_GT(Kit().LeastFormSize().height, 240);
    EXPECT_LT(Kit().LeastFormSize().height, 2000);
    EXPECT_NO_THROW(Kit().SetPointer(Pointer::Hourglass));
    EXPECT_NO_THROW(Kit().SetPointer(Pointer::Default));
}

}  // namespace
}  // namespace ordalyn::contract
