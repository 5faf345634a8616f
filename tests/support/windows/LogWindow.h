// A window with the controls that the log's parts work on, in memory, and the parts wired to them.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "log/LogReader.h"
#include "settings/SettingsTable.h"
#include "support/platform/MemoryPlatform.h"
#include "support/toolkit/MemoryToolkit.h"
#include "windows/main/LogFileReading.h"
#include "windows/main/LogFileSet.h"
#include "windows/panels/DayPanels.h"
#include "windows/panels/EntryRows.h"

namespace ordalyn::test {

class FakeProgress : public ReadingProgress {
  public:
    void PrepareCompact() override { steps.emplace_back("compact"); }
    void PrepareTall(std::string_view fileName) override {
        steps.push_back("tall " + std::string(fileName));
    }
    void ShowProgress(std::string_view caption, std::int32_t max) override {
        steps.push_back("show " + std::string(caption) + " " + std::to_string(max));
        visible = true;
        if (onShow)
            onShow();
    }
    void SetValue(std::int32_t value) override { lastValue = value; }
    void HideProgress() override {
        steps.emplace_back("hide");
        visible = false;
    }
    std::vector<std::string> steps;
    std::function<void()> onShow;
    std::int32_t lastValue = 0;
    bool visible = false;
};

inline constexpr toolkit::ControlDesign kLogControls[] = {
    {.kind = toolkit::Kind::ComboBox, .name = "cboDate"},
    {.kind = toolkit::Kind::ComboBox, .name = "cboFiles", .visible = false},
    {.kind = toolkit::Kind::ListView, .name = "SourceListView"},
    {.kind = toolkit::Kind::ListView, .name = "TargetListView"},
    {.kind = toolkit::Kind::StatusBar, .name = "StatusBar1"},
};
inline constexpr toolkit::MenuDesign kLogMenus[] = {
    {0, "mnuView", "141"},
    {1, "mnuViewRefresh", "4020"},
    {0, "mnuContext", "", {}, "", false},
    {1, "mnuContextCopySource", "4022"},
    {1, "mnuContextCopyTarget", "4023"},
};
inline constexpr toolkit::FormDesign kLogDesign = {.name = "frmTest",
                                                   .tag = "",
                                                   .clientSize = {9000, 6000},
                                                   .style = {},
                                                   .controls = kLogControls,
                                                   .menus = kLogMenus};

class LogWindow : public testing::Test {
  protected:
    LogWindow() {
        SourceListView.AddColumn("Time", 884, EntryRows::kTime);
        SourceListView.AddColumn("Source", 10019, EntryRows::kOperation);
        TargetListView.AddColumn("Target", 10890, EntryRows::kTarget);
        for (int i = 0; i < 3; ++i)
            StatusBar1.AddPanel(1000);
        settings.LongDate = 0;
        settings.TwoPanels = 1;
        panels.SetReactions({.rowClicked = [this](int row) { clickedRows.push_back(row); },
                             .applyFilter = [this] { ++filters; },
                             .dayChosen = [this](bool single) { daysChosen.push_back(single); }});
    }

    static std::string Text(std::int32_t id) {
        switch (id) {
            case 3009:
                return "Are you sure?";
            case 3015:
                return "There is an error in file";
            case 3016:
                return "Line:";
            case 3250:
                return "Reading... Please wait.";
            case 4005:
                return "All dates";
            case 4006:
                return "All files";
            case 4010:
                return "%i Operation(s)";
            default:
                return "?";
        }
    }
    void SinglePanel() {
        settings.TwoPanels = 0;
        SourceListView.AddColumn("Target", 10890, EntryRows::kTarget);
    }
    // Makes a log of these lines the entries and builds the date list.
    void Load(const std::vector<std::string>& lines, bool selectLast = true) {
        Write(kLog, lines);
        reading.ReadLogFile(false, kLog, false, true);
        if (!selectLast)
            panels.BuildDateList(false);
    }
    void Write(const std::string& path, const std::vector<std::string>& lines) {
        std::string bytes;
        for (const std::string& line : lines)
            bytes += line + "\r\n";
        system.files.Set(path, bytes);
    }
    std::vector<std::string> Dates() const { return MemoryToolkit::Of(cboDate).items; }
    std::vector<std::string> Files() const { return MemoryToolkit::Of(cboFiles).items; }
    static std::vector<std::string> Column(const toolkit::ListView& list, int column) {
        std::vector<std::string> texts;
        for (int row = 0; row < list.RowCount(); ++row)
            texts.emplace_back(list.Text(row, column));
        return texts;
    }
    std::vector<std::string> Sources() const { return Column(SourceListView, 1); }
    std::vector<std::string> Targets() const { return Column(TargetListView, 0); }
    const std::string& Status(int panel) const { return StatusBar1.PanelText(panel); }

    static constexpr const char* kLog = "C:\\logs\\x.log";

    MemoryToolkit tools;
    MemoryPlatform system;
    toolkit::Form form{tools, kLogDesign};
    toolkit::ComboBox& cboDate = form.Get<toolkit::ComboBox>("cboDate");
    toolkit::ComboBox& cboFiles = form.Get<toolkit::ComboBox>("cboFiles");
    toolkit::ListView& SourceListView = form.Get<toolkit::ListView>("SourceListView");
    toolkit::ListView& TargetListView = form.Get<toolkit::ListView>("TargetListView");
    toolkit::StatusBar& StatusBar1 = form.Get<toolkit::StatusBar>("StatusBar1");
    toolkit::MenuItem& mnuViewRefresh = form.Menu("mnuViewRefresh");
    toolkit::MenuItem& mnuContextCopyTarget = form.Menu("mnuContextCopyTarget");

    SettingsValues settings;
    EntryLists entries;
    LogReader reader{system.files, system.codePages, entries};
    std::vector<int> clickedRows;
    int filters = 0;
    std::vector<bool> daysChosen;
    std::string countText = Text(4010);
    DayPanels panels{{form, cboDate, SourceListView, TargetListView, StatusBar1,
                      form.Menu("mnuContext"), mnuContextCopyTarget},
                     entries,
                     settings,
                     system.locale,
                     [this](std::int32_t id) { return id == 4010 ? countText : Text(id); }};
    FakeProgress progress;
    std::vector<std::string> titles;
    std::vector<std::string> remembered;
    std::vector<std::string> dialogFolders;
    std::optional<std::string> chosenFile;
    LogFileReading reading{
        reader,
        entries,
        {.form = form,
         .SourceListView = SourceListView,
         .panels = panels,
         .progress = progress,
         .strings = Text,
         .chooseFile =
             [this](const std::string& folder) {
                 dialogFolders.push_back(folder);
                 return chosenFile;
             },
         .setTitle = [this](const std::string& t) { titles.push_back(t); },
         .rememberFile = [this](const std::string& path) { remembered.push_back(path); },
         .enableWindows = [this](bool enabled) { form.SetEnabled(enabled); },
         .messageTitle = "Ordalyn"}};
    RotationSettings rotation{
        .logFileAbsent = false, .logFile = kLog, .rotateLimit = "-1", .keepCount = "3"};
    LogFileSet files{system.files,
                     entries,
                     reading,
                     {.form = form,
                      .cboFiles = cboFiles,
                      .SourceListView = SourceListView,
                      .mnuViewRefresh = mnuViewRefresh,
                      .panels = panels,
                      .rotation = [this] { return rotation; },
                      .strings = Text,
                      .setTitle = [this](const std::string& t) { titles.push_back(t); },
                      .messageTitle = "Ordalyn"}};
};

}  // namespace ordalyn::test
