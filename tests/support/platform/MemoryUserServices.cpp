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

std::optional<std::chrono::year_month_day> ParseDate(std::string_view text) {
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
    const auto date = [](int year, int month, int day) {
        return std::chrono::year(year) / month / day;
    };
    if (separator == '.')
        return date(third, second, first);
    if (separator == '-')
        return date(first, second, third);
    return date(third, first, second);
}

constexpr std::array kMonths = {"January",   "February", "March",    "April",
                                "May",       "June",     "July",     "August",
                                "September", "October",  "November", "December"};
constexpr std::array kDays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                              "Thursday", "Friday", "Saturday"};

}  // namespace

std::optional<std::chrono::year_month_day> MemoryLocale::ReadDate(std::string_view text) {
    ++readDates;
    const std::optional<std::chrono::year_month_day> date = ParseDate(TrimBlanks(text));
    if (!knowsDots && text.find('.') != std::string_view::npos)
        return std::nullopt;
    if (!date || date->year() < std::chrono::year(100) || !date->ok())
        return std::nullopt;
    return date;
}

std::optional<std::string> MemoryLocale::LongDate(std::string_view text) {
    const std::optional<std::chrono::year_month_day> date = ReadDate(text);
    return date ? std::optional(LongDateOf(*date)) : std::nullopt;
}

std::string MemoryLocale::LongDateOf(std::chrono::year_month_day day) {
    const std::chrono::weekday weekday{std::chrono::sys_days(day)};
    return std::string(kDays.at(weekday.c_encoding())) + ", " + MonthName(day.month()) + " " +
           std::to_string(static_cast<unsigned>(day.day())) + ", " +
           std::to_string(static_cast<int>(day.year()));
}

std::string MemoryLocale::WeekdayName(std::chrono::weekday day) {
    return std::string(kDays.at(day.c_encoding())).substr(0, 2);
}

std::string MemoryLocale::MonthName(std::chrono::month month) {
    return kMonths.at(static_cast<unsigned>(month) - 1);
}

void MemoryShell::Open(platform::WindowHandle owner, const platform::ShellTarget& target) {
    if (target.What() == platform::ShellTarget::Deed::Select)
        selected.push_back(target.Text());
    else if (target.What() == platform::ShellTarget::Deed::ShowPage)
        helpPages.emplace_back(owner, target.Text() + "::/" + target.Arguments());
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
