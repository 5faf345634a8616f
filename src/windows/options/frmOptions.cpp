#include "windows/options/frmOptions.h"

#include <cmath>
#include <utility>

#include "base/Attempt.h"
#include "base/TextIds.h"

namespace ordalyn {

using toolkit::Kind;
using toolkit::Twips;

namespace {

constexpr int kLanguageTab = 2;
constexpr int kForeground = 0;
constexpr int kBackground = 1;
constexpr int kPageOffset = 8;  // pixels from the tab strip's edges
constexpr Twips kOffDialog = -20000;

constexpr Twips kTabWidth = 6300;
constexpr Twips kTabHeight = 3660;
constexpr Twips kPageTop = 540;
constexpr Twips kPageWidth = kTabWidth - 240;
constexpr Twips kPageMargin = 60;    // around the frames of a page
constexpr Twips kFrameMargin = 180;  // around what a frame holds
constexpr Twips kPageHeight = kTabHeight - 540;
constexpr Twips kButtonTop = 3900;
constexpr Twips kButtonWidth = 1260;
constexpr Twips kButtonHeight = 375;
constexpr Twips kButtonRow[] = {kTabWidth + 120 - 3 * kButtonWidth - 240,
                                kTabWidth + 120 - 2 * kButtonWidth - 120,
                                kTabWidth + 120 - kButtonWidth};

constexpr toolkit::ControlDesign kControls[] = {
    {.kind = Kind::TabStrip,
     .name = "tbsOptions",
     .bounds = {120, 120, kTabWidth, kTabHeight},
     .nameTag = text_id::kOptionsTitle.tag},

    // Page 1: layout.
    {.kind = Kind::PictureBox,
     .name = "picOptions",
     .bounds = {240, kPageTop, kPageWidth, kPageHeight},
     .index = 1},
    {.kind = Kind::Frame,
     .name = "Frame1",
     .tag = text_id::kVisualEffects.tag,
     .bounds = {kPageMargin, kPageMargin, 2970, 1830},
     .container = "picOptions",
     .containerIndex = 1},
    {.kind = Kind::CheckBox,
     .name = "chkGridLines",
     .tag = text_id::kGridLines.tag,
     .bounds = {180, 285, 2670, 300},
     .container = "Frame1"},
    {.kind = Kind::CheckBox,
     .name = "chkFixedBorders",
     .tag = text_id::kFixedBorders.tag,
     .bounds = {180, 645, 2670, 300},
     .container = "Frame1"},
    {.kind = Kind::CheckBox,
     .name = "chkFlatUserInterface",
     .tag = text_id::kFlatInterface.tag,
     .bounds = {180, 1005, 2670, 300},
     .container = "Frame1"},
    {.kind = Kind::CheckBox,
     .name = "chkLongDate",
     .tag = text_id::kLongDateFormat.tag,
     .bounds = {180, 1365, 2670, 300},
     .container = "Frame1"},
    {.kind = Kind::Frame,
     .name = "Frame7",
     .tag = text_id::kTextColors.tag,
     .bounds = {3120, kPageMargin, kPageWidth - kPageMargin - 3120, 1830},
     .container = "picOptions",
     .containerIndex = 1},
    {.kind = Kind::Label,
     .name = "Label3",
     .tag = text_id::kForeground.tag,
     .bounds = {180, 420, 1620, 225},
     .container = "Frame7"},
    {.kind = Kind::Label,
     .name = "lblColorChange",
     .bounds = {1890, 360, 780, 330},
     .container = "Frame7",
     .index = kForeground,
     .tabStop = true,
     .nameTag = text_id::kForeground.tag},
    {.kind = Kind::Label,
     .name = "Label4",
     .tag = text_id::kBackground.tag,
     .bounds = {180, 960, 1620, 225},
     .container = "Frame7"},
    {.kind = Kind::Label,
     .name = "lblColorChange",
     .bounds = {1890, 900, 780, 330},
     .container = "Frame7",
     .index = kBackground,
     .tabStop = true,
     .nameTag = text_id::kBackground.tag},
    {.kind = Kind::Frame,
     .name = "Frame3",
     .tag = text_id::kFontName.tag,
     .bounds = {kPageMargin, 1980, kPageWidth - 2 * kPageMargin, 900},
     .container = "picOptions",
     .containerIndex = 1},
    {.kind = Kind::CommandButton,
     .name = "cmdChangeFont",
     .tag = text_id::kChangeFont.tag,
     .bounds = {180, 345, 1620, kButtonHeight},
     .container = "Frame3"},

    // Page 2: language.
    {.kind = Kind::PictureBox,
     .name = "picOptions",
     .bounds = {240, kPageTop, kPageWidth, kPageHeight},
     .index = 2},
    {.kind = Kind::Frame,
     .name = "Frame4",
     .tag = text_id::kChangeLanguage.tag,
     .bounds = {kPageMargin, kPageMargin, kPageWidth - 2 * kPageMargin, 1830},
     .container = "picOptions",
     .containerIndex = 2},
    {.kind = Kind::OptionButton,
     .name = "optUseDefaultLanguage",
     .tag = text_id::kDefaultLanguage.tag,
     .bounds = {180, 330, 5520, 300},
     .container = "Frame4"},
    {.kind = Kind::OptionButton,
     .name = "optUseOtherLanguage",
     .tag = text_id::kOtherLanguage.tag,
     .bounds = {180, 720, 5520, 300},
     .container = "Frame4"},
    {.kind = Kind::TextBox,
     .name = "txtLanguageFilePath",
     .bounds = {450, 1140, 4695, 345},
     .container = "Frame4",
     .nameTag = text_id::kLanguageFileName.tag},
    {.kind = Kind::CommandButton,
     .name = "cmdBrowseForLangFile",
     .bounds = {5235, 1140, 465, 345},
     .container = "Frame4"},

    {.kind = Kind::CommandButton,
     .name = "cmdOK",
     .tag = text_id::kOk.tag,
     .bounds = {kButtonRow[0], kButtonTop, kButtonWidth, kButtonHeight},
     .isDefault = true},
    {.kind = Kind::CommandButton,
     .name = "cmdCancel",
     .tag = text_id::kCancel.tag,
     .bounds = {kButtonRow[1], kButtonTop, kButtonWidth, kButtonHeight},
     .isCancel = true},
    {.kind = Kind::CommandButton,
     .name = "cmdApply",
     .tag = text_id::kApply.tag,
     .bounds = {kButtonRow[2], kButtonTop, kButtonWidth, kButtonHeight}},
};

constexpr toolkit::FormDesign kDesign = {
    .name = "frmOptions",
    .tag = text_id::kOptionsTitle.tag,
    .clientSize = {kTabWidth + 240, kButtonTop + kButtonHeight + 120},
    .style = {},
    .controls = kControls,
};

std::int32_t Flag(bool set) {
    return set ? 1 : 0;
}

}  // namespace

frmOptions::frmOptions(toolkit::Toolkit& toolkit, Surroundings surroundings)
    : Form(toolkit, kDesign),
      around_(std::move(surroundings)),
      tbsOptions(Get<toolkit::TabStrip>("tbsOptions")),
      optUseDefaultLanguage(Get<toolkit::OptionButton>("optUseDefaultLanguage")),
      optUseOtherLanguage(Get<toolkit::OptionButton>("optUseOtherLanguage")),
      txtLanguageFilePath(Get<toolkit::TextBox>("txtLanguageFilePath")),
      cmdBrowseForLangFile(Get<toolkit::CommandButton>("cmdBrowseForLangFile")),
      cmdApply(Get<toolkit::CommandButton>("cmdApply")) {
    tbsOptions.AddTab(text_id::kLayoutPage.tag);
    tbsOptions.AddTab(text_id::kLanguagePage.tag);
    cmdBrowseForLangFile.SetCaption("...");
    PaintPages();
    ArrangePages();
    for (const int label : {kForeground, kBackground})
        ColorLabel(label).SetBorder(toolkit::BorderStyle::FixedSingle);
    WirePages();
    WireControls();
    around_.texts.apply(*this);
    LoadFromSettings();
    cmdApply.SetEnabled(false);
    tbsOptions.SelectTab(around_.settings.OptionsPage + 1);
    CentreOnScreen();
}

void frmOptions::LoadFromSettings() {
    const mAppSpecific& settings = around_.settings;
    Box("chkGridLines").SetChecked(settings.GridLines != 0);
    Box("chkFixedBorders").SetChecked(settings.FixedBorders != 0);
    Box("chkFlatUserInterface").SetChecked(settings.FlatUserInterface != 0);
    Box("chkLongDate").SetChecked(settings.LongDate != 0);
    ColorLabel(kForeground).SetBackColor(settings.ForegroundColor);
    ColorLabel(kBackground).SetBackColor(settings.BackgroundColor);
    ShowLanguageSource();
    txtLanguageFilePath.SetText(around_.isNoValue(settings.LanguageFile) ? ""
                                                                         : settings.LanguageFile);
}

void frmOptions::ShowLanguageSource() {
    (around_.settings.UseDefaultLanguage != 0 ? optUseDefaultLanguage : optUseOtherLanguage)
        .SetChecked(true);
}

// What lies on a tab follows the colour of its inside.
void frmOptions::PaintPages() {
    for (const auto& control : Controls()) {
        switch (control->ControlKind()) {
            case Kind::PictureBox:
            case Kind::Frame:
            case Kind::Label:
            case Kind::CheckBox:
            case Kind::OptionButton:
                control->SetBackColor(toolkit::kTabInterior);
                break;
            case Kind::CommandButton:
                // Around its face; the buttons below the pages lie on the dialog.
                if (control->Container() != this)
                    control->SetBackColor(toolkit::kTabInterior);
                break;
            default:
                break;
        }
    }
}

// The pages keep a number of pixels to the tab strip's edges, which is another number of twips on
// each screen; what lies at their right edge goes with it.
void frmOptions::ArrangePages() {
    const Twips pageWidth = tbsOptions.Width() - 2 * PageOffset();
    for (int page = 1; page <= tbsOptions.TabCount(); ++page)
        Get<toolkit::PictureBox>("picOptions", page).SetWidth(pageWidth);
    for (const char* name : {"Frame7", "Frame3", "Frame4"}) {
        auto& frame = Get<toolkit::Frame>(name);
        frame.SetWidth(pageWidth - kPageMargin - frame.Left());
    }
    const auto moveToRightEdge = [](toolkit::Control& control) {
        control.SetLeft(control.Container()->Width() - kFrameMargin - control.Width());
    };
    for (const int label : {kForeground, kBackground})
        moveToRightEdge(ColorLabel(label));
    const Twips gap =
        cmdBrowseForLangFile.Left() - txtLanguageFilePath.Left() - txtLanguageFilePath.Width();
    moveToRightEdge(cmdBrowseForLangFile);
    txtLanguageFilePath.SetWidth(cmdBrowseForLangFile.Left() - gap - txtLanguageFilePath.Left());
}

Twips frmOptions::PageOffset() {
    return kPageOffset * static_cast<Twips>(std::lround(toolkit().TwipsPerPixelX()));
}

void frmOptions::WirePages() {
    tbsOptions.Click.Subscribe([this] { ShowPage(tbsOptions.SelectedTab()); });
    KeyDown.Subscribe([this](int key, toolkit::Modifiers modifiers) {
        // With exactly Ctrl: there is no way backwards.
        if (key != toolkit::key::Tab || modifiers != toolkit::Modifiers{.control = true})
            return;
        tbsOptions.SelectTab(tbsOptions.SelectedTab() % tbsOptions.TabCount() + 1);
    });
}

void frmOptions::ShowPage(int tab) {
    for (int page = 1; page <= tbsOptions.TabCount(); ++page) {
        auto& picture = Get<toolkit::PictureBox>("picOptions", page);
        const bool shown = page == tab;
        picture.SetLeft(shown ? tbsOptions.Left() + PageOffset() : kOffDialog);
        picture.SetEnabled(shown);
        if (shown)
            picture.BringToFront();
    }
    around_.settings.OptionsPage = tab - 1;
    SetHelpPage(tab == kLanguageTab ? "languages" : "options");
}

void frmOptions::WireControls() {
    const auto enableApply = [this] { cmdApply.SetEnabled(true); };
    for (const char* name :
         {"chkGridLines", "chkFixedBorders", "chkFlatUserInterface", "chkLongDate"})
        Box(name).Click.Subscribe(enableApply);
    txtLanguageFilePath.Change.Subscribe(enableApply);
    txtLanguageFilePath.GotFocus.Subscribe([this] { txtLanguageFilePath.SelectAll(); });
    for (toolkit::OptionButton* option : {&optUseDefaultLanguage, &optUseOtherLanguage}) {
        option->Click.Subscribe([this, enableApply] {
            ChooseLanguageSource();
            enableApply();
        });
    }
    cmdBrowseForLangFile.Click.Subscribe([this] { BrowseForLanguageFile(); });
    for (const int label : {kForeground, kBackground})
        ColorLabel(label).Click.Subscribe([this, label] { ChangeColor(label); });
    Get<toolkit::CommandButton>("cmdChangeFont").Click.Subscribe([this] {
        Attempt([this] { ChangeFont(); });
    });
    Get<toolkit::CommandButton>("cmdOK").Click.Subscribe([this] {
        ApplyOptions();
        Unload();
    });
    Get<toolkit::CommandButton>("cmdCancel").Click.Subscribe([this] { Unload(); });
    cmdApply.Click.Subscribe([this] { ApplyOptions(); });
}

void frmOptions::ChooseLanguageSource() {
    const bool other = optUseOtherLanguage.Checked();
    cmdBrowseForLangFile.SetEnabled(other);
    txtLanguageFilePath.SetEnabled(other);
    txtLanguageFilePath.SetBackColor(other ? toolkit::kWindowBackground : toolkit::kButtonFace);
}

void frmOptions::BrowseForLanguageFile() {
    cCommonDialog& dialog = around_.commonDialog;
    dialog.ShowOpenDialog(Handle(), around_.programFolder + "Languages\\", "",
                          cCommonDialog::kLanguageFiles, "", true);
    if (!dialog.Confirmed)
        return;
    txtLanguageFilePath.SetText(dialog.FileName);
    cmdApply.SetEnabled(true);
}

void frmOptions::ChangeColor(int index) {
    cCommonDialog& dialog = around_.commonDialog;
    dialog.ShowColorDialog(Handle(), ColorLabel(index).BackColor(),
                           index == kForeground ? "WindowText" : "Window");
    if (!dialog.Confirmed)
        return;
    ColorLabel(index).SetBackColor(dialog.Color);
    cmdApply.SetEnabled(true);
}

// The font is taken at once, deliberately: a later Cancel does not take it back. The main window
// shows it from the next apply on, and the settings file holds it then.
void frmOptions::ChangeFont() {
    cCommonDialog& dialog = around_.commonDialog;
    mAppSpecific& settings = around_.settings;
    dialog.FontName = settings.FontName;
    dialog.FontScript = settings.FontScript;
    dialog.FontSize = settings.FontSize;
    dialog.FontStyle = settings.FontStyle;
    dialog.ShowFontDialog(Handle());
    if (!dialog.Confirmed)
        return;
    cmdApply.SetEnabled(true);
    settings.FontName = dialog.FontName;
    settings.FontScript = dialog.FontScript;
    settings.FontSize = dialog.FontSize;
    settings.FontStyle = dialog.FontStyle;
}

void frmOptions::ApplyOptions() {
    mAppSpecific& settings = around_.settings;
    settings.GridLines = Flag(Box("chkGridLines").Checked());
    settings.FixedBorders = Flag(Box("chkFixedBorders").Checked());
    settings.FlatUserInterface = Flag(Box("chkFlatUserInterface").Checked());
    const bool longDate = Box("chkLongDate").Checked();
    if (longDate != (settings.LongDate != 0)) {
        around_.applyNewDateFormat(Flag(longDate));
        around_.refreshMainWindow();
    }
    settings.LongDate = Flag(longDate);
    settings.ForegroundColor = ColorLabel(kForeground).BackColor();
    settings.BackgroundColor = ColorLabel(kBackground).BackColor();
    settings.UseDefaultLanguage = Flag(optUseDefaultLanguage.Checked());
    if (!txtLanguageFilePath.Text().empty())
        settings.LanguageFile = txtLanguageFilePath.Text();
    around_.applySettings();
    settings.SaveSettings();
    // A language file that cannot be found has been reported by now, and given up.
    ShowLanguageSource();
    cmdApply.SetEnabled(false);
}

}  // namespace ordalyn
