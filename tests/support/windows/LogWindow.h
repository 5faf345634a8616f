// A window with the controls that the log's parts work on, in memory, and the parts wired to them.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

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
        system.files.AddFolder("C:\\Ordalyn");
        shared.common.SetCommanderIni("C:\\tc\\wincmd.ini");
        SetRotation("-1");
        SourceListView.AddColumn("Time", 884, EntryRows::kTime);
        SourceListView.AddColumn("Source", 10019, EntryRows::kOperation);
        TargetListView.AddColumn("Target", 10890, EntryRows::kTarget);
        for (int i = 0; i < 3; ++i)
            StatusBar1.AddPanel(1000);
        panels.RowShown.Subscribe([this](int row) { shownRows.push_back(row); });
        panels.DayShown.Subscribe([this] { daysShown.push_back(panels.SelectedDay()); });
        reading.FileOpened.Subscribe(
            [this](const std::string& path) { remembered.push_back(path); });
        system.dialogs.onOpenFile = [this](const platform::Dialogs::OpenRequest& request) {
            dialogFolders.push_back(request.initialFolder);
            return chosenFile;
        };
    }

    void SinglePanel() {
        settings.TwoPanels = 0;
        SourceListView.AddColumn("Target", 10890, EntryRows::kTarget);
    }
    // What the file manager's settings say.
    void SetRotation(const std::string& limit, const std::string& logFile = kLog) {
        system.files.Set("C:\\tc\\wincmd.ini", "[Configuration]\r\nLogFile=" + logFile +
                                                   "\r\nLogRotateLimit=" + limit +
                                                   "\r\nLogKeepCount=3\r\n");
    }
    void UseLanguageFile(const std::string& lines) {
        system.files.Set("C:\\Ordalyn\\other.lng", "[UserLanguage]\r\n" + lines + "\r\n");
        settings.UseDefaultLanguage = 0;
        settings.LanguageFile = "C:\\Ordalyn\\other.lng";
    }
    // Makes a log of these lines the entries and builds the date list.
    void Load(const std::vector<std::string>& lines, bool selectLast = true) {
        Write(kLog, lines);
        reading.ReadLogFile(false, kLog, false);
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
    // What the window's caption says, each behind program and version.
    std::vector<std::string> Titles() const {
        std::vector<std::string> titles;
        for (const std::string& caption : MemoryToolkit::Of(form).captions)
            titles.push_back(caption.substr(std::string("Ordalyn 1.00 RC 1 - ").size()));
        return titles;
    }
    void ForgetTitles() { MemoryToolkit::Mutable(form).captions.clear(); }

    static constexpr const char* kLog = "C:\\logs\\x.log";

    MemoryToolkit tools;
    MemoryPlatform system;
    SharedObjects shared{system.services, tools};
    mAppSpecific& settings = *shared.settings;
    toolkit::Form form{tools, kLogDesign};
    toolkit::ComboBox& cboDate = form.Get<toolkit::ComboBox>("cboDate");
    toolkit::ComboBox& cboFiles = form.Get<toolkit::ComboBox>("cboFiles");
    toolkit::ListView& SourceListView = form.Get<toolkit::ListView>("SourceListView");
    toolkit::ListView& TargetListView = form.Get<toolkit::ListView>("TargetListView");
    toolkit::StatusBar& StatusBar1 = form.Get<toolkit::StatusBar>("StatusBar1");
    toolkit::MenuItem& mnuViewRefresh = form.Menu("mnuViewRefresh");
    toolkit::MenuItem& mnuContextCopyTarget = form.Menu("mnuContextCopyTarget");

    EntryLists entries;
    OperationReader reader{{{OperationKind::Copy, "Copy"}, {OperationKind::Move, "Move"}}};
    FilterChoice filter;
    std::vector<int> shownRows;
    std::vector<std::int32_t> daysShown;
    DayPanels panels{{form, cboDate, SourceListView, TargetListView, StatusBar1,
                      form.Menu("mnuContext"), mnuContextCopyTarget},
                     entries,
                     filter,
                     settings,
                     system.locale,
                     shared.Texts(),
                     [this]() -> const OperationReader& { return reader; }};
    FakeProgress progress;
    MainTitle title{form};
    std::vector<std::string> remembered;
    std::vector<std::string> dialogFolders;
    std::optional<std::string> chosenFile;
    LogFileReading reading{shared, form, entries, panels, progress, title};
    LogFileSet files{shared, {form, cboFiles, SourceListView, mnuViewRefresh}, reading, title};
};

}  // namespace ordalyn::test
