#include "settings/FindOptions.h"

#include <vector>

#include "base/Attempt.h"
#include "base/Text.h"

namespace ordalyn {

namespace {

std::optional<std::int32_t> LongAt(const std::vector<std::string>& parts, std::size_t index) {
    std::optional<std::int32_t> number;
    if (index < parts.size())
        Attempt([&] { number = ToLong(parts[index]); });
    return number;
}

std::optional<std::int32_t> ZeroOrOneAt(const std::vector<std::string>& parts, std::size_t index) {
    const std::optional<std::int32_t> number = LongAt(parts, index);
    return number == 0 || number == 1 ? number : std::nullopt;
}

std::optional<bool> FlagAt(const std::vector<std::string>& parts, std::size_t index) {
    const std::optional<std::int32_t> number = LongAt(parts, index);
    return number ? std::optional(*number != 0) : std::nullopt;
}

template <typename T>
std::string PartText(const std::optional<T>& value) {
    return value ? std::to_string(static_cast<std::int32_t>(*value)) : std::string();
}

}  // namespace

FindOptions ParseFindOptions(std::string_view text) {
    const std::vector<std::string> parts = Split(text, ',');
    return {.historyIndex = LongAt(parts, 0),
            .column = ZeroOrOneAt(parts, 1),
            .wholeWord = FlagAt(parts, 2),
            .selectedDateOnly = FlagAt(parts, 3)};
}

std::string FindOptionsText(const FindOptions& options) {
    return Join({PartText(options.historyIndex), PartText(options.column),
                 PartText(options.wholeWord), PartText(options.selectedDateOnly)},
                ",");
}

}  // namespace ordalyn
