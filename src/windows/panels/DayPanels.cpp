#include "windows/panels/DayPanels.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "base/Attempt.h"
#include "base/CheckedMath.h"
#include "base/Text.h"
#include "base/TextIds.h"
#include "log/DayRows.h"
#include "toolkit/ScopedPointer.h"
#include "windows/panels/EntryRows.h"
#include "windows/panels/HiddenWhileFilled.h"
#include "windows/panels/RowOfEntry.h"
#include "windows/panels/StatusTexts.h"

namespace ordalyn {

DayPanels::DayPanels(const Controls& controls, const EntryLists& entries,
                     const FilterChoice& filter, const SettingsValues& settings,
                     platform::Locale& locale, TextSource text, ReaderSource reader)
    : controls_(controls),
      entries_(entries),
      filter_(filter),
      settings_(settings),
      locale_(locale),
      text_(std::move(text)),
      reader_(std::move(reader)),
      panelFilter_(controls.SourceListView, controls.TargetListView, entries, filter, settings,
                   reader_) {
    controls_.cboDate.Click.Subscribe([this] { DateComboClicked(); });
    // A reaction that fails is nothing to report for each arrow key.
    controls_.SourceListView.ItemClick.Subscribe(
        [this](int row) { Attempt([&] { SourceRowClicked(row); }); });
    controls_.TargetListView.ItemClick.Subscribe(
        [this](int row) { Attempt([&] { TargetRowClicked(row); }); });
    controls_.SourceListView.SelectionChanged.Subscribe(
        [this] { SelectSameRows(controls_.TargetListView, controls_.SourceListView); });
    controls_.TargetListView.SelectionChanged.Subscribe(
        [this] { SelectSameRows(controls_.SourceListView, controls_.TargetListView); });
    controls_.SourceListView.GotFocus.Subscribe([this] { targetWasUsed_ = false; });
    controls_.TargetListView.GotFocus.Subscribe([this] { targetWasUsed_ = true; });
    for (toolkit::ListView* list : {&controls_.SourceListView, &controls_.TargetListView}) {
        list->SetMultiSelect(true);
        list->MouseUp.Subscribe(
            [this](int button, toolkit::Modifiers, toolkit::Twips, toolkit::Twips) {
                if (button == toolkit::kRightButton)
                    ShowContextMenu();
            });
    }
}

std::string DayPanels::LongDate(std::string_view dateText) const {
    return locale_.LongDate(dateText).value_or(std::string(dateText));
}

void DayPanels::BuildDateList(bool selectLastDate, bool takeFocus) {
    toolkit::ComboBox& cboDate = controls_.cboDate;
    cboDate.Clear();
    std::vector<std::string> dates;
    Attempt([&] { dates = days_.Build(entries_.EntryDates()); });
    Attempt([this] { DaysListed.Raise(); });
    if (dates.empty())
        return;
    if (settings_.LongDate != 0)
        for (std::string& date : dates)
            date = LongDate(date);
    if (days_.FirstDayItem() == 1)
        dates.insert(dates.begin(), text_(text_id::kAllDates));
    cboDate.AddItems(dates);
    shownDay_ = kNothingShown;
    Attempt([&] { cboDate.SetListIndex(selectLastDate ? cboDate.ListCount() - 1 : 0); });
    if (takeFocus)
        controls_.SourceListView.SetFocus();
}

bool DayPanels::AtTheEnd() const {
    const int rows = controls_.SourceListView.RowCount();
    const bool lastDay = selectedDay_ == kAllDates || selectedDay_ == days_.DayCount() - 1;
    return lastDay && controls_.SourceListView.SelectedRow() == rows - 1;
}

void DayPanels::EntriesAdded(std::int32_t firstNew) {
    const bool atTheEnd = AtTheEnd();
    const bool anyDay = days_.DayCount() > 0;
    if (!ListAddedDays(firstNew)) {
        // Another beginning of the log than the one that is shown.
        BuildDateList(true, false);
        SelectLastRow();
        return;
    }
    Attempt([this] { DaysListed.Raise(); });
    const std::int32_t lastDay = days_.DayCount() - 1;
    if (!anyDay || (atTheEnd && selectedDay_ != kAllDates && selectedDay_ != lastDay))
        ChooseDay(lastDay);
    else
        AddRows(firstNew);
    if (atTheEnd)
        SelectLastRow();
}

void DayPanels::ShowNewest(std::int32_t firstNew) {
    if (!ListAddedDays(firstNew)) {
        BuildDateList(true);
        SelectLastRow();
        return;
    }
    Attempt([this] { DaysListed.Raise(); });
    const std::int32_t lastDay = days_.DayCount() - 1;
    if (selectedDay_ == lastDay && shownDay_ == lastDay) {
        AddRows(firstNew);
        Attempt([this] { DayShown.Raise(); });
    } else {
        Attempt([&] { ChooseDay(lastDay); });
    }
    controls_.SourceListView.SetFocus();
    SelectLastRow();
}

std::string DayPanels::DayLabel(std::string_view date) const {
    return settings_.LongDate != 0 ? LongDate(date) : std::string(date);
}

// Returns whether the days that were listed are still there, apart from the last one's date, which
// was that of a line without an end.
bool DayPanels::ListAddedDays(std::int32_t firstNew) {
    toolkit::ComboBox& cboDate = controls_.cboDate;
    const std::int32_t before = days_.DayCount();
    const int listed = cboDate.ListCount();
    const std::vector<std::string> dates = days_.Extend(entries_.EntryDates(), firstNew);
    const auto after = static_cast<std::int32_t>(dates.size());
    if (after < before || listed == 0)
        return false;
    const toolkit::ScopedFlag ignore(ignoreComboClick_);
    if (before == 1 && after > 1)
        cboDate.InsertItem(0, text_(text_id::kAllDates));
    std::vector<std::string> added;
    for (std::int32_t day = before - 1; day < after; ++day) {
        std::string label = DayLabel(dates[static_cast<std::size_t>(day)]);
        if (day >= before)
            added.push_back(std::move(label));
        else if (const int item = day + days_.FirstDayItem(); cboDate.List(item) != label)
            cboDate.SetItem(item, label);
    }
    if (!added.empty())
        cboDate.AddItems(added);
    return true;
}

void DayPanels::AddRows(std::int32_t firstNew) {
    toolkit::ListView& source = controls_.SourceListView;
    const std::vector<std::int32_t>& shown = *source.RowTags();
    const auto kept = std::lower_bound(shown.begin(), shown.end(), firstNew);
    const auto firstChanged = static_cast<int>(kept - shown.begin());
    const std::vector<std::int32_t> added =
        panelFilter_.Passing(DayRows(entries_, days_, selectedDay_, firstNew));
    if (added.empty() && kept == shown.end())
        return;
    auto rows = std::make_shared<std::vector<std::int32_t>>();
    rows->reserve(static_cast<std::size_t>(firstChanged) + added.size());
    rows->assign(shown.begin(), kept);
    rows->insert(rows->end(), added.begin(), added.end());
    // The row of a line that had no end may be gone: another filter's, or another day's.
    const int selected = source.SelectedRow();
    const bool deselect =
        selected >= firstChanged && RowOfEntry(*rows, source.Tag(selected)) != selected;
    const auto texts = std::make_shared<const EntryRows>(entries_, reader_);
    source.GrowRows(texts, rows, firstChanged);
    if (deselect)
        source.SelectRow(-1);
    if (settings_.TwoPanels != 0) {
        controls_.TargetListView.GrowRows(texts, rows, firstChanged);
        if (deselect)
            controls_.TargetListView.SelectRow(-1);
    }
    ShowOperationCount();
}

void DayPanels::DateComboClicked() {
    if (ignoreComboClick_)
        return;
    ShowDay(controls_.cboDate.ListIndex() - days_.FirstDayItem());
}

// Each step is made whatever became of the one before it, such as a reaction to the first row that
// fails.
void DayPanels::ShowDay(std::int32_t day) {
    selectedDay_ = day;
    Attempt([this] { FillPanels(); });
    Attempt([this] { ApplyFilter(false); });
    Attempt([this] { DayShown.Raise(); });
}

void DayPanels::FillPanels() {
    if (shownDay_ == selectedDay_)
        return;
    shownDay_ = selectedDay_;
    toolkit::ListView& source = controls_.SourceListView;
    toolkit::ListView& target = controls_.TargetListView;
    {
        const toolkit::ScopedPointer hourglass(controls_.form.toolkit(),
                                               toolkit::Pointer::Hourglass);
        const HiddenWhileFilled hiddenSource(source);
        const HiddenWhileFilled hiddenTarget(target);
        source.ClearRows();
        target.ClearRows();
        const auto texts = std::make_shared<const EntryRows>(entries_, reader_);
        const auto tags = std::make_shared<const std::vector<std::int32_t>>(
            DayRows(entries_, days_, selectedDay_));
        source.Fill(texts, tags);
        if (settings_.TwoPanels != 0)
            target.Fill(texts, tags);
        ShowOperationCount();
        if (selectedDay_ != kAllDates)
            ShowDateInStatusBar(settings_.LongDate != 0,
                                days_.DateOfDay(selectedDay_, entries_.EntryDates()));
    }
    if (source.RowCount() > 0) {
        source.SelectRow(0);
        SourceRowClicked(0);
    }
}

void DayPanels::ApplyFilter(bool blnPreShow) {
    ShowFilterInStatusBar();
    if (blnPreShow) {
        shownDay_ = kNothingShown;
        // Whatever the reaction to the first row runs into, the rows are there to be filtered.
        Attempt([this] { FillPanels(); });
    }
    if (panelFilter_.RemoveRows())
        ShowOperationCount();
}

void DayPanels::ShowFailedOnly(bool only) {
    const toolkit::ListView& source = controls_.SourceListView;
    const bool chosen = source.SelectedRow() >= 0;
    const std::int32_t entry = chosen ? source.Tag(source.SelectedRow()) : 0;
    panelFilter_.SetFailedOnly(only);
    ApplyFilter(!only);
    ShowOperationCount();
    // What was selected among few rows is to be seen among the many around it.
    if (chosen && !only)
        ShowEntry(entry);
}

void DayPanels::ShowOperationCount() {
    const std::string count = std::to_string(controls_.SourceListView.RowCount());
    ShowStatus(
        controls_.StatusBar1, kCountPanel,
        ReplaceIgnoreCase(text_(FailedOnly() ? text_id::kFailedOperations : text_id::kOperations),
                          "%i", count));
}

void DayPanels::ShowFilterInStatusBar() {
    ShowStatus(controls_.StatusBar1, kFilterPanel, text_(text_id::kFilterStatus) + filter_.boxText);
}

void DayPanels::ShowDateInStatusBar(bool asGiven, std::string_view dateText) {
    ShowStatus(controls_.StatusBar1, kDatePanel,
               asGiven ? std::string(dateText) : LongDate(dateText));
}

void DayPanels::ApplyNewDateFormat(std::int32_t lngLd) {
    toolkit::ComboBox& cboDate = controls_.cboDate;
    const int selected = cboDate.ListIndex();
    const bool listed = cboDate.ListCount() > 0;
    cboDate.Clear();
    std::vector<std::string> labels;
    if (days_.FirstDayItem() == 1)
        labels.push_back(text_(text_id::kAllDates));
    for (std::int32_t day = 0; day < days_.DayCount(); ++day) {
        const std::string_view date = days_.DateOfDay(day, entries_.EntryDates());
        labels.push_back(lngLd != 0 ? LongDate(date) : std::string(date));
    }
    if (listed) {
        cboDate.AddItems(labels);
        const toolkit::ScopedFlag ignore(ignoreComboClick_);
        cboDate.SetListIndex(selected);
    }
    Attempt([&] {
        const std::int32_t entry =
            controls_.SourceListView.Tag(controls_.SourceListView.SelectedRow());
        ShowDateInStatusBar(lngLd != 0, entries_.EntryDates().List(entry));
    });
}

void DayPanels::SelectEntryRow(int row) {
    controls_.SourceListView.SelectRow(row);
    controls_.SourceListView.EnsureVisible(row);
    SourceRowClicked(row);
}

void DayPanels::SelectLastRow() {
    if (const int rows = controls_.SourceListView.RowCount(); rows > 0)
        SelectEntryRow(rows - 1);
}

// A single panel leaves the other one empty.
void DayPanels::SelectSameRows(toolkit::ListView& list, const toolkit::ListView& as) {
    if (settings_.TwoPanels != 0)
        list.SelectRows(as.SelectedRows(), as.SelectedRow());
}

void DayPanels::SourceRowClicked(int row) {
    if (settings_.TwoPanels != 0) {
        SelectSameRows(controls_.TargetListView, controls_.SourceListView);
        controls_.TargetListView.EnsureVisible(row);
    }
    RowIsShown(row);
}

void DayPanels::TargetRowClicked(int row) {
    SelectSameRows(controls_.SourceListView, controls_.TargetListView);
    controls_.SourceListView.EnsureVisible(row);
    RowIsShown(row);
}

void DayPanels::RowIsShown(int row) {
    if (selectedDay_ == kAllDates)
        ShowDateInStatusBar(settings_.LongDate != 0,
                            entries_.EntryDates().List(controls_.SourceListView.Tag(row)));
    RowShown.Raise(row);
}

// Returns whether there is something to copy.
bool DayPanels::PrepareContextMenu() {
    const int row = controls_.SourceListView.SelectedRow();
    if (row < 0)
        return false;
    bool hasTarget = false;
    Attempt([&] {
        hasTarget = !entries_.EntryTargets().List(controls_.SourceListView.Tag(row)).empty();
    });
    controls_.mnuContextCopyTarget.SetEnabled(hasTarget);
    Attempt([this] { ContextMenuOpens.Raise(); });
    return true;
}

void DayPanels::ShowContextMenu() {
    if (PrepareContextMenu())
        controls_.form.PopUpMenu(controls_.contextMenu);
}

void DayPanels::ShowContextMenuAtRow() {
    if (!PrepareContextMenu())
        return;
    toolkit::ListView& used = targetWasUsed_ && settings_.TwoPanels != 0 ? controls_.TargetListView
                                                                         : controls_.SourceListView;
    const int row = controls_.SourceListView.SelectedRow();
    used.EnsureVisible(row);
    controls_.form.PopUpMenuBelow(controls_.contextMenu, used.RowOnScreen(row));
}

void DayPanels::LanguageChanged() {
    ShowOperationCount();
    ShowFilterInStatusBar();
    if (days_.FirstDayItem() == 1 && controls_.cboDate.ListCount() > 0)
        controls_.cboDate.SetItem(0, text_(text_id::kAllDates));
}

bool DayPanels::ShowEntry(std::int32_t entry) {
    if (selectedDay_ == kAllDates)
        return ShowRowOf(entry, 0);
    const std::int32_t day = days_.DayOf(entry);
    if (day == kNoDay)
        return false;
    if (day != selectedDay_)
        ChooseDay(day);
    return ShowRowOf(entry, days_.FirstEntryOf(day));
}

void DayPanels::ChooseDay(std::int32_t day) {
    if (controls_.cboDate.ListCount() > 0) {
        controls_.cboDate.SetListIndex(CheckedAdd(days_.FirstDayItem(), day));
    } else {  // the days of the log whose rows are shown are not listed
        ShowDay(day);
    }
}

// Selects the entry's row. When everything passes the rows are the entries from the first one on,
// so its place is known.
bool DayPanels::ShowRowOf(std::int32_t entry, std::int32_t firstEntry) {
    // The row is what was looked for: it stays found when there is no file to name in the title.
    const auto select = [this](int row) { Attempt([&] { SelectEntryRow(row); }); };
    if (panelFilter_.IsOpen()) {
        select(entry - firstEntry);
        return true;
    }
    const int row = RowOfEntry(*controls_.SourceListView.RowTags(), entry);
    if (row == kNoRow)
        return false;
    select(row);
    return true;
}

}  // namespace ordalyn
