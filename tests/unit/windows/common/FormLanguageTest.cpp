#include "windows/common/FormLanguage.h"

#include "support/settings/DesignIds.h"
#include "support/windows/FormFixture.h"

namespace ordalyn::test {
namespace {

using toolkit::Alignment;
using toolkit::Kind;

constexpr toolkit::ControlDesign kControls[] = {
    {.kind = Kind::Label, .name = "lblPlain"},
    {.kind = Kind::Label, .name = "lblTime", .tag = "4000"},
    {.kind = Kind::Label, .name = "lblMore", .tag = "4001 and more"},
    {.kind = Kind::Label, .name = "lblNegative", .tag = "-4000"},
    {.kind = Kind::Label, .name = "lblWord", .tag = "word"},
    {.kind = Kind::Label, .name = "lblUnknown", .tag = "102"},
    {.kind = Kind::Label, .name = "lblHuge", .tag = "99999999999"},
    {.kind = Kind::CheckBox, .name = "chk", .tag = "4016"},
    {.kind = Kind::OptionButton, .name = "opt", .tag = "4003"},
    {.kind = Kind::CommandButton, .name = "cmd", .tag = "1009"},
    {.kind = Kind::Frame, .name = "fra", .tag = "255"},
    {.kind = Kind::TextBox, .name = "txt", .tag = "4000"},
    {.kind = Kind::ComboBox, .name = "cbo", .tag = "4000", .editable = true},
    {.kind = Kind::ListView, .name = "list", .tag = "4000", .nameTag = "143"},
    {.kind = Kind::PictureBox, .name = "pic", .tag = "4000"},
    {.kind = Kind::StatusBar, .name = "bar", .tag = "4000"},
    {.kind = Kind::ToolBar, .name = "tools"},
    {.kind = Kind::TabStrip, .name = "tabs"},
    {.kind = Kind::CommandButton, .name = "cmdLast", .tag = "1008"},
};
constexpr toolkit::MenuDesign kMenus[] = {
    {0, "mnuView", "141"},        {1, "mnuViewRefresh", "4020"}, {1, "mnuBar", "-"},
    {1, "mnuViewGroup", "107"},   {2, "mnuViewDeep", "108"},     {1, "mnuOdd", "no id"},
    {1, "mnuViewOptions", "150"},
};
constexpr toolkit::FormDesign kDesign = {.name = "frmTest",
                                         .tag = "1001",
                                         .clientSize = {5000, 3000},
                                         .style = {},
                                         .controls = kControls,
                                         .menus = kMenus};

class ApplyLanguage : public FormFixture {
  protected:
    ApplyLanguage() {
        for (const auto& control : form.Controls())
            control->SetCaption("design " + control->Name());
        tools.AddButton("4035", "filter", true);
        tools.AddButton("", "nothing", false);
        tools.AddButton("109", "clear", true);
        tabs.AddTab("1002");
        tabs.AddTab("none");
        tabs.AddTab("1006");
        FormLanguage::CopyMenuCaptionsToTags(form);
    }
    const std::string& Caption(std::string_view name) {
        return form.Get<toolkit::Control>(name).Caption();
    }

