// mAppSpecific: the values that the whole program works with, and how they get from and to the
// program's own settings file. One instance, made at start-up, is shared by all.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "settings/FindOptions.h"
#include "settings/SettingsTable.h"
#include "toolkit/Form.h"

namespace ordalyn {

class cProfile;
class mAppCommon;

// The values themselves are the members of SettingsValues: they hold the table's defaults from the
// start, what the file says once LoadSettings has run, and what the user chose since then. They
// reach the file at the moments that the table names.
class mAppSpecific : public SettingsValues {
  public:
    mAppSpecific(cProfile& profile, mAppCommon& common);

    // Lives as long as the program runs and is not stored:
    std::int32_t OptionsPage = 0;  // the options dialog's page that was seen last, 0-based

    // Reads every setting, in the table's order. A missing file or entry gives the default, an
    // empty entry of a number 0. A number entry that is no number throws TypeMismatch (or Overflow
    // beyond 32 bits) and ends the loading: what was loaded before it stays, the rest keeps its
    // values.
    void LoadSettings();
    // Writes what the options dialog can change. A language file that was never chosen is not
    // written.
    void SaveSettings();
    // Writes a single setting, for those that others keep up to date. Throws SubscriptOutOfRange
    // for a key that the settings table does not have.
    void SaveSetting(std::string_view key);

    // Places the form as its entry "...Position" says (the form's name without its first three
    // letters, then "Position": left, top, width, height in twips). Parts that are missing or no
    // numbers count as 0; nothing is corrected when the placement is off the screen. A placement
    // that the form refuses (a negative size) leaves it where it is. With restoreState, sets its
    // state from "...WindowState"; a stored "minimised" becomes normal, so that the program never
    // starts minimised.
    void RestoreWindowPosition(toolkit::Form& form, bool restoreState,
                               std::string_view defaultPlacement);
    // Writes what RestoreWindowPosition reads. The placement is written for a form in its normal
    // state only: otherwise the file keeps the last normal one.
    void SaveWindowPosition(const toolkit::Form& form, bool saveState);

    // What the find dialog keeps between runs.
    FindOptions LoadFindOptions() const;
    void SaveFindOptions(const FindOptions& options);

    // Gives the control a new font of the chosen face and character set. With useSettings, size and
    // style are the chosen ones too and `size` is not looked at; otherwise it has `size` points and
    // is plain. A control that refuses the font keeps its own.
    void ApplyFont(toolkit::Control& control, bool useSettings, double size) const;

  private:
    // The entry of the own settings file; empty when it is empty.
    std::string ReadEntry(std::string_view section, std::string_view key,
                          std::string_view fallback) const;
    void WriteEntry(std::string_view section, std::string_view key, std::string_view value);
    void Load(const Setting& setting);
    void Save(const Setting& setting);
    void Take(const Setting& setting, std::string_view text);

    cProfile& profile_;
    mAppCommon& common_;
};

}  // namespace ordalyn
