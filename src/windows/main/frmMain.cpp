#include "windows/main/frmMain.h"

#include <utility>
#include <vector>

#include "base/Attempt.h"
#include "base/Text.h"
#include "base/TextIds.h"
#include "windows/about/Version.h"
#include "windows/about/frmAbout.h"
#include "windows/common/ControlFont.h"
#include "windows/common/WindowPlacement.h"
#include "windows/main/frmMainDesign.h"
#include "windows/options/frmOptions.h"

namespace ordalyn {

using toolkit::ListView;

namespace {

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
      operations_({.common = shared.common,
                   .profile = *shared.profile,
                   .files = shared.services.files,
                   .codePages = shared.services.codePages}),
      title_(*this),
      columns_(shared, SourceListView, TargetListView),
      copy_(shared.services.clipboard, SourceListView, entries_),
      fileManager_(shared,
                   {*this, SourceListView, TargetListView, Menu("mnuContextShowSource"),
                    Menu("mnuContextShowTarget")},
                   entries_, operations_),
      panels_({*this, cboDate, SourceListView, TargetListView, StatusBar1, Menu("mnuContext"),
               Menu("mnuContextCopyTarget")},
              entries_, filter_, *shared.settings, shared.services.locale, shared.Texts(),
              [this]() -> const OperationReader& { return operations_.Reader(); }),
      progress_(shared.toolkit, *this, shared.FormTexts(),
                [this] { reading_.CancelReading = true; }),
      reading_(shared, *this, entries_, panels_, progress_, title_),
      files_(shared, {*this, cboFiles, SourceListView, Menu("mnuViewRefresh")}, reading_, title_),
      following_(shared, {*this, cboDate, cboFiles, Menu("mnuViewFollow")}, reading_, files_,
                 [this] { return firstSteps_.AwaitedLog(); }),
      rows_({shared, *this, SourceListView, entries_, operations_, reading_, files_, progress_}),
      layout_({*this, cboDate, Get<toolkit::PictureBox>("picSpliterContainer"),
               Get<toolkit::Frame>("Frame1"), SourceListView, TargetListView, StatusBar1,
               Menu("mnuViewStatusBar"), Menu("mnuViewTwoPanels"), Menu("mnuViewVerticalPanels")},
              *shared.settings, {shared.screen.twipsPerPixelX, shared.screen.twipsPerPixelY},
              [this] { return columns_.TargetCaption(); }),
      recentFilesMenu_(*shared.recentFiles, shared.Texts()),
      settingsFileDialog_(shared.toolkit, *shared.commonDialog, this, shared.Texts()),
      locator_({.common = shared.common,
                .registry = *shared.registry,
                .profile = *shared.profile,
                .question = settingsFileDialog_,
                .environment = shared.services.environment}),
      find_(shared, *this, entries_, panels_, filter_),
      calendar_(shared, *this, entries_, panels_, operations_),
      history_(shared, *this, {entries_, panels_, operations_, find_, files_, SourceListView}),
      help_(shared, *this),
      firstSteps_(shared, *this, {layout_, panels_, reading_, locator_, SourceListView}) {
    for (const toolkit::Twips width : kStatusPanels)
        StatusBar1.AddPanel(width);
    // A step that fails leaves its own result out, not the steps behind it.
    FormLanguage::CopyMenuCaptionsToTags(*this);
    shared_.language->ApplyLanguage(*this);
    Attempt([this] { RestoreWindowPosition(*shared_.settings, *this, true); });
    Attempt([this] { ApplySettings(); });
    Attempt([this] { LoadRecentFiles(); });
    Attempt([this] { columns_.Load(); });
    Attempt([this] { columns_.LoadOrder(); });
    Attempt([this] { layout_.ArrangeFirstTime(); });
    Attempt([this] { columns_.FitToPanels(); });
    Attempt([this] { SourceListView.FlattenColumnHeaders(); });
    Attempt([this] { TargetListView.FlattenColumnHeaders(); });
    // There is nothing to find again until something has been searched for.
    Menu("mnuSearchFindNext").SetEnabled(false);
    SetTitle("");
    WireMenus();
    WireParts();
    Resize.Subscribe([this] { layout_.WindowResized(); });
    Activate.Subscribe([this] { FirstActivation(); });
    KeyDown.Subscribe([this](int key, toolkit::Modifiers modifiers) {
        if (key == 'C')
            heldWithC_ = modifiers;
    });
    KeyUp.Subscribe([this](int key, toolkit::Modifiers modifiers) { KeyReleased(key, modifiers); });
    FilesDropped.Subscribe([this](const std::vector<std::string>& paths) {
        if (!paths.empty())
            OpenLog(paths.front());
    });
    Unloading.Subscribe([this] { Close(); });
}

frmMain::~frmMain() = default;

void frmMain::ApplySettings() {
    // A language file that was chosen in the options and is not there is reported at once.
    shared_.language->CheckLanguageFile(shared_.toolkit, nullptr);
    const mAppSpecific& settings = *shared_.settings;
    const auto look = settings.FlatUserInterface != 0 ? toolkit::Appearance::Flat
                                                      : toolkit::Appearance::ThreeDimensional;
    constexpr double kPlainSize = 8;
    for (toolkit::Control* control : std::initializer_list<toolkit::Control*>{
             &SourceListView, &TargetListView, &cboDate, &cboFiles, &StatusBar1})
        ApplyFont(settings, *control, true, kPlainSize);
    for (ListView* list : {&SourceListView, &TargetListView}) {
        list->SetBorder(settings.FixedBorders != 0 ? toolkit::BorderStyle::FixedSingle
                                                   : toolkit::BorderStyle::None);
        list->SetLook(look);
        list->SetGridLines(settings.GridLines != 0);
        list->SetForeColor(settings.ForegroundColor);
        list->SetBackColor(settings.BackgroundColor);
        list->SetMarkColor(settings.FailedColor);
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
    // the options may have changed.
    find_.LoadFilterInterface();
    calendar_.LoadInterface();
    history_.LoadInterface();
    firstSteps_.LoadInterface();
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
    on("mnuViewFailedOnly", [this] {
        const bool only = !panels_.FailedOnly();
        Menu("mnuViewFailedOnly").SetChecked(only);
        panels_.ShowFailedOnly(only);
    });
    on("mnuViewFollow", [this] {
        following_.Toggle();
        firstSteps_.Update();
    });
    on("mnuViewCalendar", [this] { calendar_.Show(); });
    on("mnuHelpHelpTopics", [this] { help_.ShowTopics(); });
    on("mnuHelpAbout", [this] { ShowAbout(); });
    on("mnuContextCopySource", [this] { copy_.CopySource(); });
    on("mnuContextCopyTarget", [this] { copy_.CopyTarget(); });
    on("mnuContextShowSource", [this] { fileManager_.ShowSource(); });
    on("mnuContextShowTarget", [this] { fileManager_.ShowTarget(); });
    on("mnuContextCopyRows", [this] { rows_.CopyRows(); });
    on("mnuFileSaveRows", [this] { rows_.SaveRows(); });
}

void frmMain::WireParts() {
    panels_.RowShown.Subscribe(
        [this](int row) { title_.ShowFile(entries_.FileOf(SourceListView.Tag(row))); });
    panels_.ContextMenuOpens.Subscribe([this] { fileManager_.PrepareMenu(); });
    layout_.RowMoved.Subscribe([this](int row) { panels_.SourceRowClicked(row); });
    reading_.WindowsEnabled.Subscribe([this](bool enabled) {
        find_.EnableDialogs(enabled);
        calendar_.Enable(enabled);
        history_.Enable(enabled);
    });
    reading_.EntriesChanged.Subscribe([this] {
        history_.EntriesChanged();
        firstSteps_.Update();
    });
    firstSteps_.SettingsFileChosen.Subscribe([this] {
        operations_.Forget();
        ReadFoundLog(false);
    });
    reading_.FileOpened.Subscribe([this](const std::string& path) {
        shared_.recentFiles->AddFile(path);
        SaveRecentFiles();
    });
    StatusBar1.PanelClick.Subscribe([this](int panel) { find_.StatusBarPanelClicked(panel); });
}

void frmMain::LoadRecentFiles() {
    recentFilesMenu_.Setup(shared_.settings->NumberOfRecentFiles, *this, Menu("mnuFileRecentGroup"),
                           shared_.Text(text_id::kNoRecentFiles), shared_.Text(text_id::kClearList),
                           shared_.Text(text_id::kAreYouSure));
    recentFilesMenu_.FileChosen.Subscribe([this](std::int32_t index) { OpenRecentFile(index); });
    recentFilesMenu_.ClearChosen.Subscribe([this] {
        if (recentFilesMenu_.Clear())
            SaveRecentFiles();
    });
    shared_.recentFiles->ReadList(shared_.common.SettingsFile(), entry::RecentFiles.section,
                                  entry::RecentFiles.key);
}

void frmMain::SaveRecentFiles() {
    shared_.recentFiles->SaveList(shared_.common.SettingsFile(), entry::RecentFiles.section,
                                  entry::RecentFiles.key);
}

void frmMain::FirstActivation() {
    if (activated_)
        return;
    activated_ = true;
    FindLog();
}

void frmMain::FindLog() {
    // Both can show dialogs, which handle messages; a later activation does nothing by now.
    Attempt([this] { locator_.FindCommanderFolder(); });
    Attempt([this] { locator_.FindCommanderIni(); });
    operations_.Forget();
    ReadFoundLog(true);
}

void frmMain::ReadFoundLog(bool sayNone) {
    if (Unloaded())
        return;
    std::string logFile;
    Attempt([&] { logFile = locator_.FindLogFile(); });
    if (shared_.common.FileExists(logFile)) {
        files_.BuildLogFileList();
        if (reading_.ReadLogFile(false, logFile, false))
            files_.LogOpened();
    } else {
        SetTitle("");
        if (sayNone)
            shared_.toolkit.ShowMessage(this, shared_.Text(text_id::kNoCommanderLog),
                                        mAppCommon::kProgramTitle, toolkit::MessageIcon::Critical);
    }
    firstSteps_.LogWasLookedFor();
}

void frmMain::KeyReleased(int key, toolkit::Modifiers modifiers) {
    if (key == toolkit::key::ContextMenu) {
        panels_.ShowContextMenuAtRow();
        return;
    }
    if (key != 'C')
        return;
    const toolkit::Modifiers before = std::exchange(heldWithC_, {});
    if (!modifiers.control && !before.control)
        return;
    if (!modifiers.alt && !before.alt)
        copy_.CopySource();
    else if (copy_.HasTarget())
        copy_.CopyTarget();
}

void frmMain::OpenLog(const std::string& path) {
    if (reading_.ReadLogFile(path.empty(), path, true))
        files_.LogOpened();
}

void frmMain::OpenRecentFile(std::int32_t index) {
    cRecentFiles& recent = *shared_.recentFiles;
    const std::string path = shared_.common.ExpandPath(recent.ListItems(index));
    if (shared_.common.FileExists(path)) {
        OpenLog(path);
        return;
    }
    shared_.toolkit.ShowMessage(this,
                                shared_.Text(text_id::kCannotFindFile) + " " + path + "\r\n\r\n" +
                                    shared_.Text(text_id::kVerifyPath),
                                mAppCommon::kProgramTitle, toolkit::MessageIcon::Exclamation);
    recent.RemoveFile(index, true);
    SaveRecentFiles();
}

void frmMain::RefreshLog() {
    if (reading_.CurrentLogFile().empty()) {
        FindLog();
        return;
    }
    reading_.Refresh();
    files_.BuildLogFileList();
}

void frmMain::ShowAbout() {
    about_ =
        std::make_unique<frmAbout>(shared_.toolkit, shared_.services.shell, shared_.FormTexts());
    about_->ShowModal(this);
    about_.reset();
}

void frmMain::ShowOptions() {
    mAppSpecific& settings = *shared_.settings;
    const std::int32_t useDefaultLanguage = settings.UseDefaultLanguage;
    const std::string languageFile = settings.LanguageFile;
    bool applied = false;
    options_ = std::make_unique<frmOptions>(
        shared_.toolkit,
        frmOptions::Surroundings{
            .texts = shared_.FormTexts(),
            .settings = settings,
            .commonDialog = *shared_.commonDialog,
            .programFolder = shared_.common.ProgramFolder(),
            .isNoValue = [this](const std::string& text) { return shared_.common.IsNoValue(text); },
            .applySettings =
                [this, &applied] {
                    applied = true;
                    ApplySettings();
                    // The font decides how high the boxes above the panels and the status bar are.
                    layout_.WindowResized();
                },
            .applyNewDateFormat = [this](std::int32_t lngLd) { ApplyNewDateFormat(lngLd); },
            .refreshMainWindow = [this] { Refresh(); }});
    options_->ShowModal(this);
    options_.reset();
    if (applied && !Unloaded())
        SayWhatCouldNotBeKept();
    if (settings.UseDefaultLanguage == useDefaultLanguage &&
        EqualsIgnoreCase(settings.LanguageFile, languageFile))
        return;
    ApplyNewLanguage();
}

// Texts that the walk over the window's controls does not reach are given one by one.
void frmMain::ApplyNewLanguage() {
    shared_.language->ApplyLanguage(*this);
    columns_.ShowCaptions();
    find_.LanguageChanged();
    calendar_.LoadInterface();
    history_.LanguageChanged();
    recentFilesMenu_.ChangeLanguage();
    files_.LanguageChanged();
    panels_.LanguageChanged();
    firstSteps_.Update();
}

void frmMain::Close() {
    shared_.profile->Together([this] { SaveAndCloseDialogs(); });
    SayWhatCouldNotBeKept();
    // Another program may have closed the window while it waited for that.
    if (!Unloaded())
        ShutDown.Raise();
}

void frmMain::SaveAndCloseDialogs() {
    Attempt([this] { columns_.SaveWidths(); });
    Attempt([this] { layout_.SaveSplitterSettings(); });
    Attempt([this] { shared_.settings->SaveSetting(&SettingsValues::StatusBarVisible); });
    Attempt([this] { shared_.settings->SaveSetting(&SettingsValues::FollowLog); });
    Attempt([this] { columns_.SaveOrder(); });
    Attempt([this] { shared_.settings->SaveSetting(&SettingsValues::TwoPanels); });
    Attempt([this] { SaveWindowPosition(*shared_.settings, *this, true); });
    // A dialog that waits for an answer does not keep another program from closing this window.
    if (about_ != nullptr)
        about_->Unload();
    if (options_ != nullptr)
        options_->Unload();
    following_.Stop();
    reading_.Stop();
    progress_.HideProgress();
    history_.Unload();
    find_.UnloadFindDialog();
    find_.UnloadFilterDialog();
    calendar_.Unload();
}

// Once in a run; not when the system ends, which does not wait for an answer.
void frmMain::SayWhatCouldNotBeKept() {
    if (saidNotKept_ || SessionEnds() || shared_.profile->Keep(shared_.common.SettingsFile()))
        return;
    saidNotKept_ = true;
    shared_.toolkit.ShowMessage(
        this, shared_.Text(text_id::kSettingsNotKept) + "\r\n" + shared_.common.SettingsFile(),
        mAppCommon::kProgramTitle, toolkit::MessageIcon::Exclamation);
}

}  // namespace ordalyn
