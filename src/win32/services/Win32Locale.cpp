#include "win32/services/Win32Locale.h"

#include <cmath>

#include "win32/common/WideText.h"
// after windows.h
#include <oleauto.h>

namespace ordalyn::win32 {

namespace {

// The day that the text means, at midnight.
std::optional<SYSTEMTIME> DayOf(std::string_view text) {
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
    return time;
}

std::optional<std::string> Format(const SYSTEMTIME& time) {
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

// What the user's region calls something, in its longest form some 80 characters.
std::wstring Word(LCTYPE what) {
    wchar_t text[100] = L"";
    GetLocaleInfoW(LOCALE_USER_DEFAULT, what, text, static_cast<int>(std::size(text)));
    return text;
}

// The system counts them from Monday.
unsigned FromMonday(std::chrono::weekday day) {
    return day.iso_encoding() - 1;
}

}  // namespace

std::optional<std::string> Win32Locale::LongDate(std::string_view text) {
    const std::optional<SYSTEMTIME> time = DayOf(text);
    return time ? Format(*time) : std::nullopt;
}

std::optional<std::chrono::year_month_day> Win32Locale::ReadDate(std::string_view text) {
    const std::optional<SYSTEMTIME> time = DayOf(text);
    if (!time)
        return std::nullopt;
    return std::chrono::year(time->wYear) / time->wMonth / time->wDay;
}

std::string Win32Locale::LongDateOf(std::chrono::year_month_day day) {
    SYSTEMTIME time{};
    time.wYear = static_cast<WORD>(static_cast<int>(day.year()));
    time.wMonth = static_cast<WORD>(static_cast<unsigned>(day.month()));
    time.wDay = static_cast<WORD>(static_cast<unsigned>(day.day()));
    return Format(time).value_or("");
}

std::chrono::weekday Win32Locale::FirstWeekday() {
    const std::wstring first = Word(LOCALE_IFIRSTDAYOFWEEK);
    const bool known = first.size() == 1 && first[0] >= L'0' && first[0] <= L'6';
    return std::chrono::Monday + std::chrono::days(known ? first[0] - L'0' : 0);
}

std::string Win32Locale::WeekdayName(std::chrono::weekday day) {
    constexpr LCTYPE kShortestOfMonday = 0x60;  // in headers for Windows Vista and later
    return FromWide(Word(kShortestOfMonday + FromMonday(day)));
}

std::string Win32Locale::MonthName(std::chrono::month month) {
    return FromWide(Word(LOCALE_SMONTHNAME1 + static_cast<unsigned>(month) - 1));
}

}  // namespace ordalyn::win32
