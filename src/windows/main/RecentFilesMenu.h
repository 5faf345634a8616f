// RecentFilesMenu: the "Recent Files" submenu, which shows the list of the log files that were
// opened last: an item for each entry, a separator and one that clears the list.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/TextSource.h"
#include "settings/cRecentFiles.h"
#include "toolkit/Form.h"

namespace ordalyn {

class RecentFilesMenu {
  public:
    // Follows the changes of the list from now on.
    RecentFilesMenu(cRecentFiles& list, TextSource text);
    ~RecentFilesMenu() { list_.OnChange({}); }
    RecentFilesMenu(const RecentFilesMenu&) = delete;
    RecentFilesMenu& operator=(const RecentFilesMenu&) = delete;

    // Empties the list and adds items to the submenu `objMenu`, whose first item is in the form's
    // design. The form owns the message box of Clear and must outlive the use of this object. A
    // maximum below 1 throws InvalidPropertyValue.
    void Setup(std::int32_t lngMaxFiles, toolkit::Form& form, toolkit::MenuItem& objMenu,
               std::string_view strNoFilesText, std::string_view strClearText,
               std::string_view strWarningMsg);
    // Takes the items that Setup added away again and enables the first one.
    void RestartClass();

    // Asks and, unless the user says No, empties the list. Returns whether it did. Messages are
    // handled while the question is open.
    bool Clear();
    // Fetches the three texts in the language now in use and shows them.
    void ChangeLanguage();

    // The user chose an entry of the submenu (its number), or "Clear List". What happens then is
    // the main window's affair.
    toolkit::Event<std::int32_t> FileChosen;
    toolkit::Event<> ClearChosen;

  private:
    toolkit::MenuItem& Item(std::int32_t number) const;
    toolkit::MenuItem& SeparatorItem() const { return Item(list_.Max() + 1); }
    toolkit::MenuItem& ClearItem() const { return Item(list_.Max() + 2); }
    void RefreshMenu();
    void ShowEmptyList();

    cRecentFiles& list_;
    TextSource text_;
    toolkit::Form* form_ = nullptr;
    toolkit::MenuItem* menu_ = nullptr;
    // The design's item, once its clicks are listened to.
    toolkit::MenuItem* watchedItem_ = nullptr;
    std::string noFilesText_;
    std::string clearText_;
    std::string warningText_;
};

}  // namespace ordalyn
