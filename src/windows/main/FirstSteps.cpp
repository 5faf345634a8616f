#include "windows/main/FirstSteps.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/FileNames.h"
#include "base/TextIds.h"
#include "windows/common/ControlFont.h"

namespace ordalyn {

using toolkit::CommandButton;
using toolkit::Control;
using toolkit::Rect;
using toolkit::Twips;

namespace {

// For the font of the program's own dialogs; a larger one needs more room.
constexpr double kPlainSize = 8, kHeadlineLarger = 1.5;
constexpr Twips kMargin = 300, kGap = 150, kWidestText = 7200;
constexpr Twips kButtonWidth = 2550, kButtonHeight = 375;
// The texts stand a little above the middle.
constexpr Twips kPartAbove = 0.4F;

struct Words {
    TextId headline;
    TextId advice;
};

// The file speaks for itself where there is no advice but the buttons.
constexpr TextId kNoAdvice{""};

Words WordsFor(LogState state, bool follows) {
    const TextId later = follows ? text_id::kLogShowsItself : text_id::kLogBeginsLater;
    switch (state) {
        case LogState::NoFileManager:
            return {text_id::kFileManagerNotFound, text_id::kWhereSettingsAre};
        case LogState::NoSettings:
            return {text_id::kSettingsNotFound, text_id::kWhereSettingsAre};
        case LogState::NotLogging:
            return {text_id::kWritesNoLog, text_id::kSwitchLogOn};
        case LogState::NotYetThere:
            return {text_id::kLogNotYetThere, later};
        case LogState::NoFolder:
            return {text_id::kLogFolderMissing, text_id::kConnectDrive};
        case LogState::NoSuchFile:
            return {text_id::kNoSuchFile, kNoAdvice};
        case LogState::Empty:
            return {text_id::kLogIsEmpty, later};
        case LogState::Unreadable:
            break;
    }
    return {text_id::kLogNotReadable, text_id::kWhyNotReadable};
}

}  // namespace

FirstSteps::FirstSteps(SharedObjects& shared, toolkit::Form& mainWindow, const Parts& parts)
    : shared_(shared),
      mainWindow_(mainWindow),
      parts_(parts),
      picFirstSteps(mainWindow.Get<toolkit::PictureBox>("picFirstSteps")),
      lblHeadline(mainWindow.Get<toolkit::Label>("lblHeadline")),
      lblLogPath(mainWindow.Get<toolkit::Label>("lblLogPath")),
      lblAdvice(mainWindow.Get<toolkit::Label>("lblAdvice")),
      cmdChooseSettings(mainWindow.Get<CommandButton>("cmdChooseSettings")),
      cmdLookAgain(mainWindow.Get<CommandButton>("cmdLookAgain")),
      cmdOpenLog(mainWindow.Get<CommandButton>("cmdOpenLog")),
      cmdFollowLog(mainWindow.Get<CommandButton>("cmdFollowLog")) {
    lblLogPath.SetPlainText(true);
    lblLogPath.SetShortensPath(true);
    // What a menu does as well is done as the menu does it.
    const auto choose = [this](const char* menu) {
        return [this, menu] { mainWindow_.Menu(menu).Choose(); };
    };
    cmdLookAgain.Click.Subscribe(choose("mnuViewRefresh"));
    cmdOpenLog.Click.Subscribe(choose("mnuFileOpen"));
    cmdFollowLog.Click.Subscribe(choose("mnuViewFollow"));
    cmdChooseSettings.Click.Subscribe([this] { ChooseSettings(); });
    parts_.panels.DayShown.Subscribe([this] { Update(); });
    parts_.layout.Arranged.Subscribe([this] { Arrange(); });
    mainWindow.Activate.Subscribe([this] {
        if (std::exchange(focusGoesToPanel_, false) && !mainWindow_.ActivatedByClickOnControl())
            parts_.SourceListView.SetFocus();
    });
}

void FirstSteps::LoadInterface() {
    const mAppSpecific& settings = *shared_.settings;
    for (Control* control :
         std::initializer_list<Control*>{&lblLogPath, &lblAdvice, &cmdChooseSettings, &cmdLookAgain,
                                         &cmdOpenLog, &cmdFollowLog})
        ApplyFont(settings, *control, true, kPlainSize);
    ApplyFont(settings, lblHeadline, true, kPlainSize);
    toolkit::Font large = lblHeadline.Font();
    large.size *= kHeadlineLarger;
    lblHeadline.SetFont(large);
    for (Control* control :
         std::initializer_list<Control*>{&picFirstSteps, &lblHeadline, &lblLogPath, &lblAdvice}) {
        control->SetForeColor(settings.ForegroundColor);
        control->SetBackColor(settings.BackgroundColor);
    }
    picFirstSteps.SetLook(parts_.SourceListView.Look());
    picFirstSteps.SetBorder(parts_.SourceListView.Border());
    Arrange();
}

void FirstSteps::LogWasLookedFor() {
    lookedFor_ = true;
    Update();
}

void FirstSteps::Update() {
    if (!lookedFor_ || mainWindow_.Unloaded())
        return;
    if (parts_.panels.Days().DayCount() > 0) {
        Hide();
        return;
    }
    settingsStamp_ = SettingsStamp();
    outlook_ = Look();
    ShowTexts();
    Show();
}

// What was read and has no rows has no line with a date, as each of a log has.
LogOutlook FirstSteps::Look() {
    const std::string& read = parts_.reading.CurrentLogFile();
    if (!read.empty())
        return {LogState::Unreadable, read};
    return LookForLog(parts_.locator, shared_.common, *shared_.profile, shared_.services);
}

void FirstSteps::ShowTexts() {
    const Words words = WordsFor(outlook_.state, Follows());
    lblHeadline.SetVisible(true);
    lblHeadline.SetCaption(shared_.Text(words.headline));
    lblAdvice.SetVisible(*words.advice.tag != '\0');
    lblAdvice.SetCaption(lblAdvice.Visible() ? shared_.Text(words.advice) : "");
    // Where logging is off, which file it would be is not the question.
    lblLogPath.SetVisible(!outlook_.path.empty() && outlook_.state != LogState::NotLogging);
    lblLogPath.SetCaption(lblLogPath.Visible() ? outlook_.path : "");
    lblLogPath.SetToolTip(lblLogPath.Caption());
    // It begins where the texts begin, but a path is read from the left in every language.
    lblLogPath.SetRightToLeft(false);
}

FirstSteps::Buttons FirstSteps::ButtonsFor(LogState state) const {
    const auto buttons = [](CommandButton& first, CommandButton* second = nullptr) {
        return Buttons{&first, second};
    };
    switch (state) {
        case LogState::NoFileManager:
        case LogState::NoSettings:
            return buttons(cmdChooseSettings, &cmdOpenLog);
        case LogState::NotLogging:
            return buttons(cmdLookAgain);
        case LogState::NotYetThere:
        case LogState::Empty:
            return buttons(cmdLookAgain, Follows() ? nullptr : &cmdFollowLog);
        case LogState::NoFolder:
        case LogState::NoSuchFile:
        case LogState::Unreadable:
            break;
    }
    return buttons(cmdLookAgain, &cmdOpenLog);
}

// The focus stays on a button that can be used.
void FirstSteps::ShowButtons(const Buttons& buttons) {
    const auto isShown = [&](const CommandButton& button) {
        return std::find(buttons.begin(), buttons.end(), &button) != buttons.end();
    };
    buttons_ = buttons;
    for (CommandButton* button : buttons)
        if (button != nullptr)
            button->SetVisible(true);
    for (CommandButton* button : {&cmdChooseSettings, &cmdLookAgain, &cmdOpenLog, &cmdFollowLog}) {
        if (isShown(*button))
            continue;
        if (button->HasFocus())
            buttons.front()->SetFocus();
        button->SetVisible(false);
    }
}

void FirstSteps::Show() {
    ShowButtons(ButtonsFor(outlook_.state));
    const bool before = std::exchange(shown_, true);
    Arrange();
    if (before)
        return;
    picFirstSteps.SetVisible(true);
    buttons_.front()->SetFocus();
    parts_.layout.ShowPanels(false);
}

// While another window is the active one the focus is not to be had.
void FirstSteps::Hide() {
    if (!std::exchange(shown_, false))
        return;
    parts_.layout.ShowPanels(true);
    focusGoesToPanel_ = !mainWindow_.HasFocus();
    if (picFirstSteps.HasFocus())
        parts_.SourceListView.SetFocus();
    picFirstSteps.SetVisible(false);
}

Twips FirstSteps::Enlarged(Twips length) const {
    const auto size = static_cast<Twips>(shared_.settings->FontSize / kPlainSize);
    return length * std::max<Twips>(size, 1);
}

// One below the other, in a column in the middle. Where there is no room for all of it the end is
// cut off.
void FirstSteps::Arrange() {
    if (!shown_)
        return;
    const Rect area = parts_.layout.PanelsArea();
    picFirstSteps.Move(
        {area.left, area.top, std::max<Twips>(area.width, 0), std::max<Twips>(area.height, 0)});
    const Twips width = std::clamp<Twips>(area.width - 2 * kMargin, 0, Enlarged(kWidestText));
    const Twips buttonRow = 2 * Enlarged(kButtonWidth) + kGap;
    const bool oneBelowTheOther = buttonRow > width && buttons_.back() != nullptr;
    // An edge of a label comes to lie on the nearest pixel, which may be one inside.
    const auto pixel = static_cast<Twips>(shared_.screen.twipsPerPixelY);
    struct Line {
        toolkit::Label& label;
        Twips height;
        Twips below;
    };
    std::vector<Line> lines;
    for (const auto& [label, below] : {std::pair{&lblHeadline, kGap / 2},
                                       std::pair{&lblLogPath, kGap}, std::pair{&lblAdvice, kGap}}) {
        if (label->Visible())
            lines.push_back({*label, label->HeightFor(width) + pixel, below});
    }
    Twips total = kGap + Enlarged(kButtonHeight) * (oneBelowTheOther ? 2 : 1);
    for (const Line& line : lines)
        total += line.height + line.below;
    Rect column{(area.width - width) / 2, std::max<Twips>((area.height - total) * kPartAbove, 0),
                width, 0};
    for (const Line& line : lines) {
        line.label.Move({column.left, column.top, width, line.height});
        column.top += line.height + line.below;
    }
    column.top += kGap;
    PlaceButtons(column, oneBelowTheOther);
}

// The first one stands where a reader of the language begins.
void FirstSteps::PlaceButtons(Rect column, bool oneBelowTheOther) {
    const Twips width = std::min(Enlarged(kButtonWidth), column.width);
    const Twips height = Enlarged(kButtonHeight);
    const bool fromRight = mainWindow_.RightToLeft();
    Rect place{fromRight ? column.left + column.width - width : column.left, column.top, width,
               height};
    for (CommandButton* button : buttons_) {
        if (button == nullptr)
            continue;
        button->Move(place);
        if (oneBelowTheOther)
            place.top += height + kGap;
        else
            place.left += (fromRight ? -1 : 1) * (width + kGap);
    }
}

void FirstSteps::ChooseSettings() {
    if (parts_.locator.ChooseCommanderIni() && !mainWindow_.Unloaded())
        SettingsFileChosen.Raise();
}

// Nobody is kept waiting for a drive or a server.
std::optional<platform::FileStamp> FirstSteps::SettingsStamp() const {
    const std::string& ini = shared_.common.CommanderIni();
    if (shared_.services.files.DriveOf(ini) != platform::DriveKind::Fixed)
        return std::nullopt;
    return shared_.services.files.Stamp(ini);
}

std::string FirstSteps::AwaitedLog() {
    if (!shown_)
        return "";
    if (SettingsStamp() != settingsStamp_)
        Update();
    return FormOfPath(outlook_.path) == PathForm::None ? "" : outlook_.path;
}

}  // namespace ordalyn
