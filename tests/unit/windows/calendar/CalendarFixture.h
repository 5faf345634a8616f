// The calendar over a log in memory, as the main window offers it.
#pragma once

#include <string>
#include <vector>

#include "support/windows/LogWindow.h"
#include "windows/main/CalendarCommands.h"

namespace ordalyn::test {

inline std::chrono::sys_days Date(int year, int month, int day) {
    return std::chrono::sys_days(std::chrono::year(year) / month / day);
}

class CalendarFixture : public LogWindow {
  protected:
    static std::string Line(const std::string& date, bool failed = false) {
        return date + " 10:00:00: Copy" + (failed ? "(Error: Disk full)" : "") +
               ": C:\\a.txt -> D:\\a.txt";
    }
    void LoadDays(const std::vector<std::string>& dates) {
        std::vector<std::string> lines;
        for (const std::string& date : dates)
            lines.push_back(date.ends_with('!') ? Line(date.substr(0, date.size() - 1), true)
                                                : Line(date));
        Load(lines);
        tools.DoLaterWork();
    }
    frmCalendar& Shown() {
        commands.Show();
        tools.DoLaterWork();
        return commands.Window();
    }
    toolkit::Canvas& Area() { return commands.Window().Get<toolkit::Canvas>("cnvDays"); }
    std::string Label(const char* name = "lblDay") {
        return commands.Window().Get<toolkit::Label>(name).Caption();
    }
    toolkit::CommandButton& Button(const char* name) {
        return commands.Window().Get<toolkit::CommandButton>(name);
    }
    const std::vector<Drawn>& Drawing() { return MemoryToolkit::Paint(Area()).drawn; }
    std::string YearShown() { return Drawing().front().text; }
    // As the window lays the days out.
    toolkit::Rect SquareOf(std::chrono::sys_days day) {
        CalendarPicture::Words words;
        words.firstWeekday = system.locale.firstWeekday;
        CalendarPicture picture(Area());
        picture.SetWords(words);
        return picture.SquareOf(day);
    }
    toolkit::Color ColorOf(std::chrono::sys_days day) {
        const toolkit::Rect square = SquareOf(day);
        for (const Drawn& drawn : Drawing()) {
            if (drawn.what == Drawn::What::Fill && drawn.area == square)
                return drawn.color;
        }
        return -1;
    }
    // Parts that are filled above the square itself: the mark and the frame.
    int FillsIn(std::chrono::sys_days day) {
        const toolkit::Rect square = SquareOf(day);
        int fills = 0;
        for (const Drawn& drawn : Drawing()) {
            const toolkit::Twips x = drawn.area.left + drawn.area.width / 2;
            const toolkit::Twips y = drawn.area.top + drawn.area.height / 2;
            fills += drawn.what == Drawn::What::Fill && !(drawn.area == square) &&
                             x >= square.left && x <= square.left + square.width &&
                             y >= square.top && y <= square.top + square.height
                         ? 1
                         : 0;
        }
        return fills;
    }
    // The mark has two, the frame four.
    bool IsMarkedFailed(std::chrono::sys_days day) { return FillsIn(day) % 4 == 2; }
    bool IsFramed(std::chrono::sys_days day) { return FillsIn(day) >= 4; }
    void Point(std::chrono::sys_days day) {
        const toolkit::Rect at = SquareOf(day);
        Area().MouseMove.Raise(0, {}, at.left + 1, at.top + 1);
    }
    void Drag(std::chrono::sys_days from, std::chrono::sys_days to,
              int button = toolkit::kLeftButton) {
        const toolkit::Rect begin = SquareOf(from);
        const toolkit::Rect end = SquareOf(to);
        Area().MouseDown.Raise(button, {}, begin.left + 1, begin.top + 1);
        Area().MouseUp.Raise(button, {}, end.left + 1, end.top + 1);
    }
    void Click(std::chrono::sys_days day) { Drag(day, day); }
    void Press(int key) {
        tools.Press(commands.Window(), key);
        tools.DoLaterWork();
    }
    std::string ChosenDate() const { return cboDate.Text(); }
    std::string StoredPlace() {
        return system.ansiProfile.ReadEntry("Ordalyn", "CalendarPosition", "(absent)",
                                            "C:\\Ordalyn\\Ordalyn.ini", 4096);
    }

    LogOperations operations{{.common = shared.common,
                              .profile = *shared.profile,
                              .files = shared.services.files,
                              .codePages = shared.services.codePages}};
    CalendarCommands commands{shared, form, entries, panels, operations};
};

}  // namespace ordalyn::test
