#include "windows/main/CalendarCommands.h"

#include "log/DottedDate.h"
#include "search/FailedEntries.h"

namespace ordalyn {

namespace {

// As everywhere, a date is what the system takes it for.
std::optional<CalendarDays::Date> ReadLogDate(platform::Locale& locale, std::string_view text) {
    auto date = locale.ReadDate(text);
    if (!date)
        date = ReadDottedDate(text);
    return date ? std::optional(CalendarDays::Date(*date)) : std::nullopt;
}

}  // namespace

CalendarCommands::CalendarCommands(SharedObjects& shared, toolkit::Form& mainWindow,
                                   const EntryLists& entries, DayPanels& panels,
                                   LogOperations& operations)
    : shared_(shared),
      mainWindow_(mainWindow),
      entries_(entries),
      panels_(panels),
      days_([&shared](std::string_view text) { return ReadLogDate(shared.services.locale, text); },
            [&entries, &operations](std::int32_t entry) {
                return HasFailed(operations.Reader(), entries, entry);
            }) {
    panels_.DaysListed.Subscribe([this] { DaysListed(); });
    panels_.DayShown.Subscribe([this] {
        if (IsSeen())
            window_->ChosenDayChanged();
    });
}

frmCalendar& CalendarCommands::Window() {
    if (window_ == nullptr)
        window_ = std::make_unique<frmCalendar>(
            shared_.toolkit,
            frmCalendar::Surroundings{
                .texts = shared_.FormTexts(),
                .settings = *shared_.settings,
                .locale = shared_.services.locale,
                .days = days_,
                .chosenDay = [this] { return days_.DateOf(panels_.SelectedDay()); },
                .chooseDay = [this](std::int32_t day) { panels_.ChooseDay(day); }});
    return *window_;
}

void CalendarCommands::Show() {
    frmCalendar& window = Window();
    if (!counted_)
        Count();
    window.GoToChosenDay();
    if (window.Visible())
        window.SetFocus();
    else
        window.Show(&mainWindow_);
}

void CalendarCommands::DaysListed() {
    counted_ = false;
    if (IsSeen())
        Count();
}

void CalendarCommands::Count() {
    days_.Count(entries_, panels_.Days());
    counted_ = true;
    Window().DaysChanged();
}

void CalendarCommands::LoadInterface() {
    if (window_ != nullptr)
        window_->LoadInterface();
}

void CalendarCommands::Enable(bool enabled) {
    if (window_ != nullptr)
        window_->SetEnabled(enabled);
}

void CalendarCommands::Unload() {
    if (window_ != nullptr)
        window_->UnloadAtEnd();
}

}  // namespace ordalyn
