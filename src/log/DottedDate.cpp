#include "log/DottedDate.h"

#include <cstddef>

namespace ordalyn {

namespace {

// Takes a number of so many digits off the text; nothing when there is none.
std::optional<int> TakeNumber(std::string_view& text, std::size_t least, std::size_t most) {
    int number = 0;
    std::size_t digits = 0;
    for (; digits < most && digits < text.size() && text[digits] >= '0' && text[digits] <= '9';
         ++digits)
        number = number * 10 + (text[digits] - '0');
    text.remove_prefix(digits);
    return digits >= least ? std::optional(number) : std::nullopt;
}

bool TakeDot(std::string_view& text) {
    if (!text.starts_with('.'))
        return false;
    text.remove_prefix(1);
    return true;
}

}  // namespace

std::optional<std::chrono::year_month_day> ReadDottedDate(std::string_view text) {
    const std::optional<int> day = TakeNumber(text, 1, 2);
    if (!day || !TakeDot(text))
        return std::nullopt;
    const std::optional<int> month = TakeNumber(text, 1, 2);
    if (!month || !TakeDot(text))
        return std::nullopt;
    const std::optional<int> year = TakeNumber(text, 4, 4);
    if (!year || !text.empty())
        return std::nullopt;
    const std::chrono::year_month_day date = std::chrono::year(*year) / *month / *day;
    return date.ok() ? std::optional(date) : std::nullopt;
}

}  // namespace ordalyn
