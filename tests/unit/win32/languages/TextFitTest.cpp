// The measuring itself: what is cut off is found.
#include <gmock/gmock.h>

#include "unit/win32/languages/TextFit.h"

namespace ordalyn::test {
namespace {

using namespace toolkit;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr ControlDesign kControls[] = {
    {.kind = Kind::Label, .name = "lbl", .bounds = {0, 0, 1500, 450}},
    {.kind = Kind::CommandButton, .name = "cmd", .bounds = {0, 500, 1500, 375}},
    {.kind = Kind::CheckBox, .name = "chk", .bounds = {0, 900, 1500, 300}},
    {.kind = Kind::OptionButton, .name = "opt", .bounds = {0, 1200, 1500, 300}},
    {.kind = Kind::Frame, .name = "fra", .bounds = {0, 1500, 1500, 600}},
    {.kind = Kind::ComboBox, .name = "cbo", .bounds = {0, 2100, 1500, 315}},
    {.kind = Kind::TabStrip, .name = "tbs", .bounds = {2000, 0, 1500, 900}},
    {.kind = Kind::ListView, .name = "lvw", .bounds = {2000, 1000, 1500, 900}},
    {.kind = Kind::StatusBar, .name = "sta"},
};
constexpr FormDesign kDesign = {
    .name = "frm", .tag = "", .clientSize = {5000, 4000}, .style = {}, .controls = kControls};

class TextFit : public testing::TestWithParam<int> {
  protected:
    std::vector<std::string> Found() { return TextsThatDoNotFit(form, GetParam()); }

    const std::string fitting = "Find &what";
    const std::string tooLong = "&Wider than what is there";
    Form form{ToolkitAt(GetParam()), kDesign};
};
INSTANTIATE_TEST_SUITE_P(At, TextFit, testing::Values(96, 144),
                         [](const auto& resolution) { return std::to_string(resolution.param); });

TEST_P(TextFit, CaptionsAreFound) {
    for (const char* name : {"cmd", "chk", "opt", "fra"}) {
        for (const auto& control : form.Controls()) {
            if (control->Name() != name)
                continue;
            control->SetCaption(fitting);
            EXPECT_THAT(Found(), IsEmpty());
            control->SetCaption(tooLong);
            EXPECT_THAT(Found(), ElementsAre(HasSubstr(name + (" \"" + tooLong)))) << name;
            control->SetCaption("");
        }
    }
}

TEST_P(TextFit, ALabelMayTakeItsLinesButNoMore) {
    auto& label = form.Get<Label>("lbl");
    label.SetCaption("Two lines are no problem");
    EXPECT_THAT(Found(), IsEmpty());
    label.SetCaption("Three or even more lines would not be seen");
    EXPECT_THAT(Found(), ElementsAre(HasSubstr("lines in")));
    label.SetCaption("Wordsthatareverylong");
    EXPECT_THAT(Found(), ElementsAre(HasSubstr("too long")));
    label.SetCaption("最新情報はホームページで");
    EXPECT_THAT(Found(), IsEmpty());
    label.SetCaption("最新情報はホームページでご覧になれます");
    EXPECT_THAT(Found(), ElementsAre(HasSubstr("lines in")));
}

TEST_P(TextFit, ItemsTabsColumnsPanelsAndTheTitleAreFound) {
    auto& box = form.Get<ComboBox>("cbo");
    box.AddItem("Contains");
    auto& tabs = form.Get<TabStrip>("tbs");
    tabs.AddTab("1");
    tabs.AddTab("2");
    tabs.SetTabCaption(1, "Here");
    tabs.SetTabCaption(2, "There");
    auto& list = form.Get<ListView>("lvw");
    list.AddColumn("Time", 884, 0);
    auto& bar = form.Get<StatusBar>("sta");
    bar.AddPanel(1500);
    bar.SetPanelText(1, "Filter");
    form.SetCaption("Options");
    EXPECT_THAT(Found(), IsEmpty());
    box.AddItem(tooLong);
    tabs.SetTabCaption(2, "There is another");
    list.SetColumnCaption(0, "A long time");
    bar.SetPanelText(1, tooLong);
    form.SetCaption("Everything that there is to be set in this program at all");
    EXPECT_THAT(Found(), ElementsAre(HasSubstr("cbo"), HasSubstr("tbs"), HasSubstr("lvw"),
                                     HasSubstr("sta"), HasSubstr("title")));
}

TEST_P(TextFit, MarksOfTheReadingOrderTakeNoRoom) {
    auto& button = form.Get<CommandButton>("cmd");
    button.SetCaption(fitting + "\u200F\u200F\u200F\u200F\u200F\u200F\u200F\u200F\u200F\u200F");
    EXPECT_THAT(Found(), IsEmpty());
}

TEST_P(TextFit, CollisionsAreFound) {
    EXPECT_THAT(ControlsThatCollide(form), IsEmpty());
    form.Get<CommandButton>("cmd").SetHeight(500);
    form.Get<Label>("lbl").SetWidth(6000);
    form.Get<TabStrip>("tbs").SetVisible(false);
    EXPECT_THAT(ControlsThatCollide(form),
                ElementsAre("frm.lbl is not inside", "frm.chk lies over cmd"));
}

}  // namespace
}  // namespace ordalyn::test
