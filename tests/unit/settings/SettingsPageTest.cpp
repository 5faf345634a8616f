// The page docs/settings.md says what the settings table says. After a change of the table, run
// this program with the environment variable ORDALYN_WRITE_PAGES set to write the page anew.
#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

#include "base/Text.h"
#include "settings/SettingsTable.h"

namespace ordalyn {
namespace {

constexpr const char* kPage = ORDALYN_SOURCE_DIR "/docs/settings.md";

std::string_view TypeName(SettingType type) {
    switch (type) {
        case SettingType::Flag:
            return "flag";
        case SettingType::Number:
            return "number";
        case SettingType::Color:
            return "colour";
        case SettingType::Text:
            return "text";
        case SettingType::Path:
            return "path";
    }
    return "";
}

std::string_view WriterName(SettingWriter writer) {
    switch (writer) {
        case SettingWriter::Options:
            return "options dialog";
        case SettingWriter::MainWindow:
            return "main window when it closes";
        case SettingWriter::PanelLayout:
            return "main window when it closes with two panels";
        case SettingWriter::Nobody:
            return "nobody: set by hand";
    }
    return "";
}

std::string Correction(const Setting& setting) {
    const bool hasLeast = setting.least != std::numeric_limits<std::int32_t>::min();
    const bool hasMost = setting.most != std::numeric_limits<std::int32_t>::max();
    std::string text;
    if (hasLeast)
        text = "at least " + std::to_string(setting.least);
    if (hasMost)
        text += (hasLeast ? ", at most " : "at most ") + std::to_string(setting.most);
    return text;
}

std::string Code(std::string_view text) {
    return text.empty() ? "absent" : "`" + std::string(text) + "`";
}

std::string Keys(const OtherEntry& other) {
    const std::string key(other.key);
    if (other.numbers == 0)
        return key;
    if (other.numbers == kAsManyAsSet)
        return key + "1, " + key + "2, ...";
    return key + "1 to " + key + std::to_string(other.numbers);
}

std::string Page() {
    std::ostringstream page;
    page
        << "# The settings file\n\n"
           "`Ordalyn.ini` in the program's folder holds the settings. Where that folder or the "
           "file "
           "cannot be\nwritten it is `%APPDATA%\\Ordalyn\\Ordalyn.ini`, which begins as a copy of "
           "the "
           "former; where neither can be\nwritten, the former is read and nothing is kept "
           "(`src/hostconfig/SettingsPlace.cpp`). It is an INI file; a file\nor an entry that does "
           "not exist gives the defaults below. Flags are 0 (off) or 1 (on), "
           "colours are 32-bit\nnumbers `0x00BBGGRR` in decimal or, when negative, the system "
           "colour of that index. An empty entry\nof a number counts as 0; one that is no number "
           "keeps the settings from being loaded any further.\nPaths may begin with "
           "`velmordane:\\` (the program's folder) or hold environment variables.\n\n"
           "This page is made from the table in `src/settings/SettingsTable.cpp`.\n\n"
           "## Settings\n\n"
           "| key | section | type | meaning | default | corrected to | written by |\n"
           "|---|---|---|---|---|---|---|\n";
    for (const Setting& setting : AllSettings())
        page << "| " << setting.key << " | " << setting.section << " | " << TypeName(setting.type)
             << " | " << setting.meaning << " | "
             << Code(setting.fallback != nullptr ? setting.fallback : "") << " | "
             << Correction(setting) << " | " << WriterName(setting.writer) << " |\n";
    page << "\n## Other entries\n\n"
            "| key | section | meaning | default | written by |\n"
            "|---|---|---|---|---|\n";
    for (const OtherEntry* other : OtherEntries())
        page << "| " << Keys(*other) << " | " << other->section << " | " << other->meaning << " | "
             << Code(other->fallback) << " | " << other->writer << " |\n";
    return page.str();
}

TEST(SettingsPage, SaysWhatTheTableSays) {
    const std::string page = Page();
    if (std::getenv("ORDALYN_WRITE_PAGES") != nullptr)
        std::ofstream(kPage, std::ios::binary) << page;
    std::ifstream file(kPage, std::ios::binary);
    ASSERT_TRUE(file.is_open()) << kPage;
    std::string stored{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    stored = ReplaceIgnoreCase(stored, "\r\n", "\n");
    EXPECT_EQ(stored, page);
}

}  // namespace
}  // namespace ordalyn
