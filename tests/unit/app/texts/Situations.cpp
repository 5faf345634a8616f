#include "unit/app/texts/Situations.h"

#include <regex>

#include "base/TextIds.h"
#include "windows/main/FindCommands.h"
#include "windows/progress/ProgressWindow.h"

namespace ordalyn::test {

std::string WithoutAccessKeys(const std::string& caption) {
    static const std::regex bracketed(R"(\(&\w\))");
    return std::regex_replace(std::regex_replace(caption, bracketed, ""), std::regex("&"), "");
}

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? ""
                                      : text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

namespace {

using Kind = Situation::Kind;

constexpr const char* kDamaged = "D:\\Archiv\\damaged.log";

// One line for each part of a window that has a text.
class Lines {
  public:
    void Add(const std::string& text) {
        if (!text.empty())
            lines_ += (lines_.empty() ? "" : "\n") + WithoutAccessKeys(text);
    }
    const std::string& All() const { return lines_; }

  private:
    std::string lines_;
};

std::string WindowLines(const toolkit::Form& form) {
    Lines lines;
    lines.Add(form.Caption());
    for (const auto& control : form.Controls()) {
        const Shown& shown = MemoryToolkit::Of(*control);
        lines.Add(control->Caption());
        lines.Add(control->AccessibleName());
        for (const std::string& tab : shown.tabs)
            lines.Add(tab);
        if (control->ControlKind() == toolkit::Kind::ComboBox) {
            for (const std::string& item : shown.items)
                lines.Add(item);
        }
        if (const auto* bar = dynamic_cast<const toolkit::ToolBar*>(control.get())) {
            for (int button = 1; button <= bar->ButtonCount(); ++button) {
                lines.Add(bar->ButtonAt(button).toolTip);
                for (const auto& entry : bar->ButtonAt(button).menu)
                    lines.Add(entry.text);
            }
        }
    }
    return lines.All();
}

// The about box, where a value stands behind each label.
std::string AboutLines(const toolkit::Form& about) {
    std::string lines = about.Caption();
    bool value = false;
    for (const auto& control : about.Controls()) {
        if (control->ControlKind() != toolkit::Kind::Label)
            continue;
        lines += (value ? " " : "\n") + control->Caption();
        value = control->Caption().ends_with(":");
        if (!MemoryToolkit::Of(*control).toolTip.empty())
            lines += "\n(" + MemoryToolkit::Of(*control).toolTip + ")";
    }
    return lines;
}

// What the menu entry's dialog shows.
std::string InDialog(Speaker& speaker, const char* menu,
                     std::string (*lines)(const toolkit::Form&)) {
    std::string shown;
    speaker.tools.modalScripts.push_back([&](toolkit::Form& dialog) { shown = lines(dialog); });
    speaker.Choose(menu);
    return shown;
}

// Filter and find beside those of the main window, which shows no one its dialogs. They listen to
// the same controls: what the program itself does with its rows is to be looked at before.
struct OwnCommands {
    explicit OwnCommands(Speaker& speaker)
        : main(speaker.Main()),
          panels({main, speaker.Date(), speaker.Source(), speaker.Target(), speaker.Status(),
                  main.Menu("mnuContext"), main.Menu("mnuContextCopyTarget")},
                 entries, filter, *speaker.Shared().settings, speaker.system.locale,
                 speaker.Shared().Texts()),
          commands(speaker.Shared(), main, entries, panels, filter) {}

