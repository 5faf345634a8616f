// What the main window does with clicks, keys and commands.
#include "windows/main/frmMain.h"

#include <utility>

#include "support/windows/ProgramWindow.h"

namespace ordalyn {
namespace {

using test::MemoryToolkit;
using test::ProgramWindow;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
namespace key = toolkit::key;

constexpr toolkit::Modifiers kCtrl{.control = true};
constexpr toolkit::Modifiers kCtrlShift{.shift = true, .control = true};
constexpr toolkit::Modifiers kCtrlAlt{.control = true, .alt = true};

class MainWindow : public ProgramWindow {
  protected:
    // Shows all three rows of the log.
    void StartOnAllDates() {
        Start();
        Date().UserSelected(0);
    }
    std::string Clipboard() const { return system.clipboard.text.value_or("(empty)"); }
};

// What the window shows when every flag of the settings has this value.
class MainWindowFlags : public MainWindow {
  protected:
    std::vector<std::string> Shown(const std::string& value) {
        std::string lines;
        for (const char* flag : {"GridLines", "FixedBorders", "FlatUserInterface", "LongDate",
                                 "TwoPanels", "VerticalPanels", "StatusBarVisible"})
            lines += flag + ("=" + value + "\r\n");
        SetSettings(lines);
        Start();
        const auto yes = [](bool shown) { return std::string(shown ? "yes" : "no"); };
        std::vector<std::string> seen = MemoryToolkit::Of(Date()).items;
        seen.push_back("date " + Status().PanelText(2));
        Date().UserSelected(0);
        Source().UserSelected(1);
        Target().SetFocus();
        tools.Press(Main(), key::ContextMenu);
        seen.insert(
            seen.end(),
            {"row's date " + Status().PanelText(2),
             "targets " + std::to_string(Target().RowCount()),
             "target " + std::to_string(Target().SelectedRow()),
             "menu at target " + yes(tools.poppedUpBelow == Target().RowOnScreen(1)),
             "columns " + std::to_string(Source().ColumnCount()),
             "grid " + yes(Source().GridLines()),
             "border " +
                 yes(MemoryToolkit::Of(Source()).border == toolkit::BorderStyle::FixedSingle),
             "flat " + yes(MemoryToolkit::Of(Source()).appearance == toolkit::Appearance::Flat),
             "bevel " + yes(MemoryToolkit::Of(Status()).panels[0].bevel == toolkit::Bevel::Inset),
             "side by side " + yes(Target().Left() > 0), "bar " + yes(Status().Visible())});
        return seen;
    }
};

TEST_F(MainWindowFlags, EveryValueButZeroIsOn) {
    const std::vector<std::string> on = Shown("1");
    EXPECT_EQ(Shown("2"), on);
    EXPECT_EQ(Shown("-1"), on);
}

TEST_F(MainWindow, ARowOfTheSourcePanelSelectsItsTarget) {
    StartOnAllDates();
    Source().UserSelected(2);
    EXPECT_EQ(Target().SelectedRow(), 2);
    EXPECT_EQ(MemoryToolkit::Of(Target()).visibleRow, 2);
    EXPECT_EQ(Main().Caption(), Title("C:\\logs\\tc.log"));
    EXPECT_EQ(Status().PanelText(2), "Saturday, March 2, 2024  ");
}

TEST_F(MainWindow, ARowOfTheTargetPanelSelectsItsSource) {
    StartOnAllDates();
    Target().UserSelected(2);
    EXPECT_EQ(Source().SelectedRow(), 2);
    EXPECT_EQ(MemoryToolkit::Of(Source()).visibleRow, 2);
    EXPECT_EQ(Status().PanelText(2), "Saturday, March 2, 2024  ");
}

TEST_F(MainWindow, TheDateOfASingleDayStaysWhileRowsAreClicked) {
    Start();
    Date().UserSelected(1);
    Status().SetPanelText(2, "the day");
    Source().UserSelected(1);
    EXPECT_EQ(Status().PanelText(2), "the day");
}

TEST_F(MainWindow, TheRightMouseButtonShowsTheContextMenu) {
    Start();
    Source().MouseUp.Raise(toolkit::kRightButton, {}, 0, 0);
    Target().MouseUp.Raise(toolkit::kRightButton, {}, 0, 0);
    Source().MouseUp.Raise(toolkit::kLeftButton, {}, 0, 0);
    EXPECT_THAT(tools.poppedUpMenus, ElementsAre("mnuContext", "mnuContext"));
}

TEST_F(MainWindow, CopiesTheOperationWithItsSource) {
    StartOnAllDates();
    Choose("mnuContextCopySource");
    EXPECT_EQ(Clipboard(), "Copy C:\\a.txt ");
    EXPECT_EQ(system.clipboard.clears, 3);  // three times in a row before each text
    Source().UserSelected(2);
    Choose("mnuContextCopyTarget");
    EXPECT_EQ(Clipboard(), "D:\\Ordner \xC3\xBC");
}

TEST_F(MainWindow, WithOnePanelTheTargetIsCopiedAllTheSame) {
    StartOnAllDates();
    Choose("mnuViewTwoPanels");
    Source().UserSelected(2);
    Choose("mnuContextCopyTarget");
    EXPECT_EQ(Clipboard(), "D:\\Ordner \xC3\xBC");
    system.clipboard.text.reset();
    tools.Press(Main(), 'C', kCtrlAlt);
    EXPECT_EQ(Clipboard(), "D:\\Ordner \xC3\xBC");
}

TEST_F(MainWindow, KeysCopyWhenTheyAreReleased) {
    StartOnAllDates();
    tools.Press(Main(), 'C', kCtrl);
    EXPECT_EQ(Clipboard(), "Copy C:\\a.txt ");
    system.clipboard.text.reset();
    tools.Press(Main(), 'C', kCtrlShift);
    EXPECT_EQ(Clipboard(), "Copy C:\\a.txt ");
    tools.Press(Main(), 'C', kCtrlAlt);
    EXPECT_EQ(Clipboard(), "D:\\a.txt");
}

TEST_F(MainWindow, CtrlAltCWithoutATargetLeavesTheClipboard) {
    StartOnAllDates();
    system.clipboard.text = "before";
    Source().UserSelected(1);
    tools.Press(Main(), 'C', kCtrlAlt);
    EXPECT_EQ(Clipboard(), "before");
}

TEST_F(MainWindow, CWithoutCtrlDoesNothing) {
    StartOnAllDates();
    system.clipboard.text = "before";
    tools.Press(Main(), 'C');
    tools.Press(Main(), 'C', {.shift = true});
    tools.Press(Main(), 'C', {.alt = true});
    EXPECT_EQ(Clipboard(), "before");
}

TEST_F(MainWindow, TheContextMenuKeyShowsTheMenu) {
    StartOnAllDates();
    Source().UserSelected(1);
    tools.Press(Main(), key::ContextMenu);
    EXPECT_THAT(tools.poppedUpMenus, ElementsAre("mnuContext"));
    EXPECT_FALSE(Main().Menu("mnuContextCopyTarget").Enabled());
}

TEST_F(MainWindow, ShiftF10ShowsTheMenuAtTheSelectedRowOfThePanelThatIsUsed) {
    StartOnAllDates();
    Source().SetFocus();
    Source().UserSelected(1);
    tools.Press(Main(), key::F10, {.shift = true});
    EXPECT_THAT(tools.poppedUpMenus, ElementsAre("mnuContext"));
    EXPECT_EQ(tools.poppedUpBelow, Source().RowOnScreen(1));
    Target().SetFocus();
    Target().UserSelected(2);
    tools.Press(Main(), key::ContextMenu);
    EXPECT_EQ(tools.poppedUpBelow, Target().RowOnScreen(2));
    EXPECT_EQ(MemoryToolkit::Of(Target()).visibleRow, 2);
    // With one panel the other one is not to be seen.
    Choose("mnuViewTwoPanels");
    tools.Press(Main(), key::ContextMenu);
    EXPECT_EQ(tools.poppedUpBelow, Source().RowOnScreen(2));
    Source().MouseUp.Raise(toolkit::kRightButton, {}, 0, 0);
    EXPECT_EQ(tools.poppedUpBelow, std::nullopt);
}

TEST_F(MainWindow, TheKeysOfACopyCanBeLetGoInAnyOrder) {
    StartOnAllDates();
    const auto press = [&](toolkit::Modifiers held, toolkit::Modifiers left) {
        Main().UserKeyDown('C', held);
        Main().UserKeyUp('C', left);
        return Clipboard();
    };
    EXPECT_EQ(press(kCtrl, {}), "Copy C:\\a.txt ");
    EXPECT_EQ(press(kCtrlAlt, {}), "D:\\a.txt");
    EXPECT_EQ(press(kCtrl, {}), "Copy C:\\a.txt ");
    EXPECT_EQ(press(kCtrlAlt, kCtrl), "D:\\a.txt");
    // What was held once does not count for the next press.
    system.clipboard.text = "before";
    EXPECT_EQ(press({}, {}), "before");
    press(kCtrl, {});
    system.clipboard.text = "before";
    Main().UserKeyUp('C', {});  // pressed in another window
    EXPECT_EQ(Clipboard(), "before");
}

TEST_F(MainWindow, WhatIsHeldWhenTheKeyOfACopyIsLetGoCountsToo) {
    StartOnAllDates();
    Main().UserKeyUp('C', kCtrl);
    EXPECT_EQ(Clipboard(), "Copy C:\\a.txt ");
    Main().UserKeyUp('C', kCtrlAlt);
    EXPECT_EQ(Clipboard(), "D:\\a.txt");
}

TEST_F(MainWindow, AClipboardHeldByAnotherProgramIsNoError) {
    StartOnAllDates();
    system.clipboard.heldByAnother = true;
    Choose("mnuContextCopySource");
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(MainWindow, CopyingWithoutARowDoesNothing) {
    SetIni("LogFile=C:\\missing.log");
    Start();
    system.clipboard.text = "before";
    tools.Press(Main(), 'C', kCtrl);
    tools.Press(Main(), 'C', kCtrlAlt);
    Choose("mnuContextCopyTarget");
    EXPECT_EQ(Clipboard(), "before");
}

TEST_F(MainWindow, ShortcutsDoNothingWhileADialogIsModal) {
    Start();
    tools.modalScripts.push_back([&](toolkit::Form& about) {
        EXPECT_THAT(about.Caption(), HasSubstr("About"));
        tools.Press(Main(), key::F5);
        tools.Press(Main(), 'O', kCtrl);
        EXPECT_THAT(system.dialogs.openRequests, IsEmpty());
    });
    Choose("mnuHelpAbout");
}

TEST_F(MainWindow, EveryMenuHasItsText) {
    Start();
    EXPECT_EQ(Main().Menu("mnuFile").Caption(), "&File");
    EXPECT_EQ(Main().Menu("mnuFileOpen").Caption(), "&Open...");
    EXPECT_EQ(Main().Menu("mnuContextCopySource").Caption(), "Copy &Source");
    EXPECT_EQ(Main().Menu("mnuContextCopySource").KeyHint(), "Ctrl+C");
    EXPECT_EQ(Main().Menu("mnuContextCopyTarget").KeyHint(), "Ctrl+Alt+C");
    for (const toolkit::MenuItem* item : Main().AllMenuItems()) {
        if (!item->Visible())
            continue;  // the context menu itself, free places of recent files
        EXPECT_FALSE(item->Caption().empty()) << item->Name();
    }
}

TEST_F(MainWindow, SwitchingToOnePanelKeepsSelectionAndRows) {
    StartOnAllDates();
    Source().UserSelected(1);
    Choose("mnuViewTwoPanels");
    EXPECT_EQ(Source().SelectedRow(), 1);
    EXPECT_EQ(Source().Text(2, 2), "D:\\Ordner \xC3\xBC");
    Date().UserSelected(1);
    EXPECT_EQ(Source().RowCount(), 2);
    EXPECT_EQ(Target().RowCount(), 0);
    Choose("mnuViewTwoPanels");
    EXPECT_EQ(Target().RowCount(), 2);
    EXPECT_EQ(Target().Text(0, 0), "D:\\a.txt");
}

TEST_F(MainWindow, FilterAndFindAreWired) {
    Start();
    Status().UserClickedPanel(2);
    auto& cboFilter = dynamic_cast<toolkit::ComboBox&>(const_cast<toolkit::Control&>(*tools.focus));
    tools.Press(Main(), 'F', kCtrl);
    const std::string unfiltered = Status().PanelText(3);
    Date().UserSelected(0);
    EXPECT_EQ(Status().PanelText(3), unfiltered);
    cboFilter.UserEdited("Delete");
    tools.PressIn(dynamic_cast<toolkit::Form&>(*cboFilter.Container()), cboFilter,
                  toolkit::key::Enter);
    Date().UserSelected(1);
    EXPECT_EQ(Source().RowCount(), 1);
    EXPECT_EQ(Source().Text(0, 1), "Delete C:\\b.txt");
    EXPECT_EQ(Target().RowCount(), 1);
}

}  // namespace
}  // namespace ordalyn
