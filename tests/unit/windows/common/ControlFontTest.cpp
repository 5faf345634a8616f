#include "windows/common/ControlFont.h"

#include "support/windows/FormFixture.h"

namespace ordalyn::test {
namespace {

constexpr toolkit::ControlDesign kControls[] = {
    {.kind = toolkit::Kind::ListView, .name = "SourceListView"}};
constexpr toolkit::FormDesign kDesign = {
    .name = "frmTest", .tag = "", .clientSize = {5000, 3000}, .style = {}, .controls = kControls};

class ControlFont : public FormFixture {
  protected:
    ControlFont() {
        settings.FontName = "Courier New";
        settings.FontScript = 204;
        settings.FontSize = 12;
        settings.FontStyle = kFontItalic;
    }
    toolkit::Form form{toolkit, kDesign};
    toolkit::ListView& list = form.Get<toolkit::ListView>("SourceListView");
};

TEST_F(ControlFont, GivesFaceCharacterSetSizeAndStyleOfTheSettings) {
    ApplyFont(settings, list, true, 8);
    EXPECT_EQ(
        list.Font(),
        (toolkit::Font{.name = "Courier New", .size = 12, .characterSet = 204, .italic = true}));
}

TEST_F(ControlFont, EachBitOfTheStyleIsAnAttribute) {
    for (std::int32_t style = 0; style < 32; ++style) {
        settings.FontStyle = style;
        ApplyFont(settings, list, true, 8);
        EXPECT_EQ(list.Font().bold, (style & 1) != 0) << style;
        EXPECT_EQ(list.Font().italic, (style & 2) != 0) << style;
        EXPECT_EQ(list.Font().strikethrough, (style & 4) != 0) << style;
        EXPECT_EQ(list.Font().underline, (style & 8) != 0) << style;
    }
}

TEST_F(ControlFont, WithoutTheSettingsItIsPlainInTheGivenSize) {
    settings.FontStyle = 15;
    ApplyFont(settings, list, false, 9.5);
    EXPECT_EQ(list.Font(),
              (toolkit::Font{.name = "Courier New", .size = 9.5, .characterSet = 204}));
}

TEST_F(ControlFont, TheFontIsNewAndKeepsNothingOfTheOldOne) {
    list.SetFont({.name = "Arial", .size = 20, .bold = true, .underline = true});
    ApplyFont(settings, list, true, 8);
    EXPECT_FALSE(list.Font().bold);
    EXPECT_FALSE(list.Font().underline);
    EXPECT_TRUE(list.Font().italic);
}

}  // namespace
}  // namespace ordalyn::test
