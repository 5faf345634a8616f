// EntrySearch: looks through the log's entries for a text and takes the panels to the entry that
// holds it. It searches the entries, not the rows: another day is shown when the entry is there,
// and an entry that the filter keeps from being shown is passed over.
#pragma once

#include <cstdint>
#include <string_view>

#include "log/EntryLists.h"
#include "settings/mAppSpecific.h"
#include "toolkit/Form.h"
#include "windows/panels/DayPanels.h"

namespace ordalyn {

class EntrySearch {
  public:
    struct Surroundings {
        const EntryLists& entries;
        DayPanels& panels;
        toolkit::ComboBox& cboDate;
        toolkit::ListView& SourceListView;
        const mAppSpecific& settings;  // FilterText
    };

    static constexpr std::int32_t kNotFound = -1;

    explicit EntrySearch(const Surroundings& around) : around_(around) {}

    // Looks for the text, ignoring case, from this entry on: in the targets when lngColumnNo is not
    // zero, else in the sources. With lngWholeWord 1 there must be a blank, or an end of the field,
    // on both sides of it; no other character ends a word. Selects the entry's row in both panels
    // and answers the entry after it, where the next search begins, or kNotFound: a search does not
    // go back to the first entry.
    //
    // With lngSelectedDate 1 the search ends with the selected day. It begins with that day's first
    // entry only after a search that has failed (or before any); otherwise with lngStartItem, even
    // when another day has been chosen meanwhile. A day that the log does not have (any more) holds
    // nothing: kNotFound.
    std::int32_t FindString(std::string_view strString, std::int32_t lngStartItem,
                            std::int32_t lngColumnNo, std::int32_t lngWholeWord,
                            std::int32_t lngSelectedDate);

    // Where the last search began; kNotFound after one that failed, and before the first.
    std::int32_t SearchPosition() const { return searchPosition_; }

  private:
    bool ShowEntry(std::int32_t entry);
    bool ShowRowOf(std::int32_t entry, std::int32_t firstEntry);
    std::int32_t DayOf(std::int32_t entry) const;

    Surroundings around_;
    std::int32_t searchPosition_ = kNotFound;
};

}  // namespace ordalyn
