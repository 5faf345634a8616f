#include "windows/calendar/frmCalendar.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "base/TextIds.h"
#include "windows/calendar/Shades.h"
#include "windows/common/ControlFont.h"
#include "windows/common/WindowPlacement.h"

namespace ordalyn {

using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;
using toolkit::Kind;
using toolkit::Twips;
namespace key = toolkit::key;

namespace {

constexpr Twips kEdge = 120;
constexpr Twips kLine = 240;
constexpr Twips kButtonWidth = 1860, kButtonHeight = 375;
constexpr toolkit::Size kClient = {9240, 8520};
// Entries that are looked at before the picture is drawn, and again each time when there is nothing
// else to do: some thousandths of a second.
constexpr std::int32_t kLooksAtATime = 50'000;

constexpr toolkit::ControlDesign kControls[] = {
    {.kind = Kind::Canvas, .name = "cnvDays", .nameTag = text_id::kCalendarTitle.tag},
    {.kind = Kind::Label, .name = "lblDay"},
    {.kind = Kind::Label, .name = "lblLeftOut"},
    {.kind = Kind::CommandButton, .name = "cmdPrevious", .tag = text_id::kPreviousYear.tag},
    {.kind = Kind::CommandButton, .name = "cmdNext", .tag = text_id::kNextYear.tag},
    {.kind = Kind::CommandButton, .name = "cmdClose", .tag = text_id::kClose.tag, .isCancel = true},
};

constexpr toolkit::FormDesign kDesign = {
    .name = "frmCalendar",
    .tag = text_id::kCalendarTitle.tag,
    .clientSize = kClient,
    .style = {.resizable = true},
    .controls = kControls,
    .helpPage = "calendar",
};

// February 29 becomes 28 where there is none.
sys_days InYear(sys_days day, year wanted) {
    const year_month_day date(day);
    const year_month_day same = wanted / date.month() / date.day();
    return same.ok() ? sys_days(same) : sys_days(wanted / date.month() / std::chrono::last);
}

}  // namespace

frmCalendar::frmCalendar(toolkit::Toolkit& toolkit, const Surroundings& around)
    : Form(toolkit, kDesign),
      around_(around),
      cnvDays(Get<toolkit::Canvas>("cnvDays")),
      lblDay(Get<toolkit::Label>("lblDay")),
      lblLeftOut(Get<toolkit::Label>("lblLeftOut")),
      cmdPrevious(Get<toolkit::CommandButton>("cmdPrevious")),
      cmdNext(Get<toolkit::CommandButton>("cmdNext")),
      cmdClose(Get<toolkit::CommandButton>("cmdClose")),
      picture_(cnvDays) {
    lblDay.SetPlainText(true);
    RestoreWindowPosition(around_.settings, *this, false);
    WireControls();
    LoadInterface();
    Arrange();
    DaysChanged();
}

void frmCalendar::WireControls() {
    cnvDays.Paint.Subscribe([this](toolkit::Painter& on) { Paint(on); });
    cnvDays.MouseMove.Subscribe([this](int, toolkit::Modifiers, Twips x, Twips y) {
        PointAt(HasDays() ? picture_.DayAt(Year(), x, y) : std::nullopt);
    });
    cnvDays.MouseLeave.Subscribe([this] { PointAt(std::nullopt); });
    cnvDays.MouseDown.Subscribe([this](int button, toolkit::Modifiers, Twips x, Twips y) {
        pressed_.reset();
        if (button == toolkit::kLeftButton && HasDays())
            pressed_ = picture_.DayAt(Year(), x, y);
    });
    cnvDays.MouseUp.Subscribe([this](int button, toolkit::Modifiers, Twips x, Twips y) {
        if (button != toolkit::kLeftButton || !pressed_ || !HasDays() ||
            picture_.DayAt(Year(), x, y) != pressed_)
            return;
        GoTo(*pressed_);
        Choose(*pressed_);
    });
    cnvDays.Wheel.Subscribe(
        [this](int notches) { GoToYear(Year() - std::chrono::years(notches)); });
    cnvDays.KeyOffered.Subscribe([this](int key, bool& used) { UseKey(key, used); });
    cmdPrevious.Click.Subscribe([this] { GoToYear(Year() - std::chrono::years(1)); });
    cmdNext.Click.Subscribe([this] { GoToYear(Year() + std::chrono::years(1)); });
    cmdClose.Click.Subscribe([this] { Hide(); });
    Resize.Subscribe([this] { Arrange(); });
    QueryUnload.Subscribe([this](bool& keep) {
        SaveWindowPosition(around_.settings, *this, false);
        if (ending_)
            return;
        keep = true;
        Hide();
    });
}

// The picture takes what the lines and buttons below it leave.
void frmCalendar::Arrange() {
    const toolkit::Size inside = ClientSize();
    const Twips width = std::max<Twips>(inside.width - 2 * kEdge, 0);
    Twips bottom = inside.height - kEdge - kButtonHeight;
    const auto place = [&](toolkit::Control& control, Twips left, Twips wide, Twips high) {
        control.Move({RightToLeft() ? inside.width - left - wide : left, bottom, wide, high});
    };
    place(cmdPrevious, kEdge, kButtonWidth, kButtonHeight);
    place(cmdNext, 2 * kEdge + kButtonWidth, kButtonWidth, kButtonHeight);
    place(cmdClose, std::max(inside.width - kEdge - kButtonWidth, 3 * kEdge + 2 * kButtonWidth),
          kButtonWidth, kButtonHeight);
    bottom -= kEdge;
    for (toolkit::Label* line : {&lblLeftOut, &lblDay}) {
        if (line == &lblLeftOut && around_.days.LeftOut() == 0)
            continue;
        bottom -= kLine;
        place(*line, kEdge, width, kLine);
    }
    const Twips top = kEdge;
    cnvDays.Move({kEdge, top, width, std::max<Twips>(bottom - kEdge / 2 - top, 0)});
}

void frmCalendar::LoadInterface() {
    constexpr double kPlainSize = 8;
    ApplyFont(around_.settings, cnvDays, true, kPlainSize);
    cnvDays.SetForeColor(around_.settings.ForegroundColor);
    cnvDays.SetBackColor(around_.settings.BackgroundColor);
    around_.texts.apply(*this);
    cnvDays.SetRightToLeft(RightToLeft());
    CalendarPicture::Words words;
    for (unsigned i = 0; i < words.months.size(); ++i)
        words.months.at(i) = around_.locale.MonthName(month(i + 1));
    for (unsigned i = 0; i < words.weekdays.size(); ++i)
        words.weekdays.at(i) = around_.locale.WeekdayName(std::chrono::weekday(i));
    words.firstWeekday = around_.locale.FirstWeekday();
    words.fewer = around_.texts.text(text_id::kFewerOperations);
    words.more = around_.texts.text(text_id::kMoreOperations);
    words.failed = around_.texts.text(text_id::kSomethingFailed);
    picture_.SetWords(std::move(words));
    Arrange();
    ShowYear();
}

year frmCalendar::FirstYear() const {
    return year_month_day(around_.days.Days().front().date).year();
}

year frmCalendar::LastYear() const {
    return year_month_day(around_.days.Days().back().date).year();
}

// A log that grows shows its day anew each time; who looks at another year is left there.
bool frmCalendar::FollowChosenDay() {
    const std::optional<Date> before = std::exchange(chosen_, around_.chosenDay());
    if (!chosen_ || chosen_ == before)
        return false;
    current_ = *chosen_;
    pointed_.reset();
    return true;
}

void frmCalendar::DaysChanged() {
    pointed_.reset();
    pressed_.reset();
    if (!FollowChosenDay() && HasDays() && (Year() < FirstYear() || Year() > LastYear()))
        current_ = around_.days.Days().back().date;
    lblLeftOut.SetVisible(around_.days.LeftOut() > 0);
    Arrange();
    ShowYear();
}

void frmCalendar::ChosenDayChanged() {
    FollowChosenDay();
    ShowYear();
}

void frmCalendar::GoToChosenDay() {
    chosen_.reset();
    ChosenDayChanged();
}

// Where entries are not all looked at, marks are added to the picture when there is time for it.
void frmCalendar::Paint(toolkit::Painter& on) {
    if (!HasDays()) {
        picture_.DrawWords(on, Reason());
        return;
    }
    CalendarPicture::Content content{
        .year = Year(), .days = {}, .chosen = around_.chosenDay(), .current = current_};
    std::int32_t looks = kLooksAtATime;
    bool all = true;
    for (Date date = sys_days(Year() / 1 / 1); date <= sys_days(Year() / 12 / 31);
         date += days(1)) {
        CalendarPicture::Square& square = content.days.emplace_back();
        if (const CalendarDays::Day* const day = around_.days.Find(date)) {
            all = around_.days.LookAt(*day, looks) && all;
            square.busyness = Busyness(day->entries, around_.days.MostEntriesOfADay());
            square.failed = around_.days.FailedSoFar(*day) > 0;
        }
    }
    picture_.Draw(on, content);
    if (!all)
        cnvDays.Invalidate();
}

// Where a key leads; nothing for a key that leads nowhere.
std::optional<frmCalendar::Date> frmCalendar::Target(int key) const {
    const int forward = RightToLeft() ? -1 : 1;
    switch (key) {
        case key::Left:
            return current_ - days(forward);
        case key::Right:
            return current_ + days(forward);
        case key::Up:
            return current_ - days(7);
        case key::Down:
            return current_ + days(7);
        case key::Home:
            return around_.days.Days().front().date;
        case key::End:
            return around_.days.Days().back().date;
        case key::PageUp:
            return InYear(current_, std::max(Year() - std::chrono::years(1), FirstYear()));
        case key::PageDown:
            return InYear(current_, std::min(Year() + std::chrono::years(1), LastYear()));
        default:
            return std::nullopt;
    }
}

void frmCalendar::UseKey(int key, bool& used) {
    if (!HasDays())
        return;
    if (key == key::Enter || key == key::Space) {
        used = true;
        Choose(current_);
        return;
    }
    const std::optional<Date> target = Target(key);
    if (!target)
        return;
    used = true;
    formPeer().ShowKeyboardCues();
    GoTo(*target);
}

void frmCalendar::GoTo(Date day) {
    current_ = std::clamp(day, Date(FirstYear() / 1 / 1), Date(LastYear() / 12 / 31));
    pointed_.reset();
    ShowYear();
}

void frmCalendar::GoToYear(year wanted) {
    if (HasDays())
        GoTo(InYear(current_, std::clamp(wanted, FirstYear(), LastYear())));
}

void frmCalendar::PointAt(std::optional<Date> day) {
    if (day == pointed_)
        return;
    pointed_ = day;
    ShowDay();
    cnvDays.SetToolTip(day ? TextOf(*day) : "");
}

// A day without entries is none of the log's.
void frmCalendar::Choose(Date day) {
    if (const CalendarDays::Day* const found = around_.days.Find(day))
        around_.chooseDay(found->inLog);
}

void frmCalendar::ShowYear() {
    cmdPrevious.SetEnabled(HasDays() && Year() > FirstYear());
    cmdNext.SetEnabled(HasDays() && Year() < LastYear());
    const std::int32_t leftOut = around_.days.LeftOut();
    lblLeftOut.SetCaption(leftOut == 0
                              ? ""
                              : ReplaceIgnoreCase(around_.texts.text(text_id::kDaysLeftOut), "%i",
                                                  std::to_string(leftOut)));
    ShowDay();
    cnvDays.Invalidate();
}

// The day that the pointer is on, else the one that keys are for. Who hears the window hears the
// latter only.
void frmCalendar::ShowDay() {
    const std::string current = HasDays() ? TextOf(current_) : Reason();
    lblDay.SetCaption(pointed_ ? TextOf(*pointed_) : current);
    const std::string name = around_.texts.text(text_id::kCalendarTitle) + ", " + current;
    if (cnvDays.AccessibleName() != name)
        cnvDays.SetAccessibleName(name);
}

std::string frmCalendar::TextOf(Date date) const {
    const CalendarDays::Day* const day = around_.days.Find(date);
    const std::int32_t failed = day != nullptr ? around_.days.FailedOn(*day) : 0;
    const std::int32_t text = day == nullptr ? text_id::kDayWithout
                              : failed > 0   ? text_id::kDayFailed
                                             : text_id::kDayOperations;
    std::string words = around_.texts.text(text);
    words = ReplaceIgnoreCase(words, "%i", std::to_string(day != nullptr ? day->entries : 0));
    words = ReplaceIgnoreCase(words, "%f", std::to_string(failed));
    return ReplaceIgnoreCase(words, "%d", around_.locale.LongDateOf(date));
}

std::string frmCalendar::Reason() const {
    return around_.texts.text(around_.days.LeftOut() > 0 ? text_id::kNoKnownDays
                                                         : text_id::kNoDays);
}

void frmCalendar::UnloadAtEnd() {
    ending_ = true;
    Unload();
}

}  // namespace ordalyn
