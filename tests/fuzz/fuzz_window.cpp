// Any sequence of what a person and the file manager do while the program runs: lines come, logs
// are replaced, days and filters are chosen, files that cannot be read are opened, the language and
// the panels change. The rows that are shown are always those that a plain model says.
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "Choices.h"
#include "Require.h"
#include "support/search/FoldAndCompare.h"
#include "support/windows/MemoryProgram.h"

using namespace ordalyn;
using fuzz::Require;

namespace {

const std::string kLogs[] = {"C:\\logs\\tc.log", "D:\\other.log"};
constexpr const char* kUnreadable[] = {"D:\\empty.log", "D:\\malformed.log", "D:\\missing.log",
                                       "D:\\locked.log"};
constexpr const char* kFilters[] = {"", "copy", "B.TXT", "d:\\", "zzz", "1:"};
constexpr const char* kLanguage = "C:\\Ordalyn\\other.lng";

struct Line {
    std::string date, time, operation, target;
    std::string Text() const {
        return date + " " + time + ": " + operation + (target.empty() ? "" : "-> " + target) +
               "\r\n";
    }
};

Line AnyLine(fuzz::Choices& choices) {
    constexpr const char* kWords[] = {"Copy", "Delete", "Move"};
    constexpr const char* kNames[] = {"a.txt", "b.txt", "\xC3\x84.doc"};
    const int choice = choices.Of(4 * 3 * 3 * 2);
    const std::string name = kNames[choice / 12 % 3];
    Line line{"0" + std::to_string(1 + choice % 4) + ".03.2024",
              "10:0" + std::to_string(choice % 7) + ":00",
              std::string(kWords[choice / 4 % 3]) + " C:\\" + name, ""};
    if (choice / 36 == 1) {
        line.operation += " ";
        line.target = "D:\\" + name;
    }
    return line;
}

class Session {
  public:
    Session() {
        program_.system.files.Set(kUnreadable[0], "");
        program_.system.files.Set(kUnreadable[1], "nothing\r\n");
        program_.system.files.Set(kUnreadable[3], "01.03.2024 10:00:00: Copy a\r\n");
        program_.system.files.Lock(kUnreadable[3]);
        program_.system.files.Set(kLanguage,
                                  "[UserLanguage]\r\n4005=Alle Tage\r\n4010=%i Vorgaenge\r\n");
    }

    void Use(fuzz::Choices& choices) {
        for (const std::string& log : kLogs)
            Replace(log, choices);
        program_.Start();
        program_.Choose("mnuSearchFilter");
        program_.tools.DoLaterWork();
        Took(kLogs[0]);
        Check();
        for (int left = 40; left > 0 && choices.Left(); --left) {
            Step(choices);
            Check();
        }
        program_.Main().UserClosed();
    }

  private:
    void Step(fuzz::Choices& choices) {
        switch (choices.Of(12)) {
            case 0:
                Append(kLogs[choices.Of(2)], choices);
                break;
            case 1:
                Replace(kLogs[choices.Of(2)], choices);
                break;
            case 2:
            case 3:
                Refresh();
                break;
            case 4:
                program_.Date().UserSelected(choices.Of(program_.Date().ListCount()));
                break;
            case 5:
                TypeFilter(kFilters[choices.Of(std::size(kFilters))]);
                break;
            case 6:
                target_ = choices.Of(2) == 1;
                FilterBox("cboSource").UserSelected(target_ ? 1 : 0);
                break;
            case 7:
                doesNotContain_ = choices.Of(2) == 1;
                FilterBox("cboContains").UserSelected(doesNotContain_ ? 1 : 0);
                break;
            case 8:
                Toggle(choices.Of(3));
                break;
            case 9:
                ChangeLanguage();
                break;
            case 10:
                Open(kLogs[choices.Of(2)]);
                break;
            default:
                program_.Main().FilesDropped.Raise({kUnreadable[choices.Of(4)]});
                ++messages_;
        }
    }

    void Append(const std::string& log, fuzz::Choices& choices) {
        for (int count = 1 + choices.Of(3); count > 0; --count)
            lines_[log].push_back(AnyLine(choices));
        Write(log);
    }
    void Replace(const std::string& log, fuzz::Choices& choices) {
        lines_[log].clear();
        Append(log, choices);
    }
    void Write(const std::string& log) { program_.system.files.Set(log, BytesOf(lines_[log])); }
    static std::string BytesOf(const std::vector<Line>& lines) {
        std::string bytes = "\xEF\xBB\xBF";
        for (const Line& line : lines)
            bytes += line.Text();
        return bytes;
    }

