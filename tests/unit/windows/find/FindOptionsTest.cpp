// The find dialog's options and the font of the settings.
#include "support/settings/SettingsFixture.h"

namespace ordalyn::test {
namespace {

using toolkit::Kind;

constexpr toolkit::ControlDesign kControls[] = {
    {.kind = Kind::ComboBox, .name = "cboFindWhat", .editable = true},
    {.kind = Kind::Frame, .name = "Frame1"},
    {.kind = Kind::OptionButton, .name = "optColumn", .container = "Frame1", .index = 0},
    {.kind = Kind::OptionButton, .name = "optColumn", .container = "Frame1", .index = 1},
    {.kind = Kind::CheckBox, .name = "chkWholeWord"},
    {.kind = Kind::CheckBox, .name = "chkSelectedDate"},
    {.kind = Kind::ListView, .name = "SourceListView"},
};
constexpr toolkit::FormDesign kDesign = {.name = "frmSearchFor",
                                         .tag = "",
                                         .clientSize = {5000, 3000},
                                         .style = {},
                                         .controls = kControls};

class FindOptions : public SettingsFixture {
  protected:
    FindOptions() {
        for (int i = 0; i < 6; ++i)
            combo.AddItem("text " + std::to_string(i));
        source.SetChecked(true);
    }
    void Load(std::string_view stored) {
        Put("Ordalyn", "FindOptions", stored);
        settings.LoadFindOptions(controls);
    }
    // List index, column, whole word, selected date.
    std::string Shown() const {
        return std::to_string(combo.ListIndex()) + (source.Checked() ? " source" : "") +
               (target.Checked() ? " target" : "") + (word.Checked() ? " word" : "") +
               (date.Checked() ? " date" : "");
    }

    toolkit::Form form{toolkit, kDesign};
    toolkit::ComboBox& combo = form.Get<toolkit::ComboBox>("cboFindWhat");
    toolkit::OptionButton& source = form.Get<toolkit::OptionButton>("optColumn", 0);
    toolkit::OptionButton& target = form.Get<toolkit::OptionButton>("optColumn", 1);
    toolkit::CheckBox& word = form.Get<toolkit::CheckBox>("chkWholeWord");
    toolkit::CheckBox& date = form.Get<toolkit::CheckBox>("chkSelectedDate");
    FindOptionControls controls{combo, source, target, word, date};
};

TEST_F(FindOptions, AreReadByPlace) {
    Load("4,1,1,0");
    EXPECT_EQ(Shown(), "4 target word");
    Load("-1,0,0,1");
    EXPECT_EQ(Shown(), "-1 source date");
}

TEST_F(FindOptions, WithoutAnEntryAreTheFirstTextAndTheSource) {
    target.SetChecked(true);
    word.SetChecked(true);
    date.SetChecked(true);
    settings.LoadFindOptions(controls);
    EXPECT_EQ(Shown(), "0 source");
}

TEST_F(FindOptions, MissingPartsLeaveTheirControls) {
    word.SetChecked(true);
    Load("3,1");
    EXPECT_EQ(Shown(), "3 target word");
}

TEST_F(FindOptions, AnEmptyEntryLeavesEverything) {
    Load("2,1,1,1");
    Load("");
    EXPECT_EQ(Shown(), "2 target word date");
}

TEST_F(FindOptions, ARefusedPartLeavesItsControlAndTheOthersAreSet) {
    Load("2,1,1,1");
    Load("6,0,0,0");  // there is no seventh text
    EXPECT_EQ(Shown(), "2 source");
    Load("3,2,1,1");  // nor a third column
    EXPECT_EQ(Shown(), "3 source word date");
    Load("4,1,x,0");
    EXPECT_EQ(Shown(), "4 target word");
    Load("5,0,0,7");
    EXPECT_EQ(Shown(), "5 source");
    Load("one,1,1,1");
    EXPECT_EQ(Shown(), "5 target word date");
    Load(",0,,0");
    EXPECT_EQ(Shown(), "5 source word");
}

TEST_F(FindOptions, SettingTheListRaisesItsEvents) {
    int clicks = 0;
    combo.Click.Subscribe([&] { ++clicks; });
    Load("3,1,0,0");
    EXPECT_EQ(clicks, 1);
}

TEST_F(FindOptions, AreWrittenByPlace) {
    combo.SetListIndex(5);
    word.SetChecked(true);
    settings.SaveFindOptions(controls, 1);
    EXPECT_EQ(Stored("Ordalyn", "FindOptions"), "5,1,1,0");
    combo.SetListIndex(-1);
    word.SetChecked(false);
    date.SetChecked(true);
    // The column last chosen is told by the dialog, whatever the buttons show.
    target.SetChecked(true);
    settings.SaveFindOptions(controls, 0);
    EXPECT_EQ(Stored("Ordalyn", "FindOptions"), "-1,0,0,1");
}

class ApplyFont : public FindOptions {
  protected:
    ApplyFont() {
        settings.FontName = "Courier New";
        settings.FontScript = 204;
        settings.FontSize = 12;
        settings.FontStyle = kFontItalic;
    }
    toolkit::ListView& list = form.Get<toolkit::ListView>("SourceListView");
};

TEST_F(ApplyFont, GivesFaceCharacterSetSizeAndStyleOfTheSettings) {
    settings.ApplyFont(list, true, 8);
    EXPECT_EQ(
        list.Font(),
        (toolkit::Font{.name = "Courier New", .size = 12, .characterSet = 204, .italic = true}));
}

TEST_F(ApplyFont, EachBitOfTheStyleIsAnAttribute) {
    for (std::int32_t style = 0; style < 32; ++style) {
        settings.FontStyle = style;
        settings.ApplyFont(list, true, 8);
        EXPECT_EQ(list.Font().bold, (style & 1) != 0) << style;
        EXPECT_EQ(list.Font().italic, (style & 2) != 0) << style;
        EXPECT_EQ(list.Font().strikethrough, (style & 4) != 0) << style;
        EXPECT_EQ(list.Font().underline, (style & 8) != 0) << style;
    }
}

TEST_F(ApplyFont, WithoutTheSettingsItIsPlainInTheGivenSize) {
    settings.FontStyle = 15;
    settings.ApplyFont(list, false, 9.5);
    EXPECT_EQ(list.Font(),
              (toolkit::Font{.name = "Courier New", .size = 9.5, .characterSet = 204}));
}

TEST_F(ApplyFont, TheFontIsNewAndKeepsNothingOfTheOldOne) {
    list.SetFont({.name = "Arial", .size = 20, .bold = true, .underline = true});
    settings.ApplyFont(list, true, 8);
    EXPECT_FALSE(list.Font().bold);
    EXPECT_FALSE(list.Font().underline);
    EXPECT_TRUE(list.Font().italic);
}

}  // namespace
}  // namespace ordalyn::test
