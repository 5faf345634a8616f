// Dates in the user's ways.
#pragma once

#include "platform/Platform.h"

namespace ordalyn::win32 {

class Win32Locale : public platform::Locale {
  public:
    std::optional<std::string> LongDate(std::string_view text) override;
    std::optional<std::chrono::year_month_day> ReadDate(std::string_view text) override;
    std::string LongDateOf(std::chrono::year_month_day day) override;
    std::chrono::weekday FirstWeekday() override;
    std::string WeekdayName(std::chrono::weekday day) override;
    std::string MonthName(std::chrono::month month) override;
};

}  // namespace ordalyn::win32
