// mAppSpecific: the values that the whole program works with, and how they get from and to the
// program's own settings file. One instance, made at start-up, is shared by all.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "settings/FindOptions.h"
#include "settings/SettingsTable.h"

namespace ordalyn {

class cProfile;
class mAppCommon;

// The values themselves are the members of SettingsValues: they hold the table's defaults from the
// start, what the file says once LoadSettings has run, and what the user chose since then. They
// reach the file at the moments that the table names.
class mAppSpecific : public SettingsValues {
  public:
    mAppSpecific(cProfile& profile, mAppCommon& common);

    // The options dialog's page that was seen last, 0-based; not stored.
    std::int32_t OptionsPage = 0;

    // Reads every setting, in the table's order. A missing file or entry gives the default, an
    // empty entry of a number 0. A number entry that is no number throws TypeMismatch (or Overflow
    // beyond 32 bits) and ends the loading: what was loaded before it stays, the rest keeps its
    // values.
    void LoadSettings();
    // Writes what the options dialog can change. A language file that was never chosen is not
    // written.
    void SaveSettings() { SaveAllOf(SettingWriter::Options); }
    // Writes the settings that one writer keeps up to date, in the table's order.
    void SaveAllOf(SettingWriter writer);
    // Writes a single setting: SaveSetting(&SettingsValues::TwoPanels).
    void SaveSetting(Setting::Place place) { Save(SettingOf(place)); }

    // Switches to the built-in language for good.
    void GiveUpLanguageFile();

    // An entry of the settings file that is no single value. Reading gives the entry's default when
    // it is absent, and an empty text when it is empty.
    std::string ReadEntry(const OtherEntry& entry) const;
    void WriteEntry(const OtherEntry& entry, std::string_view value);

    FindOptions LoadFindOptions() const { return ParseFindOptions(ReadEntry(entry::FindOptions)); }
    void SaveFindOptions(const FindOptions& options);

  private:
    std::string Read(std::string_view section, std::string_view key,
                     std::string_view fallback) const;
    void Write(std::string_view section, std::string_view key, std::string_view value);
    void Load(const Setting& setting);
    void Save(const Setting& setting);
    void Take(const Setting& setting, std::string_view text);

    cProfile& profile_;
    mAppCommon& common_;
};

}  // namespace ordalyn
