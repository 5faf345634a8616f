// PanelFilter takes the rows that the filter does not let pass out of the two panels.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "log/EntryLists.h"
#include "search/FilterChoice.h"
#include "settings/SettingsTable.h"
#include "toolkit/ListView.h"
#include "windows/panels/EntryRows.h"

namespace ordalyn {

class PanelFilter {
  public:
    PanelFilter(toolkit::ListView& source, toolkit::ListView& target, const EntryLists& entries,
                const FilterChoice& filter, const SettingsValues& settings, ReaderSource reader)
        : source_(source),
          target_(target),
          entries_(entries),
          filter_(filter),
          settings_(settings),
          reader_(std::move(reader)) {}

    // Only what failed passes from now on; nothing changes by that alone.
    void SetFailedOnly(bool only) { failedOnly_ = only; }
    bool FailedOnly() const { return failedOnly_; }
    // Whether everything passes.
    bool IsOpen() const { return filter_.FilterText.empty() && !failedOnly_; }

    // Returns whether anything is to be kept out; otherwise nothing happens. The selection stays
    // with its entry, and so do the others that are selected beside it; when that is removed,
    // nothing is selected. Throws SubscriptOutOfRange for a row whose entry is outside the lists.
    bool RemoveRows();
    // Those of these entries that pass.
    std::vector<std::int32_t> Passing(std::vector<std::int32_t> entries) const;

  private:
    toolkit::ListView& source_;
    toolkit::ListView& target_;
    const EntryLists& entries_;
    const FilterChoice& filter_;
    const SettingsValues& settings_;
    ReaderSource reader_;
    bool failedOnly_ = false;
};

}  // namespace ordalyn
