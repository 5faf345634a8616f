#include "windows/find/FindCommands.h"

namespace ordalyn {

FindCommands::FindCommands(const Surroundings& around)
    : around_(around),
      history_(around.profile, around.common, around.strings),
      filter_(FilterSurroundings()),
      search_({.entries = around.entries,
               .panels = around.panels,
               .cboDate = around.cboDate,
               .SourceListView = around.SourceListView,
               .settings = around.settings}) {}

PanelFilter::Surroundings FindCommands::FilterSurroundings() {
    return {.entries = around_.entries,
            .panels = around_.panels,
            .SourceListView = around_.SourceListView,
            .TargetListView = around_.TargetListView,
            .StatusBar1 = around_.StatusBar1,
            .settings = around_.settings,
            .strings = [this](std::int32_t id) { return around_.strings.GetInterfaceString(id); },
            .choice = [this] { return FilterDialog().Choice(); }};
}

frmFilters& FindCommands::FilterDialog() {
    if (filterDialog_ == nullptr)
        filterDialog_ = std::make_unique<frmFilters>(
            around_.mainWindow.toolkit(),
            frmFilters::Surroundings{.settings = around_.settings,
                                     .strings = around_.strings,
                                     .language = around_.language,
                                     .history = history_,
                                     .keywords = {.common = around_.common,
                                                  .profile = around_.profile,
                                                  .files = around_.files,
                                                  .codePages = around_.codePages},
                                     .applyFilter = [this] { ApplyFilter(true); }});
    return *filterDialog_;
}

frmSearchFor& FindCommands::FindDialog() {
    if (findDialog_ == nullptr)
        findDialog_ = std::make_unique<frmSearchFor>(
            around_.mainWindow.toolkit(),
            frmSearchFor::Surroundings{.mainWindow = around_.mainWindow,
                                       .mnuSearchFindNext = around_.mnuSearchFindNext,
                                       .settings = around_.settings,
                                       .strings = around_.strings,
                                       .language = around_.language,
                                       .history = history_,
                                       .search = search_});
    return *findDialog_;
}

void FindCommands::ShowFilterDialog() {
    frmFilters& dialog = FilterDialog();
    if (dialog.Visible()) {
        dialog.SetFocus();
        return;
    }
    dialog.Show(&around_.mainWindow);
    dialog.FocusFilter();
}

void FindCommands::StatusBarPanelClicked(int panel) {
    if (panel == PanelFilter::kStatusPanel)
        ShowFilterDialog();
}

void FindCommands::ShowFindDialog() {
    frmSearchFor& dialog = FindDialog();
    dialog.StartItem = 0;
    dialog.PreSelectText();
    DayChosen(around_.panels.SelectedDay() != DayPanels::kAllDates);
    dialog.Show(&around_.mainWindow);
}

void FindCommands::FindNext() {
    FindDialog().FindNextString();
}

void FindCommands::ApplyFilter(bool blnPreShow) {
    filter_.ApplyFilter(blnPreShow);
}

void FindCommands::DayChosen(bool singleDay) {
    FindDialog().AllowSelectedDate(singleDay);
}

void FindCommands::LoadFilterInterface() {
    FilterDialog().LoadInterface();
}

void FindCommands::LanguageChanged() {
    around_.language.ApplyLanguage(FindDialog());
    filter_.ShowFilterInStatusBar();
}

void FindCommands::EnableDialogs(bool enabled) {
    if (filterDialog_ != nullptr)
        filterDialog_->SetEnabled(enabled);
    if (findDialog_ != nullptr)
        findDialog_->SetEnabled(enabled);
}

void FindCommands::UnloadFindDialog() {
    FindDialog().UnloadAtEnd();
}

void FindCommands::UnloadFilterDialog() {
    FilterDialog().UnloadAtEnd();
}

}  // namespace ordalyn
