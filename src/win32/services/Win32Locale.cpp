#include "win32/services/Win32Locale.h"

#include <cmath>

#include "win32/common/WideText.h"
// after windows.h
#include <oleauto.h>

namespace ordalyn::win32 {

std::optional<std::string> Win32Locale::LongDate(std::string_view text) {
    std::wstring wide = ToWide(text);  // the call takes text that can be written
    DATE date = 0;
    if (FAILED(VarDateFromStr(wide.data(), LOCALE_USER_DEFAULT, 0, &date)))
        return std::nullopt;
    // Day 0 is what a clock time without a date is given.
    if (std::trunc(date) == 0)
        return std::nullopt;
    SYSTEMTIME time{};
    if (!VariantTimeToSystemTime(date, &time))
        return std::nullopt;
    const auto format = [&](wchar_t* buffer, int room) {
        return GetDateFormatW(LOCALE_USER_DEFAULT, DATE_LONGDATE, &time, nullptr, buffer, room);
    };
    const int room = format(nullptr, 0);
    if (room <= 0)
        return std::nullopt;  // a year that the calendar does not reach
    std::wstring formatted(static_cast<std::size_t>(room), L'\0');
    const int written = format(formatted.data(), room);
    if (written <= 0)
        return std::nullopt;
    formatted.resize(static_cast<std::size_t>(written) - 1);
    return FromWide(formatted);
}

}  // namespace ordalyn::win32
