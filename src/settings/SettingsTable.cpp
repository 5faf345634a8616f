#include "settings/SettingsTable.h"

#include <algorithm>

#include "base/Errors.h"
#include "base/Text.h"
#include "hostconfig/cProfile.h"

namespace ordalyn {

namespace {

using V = SettingsValues;
using enum SettingType;
using enum SettingWriter;

constexpr std::int32_t kNoMost = std::numeric_limits<std::int32_t>::max();

constexpr Setting kSettings[] = {
    {"GridLines", kOrdalynSection, Flag, &V::GridLines, "0", "grid lines in both panels", Options},
    {"FixedBorders", kOrdalynSection, Flag, &V::FixedBorders, "1",
     "panels drawn with fixed (sunken) borders", Options},
    {"FlatUserInterface", kOrdalynSection, Flag, &V::FlatUserInterface, "0",
     "flat look of the window", Options},
    {"LongDate", kOrdalynSection, Flag, &V::LongDate, "0", "dates shown in the long format",
     Options},
    {"TwoPanels", kOrdalynSection, Flag, &V::TwoPanels, "1", "second (target) panel shown",
     MainWindow},
    // The system's colours for window text and window background, 0x80000008 and 0x80000005.
    {"ForegroundColor", kOrdalynSection, Color, &V::ForegroundColor, "-2147483640",
     "panel text colour", Options},
    {"BackgroundColor", kOrdalynSection, Color, &V::BackgroundColor, "-2147483643",
     "panel background colour", Options},
    {"FontName", kOrdalynSection, Text, &V::FontName, "MS Sans Serif", "panel font face", Options},
    {"FontScript", kOrdalynSection, Number, &V::FontScript, "1", "font character set number",
     Options},
    {"FontSize", kOrdalynSection, Number, &V::FontSize, "8", "font size in points", Options},
    {"FontStyle", kOrdalynSection, Number, &V::FontStyle, "0",
     "sum of 1 bold, 2 italic, 4 strikethrough, 8 underline", Options},
    {"UseDefaultLanguage", kOrdalynSection, Flag, &V::UseDefaultLanguage, "1",
     "built-in English interface instead of a language file; set when that file is missing",
     Options},
    {"LanguageFile", kCommonSection, Path, &V::LanguageFile, nullptr,
     "path of the interface language file", Options},
    {"NumberOfRecentFiles", kCommonSection, Number, &V::NumberOfRecentFiles, "9",
     "length of the recent files list", Options, 2, 16},
    {"UnExpandPaths", kCommonSection, Number, &V::UnExpandPaths, "3",
     "folders that are stored by a symbolic name: sum of 1 the program's, 2 the file manager's",
     Nobody, 0, 3},
    {"VerticalPanels", kOrdalynSection, Flag, &V::VerticalPanels, "0",
     "panels side by side instead of one above the other", PanelLayout},
    {"VSplitPosition", kOrdalynSection, Number, &V::VSplitPosition, "4000",
     "splitter position for side-by-side panels, in twips", PanelLayout, 0, kNoMost},
    {"HSplitPosition", kOrdalynSection, Number, &V::HSplitPosition, "4000",
     "splitter position for stacked panels, in twips", PanelLayout, 0, kNoMost},
    {"StatusBarVisible", kOrdalynSection, Flag, &V::StatusBarVisible, "1", "status bar shown",
     MainWindow},
};

constexpr OtherEntry kOtherEntries[] = {
    {"MainPosition", kOrdalynSection, kMainPlacement,
     "left, top, width and height of the main window in twips; its last placement when normal",
     "the main window when it closes"},
    {"MainWindowState", kOrdalynSection, "0",
     "state of the main window: 0 normal, 1 minimised (starts normal), 2 maximised",
     "the main window when it closes"},
    {"FiltersPosition", kOrdalynSection, kFiltersPlacement,
     "placement of the filter dialog, like MainPosition", "the filter dialog when it closes"},
    {"FindOptions", kOrdalynSection, kFindOptionsDefault,
     "find dialog: place in the list of earlier texts (-1 none), column (0 source, 1 target), "
     "whole word, selected date only",
     "the find dialog when it is unloaded"},
    {"ColumnsWidth", kOrdalynSection, "884,10019,10890", "widths of the three columns in twips",
     "the main window when it closes"},
    {"ColumnHeadersPosition", kOrdalynSection, "1,2,3", "places of the three columns",
     "the main window when it closes"},
    {"RecentFiles1, RecentFiles2, ...", kOrdalynSection, "",
     "the log files opened last, latest first", "opening a log, clearing the list"},
    {"Find1 to Find32", kOrdalynSection, "", "earlier find texts, latest first", "the find dialog"},
    {"Filter1 to Filter64", kOrdalynSection, "", "earlier filter texts, latest first",
     "the filter dialog"},
    {"LoggingID", kOrdalynSection, "",
     "ids of the operation words in the filter dialog's menu, in their order; \"-\" is a separator",
     "the filter dialog, its own list when absent"},
    {"TCSectionsNotRedirectedByDefault", kCommonSection, "",
     "sections of wincmd.ini that an alternate settings file does not take over",
     "the program's start, its own list when absent"},
    {"TCInstallDir", kCommonSection, "", "the file manager's folder as it was found last",
     "the search for the file manager"},
    {"UserDefinedWincmd", kCommonSection, "", "the wincmd.ini that the user has chosen",
     "the search for the file manager"},
};

}  // namespace

std::string Setting::Written(const SettingsValues& values) const {
    if (const auto* text = std::get_if<std::string SettingsValues::*>(&place))
        return values.*(*text);
    const std::int32_t value = values.*std::get<std::int32_t SettingsValues::*>(place);
    if (type == SettingType::Flag)
        return value != 0 ? "1" : "0";
    return std::to_string(value);
}

std::span<const Setting> AllSettings() {
    return kSettings;
}

const Setting& SettingByKey(std::string_view key) {
    const auto* found =
        std::find_if(std::begin(kSettings), std::end(kSettings),
                     [&](const Setting& setting) { return EqualsIgnoreCase(setting.key, key); });
    if (found == std::end(kSettings))
        throw SubscriptOutOfRange();
    return *found;
}

std::span<const OtherEntry> OtherEntries() {
    return kOtherEntries;
}

}  // namespace ordalyn
