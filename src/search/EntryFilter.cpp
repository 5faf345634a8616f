#include "search/EntryFilter.h"

#include "search/FieldScan.h"

namespace ordalyn {

std::vector<std::int32_t> EntriesThatPass(const EntryLists& entries,
                                          const std::vector<std::int32_t>& candidates,
                                          const FilterChoice& filter) {
    const cStringArray& fields = filter.target ? entries.EntryTargets() : entries.EntrySources();
    const auto count = static_cast<std::int32_t>(candidates.size());
    const auto entryAt = [&](std::int32_t i) { return candidates[static_cast<std::size_t>(i)]; };
    std::vector<std::int32_t> kept;
    std::int32_t next = 0;
    const auto keepUpTo = [&](std::int32_t end) {
        for (; next < end; ++next)
            if (!filter.target || !fields.List(entryAt(next)).empty())
                kept.push_back(entryAt(next));
    };
    FieldScan(fields, filter.FilterText, false).Run(count, entryAt, [&](std::int32_t found) {
        if (filter.doesNotContain)
            keepUpTo(found);
        else
            kept.push_back(entryAt(found));
        next = found + 1;
        return false;
    });
    if (filter.doesNotContain)
        keepUpTo(count);
    return kept;
}

}  // namespace ordalyn
