// The toolkit in memory itself: what other tests rely on.
#include "SampleTest.h"

namespace ordalyn::toolkit {
namespace {

using test::Counter;
using test::MemoryToolkit;
using test::ShownMessage;
using testing::ElementsAre;
using testing::IsEmpty;
using MemoryToolkitTest = test::SampleTest;

TEST_F(MemoryToolkitTest, AMessageBoxGivesTheDefaultAnswer) {
    EXPECT_EQ(kit.ShowMessage(&form, "text", "title", MessageIcon::Question, MessageButtons::YesNo,
                              Answer::No),
              Answer::No);
    kit.onMessage = [](const ShownMessage&) { return Answer::Yes; };
    EXPECT_EQ(kit.ShowMessage(&form, "text", "title", MessageIcon::Question, MessageButtons::YesNo,
                              Answer::No),
              Answer::Yes);
    ASSERT_EQ(kit.messages.size(), 2U);
    EXPECT_EQ(kit.messages[0].text, "text");
    EXPECT_EQ(kit.messages[0].title, "title");
    EXPECT_EQ(kit.messages[0].owner, &form);
}

TEST_F(MemoryToolkitTest, AnErrorThatNoHandlerCatchesEndsInAMessageBox) {
    int later = 0;
    kit.Later([] { throw TypeMismatch(); });
    kit.Later([&] { ++later; });
    kit.DoEvents();
    EXPECT_EQ(later, 1);
    form.KeyDown.Subscribe([](int, Modifiers) { throw Overflow(); });
    kit.Press(form, key::F3);
    ASSERT_EQ(kit.messages.size(), 2U);
    EXPECT_EQ(kit.messages[0].text, "Type mismatch");
    EXPECT_EQ(kit.messages[1].text, "Overflow");
}

TEST_F(MemoryToolkitTest, WorkForLaterMayAddMoreOfIt) {
    std::vector<int> order;
    kit.Later([&] {
        order.push_back(1);
        kit.Later([&] { order.push_back(3); });
        order.push_back(2);
    });
    kit.DoEvents();
    EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST_F(MemoryToolkitTest, MenusAreShownAsTheyWereWhenTheFormReportedThem) {
    const auto& menus = MemoryToolkit::MenusOf(form);
    ASSERT_EQ(menus.size(), 1U);  // a context menu is not on the bar
    const auto& items = menus[0].items;
    ASSERT_EQ(items.size(), 4U);
    EXPECT_EQ(items[0].caption, "21");
    EXPECT_EQ(items[0].keys, "Ctrl+O");
    EXPECT_EQ(items[1].items[0].keys, "F4");
    EXPECT_EQ(items[3].keys, "Esc");
    EXPECT_TRUE(items[2].separator);
    EXPECT_FALSE(items[3].separator);
    form.Menu("mnuFileExit").SetEnabled(false);
    form.Menu("mnuFileOpen").SetChecked(true);
    form.Menu("mnuFileOpen").SetCaption("&Open");
    EXPECT_FALSE(items[3].enabled);
    EXPECT_TRUE(items[0].checked);
    EXPECT_EQ(items[0].caption, "&Open");
    form.Menu("mnuFileRecent").SetVisible(false);
    EXPECT_EQ(MemoryToolkit::MenusOf(form)[0].items.size(), 3U);
    form.Menu("mnuFile").AddItem("mnuMore", "more");
    EXPECT_EQ(MemoryToolkit::MenusOf(form)[0].items.size(), 4U);
    form.Menu("mnuFile").RemoveLastItem();
    EXPECT_EQ(MemoryToolkit::MenusOf(form)[0].items.size(), 3U);
}

TEST_F(MemoryToolkitTest, TheMenusAreOnlyRebuiltWhenTheyChange) {
    kit.menuRebuilds.clear();
    form.Menu("mnuFileExit").SetVisible(true);
    form.Menu("mnuFileExit").SetCaption("24");
    EXPECT_THAT(kit.menuRebuilds, IsEmpty());
    form.Menu("mnuFileExit").SetVisible(false);
    EXPECT_THAT(kit.menuRebuilds, ElementsAre("frmSample"));
}

TEST_F(MemoryToolkitTest, TheStatusBarStaysAlongTheLowerEdge) {
    auto& bar = Get<StatusBar>("StatusBar1");
    const auto lowerEdge = [&] { return bar.Top() + bar.Height(); };
    EXPECT_EQ(lowerEdge(), form.ClientSize().height);
    EXPECT_EQ(bar.Width(), form.ClientSize().width);
    Twips seen = 0;
    form.Resize.Subscribe([&] { seen = lowerEdge(); });
    kit.ResizeByUser(form, {0, 0, 3000, 4000});
    EXPECT_EQ(seen, form.ClientSize().height);
    EXPECT_EQ(bar.Width(), form.ClientSize().width);
    bar.Move({5, 5, 5, 5});
    EXPECT_EQ(lowerEdge(), form.ClientSize().height);
}

TEST_F(MemoryToolkitTest, TheFocusIsGivenWhenTheFormIsShown) {
    Counter focused(Get<TextBox>("txtBox").GotFocus);
    Get<TextBox>("txtBox").SetFocus();
    EXPECT_EQ(kit.focus, &Get<TextBox>("txtBox"));
    EXPECT_EQ(focused.Take(), 0);
    form.Show();
    EXPECT_EQ(focused.Take(), 1);
    Get<CheckBox>("chkBox").SetFocus();
    Get<TextBox>("txtBox").SetFocus();
    EXPECT_EQ(focused.Take(), 1);
    Get<TextBox>("txtBox").SetFocus();
    EXPECT_EQ(focused.Take(), 0);
}

TEST_F(MemoryToolkitTest, KeysGoToTheFormAndThenToTheControlWithTheFocus) {
    std::vector<std::string> order;
    Control& box = Get<TextBox>("txtBox");
    box.KeyDown.Subscribe([&](int, Modifiers) { order.emplace_back("box down"); });
    box.KeyUp.Subscribe([&](int, Modifiers) { order.emplace_back("box up"); });
    form.KeyDown.Subscribe([&](int, Modifiers) { order.emplace_back("form down"); });
    form.KeyUp.Subscribe([&](int, Modifiers) { order.emplace_back("form up"); });
    form.Show();
    box.SetFocus();
    kit.Press(form, key::F3);
    EXPECT_THAT(order, ElementsAre("form down", "box down", "form up", "box up"));
    order.clear();
    kit.Press(form, key::F4);  // a shortcut: the control never sees it go down
    EXPECT_THAT(order, ElementsAre("form down", "form up", "box up"));
}

TEST_F(MemoryToolkitTest, ThePointerAndTheBeepAreRemembered) {
    kit.SetPointer(Pointer::Hourglass);
    kit.Beep();
    kit.Quit();
    EXPECT_EQ(kit.pointer, Pointer::Hourglass);
    EXPECT_EQ(kit.beeps, 1);
    EXPECT_TRUE(kit.quit);
}

}  // namespace
}  // namespace ordalyn::toolkit
