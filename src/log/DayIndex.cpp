#include "log/DayIndex.h"

#include "base/CheckedMath.h"
#include "base/Text.h"

namespace ordalyn {

namespace {

constexpr std::int32_t kDayGrowthStep = 365;

}  // namespace

DayIndex::DayIndex() {
    starts_.InitialCount(kDayGrowthStep);
}

std::vector<std::string> DayIndex::Build(const cStringArray& dates) {
    starts_.Clear();
    std::vector<std::string> days;
    // Equal dates in a row are one text of the store, so nearly every entry is settled by its
    // position.
    TextPosition previous{};
    for (std::int32_t i = 0; i <= dates.ListCount(); ++i) {
        const TextPosition position = dates.Position(i);
        if (position == TextPosition{} || position == previous)
            continue;
        const std::string_view date = dates.List(i);
        previous = position;
        if (!days.empty() && EqualsIgnoreCase(date, days.back()))
            continue;
        starts_.AddItem(days.empty() ? 0 : i);
        days.emplace_back(date);
    }
    if (days.empty())
        return days;
    firstDayItem_ = days.size() > 1 ? 1 : 0;
    starts_.AddItem(CheckedAdd(dates.ListCount(), 1));
    starts_.FreeExtraItems();
    return days;
}

std::int32_t DayIndex::DayOf(std::int32_t entry) const {
    const std::int32_t count = DayCount();
    if (count < 1 || entry < FirstEntryOf(0) || entry >= FirstEntryOf(count))
        return kNoDay;
    std::int32_t first = 0;
    std::int32_t last = count;
    while (last - first > 1) {
        const std::int32_t middle = first + (last - first) / 2;
        (FirstEntryOf(middle) <= entry ? first : last) = middle;
    }
    return first;
}

}  // namespace ordalyn
