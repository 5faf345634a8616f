#include "windows/options/frmOptions.h"

#include <gmock/gmock.h>

#include "base/Errors.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/cRegistry.h"
#include "hostconfig/mAppCommon.h"
#include "support/platform/MemoryPlatform.h"
#include "support/settings/DesignIds.h"
#include "support/toolkit/MemoryToolkit.h"

namespace ordalyn {
namespace {

using test::MemoryToolkit;
using testing::ElementsAre;
using testing::IsEmpty;
namespace key = toolkit::key;

constexpr toolkit::Modifiers kCtrl{.control = true};

class Options : public testing::Test {
  protected:
    Options() { system.files.AddFolder("C:\\Ordalyn"); }

    frmOptions& Open() {
        options = std::make_unique<frmOptions>(
            tools,
            frmOptions::Surroundings{
                .texts = {[](std::int32_t id) { return std::to_string(id); },
                          [](toolkit::Form& form) { form.SetCaption("text " + form.Tag()); }},
                .settings = settings,
                .commonDialog = dialog,
                .programFolder = common.ProgramFolder(),
                .isNoValue = [this](const std::string& text) { return common.IsNoValue(text); },
                .applySettings =
                    [this] {
                        steps.emplace_back("apply");
                        storedAtApply = Stored("GridLines");
                    },
                .applyNewDateFormat =
                    [this](std::int32_t lngLd) {
                        steps.push_back("dates " + std::to_string(lngLd) + " was " +
                                        std::to_string(settings.LongDate));
                    },
                .refreshMainWindow = [this] { steps.emplace_back("refresh"); }});
        return *options;
    }
    toolkit::CheckBox& Box(const char* name) { return options->Get<toolkit::CheckBox>(name); }
    toolkit::CommandButton& Button(const char* name) {
        return options->Get<toolkit::CommandButton>(name);
    }
    toolkit::Label& ColorLabel(int i) { return options->Get<toolkit::Label>("lblColorChange", i); }
    toolkit::TextBox& Path() { return options->Get<toolkit::TextBox>("txtLanguageFilePath"); }
    toolkit::OptionButton& DefaultLanguage() {
        return options->Get<toolkit::OptionButton>("optUseDefaultLanguage");
    }
    toolkit::OptionButton& OtherLanguage() {
        return options->Get<toolkit::OptionButton>("optUseOtherLanguage");
    }
    toolkit::PictureBox& Page(int i) { return options->Get<toolkit::PictureBox>("picOptions", i); }
    bool CanApply() { return Button("cmdApply").Enabled(); }
    std::string Stored(const char* key, const char* section = "Ordalyn") {
        return profile.ReadValue(section, key, "(absent)", common.SettingsFile()).value_or("");
    }

