#include "windows/history/frmHistory.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include "base/Text.h"
#include "base/TextIds.h"
#include "toolkit/ScopedPointer.h"
#include "windows/common/ControlFont.h"
#include "windows/common/WindowPlacement.h"
#include "windows/history/HistoryRows.h"
#include "windows/history/HistoryTexts.h"

namespace ordalyn {

using toolkit::Kind;
using toolkit::Twips;

namespace {

constexpr Twips kEdge = 120, kGap = 75, kLine = 240;
constexpr Twips kLabelWidth = 1950, kBoxLeft = kEdge + kLabelWidth + kGap, kBoxHeight = 315;
constexpr Twips kButtonWidth = 2160, kButtonHeight = 375;
// Two lines, for long paths.
constexpr Twips kSummaryTop = 600, kSummaryHeight = 2 * kLine;
constexpr Twips kLivesTop = kSummaryTop + kSummaryHeight + kGap;
constexpr Twips kClientWidth = 12000, kClientHeight = 6000;
constexpr Twips kLivesWidth = 4500;

// In tab order. A label's access key belongs to the box behind it. Arrange says how large they are.
constexpr toolkit::ControlDesign kControls[] = {
    {.kind = Kind::Label,
     .name = "lblPath",
     .tag = text_id::kHistoryPath.tag,
     .bounds = {kEdge, 180, kLabelWidth, kLine}},
    {.kind = Kind::ComboBox,
     .name = "cboPath",
     .bounds = {kBoxLeft, 135, 6000, kBoxHeight},
     .editable = true},
    {.kind = Kind::CommandButton,
     .name = "cmdShow",
     .tag = text_id::kShowHistory.tag,
     .bounds = {0, 105, kButtonWidth, kButtonHeight},
     .isDefault = true},
    {.kind = Kind::Label,
     .name = "lblSummary",
     .bounds = {kEdge, kSummaryTop, 6000, kSummaryHeight}},
    {.kind = Kind::Label,
     .name = "lblLives",
     .tag = text_id::kWhichLife.tag,
     .bounds = {kEdge, kLivesTop + 45, kLabelWidth, kLine},
     .visible = false},
    {.kind = Kind::ComboBox,
     .name = "cboLives",
     .bounds = {kBoxLeft, kLivesTop, kLivesWidth, kBoxHeight},
     .visible = false},
    {.kind = Kind::ListView,
     .name = "lvwSteps",
     .bounds = {kEdge, kLivesTop, 6000, 3000},
     .nameTag = text_id::kHistoryTitle.tag},
    {.kind = Kind::Label,
     .name = "lblOlderLogs",
     .tag = text_id::kOlderLogs.tag,
     .bounds = {kEdge, 0, 3000, 2 * kLine},
     .visible = false},
    {.kind = Kind::CommandButton,
     .name = "cmdReadAll",
     .tag = text_id::kReadAllFiles.tag,
     .bounds = {0, 0, kButtonWidth, kButtonHeight},
     .visible = false},
    {.kind = Kind::CommandButton,
     .name = "cmdClose",
     .tag = text_id::kClose.tag,
     .bounds = {0, 0, kButtonWidth, kButtonHeight},
     .isCancel = true},
};

constexpr toolkit::FormDesign kDesign = {
    .name = "frmHistory",
    .tag = text_id::kHistoryTitle.tag,
    .clientSize = {kClientWidth, kClientHeight},
    .style = {.resizable = true, .maximiseBox = true},
    .controls = kControls,
    .helpPage = "history",
};

struct Column {
    TextId caption;
    Twips width;
};
// In the order of HistoryRows.
constexpr Column kColumns[] = {{text_id::kDateName, 1100},   {text_id::kTime, 850},
                               {text_id::kOperation, 1250},  {text_id::kMovedFrom, 2500},
                               {text_id::kMovedTo, 2500},    {text_id::kOutcome, 1200},
                               {text_id::kLogFileName, 1600}};
// These two take what a wider window has.
constexpr int kWide[] = {HistoryRows::kFrom, HistoryRows::kTo};
constexpr Twips kLeastWide = 600;
constexpr double kWidest = 1'000'000;  // of a stored width
constexpr Twips kPlainSize = 8;        // points
constexpr Twips kBesideColumns = 375;  // the scroll bar and the borders

// A path from another program can stand in quotation marks.
std::string_view Unquoted(std::string_view text) {
    text = TrimBlanks(text);
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"')
        text = text.substr(1, text.size() - 2);
    return text;
}

}  // namespace

frmHistory::frmHistory(toolkit::Toolkit& toolkit, const Surroundings& around)
    : Form(toolkit, kDesign),
      around_(around),
      cboPath(Get<toolkit::ComboBox>("cboPath")),
      cmdShow(Get<toolkit::CommandButton>("cmdShow")),
      lblSummary(Get<toolkit::Label>("lblSummary")),
      lblLives(Get<toolkit::Label>("lblLives")),
      cboLives(Get<toolkit::ComboBox>("cboLives")),
      lvwSteps(Get<toolkit::ListView>("lvwSteps")),
      lblOlderLogs(Get<toolkit::Label>("lblOlderLogs")),
      cmdReadAll(Get<toolkit::CommandButton>("cmdReadAll")),
      cmdClose(Get<toolkit::CommandButton>("cmdClose")) {
    lblSummary.SetPlainText(true);
    // A larger font needs more room than the one that the columns were made for.
    const Twips larger =
        std::max<Twips>(static_cast<Twips>(around_.settings.FontSize) / kPlainSize, 1);
    for (int column = 0; column < HistoryRows::kFields; ++column)
        lvwSteps.AddColumn("", kColumns[column].width * larger, column);
    LoadColumns();
    RestoreWindowPosition(around_.settings, *this, false);
    WireControls();
    LoadInterface();
    LanguageChanged();
    Arrange();
}

// Behind the columns stands how wide the list was: the paths take the difference, as they do when
// the window changes its size.
void frmHistory::LoadColumns() {
    const std::vector<std::string> stored =
        Split(around_.settings.ReadEntry(entry::HistoryColumns), ',');
    if (stored.size() != HistoryRows::kFields + 1)
        return;
    std::vector<Twips> widths;
    for (const std::string& text : stored) {
        const double width = LeadingNumber(text);
        if (!(width > 0 && width <= kWidest))
            return;
        widths.push_back(static_cast<Twips>(width));
    }
    for (int column = 0; column < HistoryRows::kFields; ++column)
        lvwSteps.SetColumnWidth(column, widths[static_cast<std::size_t>(column)]);
    listWidth_ = widths.back();
}

void frmHistory::SaveColumns() {
    std::vector<std::string> widths;
    widths.reserve(HistoryRows::kFields + 1);
    for (int column = 0; column < HistoryRows::kFields; ++column)
        widths.push_back(std::to_string(std::lround(lvwSteps.ColumnWidth(column))));
    widths.push_back(std::to_string(std::lround(lvwSteps.Width())));
    around_.settings.WriteEntry(entry::HistoryColumns, Join(widths, ","));
}

void frmHistory::WireControls() {
    cmdShow.Click.Subscribe([this] { Search(kNoEntry); });
    // An item of the list is a path that was looked for before.
    cboPath.Click.Subscribe([this] {
        if (!listing_ && cboPath.ListIndex() >= 0)
            Search(kNoEntry);
    });
    cboLives.Click.Subscribe([this] {
        if (!listing_)
            ShowLife(cboLives.ListIndex());
    });
    lvwSteps.RowActivated.Subscribe([this](int row) { EntryChosen.Raise(lvwSteps.Tag(row)); });
    cmdReadAll.Click.Subscribe([this] { ReadAllChosen.Raise(); });
    cmdClose.Click.Subscribe([this] { Unload(); });
    Resize.Subscribe([this] { Arrange(); });
    // Another log may have been opened.
    Activate.Subscribe([this] { ShowOlderLogs(); });
    QueryUnload.Subscribe([this](bool& keep) { AboutToClose(keep); });
}

void frmHistory::LoadInterface() {
    const mAppSpecific& settings = around_.settings;
    for (toolkit::Control* control :
         std::initializer_list<toolkit::Control*>{&cboPath, &cboLives, &lvwSteps}) {
        ApplyFont(settings, *control, true, kPlainSize);
        control->SetLook(settings.FlatUserInterface != 0 ? toolkit::Appearance::Flat
                                                         : toolkit::Appearance::ThreeDimensional);
        control->SetForeColor(settings.ForegroundColor);
        control->SetBackColor(settings.BackgroundColor);
    }
    lvwSteps.SetBorder(toolkit::BorderStyle::FixedSingle);
    lvwSteps.SetGridLines(settings.GridLines != 0);
    // The form of the dates may be another one.
    ListLives();
    ShowRows(lvwSteps.SelectedRow());
    Arrange();
}

void frmHistory::LanguageChanged() {
    around_.language.ApplyLanguage(*this);
    for (int column = 0; column < HistoryRows::kFields; ++column)
        lvwSteps.SetColumnCaption(column,
                                  around_.strings.GetInterfaceString(kColumns[column].caption));
    ListLives();
}

// The list takes what the rest leaves.
void frmHistory::Arrange() {
    const toolkit::Size inside = ClientSize();
    const auto place = [](toolkit::Control& control, Twips left, Twips top, Twips width,
                          Twips height) {
        control.Move({left, top, std::max<Twips>(width, 0), std::max<Twips>(height, 0)});
    };
    const Twips right = inside.width - kEdge;
    place(cmdShow, right - kButtonWidth, 105, kButtonWidth, kButtonHeight);
    place(cboPath, kBoxLeft, 135, right - kButtonWidth - kGap - kBoxLeft, kBoxHeight);
    place(lblSummary, kEdge, kSummaryTop, right - kEdge, kSummaryHeight);
    place(cboLives, kBoxLeft, kLivesTop, std::min(kLivesWidth, right - kBoxLeft), kBoxHeight);
    const Twips buttonsTop = inside.height - kEdge - kButtonHeight;
    place(cmdClose, right - kButtonWidth, buttonsTop, kButtonWidth, kButtonHeight);
    place(cmdReadAll, right - 2 * kButtonWidth - kGap, buttonsTop, kButtonWidth, kButtonHeight);
    // Its first line stands in the middle of the buttons.
    place(lblOlderLogs, kEdge, buttonsTop + 60, right - 2 * kButtonWidth - 2 * kGap - kEdge,
          2 * kLine - 60);
    const Twips listTop =
        lives_.size() > 1 ? kLivesTop + std::max(cboLives.Height(), kBoxHeight) + kGap : kLivesTop;
    place(lvwSteps, kEdge, listTop, right - kEdge, buttonsTop - kEdge - listTop);

    // The first time what the design left over, then by how much the window has changed.
    Twips columns = 0;
    for (int column = 0; column < HistoryRows::kFields; ++column)
        columns += lvwSteps.ColumnWidth(column);
    const Twips before = listWidth_ > 0 ? listWidth_ : columns + kBesideColumns;
    listWidth_ = lvwSteps.Width();
    for (const int column : kWide)
        lvwSteps.SetColumnWidth(
            column, std::max(lvwSteps.ColumnWidth(column) + (listWidth_ - before) / 2, kLeastWide));
}

TextSource frmHistory::Texts() const {
    return [this](std::int32_t id) { return around_.strings.GetInterfaceString(id); };
}

std::string frmHistory::DateOf(std::int32_t entry) const {
    const cStringArray& dates = around_.entries.EntryDates();
    return entry <= dates.ListCount() ? around_.shownDate(dates.List(entry)) : std::string();
}

void frmHistory::ShowPath(std::string_view path, std::int32_t entry) {
    cboPath.SetText(path);
    Search(entry);
}

void frmHistory::FocusPath() {
    cboPath.SetFocus();
    cboPath.SelectText(0, Utf8ToUtf16(cboPath.Text()).size());
}

void frmHistory::EntriesChanged() {
    outOfDate_ = true;
    if (Visible())
        BringUpToDate();
}

void frmHistory::BringUpToDate() {
    ShowOlderLogs();
    if (!std::exchange(outOfDate_, false) || path_.empty())
        return;
    // What is typed meanwhile stays.
    const std::string typed = cboPath.Text();
    const std::string shown = path_;
    const std::int32_t entry =
        lvwSteps.SelectedRow() >= 0 ? lvwSteps.Tag(lvwSteps.SelectedRow()) : kNoEntry;
    cboPath.SetText(shown);
    Search(entry);
    cboPath.SetText(typed);
}

void frmHistory::Search(std::int32_t entry) {
    path_ = Unquoted(cboPath.Text());
    outOfDate_ = false;
    lives_.clear();
    {
        const toolkit::ScopedPointer hourglass(toolkit(), toolkit::Pointer::Hourglass);
        lives_ = FindLives(around_.entries, around_.reader(), path_);
    }
    shownLife_ = static_cast<int>(lives_.size()) - 1;
    for (int life = shownLife_; entry != kNoEntry && life >= 0; --life) {
        const std::vector<HistoryStep>& steps = lives_[static_cast<std::size_t>(life)].steps;
        if (std::any_of(steps.begin(), steps.end(),
                        [&](const HistoryStep& step) { return step.entry == entry; })) {
            shownLife_ = life;
            break;
        }
    }
    RememberPath();
    ListLives();
    ShowLife(shownLife_);
    for (int row = 0; entry != kNoEntry && row < lvwSteps.RowCount(); ++row) {
        if (lvwSteps.Tag(row) == entry) {
            lvwSteps.SelectRow(row);
            lvwSteps.EnsureVisible(row);
        }
    }
    Arrange();
    ShowOlderLogs();
}

// For as long as the program runs.
void frmHistory::RememberPath() {
    if (lives_.empty())
        return;
    for (int item = 0; item < cboPath.ListCount(); ++item)
        if (EqualsIgnoreCase(cboPath.List(item), path_))
            return;
    const toolkit::ScopedFlag listing(listing_);
    cboPath.InsertItem(0, path_);
}

void frmHistory::ListLives() {
    const toolkit::ScopedFlag listing(listing_);
    const bool several = lives_.size() > 1;
    cboLives.Clear();
    if (several) {
        std::vector<std::string> items;
        for (std::size_t i = 0; i < lives_.size(); ++i)
            items.push_back(LifeInList(lives_[i], i + 1, lives_.size(), Texts(),
                                       [this](std::int32_t entry) { return DateOf(entry); }));
        cboLives.AddItems(items);
        cboLives.SetListIndex(shownLife_);
    }
    lblLives.SetVisible(several);
    cboLives.SetVisible(several);
    ShowWords();
}

void frmHistory::ShowLife(int life) {
    shownLife_ = life;
    ShowWords();
    ShowRows(0);
}

void frmHistory::ShowRows(int selectedRow) {
    lvwSteps.ClearRows();
    if (shownLife_ < 0 || static_cast<std::size_t>(shownLife_) >= lives_.size())
        return;
    auto tags = std::make_shared<std::vector<std::int32_t>>();
    for (const HistoryStep& step : lives_[static_cast<std::size_t>(shownLife_)].steps)
        if (tags->empty() || tags->back() != step.entry)
            tags->push_back(step.entry);
    lvwSteps.Fill(
        std::make_shared<const HistoryRows>(around_.entries, around_.reader, around_.shownDate),
        std::move(tags));
    lvwSteps.SelectRow(selectedRow);
}

void frmHistory::ShowWords() {
    std::string words;
    if (shownLife_ >= 0 && static_cast<std::size_t>(shownLife_) < lives_.size())
        words = LifeInWords(lives_[static_cast<std::size_t>(shownLife_)], Texts(),
                            [this](std::int32_t entry) { return DateOf(entry); });
    else if (!path_.empty())
        words = AboutPath(around_.strings.GetInterfaceString(
                              IsWholePath(path_) ? text_id::kNoHistory : text_id::kNoWholePath),
                          path_);
    lblSummary.SetCaption(words);
}

void frmHistory::ShowOlderLogs() {
    const bool left = around_.olderLogsAreLeft();
    lblOlderLogs.SetVisible(left);
    cmdReadAll.SetVisible(left);
}

void frmHistory::AboutToClose(bool& keep) {
    SaveWindowPosition(around_.settings, *this, false);
    SaveColumns();
    if (ending_)
        return;
    keep = true;
    Hide();
}

void frmHistory::UnloadAtEnd() {
    ending_ = true;
    Unload();
}

}  // namespace ordalyn
