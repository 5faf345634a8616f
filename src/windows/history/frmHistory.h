// frmHistory: what became of a file or folder, over the entries that are loaded. A window beside
// the main window; closing hides it, and it ends with the program.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/TextSource.h"
#include "history/FileHistory.h"
#include "settings/InterfaceStrings.h"
#include "settings/mAppSpecific.h"
#include "toolkit/Form.h"
#include "windows/common/FormLanguage.h"

namespace ordalyn {

class frmHistory : public toolkit::Form {
  public:
    struct Surroundings {
        mAppSpecific& settings;
        const InterfaceStrings& strings;
        FormLanguage& language;
        const EntryLists& entries;
        // What reads the operations of the entries, as it is at that moment.
        std::function<const OperationReader&()> reader;
        // A date of the log in the form in which the panels show it.
        std::function<std::string(std::string_view)> shownDate;
        // Whether rotated logs are left that belong to the one that is shown.
        std::function<bool()> olderLogsAreLeft;
    };

    // Loads the window, hidden and without a path.
    frmHistory(toolkit::Toolkit& toolkit, const Surroundings& around);

    // A row was double clicked, or Enter was pressed on it: its entry.
    toolkit::Event<std::int32_t> EntryChosen;
    toolkit::Event<> ReadAllChosen;

    // Looks for this path and shows the life that this entry belongs to (the last of them, when it
    // ends one and begins another); the last life when there is no such entry.
    void ShowPath(std::string_view path, std::int32_t entry);
    // So that typing replaces the path.
    void FocusPath();
    void FocusSteps() { lvwSteps.SetFocus(); }
    // The entries are other ones, or more: looks for the path again, as soon as somebody sees it.
    void EntriesChanged();
    // Called before the window is shown.
    void BringUpToDate();
    // The look of the rows, and texts that the language does not reach, are those of the settings.
    void LoadInterface();
    void LanguageChanged();
    // Unloads the window, which a user's close only hides.
    void UnloadAtEnd();

  private:
    void LoadColumns();
    void SaveColumns();
    void WireControls();
    void Arrange();
    void Search(std::int32_t entry);
    void RememberPath();
    void ListLives();
    void ShowLife(int life);
    void ShowRows(int selectedRow);
    void ShowWords();
    void ShowOlderLogs();
    void AboutToClose(bool& keep);
    std::string DateOf(std::int32_t entry) const;
    TextSource Texts() const;

    Surroundings around_;
    toolkit::ComboBox& cboPath;
    toolkit::CommandButton& cmdShow;
    toolkit::Label& lblSummary;
    toolkit::Label& lblLives;
    toolkit::ComboBox& cboLives;
    toolkit::ListView& lvwSteps;
    toolkit::Label& lblOlderLogs;
    toolkit::CommandButton& cmdReadAll;
    toolkit::CommandButton& cmdClose;

    std::string path_;  // whose history is shown
    std::vector<FileLife> lives_;
    int shownLife_ = -1;
    toolkit::Twips listWidth_ = 0;  // when its columns were fitted last
    bool outOfDate_ = false;
    bool listing_ = false;
    bool ending_ = false;
};

}  // namespace ordalyn
