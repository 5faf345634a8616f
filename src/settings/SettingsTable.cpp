#include "settings/SettingsTable.h"

#include <algorithm>

#include "base/Errors.h"
#include "hostconfig/OperationWords.h"
#include "hostconfig/TotalCommanderLocator.h"
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
    {"SkipMalformedLines", kOrdalynSection, Flag, &V::SkipMalformedLines, "0",
     "lines that no log has are passed over and counted, instead of ending the read", Nobody},
    {"FailedColor", kOrdalynSection, Color, &V::FailedColor, "-1",
     "text colour of failed operations; -1 a red that can be read on the background", Nobody},
    {"FollowLog", kOrdalynSection, Flag, &V::FollowLog, "0",
     "what is added to the log appears by itself", MainWindow},
};

// Entries that the rooms below read and write by keys of their own.
constexpr OtherEntry kLoggingID = {
    OperationWords::kLoggingIDKey, kOrdalynSection, "",
    "ids of the operation words in the filter dialog's menu, in their order; \"-\" is a separator",
    "the filter dialog, its own list when absent"};
constexpr OtherEntry kExemptSections = {
    cProfile::kExemptSectionsKey, kCommonSection, "",
    "sections of wincmd.ini that an alternate settings file does not take over",
    "the program's start, its own list when absent"};
constexpr OtherEntry kCommanderFolder = {TotalCommanderLocator::kFolderKey, kCommonSection, "",
                                         "the file manager's folder as it was found last",
                                         "the search for the file manager"};
constexpr OtherEntry kCommanderIni = {TotalCommanderLocator::kIniKey, kCommonSection, "",
                                      "the wincmd.ini that the user has chosen",
                                      "the search for the file manager"};

// "frmMain" keeps its placement under "Main".
const OtherEntry& EntryOfForm(std::string_view formName, std::string_view what) {
    const std::string key =
        std::string(formName.substr(std::min<std::size_t>(3, formName.size()))).append(what);
    for (const OtherEntry* other : OtherEntries()) {
        if (other->key == key)
            return *other;
    }
    throw SubscriptOutOfRange();
}

}  // namespace

namespace entry {

constexpr OtherEntry MainPosition = {
    "MainPosition", kOrdalynSection, "0,0,12030,8520",
    "left, top, width and height of the main window in twips; its last placement when normal",
    "the main window when it closes"};
constexpr OtherEntry MainWindowState = {
    "MainWindowState", kOrdalynSection, "0",
    "state of the main window: 0 normal, 1 minimised (starts normal), 2 maximised",
    "the main window when it closes"};
constexpr OtherEntry FiltersPosition = {"FiltersPosition", kOrdalynSection, "3495,7740,8910,795",
                                        "placement of the filter dialog, like MainPosition",
                                        "the filter dialog when it closes"};
constexpr OtherEntry CalendarPosition = {"CalendarPosition", kOrdalynSection, "1500,1500,9390,9000",
                                         "placement of the calendar, like MainPosition",
                                         "the calendar when it closes"};
constexpr OtherEntry HistoryPosition = {
    "HistoryPosition", kOrdalynSection, "900,1500,12000,6300",
    "placement of the window with a file's history, like MainPosition",
    "the window with a file's history when it closes"};
constexpr OtherEntry HistoryColumns = {
    "HistoryColumns", kOrdalynSection, "",
    "widths of the columns in the window with a file's history, and of their list, in twips",
    "the window with a file's history when it closes"};
constexpr OtherEntry FindOptions = {
    "FindOptions", kOrdalynSection, "0,0,0,0",
    "find dialog: place in the list of earlier texts (-1 none), column (0 source, 1 target), whole "
    "word, selected date only",
    "the find dialog when it is unloaded"};
constexpr OtherEntry ColumnsWidth = {
    "ColumnsWidth", kOrdalynSection, "884,10019,10890",
    "widths of the three columns in twips; when there are none the columns fit into the window",
    "the main window when it closes"};
constexpr OtherEntry ColumnHeadersPosition = {"ColumnHeadersPosition", kOrdalynSection, "1,2,3",
                                              "places of the three columns",
                                              "the main window when it closes"};
constexpr OtherEntry RecentFiles = {"RecentFiles",
                                    kOrdalynSection,
                                    "",
                                    "the log files opened last, latest first",
                                    "opening a log, clearing the list",
                                    kAsManyAsSet};
constexpr OtherEntry FindTexts = {
    "Find", kOrdalynSection, "", "earlier find texts, latest first", "the find dialog", 32};
constexpr OtherEntry FilterTexts = {
    "Filter", kOrdalynSection, "", "earlier filter texts, latest first", "the filter dialog", 64};

}  // namespace entry

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

const Setting& SettingOf(Setting::Place place) {
    return *std::find_if(std::begin(kSettings), std::end(kSettings),
                         [&](const Setting& setting) { return setting.place == place; });
}

std::span<const OtherEntry* const> OtherEntries() {
    static const OtherEntry* const all[] = {&entry::MainPosition,
                                            &entry::MainWindowState,
                                            &entry::FiltersPosition,
                                            &entry::CalendarPosition,
                                            &entry::HistoryPosition,
                                            &entry::HistoryColumns,
                                            &entry::FindOptions,
                                            &entry::ColumnsWidth,
                                            &entry::ColumnHeadersPosition,
                                            &entry::RecentFiles,
                                            &entry::FindTexts,
                                            &entry::FilterTexts,
                                            &kLoggingID,
                                            &kExemptSections,
                                            &kCommanderFolder,
                                            &kCommanderIni};
    return all;
}

const OtherEntry& PlacementEntry(std::string_view formName) {
    return EntryOfForm(formName, "Position");
}

const OtherEntry& WindowStateEntry(std::string_view formName) {
    return EntryOfForm(formName, "WindowState");
}

}  // namespace ordalyn
