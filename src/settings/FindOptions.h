// The entry "FindOptions" of the settings file: what the find dialog keeps between runs.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ordalyn {

// A part of the entry that is missing or no such value is absent here.
struct FindOptions {
    std::optional<std::int32_t> historyItem;  // -1: none of the earlier texts
    std::optional<std::int32_t> columnNo;     // 0 or 1
    std::optional<bool> wholeWord;
    std::optional<bool> selectedDateOnly;
};

FindOptions ParseFindOptions(std::string_view entry);
// Absent parts are written as they are when nothing was ever chosen.
std::string FindOptionsText(const FindOptions& options);

}  // namespace ordalyn
