#include "support/platform/MemoryUserServices.h"

#include <algorithm>
#include <array>

#include "base/Text.h"

namespace ordalyn::test {

void MemoryEnvironment::SetVariable(std::string_view name, std::string_view value) {
    if (value.empty())
        RemoveVariable(name);
    else
        variables_[FoldCase(name)] = std::string(value);
}

void MemoryEnvironment::RemoveVariable(std::string_view name) {
    variables_.erase(FoldCase(name));
}

std::string MemoryEnvironment::Expand(std::string_view text) {
    std::string expanded;
    while (!text.empty()) {
        const std::size_t open = text.find('%');
        const std::size_t close = open == std::string_view::npos ? open : text.find('%', open + 1);
        if (close == std::string_view::npos)
            break;
        expanded += text.substr(0, open);
        const auto found = variables_.find(FoldCase(text.substr(open + 1, close - open - 1)));
        // An unknown name stays as written, both percent signs included.
        expanded += found == variables_.end() ? text.substr(open, close - open + 1)
                                              : std::string_view(found->second);
        text.remove_prefix(close + 1);
    }
    return expanded.append(text);
}

std::string MemoryEnvironment::Variable(std::string_view name) {
    const auto found = variables_.find(FoldCase(name));
    return found == variables_.end() ? "" : found->second;
}

std::string MemoryEnvironment::SpecialFolder(std::string_view name) {
    const auto found =
        std::find_if(specialFolders.begin(), specialFolders.end(),
                     [&](const auto& folder) { return EqualsIgnoreCase(folder.first, name); });
    return found == specialFolders.end() ? "" : found->second;
}

std::string MemoryEnvironment::CommandLine() {
    return std::string(TrimBlanks(commandLine));
}

namespace {

struct Date {
    int year, month, day;
};

// Takes a number of one to `digits` digits off the text; -1 when there is none.
int TakeNumber(std::string_view& text, std::size_t digits) {
    int value = -1;
    for (; digits > 0 && !text.empty() && text[0] >= '0' && text[0] <= '9'; --digits) {
        value = (value < 0 ? 0 : value * 10) + (text[0] - '0');
        text.remove_prefix(1);
    }
    return value;
}

bool Take(std::string_view& text, char c) {
    if (text.empty() || text[0] != c)
        return false;
    text.remove_prefix(1);
    return true;
}

std::optional<Date> ParseDate(std::string_view text) {
    const int first = TakeNumber(text, 4);
    const char separator = text.empty() ? '\0' : text[0];
    if (separator != '.' && separator != '-' && separator != '/')
        return std::nullopt;
    Take(text, separator);
    const int second = TakeNumber(text, 2);
    if (!Take(text, separator))
        return std::nullopt;
    const int third = TakeNumber(text, 4);
    if (Take(text, ' ')) {
        const int hour = TakeNumber(text, 2);
        if (hour < 0 || hour > 23 || !Take(text, ':') || TakeNumber(text, 2) < 0)
            return std::nullopt;
        if (Take(text, ':') && TakeNumber(text, 2) < 0)
            return std::nullopt;
    }
    if (!text.empty())
        return std::nullopt;
    if (separator == '.')
        return Date{third, second, first};
    if (separator == '-')
        return Date{first, second, third};
    return Date{third, first, second};
}

int DaysInMonth(int year, int month) {
    static constexpr std::array<int, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leap ? 29 : kDays.at(static_cast<std::size_t>(month) - 1);
}

// 0 is Sunday.
int DayOfWeek(const Date& date) {
    static constexpr std::array<int, 12> kShift = {0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
    const int year = date.month < 3 ? date.year - 1 : date.year;
    return (year + year / 4 - year / 100 + year / 400 +
            kShift.at(static_cast<std::size_t>(date.month) - 1) + date.day) %
           7;
}

}  // namespace

std::optional<std::string> MemoryLocale::LongDate(std::string_view text) {
    static constexpr std::array kMonths = {"January",   "February", "March",    "April",
                                           "May",       "June",     "July",     "August",
                                           "September", "October",  "November", "December"};
    static constexpr std::array kDays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                         "Thursday", "Friday", "Saturday"};
    const std::optional<Date> date = ParseDate(TrimBlanks(text));
    if (!date || date->year < 100 || date->month < 1 || date->month > 12 || date->day < 1 ||
        date->day > DaysInMonth(date->year, date->month))
        return std::nullopt;
    return std::string(kDays.at(static_cast<std::size_t>(DayOfWeek(*date)))) + ", " +
           kMonths.at(static_cast<std::size_t>(date->month) - 1) + " " + std::to_string(date->day) +
           ", " + std::to_string(date->year);
}

void MemoryShell::Open(platform::WindowHandle owner, const platform::ShellTarget& target) {
    if (target.What() == platform::ShellTarget::Deed::Select)
        selected.push_back(target.Text());
    else if (!target.Arguments().empty())
        started.push_back(target.Text() + " " + target.Arguments());
    else
        opened.emplace_back(owner, target.Text());
}

bool MemoryClipboard::Clear() {
    ++clears;
    if (heldByAnother)
        return false;
    text.reset();
    return true;
}

bool MemoryClipboard::SetText(std::string_view newText) {
    if (heldByAnother)
        return false;
    text = std::string(newText);
    std::replace(text->begin(), text->end(), '\0', ' ');
    return true;
}

std::optional<std::string> MemoryDialogs::OpenFile(const OpenRequest& request) {
    openRequests.push_back(request);
    return onOpenFile ? onOpenFile(request) : std::nullopt;
}

std::optional<platform::Dialogs::SaveAnswer> MemoryDialogs::SaveFile(const OpenRequest& request) {
    saveRequests.push_back(request);
    return onSaveFile ? onSaveFile(request) : std::nullopt;
}

std::optional<std::uint32_t> MemoryDialogs::ChooseColor(const ColorRequest& request,
                                                        std::uint32_t (&customColors)[16]) {
    colorRequests.push_back(request);
    return onChooseColor ? onChooseColor(request, customColors) : std::nullopt;
}

std::optional<platform::Dialogs::FontAnswer> MemoryDialogs::ChooseFont(const FontRequest& request) {
    fontRequests.push_back(request);
    return onChooseFont ? onChooseFont(request) : std::nullopt;
}

}  // namespace ordalyn::test
