// The find dialog takes up the options of the last run and leaves its own for the next.
#include "support/windows/FindWindow.h"

namespace ordalyn::test {
namespace {

class FindOptionsOfTheDialog : public FindWindow {
  protected:
    FindOptionsOfTheDialog() {
        for (int i = 1; i <= 6; ++i)
            Put("Find" + std::to_string(i), "text " + std::to_string(i - 1));
    }
    // List index, column, whole word, selected date of a dialog that finds these options.
    std::string Shown(std::string_view stored) {
        Put("FindOptions", stored);
        frmSearchFor& dialog = commands.FindDialog();
        const auto checked = [&](const char* name) {
            return dialog.Get<toolkit::CheckBox>(name).Checked();
        };
        const auto column = [&](int index) {
            return dialog.Get<toolkit::OptionButton>("optColumn", index).Checked();
        };
        return std::to_string(dialog.Get<toolkit::ComboBox>("cboFindWhat").ListIndex()) +
               (column(0) ? " source" : "") + (column(1) ? " target" : "") +
               (checked("chkWholeWord") ? " word" : "") +
               (checked("chkSelectedDate") ? " date" : "");
    }
};

TEST_F(FindOptionsOfTheDialog, AreShown) {
    EXPECT_EQ(Shown("4,1,1,0"), "4 target word");
}

TEST_F(FindOptionsOfTheDialog, CanBeNoTextAndTheSource) {
    EXPECT_EQ(Shown("-1,0,0,1"), "-1 source date");
}

TEST_F(FindOptionsOfTheDialog, WithoutPartsLeaveTheirControls) {
    EXPECT_EQ(Shown("3,1"), "3 target");
}

TEST_F(FindOptionsOfTheDialog, WithoutTheFirstTwoPartsLeaveTextAndColumn) {
    EXPECT_EQ(Shown(",,1,1"), "-1 source word date");
}

TEST_F(FindOptionsOfTheDialog, ThatTheListRefusesLeaveItAndTheOthersAreShown) {
    EXPECT_EQ(Shown("6,1,1,1"), "-1 target word date");  // there is no seventh text
}

TEST_F(FindOptionsOfTheDialog, RaiseTheEventsOfTheirControls) {
    Shown("3,1,0,0");
    EXPECT_EQ(commands.Search().Options().ColumnNo, 1);
    EXPECT_TRUE(mnuSearchFindNext.Enabled());
}

TEST_F(FindOptionsOfTheDialog, AreWrittenByPlace) {
    Shown("5,1,1,0");
    commands.UnloadFindDialog();
    EXPECT_EQ(Stored("FindOptions"), "5,1,1,0");
}

TEST_F(FindOptionsOfTheDialog, AreWrittenWithTheColumnLastChosen) {
    Shown("2,1,0,1");
    commands.FindDialog().Get<toolkit::OptionButton>("optColumn", 0).SetChecked(true);
    commands.UnloadFindDialog();
    EXPECT_EQ(Stored("FindOptions"), "2,0,0,1");
}

}  // namespace
}  // namespace ordalyn::test