    toolkit::Form form{toolkit, kDesign};
    toolkit::ToolBar& tools = form.Get<toolkit::ToolBar>("tools");
    toolkit::TabStrip& tabs = form.Get<toolkit::TabStrip>("tabs");
};
using CopyMenuCaptionsToTags = ApplyLanguage;

TEST_F(CopyMenuCaptionsToTags, EveryItemButSeparatorsKeepsItsId) {
    EXPECT_EQ(form.Menu("mnuView").Tag(), "141");
    EXPECT_EQ(form.Menu("mnuViewDeep").Tag(), "108");
    EXPECT_EQ(form.Menu("mnuBar").Tag(), "");
    EXPECT_EQ(form.Menu("mnuBar").Caption(), "-");
}

TEST_F(ApplyLanguage, AMenuTextThatIsADashStaysATextAndGetsTheNextOne) {
    UseLanguageFile("[UserLanguage]\r\n4020=-\r\n");
    language.ApplyLanguage(form);
    EXPECT_EQ(form.Menu("mnuViewRefresh").Caption(), "-");
    EXPECT_FALSE(form.Menu("mnuViewRefresh").IsSeparator());
    UseLanguageFile("[UserLanguage]\r\n4020=%n %s%i\r\n");
    language.ApplyLanguage(form);
    EXPECT_EQ(form.Menu("mnuViewRefresh").Caption(), "%n %s%i");
}

TEST_F(ApplyLanguage, CaptionedControlsGetTheTextOfTheirTag) {
    language.ApplyLanguage(form);
    EXPECT_EQ(form.Caption(), "Options");
    EXPECT_EQ(Caption("lblTime"), "Time");
    EXPECT_EQ(Caption("chk"), "&Selected date only");
    EXPECT_EQ(Caption("opt"), "&Source");
    EXPECT_EQ(Caption("cmd"), "Cancel");
    EXPECT_EQ(Caption("fra"), "Search in:");
}

TEST_F(ApplyLanguage, ATagOnlyHasToBeginWithItsId) {
    language.ApplyLanguage(form);
    EXPECT_EQ(Caption("lblMore"), "Source");
}

TEST_F(ApplyLanguage, AControlWithoutAnIdKeepsItsCaption) {
    language.ApplyLanguage(form);
    EXPECT_EQ(Caption("lblPlain"), "design lblPlain");
    EXPECT_EQ(Caption("lblNegative"), "design lblNegative");
    EXPECT_EQ(Caption("lblWord"), "design lblWord");
}

TEST_F(ApplyLanguage, AnUnknownIdGivesAnEmptyCaption) {
    language.ApplyLanguage(form);
    EXPECT_EQ(Caption("lblUnknown"), "");
}

TEST_F(ApplyLanguage, AStepThatFailsIsLeftOutAndTheOthersAreMade) {
    language.ApplyLanguage(form);
    EXPECT_EQ(Caption("lblHuge"), "design lblHuge");
    EXPECT_EQ(Caption("cmdLast"), "OK");
    EXPECT_EQ(tools.ButtonAt(3).toolTip, "Clear List");
    EXPECT_EQ(tabs.TabAt(3).caption, "Language");
    EXPECT_EQ(form.Menu("mnuOdd").Caption(), "no id");
    EXPECT_EQ(form.Menu("mnuViewOptions").Caption(), "&Options...");
}

TEST_F(ApplyLanguage, KindsWithoutACaptionAreNotGivenOne) {
    form.Get<toolkit::TextBox>("txt").SetText("typed");
    language.ApplyLanguage(form);
    for (const char* name : {"txt", "cbo", "list", "pic", "bar", "tools", "tabs"})
        EXPECT_EQ(Caption(name), std::string("design ") + name);
    EXPECT_EQ(form.Get<toolkit::TextBox>("txt").Text(), "typed");
}

TEST_F(ApplyLanguage, WhatHasNoTextIsGivenANameWithoutTheMarkOfAKey) {
    language.ApplyLanguage(form);
    EXPECT_EQ(form.Get<toolkit::Control>("list").AccessibleName(), "Status Bar");
    EXPECT_EQ(MemoryToolkit::Of(form.Get<toolkit::Control>("list")).accessibleName, "Status Bar");
    EXPECT_EQ(form.Get<toolkit::Control>("cbo").AccessibleName(), "");
}

TEST_F(ApplyLanguage, ToolBarButtonsGetToolTips) {
    language.ApplyLanguage(form);
    EXPECT_EQ(tools.ButtonAt(1).toolTip, "Apply filter");
    EXPECT_EQ(tools.ButtonAt(2).toolTip, "");
}

TEST_F(ApplyLanguage, TabsGetCaptions) {
    language.ApplyLanguage(form);
    EXPECT_EQ(tabs.TabAt(1).caption, "Layout");
    EXPECT_EQ(MemoryToolkit::Of(tabs).tabs.front(), "Layout");
}

TEST_F(ApplyLanguage, MenuItemsOfEveryLevelGetTheirTexts) {
    language.ApplyLanguage(form);
    EXPECT_EQ(form.Menu("mnuView").Caption(), "&View");
    EXPECT_EQ(form.Menu("mnuViewRefresh").Caption(), "&Refresh");
    EXPECT_EQ(form.Menu("mnuViewDeep").Caption(), "No Recent Files");
}

TEST_F(ApplyLanguage, ASeparatorStaysOneInEveryLanguage) {
    form.Menu("mnuBar").SetTag("4000");
    language.ApplyLanguage(form);
    EXPECT_EQ(form.Menu("mnuBar").Caption(), "-");
    UseLanguageFile("[UserLanguage]\r\n4000=Zeit\r\n");
    language.ApplyLanguage(form);
    EXPECT_EQ(form.Menu("mnuBar").Caption(), "-");
}

TEST_F(ApplyLanguage, AFormWhoseTagIsNoNumberKeepsItsCaption) {
    for (const char* tag : {"", "frm", "1001 x"}) {
        form.SetTag(tag);
        form.SetCaption("mine");
        language.ApplyLanguage(form);
        EXPECT_EQ(form.Caption(), "mine") << tag;
    }
}

TEST_F(ApplyLanguage, AnotherLanguageReplacesTheFirst) {
    language.ApplyLanguage(form);
    UseLanguageFile(
        "[UserLanguage]\r\n1001=Optionen\r\n4000=Zeit\r\n141=&Ansicht\r\n1002=Aussehen\r\n"
        "4035=Anwenden\r\n");
    language.ApplyLanguage(form);
    EXPECT_EQ(form.Caption(), "Optionen");
    EXPECT_EQ(Caption("lblTime"), "Zeit");
    EXPECT_EQ(form.Menu("mnuView").Caption(), "&Ansicht");
    EXPECT_EQ(tabs.TabAt(1).caption, "Aussehen");
    EXPECT_EQ(tools.ButtonAt(1).toolTip, "Anwenden");
    EXPECT_EQ(form.Menu("mnuViewRefresh").Caption(), "&Refresh");
    settings.UseDefaultLanguage = 1;
    language.ApplyLanguage(form);
    EXPECT_EQ(Caption("lblTime"), "Time");
    EXPECT_EQ(form.Menu("mnuView").Caption(), "&View");
}

TEST_F(ApplyLanguage, EveryFontGetsTheCharacterSetAndNothingElseOfItChanges) {
    const toolkit::Font before{.name = "Arial", .size = 11, .bold = true};
    for (const auto& control : form.Controls())
        control->SetFont(before);
    settings.FontScript = 177;
    language.ApplyLanguage(form);
    EXPECT_EQ(form.Font().characterSet, 177);
    toolkit::Font after = before;
    after.characterSet = 177;
    for (const auto& control : form.Controls())
        EXPECT_EQ(control->Font(), after) << control->Name();
}

TEST_F(ApplyLanguage, ARightToLeftLanguageTurnsTheCaptionedKindsAndTheForm) {
    UseLanguageFile("[UserLanguage]\r\nRightToLeftLanguage=1\r\n");
    language.ApplyLanguage(form);
    EXPECT_TRUE(form.RightToLeft());
    for (const char* name : {"lblPlain", "chk", "opt", "cmd", "fra"}) {
        EXPECT_TRUE(form.Get<toolkit::Control>(name).RightToLeft()) << name;
        EXPECT_EQ(form.Get<toolkit::Control>(name).TextAlignment(), Alignment::Right) << name;
    }
    for (const char* name : {"txt", "cbo", "list", "pic", "bar", "tools", "tabs"}) {
        EXPECT_FALSE(form.Get<toolkit::Control>(name).RightToLeft()) << name;
        EXPECT_EQ(form.Get<toolkit::Control>(name).TextAlignment(), Alignment::Left) << name;
    }
    settings.UseDefaultLanguage = 1;
    language.ApplyLanguage(form);
    EXPECT_FALSE(form.RightToLeft());
    EXPECT_FALSE(form.Get<toolkit::Control>("chk").RightToLeft());
    EXPECT_EQ(form.Get<toolkit::Control>("chk").TextAlignment(), Alignment::Left);
}

TEST_F(ApplyLanguage, AReadingOrderThatIsNoNumberIsLeftToRight) {
    UseLanguageFile("[UserLanguage]\r\nRightToLeftLanguage=yes\r\n4000=Zeit\r\n");
    language.ApplyLanguage(form);
    EXPECT_FALSE(form.RightToLeft());
    EXPECT_EQ(Caption("lblTime"), "Zeit");
}

TEST_F(ApplyLanguage, AMissingLanguageFileIsToldOnceAndEnglishIsUsedFromThenOn) {
    UseLanguageFile("[UserLanguage]\r\n4000=Zeit\r\n3048=Keine Sprachdatei!\r\n");
    settings.SaveSettings();
    EXPECT_EQ(Stored("Ordalyn", "UseDefaultLanguage"), "0");
    system.files.Delete(kLanguageFile);
    std::string storedDuringMessage;
    toolkit.onMessage = [&](const ShownMessage&) {
        storedDuringMessage = Stored("Ordalyn", "UseDefaultLanguage");
        return toolkit::Answer::Ok;
    };

    language.ApplyLanguage(form);
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(toolkit.messages[0].text, "Cannot find language file!");
    EXPECT_EQ(toolkit.messages[0].icon, toolkit::MessageIcon::Critical);
    EXPECT_EQ(toolkit.messages[0].buttons, toolkit::MessageButtons::Ok);
    EXPECT_EQ(storedDuringMessage, "0");
    EXPECT_EQ(settings.UseDefaultLanguage, 1);
    EXPECT_EQ(Stored("Ordalyn", "UseDefaultLanguage"), "1");
    EXPECT_EQ(Caption("lblTime"), "Time");
    EXPECT_FALSE(form.RightToLeft());

    toolkit::Form later(toolkit, kDesign);
    language.ApplyLanguage(later);
    EXPECT_EQ(toolkit.messages.size(), 1U);
    mAppSpecific nextStart(profile, common);
    nextStart.LoadSettings();
    EXPECT_EQ(nextStart.UseDefaultLanguage, 1);
}

TEST_F(ApplyLanguage, ShowingTheTextsAloneReportsNothingAndChangesNoSetting) {
    UseLanguageFile("");
    system.files.Delete(kLanguageFile);
    language.ShowTexts(form);
    EXPECT_TRUE(toolkit.messages.empty());
    EXPECT_EQ(settings.UseDefaultLanguage, 0);
    EXPECT_EQ(Stored("Ordalyn", "UseDefaultLanguage"), "(absent)");
    EXPECT_EQ(Caption("lblTime"), "Time");
    EXPECT_FALSE(form.RightToLeft());
}

TEST_F(ApplyLanguage, CheckingTheFileAloneShowsNoTexts) {
    UseLanguageFile("[UserLanguage]\r\n4000=Zeit\r\n");
    language.CheckLanguageFile(toolkit, nullptr);
    EXPECT_TRUE(toolkit.messages.empty());
    EXPECT_EQ(settings.UseDefaultLanguage, 0);
    system.files.Delete(kLanguageFile);
    language.CheckLanguageFile(toolkit, nullptr);
    EXPECT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(settings.UseDefaultLanguage, 1);
    EXPECT_EQ(Caption("lblTime"), "design lblTime");
}

TEST_F(ApplyLanguage, AFormThatIsNotShownDoesNotOwnTheMessage) {
    UseLanguageFile("");
    system.files.Delete(kLanguageFile);
    language.ApplyLanguage(form);
    EXPECT_EQ(toolkit.messages.at(0).owner, nullptr);
    form.Show();
    settings.UseDefaultLanguage = 0;
    language.ApplyLanguage(form);
    EXPECT_EQ(toolkit.messages.at(1).owner, &form);
}

// The check of forms against the table of ids.

constexpr DesignId kIds[] = {
    {"frmOther", "", "1"},          {"frmSmall", "", "253"},         {"frmSmall", "Label1", "254"},
    {"frmSmall", "opt", "4004", 1}, {"frmSmall", "tabs", "1002", 1}, {"frmSmall", "mnuFile", "101"},
};
constexpr toolkit::ControlDesign kSmallControls[] = {
    {.kind = Kind::Label, .name = "Label1", .tag = "254"},
    {.kind = Kind::Label, .name = "Label2"},
    {.kind = Kind::OptionButton, .name = "opt", .tag = "4004", .index = 1},
    {.kind = Kind::TabStrip, .name = "tabs"},
};
constexpr toolkit::MenuDesign kSmallMenus[] = {{0, "mnuFile", "101"}, {1, "mnuFileBar", "-"}};
constexpr toolkit::FormDesign kSmall = {.name = "frmSmall",
                                        .tag = "253",
                                        .clientSize = {500, 300},
                                        .style = {},
                                        .controls = kSmallControls,
                                        .menus = kSmallMenus};

TEST_F(ApplyLanguage, TheCheckOfIdsAcceptsAFormThatCarriesThem) {
    toolkit::Form small(toolkit, kSmall);
    small.Get<toolkit::TabStrip>("tabs").AddTab("1002");
    EXPECT_THAT(DesignIdFaults(small, kIds), testing::IsEmpty());
    FormLanguage::CopyMenuCaptionsToTags(small);
    language.ApplyLanguage(small);
    EXPECT_THAT(DesignIdFaults(small, kIds), testing::IsEmpty());
}

TEST_F(ApplyLanguage, TheCheckOfIdsNamesWhatIsMissingOrTooMuch) {
    toolkit::Form small(toolkit, kSmall);
    small.SetTag("");
    small.Get<toolkit::Label>("Label2").SetTag("255");
    small.Menu("mnuFile").SetCaption("103");
    EXPECT_THAT(DesignIdFaults(small, kIds),
                testing::UnorderedElementsAre(
                    "missing: frmSmall = 253", "missing: frmSmall.tabs(1) = 1002",
                    "missing: frmSmall.mnuFile = 101", "unexpected: frmSmall.Label2 = 255",
                    "unexpected: frmSmall.mnuFile = 103"));
}

TEST_F(ApplyLanguage, EveryDesignIdHasABuiltInText) {
    for (const DesignId& row : kDesignIds)
        EXPECT_NE(defaults.GetDefaultString(ToLong(row.id)), "") << row.form << row.element;
}

}  // namespace
}  // namespace ordalyn::test
