// The calendar as part of the program.
#include <utility>

#include "support/windows/ProgramWindow.h"

namespace ordalyn {
namespace {

using test::MemoryToolkit;
using test::ProgramWindow;
using testing::Contains;
using testing::Not;

class ProgramCalendar : public ProgramWindow {
  protected:
    toolkit::Form& Open() {
        tools.Press(Main(), 'K', {.control = true});
        tools.DoLaterWork();
        return Calendar();
    }
    toolkit::Form& Calendar() { return tools.FormNamed("frmCalendar"); }
    std::string Day() { return Calendar().Get<toolkit::Label>("lblDay").Caption(); }
};

TEST_F(ProgramCalendar, AKeyOpensItOnTheDayThatIsShown) {
    Start();
    EXPECT_TRUE(Open().Visible());
    EXPECT_EQ(Day(), "Saturday, March 2, 2024: 1 operation(s)");
    tools.Press(Calendar(), toolkit::key::Left);
    tools.Press(Calendar(), toolkit::key::Enter);
    EXPECT_EQ(Date().Text(), "01.03.2024");
    EXPECT_EQ(Source().RowCount(), 2);
}

TEST_F(ProgramCalendar, KnowsWhatFailedInTheWordsOfTheFileManager) {
    SetLog("C:\\logs\\tc.log",
           {"01.03.2024 10:15:30: Copy(Error: Disk full): C:\\a.txt -> D:\\a.txt",
            "01.03.2024 10:15:31: Copy: Skipped C:\\b.txt -> D:\\b.txt",
            "01.03.2024 10:15:32: Copy: C:\\c.txt -> D:\\c.txt"});
    Start();
    Open();
    EXPECT_EQ(Day(), "Friday, March 1, 2024: 3 operation(s), 2 of them failed");
}

TEST_F(ProgramCalendar, WaitsWhileAFileIsRead) {
    Start();
    Open();
    std::vector<bool> enabled;
    tools.onDoEvents = [&] { enabled.push_back(Calendar().Enabled()); };
    SetLog("C:\\logs\\other.log", {"05.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt"});
    system.dialogs.onOpenFile = [](const auto&) { return std::optional("C:\\logs\\other.log"); };
    Choose("mnuFileOpen");
    EXPECT_THAT(enabled, Contains(false));
    EXPECT_TRUE(Calendar().Enabled());
    EXPECT_EQ(Day(), "Tuesday, March 5, 2024: 1 operation(s)") << "then it shows the other log";
}

TEST_F(ProgramCalendar, TheOptionsReachItAtOnce) {
    Start();
    Open();
    const auto& area = Calendar().Get<toolkit::Canvas>("cnvDays");
    program->Shared().settings->FontSize = 13;
    program->Shared().settings->BackgroundColor = 0x00203040;
    Main().ApplySettings();
    EXPECT_EQ(area.Font().size, 13);
    EXPECT_EQ(area.BackColor(), 0x00203040);
}

TEST_F(ProgramCalendar, EndsWithTheProgram) {
    Start();
    Open();
    tools.closedForms.clear();
    Main().UserClosed();
    EXPECT_THAT(tools.closedForms, Contains("frmCalendar"));
    EXPECT_NE(Stored("CalendarPosition"), "(absent)");
}

TEST_F(ProgramCalendar, OneThatNobodyOpenedLeavesNoTrace) {
    Start();
    Main().UserClosed();
    EXPECT_THAT(tools.closedForms, Not(Contains("frmCalendar")));
}

}  // namespace
}  // namespace ordalyn
