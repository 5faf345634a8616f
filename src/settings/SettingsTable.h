// The one table of the program's settings: each row is a setting with its place in the settings
// file, its type, its default, its correction after loading and who writes it. Loading, saving, the
// page docs/settings.md and the tests over all settings follow from it.
#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace ordalyn {

// The values that the program works with. They hold the table's defaults until they are loaded.
// Flags: 0 is off, any other value is on.
struct SettingsValues {
    std::int32_t GridLines = 0;
    std::int32_t FixedBorders = 0;
    std::int32_t FlatUserInterface = 0;
    std::int32_t LongDate = 0;
    std::int32_t TwoPanels = 0;
    std::int32_t ForegroundColor = 0;
    std::int32_t BackgroundColor = 0;
    std::int32_t FailedColor = 0;
    std::string FontName;
    std::int32_t FontScript = 0;
    std::int32_t FontSize = 0;
    std::int32_t FontStyle = 0;
    std::int32_t UseDefaultLanguage = 0;
    std::string LanguageFile;  // a full path, or the absent-value marker
    std::int32_t NumberOfRecentFiles = 0;
    std::int32_t UnExpandPaths = 0;
    std::int32_t VerticalPanels = 0;
    std::int32_t VSplitPosition = 0;
    std::int32_t HSplitPosition = 0;
    std::int32_t StatusBarVisible = 0;
    std::int32_t SkipMalformedLines = 0;
    std::int32_t FollowLog = 0;
};

// Bits of FontStyle.
enum FontStyleBits : std::int32_t {
    kFontBold = 1,
    kFontItalic = 2,
    kFontStrikethrough = 4,
    kFontUnderline = 8
};

enum class SettingType {
    Flag,    // written as 0 or 1
    Number,  // 32-bit whole number
    Color,   // 32-bit whole number; the top bit marks a system colour
    Text,
    Path  // text that is stored in its symbolic form
};

enum class SettingWriter {
    Options,      // SaveSettings, when the options dialog's changes are accepted
    MainWindow,   // the main window when it closes
    PanelLayout,  // the panel layout when the main window closes with two panels
    Nobody        // the user sets it by hand
};

struct Setting {
    using Place = std::variant<std::int32_t SettingsValues::*, std::string SettingsValues::*>;

    std::string_view key;
    std::string_view section;
    SettingType type;
    Place place;
    // Nothing (a null pointer) means that the setting is absent unless the file holds it.
    const char* fallback;
    std::string_view meaning;
    SettingWriter writer;
    // Correction after loading: values outside are moved to the nearer end.
    std::int32_t least = std::numeric_limits<std::int32_t>::min();
    std::int32_t most = std::numeric_limits<std::int32_t>::max();

    // The value in its written form; flags become 0 or 1 whatever they are in memory.
    std::string Written(const SettingsValues& values) const;
};

// All settings, in the order in which they are loaded and saved.
std::span<const Setting> AllSettings();

// The setting of a value: SettingOf(&SettingsValues::TwoPanels).
const Setting& SettingOf(Setting::Place place);

// What else the settings file holds: entries that are no single values. Those who own them read and
// write them by these rows.
struct OtherEntry {
    std::string_view key;  // for numbered entries what stands before the number
    std::string_view section;
    std::string_view fallback;  // empty: absent, or the owner has its own
    std::string_view meaning;
    std::string_view writer;
    // For numbered entries, which begin at 1, the largest number. kAsManyAsSet: a setting says it.
    std::int32_t numbers = 0;
};
inline constexpr std::int32_t kAsManyAsSet = -1;

namespace entry {
extern const OtherEntry MainPosition, MainWindowState, FiltersPosition, CalendarPosition,
    HistoryPosition, HistoryColumns, FindOptions, ColumnsWidth, ColumnHeadersPosition, RecentFiles,
    FindTexts, FilterTexts;
}

// All of them, those that the rooms below own included, for the page about the settings file.
std::span<const OtherEntry* const> OtherEntries();

// The placement and state entries of a form, by the form's name without its first three letters:
// "frmMain" has "MainPosition" and "MainWindowState". Throws SubscriptOutOfRange for a form
// without.
const OtherEntry& PlacementEntry(std::string_view formName);
const OtherEntry& WindowStateEntry(std::string_view formName);

}  // namespace ordalyn
