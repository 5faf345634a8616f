// The find dialog's options and the font of the settings.
#include "settings/FindOptions.h"

#include "support/settings/SettingsFixture.h"

namespace ordalyn::test {
namespace {

using toolkit::Kind;

constexpr toolkit::ControlDesign kControls[] = {
    {.kind = Kind::ListView, .name = "SourceListView"},
};
constexpr toolkit::FormDesign kDesign = {
    .name = "frmTest", .tag = "", .clientSize = {5000, 3000}, .style = {}, .controls = kControls};

class FindOptionsTest : public SettingsFixture {
  protected:
    // History item, column, whole word, selected date; "-" for what is absent.
    std::string Loaded(std::string_view stored) {
        Put("Ordalyn", "FindOptions", stored);
        return Loaded();
    }
    std::string Loaded() {
        const FindOptions options = settings.LoadFindOptions();
        const auto text = [](const auto& part) { return part ? std::to_string(*part) : "-"; };
        return text(options.historyItem) + " " + text(options.columnNo) + " " +
               text(options.wholeWord) + " " + text(options.selectedDateOnly);
    }
};

TEST_F(FindOptionsTest, AreReadByPlace) {
    EXPECT_EQ(Loaded("4,1,1,0"), "4 1 1 0");
    EXPECT_EQ(Loaded("-1,0,0,1"), "-1 0 0 1");
}

TEST_F(FindOptionsTest, WithoutAnEntryAreTheFirstTextAndTheSource) {
    EXPECT_EQ(Loaded(), "0 0 0 0");
}

TEST_F(FindOptionsTest, MissingPartsAreAbsent) {
    EXPECT_EQ(Loaded("3,1"), "3 1 - -");
    EXPECT_EQ(Loaded(""), "- - - -");
    EXPECT_EQ(Loaded(",0,,0"), "- 0 - 0");
}

TEST_F(FindOptionsTest, PartsThatAreNoSuchValueAreAbsentAndTheOthersAreNot) {
    EXPECT_EQ(Loaded("3,2,1,1"), "3 - 1 1");  // there is no third column
    EXPECT_EQ(Loaded("3,-1,1,1"), "3 - 1 1");
    EXPECT_EQ(Loaded("4,1,x,0"), "4 1 - 0");
    EXPECT_EQ(Loaded("5,0,0,7"), "5 0 0 -");
    EXPECT_EQ(Loaded("one,1,1,1"), "- 1 1 1");
}

TEST_F(FindOptionsTest, AreWrittenByPlace) {
    settings.SaveFindOptions({5, 1, true, false});
    EXPECT_EQ(Stored("Ordalyn", "FindOptions"), "5,1,1,0");
    settings.SaveFindOptions({-1, 0, false, true});
    EXPECT_EQ(Stored("Ordalyn", "FindOptions"), "-1,0,0,1");
}

class ApplyFont : public SettingsFixture {
  protected:
    toolkit::Form form{toolkit, kDesign};
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
