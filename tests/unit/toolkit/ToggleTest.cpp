// Check boxes and option buttons.
#include "SampleTest.h"

namespace ordalyn::toolkit {
namespace {

using test::Counter;
using ToggleTest = test::SampleTest;

TEST_F(ToggleTest, ACheckBoxRaisesClickWhenItsValueChangesByCode) {
    auto& box = Get<CheckBox>("chkBox");
    Counter clicked(box.Click);
    EXPECT_FALSE(box.Checked());
    box.SetChecked(false);
    EXPECT_EQ(clicked.Take(), 0);
    box.SetChecked(true);
    EXPECT_EQ(clicked.Take(), 1);
    EXPECT_TRUE(On(box).checked);
    box.SetChecked(true);
    EXPECT_EQ(clicked.Take(), 0);
    box.SetChecked(false);
    EXPECT_EQ(clicked.Take(), 1);
    EXPECT_FALSE(On(box).checked);
}

TEST_F(ToggleTest, ACheckBoxRaisesClickEachTimeTheUserPressesIt) {
    auto& box = Get<CheckBox>("chkBox");
    std::vector<bool> seen;
    box.Click.Subscribe([&] { seen.push_back(box.Checked()); });
    box.UserToggled();
    box.UserToggled();
    EXPECT_THAT(seen, testing::ElementsAre(true, false));
    EXPECT_FALSE(On(box).checked);
}

TEST_F(ToggleTest, OptionsOfOneContainerExcludeEachOther) {
    auto& first = Get<OptionButton>("optSide", 0);
    auto& second = Get<OptionButton>("optSide", 1);
    auto& alone = Get<OptionButton>("optAlone");
    first.SetChecked(true);
    alone.SetChecked(true);
    second.SetChecked(true);
    EXPECT_FALSE(first.Checked());
    EXPECT_FALSE(On(first).checked);
    EXPECT_TRUE(second.Checked());
    EXPECT_TRUE(On(second).checked);
    EXPECT_TRUE(alone.Checked());  // the form is another container
}

TEST_F(ToggleTest, AnOptionRaisesClickOnlyWhenItBecomesChosen) {
    auto& first = Get<OptionButton>("optSide", 0);
    auto& second = Get<OptionButton>("optSide", 1);
    Counter firstClicked(first.Click);
    Counter secondClicked(second.Click);
    first.SetChecked(true);
    EXPECT_EQ(firstClicked.Take(), 1);
    first.SetChecked(true);
    EXPECT_EQ(firstClicked.Take(), 0);
    second.SetChecked(true);
    EXPECT_EQ(secondClicked.Take(), 1);
    EXPECT_EQ(firstClicked.Take(), 0);
    second.SetChecked(false);
    EXPECT_EQ(secondClicked.Take(), 0);
    EXPECT_FALSE(first.Checked());
    EXPECT_FALSE(second.Checked());
}

TEST_F(ToggleTest, PressingTheChosenOptionChangesNothing) {
    auto& first = Get<OptionButton>("optSide", 0);
    Counter clicked(first.Click);
    first.UserToggled();
    EXPECT_TRUE(first.Checked());
    EXPECT_EQ(clicked.Take(), 1);
    first.UserToggled();
    EXPECT_TRUE(first.Checked());
    EXPECT_EQ(clicked.Take(), 0);
}

TEST_F(ToggleTest, TheOthersAreOutWhenClickIsRaised) {
    auto& first = Get<OptionButton>("optSide", 0);
    auto& third = Get<OptionButton>("optSide", 2);
    first.SetChecked(true);
    bool firstSeen = true;
    third.Click.Subscribe([&] { firstSeen = first.Checked(); });
    third.UserToggled();
    EXPECT_FALSE(firstSeen);
}

}  // namespace
}  // namespace ordalyn::toolkit
