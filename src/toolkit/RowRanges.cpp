#include "toolkit/RowRanges.h"

#include <algorithm>

namespace ordalyn::toolkit {

int RowRanges::Count() const {
    int count = 0;
    for (const Range& range : ranges_)
        count += range.end - range.first;
    return count;
}

bool RowRanges::Contains(int row) const {
    const auto behind =
        std::upper_bound(ranges_.begin(), ranges_.end(), row,
                         [](int wanted, const Range& range) { return wanted < range.first; });
    return behind != ranges_.begin() && row < std::prev(behind)->end;
}

int RowRanges::From(int row) const {
    const auto range =
        std::lower_bound(ranges_.begin(), ranges_.end(), row,
                         [](const Range& each, int wanted) { return each.end <= wanted; });
    return range == ranges_.end() ? -1 : std::max(range->first, row);
}

int RowRanges::Nearest(int row) const {
    const int below = From(row);
    // Behind the last range that ends above the row.
    const auto range =
        std::lower_bound(ranges_.begin(), ranges_.end(), row,
                         [](const Range& each, int wanted) { return each.end <= wanted; });
    if (range == ranges_.begin())
        return below;
    const int above = std::prev(range)->end - 1;
    return below < 0 || row - above < below - row ? above : below;
}

void RowRanges::Add(int first, int end) {
    if (first >= end)
        return;
    // Those that it touches become one with it.
    const auto from =
        std::lower_bound(ranges_.begin(), ranges_.end(), first,
                         [](const Range& range, int wanted) { return range.end < wanted; });
    auto to = from;
    for (; to != ranges_.end() && to->first <= end; ++to) {
        first = std::min(first, to->first);
        end = std::max(end, to->end);
    }
    ranges_.insert(ranges_.erase(from, to), {first, end});
}

void RowRanges::Remove(int first, int end) {
    if (first >= end)
        return;
    const auto from =
        std::lower_bound(ranges_.begin(), ranges_.end(), first,
                         [](const Range& range, int wanted) { return range.end <= wanted; });
    std::vector<Range> left;
    auto to = from;
    for (; to != ranges_.end() && to->first < end; ++to) {
        if (to->first < first)
            left.push_back({to->first, first});
        if (to->end > end)
            left.push_back({end, to->end});
    }
    ranges_.insert(ranges_.erase(from, to), left.begin(), left.end());
}

}  // namespace ordalyn::toolkit
