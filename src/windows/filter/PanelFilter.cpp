#include "windows/filter/PanelFilter.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "base/Attempt.h"
#include "search/FieldScan.h"

namespace ordalyn {

namespace {

constexpr std::int32_t kFilterText = 4032;
// Every text of the status bar ends in two blanks.
constexpr std::string_view kStatusEnd = "  ";

using Tags = std::vector<std::int32_t>;

// The row of an entry, or -1. Rows are in the order of their entries.
int RowOf(const Tags& tags, std::int32_t entry) {
    const auto found = std::lower_bound(tags.begin(), tags.end(), entry);
    return found == tags.end() || *found != entry ? -1 : static_cast<int>(found - tags.begin());
}

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
    const int selected = row < 0 ? -1 : RowOf(*kept, list.Tag(row));
    list.ReplaceRows(kept, selected);
}

}  // namespace

std::vector<std::int32_t> EntriesThatPass(const EntryLists& entries,
                                          const std::vector<std::int32_t>& tags,
                                          std::string_view text, bool target, bool doesNotContain) {
    const cStringArray& fields = target ? entries.EntryTargets() : entries.EntrySources();
    const auto count = static_cast<std::int32_t>(tags.size());
    const auto entryAt = [&tags](std::int32_t row) { return tags[static_cast<std::size_t>(row)]; };
    std::vector<std::int32_t> kept;
    std::int32_t next = 0;
    const auto keepUpTo = [&](std::int32_t end) {
        for (; next < end; ++next)
            if (!target || !fields.List(entryAt(next)).empty())
                kept.push_back(entryAt(next));
    };
    FieldScan(fields, text, false).Run(count, entryAt, [&](std::int32_t row) {
        if (doesNotContain)
            keepUpTo(row);
        else
            kept.push_back(entryAt(row));
        next = row + 1;
        return false;
    });
    if (doesNotContain)
        keepUpTo(count);
    return kept;
}

void PanelFilter::ShowFilterInStatusBar() {
    std::string text = around_.strings(kFilterText) + around_.choice().text;
    text += kStatusEnd;
    around_.StatusBar1.SetPanelText(kStatusPanel, text);
}

void PanelFilter::ApplyFilter(bool blnPreShow) {
    ShowFilterInStatusBar();
    // A fill that stops has shown what there is; that is filtered.
    if (blnPreShow)
        Attempt([this] { around_.panels.RefillPanels(); });
    if (around_.settings.FilterText.empty())
        return;
    RemoveRows(around_.choice());
    around_.panels.ShowOperationCount();
}

void PanelFilter::RemoveRows(const FilterChoice& choice) {
    const bool twoPanels = around_.settings.TwoPanels != 0;
    const Hidden source(around_.SourceListView);
    const auto target =
        twoPanels ? std::make_unique<Hidden>(around_.TargetListView) : std::unique_ptr<Hidden>();
    const auto kept = std::make_shared<const Tags>(
        EntriesThatPass(around_.entries, *around_.SourceListView.RowTags(),
                        around_.settings.FilterText, choice.target, choice.doesNotContain));
    Replace(around_.SourceListView, kept);
    if (twoPanels)
        Replace(around_.TargetListView, kept);
}

}  // namespace ordalyn
