#include "windows/find/frmSearchFor.h"

#include <string>

#include "base/Text.h"
#include "base/TextIds.h"
#include "hostconfig/mAppCommon.h"
#include "settings/SettingsTable.h"

namespace ordalyn {

using toolkit::Kind;
using toolkit::Twips;

namespace {

constexpr std::int32_t kSourceColumn = 0, kTargetColumn = 1;

constexpr Twips kEdge = 120;
// The gap is for languages written from right to left: their label ends at the box.
constexpr Twips kLabelWidth = 1440, kLabelGap = 75, kBoxWidth = 3975;
constexpr Twips kBoxLeft = kEdge + kLabelWidth + kLabelGap;
constexpr Twips kFrameTop = 600, kFrameWidth = 2550, kFrameHeight = 1095;
constexpr Twips kOptionWidth = 2250, kLine = 240;
constexpr Twips kChecksLeft = kEdge + kFrameWidth + 165;
constexpr Twips kButtonsLeft = kBoxLeft + kBoxWidth + 180;
constexpr Twips kChecksWidth = kButtonsLeft - 105 - kChecksLeft;
constexpr Twips kButtonWidth = 1710, kButtonHeight = 375;

// In tab order. The label's access key belongs to the box behind it.
constexpr toolkit::ControlDesign kControls[] = {
    {.kind = Kind::Label,
     .name = "Label1",
     .tag = text_id::kFindWhat.tag,
     .bounds = {kEdge, 180, kLabelWidth, kLine}},
    {.kind = Kind::ComboBox,
     .name = "cboFindWhat",
     .bounds = {kBoxLeft, 135, kBoxWidth, 315},
     .editable = true},
    {.kind = Kind::Frame,
     .name = "Frame1",
     .tag = text_id::kSearchIn.tag,
     .bounds = {kEdge, kFrameTop, kFrameWidth, kFrameHeight}},
    {.kind = Kind::OptionButton,
     .name = "optColumn",
     .tag = text_id::kSourceOption.tag,
     .bounds = {150, 315, kOptionWidth, kLine},
     .container = "Frame1",
     .index = 0},
    {.kind = Kind::OptionButton,
     .name = "optColumn",
     .tag = text_id::kTargetOption.tag,
     .bounds = {150, 675, kOptionWidth, kLine},
     .container = "Frame1",
     .index = 1},
    {.kind = Kind::CheckBox,
     .name = "chkWholeWord",
     .tag = text_id::kWholeWordOnly.tag,
     .bounds = {kChecksLeft, kFrameTop + 315, kChecksWidth, kLine}},
    {.kind = Kind::CheckBox,
     .name = "chkSelectedDate",
     .tag = text_id::kSelectedDateOnly.tag,
     .bounds = {kChecksLeft, kFrameTop + 675, kChecksWidth, kLine}},
    {.kind = Kind::CommandButton,
     .name = "cmdFindNext",
     .tag = text_id::kFindNext.tag,
     .bounds = {kButtonsLeft, 105, kButtonWidth, kButtonHeight},
     .isDefault = true},
    {.kind = Kind::CommandButton,
     .name = "cmdCancel",
     .tag = text_id::kCancel.tag,
     .bounds = {kButtonsLeft, 570, kButtonWidth, kButtonHeight},
     .isCancel = true},
    {.kind = Kind::CommandButton,
     .name = "cmdClearList",
     .tag = text_id::kClearList.tag,
     .bounds = {kButtonsLeft, kFrameTop + kFrameHeight - kButtonHeight, kButtonWidth,
                kButtonHeight}},
};

constexpr toolkit::FormDesign kDesign = {
    .name = "frmSearchFor",
    .tag = text_id::kFindTitle.tag,
    .clientSize = {kButtonsLeft + kButtonWidth + kEdge, kFrameTop + kFrameHeight + kEdge},
    .style = {},
    .controls = kControls,
    .helpPage = "find",
};

}  // namespace

void FindNextString(EntrySearch& search, const InterfaceStrings& strings, toolkit::Form& owner) {
    if (!search.CanSearch()) {
        owner.toolkit().Beep();
        return;
    }
    if (search.FindNext())
        return;
    owner.toolkit().ShowMessage(
        &owner,
        strings.GetInterfaceString(text_id::kCannotFind) + " \"" + search.Options().text + "\"",
        mAppCommon::kProgramTitle, toolkit::MessageIcon::Information);
}

frmSearchFor::frmSearchFor(toolkit::Toolkit& toolkit, const Surroundings& around)
    : Form(toolkit, kDesign),
      around_(around),
      cboFindWhat(Get<toolkit::ComboBox>("cboFindWhat")),
      optSource(Get<toolkit::OptionButton>("optColumn", kSourceColumn)),
      optTarget(Get<toolkit::OptionButton>("optColumn", kTargetColumn)),
      chkWholeWord(Get<toolkit::CheckBox>("chkWholeWord")),
      chkSelectedDate(Get<toolkit::CheckBox>("chkSelectedDate")),
      cmdFindNext(Get<toolkit::CommandButton>("cmdFindNext")),
      cmdClearList(Get<toolkit::CommandButton>("cmdClearList")) {
    around_.language.ApplyLanguage(*this);
    CentreOnScreen();
    cmdClearList.SetEnabled(false);
    around_.history.LoadHistory(cboFindWhat, entry::FindTexts.key, entry::FindTexts.numbers);
    ShowOptions();
    WireControls();
}

void frmSearchFor::ShowOptions() {
    const SearchOptions& options = around_.search.Options();
    if (options.historyItem >= 0 && options.historyItem < cboFindWhat.ListCount())
        cboFindWhat.SetListIndex(options.historyItem);
    else
        cboFindWhat.SetText(options.text);
    (options.ColumnNo == kSourceColumn ? optSource : optTarget).SetChecked(true);
    chkWholeWord.SetChecked(options.wholeWord);
    chkSelectedDate.SetChecked(options.selectedDateOnly);
    cmdFindNext.SetEnabled(around_.search.CanSearch());
}

void frmSearchFor::WireControls() {
    cboFindWhat.Change.Subscribe([this] { TextChanged(); });
    cboFindWhat.Click.Subscribe([this] { TextChanged(); });
    chkWholeWord.Click.Subscribe([this] { around_.search.SetWholeWord(chkWholeWord.Checked()); });
    chkSelectedDate.Click.Subscribe(
        [this] { around_.search.SetSelectedDateOnly(chkSelectedDate.Checked()); });
    optSource.Click.Subscribe([this] { around_.search.SetColumn(kSourceColumn); });
    optTarget.Click.Subscribe([this] { around_.search.SetColumn(kTargetColumn); });
    cmdFindNext.Click.Subscribe([this] {
        FindNextString(around_.search, around_.strings, *this);
        around_.history.AddToHistory(cboFindWhat, entry::FindTexts.key, entry::FindTexts.numbers);
    });
    cmdClearList.Click.Subscribe([this] { ClearList(); });
    Get<toolkit::CommandButton>("cmdCancel").Click.Subscribe([this] { Hide(); });
    Activate.Subscribe([this] {
        if (!ActivatedByClickOnControl())
            cboFindWhat.SetFocus();
        if (cboFindWhat.ListCount() > 0)
            cmdClearList.SetEnabled(true);
    });
    QueryUnload.Subscribe([this](bool& keep) {
        if (ending_)
            return;
        keep = true;
        Hide();
    });
}

void frmSearchFor::TextChanged() {
    around_.search.SetText(cboFindWhat.Text(), cboFindWhat.ListIndex());
    cmdFindNext.SetEnabled(around_.search.CanSearch());
    around_.mnuSearchFindNext.SetEnabled(around_.search.CanSearch());
}

void frmSearchFor::ClearList() {
    if (!around_.history.ClearHistory(cboFindWhat, entry::FindTexts.key, entry::FindTexts.numbers,
                                      *this))
        return;
    // The emptied box raises nothing: Search > Find Next stays as it was, and beeps.
    around_.search.SetText("", cboFindWhat.ListIndex());
    cmdFindNext.SetEnabled(false);
    cmdClearList.SetEnabled(false);
}

void frmSearchFor::PreSelectText() {
    cboFindWhat.SelectText(0, Utf8ToUtf16(cboFindWhat.Text()).size());
}

void frmSearchFor::AllowSelectedDate(bool allowed) {
    if (!allowed)
        chkSelectedDate.SetChecked(false);
    chkSelectedDate.SetEnabled(allowed);
}

void frmSearchFor::UnloadAtEnd() {
    ending_ = true;
    Unload();
}

}  // namespace ordalyn
