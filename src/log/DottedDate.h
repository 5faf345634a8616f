// DottedDate: a date as it is written with dots. Wherever that is done the day comes first and the
// month next, so that it can be told on a system that does not write dates so: a log may come from
// another one.
#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace ordalyn {

// "4.3.2024" and "04.03.2024"; nothing for any other text, and for days that there are not.
std::optional<std::chrono::year_month_day> ReadDottedDate(std::string_view text);

}  // namespace ordalyn
