#include "windows/filter/frmFilters.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/Attempt.h"
#include "base/Text.h"
#include "base/TextIds.h"
#include "settings/SettingsTable.h"
#include "windows/common/ControlFont.h"
#include "windows/common/WindowPlacement.h"

namespace ordalyn {

using toolkit::Kind;
using toolkit::Twips;

namespace {

// Buttons of Toolbar1. The one between them only keeps them apart.
constexpr int kApplyButton = 1, kRemoveButton = 3;
constexpr int kClearEntry = 0;
constexpr std::string_view kClearKey = "clear";

constexpr Twips kLeastWidth = 8910;    // of the whole window
constexpr int kHeightAroundBoxes = 8;  // pixels
constexpr Twips kEdge = 60, kGap = 75;
constexpr Twips kFilterWidth = 2760, kContainsWidth = 1710, kSourceWidth = 1440, kBarWidth = 1380,
                kCancelWidth = 1170, kBoxHeight = 315, kBarHeight = 360;
constexpr Twips kClientWidth =
    2 * kEdge + 4 * kGap + kFilterWidth + kContainsWidth + kSourceWidth + kBarWidth + kCancelWidth;

// In tab order, from left to right; Arrange says where.
constexpr toolkit::ControlDesign kControls[] = {
    {.kind = Kind::ComboBox,
     .name = "cboFilter",
     .bounds = {kEdge, kEdge, kFilterWidth, kBoxHeight},
     .editable = true,
     .nameTag = text_id::kFilterTitle.tag},
    {.kind = Kind::ComboBox,
     .name = "cboContains",
     .bounds = {0, kEdge, kContainsWidth, kBoxHeight},
     .nameTag = text_id::kConditionName.tag},
    {.kind = Kind::ComboBox,
     .name = "cboSource",
     .bounds = {0, kEdge, kSourceWidth, kBoxHeight},
     .nameTag = text_id::kSearchIn.tag},
    {.kind = Kind::ToolBar,
     .name = "Toolbar1",
     .bounds = {0, kEdge, kBarWidth, kBarHeight},
     .nameTag = text_id::kFilterTitle.tag},
    {.kind = Kind::CommandButton,
     .name = "cmdCancel",
     .tag = text_id::kCancel.tag,
     .bounds = {0, kEdge, kCancelWidth, kBoxHeight},
     .isCancel = true},
};

constexpr toolkit::FormDesign kDesign = {
    .name = "frmFilters",
    .tag = text_id::kFilterTitle.tag,
    .clientSize = {kClientWidth, kBoxHeight + 2 * kEdge},
    .style = {.toolWindow = true},
    .controls = kControls,
    .helpPage = "filter",
};

}  // namespace

frmFilters::frmFilters(toolkit::Toolkit& toolkit, const Surroundings& around)
    : Form(toolkit, kDesign),
      around_(around),
      cboFilter(Get<toolkit::ComboBox>("cboFilter")),
      cboContains(Get<toolkit::ComboBox>("cboContains")),
      cboSource(Get<toolkit::ComboBox>("cboSource")),
      Toolbar1(Get<toolkit::ToolBar>("Toolbar1")),
      cmdCancel(Get<toolkit::CommandButton>("cmdCancel")),
      keywords_(around.keywords) {
    Toolbar1.AddButton("", toolkit::kApplyFilterImage, true);
    Toolbar1.AddButton("", toolkit::kSeparatorImage, false);
    Toolbar1.AddButton("", toolkit::kRemoveFilterImage, true);
    Toolbar1.AddMenuEntry(kRemoveButton, kClearKey, "");
    for (toolkit::ComboBox* box : {&cboContains, &cboSource})
        box->AddItems({"", ""});  // LoadInterface has their texts
    around_.history.LoadHistory(cboFilter, entry::FilterTexts.key, entry::FilterTexts.numbers);
    RestoreWindowPosition(around_.settings, *this, false);
    if (Width() < kLeastWidth)
        SetWidth(kLeastWidth);
    WireControls();
    LoadInterface();
    cboFilter.SetText("");
    around_.filter = {};
    cboContains.SetListIndex(0);
    cboSource.SetListIndex(0);
}

void frmFilters::WireControls() {
    cboFilter.KeyDown.Subscribe([this](int key, toolkit::Modifiers modifiers) {
        if (key == toolkit::key::Enter && !modifiers.control && !modifiers.alt)
            ApplyAndRemember();
    });
    cboFilter.Change.Subscribe([this] { around_.filter.boxText = cboFilter.Text(); });
    cboFilter.Click.Subscribe([this] { ApplyTypedText(); });
    cboContains.Click.Subscribe([this] {
        around_.filter.doesNotContain = cboContains.ListIndex() == 1;
        ApplyIfFiltering();
    });
    cboSource.Click.Subscribe([this] {
        around_.filter.target = cboSource.ListIndex() == 1;
        ApplyIfFiltering();
    });
    Toolbar1.ButtonClick.Subscribe([this](int button) {
        if (button == kApplyButton)
            ApplyAndRemember();
        else if (button == kRemoveButton)
            RemoveFilter();
    });
    Toolbar1.ButtonMenuClick.Subscribe([this](int button, int entry) {
        if (button == kApplyButton)
            ApplyOperation(entry);
        else if (button == kRemoveButton && entry == kClearEntry)
            ClearHistory();
    });
    cmdCancel.Click.Subscribe([this] { Hide(); });
    Activate.Subscribe([this] {
        if (activated_)
            return;
        activated_ = true;
        FillOperationMenu(keywords_.LoadOperationKeywords());
    });
    QueryUnload.Subscribe([this](bool& keep) { AboutToClose(keep); });
    Resize.Subscribe([this] { Arrange(); });
}

void frmFilters::LoadInterface() {
    const mAppSpecific& settings = around_.settings;
    // New texts for the items leave the choice as it is and raise nothing.
    const auto label = [this](toolkit::ComboBox& box, int item, std::int32_t text) {
        box.SetItem(item, around_.strings.GetInterfaceString(text));
    };
    label(cboContains, 0, text_id::kContains);
    label(cboContains, 1, text_id::kDoesNotContain);
    label(cboSource, 0, text_id::kSource);
    label(cboSource, 1, text_id::kTarget);

    constexpr double kPlainSize = 8;
    for (toolkit::ComboBox* box : {&cboFilter, &cboContains, &cboSource}) {
        ApplyFont(settings, *box, true, kPlainSize);
        box->SetLook(settings.FlatUserInterface != 0 ? toolkit::Appearance::Flat
                                                     : toolkit::Appearance::ThreeDimensional);
        box->SetForeColor(settings.ForegroundColor);
        box->SetBackColor(settings.BackgroundColor);
    }
    around_.language.ApplyLanguage(*this);
    Toolbar1.SetButtonToolTip(kApplyButton,
                              around_.strings.GetInterfaceString(text_id::kApplyFilter));
    Toolbar1.SetMenuEntryText(kRemoveButton, kClearEntry,
                              around_.strings.GetInterfaceString(text_id::kClearList));
    const auto pixel = static_cast<Twips>(std::lround(toolkit().TwipsPerPixelY()));
    SetClientHeight(cboSource.Height() + kHeightAroundBoxes * pixel);
    Arrange();
}

// One row, the boxes as high as their font makes them; the filter box takes the width that the
// others leave.
void frmFilters::Arrange() {
    const toolkit::Size inside = ClientSize();
    const Twips height = cboSource.Height();
    const Twips top = std::max<Twips>((inside.height - height) / 2, 0);
    Twips right = inside.width - kEdge;
    const auto place = [&](toolkit::Control& control, Twips width, Twips ownHeight) {
        const Twips ownTop = std::max<Twips>((inside.height - ownHeight) / 2, 0);
        control.Move({right - width, ownTop, width, ownHeight});
        right -= width + kGap;
    };
    place(cmdCancel, kCancelWidth, height);
    place(Toolbar1, kBarWidth, std::min(kBarHeight, inside.height));
    place(cboSource, kSourceWidth, height);
    place(cboContains, kContainsWidth, height);
    cboFilter.Move({kEdge, top, std::max<Twips>(right - kEdge, 0), height});
}

void frmFilters::ApplyTypedText() {
    around_.filter.boxText = cboFilter.Text();
    around_.filter.FilterText = cboFilter.Text();
    around_.filter.operation.clear();
    Apply();
}

void frmFilters::ApplyAndRemember() {
    ApplyTypedText();
    around_.history.AddToHistory(cboFilter, entry::FilterTexts.key, entry::FilterTexts.numbers);
}

void frmFilters::ApplyIfFiltering() {
    if (!around_.filter.FilterText.empty())
        Apply();
}

// The filter stays in force; the emptied box raises nothing.
void frmFilters::ClearHistory() {
    around_.history.ClearHistory(cboFilter, entry::FilterTexts.key, entry::FilterTexts.numbers,
                                 *this);
    around_.filter.boxText = cboFilter.Text();
}

void frmFilters::RemoveFilter() {
    cboFilter.SetText("");
    ApplyAndRemember();
}

// An item that the menu refuses (a key that it holds already) is left out.
void frmFilters::FillOperationMenu(const std::vector<OperationWord>& words) {
    for (const OperationWord& word : words)
        Attempt([&] { Toolbar1.AddMenuEntry(kApplyButton, word.key, word.text); });
}

void frmFilters::ApplyOperation(int item) {
    const toolkit::ToolBar::MenuEntry chosen =
        Toolbar1.ButtonAt(kApplyButton).menu.at(static_cast<std::size_t>(item));
    if (chosen.key.empty())
        return;  // a separator
    cboFilter.SetText(chosen.text);
    // An operation stands right behind the clock time and its colon, so that the word in a path is
    // not meant; an outcome can stand anywhere behind that.
    const bool operation = OperationWords::IsOperation(chosen.key);
    around_.filter.FilterText = operation ? ": " + chosen.text : chosen.text;
    around_.filter.operation = operation ? chosen.text : "";
    around_.filter.operationWords = keywords_.Operations();
    cboFilter.SelectText(Utf8ToUtf16(chosen.text).size(), 0);
    Apply();
}

// The close box hides; only the end of the program unloads. Both save the place.
void frmFilters::AboutToClose(bool& keep) {
    SaveWindowPosition(around_.settings, *this, false);
    if (ending_)
        return;
    keep = true;
    Hide();
}

void frmFilters::UnloadAtEnd() {
    ending_ = true;
    Unload();
}

}  // namespace ordalyn
