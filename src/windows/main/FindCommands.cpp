#include "windows/main/FindCommands.h"

#include <utility>

#include "settings/SettingsTable.h"
#include "windows/panels/StatusTexts.h"

namespace ordalyn {

FindCommands::FindCommands(SharedObjects& shared, toolkit::Form& mainWindow,
                           const EntryLists& entries, DayPanels& panels, FilterChoice& filter)
    : shared_(shared),
      mainWindow_(mainWindow),
      mnuSearchFindNext_(mainWindow.Menu("mnuSearchFindNext")),
      panels_(panels),
      filter_(filter),
      history_(*shared.profile, shared.common, *shared.strings),
      search_(entries, panels.Days(), panels) {
    panels_.DayShown.Subscribe([this] { DayShown(); });
}

frmFilters& FindCommands::FilterDialog() {
    if (filterDialog_ == nullptr)
        filterDialog_ = std::make_unique<frmFilters>(
            shared_.toolkit,
            frmFilters::Surroundings{.settings = *shared_.settings,
                                     .strings = *shared_.strings,
                                     .language = *shared_.language,
                                     .history = history_,
                                     .keywords = {.common = shared_.common,
                                                  .profile = *shared_.profile,
                                                  .files = shared_.services.files,
                                                  .codePages = shared_.services.codePages},
                                     .filter = filter_,
                                     .panels = panels_});
    return *filterDialog_;
}

frmSearchFor& FindCommands::FindDialog() {
    LoadOptions();
    if (findDialog_ == nullptr)
        findDialog_ = std::make_unique<frmSearchFor>(
            shared_.toolkit, frmSearchFor::Surroundings{.mnuSearchFindNext = mnuSearchFindNext_,
                                                        .strings = *shared_.strings,
                                                        .language = *shared_.language,
                                                        .history = history_,
                                                        .search = search_});
    return *findDialog_;
}

// The last run's text and options are there as soon as there is something to search, so that Find
// Next works without the dialog.
void FindCommands::LoadOptions() {
    if (std::exchange(optionsLoaded_, true))
        return;
    const FindOptions stored = shared_.settings->LoadFindOptions();
    const std::vector<std::string> texts =
        history_.Texts(entry::FindTexts.key, entry::FindTexts.numbers);
    if (stored.historyIndex && *stored.historyIndex >= 0 &&
        static_cast<std::size_t>(*stored.historyIndex) < texts.size())
        search_.SetText(texts[static_cast<std::size_t>(*stored.historyIndex)],
                        *stored.historyIndex);
    search_.SetColumn(stored.column.value_or(0));
    search_.SetWholeWord(stored.wholeWord.value_or(false));
    search_.SetSelectedDateOnly(stored.selectedDateOnly.value_or(false));
    if (search_.CanSearch())
        mnuSearchFindNext_.SetEnabled(true);
}

void FindCommands::ShowFilterDialog() {
    frmFilters& dialog = FilterDialog();
    if (dialog.Visible()) {
        dialog.SetFocus();
        return;
    }
    dialog.Show(&mainWindow_);
    dialog.FocusFilter();
}

void FindCommands::StatusBarPanelClicked(int panel) {
    if (panel == kFilterPanel)
        ShowFilterDialog();
}

void FindCommands::ShowFindDialog() {
    frmSearchFor& dialog = FindDialog();
    search_.StartOver();
    dialog.PreSelectText();
    DayShown();
    dialog.Show(&mainWindow_);
}

void FindCommands::FindNext() {
    LoadOptions();
    const bool dialogShows = findDialog_ != nullptr && findDialog_->Visible();
    FindNextString(search_, *shared_.strings,
                   dialogShows ? static_cast<toolkit::Form&>(*findDialog_) : mainWindow_);
}

// A search within the selected date needs a single one.
void FindCommands::DayShown() {
    LoadOptions();
    const bool singleDay = panels_.SelectedDay() != kAllDates;
    if (!singleDay)
        search_.SetSelectedDateOnly(false);
    if (findDialog_ != nullptr)
        findDialog_->AllowSelectedDate(singleDay);
}

void FindCommands::LoadFilterInterface() {
    if (filterDialog_ != nullptr)
        filterDialog_->LoadInterface();
}

void FindCommands::LanguageChanged() {
    if (findDialog_ != nullptr)
        shared_.language->ApplyLanguage(*findDialog_);
}

void FindCommands::EnableDialogs(bool enabled) {
    if (filterDialog_ != nullptr)
        filterDialog_->SetEnabled(enabled);
    if (findDialog_ != nullptr)
        findDialog_->SetEnabled(enabled);
}

void FindCommands::UnloadFindDialog() {
    LoadOptions();
    if (findDialog_ != nullptr)
        findDialog_->UnloadAtEnd();
    const SearchOptions& options = search_.Options();
    shared_.settings->SaveFindOptions(
        {options.historyItem, options.ColumnNo, options.wholeWord, options.selectedDateOnly});
}

void FindCommands::UnloadFilterDialog() {
    FilterDialog().UnloadAtEnd();
}

}  // namespace ordalyn
