// EntrySearch: looks through the log's entries for a text and has the entry that holds it shown. It
// searches the entries, not the rows: another day is shown when the entry is there, and an entry
// that the filter keeps from being shown is passed over.
#pragma once

#include <cstdint>
#include <string_view>

#include "log/DayIndex.h"
#include "log/EntryLists.h"
#include "search/SearchOptions.h"

namespace ordalyn {

// Where entries are shown.
class EntryDisplay {
  public:
    virtual ~EntryDisplay() = default;
    // The day that is shown, or kAllDates.
    virtual std::int32_t SelectedDay() const = 0;
    // Selects the entry's row, in another day when it is there; false when the entry has no row.
    virtual bool ShowEntry(std::int32_t entry) = 0;
};

class EntrySearch {
  public:
    static constexpr std::int32_t kNotFound = -1;

    EntrySearch(const EntryLists& entries, const DayIndex& days, EntryDisplay& display)
        : entries_(entries), days_(days), display_(display) {}

    const SearchOptions& Options() const { return options_; }
    // Another text, column or word rule lets the next search begin with the first entry again.
    // Deliberately not the restriction to the selected date: the search goes on where it is.
    void SetText(std::string_view text, std::int32_t historyItem);
    void SetColumn(std::int32_t columnNo);
    void SetWholeWord(bool wholeWord);
    void SetSelectedDateOnly(bool only) { options_.selectedDateOnly = only; }

    // Whether there is a text to search for.
    bool CanSearch() const { return !options_.text.empty(); }
    // The entry where the next search begins: the one behind the last that was found, or 0.
    std::int32_t StartItem() const { return startItem_; }
    void StartOver() { startItem_ = 0; }
    // Runs one search with the options and returns whether an entry was found. After a search
    // without success the next one begins with the first entry.
    bool FindNext();

    // Looks for the text, ignoring case, from this entry on: in the targets when lngColumnNo is not
    // zero, else in the sources. With lngWholeWord 1 there must be a blank, or an end of the field,
    // on both sides of it; no other character ends a word. Has the entry shown and returns the one
    // after it, where the next search begins, or kNotFound: a search does not go back to the first
    // entry.
    //
    // With lngSelectedDate 1 the search stays within the selected day. After a search that has
    // failed (or before any) it begins with that day's first entry; otherwise with lngStartItem,
    // which can lie behind the whole day when another one has been chosen meanwhile, and from which
    // entries before the day are passed over. A day that the log does not have (any more) holds
    // nothing: kNotFound.
    std::int32_t FindString(std::string_view strString, std::int32_t lngStartItem,
                            std::int32_t lngColumnNo, std::int32_t lngWholeWord,
                            std::int32_t lngSelectedDate);

    // Where the last search began; kNotFound after one that failed, and before the first.
    std::int32_t SearchPosition() const { return searchPosition_; }

  private:
    const EntryLists& entries_;
    const DayIndex& days_;
    EntryDisplay& display_;
    SearchOptions options_;
    std::int32_t startItem_ = 0;
    std::int32_t searchPosition_ = kNotFound;
};

}  // namespace ordalyn
