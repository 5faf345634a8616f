// Loading and saving of the settings, over the whole table.
#include <algorithm>

#include "base/Errors.h"
#include "support/settings/SettingsFixture.h"

namespace ordalyn::test {
namespace {

// The same table once more, written down independently: what the file holds and means.
struct Row {
    const char* key;
    const char* section;
    bool isText;
    std::int32_t value;  // default
    bool saved;          // by SaveSettings
};
constexpr Row kRows[] = {
    {"GridLines", "Ordalyn", false, 0, true},
    {"FixedBorders", "Ordalyn", false, 1, true},
    {"FlatUserInterface", "Ordalyn", false, 0, true},
    {"LongDate", "Ordalyn", false, 0, true},
    {"TwoPanels", "Ordalyn", false, 1, false},
    {"ForegroundColor", "Ordalyn", false, -2147483640, true},
    {"BackgroundColor", "Ordalyn", false, -2147483643, true},
    {"FontName", "Ordalyn", true, 0, true},
    {"FontScript", "Ordalyn", false, 1, true},
    {"FontSize", "Ordalyn", false, 8, true},
    {"FontStyle", "Ordalyn", false, 0, true},
    {"UseDefaultLanguage", "Ordalyn", false, 1, true},
    {"LanguageFile", "Common", true, 0, true},
    {"NumberOfRecentFiles", "Common", false, 9, true},
    {"UnExpandPaths", "Common", false, 3, false},
    {"VerticalPanels", "Ordalyn", false, 0, false},
    {"VSplitPosition", "Ordalyn", false, 4000, false},
    {"HSplitPosition", "Ordalyn", false, 4000, false},
    {"StatusBarVisible", "Ordalyn", false, 1, false},
    {"SkipMalformedLines", "Ordalyn", false, 0, false},
    {"FailedColor", "Ordalyn", false, -1, false},
    {"FollowLog", "Ordalyn", false, 0, false},
};

const Setting& RowOf(std::string_view key) {
    return *std::find_if(AllSettings().begin(), AllSettings().end(),
                         [&](const Setting& setting) { return setting.key == key; });
}

class LoadSettings : public SettingsFixture {
  protected:
    std::int32_t Number(std::string_view key) const {
        return settings.*std::get<std::int32_t SettingsValues::*>(RowOf(key).place);
    }
    void ExpectDefaults() {
        for (const Row& row : kRows) {
            if (row.isText)
                continue;
            EXPECT_EQ(Number(row.key), row.value) << row.key;
        }
        EXPECT_EQ(settings.FontName, "MS Sans Serif");
        EXPECT_EQ(settings.LanguageFile, common.NoValueMarker());
    }
};
class SaveSettings : public LoadSettings {};

TEST(SettingsTable, HasTheseRowsInThisOrder) {
    ASSERT_EQ(AllSettings().size(), std::size(kRows));
    for (std::size_t i = 0; i < std::size(kRows); ++i) {
        EXPECT_EQ(AllSettings()[i].key, kRows[i].key);
        EXPECT_EQ(AllSettings()[i].section, kRows[i].section) << kRows[i].key;
    }
}

TEST(SettingsTable, ASettingIsFoundByItsValue) {
    EXPECT_EQ(SettingOf(&SettingsValues::GridLines).key, "GridLines");
    EXPECT_EQ(SettingOf(&SettingsValues::LanguageFile).key, "LanguageFile");
    for (const Setting& setting : AllSettings())
        EXPECT_EQ(&SettingOf(setting.place), &setting) << setting.key;
}

TEST(SettingsTable, AFormsEntriesAreFoundByItsName) {
    EXPECT_EQ(&PlacementEntry("frmMain"), &entry::MainPosition);
    EXPECT_EQ(&WindowStateEntry("frmMain"), &entry::MainWindowState);
    EXPECT_EQ(&PlacementEntry("frmFilters"), &entry::FiltersPosition);
    EXPECT_EQ(&PlacementEntry("frmCalendar"), &entry::CalendarPosition);
    EXPECT_THROW(WindowStateEntry("frmFilters"), SubscriptOutOfRange);
    EXPECT_THROW(PlacementEntry("frmAbout"), SubscriptOutOfRange);
    EXPECT_THROW(PlacementEntry("fr"), SubscriptOutOfRange);
}

TEST_F(LoadSettings, ValuesAreTheDefaultsBeforeLoading) {
    ExpectDefaults();
    EXPECT_EQ(settings.OptionsPage, 0);
}

TEST_F(LoadSettings, AMissingFileGivesTheDefaults) {
    system.files.Delete(kOwnFile);
    settings.GridLines = 1;
    settings.FontName = "Arial";
    settings.VSplitPosition = 7;
    settings.LoadSettings();
    ExpectDefaults();
}

TEST_F(LoadSettings, EveryKeyIsReadFromItsSection) {
    for (const Row& row : kRows)
        Put(row.section, row.key, row.isText ? std::string("text of ") + row.key : "2");
    settings.LoadSettings();
    for (const Row& row : kRows) {
        if (row.isText)
            continue;
        EXPECT_EQ(Number(row.key), 2) << row.key;
    }
    EXPECT_EQ(settings.FontName, "text of FontName");
    EXPECT_EQ(settings.LanguageFile, "text of LanguageFile");
}

TEST_F(LoadSettings, AnEmptyEntryOfANumberIsZero) {
    for (const Row& row : kRows)
        Put(row.section, row.key, "");
    settings.LoadSettings();
    for (const Row& row : kRows) {
        if (row.isText)
            continue;
        // The shortest list of recent files has two entries.
        const bool shortest = std::string_view(row.key) == "NumberOfRecentFiles";
        EXPECT_EQ(Number(row.key), shortest ? 2 : 0) << row.key;
    }
    EXPECT_EQ(settings.FontName, "");
    EXPECT_EQ(settings.LanguageFile, "");
}

TEST_F(LoadSettings, TextInANumberStopsLoadingThere) {
    for (std::size_t bad = 0; bad < std::size(kRows); ++bad) {
        if (kRows[bad].isText)
            continue;
        SCOPED_TRACE(kRows[bad].key);
        system.files.Delete(kOwnFile);
        for (std::size_t i = 0; i < std::size(kRows); ++i)
            Put(kRows[i].section, kRows[i].key, i == bad ? "twelve" : "3");
        mAppSpecific fresh(profile, common);
        EXPECT_THROW(fresh.LoadSettings(), TypeMismatch);
        for (std::size_t i = 0; i < std::size(kRows); ++i) {
            if (kRows[i].isText)
                continue;
            const auto place = std::get<std::int32_t SettingsValues::*>(AllSettings()[i].place);
            EXPECT_EQ(fresh.*place, i < bad ? 3 : kRows[i].value) << kRows[i].key;
        }
    }
}

TEST_F(LoadSettings, ANumberBeyond32BitsOverflows) {
    Put("Ordalyn", "ForegroundColor", "4294967295");
    EXPECT_THROW(settings.LoadSettings(), Overflow);
}

TEST_F(LoadSettings, NegativeColoursAreSystemColours) {
    Put("Ordalyn", "ForegroundColor", "-2147483633");
    Put("Ordalyn", "BackgroundColor", "16777215");
    settings.LoadSettings();
    EXPECT_EQ(settings.ForegroundColor, -2147483633);
    EXPECT_EQ(settings.BackgroundColor, 0xFFFFFF);
}

struct Correction {
    const char* section;
    const char* key;
    const char* stored;
    std::int32_t loaded;
};
constexpr Correction kCorrections[] = {
    {"Common", "NumberOfRecentFiles", "1", 2},
    {"Common", "NumberOfRecentFiles", "-7", 2},
    {"Common", "NumberOfRecentFiles", "2", 2},
    {"Common", "NumberOfRecentFiles", "16", 16},
    {"Common", "NumberOfRecentFiles", "17", 16},
    {"Common", "NumberOfRecentFiles", "40", 16},
    {"Common", "UnExpandPaths", "7", 3},
    {"Common", "UnExpandPaths", "4", 3},
    {"Common", "UnExpandPaths", "2", 2},
    {"Common", "UnExpandPaths", "0", 0},
    {"Common", "UnExpandPaths", "-1", 0},
    {"Ordalyn", "VSplitPosition", "-5", 0},
    {"Ordalyn", "VSplitPosition", "2000000000", 2000000000},
    {"Ordalyn", "HSplitPosition", "-1", 0},
    {"Ordalyn", "HSplitPosition", "1", 1},
    // What has no correction stays as it is.
    {"Ordalyn", "GridLines", "-1", -1},
    {"Ordalyn", "FontSize", "-3", -3},
    {"Ordalyn", "FontStyle", "99", 99},
};

TEST_F(LoadSettings, ValuesOutsideTheirRangeAreCorrected) {
    for (const Correction& correction : kCorrections) {
        system.files.Delete(kOwnFile);
        Put(correction.section, correction.key, correction.stored);
        settings.LoadSettings();
        EXPECT_EQ(Number(correction.key), correction.loaded)
            << correction.key << "=" << correction.stored;
    }
}

TEST_F(LoadSettings, TheLanguageFileIsExpanded) {
    Put("Common", "LanguageFile", "velmordane:\\Languages\\deutsch.lng");
    settings.LoadSettings();
    EXPECT_EQ(settings.LanguageFile, "C:\\Ordalyn\\Languages\\deutsch.lng");
    system.environment.SetVariable("LANGS", "D:\\Texts");
    Put("Common", "LanguageFile", "%langs%\\deutsch.lng");
    settings.LoadSettings();
    EXPECT_EQ(settings.LanguageFile, "D:\\Texts\\deutsch.lng");
}

TEST_F(LoadSettings, LoadingReadsUpTo4095Characters) {
    Put("Ordalyn", "FontName", std::string(5000, 'x'));
    settings.LoadSettings();
    EXPECT_EQ(settings.FontName, std::string(4095, 'x'));
}

TEST_F(LoadSettings, TheFoldersToShortenAreKnownToThePathHelpers) {
    EXPECT_EQ(common.UnExpandPath("C:\\Ordalyn\\x.log"), "velmordane:\\x.log");
    Put("Common", "UnExpandPaths", "0");
    settings.LoadSettings();
    EXPECT_EQ(common.UnExpandPath("C:\\Ordalyn\\x.log"), "C:\\Ordalyn\\x.log");
    Put("Common", "UnExpandPaths", "1");
    settings.LoadSettings();
    EXPECT_EQ(common.UnExpandPath("C:\\Ordalyn\\x.log"), "velmordane:\\x.log");
}

TEST_F(SaveSettings, AMissingFileIsMadeWithTheKeysOfTheOptions) {
    system.files.Delete(kOwnFile);
    settings.LanguageFile = "D:\\other.lng";
    settings.SaveSettings();
    for (const Row& row : kRows) {
        if (row.isText)
            continue;
        EXPECT_EQ(Stored(row.section, row.key),
                  row.saved ? std::to_string(row.value) : std::string("(absent)"))
            << row.key;
    }
    EXPECT_EQ(Stored("Ordalyn", "FontName"), "MS Sans Serif");
    EXPECT_EQ(Stored("Common", "LanguageFile"), "D:\\other.lng");
}

TEST_F(SaveSettings, WritesInTheTablesOrderWithoutQuotes) {
    system.files.Delete(kOwnFile);
    settings.LanguageFile = "D:\\other file.lng";
    settings.SaveSettings();
    EXPECT_EQ(system.files.Get(kOwnFile),
              "[Ordalyn]\r\nGridLines=0\r\nFixedBorders=1\r\nFlatUserInterface=0\r\nLongDate=0\r\n"
              "ForegroundColor=-2147483640\r\nBackgroundColor=-2147483643\r\n"
              "FontName=MS Sans Serif\r\nFontScript=1\r\nFontSize=8\r\nFontStyle=0\r\n"
              "UseDefaultLanguage=1\r\n"
              "[Common]\r\nLanguageFile=D:\\other file.lng\r\nNumberOfRecentFiles=9\r\n");
}

TEST_F(SaveSettings, WhatIsSavedIsLoadedAgain) {
    settings.GridLines = 1;
    settings.FixedBorders = 0;
    settings.FlatUserInterface = 1;
    settings.LongDate = 1;
    settings.ForegroundColor = 0x123456;
    settings.BackgroundColor = -2147483633;
    settings.FontName = "Courier New";
    settings.FontScript = 204;
    settings.FontSize = 11;
    settings.FontStyle = kFontBold | kFontUnderline;
    settings.UseDefaultLanguage = 0;
    settings.LanguageFile = "C:\\Ordalyn\\Languages\\deutsch.lng";
    settings.NumberOfRecentFiles = 12;
    settings.SaveSettings();

    mAppSpecific again(profile, common);
    again.LoadSettings();
    for (const Setting& setting : AllSettings()) {
        EXPECT_EQ(setting.Written(again), setting.Written(settings)) << setting.key;
    }
    EXPECT_EQ(again.ForegroundColor, 0x123456);
    EXPECT_EQ(again.LanguageFile, "C:\\Ordalyn\\Languages\\deutsch.lng");
}

TEST_F(SaveSettings, FlagsAreWrittenAsZeroOrOne) {
    settings.GridLines = -1;
    settings.LongDate = 5;
    settings.FixedBorders = 0;
    settings.SaveSettings();
    EXPECT_EQ(Stored("Ordalyn", "GridLines"), "1");
    EXPECT_EQ(Stored("Ordalyn", "LongDate"), "1");
    EXPECT_EQ(Stored("Ordalyn", "FixedBorders"), "0");
}

TEST_F(SaveSettings, TheLanguageFileIsStoredSymbolically) {
    settings.LanguageFile = "c:\\ordalyn\\Languages\\deutsch.lng";
    settings.SaveSettings();
    EXPECT_EQ(Stored("Common", "LanguageFile"), "velmordane:\\Languages\\deutsch.lng");
}

TEST_F(SaveSettings, ALanguageFileThatWasNeverChosenIsNotWritten) {
    settings.LoadSettings();
    settings.SaveSettings();
    EXPECT_EQ(Stored("Common", "LanguageFile"), "(absent)");
}

TEST_F(SaveSettings, WhatTheUserSetsByHandIsNeverWritten) {
    settings.UnExpandPaths = 1;
    settings.SaveSettings();
    EXPECT_EQ(Stored("Common", "UnExpandPaths"), "(absent)");
}

TEST_F(SaveSettings, ASingleSettingCanBeWritten) {
    settings.TwoPanels = 0;
    settings.VSplitPosition = 1234;
    settings.SaveSetting(&SettingsValues::TwoPanels);
    settings.SaveSetting(&SettingsValues::VSplitPosition);
    EXPECT_EQ(Stored("Ordalyn", "TwoPanels"), "0");
    EXPECT_EQ(Stored("Ordalyn", "VSplitPosition"), "1234");
    EXPECT_EQ(Stored("Ordalyn", "HSplitPosition"), "(absent)");
}

TEST_F(SaveSettings, WhatOneWriterKeepsCanBeWritten) {
    system.files.Delete(kOwnFile);
    settings.VerticalPanels = 1;
    settings.SaveAllOf(SettingWriter::PanelLayout);
    EXPECT_EQ(system.files.Get(kOwnFile),
              "[Ordalyn]\r\nVerticalPanels=1\r\nVSplitPosition=4000\r\nHSplitPosition=4000\r\n");
}

TEST_F(SaveSettings, AGivenUpLanguageFileIsWrittenAtOnceAndItsPathKept) {
    UseLanguageFile("");
    settings.SaveSettings();
    settings.GiveUpLanguageFile();
    EXPECT_EQ(settings.UseDefaultLanguage, 1);
    EXPECT_EQ(Stored("Ordalyn", "UseDefaultLanguage"), "1");
    EXPECT_NE(Stored("Common", "LanguageFile"), "(absent)");
}

class OtherSettings : public SettingsFixture {};

TEST_F(OtherSettings, AnEntryIsReadWithItsDefaultAndWritten) {
    EXPECT_EQ(settings.ReadEntry(entry::ColumnsWidth), "884,10019,10890");
    settings.WriteEntry(entry::ColumnsWidth, "1,2,3");
    EXPECT_EQ(Stored("Ordalyn", "ColumnsWidth"), "1,2,3");
    EXPECT_EQ(settings.ReadEntry(entry::ColumnsWidth), "1,2,3");
    Put("Ordalyn", "ColumnsWidth", "");
    EXPECT_EQ(settings.ReadEntry(entry::ColumnsWidth), "");
}

TEST_F(OtherSettings, TheFindOptionsAreReadAndWritten) {
    EXPECT_EQ(settings.LoadFindOptions(), (FindOptions{0, 0, false, false}));
    settings.SaveFindOptions({5, 1, true, false});
    EXPECT_EQ(Stored("Ordalyn", "FindOptions"), "5,1,1,0");
    EXPECT_EQ(settings.LoadFindOptions(), (FindOptions{5, 1, true, false}));
}

}  // namespace
}  // namespace ordalyn::test
