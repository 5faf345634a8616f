#include "history/EntryOrder.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace ordalyn {

namespace {

// The number in a name such as "totalcmd.12.log"; 0 when there is none. What is longer is a date,
// and those logs are read from the oldest on.
int NumberOfLog(std::string_view name) {
    constexpr std::size_t kMostDigits = 5;
    const std::size_t end = name.rfind('.');
    if (end == std::string_view::npos || end == 0)
        return 0;
    const std::size_t dot = name.rfind('.', end - 1);
    if (dot == std::string_view::npos)
        return 0;
    const std::string_view digits = name.substr(dot + 1, end - dot - 1);
    int number = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool whole = read.ptr == digits.data() + digits.size() && !digits.empty();
    return whole && digits.size() <= kMostDigits ? number : 0;
}

// The first entry behind this one that is of another file.
std::int32_t EndOfFile(const cStringArray& files, std::int32_t entry, std::int32_t count) {
    const TextPosition file = files.Position(entry);
    std::int32_t same = entry;
    std::int32_t other = count;
    while (same + 1 < other) {
        const std::int32_t middle = same + (other - same) / 2;
        (files.Position(middle) == file ? same : other) = middle;
    }
    return other;
}

}  // namespace

EntryOrder::EntryOrder(const EntryLists& entries) : count_(entries.EntrySources().ListCount() + 1) {
    const cStringArray& files = entries.EntryFiles();
    const std::int32_t named = std::min(files.ListCount() + 1, count_);
    for (std::int32_t entry = 0; entry < named;) {
        const std::int32_t end = EndOfFile(files, entry, named);
        runs_.push_back({0, entry, end - entry});
        entry = end;
    }
    // Lines that were appended to the last file have no name.
    if (runs_.empty() && count_ > 0)
        runs_.push_back({0, 0, count_});
    else if (!runs_.empty())
        runs_.back().count = count_ - runs_.back().entry;
    std::stable_sort(runs_.begin(), runs_.end(), [&](const Run& a, const Run& b) {
        return NumberOfLog(files.List(a.entry)) > NumberOfLog(files.List(b.entry));
    });
    std::int32_t position = 0;
    for (Run& run : runs_) {
        run.position = position;
        position += run.count;
    }
}

const EntryOrder::Run& EntryOrder::RunOf(std::int32_t position) const {
    const auto behind =
        std::upper_bound(runs_.begin(), runs_.end(), position,
                         [](std::int32_t wanted, const Run& run) { return wanted < run.position; });
    return *(behind - 1);
}

}  // namespace ordalyn
