// A main window in memory with the log's panels, and filter and find wired to it as the program
// does. The program lies in C:\Ordalyn\, the file manager in C:\tc\.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

#include "log/LogLine.h"
#include "support/log/PaddedLine.h"
#include "support/platform/MemoryPlatform.h"
#include "support/toolkit/MemoryToolkit.h"
#include "windows/common/SharedObjects.h"
#include "windows/main/FindCommands.h"
#include "windows/panels/DayPanels.h"
#include "windows/panels/EntryRows.h"

namespace ordalyn::test {

inline constexpr std::string_view kOwnFile = "C:\\Ordalyn\\Ordalyn.ini";
inline constexpr std::string_view kCommanderIni = "C:\\tc\\wincmd.ini";

// With the program's folder: the profile calls make files but no folders.
struct InstalledPlatform : MemoryPlatform {
    InstalledPlatform() {
        files.AddFolder("C:\\Ordalyn");
        files.Set(kCommanderIni, "[Configuration]\r\n");
    }
};

// Adds the entry of an operation line.
inline void AddLine(EntryLists& entries, std::string_view line) {
    entries.Add(SplitOperationLine(PaddedLine(line)));
}

// The settings of a program over a system in memory.
class FindFixture : public testing::Test {
  protected:
    FindFixture() {
        common.SetCommanderFolder("C:\\tc\\");
        common.SetCommanderIni(kCommanderIni);
    }
    void Put(std::string_view key, std::string_view value) {
        system.ansiProfile.WriteEntry("Ordalyn", key, value, kOwnFile);
    }
    // What the own settings file holds; "(absent)" when it lacks the entry.
    std::string Stored(std::string_view key) {
        return system.ansiProfile.ReadEntry("Ordalyn", key, "(absent)", kOwnFile, 4096);
    }
    // The entry as it stands in the file, quotes included.
    bool FileHolds(std::string_view line) {
        const std::string file = "\r\n" + system.files.Get(kOwnFile).value_or("");
        return file.find("\r\n" + std::string(line) + "\r\n") != std::string::npos;
    }

    InstalledPlatform system;
    MemoryToolkit tools;
    SharedObjects shared{system.services, tools};
    mAppCommon& common = shared.common;
    cProfile& profile = *shared.profile;
    mAppSpecific& settings = *shared.settings;
    InterfaceStrings& strings = *shared.strings;
    FormLanguage& language = *shared.language;
};

inline constexpr toolkit::ControlDesign kMainControls[] = {
    {.kind = toolkit::Kind::ComboBox, .name = "cboDate"},
    {.kind = toolkit::Kind::ListView, .name = "SourceListView"},
    {.kind = toolkit::Kind::ListView, .name = "TargetListView"},
    {.kind = toolkit::Kind::StatusBar, .name = "StatusBar1"},
};
inline constexpr toolkit::MenuDesign kMainMenus[] = {
    {0, "mnuSearch", "250"},
    {1, "mnuSearchFind", "251"},
    {1, "mnuSearchFindNext", "252"},
    {1, "mnuSearchFilter", "4030"},
    {0, "mnuContext", "", {}, "", false},
    {1, "mnuContextCopyTarget", "4023"},
};
inline constexpr toolkit::FormDesign kMainDesign = {.name = "frmMain",
                                                    .tag = "",
                                                    .clientSize = {9000, 6000},
                                                    .style = {},
                                                    .controls = kMainControls,
                                                    .menus = kMainMenus};

class FindWindow : public FindFixture {
  protected:
    FindWindow() {
        SourceListView.AddColumn("Time", 884, EntryRows::kTime);
        SourceListView.AddColumn("Source", 10019, EntryRows::kOperation);
        TargetListView.AddColumn("Target", 10890, EntryRows::kTarget);
        for (int i = 0; i < 3; ++i)
            StatusBar1.AddPanel(1000);
        mnuSearchFindNext.SetEnabled(false);
        settings.TwoPanels = 1;
        panels.RowShown.Subscribe([this](int row) { shownRows.push_back(row); });
        main.Menu("mnuSearchFind").Click.Subscribe([this] { commands.ShowFindDialog(); });
        mnuSearchFindNext.Click.Subscribe([this] { commands.FindNext(); });
        main.Menu("mnuSearchFilter").Click.Subscribe([this] { commands.ShowFilterDialog(); });
        StatusBar1.PanelClick.Subscribe([this](int n) { commands.StatusBarPanelClicked(n); });
    }

    void SinglePanel() {
        settings.TwoPanels = 0;
        SourceListView.AddColumn("Target", 10890, EntryRows::kTarget);
    }
    // Makes these lines the log and shows its last day, or what `item` says.
    void Load(const std::vector<std::string>& lines) {
        entries.Clear();
        for (const std::string& line : lines)
            AddLine(entries, line);
        panels.BuildDateList(true);
    }
    void ShowDay(int item) { cboDate.UserSelected(item); }
    // Applies a filter as a user does who types it.
    void Filter(std::string_view text, bool target = false, bool doesNotContain = false) {
        cboSource.UserSelected(target ? 1 : 0);
        cboContains.UserSelected(doesNotContain ? 1 : 0);
        cboFilter.UserEdited(text);
        tools.PressIn(filters, cboFilter, toolkit::key::Enter);
    }
    // The entries that the rows show.
    std::vector<std::int32_t> Rows() const { return *SourceListView.RowTags(); }
    std::int32_t SelectedEntry() const {
        return SourceListView.SelectedRow() < 0 ? -1
                                                : SourceListView.Tag(SourceListView.SelectedRow());
    }
    const std::string& Status(int panel) const { return StatusBar1.PanelText(panel); }
    std::string MessageText() const { return tools.messages.back().text; }

    toolkit::Form main{tools, kMainDesign};
    toolkit::ComboBox& cboDate = main.Get<toolkit::ComboBox>("cboDate");
    toolkit::ListView& SourceListView = main.Get<toolkit::ListView>("SourceListView");
    toolkit::ListView& TargetListView = main.Get<toolkit::ListView>("TargetListView");
    toolkit::StatusBar& StatusBar1 = main.Get<toolkit::StatusBar>("StatusBar1");
    toolkit::MenuItem& mnuSearchFindNext = main.Menu("mnuSearchFindNext");
    EntryLists entries;
    FilterChoice filter;
    std::vector<int> shownRows;
    DayPanels panels{{main, cboDate, SourceListView, TargetListView, StatusBar1,
                      main.Menu("mnuContext"), main.Menu("mnuContextCopyTarget")},
                     entries,
                     filter,
                     settings,
                     system.locale,
                     shared.Texts()};
    FindCommands commands{shared, main, entries, panels, filter};
    frmFilters& filters = commands.FilterDialog();
    toolkit::ComboBox& cboFilter = filters.Get<toolkit::ComboBox>("cboFilter");
    toolkit::ComboBox& cboContains = filters.Get<toolkit::ComboBox>("cboContains");
    toolkit::ComboBox& cboSource = filters.Get<toolkit::ComboBox>("cboSource");
    toolkit::ToolBar& Toolbar1 = filters.Get<toolkit::ToolBar>("Toolbar1");
};

}  // namespace ordalyn::test
