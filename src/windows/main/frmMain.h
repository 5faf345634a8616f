// frmMain: the main window. It owns the log's entries and the parts that work on them, wires the
// parts to each other and to menus, keys and mouse, and offers what other forms ask of it.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "hostconfig/LogOperations.h"
#include "hostconfig/TotalCommanderLocator.h"
#include "log/EntryLists.h"
#include "search/FilterChoice.h"
#include "toolkit/Form.h"
#include "windows/common/SharedObjects.h"
#include "windows/dialogs/SettingsFileDialog.h"
#include "windows/main/CalendarCommands.h"
#include "windows/main/CopyCommands.h"
#include "windows/main/FileManagerCommands.h"
#include "windows/main/FindCommands.h"
#include "windows/main/FirstSteps.h"
#include "windows/main/HelpCommands.h"
#include "windows/main/HistoryCommands.h"
#include "windows/main/LogFileReading.h"
#include "windows/main/LogFileSet.h"
#include "windows/main/LogFollowing.h"
#include "windows/main/MainTitle.h"
#include "windows/main/MainWindowLayout.h"
#include "windows/main/PanelColumns.h"
#include "windows/main/RecentFilesMenu.h"
#include "windows/main/RowCommands.h"
#include "windows/panels/DayPanels.h"
#include "windows/progress/ProgressWindow.h"

namespace ordalyn {

class frmAbout;
class frmOptions;

class frmMain : public toolkit::Form {
  public:
    // Loads the window, hidden. The first activation after it is shown finds the log and reads it.
    explicit frmMain(SharedObjects& shared);
    ~frmMain() override;

    // Applies fonts, borders, colours and the rest of the visual settings to the window's controls.
    void ApplySettings();
    // Labels the list of dates again; non-zero means long dates.
    void ApplyNewDateFormat(std::int32_t lngLd) { panels_.ApplyNewDateFormat(lngLd); }
    // The window's caption: program, version and the text.
    void SetTitle(std::string_view text) { title_.SetTitle(text); }

    // Shuts the other windows down; run by the window when it has been closed and saved.
    toolkit::Event<> ShutDown;

  private:
    // Load and close.
    void WireMenus();
    void WireParts();
    void LoadRecentFiles();
    void SaveRecentFiles();
    void Close();
    void SaveAndCloseDialogs();
    void SayWhatCouldNotBeKept();

    // Events.
    void FirstActivation();
    // Finds the file manager's settings and the log, and reads it.
    void FindLog();
    // The last part of it. Whoever was told already what is missing needs no message.
    void ReadFoundLog(bool sayNone);
    void KeyReleased(int key, toolkit::Modifiers modifiers);
    void OpenLog(const std::string& path);
    void OpenRecentFile(std::int32_t index);
    void RefreshLog();
    void ShowOptions();
    void ShowAbout();
    void ApplyNewLanguage();

    SharedObjects& shared_;
    toolkit::ComboBox& cboDate;
    toolkit::ComboBox& cboFiles;
    toolkit::ListView& SourceListView;
    toolkit::ListView& TargetListView;
    toolkit::StatusBar& StatusBar1;

    EntryLists entries_;
    LogOperations operations_;
    FilterChoice filter_;
    MainTitle title_;
    PanelColumns columns_;
    CopyCommands copy_;
    FileManagerCommands fileManager_;
    DayPanels panels_;
    ProgressWindow progress_;
    LogFileReading reading_;
    LogFileSet files_;
    LogFollowing following_;
    RowCommands rows_;
    MainWindowLayout layout_;
    RecentFilesMenu recentFilesMenu_;
    SettingsFileDialog settingsFileDialog_;
    TotalCommanderLocator locator_;
    FindCommands find_;
    CalendarCommands calendar_;
    HistoryCommands history_;
    HelpCommands help_;
    FirstSteps firstSteps_;
    // While they are shown.
    std::unique_ptr<frmAbout> about_;
    std::unique_ptr<frmOptions> options_;
    // When C went down: Ctrl and Alt can be let go before it.
    toolkit::Modifiers heldWithC_;
    bool activated_ = false;
    bool saidNotKept_ = false;
};

}  // namespace ordalyn
