#include "windows/main/frmMain.h"

#include <utility>
#include <vector>

#include "base/Attempt.h"
#include "base/Text.h"
#include "windows/about/Help.h"
#include "windows/about/Version.h"
#include "windows/about/frmAbout.h"
#include "windows/main/frmMainDesign.h"
#include "windows/options/frmOptions.h"

namespace ordalyn {

using toolkit::ListView;

namespace {

constexpr std::string_view kRecentFilesKey = "RecentFiles";
constexpr std::int32_t kAllDatesText = 4005;
constexpr std::int32_t kAllFilesText = 4006;
// Operations, date, filter; the last takes the rest of the bar.
constexpr toolkit::Twips kStatusPanels[] = {3000, 4200, 0};

}  // namespace

frmMain::frmMain(SharedObjects& shared)
    : Form(shared.toolkit, kMainDesign),
      shared_(shared),
      cboDate(Get<toolkit::ComboBox>("cboDate")),
      cboFiles(Get<toolkit::ComboBox>("cboFiles")),
      SourceListView(Get<ListView>("SourceListView")),
      TargetListView(Get<ListView>("TargetListView")),
      StatusBar1(Get<toolkit::StatusBar>("StatusBar1")),
      columns_(shared, SourceListView, TargetListView),
      copy_(shared.services.clipboard, SourceListView, entries_),
      reader_(shared.services.files, shared.services.codePages, entries_),
      panels_(PanelControls(), entries_, *shared.settings, shared.services.locale,
              [this](std::int32_t id) { return Text(id); }),
      progress_(shared.toolkit, *this, shared.FormTexts(),
                [this] { reading_.CancelReading = true; }),
      reading_(reader_, entries_, ReadingSurroundings()),
      files_(shared.services.files, entries_, reading_, FileSetSurroundings()),
      layout_(
          LayoutControls(), *shared.splitter, *shared.settings,
          {shared.screen.twipsPerPixelX, shared.screen.twipsPerPixelY},
          [this] { return columns_.TargetCaption(); }, [this](int row) { SourceRowClicked(row); }),
      locator_({.common = shared.common,
                .registry = *shared.registry,
                .profile = *shared.profile,
                .dialog = *shared.commonDialog,
                .environment = shared.services.environment,
                .toolkit = shared.toolkit,
                .owner = this,
                .text = [this](std::int32_t id) { return Text(id); }}),
      find_(FindSurroundings()) {
    for (const toolkit::Twips width : kStatusPanels)
        StatusBar1.AddPanel(width);
    // A step that fails leaves its own result out, not the steps behind it.
    FormLanguage::CopyMenuCaptionsToTags(*this);
    shared_.language->ApplyLanguage(*this);
    Attempt([this] { shared_.settings->RestoreWindowPosition(*this, true, kMainPlacement); });
    Attempt([this] { ApplySettings(); });
    Attempt([this] { LoadRecentFiles(); });
    Attempt([this] { columns_.Load(); });
    Attempt([this] { columns_.LoadOrder(); });
    Attempt([this] { layout_.ArrangeFirstTime(); });
    Attempt([this] { SourceListView.FlattenColumnHeaders(); });
    Attempt([this] { TargetListView.FlattenColumnHeaders(); });
    // There is nothing to find again until something has been searched for.
    Menu("mnuSearchFindNext").SetEnabled(false);
    SetTitle("");
    WireMenus();
    WirePanels();
    Resize.Subscribe([this] { layout_.WindowResized(); });
    Activate.Subscribe([this] { FirstActivation(); });
    KeyUp.Subscribe([this](int key, toolkit::Modifiers modifiers) { KeyReleased(key, modifiers); });
    FilesDropped.Subscribe([this](const std::vector<std::string>& paths) {
        if (!paths.empty())
            OpenLog(paths.front());
    });
    Unloading.Subscribe([this] { Close(); });
}

frmMain::~frmMain() = default;

DayPanels::Controls frmMain::PanelControls() {
    return {*this,
            cboDate,
            SourceListView,
            TargetListView,
            StatusBar1,
            Menu("mnuContext"),
            Menu("mnuContextCopyTarget")};
}

MainWindowLayout::Controls frmMain::LayoutControls() {
    return {*this,
            cboDate,
            Get<toolkit::PictureBox>("picSpliterContainer"),
            Get<toolkit::Frame>("Frame1"),
            SourceListView,
            TargetListView,
            StatusBar1,
            Menu("mnuViewStatusBar"),
            Menu("mnuViewTwoPanels"),
            Menu("mnuViewVerticalPanels")};
}

LogFileReading::Surroundings frmMain::ReadingSurroundings() {
    return {.form = *this,
            .SourceListView = SourceListView,
            .panels = panels_,
            .progress = progress_,
            .strings = [this](std::int32_t id) { return Text(id); },
            .chooseFile = [this](const std::string& folder) -> std::optional<std::string> {
                cCommonDialog& dialog = *shared_.commonDialog;
                dialog.ShowOpenDialog(Handle(), folder, "", cCommonDialog::kLogFiles, "", true);
                if (!dialog.Confirmed)
                    return std::nullopt;
                return dialog.FileName;
            },
            .setTitle = [this](const std::string& text) { SetTitle(text); },
            .rememberFile =
                [this](const std::string& path) {
                    shared_.recentFiles->AddFile(path);
                    shared_.recentFiles->SaveList(shared_.common.SettingsFile(), kOrdalynSection,
                                                  kRecentFilesKey);
                },
            .enableWindows =
                [this](bool enabled) {
                    SetEnabled(enabled);
                    find_.EnableDialogs(enabled);
                },
            .messageTitle = std::string(mAppCommon::kProgramTitle)};
}

LogFileSet::Surroundings frmMain::FileSetSurroundings() {
    return {.form = *this,
            .cboFiles = cboFiles,
            .SourceListView = SourceListView,
            .mnuViewRefresh = Menu("mnuViewRefresh"),
            .panels = panels_,
            .rotation =
                [this] {
                    const auto read = [this](std::string_view key) {
                        return shared_.profile
                            ->ReadValue(kConfigurationSection, key, shared_.common.NoValueMarker(),
                                        shared_.common.CommanderIni())
                            .value_or("");
                    };
                    const std::string logFile = read("LogFile");
                    return RotationSettings{.logFileAbsent = shared_.common.IsNoValue(logFile),
                                            .logFile = shared_.common.ExpandPath(logFile),
                                            .rotateLimit = read("LogRotateLimit"),
                                            .keepCount = read("LogKeepCount")};
                },
            .strings = [this](std::int32_t id) { return Text(id); },
            .setTitle = [this](const std::string& text) { SetTitle(text); },
            .messageTitle = std::string(mAppCommon::kProgramTitle)};
}

FindCommands::Surroundings frmMain::FindSurroundings() {
    return {.mainWindow = *this,
            .cboDate = cboDate,
            .SourceListView = SourceListView,
            .TargetListView = TargetListView,
            .StatusBar1 = StatusBar1,
            .mnuSearchFindNext = Menu("mnuSearchFindNext"),
            .entries = entries_,
            .panels = panels_,
            .common = shared_.common,
            .profile = *shared_.profile,
            .settings = *shared_.settings,
            .strings = *shared_.strings,
            .language = *shared_.language,
            .files = shared_.services.files,
            .codePages = shared_.services.codePages};
}

void frmMain::SetTitle(std::string_view text) {
    SetCaption(std::string(mAppCommon::kProgramTitle) + " " + GetVersionText(" RC 1 - ") +
               std::string(text));
}

void frmMain::ApplySettings() {
    const mAppSpecific& settings = *shared_.settings;
    const auto look = settings.FlatUserInterface != 0 ? toolkit::Appearance::Flat
                                                      : toolkit::Appearance::ThreeDimensional;
    constexpr double kPlainSize = 8;
    for (toolkit::Control* control : std::initializer_list<toolkit::Control*>{
             &SourceListView, &TargetListView, &cboDate, &cboFiles, &StatusBar1})
        settings.ApplyFont(*control, true, kPlainSize);
    for (ListView* list : {&SourceListView, &TargetListView}) {
        list->SetBorder(settings.FixedBorders != 0 ? toolkit::BorderStyle::FixedSingle
                                                   : toolkit::BorderStyle::None);
        list->SetLook(look);
        list->SetGridLines(settings.GridLines != 0);
        list->SetForeColor(settings.ForegroundColor);
        list->SetBackColor(settings.BackgroundColor);
    }
    for (toolkit::ComboBox* box : {&cboDate, &cboFiles}) {
        box->SetLook(look);
        box->SetForeColor(settings.ForegroundColor);
        box->SetBackColor(settings.BackgroundColor);
    }
    for (int panel = 1; panel <= StatusBar1.PanelCount(); ++panel) {
        StatusBar1.SetPanelBevel(
            panel, settings.FlatUserInterface != 0 ? toolkit::Bevel::None : toolkit::Bevel::Inset);
    }
    // The filter dialog's boxes look like the panels, and its texts are those of the language that
    // the options may have changed. Makes the dialog when it was never needed before.
    find_.LoadFilterInterface();
}

void frmMain::WireMenus() {
    const auto on = [this](const char* name, auto handler) {
        Menu(name).Click.Subscribe(std::move(handler));
    };
    on("mnuFileOpen", [this] { OpenLog(""); });
    on("mnuFileExit", [this] { Unload(); });
    on("mnuSearchFind", [this] { find_.ShowFindDialog(); });
    on("mnuSearchFindNext", [this] { find_.FindNext(); });
    on("mnuSearchFilter", [this] { find_.ShowFilterDialog(); });
    on("mnuViewStatusBar", [this] { layout_.ToggleStatusBar(); });
    on("mnuViewTwoPanels", [this] { layout_.ToggleTwoPanels(); });
    on("mnuViewVerticalPanels", [this] { layout_.ToggleVerticalPanels(); });
    on("mnuViewRefresh", [this] { RefreshLog(); });
    on("mnuViewOptions", [this] { ShowOptions(); });
    on("mnuHelpHelpTopics", [this] {
        ShowHelp({shared_.toolkit, shared_.services.files, shared_.services.shell,
                  shared_.common.ProgramFolder(), shared_.settings->UseDefaultLanguage != 0,
                  shared_.settings->LanguageFile, [this](std::int32_t id) { return Text(id); }},
                 *this);
    });
    on("mnuHelpAbout", [this] {
        about_ = std::make_unique<frmAbout>(shared_.toolkit, shared_.services.shell,
                                            shared_.FormTexts());
        about_->ShowModal(this);
        about_.reset();
    });
    on("mnuContextCopySource", [this] { copy_.CopySource(); });
    on("mnuContextCopyTarget", [this] { copy_.CopyTarget(); });
}

void frmMain::WirePanels() {
    panels_.SetReactions({.rowClicked = [this](int row) { SourceRowClicked(row); },
                          .applyFilter = [this] { find_.ApplyFilter(false); },
                          .dayChosen = [this](bool singleDay) { find_.DayChosen(singleDay); }});
    StatusBar1.PanelClick.Subscribe([this](int panel) { find_.StatusBarPanelClicked(panel); });
    // Rows can be older than the entries, when a file could not be read, and an entry can be newer
    // than the list of files: such a row has no title to show, which is nothing to report for each
    // arrow key.
    SourceListView.ItemClick.Subscribe(
        [this](int row) { Attempt([&] { SourceRowClicked(row); }); });
    TargetListView.ItemClick.Subscribe(
        [this](int row) { Attempt([&] { TargetRowClicked(row); }); });
    for (ListView* list : {&SourceListView, &TargetListView}) {
        list->MouseUp.Subscribe(
            [this](int button, toolkit::Modifiers, toolkit::Twips, toolkit::Twips) {
                if (button == toolkit::kRightButton)
                    panels_.ShowContextMenu();
            });
    }
}

void frmMain::LoadRecentFiles() {
    cRecentFiles& recent = *shared_.recentFiles;
    recent.Setup(shared_.settings->NumberOfRecentFiles, *this, Menu("mnuFileRecentGroup"),
                 Text(108), Text(109), Text(3009));
    recent.FileChosen.Subscribe([this](std::int32_t index) { OpenRecentFile(index); });
    recent.ClearChosen.Subscribe([this] {
        if (shared_.recentFiles->Clear())
            shared_.recentFiles->SaveList(shared_.common.SettingsFile(), kOrdalynSection,
                                          kRecentFilesKey);
    });
    recent.ReadList(shared_.common.SettingsFile(), kOrdalynSection, kRecentFilesKey);
}

void frmMain::FirstActivation() {
    if (activated_)
        return;
    activated_ = true;
    // Both can show dialogs, which handle messages; a later activation does nothing by now.
    Attempt([this] { locator_.FindCommanderFolder(); });
    Attempt([this] { locator_.FindCommanderIni(); });
    if (Unloaded())
        return;
    std::string logFile;
    Attempt([&] { logFile = locator_.FindLogFile(); });
    if (!shared_.common.FileExists(logFile)) {
        constexpr std::int32_t kNoLogText = 4050;
        reader_.ForgetLogFile();
        SetTitle("");
        shared_.toolkit.ShowMessage(this, Text(kNoLogText), mAppCommon::kProgramTitle,
                                    toolkit::MessageIcon::Critical);
        return;
    }
    files_.BuildLogFileList();
    reading_.ReadLogFile(false, logFile, false, true);
}

void frmMain::SourceRowClicked(int row) {
    if (shared_.settings->TwoPanels != 0) {
        TargetListView.SelectRow(row);
        TargetListView.EnsureVisible(row);
    }
    ShowEntryOfRow(row);
}

void frmMain::TargetRowClicked(int row) {
    SourceListView.SelectRow(row);
    SourceListView.EnsureVisible(row);
    ShowEntryOfRow(row);
}

void frmMain::ShowEntryOfRow(int row) {
    const std::int32_t entry = SourceListView.Tag(row);
    if (panels_.SelectedDay() == DayPanels::kAllDates)
        panels_.ShowDateInStatusBar(shared_.settings->LongDate != 0,
                                    entries_.EntryDates().List(entry));
    // The folder is the live log's, also when the file was opened from another one.
    SetTitle(files_.LogFolder() + std::string(entries_.EntryFiles().List(entry)));
}

void frmMain::KeyReleased(int key, toolkit::Modifiers modifiers) {
    if (key == toolkit::key::ContextMenu) {
        panels_.ShowContextMenu();
        return;
    }
    if (key != 'C' || !modifiers.control)
        return;
    if (!modifiers.alt)
        copy_.CopySource();
    else if (copy_.HasTarget())
        copy_.CopyTarget();
}

void frmMain::OpenLog(const std::string& path) {
    reading_.ReadLogFile(path.empty(), path, true, true);
    files_.DeselectLogFile();
}

void frmMain::OpenRecentFile(std::int32_t index) {
    cRecentFiles& recent = *shared_.recentFiles;
    const std::string path = shared_.common.ExpandPath(recent.ListItems(index));
    if (shared_.common.FileExists(path)) {
        OpenLog(path);
        return;
    }
    shared_.toolkit.ShowMessage(this, Text(3021) + " " + path + "\r\n\r\n" + Text(3022),
                                mAppCommon::kProgramTitle, toolkit::MessageIcon::Exclamation);
    recent.RemoveFile(index, true);
    recent.SaveList(shared_.common.SettingsFile(), kOrdalynSection, kRecentFilesKey);
}

void frmMain::RefreshLog() {
    reading_.ReadAppendedLines(reader_.CurrentLogFile());
    files_.BuildLogFileList();
}

void frmMain::ShowOptions() {
    mAppSpecific& settings = *shared_.settings;
    const std::int32_t useDefaultLanguage = settings.UseDefaultLanguage;
    const std::string languageFile = settings.LanguageFile;
    options_ = std::make_unique<frmOptions>(
        shared_.toolkit,
        frmOptions::Surroundings{
            .texts = shared_.FormTexts(),
            .settings = settings,
            .commonDialog = *shared_.commonDialog,
            .programFolder = shared_.common.ProgramFolder(),
            .isNoValue = [this](const std::string& text) { return shared_.common.IsNoValue(text); },
            .applySettings =
                [this] {
                    ApplySettings();
                    // The font decides how high the boxes above the panels and the status bar are.
                    layout_.WindowResized();
                },
            .applyNewDateFormat = [this](std::int32_t lngLd) { ApplyNewDateFormat(lngLd); },
            .refreshMainWindow = [this] { Refresh(); }});
    options_->ShowModal(this);
    options_.reset();
    if (settings.UseDefaultLanguage == useDefaultLanguage &&
        EqualsIgnoreCase(settings.LanguageFile, languageFile))
        return;
    ApplyNewLanguage();
}

// Texts that the walk over the window's controls does not reach are given one by one.
void frmMain::ApplyNewLanguage() {
    shared_.language->ApplyLanguage(*this);
    columns_.ShowCaptions();
    panels_.ShowOperationCount();
    find_.LanguageChanged();
    shared_.recentFiles->ChangeLanguage();
    if (cboFiles.Visible() && cboFiles.ListCount() > 0)
        cboFiles.SetItem(0, Text(kAllFilesText));
    if (panels_.FirstDayItem() == 1)
        cboDate.SetItem(0, Text(kAllDatesText));
}

void frmMain::Close() {
    Attempt([this] { columns_.SaveWidths(); });
    Attempt(
        [this] { layout_.SaveSplitterSettings(*shared_.profile, shared_.common.SettingsFile()); });
    Attempt([this] { shared_.settings->SaveSetting("StatusBarVisible"); });
    Attempt([this] { columns_.SaveOrder(); });
    Attempt([this] { shared_.settings->SaveSetting("TwoPanels"); });
    Attempt([this] { shared_.settings->SaveWindowPosition(*this, true); });
    // A dialog that waits for an answer does not keep another program from closing this window.
    if (about_ != nullptr)
        about_->Unload();
    if (options_ != nullptr)
        options_->Unload();
    reading_.Stop();
    progress_.HideProgress();
    find_.UnloadFindDialog();
    find_.UnloadFilterDialog();
    ShutDown.Raise();
}

}  // namespace ordalyn
