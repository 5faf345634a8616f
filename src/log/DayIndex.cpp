#include "log/DayIndex.h"

#include "base/CheckedMath.h"
#include "base/Text.h"

namespace ordalyn {

namespace {

constexpr std::int32_t kDayGrowthStep = 365;

// The first entry with a date of those from `first` up to `end`, or `end`.
std::int32_t FirstDate(const cStringArray& dates, std::int32_t first, std::int32_t end) {
    while (first < end && dates.Position(first) == TextPosition{})
        ++first;
    return first;
}

}  // namespace

DayIndex::DayIndex() {
    starts_.InitialCount(kDayGrowthStep);
}

std::vector<std::string> DayIndex::Build(const cStringArray& dates) {
    starts_.Clear();
    std::vector<std::string> days;
    AddDays(dates, 0, days);
    return days;
}

std::vector<std::string> DayIndex::Extend(const cStringArray& dates, std::int32_t firstNew) {
    const std::int32_t lastDay = DayOf(firstNew - 1);
    // The first day can begin with comments; every other one begins with its date.
    const std::int32_t firstDate = FirstDate(dates, 0, firstNew);
    if (lastDay == kNoDay || firstDate == firstNew)
        return Build(dates);
    std::vector<std::int32_t> starts;
    std::vector<std::string> days;
    for (std::int32_t day = 0; day <= lastDay; ++day) {
        starts.push_back(FirstEntryOf(day));
        days.emplace_back(dates.List(day == 0 ? firstDate : starts.back()));
    }
    starts_.Clear();
    for (const std::int32_t start : starts)
        starts_.AddItem(start);
    AddDays(dates, firstNew, days);
    return days;
}

// Adds the days that begin with `first` or behind it to the index and to their dates, then the end.
void DayIndex::AddDays(const cStringArray& dates, std::int32_t first,
                       std::vector<std::string>& days) {
    // Equal dates in a row are one text of the store, so nearly every entry is settled by its
    // position.
    TextPosition previous{};
    for (std::int32_t i = first; i <= dates.ListCount(); ++i) {
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
        return;
    firstDayItem_ = days.size() > 1 ? 1 : 0;
    starts_.AddItem(CheckedAdd(dates.ListCount(), 1));
    starts_.FreeExtraItems();
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
