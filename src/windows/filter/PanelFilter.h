// PanelFilter narrows the rows that the panels show to the entries whose source or target contains
// a text, or does not.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "log/EntryLists.h"
#include "settings/mAppSpecific.h"
#include "toolkit/Form.h"
#include "windows/panels/DayPanels.h"

namespace ordalyn {

// What the filter dialog's boxes say.
struct FilterChoice {
    std::string text;  // as it stands in the box; rows are tested against FilterText
    bool target = false;
    bool doesNotContain = false;
};

// Which of these entries stay, in their order. `text` must not be empty. A target filter leaves no
// entry without a target, deliberately, whether it asks for a text or against it. Throws
// SubscriptOutOfRange for an entry outside the lists.
std::vector<std::int32_t> EntriesThatPass(const EntryLists& entries,
                                          const std::vector<std::int32_t>& tags,
                                          std::string_view text, bool target, bool doesNotContain);

class PanelFilter {
  public:
    struct Surroundings {
        const EntryLists& entries;
        DayPanels& panels;
        toolkit::ListView& SourceListView;
        toolkit::ListView& TargetListView;
        toolkit::StatusBar& StatusBar1;
        const mAppSpecific& settings;  // FilterText, TwoPanels
        std::function<std::string(std::int32_t)> strings;
        std::function<FilterChoice()> choice;
    };

    // The status bar's panel that the filter is written into.
    static constexpr int kStatusPanel = 3;

    explicit PanelFilter(Surroundings around) : around_(std::move(around)) {}

    // Removes the rows that FilterText does not let pass, from both panels. With blnPreShow the
    // panels are filled for their day first, so that rows which an earlier filter removed come
    // back. An empty FilterText removes nothing. The selection stays with its entry; when that is
    // removed, nothing is selected.
    void ApplyFilter(bool blnPreShow);
    // Writes the filter into the status bar.
    void ShowFilterInStatusBar();

  private:
    void RemoveRows(const FilterChoice& choice);

    Surroundings around_;
};

}  // namespace ordalyn
