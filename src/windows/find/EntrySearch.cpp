#include "windows/find/EntrySearch.h"

#include <algorithm>

#include "base/Attempt.h"
#include "base/CheckedMath.h"
#include "search/FieldScan.h"

namespace ordalyn {

namespace {

constexpr std::int32_t kNoDay = -1;

}  // namespace

std::int32_t EntrySearch::FindString(std::string_view strString, std::int32_t lngStartItem,
                                     std::int32_t lngColumnNo, std::int32_t lngWholeWord,
                                     std::int32_t lngSelectedDate) {
    std::int32_t start = lngStartItem;
    const std::int32_t last = around_.entries.EntrySources().ListCount();
    std::int32_t end = last;
    if (lngSelectedDate == 1) {
        const cLongArray& days = around_.panels.DayStarts();
        const std::int32_t day = around_.panels.SelectedDay();
        // A log without a dated entry, or one whose reading failed, leaves the chosen day behind
        // without its entries: nothing of it can be found.
        if (day < 0 || day >= days.ListCount()) {
            searchPosition_ = kNotFound;
            return kNotFound;
        }
        if (searchPosition_ == kNotFound)
            start = days.List(day);
        end = std::min(days.List(day + 1) - 1, last);
    }
    searchPosition_ = start;
    const cStringArray& fields =
        lngColumnNo != 0 ? around_.entries.EntryTargets() : around_.entries.EntrySources();
    std::int32_t behind = kNotFound;
    // Showing an entry can show another day; the entries stay.
    FieldScan(fields, strString, lngWholeWord == 1)
        .Run(
            std::max(CheckedAdd(end, 1) - start, 0),
            [start](std::int32_t number) { return start + number; },
            [&](std::int32_t number) {
                if (!ShowEntry(start + number))
                    return false;
                behind = start + number + 1;
                return true;
            });
    if (behind != kNotFound)
        return behind;
    searchPosition_ = kNotFound;
    return kNotFound;
}

bool EntrySearch::ShowEntry(std::int32_t entry) {
    if (around_.panels.SelectedDay() == DayPanels::kAllDates)
        return ShowRowOf(entry, 0);
    const std::int32_t day = DayOf(entry);
    if (day == kNoDay)
        return false;
    if (day != around_.panels.SelectedDay())
        around_.cboDate.SetListIndex(CheckedAdd(around_.panels.FirstDayItem(), day));
    return ShowRowOf(entry, around_.panels.DayStarts().List(day));
}

// Selects the entry's row. Without a filter the rows are the entries from the first one on, so its
// place is known; a row that a fill has not got to counts as shown, though nothing is selected.
bool EntrySearch::ShowRowOf(std::int32_t entry, std::int32_t firstEntry) {
    // The row is what was looked for: it stays found when there is no file to name in the title.
    const auto select = [this](std::int32_t row) {
        Attempt([&] { around_.panels.SelectEntryRow(row); });
    };
    if (around_.settings.FilterText.empty()) {
        const std::int32_t row = entry - firstEntry + 1;
        if (row <= around_.SourceListView.RowCount())
            select(row);
        return true;
    }
    // Rows are in the order of their entries. Selecting by row number selects in both panels and
    // brings title and status bar along, with a filter as without one.
    const toolkit::ListView::Tags& tags = around_.SourceListView.RowTags();
    const auto found = std::lower_bound(tags->begin(), tags->end(), entry);
    if (found == tags->end() || *found != entry)
        return false;
    select(static_cast<std::int32_t>(found - tags->begin()) + 1);
    return true;
}

// The day whose entries this one is among, or kNoDay.
std::int32_t EntrySearch::DayOf(std::int32_t entry) const {
    const cLongArray& days = around_.panels.DayStarts();
    // The last element is behind the last day.
    if (days.ListCount() < 1 || entry < days.List(0) || entry >= days.List(days.ListCount()))
        return kNoDay;
    std::int32_t first = 0;
    std::int32_t last = days.ListCount();
    while (last - first > 1) {
        const std::int32_t middle = first + (last - first) / 2;
        (days.List(middle) <= entry ? first : last) = middle;
    }
    return first;
}

}  // namespace ordalyn
