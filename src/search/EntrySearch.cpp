#include "search/EntrySearch.h"

#include <algorithm>

#include "base/CheckedMath.h"
#include "search/FieldScan.h"

namespace ordalyn {

void EntrySearch::SetText(std::string_view text, std::int32_t historyItem) {
    options_.text = text;
    options_.historyItem = historyItem;
    StartOver();
}

void EntrySearch::SetColumn(std::int32_t columnNo) {
    options_.ColumnNo = columnNo;
    StartOver();
}

void EntrySearch::SetWholeWord(bool wholeWord) {
    options_.wholeWord = wholeWord;
    StartOver();
}

bool EntrySearch::FindNext() {
    startItem_ = FindString(options_.text, startItem_, options_.ColumnNo,
                            options_.wholeWord ? 1 : 0, options_.selectedDateOnly ? 1 : 0);
    if (startItem_ != kNotFound)
        return true;
    StartOver();
    return false;
}

std::int32_t EntrySearch::FindString(std::string_view strString, std::int32_t lngStartItem,
                                     std::int32_t lngColumnNo, std::int32_t lngWholeWord,
                                     std::int32_t lngSelectedDate) {
    std::int32_t start = lngStartItem;
    const std::int32_t last = entries_.EntrySources().ListCount();
    std::int32_t end = last;
    if (lngSelectedDate == 1) {
        const std::int32_t day = display_.SelectedDay();
        // A log without a dated entry leaves the chosen day behind without its entries: nothing of
        // it can be found.
        if (day < 0 || day >= days_.DayCount()) {
            searchPosition_ = kNotFound;
            return kNotFound;
        }
        const std::int32_t first = days_.FirstEntryOf(day);
        // The last search may have stopped before the day, when another one was chosen since.
        start = searchPosition_ == kNotFound ? first : std::max(start, first);
        end = std::min(days_.FirstEntryOf(day + 1) - 1, last);
    }
    searchPosition_ = start;
    const cStringArray& fields =
        lngColumnNo != 0 ? entries_.EntryTargets() : entries_.EntrySources();
    std::int32_t behind = kNotFound;
    // Showing an entry can show another day; the entries stay.
    FieldScan(fields, strString, lngWholeWord == 1)
        .Run(
            std::max(CheckedAdd(end, 1) - start, 0),
            [start](std::int32_t number) { return start + number; },
            [&](std::int32_t number) {
                if (!display_.ShowEntry(start + number))
                    return false;
                behind = start + number + 1;
                return true;
            });
    if (behind == kNotFound)
        searchPosition_ = kNotFound;
    return behind;
}

}  // namespace ordalyn