    void Open(const std::string& log) {
        program_.Main().FilesDropped.Raise({log});
        Took(log);
    }
    // All that the file holds is shown now, the last of its days.
    void Took(const std::string& log) {
        shown_ = log;
        entries_ = lines_[log];
        Require(Source().RowCount() == 0 || !program_.Date().ListCount() ||
                    program_.Date().ListIndex() == program_.Date().ListCount() - 1,
                "the last day is chosen");
    }
    void Refresh() {
        const bool more = BytesOf(lines_[shown_]) != BytesOf(entries_);
        program_.Choose("mnuViewRefresh");
        if (!more)
            return;
        Took(shown_);
        Require(Source().SelectedRow() == Source().RowCount() - 1, "the last row is selected");
    }

    toolkit::ComboBox& FilterBox(const char* name) {
        return program_.tools.FormNamed("frmFilters").Get<toolkit::ComboBox>(name);
    }
    void TypeFilter(const char* text) {
        filter_ = text;
        FilterBox("cboFilter").UserEdited(text);
        program_.tools.PressIn(program_.tools.FormNamed("frmFilters"), FilterBox("cboFilter"),
                               toolkit::key::Enter);
    }
    void Toggle(int which) {
        constexpr const char* kMenus[] = {"mnuViewTwoPanels", "mnuViewVerticalPanels",
                                          "mnuViewStatusBar"};
        program_.Choose(kMenus[which]);
    }
    void ChangeLanguage() {
        other_ = !other_;
        program_.tools.modalScripts.push_back([this](toolkit::Form& options) {
            options
                .Get<toolkit::OptionButton>(other_ ? "optUseOtherLanguage"
                                                   : "optUseDefaultLanguage")
                .UserToggled();
            options.Get<toolkit::TextBox>("txtLanguageFilePath").UserEdited(kLanguage);
            options.Get<toolkit::CommandButton>("cmdOK").UserClicked();
        });
        program_.Choose("mnuViewOptions");
    }

    bool Passes(const Line& line) const {
        if (filter_.empty())
            return true;
        if (target_ && line.target.empty())
            return false;
        const std::string field = target_ ? line.target : line.time + ": " + line.operation;
        return test::ContainsFolded(field, filter_) != doesNotContain_;
    }

    void Check() {
        // The first line of each day; behind them, the number of lines.
        std::vector<std::size_t> days;
        for (std::size_t i = 0; i < entries_.size(); ++i)
            if (i == 0 || entries_[i].date != entries_[i - 1].date)
                days.push_back(i);
        const bool several = days.size() > 1;
        Require(program_.Date().ListCount() == static_cast<int>(days.size() + (several ? 1 : 0)),
                "the days are those of the log");
        days.push_back(entries_.size());
        std::size_t from = 0, end = entries_.size();
        const int item = program_.Date().ListIndex();
        if (several && item == 0) {
            Require(program_.Date().List(0) == (other_ ? "Alle Tage" : "All dates"),
                    "in the language that was chosen");
        } else {
            const auto day = static_cast<std::size_t>(item - (several ? 1 : 0));
            from = days.at(day);
            end = days.at(day + 1);
            Require(program_.Date().List(item) == entries_[from].date, "a day bears its date");
        }
        int row = 0;
        for (std::size_t i = from; i < end; ++i)
            if (Passes(entries_[i]))
                CheckRow(row++, entries_[i]);
        Require(Source().RowCount() == row, "no row is shown that should not be");
        Require(
            program_.Status().PanelText(1) == (other_ ? std::to_string(row) + " Vorgaenge  "
                                                      : std::to_string(row) + " Operation(s)  "),
            "the status bar counts them");
        Require(static_cast<int>(program_.tools.messages.size()) == messages_,
                "a message comes up when a file cannot be read, and only then");
        Require(Source().Visible() && Target().Visible(), "no panel stays hidden");
        Require(program_.Get<toolkit::PictureBox>("picSpliterContainer").Visible() == TwoPanels(),
                "two panels stand in their container");
    }
    bool TwoPanels() { return program_.Main().Menu("mnuViewTwoPanels").Checked(); }
    void CheckRow(int row, const Line& line) {
        Require(row < Source().RowCount(), "no row is missing");
        Require(Source().Text(row, 0) == line.time && Source().Text(row, 1) == line.operation,
                "a row shows its line");
        const bool two = TwoPanels();
        Require(!two || Target().RowCount() == Source().RowCount(), "the panels go together");
        Require((two ? Target().Text(row, 0) : Source().Text(row, 2)) == line.target,
                "with its target");
    }
    toolkit::ListView& Source() { return program_.Source(); }
    toolkit::ListView& Target() { return program_.Target(); }

    test::MemoryProgram program_;
    std::map<std::string, std::vector<Line>> lines_;  // of the files
    std::string shown_;                               // the file
    std::vector<Line> entries_;                       // what has been read of it
    std::string filter_;
    bool target_ = false;
    bool doesNotContain_ = false;
    bool other_ = false;  // language
    int messages_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Choices choices(data, size);
    Session().Use(choices);
    return 0;
}