    MemoryToolkit tools;
    test::MemoryPlatform system;
    mAppCommon common{system.services};
    cProfile profile{system.services, common};
    cRegistry registry{system.services, common};
    cCommonDialog dialog{system.services, common, registry,
                         [](std::int32_t) { return std::string("Open"); }};
    mAppSpecific settings{profile, common};
    std::vector<std::string> steps;
    std::string storedAtApply;  // of the grid lines
    std::unique_ptr<frmOptions> options;
};

TEST_F(Options, OpensWithWhatTheSettingsSay) {
    settings.GridLines = 1;
    settings.FixedBorders = 0;
    settings.FlatUserInterface = 1;
    settings.LongDate = 1;
    settings.ForegroundColor = 0x112233;
    settings.BackgroundColor = 0x445566;
    settings.UseDefaultLanguage = 0;
    settings.LanguageFile = "C:\\Ordalyn\\Languages\\Deutsch.lng";
    Open();
    EXPECT_EQ(options->Caption(), "text 1001");
    EXPECT_TRUE(Box("chkGridLines").Checked());
    EXPECT_FALSE(Box("chkFixedBorders").Checked());
    EXPECT_TRUE(Box("chkFlatUserInterface").Checked());
    EXPECT_TRUE(Box("chkLongDate").Checked());
    EXPECT_EQ(ColorLabel(0).BackColor(), 0x112233);
    EXPECT_EQ(ColorLabel(1).BackColor(), 0x445566);
    EXPECT_TRUE(OtherLanguage().Checked());
    EXPECT_FALSE(DefaultLanguage().Checked());
    EXPECT_EQ(Path().Text(), "C:\\Ordalyn\\Languages\\Deutsch.lng");
    EXPECT_FALSE(CanApply());
    EXPECT_FLOAT_EQ(options->Left() + options->Width() / 2, tools.workArea.width / 2);
}

TEST_F(Options, ALanguageFileThatWasNeverChosenShowsAnEmptyBox) {
    settings.LanguageFile = "VXZ" + common.NoValueMarker().substr(3);
    Open();
    EXPECT_EQ(Path().Text(), "");
}

TEST_F(Options, ShowsOnePageAndKeepsTheOtherAway) {
    Open();
    auto& tabs = options->Get<toolkit::TabStrip>("tbsOptions");
    EXPECT_EQ(tabs.SelectedTab(), 1);
    EXPECT_EQ(Page(1).Left(), tabs.Left() + 8 * 15);
    EXPECT_TRUE(Page(1).Enabled());
    EXPECT_EQ(Page(2).Left(), -20000);
    EXPECT_FALSE(Page(2).Enabled());
    tabs.UserSelected(1);
    EXPECT_EQ(Page(2).Left(), tabs.Left() + 8 * 15);
    EXPECT_TRUE(Page(2).Enabled());
    EXPECT_EQ(Page(1).Left(), -20000);
    EXPECT_FALSE(Page(1).Enabled());
    EXPECT_EQ(settings.OptionsPage, 1);
}

TEST_F(Options, OnlyThePageThatIsShownComesToTheFront) {
    Open();
    const auto inFront = [this](int page) { return MemoryToolkit::Of(Page(page)).broughtToFront; };
    const int first = inFront(1);
    const int second = inFront(2);
    EXPECT_GT(first, 0);
    options->Get<toolkit::TabStrip>("tbsOptions").UserSelected(1);
    EXPECT_EQ(inFront(1), first);
    EXPECT_EQ(inFront(2), second + 1);
}

TEST_F(Options, CarriesTheIdsOfItsTexts) {
    Open();
    EXPECT_THAT(test::DesignIdFaults(*options), IsEmpty());
}

TEST_F(Options, PagesAndFramesHaveEqualMarginsOnEveryScreen) {
    for (const float twipsPerPixel : {15.0F, 12.0F, 10.0F}) {
        tools.twipsPerPixelX = twipsPerPixel;
        Open();
        const auto right = [](const toolkit::Control& c) { return c.Left() + c.Width(); };
        const auto frame = [this](const char* name) -> toolkit::Frame& {
            return options->Get<toolkit::Frame>(name);
        };
        auto& tabs = options->Get<toolkit::TabStrip>("tbsOptions");
        for (const int page : {1, 2}) {
            tabs.SelectTab(page);
            EXPECT_EQ(Page(page).Left() - tabs.Left(), 8 * twipsPerPixel);
            EXPECT_EQ(right(tabs) - right(Page(page)), 8 * twipsPerPixel);
        }
        for (const auto& [leftmost, rightmost] :
             {std::pair("Frame1", "Frame7"), {"Frame3", "Frame3"}, {"Frame4", "Frame4"}})
            EXPECT_EQ(frame(leftmost).Left(), Page(1).Width() - right(frame(rightmost)));
        for (const int label : {0, 1}) {
            EXPECT_EQ(frame("Frame7").Width() - right(ColorLabel(label)),
                      options->Get<toolkit::Label>("Label3").Left());
        }
        EXPECT_EQ(frame("Frame4").Width() - right(Button("cmdBrowseForLangFile")),
                  DefaultLanguage().Left());
        EXPECT_LT(right(Path()), Button("cmdBrowseForLangFile").Left());
    }
}

TEST_F(Options, TheButtonsStandSideBySideAtTheRight) {
    Open();
    toolkit::Twips right = options->ClientSize().width;
    for (const char* name : {"cmdApply", "cmdCancel", "cmdOK"}) {
        EXPECT_EQ(right - (Button(name).Left() + Button(name).Width()), 120) << name;
        right = Button(name).Left();
    }
}

TEST_F(Options, TheColoursStandInFrames) {
    Open();
    for (const int label : {0, 1})
        EXPECT_EQ(ColorLabel(label).Border(), toolkit::BorderStyle::FixedSingle);
}

TEST_F(Options, WhatLiesOnAPageHasTheColourOfTheTabs) {
    Open();
    EXPECT_EQ(Page(1).BackColor(), toolkit::kTabInterior);
    EXPECT_EQ(Box("chkGridLines").BackColor(), toolkit::kTabInterior);
    EXPECT_EQ(DefaultLanguage().BackColor(), toolkit::kTabInterior);
    for (const char* button : {"cmdChangeFont", "cmdBrowseForLangFile"})
        EXPECT_EQ(Button(button).BackColor(), toolkit::kTabInterior) << button;
    for (const char* button : {"cmdOK", "cmdCancel", "cmdApply"})
        EXPECT_EQ(Button(button).BackColor(), toolkit::kButtonFace) << button;
}

TEST_F(Options, OpensOnThePageThatWasSeenLast) {
    settings.OptionsPage = 1;
    Open();
    EXPECT_EQ(options->Get<toolkit::TabStrip>("tbsOptions").SelectedTab(), 2);
    EXPECT_TRUE(Page(2).Enabled());
}

TEST_F(Options, CtrlTabGoesForwardAndWraps) {
    Open();
    auto& tabs = options->Get<toolkit::TabStrip>("tbsOptions");
    tools.Press(*options, key::Tab, kCtrl);
    EXPECT_EQ(tabs.SelectedTab(), 2);
    tools.Press(*options, key::Tab, kCtrl);
    EXPECT_EQ(tabs.SelectedTab(), 1);
    tools.Press(*options, key::Tab, {.shift = true, .control = true});
    EXPECT_EQ(tabs.SelectedTab(), 1);
    tools.Press(*options, key::Tab);
    EXPECT_EQ(tabs.SelectedTab(), 1);
}

TEST_F(Options, EveryChangeEnablesApply) {
    const auto after = [this](auto change) {
        Open();
        EXPECT_FALSE(CanApply());
        change();
        return CanApply();
    };
    for (const char* box :
         {"chkGridLines", "chkFixedBorders", "chkFlatUserInterface", "chkLongDate"})
        EXPECT_TRUE(after([&] { Box(box).UserToggled(); })) << box;
    EXPECT_TRUE(after([&] { Path().UserEdited("x"); }));
    EXPECT_TRUE(after([&] { OtherLanguage().UserToggled(); }));
    settings.UseDefaultLanguage = 0;
    EXPECT_TRUE(after([&] { DefaultLanguage().UserToggled(); }));
}

TEST_F(Options, TheDefaultLanguageDisablesTheFileAndPaintsItsBoxGrey) {
    settings.UseDefaultLanguage = 1;
    Open();
    EXPECT_FALSE(Path().Enabled());
    EXPECT_FALSE(Button("cmdBrowseForLangFile").Enabled());
    EXPECT_EQ(Path().BackColor(), static_cast<toolkit::Color>(0x8000000FU));
    OtherLanguage().UserToggled();
    EXPECT_TRUE(Path().Enabled());
    EXPECT_TRUE(Button("cmdBrowseForLangFile").Enabled());
    EXPECT_EQ(Path().BackColor(), static_cast<toolkit::Color>(0x80000005U));
}

TEST_F(Options, TheFileBoxSelectsItsWholeTextWhenItGetsTheFocus) {
    settings.LanguageFile = "C:\\x.lng";
    Open();
    Path().GotFocus.Raise();
    EXPECT_EQ(MemoryToolkit::Of(Path()).selectionLength, 8U);
}

TEST_F(Options, BrowsingStartsInTheLanguagesFolder) {
    system.dialogs.onOpenFile = [](const auto& request) -> std::optional<std::string> {
        EXPECT_EQ(request.initialFolder, "C:\\Ordalyn\\Languages\\");
        EXPECT_EQ(request.fileName, "");
        EXPECT_EQ(request.title, "Open");
        EXPECT_TRUE(request.filter.starts_with("Language File (*.lng)"));
        EXPECT_EQ(request.flags, 0x1088140EU);
        return "C:\\Ordalyn\\Languages\\Polski.lng";
    };
    Open();
    Button("cmdBrowseForLangFile").UserClicked();
    EXPECT_EQ(Path().Text(), "C:\\Ordalyn\\Languages\\Polski.lng");
    EXPECT_TRUE(CanApply());
}

TEST_F(Options, CancelledDialogsChangeNothing) {
    Open();
    Button("cmdBrowseForLangFile").UserClicked();
    ColorLabel(0).UserClicked();
    ColorLabel(1).UserClicked();
    Button("cmdChangeFont").UserClicked();
    EXPECT_EQ(Path().Text(), "");
    EXPECT_EQ(ColorLabel(0).BackColor(), settings.ForegroundColor);
    EXPECT_FALSE(CanApply());
}

TEST_F(Options, AColourIsShownButNotYetTaken) {
    settings.ForegroundColor = 0x101010;
    std::vector<std::uint32_t> initial;
    system.dialogs.onChooseColor = [&](const auto& request, auto&) -> std::optional<std::uint32_t> {
        initial.push_back(request.initial);
        return 0x00ABCDEF;
    };
    Open();
    ColorLabel(0).UserClicked();
    EXPECT_THAT(initial, ElementsAre(0x101010));
    EXPECT_EQ(ColorLabel(0).BackColor(), 0x00ABCDEF);
    EXPECT_TRUE(CanApply());
    EXPECT_EQ(settings.ForegroundColor, 0x101010);
    EXPECT_THAT(steps, IsEmpty());
}

TEST_F(Options, TheTwoColoursStartFromTheirOwnSystemColours) {
    const std::string colors = "Control Panel\\Colors";
    system.registry.Set(0x80000001U, colors, "WindowText", {1, std::string("1 2 3\0", 6)});
    system.registry.Set(0x80000001U, colors, "Window", {1, std::string("4 5 6\0", 6)});
    std::vector<std::uint32_t> initial;
    system.dialogs.onChooseColor = [&](const auto& request, auto&) -> std::optional<std::uint32_t> {
        initial.push_back(request.initial);
        return std::nullopt;
    };
    Open();
    ColorLabel(0).UserClicked();
    ColorLabel(1).UserClicked();
    EXPECT_THAT(initial, ElementsAre(0x030201, 0x060504));
}

TEST_F(Options, TheFontDialogStartsFromTheFontOfTheSettings) {
    settings.FontName = "Tahoma";
    settings.FontScript = 204;
    settings.FontSize = 11;
    settings.FontStyle = cCommonDialog::kItalic | cCommonDialog::kStrikethrough;
    Open();
    Button("cmdChangeFont").UserClicked();
    const platform::Dialogs::FontRequest& request = system.dialogs.fontRequests.at(0);
    EXPECT_EQ(request.name, "Tahoma");
    EXPECT_EQ(request.characterSet, 204);
    EXPECT_EQ(request.size, 11);
    EXPECT_EQ(request.weight, 400);
    EXPECT_TRUE(request.italic);
    EXPECT_TRUE(request.strikethrough);
    EXPECT_FALSE(request.underline);
}

TEST_F(Options, EveryValueButZeroIsAMark) {
    settings.GridLines = 2;
    settings.FixedBorders = 2;
    settings.FlatUserInterface = -1;
    settings.LongDate = 2;
    settings.UseDefaultLanguage = 2;
    Open();
    for (const char* box :
         {"chkGridLines", "chkFixedBorders", "chkFlatUserInterface", "chkLongDate"})
        EXPECT_TRUE(Box(box).Checked()) << box;
    EXPECT_TRUE(DefaultLanguage().Checked());
    Button("cmdApply").UserClicked();
    EXPECT_THAT(steps, ElementsAre("apply"));  // the date format is the same as before
}

TEST_F(Options, OwnsTheDialogsThatItOpens) {
    Open();
    Button("cmdBrowseForLangFile").UserClicked();
    ColorLabel(0).UserClicked();
    Button("cmdChangeFont").UserClicked();
    EXPECT_EQ(system.dialogs.openRequests.at(0).owner, options->Handle());
    EXPECT_EQ(system.dialogs.colorRequests.at(0).owner, options->Handle());
    EXPECT_EQ(system.dialogs.fontRequests.at(0).owner, options->Handle());
}

TEST_F(Options, AFontSurvivesCancel) {
    system.dialogs.onChooseFont = [](const auto& request) {
        EXPECT_EQ(request.name, "MS Sans Serif");
        platform::Dialogs::FontAnswer answer;
        answer.name = "Tahoma";
        answer.tenthsOfPoints = 120;
        answer.characterSet = 204;
        answer.weight = 700;
        answer.strikethrough = true;
        return std::optional(answer);
    };
    Open();
    Button("cmdChangeFont").UserClicked();
    EXPECT_TRUE(CanApply());
    Button("cmdCancel").UserClicked();
    EXPECT_TRUE(options->Unloaded());
    EXPECT_EQ(settings.FontName, "Tahoma");
    EXPECT_EQ(settings.FontSize, 12);
    EXPECT_EQ(settings.FontScript, 204);
    EXPECT_EQ(settings.FontStyle, cCommonDialog::kBold | cCommonDialog::kStrikethrough);
    EXPECT_THAT(steps, IsEmpty());  // the main window shows it at the next apply
    EXPECT_EQ(Stored("FontName"), "(absent)");
    Open();
    Button("cmdOK").UserClicked();
    EXPECT_THAT(steps, ElementsAre("apply"));
    EXPECT_EQ(Stored("FontName"), "Tahoma");
}

TEST_F(Options, OkAppliesAndWritesEverythingAlways) {
    Open();
    Button("cmdOK").UserClicked();
    EXPECT_TRUE(options->Unloaded());
    EXPECT_THAT(steps, ElementsAre("apply"));
    EXPECT_EQ(Stored("GridLines"), "0");
    EXPECT_EQ(Stored("FixedBorders"), "1");
    EXPECT_EQ(Stored("NumberOfRecentFiles", "Common"), "9");
    EXPECT_EQ(Stored("LanguageFile", "Common"), "(absent)");
}

TEST_F(Options, ApplyCopiesTheDialogAndStaysOpen) {
    Open();
    Box("chkGridLines").UserToggled();
    Box("chkFlatUserInterface").UserToggled();
    OtherLanguage().UserToggled();
    Path().UserEdited("C:\\Ordalyn\\Languages\\Polski.lng");
    ColorLabel(1).SetBackColor(0x998877);
    Button("cmdApply").UserClicked();
    EXPECT_FALSE(options->Unloaded());
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(settings.GridLines, 1);
    EXPECT_EQ(settings.FlatUserInterface, 1);
    EXPECT_EQ(settings.UseDefaultLanguage, 0);
    EXPECT_EQ(settings.BackgroundColor, 0x998877);
    EXPECT_EQ(settings.LanguageFile, "C:\\Ordalyn\\Languages\\Polski.lng");
    EXPECT_EQ(Stored("LanguageFile", "Common"), "velmordane:\\Languages\\Polski.lng");
    EXPECT_EQ(Stored("GridLines"), "1");
}

TEST_F(Options, WhatIsAppliedIsSeenBeforeItIsStored) {
    Open();
    Box("chkGridLines").UserToggled();
    Button("cmdApply").UserClicked();
    EXPECT_EQ(storedAtApply, "(absent)");
    EXPECT_EQ(Stored("GridLines"), "1");
}

TEST_F(Options, ClearingThePathKeepsTheOldOne) {
    settings.LanguageFile = "C:\\x.lng";
    settings.UseDefaultLanguage = 0;
    Open();
    Path().UserEdited("");
    Button("cmdApply").UserClicked();
    EXPECT_EQ(settings.LanguageFile, "C:\\x.lng");
}

TEST_F(Options, ANewDateFormatIsAppliedOnceBeforeItIsStored) {
    Open();
    Button("cmdApply").UserClicked();
    EXPECT_THAT(steps, ElementsAre("apply"));
    steps.clear();
    Box("chkLongDate").UserToggled();
    Button("cmdApply").UserClicked();
    EXPECT_THAT(steps, ElementsAre("dates 1 was 0", "refresh", "apply"));
    EXPECT_EQ(settings.LongDate, 1);
}

TEST_F(Options, EverySettingButZeroMeansLongDates) {
    settings.LongDate = 2;
    Open();
    EXPECT_TRUE(Box("chkLongDate").Checked());
    Button("cmdApply").UserClicked();
    EXPECT_THAT(steps, ElementsAre("apply")) << "the dates are long already";
    Box("chkLongDate").UserToggled();
    Button("cmdApply").UserClicked();
    EXPECT_EQ(settings.LongDate, 0);
}

TEST_F(Options, CancelTakesNothing) {
    Open();
    Box("chkGridLines").UserToggled();
    Button("cmdCancel").UserClicked();
    EXPECT_TRUE(options->Unloaded());
    EXPECT_EQ(settings.GridLines, 0);
    EXPECT_EQ(Stored("GridLines"), "(absent)");
}

TEST_F(Options, AFontDialogThatFailsChangesNothing) {
    system.dialogs.onChooseFont = [](const auto&) -> std::optional<platform::Dialogs::FontAnswer> {
        throw Overflow();
    };
    Open();
    EXPECT_NO_THROW(Button("cmdChangeFont").UserClicked());
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(settings.FontName, "MS Sans Serif");
}

}  // namespace
}  // namespace ordalyn
