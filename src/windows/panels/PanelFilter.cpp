#include "windows/panels/PanelFilter.h"

#include <memory>
#include <utility>
#include <vector>

#include "search/EntryFilter.h"
#include "windows/panels/RowOfEntry.h"

namespace ordalyn {

namespace {

// Not repainted while its rows go; shown again whatever happens.
class Hidden {
  public:
    explicit Hidden(toolkit::Control& control) : control_(control) { control_.SetVisible(false); }
    ~Hidden() { control_.SetVisible(true); }
    Hidden(const Hidden&) = delete;
    Hidden& operator=(const Hidden&) = delete;

  private:
    toolkit::Control& control_;
};

void Replace(toolkit::ListView& list, const toolkit::ListView::Tags& kept) {
    const int row = list.SelectedRow();
    const int selected = row < 0 ? kNoRow : RowOfEntry(*kept, list.Tag(row));
    list.ReplaceRows(kept, selected);
}

}  // namespace

bool PanelFilter::RemoveRows() {
    if (filter_.FilterText.empty())
        return false;
    const bool twoPanels = settings_.TwoPanels != 0;
    const Hidden source(source_);
    const auto target = twoPanels ? std::make_unique<Hidden>(target_) : std::unique_ptr<Hidden>();
    const auto kept = std::make_shared<const std::vector<std::int32_t>>(
        EntriesThatPass(entries_, *source_.RowTags(), filter_));
    Replace(source_, kept);
    if (twoPanels)
        Replace(target_, kept);
    return true;
}

}  // namespace ordalyn
