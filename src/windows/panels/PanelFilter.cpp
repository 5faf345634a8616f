#include "windows/panels/PanelFilter.h"

#include <memory>
#include <utility>
#include <vector>

#include "search/EntryFilter.h"
#include "search/FailedEntries.h"
#include "windows/panels/HiddenWhileFilled.h"
#include "windows/panels/RowOfEntry.h"

namespace ordalyn {

namespace {

void Replace(toolkit::ListView& list, const toolkit::ListView::Tags& kept) {
    const int row = list.SelectedRow();
    const int selected = row < 0 ? kNoRow : RowOfEntry(*kept, list.Tag(row));
    if (selected == kNoRow)
        list.ReplaceRows(kept, kNoRow);
    else
        list.ReplaceRows(kept, RowsOfEntries(*list.RowTags(), list.SelectedRows(), *kept),
                         selected);
}

}  // namespace

bool PanelFilter::RemoveRows() {
    if (IsOpen())
        return false;
    const bool twoPanels = settings_.TwoPanels != 0;
    const HiddenWhileFilled source(source_);
    const auto target = twoPanels ? std::make_unique<HiddenWhileFilled>(target_)
                                  : std::unique_ptr<HiddenWhileFilled>();
    const auto kept =
        std::make_shared<const std::vector<std::int32_t>>(Passing(*source_.RowTags()));
    Replace(source_, kept);
    if (twoPanels)
        Replace(target_, kept);
    return true;
}

std::vector<std::int32_t> PanelFilter::Passing(std::vector<std::int32_t> entries) const {
    if (!filter_.FilterText.empty())
        entries = EntriesThatPass(entries_, entries, filter_);
    if (failedOnly_)
        entries = EntriesThatFailed(entries_, entries, reader_());
    return entries;
}

}  // namespace ordalyn
