// What the user's session offers, in memory: environment, locale, shell, clipboard, dialogs.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/Platform.h"

namespace ordalyn::test {

class MemoryEnvironment : public platform::Environment {
  public:
    std::string commandLine;  // as written behind the program's name
    std::string programPath = "C:\\Ordalyn\\Ordalyn.exe";
    platform::LocalTime now = {2026, 11, 16, 0, 5, 3};
    // By their names in upper case.
    std::map<std::string, std::string> specialFolders = {
        {"PERSONAL", "C:\\Users\\me\\Documents"},
        {"APPDATA", "C:\\Users\\me\\AppData\\Roaming"},
        {"LOCAL_APPDATA", "C:\\Users\\me\\AppData\\Local"},
        {"COMMON_APPDATA", "C:\\ProgramData"},
        {"DESKTOP", "C:\\Users\\me\\Desktop"}};

    void RemoveVariable(std::string_view name);

    std::string Expand(std::string_view text) override;
    std::string Variable(std::string_view name) override;
    void SetVariable(std::string_view name, std::string_view value) override;
    std::string SpecialFolder(std::string_view name) override;
    std::string CommandLine() override;
    std::string ProgramPath() override { return programPath; }
    platform::LocalTime Now() override { return now; }

  private:
    std::map<std::string, std::string> variables_;  // by folded name
};

// Knows the dates 01.03.2024, 2024-03-01 and 3/1/2024 (each the first of March), with a clock time
// behind them or not; writes "Friday, March 1, 2024".
class MemoryLocale : public platform::Locale {
  public:
    std::chrono::weekday firstWeekday = std::chrono::Monday;
    int readDates = 0;  // how many texts were to be read
    bool knowsDots = true;
    std::optional<std::string> LongDate(std::string_view text) override;
    std::optional<std::chrono::year_month_day> ReadDate(std::string_view text) override;
    std::string LongDateOf(std::chrono::year_month_day day) override;
    std::chrono::weekday FirstWeekday() override { return firstWeekday; }
    std::string WeekdayName(std::chrono::weekday day) override;
    std::string MonthName(std::chrono::month month) override;
};

class MemoryShell : public platform::Shell {
  public:
    std::vector<std::pair<platform::WindowHandle, std::string>> opened;
    // Owner and page, as in "C:\\Ordalyn\\Readme.chm::/find.html".
    std::vector<std::pair<platform::WindowHandle, std::string>> helpPages;
    // Programs that were started, with their command lines, and paths that were to be selected.
    std::vector<std::string> started, selected;
    void Open(platform::WindowHandle owner, const platform::ShellTarget& target) override;
};

class MemoryClipboard : public platform::Clipboard {
  public:
    bool heldByAnother = false;
    std::optional<std::string> text;  // nothing while the clipboard is empty
    int clears = 0;                   // how often it was to be emptied
    bool Clear() override;
    bool SetText(std::string_view newText) override;
};

// Plays a user who cancels every dialog unless the test gives an answer. Every request is kept.
class MemoryDialogs : public platform::Dialogs {
  public:
    std::function<std::optional<std::string>(const OpenRequest&)> onOpenFile;
    std::function<std::optional<SaveAnswer>(const OpenRequest&)> onSaveFile;
    std::function<std::optional<std::uint32_t>(const ColorRequest&, std::uint32_t (&)[16])>
        onChooseColor;
    std::function<std::optional<FontAnswer>(const FontRequest&)> onChooseFont;
    int libraryMajorVersion = 6;
    std::vector<OpenRequest> openRequests;
    std::vector<OpenRequest> saveRequests;
    std::vector<ColorRequest> colorRequests;
    std::vector<FontRequest> fontRequests;

    std::optional<std::string> OpenFile(const OpenRequest& request) override;
    std::optional<SaveAnswer> SaveFile(const OpenRequest& request) override;
    std::optional<std::uint32_t> ChooseColor(const ColorRequest& request,
                                             std::uint32_t (&customColors)[16]) override;
    std::optional<FontAnswer> ChooseFont(const FontRequest& request) override;
    int LibraryMajorVersion() override { return libraryMajorVersion; }
};

}  // namespace ordalyn::test
