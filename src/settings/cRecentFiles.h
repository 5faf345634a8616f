// cRecentFiles: the log files that were opened last, latest first, and the "Recent Files" submenu
// that shows them. The list in memory is the master; the settings file gets it when SaveList is
// called.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/Form.h"

namespace ordalyn {

class cProfile;
class mAppCommon;
class InterfaceStrings;

// Entries are numbered from 1 to the maximum; the occupied ones come first. Numbers outside throw
// SubscriptOutOfRange, except that ListItems knows an entry 0, which holds nothing.
class cRecentFiles {
  public:
    cRecentFiles(cProfile& profile, const mAppCommon& common, const InterfaceStrings& strings);

    // Empties the list and adds items to the submenu `objMenu`, whose first item is in the form's
    // design: one for each entry, a separator and one that clears the list. The form owns the
    // message box of Clear and must outlive the use of this object. A maximum below 1 throws
    // InvalidPropertyValue.
    void Setup(std::int32_t lngMaxFiles, toolkit::Form& form, toolkit::MenuItem& objMenu,
               std::string_view strNoFilesText, std::string_view strClearText,
               std::string_view strWarningMsg);
    // Takes the items that Setup added away again and enables the first one.
    void RestartClass();

    // An absent key gives an empty entry, an empty value an entry with an empty path.
    void ReadList(std::string_view strFileName, std::string_view strSection,
                  std::string_view KeyPrefix = "");
    // Empty entries leave no key behind.
    void SaveList(std::string_view strFileName, std::string_view strSection,
                  std::string_view strKeyPrefix = "");

    // Puts the file first. A file that is listed already (letter case ignored) moves there and
    // takes the new spelling; otherwise the last entry of a full list is lost.
    void AddFile(std::string_view strFileName);
    void RemoveFile(std::int32_t lngIndex, bool blnAutoRefresh = false);
    void PutAsFirstItem(std::int32_t lngIndex);
    // Asks and, unless the answer is No, empties the list. Answers whether it did. Messages are
    // handled while the question is open.
    bool Clear();

    // The full path, or the absent-value marker for an empty entry.
    const std::string& ListItems(std::int32_t lngIndex) const;
    std::int32_t Max() const { return maximum_; }
    // Fetches the three texts in the language now in use and shows them.
    void ChangeLanguage();

    // The user chose an entry of the submenu (its number), or "Clear List". What happens then is
    // the main window's affair.
    toolkit::Event<std::int32_t> FileChosen;
    toolkit::Event<> ClearChosen;

    // A path as the menu shows it: whole up to 48 characters, otherwise with its middle left out.
    // The result is not measured again and may still be longer; a name of more than 48 characters
    // without any backslash gives an empty text.
    static std::string CompactPath(std::string_view path);

  private:
    void RequireEntry(std::int32_t index) const;
    std::string& Entry(std::int32_t index) { return files_[static_cast<std::size_t>(index)]; }
    bool Occupied(std::int32_t index) const;
    std::int32_t IndexOf(std::string_view path) const;
    void EmptyAllEntries();
    toolkit::MenuItem& Item(std::int32_t number) const;
    toolkit::MenuItem& SeparatorItem() const { return Item(maximum_ + 1); }
    toolkit::MenuItem& ClearItem() const { return Item(maximum_ + 2); }
    void RefreshMenu();
    void ShowEmptyList();

    cProfile& profile_;
    const mAppCommon& common_;
    const InterfaceStrings& strings_;
    toolkit::Form* form_ = nullptr;
    toolkit::MenuItem* menu_ = nullptr;
    toolkit::MenuItem* watchedItem_ =
        nullptr;  // the design's item, once its clicks are listened to
    std::int32_t maximum_ = 0;
    std::vector<std::string> files_;  // 0 to maximum; 0 holds nothing
    std::string noFilesText_;
    std::string clearText_;
    std::string warningText_;
};

}  // namespace ordalyn
