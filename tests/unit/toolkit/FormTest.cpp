// A form made from its design.
#include <cmath>

#include "SampleTest.h"

namespace ordalyn::toolkit {
namespace {

using test::Counter;
using test::kControl;
using test::kNoModifiers;
using test::MemoryToolkit;
using FormTest = test::SampleTest;

TEST_F(FormTest, TheControlsAreWalkedInDesignOrder) {
    ASSERT_EQ(form.Controls().size(), std::size(test::kSampleControls));
    for (std::size_t i = 0; i < form.Controls().size(); ++i) {
        EXPECT_EQ(form.Controls()[i]->Name(), test::kSampleControls[i].name);
        EXPECT_EQ(form.Controls()[i]->ControlKind(), test::kSampleControls[i].kind);
        EXPECT_EQ(form.Controls()[i]->Index(), test::kSampleControls[i].index);
        EXPECT_EQ(form.Controls()[i]->Tag(), test::kSampleControls[i].tag);
    }
}

TEST_F(FormTest, ADesignSaysWhereAControlIs) {
    Control& option = Get<OptionButton>("optSide", 1);
    EXPECT_EQ(option.Bounds(), (Rect{60, 400, 900, 300}));
    EXPECT_EQ(option.Container(), &Get<Frame>("fraOne"));
    EXPECT_EQ(Get<Frame>("fraOne").Container(), &form);
    EXPECT_EQ(form.Tag(), "1");
    EXPECT_EQ(form.Name(), "frmSample");
}

TEST_F(FormTest, ADesignSaysWhatIsVisibleAndATabStop) {
    EXPECT_FALSE(Get<CommandButton>("cmdCancel").Visible());
    EXPECT_FALSE(On(Get<CommandButton>("cmdCancel")).visible);
    EXPECT_FALSE(Get<CommandButton>("cmdCancel").TabStop());
    EXPECT_EQ(On(Get<CommandButton>("cmdCancel")).tabStop, false);
    EXPECT_TRUE(On(Get<CommandButton>("cmdOk")).visible);
    EXPECT_TRUE(Get<CommandButton>("cmdOk").TabStop());
    EXPECT_EQ(On(Get<CommandButton>("cmdOk")).tabStop, std::nullopt) << "as is usual for the kind";
    EXPECT_TRUE(Get<ComboBox>("cboEdit").Editable());
    EXPECT_FALSE(Get<ComboBox>("cboList").Editable());
}

TEST_F(FormTest, ADesignSaysWhichButtonsEnterAndEscapePress) {
    EXPECT_EQ(form.DefaultButton(), &Get<CommandButton>("cmdOk"));
    EXPECT_EQ(form.CancelButton(), &Get<CommandButton>("cmdCancel"));
    EXPECT_EQ(On(form).defaultButton, &Get<CommandButton>("cmdOk").peer());
    const FormDesign bare{
        .name = "frmBare", .tag = "", .clientSize = {100, 100}, .style = {}, .controls = {}};
    const Form other(kit, bare);
    EXPECT_EQ(other.DefaultButton(), nullptr);
    EXPECT_EQ(other.CancelButton(), nullptr);
    EXPECT_EQ(On(other).defaultButton, nullptr);
}

TEST_F(FormTest, ADesignHoldsNoForms) {
    static constexpr ControlDesign kForm[] = {{.kind = Kind::Form, .name = "frmInside"}};
    const FormDesign design{
        .name = "frmOuter", .tag = "", .clientSize = {100, 100}, .style = {}, .controls = kForm};
    EXPECT_THROW(Form(kit, design), InvalidPropertyValue);
}

TEST_F(FormTest, AccessByNameAndKindThrowsWhenThereIsNoneSuch) {
    EXPECT_THROW(Get<Label>("lblNone"), SubscriptOutOfRange);
    EXPECT_THROW(Get<Label>("cmdOk"), SubscriptOutOfRange);           // another kind
    EXPECT_THROW(Get<OptionButton>("optSide"), SubscriptOutOfRange);  // it is a control array
    EXPECT_THROW(Get<OptionButton>("optSide", 3), SubscriptOutOfRange);
    EXPECT_THROW(Get<OptionButton>("optAlone", 0), SubscriptOutOfRange);
}

TEST_F(FormTest, ADesignWhoseContainerIsMissingThrows) {
    static constexpr ControlDesign kLost[] = {
        {.kind = Kind::Label, .name = "lblLost", .container = "fraNone"}};
    const FormDesign design{
        .name = "frmLost", .tag = "", .clientSize = {100, 100}, .style = {}, .controls = kLost};
    EXPECT_THROW(Form(kit, design), SubscriptOutOfRange);
}

TEST_F(FormTest, TheInsideHasTheSizeOfTheDesign) {
    EXPECT_EQ(form.ClientSize(), (Size{6400, 5000}));
    EXPECT_GT(form.Width(), 6400);
    EXPECT_GT(form.Height(), 5000);
}

TEST_F(FormTest, TheHeightOfTheInsideCanBeSet) {
    const Rect before = form.Bounds();
    Counter resized(form.Resize);
    form.SetClientHeight(1000);
    EXPECT_EQ(form.ClientSize(), (Size{6400, 1000}));
    EXPECT_EQ(form.Left(), before.left);
    EXPECT_EQ(form.Top(), before.top);
    EXPECT_EQ(form.Width(), before.width);
    EXPECT_EQ(resized.Take(), 1);
    EXPECT_THROW(form.SetClientHeight(-1), InvalidPropertyValue);
    EXPECT_EQ(form.ClientSize(), (Size{6400, 1000}));
}

TEST_F(FormTest, MovingKeepsTheBoundsExactly) {
    Counter resized(form.Resize);
    const Rect odd{100.25F, -50.5F, 5000.75F, 4000.125F};
    form.Move(odd);
    EXPECT_EQ(form.Bounds(), odd);
    EXPECT_EQ(resized.Take(), 1);
    form.SetLeft(7);
    EXPECT_EQ(form.Bounds(), (Rect{7, -50.5F, 5000.75F, 4000.125F}));
    EXPECT_EQ(resized.Take(), 0);
    EXPECT_THROW(form.SetWidth(-1), InvalidPropertyValue);
    EXPECT_EQ(form.Width(), 5000.75F);
}

TEST_F(FormTest, IsCentredInTheWorkArea) {
    kit.workArea = {1000, 500, 20000, 10000};
    form.Move({0, 0, 5000, 4000});
    form.CentreOnScreen();
    EXPECT_EQ(form.Bounds(), (Rect{8500, 3500, 5000, 4000}));
}

// Its own twips are twice as large there.
TEST_F(FormTest, IsCentredOnAScreenOfAnotherResolution) {
    kit.workArea = {20000, 500, 20000, 10000};
    kit.finerFrom = 20000;
    kit.timesFiner = 2;
    form.Move({0, 0, 5000, 4000});
    form.CentreOnScreen();
    EXPECT_EQ(form.Bounds(), (Rect{25000, 1500, 5000, 4000}));
}

TEST_F(FormTest, IsLaidOutAgainAtAnotherResolution) {
    Counter resized(form.Resize);
    form.SystemRescaled(form.Bounds());
    EXPECT_EQ(resized.Take(), 1);
    form.SystemRescaled({5, 6, 3000, 2000});
    EXPECT_EQ(form.Bounds(), (Rect{5, 6, 3000, 2000}));
    EXPECT_EQ(resized.Take(), 1);
    form.Unload();
    form.SystemRescaled({7, 8, 300, 200});
    EXPECT_EQ(form.Bounds(), (Rect{5, 6, 3000, 2000}));
    EXPECT_EQ(resized.Take(), 0);
}

TEST_F(FormTest, AResizeByTheUserIsRaised) {
    Counter resized(form.Resize);
    kit.ResizeByUser(form, {10, 20, 3000, 2000});
    EXPECT_EQ(form.Bounds(), (Rect{10, 20, 3000, 2000}));
    EXPECT_EQ(resized.Take(), 1);
    kit.ResizeByUser(form, {30, 40, 3000, 2000});  // moved only
    EXPECT_EQ(form.Bounds(), (Rect{30, 40, 3000, 2000}));
    EXPECT_EQ(resized.Take(), 0);
}

TEST_F(FormTest, AMinimisedFormIsNotLaidOut) {
    const Rect before = form.Bounds();
    Counter resized(form.Resize);
    form.SystemResized({-32000, -32000, 160, 28}, WindowState::Minimised);
    EXPECT_EQ(form.Bounds(), before);
    EXPECT_EQ(resized.Take(), 0);
}

TEST_F(FormTest, MaximisingTakesTheWorkAreaAndKeepsTheNormalBounds) {
    form.Move({100, 100, 5000, 4000});
    Counter resized(form.Resize);
    form.SetState(WindowState::Maximised);
    EXPECT_EQ(form.State(), WindowState::Maximised);
    EXPECT_EQ(form.Bounds(), kit.workArea);
    EXPECT_EQ(resized.Take(), 1);
    form.SetState(WindowState::Normal);
    EXPECT_EQ(form.Bounds(), (Rect{100, 100, 5000, 4000}));
    EXPECT_EQ(resized.Take(), 1);
}

TEST_F(FormTest, KeysAreRaisedWithTheirModifiers) {
    std::vector<std::pair<int, Modifiers>> up;
    form.KeyUp.Subscribe([&](int key, Modifiers m) { up.emplace_back(key, m); });
    Counter down(form.KeyDown);
    kit.Press(form, key::F3, {true, false, false});
    EXPECT_EQ(down.Take(), 1);
    ASSERT_EQ(up.size(), 1U);
    EXPECT_EQ(up[0].first, key::F3);
    EXPECT_EQ(up[0].second, (Modifiers{true, false, false}));
}

TEST_F(FormTest, TheToolkitAndTheStyleAreAtHand) {
    EXPECT_EQ(&form.toolkit(), &kit);
    EXPECT_TRUE(form.Style().resizable);
    EXPECT_NE(form.Handle(), 0U);
}

}  // namespace
}  // namespace ordalyn::toolkit
