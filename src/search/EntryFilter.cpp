#include "search/EntryFilter.h"

#include <algorithm>
#include <string_view>

#include "base/Text.h"
#include "search/FieldScan.h"

namespace ordalyn {

namespace {

// Whether the entry with this source is of the chosen operation: of the words that fit behind the
// clock time the longest says which one it is.
bool IsChosenOperation(std::string_view source, const FilterChoice& filter) {
    constexpr std::string_view kBehindTime = ": ";
    const std::size_t time = source.find(kBehindTime);
    if (time == std::string_view::npos)
        return false;
    const std::string_view line = source.substr(time + kBehindTime.size());
    return StartsWithIgnoreCase(line, filter.operation) &&
           std::none_of(filter.operationWords.begin(), filter.operationWords.end(),
                        [&](const std::string& word) {
                            return word.size() > filter.operation.size() &&
                                   StartsWithIgnoreCase(line, word);
                        });
}

}  // namespace

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
    const bool anyText = filter.operation.empty() || filter.target;
    FieldScan(fields, filter.FilterText, false).Run(count, entryAt, [&](std::int32_t found) {
        if (!anyText && !IsChosenOperation(fields.List(entryAt(found)), filter))
            return false;
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