    frmMain& main;
    EntryLists entries;
    FilterChoice filter;
    DayPanels panels;
    FindCommands commands;
};

OwnCommands& Own(Speaker& speaker) {
    if (speaker.kept == nullptr)
        speaker.kept = std::make_shared<OwnCommands>(speaker);
    return *static_cast<OwnCommands*>(speaker.kept.get());
}

void AddMenu(Lines& lines, const std::string& above, const std::vector<ShownMenu>& items) {
    for (const ShownMenu& item : items) {
        const std::string place = above + item.caption;
        if (item.items.empty() && !item.separator)
            lines.Add(place + (item.keys.empty() ? "" : " [" + item.keys + "]"));
        AddMenu(lines, place + " > ", item.items);
    }
}

std::string Menus(Speaker& speaker) {
    Lines lines;
    AddMenu(lines, "", MemoryToolkit::MenusOf(speaker.Main()));
    for (const auto& item : speaker.Main().Menu("mnuContext").Items())
        if (!item->IsSeparator())
            lines.Add(item->Caption() + " [" + item->KeyText() + "]");
    return lines.All();
}

std::string MainWindow(Speaker& speaker) {
    Lines lines;
    lines.Add(speaker.Date().AccessibleName());
    lines.Add(speaker.Files().AccessibleName());
    lines.Add(speaker.Date().List(0));
    lines.Add(speaker.Files().List(0));
    lines.Add(speaker.Source().ColumnCaption(0));
    lines.Add(speaker.Source().ColumnCaption(1));
    lines.Add(speaker.Target().ColumnCaption(0));
    return lines.All();
}

std::string TitleOfAllFiles(Speaker& speaker) {
    speaker.Files().UserSelected(0);
    // A row's file takes its place as soon as the rows are there.
    for (const std::string& title : MemoryToolkit::Of(speaker.Main()).captions) {
        if (title.ends_with(speaker.Files().List(0)))
            return title;
    }
    return "";
}

// Each day's count, below one another.
std::string Counts(Speaker& speaker) {
    constexpr int kLiveLog = 1;
    speaker.Files().UserSelected(kLiveLog);
    Lines lines;
    for (int day = 1; day < speaker.Date().ListCount(); ++day) {
        speaker.Date().UserSelected(day);
        lines.Add(Trimmed(speaker.Status().PanelText(1)));
    }
    return lines.All();
}

std::string FailedCounts(Speaker& speaker) {
    speaker.Choose("mnuViewFailedOnly");
    std::string shown = Trimmed(speaker.Status().PanelText(1));
    speaker.Choose("mnuViewFailedOnly");
    return shown;
}

std::string Filter(Speaker& speaker) {
    OwnCommands& own = Own(speaker);
    own.filter.boxText = kSought;
    own.panels.LanguageChanged();
    return speaker.Status().PanelText(3);
}

std::string SavingRows(Speaker& speaker) {
    ProgressWindow progress(speaker.tools, speaker.Main(), speaker.Shared().FormTexts(), [] {});
    progress.PrepareCompact();
    progress.ShowProgress(speaker.Text(text_id::kSavingRows), 1000);
    std::string shown = WindowLines(*progress.Window());
    progress.HideProgress();
    return shown;
}

std::string Progress(Speaker& speaker) {
    ProgressWindow progress(speaker.tools, speaker.Main(), speaker.Shared().FormTexts(), [] {});
    progress.PrepareTall("totalcmd.1.log");
    progress.ShowProgress(speaker.Text(text_id::kReading), 1000);
    std::string shown = WindowLines(*progress.Window());
    progress.HideProgress();
    return shown;
}

std::string BadLine(Speaker& speaker) {
    speaker.SetLog(kDamaged, {"01.03.2024 10:15:30: Delete C:\\b.txt", "damaged"});
    speaker.Main().FilesDropped.Raise({kDamaged});
    return speaker.LastMessage();
}

std::string LinesPassedOver(Speaker& speaker) {
    Speaker other(speaker.Language());
    other.Start();
    other.Shared().settings->SkipMalformedLines = 1;
    other.SetLog(kDamaged, {"01.03.2024 10:15:30: Delete C:\\b.txt", "damaged", "torn", "broken"});
    other.Main().FilesDropped.Raise({kDamaged});
    return other.LastMessage();
}

std::string LogThatDoesNotFit(Speaker& speaker) {
    Speaker other(speaker.Language());
    other.Start();
    other.system.files.onOpen = [](const std::string& path) {
        if (path == kDamaged)
            throw std::bad_alloc();
    };
    other.SetLog(kDamaged, {"01.03.2024 10:15:30: Delete C:\\b.txt"});
    other.Main().FilesDropped.Raise({kDamaged});
    return other.LastMessage();
}

std::string SettingsNotKept(Speaker& speaker) {
    Speaker other(speaker.Language());
    other.Start();
    other.system.files.FailWriting("C:\\Ordalyn\\Ordalyn.ini");
    other.Main().UserClosed();
    return other.LastMessage();
}

constexpr const char* kSaved = "D:\\Archiv\\rows.txt";

// What becomes of the rows when they are saved as that file.
std::string RowsSavedAs(Speaker& speaker, const std::string& path) {
    speaker.system.dialogs.onSaveFile = [path](const auto&) {
        return platform::Dialogs::SaveAnswer{path, 0};
    };
    const std::size_t before = speaker.tools.messages.size();
    speaker.Choose("mnuFileSaveRows");
    return speaker.tools.messages.size() > before ? speaker.LastMessage() : "";
}

std::string DiskIsFull(Speaker& speaker) {
    Speaker other(speaker.Language());
    other.Start();
    other.system.files.AddFolder("D:\\Archiv");
    other.system.files.roomOnDisk = 10;
    return RowsSavedAs(other, kSaved);
}

std::string FolderIsProtected(Speaker& speaker) {
    Speaker other(speaker.Language());
    other.Start();
    other.system.files.AddFolder("D:\\Archiv");
    other.system.files.ProtectFolder("D:\\Archiv");
    return RowsSavedAs(other, kSaved);
}

std::string FileIsInUse(Speaker& speaker) {
    Speaker other(speaker.Language());
    other.Start();
    other.system.files.Set(kSaved, "");
    other.system.files.Lock(kSaved);
    return RowsSavedAs(other, kSaved);
}

std::string RowsOverTheLog(Speaker& speaker) {
    Speaker other(speaker.Language());
    other.Start();
    return RowsSavedAs(other, "C:\\logs\\tc.log");
}

std::string SaveDialog(Speaker& speaker) {
    RowsSavedAs(speaker, "");
    const auto& requests = speaker.system.dialogs.saveRequests;
    if (requests.empty())
        return "";
    Lines lines;
    lines.Add(requests.back().title);
    for (const std::string& part : Split(requests.back().filter, '\0'))
        if (!part.starts_with("*"))
            lines.Add(part);
    return lines.All();
}

std::string FirstLineOfSavedRows(Speaker& speaker) {
    Speaker other(speaker.Language());
    other.Start();
    other.system.files.AddFolder("D:\\Archiv");
    RowsSavedAs(other, kSaved);
    const std::string text = other.system.files.Get(kSaved).value_or("");
    return text.substr(0, text.find('\r'));
}

std::string MissingRecentFile(Speaker& speaker) {
    speaker.Choose("mnuFileRecentFiles");
    return speaker.LastMessage();
}

std::string NothingFound(Speaker& speaker) {
    speaker.Choose("mnuSearchFindNext");
    return speaker.LastMessage();
}

std::string NoLog(Speaker& speaker) {
    Speaker other(speaker.Language());
    other.SetIni("LogFile=C:\\logs\\missing.log");
    other.Start();
    return other.LastMessage();
}

// What stands in the place of the panels with these settings of the file manager, if it has any.
std::string FirstStepsWith(const std::string& language, const char* settings,
                           const char* started = "", bool follow = false) {
    Speaker other(language);
    other.system.files.Set("C:\\logs\\empty.log", "");
    other.system.files.Set("C:\\logs\\damaged.log", "damaged");
    if (settings == nullptr)
        other.system.environment.RemoveVariable("Commander_INI");
    else
        other.SetIni(settings);
    other.system.environment.commandLine = started;
    other.Start();
    if (follow)
        other.Choose("mnuViewFollow");
    Lines lines;
    for (const auto& control : other.Main().Controls()) {
        const toolkit::Kind kind = control->ControlKind();
        if ((kind == toolkit::Kind::Label || kind == toolkit::Kind::CommandButton) &&
            control->CanTakeInput())
            lines.Add(control->Caption());
    }
    return lines.All();
}

std::string FirstStepsInTheFileManager(Speaker& speaker) {
    const std::string& language = speaker.Language();
    Speaker other(language);
    other.system.environment.RemoveVariable("Commander_Path");
    other.system.environment.RemoveVariable("Commander_INI");
    other.Start();
    return other.Main().Get<toolkit::Label>("lblHeadline").Caption() + "\n" +
           FirstStepsWith(language, nullptr) + "\n" + FirstStepsWith(language, "LogOptions=7198");
}

std::string FirstStepsToALog(Speaker& speaker) {
    const std::string& language = speaker.Language();
    constexpr const char* kMissing = "LogOptions=7199\r\nLogFile=C:\\logs\\missing.log";
    return FirstStepsWith(language, kMissing) + "\n" +
           FirstStepsWith(language, kMissing, "", true) + "\n" +
           FirstStepsWith(language, "LogOptions=7199\r\nLogFile=C:\\logs\\empty.log") + "\n" +
           FirstStepsWith(language, "LogOptions=7199\r\nLogFile=X:\\logs\\x.log") + "\n" +
           FirstStepsWith(language, "LogOptions=7199\r\nLogFile=C:\\logs\\damaged.log") + "\n" +
           FirstStepsWith(language, kMissing, "C:\\nowhere.log");
}

std::string NoSettingsOfTheFileManager(Speaker& speaker) {
    Speaker other(speaker.Language());
    other.system.environment.RemoveVariable("Commander_INI");
    other.Start();
    return other.tools.messages.empty() ? "" : other.tools.messages.front().text;
}

std::string TitleOfTheOpenDialog(Speaker& speaker) {
    speaker.Choose("mnuFileOpen");
    const auto& requests = speaker.system.dialogs.openRequests;
    return requests.empty() ? "" : requests.back().title;
}

std::string NoHelp(Speaker& speaker) {
    speaker.Choose("mnuHelpHelpTopics");
    return speaker.LastMessage();
}

// What the selected row's source is answered with; no file manager is there.
std::string ShownSource(Speaker& speaker, const char* source) {
    Speaker other(speaker.Language());
    other.system.files.AddFolder("E:\\Projekt");
    other.SetLog("C:\\logs\\tc.log",
                 {std::string("01.03.2024 10:15:30: Copy: ") + source + " -> E:\\Projekt\\b.txt"});
    other.Start();
    other.Choose("mnuContextShowSource");
    return other.LastMessage();
}

std::string PathThatIsGone(Speaker& speaker) {
    return ShownSource(speaker, "E:\\Projekt\\alt\\a.txt");
}

std::string PathWithAForeignSign(Speaker& speaker) {
    return ShownSource(speaker, "E:\\Projekt\\a\".txt");
}

std::string PathOfAPlugin(Speaker& speaker) {
    return ShownSource(speaker, "\\\\\\FTP\\a.txt");
}

// What the calendar says of a log, with what is drawn in it.
std::string CalendarLines(const std::string& language, const std::vector<std::string>& log) {
    Speaker other(language);
    other.SetLog(kLog, log);
    other.Start();
    other.Choose("mnuViewCalendar");
    other.tools.DoLaterWork();
    toolkit::Form& calendar = other.tools.FormNamed("frmCalendar");
    Lines lines;
    lines.Add(WindowLines(calendar));
    for (const int key : {toolkit::key::Home, toolkit::key::Right}) {
        other.tools.Press(calendar, key);
        lines.Add(calendar.Get<toolkit::Label>("lblDay").Caption());
    }
    for (const Drawn& drawn :
         MemoryToolkit::Paint(calendar.Get<toolkit::Canvas>("cnvDays")).drawn) {
        if (drawn.text.size() > 2)  // no number of a day
            lines.Add(drawn.text);
    }
    return lines.All();
}

std::string Calendar(Speaker& speaker) {
    return CalendarLines(
        speaker.Language(),
        {"01.03.2024 10:00:00: Copy(Error: Disk full): C:\\a -> D:\\a",
         "99.99.2024 10:00:00: Delete: C:\\b", "05.03.2024 10:00:00: Delete: C:\\c"});
}

std::string CalendarWithoutDays(Speaker& speaker) {
    return CalendarLines(speaker.Language(), {}) + "\n" +
           CalendarLines(speaker.Language(), {"99.99.2024 10:00:00: Delete: C:\\b"});
}

std::string ClearRecentFiles(Speaker& speaker) {
    speaker.Main().Menu("mnuFileRecentGroup").Items().back()->Choose();
    return speaker.LastMessage();
}

// Rotated logs are there; what the log holds is for all that can be said of a file.
void StartWithStories(Speaker& speaker) {
    speaker.SetLog(
        kLog, {R"(05.03.2024 10:00:00: Move: D:\Archiv\a.txt -> D:\Archiv\b.txt)",
               R"(05.03.2024 10:00:01: Move: D:\Archiv\c.txt -> D:\d.txt)",
               R"(05.03.2024 10:00:02: Move: D:\d.txt -> D:\e.txt)",
               R"(06.03.2024 10:00:00: Delete: D:\e.txt)", R"(06.03.2024 10:00:01: Test: D:\f.txt)",
               R"(07.03.2024 10:00:00: Copy: D:\Archiv\x.txt -> D:\f.txt)",
               R"(07.03.2024 10:00:01: Delete: D:\g.txt)",
               R"(07.03.2024 10:00:02: Delete(Error: Aborted): D:\h.txt)"});
    speaker.Start();
    speaker.Choose("mnuSearchHistory");
}

std::string History(Speaker& speaker) {
    Speaker other(speaker.Language());
    StartWithStories(other);
    const toolkit::Form& window = other.tools.FormNamed("frmHistory");
    auto& steps = window.Get<toolkit::ListView>("lvwSteps");
    auto& lives = window.Get<toolkit::ComboBox>("cboLives");
    const auto& words = window.Get<toolkit::Label>("lblSummary");
    Lines lines;
    for (const char* path : {R"(D:\Archiv\a.txt)", R"(D:\d.txt)", R"(D:\g.txt)", R"(D:\h.txt)",
                             R"(D:\i.txt)", "i.txt", R"(D:\f.txt)"}) {
        window.Get<toolkit::ComboBox>("cboPath").SetText(path);
        window.Get<toolkit::CommandButton>("cmdShow").UserClicked();
        lines.Add(words.Caption());
    }
    lives.UserSelected(0);
    lines.Add(WindowLines(window));
    for (int column = 0; column < steps.ColumnCount(); ++column)
        lines.Add(steps.ColumnCaption(column));
    return lines.All();
}

std::string RowThatTheFilterHides(Speaker& speaker) {
    Speaker other(speaker.Language());
    StartWithStories(other);
    other.Choose("mnuSearchFilter");
    toolkit::Form& filters = other.tools.FormNamed("frmFilters");
    auto& cboFilter = filters.Get<toolkit::ComboBox>("cboFilter");
    cboFilter.UserEdited("Delete");
    other.tools.PressIn(filters, cboFilter, toolkit::key::Enter);
    const toolkit::Form& window = other.tools.FormNamed("frmHistory");
    window.Get<toolkit::ComboBox>("cboPath").SetText(R"(D:\f.txt)");
    window.Get<toolkit::CommandButton>("cmdShow").UserClicked();
    window.Get<toolkit::ListView>("lvwSteps").UserActivated(0);
    return other.LastMessage();
}

}  // namespace

const std::vector<Situation>& Situations() {
    static const std::vector<Situation> situations = {
        {Kind::Title, "The title while all files are read", {"Ordalyn 1.00"}, TitleOfAllFiles},
        {Kind::Title, "The title of the dialog that opens a log", {}, TitleOfTheOpenDialog},
        {Kind::Message, "A line that is none of a log", {kDamaged, "2"}, BadLine},
        {Kind::Message,
         "Lines that are none of a log have been passed over",
         {kDamaged, "2", "3"},
         LinesPassedOver},
        {Kind::Message, "A log does not fit into memory", {kDamaged}, LogThatDoesNotFit},
        {Kind::Message,
         "The settings cannot be written",
         {"C:\\Ordalyn\\Ordalyn.ini"},
         SettingsNotKept},
        {Kind::Message, "There is no room for the rows", {kSaved}, DiskIsFull},
        {Kind::Message, "Rows cannot be saved in that folder", {kSaved}, FolderIsProtected},
        {Kind::Message, "Rows are saved as a file that is in use", {kSaved}, FileIsInUse},
        {Kind::Message, "Rows are saved over a log", {"C:\\logs\\tc.log"}, RowsOverTheLog},
        {Kind::Title, "The dialog that saves rows", {"(*.txt)", "(*.csv)"}, SaveDialog},
        {Kind::Title, "The first line of saved rows", {}, FirstLineOfSavedRows},
        {Kind::Message, "Before a list is cleared or a read is left", {}, ClearRecentFiles},
        {Kind::Message, "A recent file is gone", {kGone}, MissingRecentFile},
        {Kind::Message, "Nothing is found", {"\"" + std::string(kSought) + "\""}, NothingFound},
        {Kind::Message, "There is no log", {}, NoLog},
        {Kind::Message,
         "The file manager's settings are not found",
         {"[Wincmd.ini]"},
         NoSettingsOfTheFileManager},
        {Kind::Window, "The file manager shows no log", {"wincmd.ini"}, FirstStepsInTheFileManager},
        {Kind::Window,
         "The log cannot be shown",
         {"C:\\logs\\missing.log", "X:\\logs\\x.log"},
         FirstStepsToALog},
        {Kind::Message, "There is no help file", {}, NoHelp},
        {Kind::Message,
         "What is to be shown in the file manager is gone",
         {"E:\\Projekt\\alt\\a.txt", "E:\\Projekt"},
         PathThatIsGone},
        {Kind::Message,
         "A path that is to be shown has a quotation mark",
         {"E:\\Projekt\\a\".txt"},
         PathWithAForeignSign},
        {Kind::Message,
         "A path of a plugin, and no file manager",
         {"\\\\\\FTP\\a.txt"},
         PathOfAPlugin},
        {Kind::Count, "Rows", {"1", "2", "5", "21"}, Counts},
        {Kind::Count, "Rows of failed operations", {"0"}, FailedCounts},
        {Kind::Window, "While logs are read", {"totalcmd.1.log"}, Progress},
        {Kind::Window, "While rows are saved", {}, SavingRows},
        {Kind::Window, "The menus", {"[Ctrl+C]", "[F3]"}, Menus},
        {Kind::Window, "The main window's lists and columns", {}, MainWindow},
        {Kind::Window,
         "The options",
         {},
         [](Speaker& speaker) { return InDialog(speaker, "mnuViewOptions", WindowLines); }},
        {Kind::Window,
         "The about box",
         {"Ordalyn", "1.00", "mail@"},
         [](Speaker& speaker) { return InDialog(speaker, "mnuHelpAbout", AboutLines); }},
        {Kind::Count, "A filter", {kSought}, Filter},
        {Kind::Window,
         "The find dialog",
         {},
         [](Speaker& speaker) { return WindowLines(Own(speaker).commands.FindDialog()); }},
        {Kind::Window, "The calendar", {"March 1, 2024", "1", "2024"}, Calendar},
        {Kind::Window, "The calendar without a day to show", {}, CalendarWithoutDays},
        {Kind::Window,
         "The history of a file",
         {"D:\\e.txt", "05.03.2024", "06.03.2024", "D:\\i.txt"},
         History},
        {Kind::Message, "The filter hides a row to go to", {}, RowThatTheFilterHides},
        {Kind::Window,
         "The filter dialog",
         {},
         [](Speaker& speaker) { return WindowLines(Own(speaker).commands.FilterDialog()); }},
    };
    return situations;
}

}  // namespace ordalyn::test
