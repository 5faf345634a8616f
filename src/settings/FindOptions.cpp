#include "settings/FindOptions.h"

#include <vector>

#include "base/Attempt.h"
#include "base/Text.h"

namespace ordalyn {

namespace {

std::optional<std::int32_t> NumberIn(const std::vector<std::string>& parts, std::size_t part) {
    std::optional<std::int32_t> number;
    if (part < parts.size())
        Attempt([&] { number = ToLong(parts[part]); });
    return number;
}

std::optional<std::int32_t> ZeroOrOneIn(const std::vector<std::string>& parts, std::size_t part) {
    const std::optional<std::int32_t> number = NumberIn(parts, part);
    return number == 0 || number == 1 ? number : std::nullopt;
}

std::optional<bool> FlagIn(const std::vector<std::string>& parts, std::size_t part) {
    const std::optional<std::int32_t> number = ZeroOrOneIn(parts, part);
    return number ? std::optional(*number == 1) : std::nullopt;
}

}  // namespace

FindOptions ParseFindOptions(std::string_view entry) {
    const std::vector<std::string> parts = Split(entry, ',');
    return {NumberIn(parts, 0), ZeroOrOneIn(parts, 1), FlagIn(parts, 2), FlagIn(parts, 3)};
}

std::string FindOptionsText(const FindOptions& options) {
    return Join({std::to_string(options.historyItem.value_or(-1)),
                 std::to_string(options.columnNo.value_or(0)),
                 options.wholeWord.value_or(false) ? "1" : "0",
                 options.selectedDateOnly.value_or(false) ? "1" : "0"},
                ",");
}

}  // namespace ordalyn
