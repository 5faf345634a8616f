// PanelFilter takes the rows that the filter does not let pass out of the two panels.
#pragma once

#include <cstdint>
#include <vector>

#include "log/EntryLists.h"
#include "search/FilterChoice.h"
#include "settings/SettingsTable.h"
#include "toolkit/ListView.h"

namespace ordalyn {

class PanelFilter {
  public:
    PanelFilter(toolkit::ListView& source, toolkit::ListView& target, const EntryLists& entries,
                const FilterChoice& filter, const SettingsValues& settings)
        : source_(source),
          target_(target),
          entries_(entries),
          filter_(filter),
          settings_(settings) {}

    // Returns whether there is a filter; without one nothing happens. The selection stays with its
    // entry, and so do the others that are selected beside it; when that is removed, nothing is
    // selected. Throws SubscriptOutOfRange for a row whose
    // entry is outside the lists.
    bool RemoveRows();
    // Those of these entries that the filter lets pass: all when there is none.
    std::vector<std::int32_t> Passing(std::vector<std::int32_t> entries) const;

  private:
    toolkit::ListView& source_;
    toolkit::ListView& target_;
    const EntryLists& entries_;
    const FilterChoice& filter_;
    const SettingsValues& settings_;
};

}  // namespace ordalyn
