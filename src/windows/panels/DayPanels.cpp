#include "windows/panels/DayPanels.h"

#include <memory>
#include <utility>
#include <vector>

#include "base/Attempt.h"
#include "base/Text.h"
#include "log/DayRows.h"
#include "windows/panels/EntryRows.h"

namespace ordalyn {

namespace {

constexpr std::int32_t kAllDatesText = 4005;
constexpr std::int32_t kOperationsText = 4010;
constexpr int kCountPanel = 1;
constexpr int kDatePanel = 2;
// Every text of the status bar ends in two blanks.
constexpr std::string_view kStatusEnd = "  ";

}  // namespace

DayPanels::DayPanels(const Controls& controls, EntryLists& entries, const SettingsValues& settings,
                     platform::Locale& locale, Strings strings)
    : controls_(controls),
      entries_(entries),
      settings_(settings),
      locale_(locale),
      strings_(std::move(strings)) {
    controls_.cboDate.Click.Subscribe([this] { DateComboClicked(); });
}

std::string DayPanels::LongDate(std::string_view dateText) const {
    return locale_.LongDate(dateText).value_or(std::string(dateText));
}

void DayPanels::BuildDateList(bool selectLastDate) {
    toolkit::ComboBox& cboDate = controls_.cboDate;
    cboDate.Clear();
    std::vector<std::string> dates;
    Attempt([&] { dates = days_.Build(entries_.EntryDates()); });
    if (dates.empty())
        return;
    if (settings_.LongDate != 0)
        for (std::string& date : dates)
            date = LongDate(date);
    if (days_.FirstDayItem() == 1)
        dates.insert(dates.begin(), strings_(kAllDatesText));
    cboDate.AddItems(dates);
    shownDay_ = kNothingShown;
    Attempt([&] { cboDate.SetListIndex(selectLastDate ? cboDate.ListCount() - 1 : 0); });
    controls_.SourceListView.SetFocus();
}

// Each step is made whatever became of the one before it: a log with a line that cannot be shown
// still gets its day, its filter and its state of the find dialog.
void DayPanels::DateComboClicked() {
    if (ignoreComboClick_)
        return;
    selectedDay_ = controls_.cboDate.ListIndex() - days_.FirstDayItem();
    Attempt([this] { FillPanels(); });
    Attempt([this] {
        if (reactions_.applyFilter)
            reactions_.applyFilter();
    });
    Attempt([this] {
        if (reactions_.dayChosen)
            reactions_.dayChosen(selectedDay_ != kAllDates);
    });
}

void DayPanels::RefillPanels() {
    shownDay_ = kNothingShown;
    FillPanels();
}

void DayPanels::FillPanels() {
    if (shownDay_ == selectedDay_)
        return;
    shownDay_ = selectedDay_;
    toolkit::ListView& source = controls_.SourceListView;
    toolkit::ListView& target = controls_.TargetListView;
    toolkit::Toolkit& toolkit = controls_.form.toolkit();
    // Not a scoped pointer: a fill that stops leaves the hourglass and the hidden panels, the sign
    // that the rows are not whole.
    toolkit.SetPointer(toolkit::Pointer::Hourglass);
    source.SetVisible(false);
    target.SetVisible(false);
    source.ClearRows();
    target.ClearRows();

    DayRowsResult rows = DayRows(entries_, days_.DayStarts(), selectedDay_);
    const auto texts = std::make_shared<const EntryRows>(entries_);
    const auto tags = std::make_shared<const std::vector<std::int32_t>>(std::move(rows.tags));
    source.Fill(texts, tags);
    if (settings_.TwoPanels != 0)
        target.Fill(texts, tags);
    if (rows.failed)
        throw MalformedText("An entry without a time cannot be shown");

    ShowOperationCount();
    if (selectedDay_ != kAllDates)
        ShowDateInStatusBar(settings_.LongDate != 0,
                            days_.DateOfDay(selectedDay_, entries_.EntryDates()));
    source.SetVisible(true);
    target.SetVisible(true);
    // The rows are whole now, whatever the reaction to the first one runs into.
    toolkit.SetPointer(toolkit::Pointer::Default);
    if (source.RowCount() > 0 && reactions_.rowClicked) {
        source.SelectRow(0);
        reactions_.rowClicked(0);
    }
}

void DayPanels::ShowOperationCount() {
    const std::string count = std::to_string(controls_.SourceListView.RowCount());
    std::string text = ReplaceIgnoreCase(strings_(kOperationsText), "%i", count);
    text += kStatusEnd;
    controls_.StatusBar1.SetPanelText(kCountPanel, text);
}

void DayPanels::ShowDateInStatusBar(bool asGiven, std::string_view dateText) {
    std::string text = asGiven ? std::string(dateText) : LongDate(dateText);
    text += kStatusEnd;
    controls_.StatusBar1.SetPanelText(kDatePanel, text);
}

void DayPanels::ApplyNewDateFormat(std::int32_t lngLd) {
    toolkit::ComboBox& cboDate = controls_.cboDate;
    const int selected = cboDate.ListIndex();
    cboDate.Clear();
    std::vector<std::string> labels;
    if (days_.FirstDayItem() == 1)
        labels.push_back(strings_(kAllDatesText));
    for (std::int32_t day = 0; day < days_.DayCount(); ++day) {
        // Days that are older than the entries can have lost their dates; they keep their places.
        std::string label;
        Attempt([&] {
            const std::string_view date = days_.DateOfDay(day, entries_.EntryDates());
            label = lngLd != 0 ? LongDate(date) : std::string(date);
        });
        labels.push_back(std::move(label));
    }
    cboDate.AddItems(labels);
    {
        const toolkit::ScopedFlag ignore(ignoreComboClick_);
        cboDate.SetListIndex(selected);
    }
    Attempt([&] {
        const std::int32_t entry =
            controls_.SourceListView.Tag(controls_.SourceListView.SelectedRow());
        ShowDateInStatusBar(lngLd != 0, entries_.EntryDates().List(entry));
    });
}

void DayPanels::SelectEntryRow(std::int32_t rowNumber) {
    const int row = rowNumber - 1;
    controls_.SourceListView.SelectRow(row);
    controls_.SourceListView.EnsureVisible(row);
    if (settings_.TwoPanels != 0) {
        controls_.TargetListView.SelectRow(row);
        controls_.TargetListView.EnsureVisible(row);
    }
    if (reactions_.rowClicked)
        reactions_.rowClicked(row);
}

void DayPanels::ShowContextMenu() {
    const int row = controls_.SourceListView.SelectedRow();
    if (row < 0)
        return;  // nothing to copy
    bool hasTarget = false;
    Attempt([&] {
        hasTarget = !entries_.EntryTargets().List(controls_.SourceListView.Tag(row)).empty();
    });
    controls_.mnuContextCopyTarget.SetEnabled(hasTarget);
    controls_.form.PopUpMenu(controls_.contextMenu);
}

}  // namespace ordalyn
