// Loading, showing, hiding and unloading forms.
#include <optional>

#include "SampleTest.h"

namespace ordalyn::toolkit {
namespace {

using test::Counter;
using testing::ElementsAre;
using FormLifeTest = test::SampleTest;

TEST_F(FormLifeTest, ALoadedFormIsHidden) {
    EXPECT_FALSE(form.Visible());
    EXPECT_FALSE(On(form).visible);
    EXPECT_FALSE(form.Unloaded());
}

TEST_F(FormLifeTest, ActivateComesFromTheMessageLoop) {
    Counter activated(form.Activate);
    form.Show();
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(activated.Take(), 0);
    kit.DoEvents();
    EXPECT_EQ(activated.Take(), 1);
}

TEST_F(FormLifeTest, VisibleShowsAndHides) {
    form.SetVisible(true);
    EXPECT_TRUE(On(form).visible);
    form.SetVisible(false);
    EXPECT_FALSE(On(form).visible);
    EXPECT_FALSE(form.Visible());
    EXPECT_FALSE(form.Unloaded());
}

TEST_F(FormLifeTest, UnloadingAsksFirstAndThenTells) {
    std::vector<std::string> order;
    form.QueryUnload.Subscribe([&](bool&) {
        EXPECT_TRUE(form.Visible());
        order.emplace_back("query");
    });
    form.Unloading.Subscribe([&] {
        EXPECT_TRUE(form.Visible());
        EXPECT_FALSE(form.Unloaded());
        order.emplace_back("unload");
    });
    form.Show();
    EXPECT_TRUE(form.Unload());
    EXPECT_THAT(order, ElementsAre("query", "unload"));
    EXPECT_TRUE(form.Unloaded());
    EXPECT_FALSE(form.Visible());
    EXPECT_FALSE(On(form).visible);
}

TEST_F(FormLifeTest, AFormCanStay) {
    Counter unloading(form.Unloading);
    form.QueryUnload.Subscribe([](bool& keep) { keep = true; });
    form.Show();
    EXPECT_FALSE(form.Unload());
    EXPECT_EQ(unloading.Take(), 0);
    EXPECT_FALSE(form.Unloaded());
    EXPECT_TRUE(form.Visible());
}

TEST_F(FormLifeTest, ClosingByTheUserUnloads) {
    Counter query(form.QueryUnload);
    form.Show();
    form.UserClosed();
    EXPECT_EQ(query.Take(), 1);
    EXPECT_TRUE(form.Unloaded());
    EXPECT_FALSE(form.SessionEnds());
}

TEST_F(FormLifeTest, TheEndOfTheSessionUnloadsAndIsKnownByThen) {
    bool known = false;
    form.Unloading.Subscribe([&] { known = form.SessionEnds(); });
    form.Show();
    form.SessionEnded();
    EXPECT_TRUE(known);
    EXPECT_TRUE(form.Unloaded());
}

TEST_F(FormLifeTest, UnloadingTwiceHappensOnce) {
    Counter query(form.QueryUnload);
    Counter unloading(form.Unloading);
    EXPECT_TRUE(form.Unload());
    EXPECT_TRUE(form.Unload());
    EXPECT_EQ(query.Take(), 1);
    EXPECT_EQ(unloading.Take(), 1);
}

TEST_F(FormLifeTest, AnUnloadedFormHearsOfNoResize) {
    form.Unload();
    Counter resized(form.Resize);
    form.SystemResized({0, 0, 1, 1}, WindowState::Normal);
    EXPECT_EQ(resized.Take(), 0);
}

TEST_F(FormLifeTest, AModalFormReturnsWhenItIsHidden) {
    int ran = 0;
    kit.modalScripts.emplace_back([&](Form& modal) {
        EXPECT_EQ(&modal, &form);
        EXPECT_TRUE(modal.Visible());
        EXPECT_EQ(kit.modalForm, &form);
        modal.Hide();
        ++ran;
    });
    form.ShowModal(nullptr);
    EXPECT_EQ(ran, 1);
    EXPECT_FALSE(form.Visible());
    EXPECT_FALSE(form.Unloaded());
    EXPECT_EQ(kit.modalForm, nullptr);
}

TEST_F(FormLifeTest, AModalFormReturnsWhenItIsUnloaded) {
    kit.modalScripts.emplace_back([](Form& modal) { modal.UserClosed(); });
    form.ShowModal(nullptr);
    EXPECT_TRUE(form.Unloaded());
}

TEST_F(FormLifeTest, AModalFormIsActivatedOnce) {
    Counter activated(form.Activate);
    form.ShowModal(nullptr);
    EXPECT_EQ(activated.Take(), 1);
}

TEST_F(FormLifeTest, OtherFormsGetNoKeysWhileOneIsModal) {
    Form other(kit, test::kSampleDesign);
    Counter otherKeys(other.KeyDown);
    Counter ownKeys(form.KeyDown);
    kit.modalScripts.emplace_back([&](Form&) {
        kit.Press(other, key::F3);
        kit.Press(form, key::F3);
    });
    form.ShowModal(&other);
    EXPECT_EQ(otherKeys.Take(), 0);
    EXPECT_EQ(ownKeys.Take(), 1);
    kit.Press(other, key::F3);
    EXPECT_EQ(otherKeys.Take(), 1);
}

TEST_F(FormLifeTest, AModalFormCanShowAnother) {
    Form inner(kit, test::kSampleDesign);
    std::vector<std::string> order;
    kit.modalScripts.emplace_back([&](Form&) {
        order.emplace_back("outer");
        inner.ShowModal(&form);
        EXPECT_EQ(kit.modalForm, &form);
        order.emplace_back("back");
    });
    kit.modalScripts.emplace_back([&](Form&) { order.emplace_back("inner"); });
    form.ShowModal(nullptr);
    EXPECT_THAT(order, ElementsAre("outer", "inner", "back"));
}

TEST_F(FormLifeTest, AFormMayGoWhileItsActivationWaits) {
    std::optional<Form> gone(std::in_place, kit, test::kSampleDesign);
    int activated = 0;
    gone->Activate.Subscribe([&] { ++activated; });
    gone->Show();
    gone.reset();
    kit.DoEvents();
    EXPECT_EQ(activated, 0);
}

}  // namespace
}  // namespace ordalyn::toolkit
