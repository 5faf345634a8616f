// Start, first activation, close and shutdown.
#include "app/Program.h"

#include "support/settings/DesignIds.h"
#include "support/windows/ProgramWindow.h"

namespace ordalyn {
namespace {

using test::MemoryToolkit;
using test::ProgramWindow;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using ProgramStart = ProgramWindow;
using ProgramEnd = ProgramWindow;

TEST_F(ProgramStart, ShowsTheLogOfTheFileManagerAtOnce) {
    Start();
    EXPECT_TRUE(Main().Visible());
    EXPECT_EQ(Date().ListCount(), 3);
    EXPECT_EQ(Date().ListIndex(), 2);
    EXPECT_EQ(Source().Text(0, 1), "Move C:\\c ");
    EXPECT_EQ(Target().Text(0, 0), "D:\\Ordner \xC3\xBC");
    EXPECT_EQ(Main().Caption(), Title("C:\\logs\\tc.log"));
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(ProgramStart, ReadsTheLogOnTheFirstActivationOnly) {
    program = std::make_unique<Program>(system.services, tools);
    EXPECT_EQ(Source().RowCount(), 0);
    tools.DoLaterWork();
    EXPECT_EQ(Source().RowCount(), 1);
    SetLog("C:\\logs\\tc.log", {"09.03.2024 10:00:00: Copy a -> b"});
    tools.ActivateByUser(Main());
    EXPECT_EQ(Date().ListCount(), 3);
}

TEST_F(ProgramStart, TakesALogFromTheCommandLine) {
    SetLog("C:\\other logs\\x.log", {"05.03.2024 10:00:00: Copy x -> y"});
    system.environment.commandLine = "\"C:\\other logs\\x.log\"";
    Start();
    EXPECT_EQ(Source().Text(0, 1), "Copy x ");
    // The title names the live log's folder with the file's name, wherever the file is from.
    EXPECT_EQ(Main().Caption(), Title("C:\\logs\\x.log"));
}

// Its path begins with a variable that only the file manager sets.
TEST_F(ProgramStart, ReadsALanguageFileThatIsStoredByTheFileManagersFolder) {
    system.environment.RemoveVariable("Commander_Path");
    system.files.Set("C:\\tc\\own.lng", "[UserLanguage]\r\n4000=Zeit\r\n");
    system.files.Set("C:\\Ordalyn\\Ordalyn.ini",
                     "[Common]\r\nTCInstallDir=C:\\tc\r\n"
                     "LanguageFile=%Commander_Path%\\own.lng\r\n"
                     "[Ordalyn]\r\nUseDefaultLanguage=0\r\n");
    Start();
    EXPECT_EQ(program->Shared().Text(4000), "Zeit");
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(ProgramStart, FindsABareLogNameInTheTemporaryFolder) {
    SetIni("LogFile=bare.log");
    SetLog("C:\\Temp\\bare.log", {"05.03.2024 10:00:00: Copy x -> y"});
    Start();
    EXPECT_EQ(Source().Text(0, 1), "Copy x ");
}

TEST_F(ProgramStart, WithoutALogSaysSoAndStaysOpen) {
    SetIni("LogFile=C:\\logs\\missing.log");
    Start();
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "Cannot find Total Commander log file.");
    EXPECT_EQ(tools.messages[0].icon, toolkit::MessageIcon::Critical);
    EXPECT_EQ(tools.messages[0].buttons, toolkit::MessageButtons::Ok);
    EXPECT_EQ(Main().Caption(), Title(""));
    EXPECT_EQ(Source().RowCount(), 0);
    EXPECT_EQ(Target().RowCount(), 0);
    EXPECT_TRUE(Main().Visible());
}

TEST_F(ProgramStart, AFileNamedOnTheCommandLineThatDoesNotExistIsReported) {
    system.environment.commandLine = "C:\\nowhere.log";
    Start();
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "Cannot find Total Commander log file.");
}

TEST_F(ProgramStart, HasTheDefaultPlacementAndColumns) {
    Start();
    EXPECT_EQ(Main().Bounds(), (toolkit::Rect{0, 0, 12030, 8520}));
    EXPECT_EQ(Source().ColumnCount(), 2);
    EXPECT_EQ(Source().ColumnCaption(0), "Time");
    EXPECT_EQ(Source().ColumnCaption(1), "Source");
    EXPECT_EQ(Target().ColumnCaption(0), "Target");
    const toolkit::Twips time = Source().WidthFor("88:88:88");
    EXPECT_EQ(Source().ColumnWidth(0), time);
    EXPECT_EQ(Source().ColumnWidth(1), Source().Width() - 375 - time);
    EXPECT_EQ(Target().ColumnWidth(0), Target().Width() - 375);
    EXPECT_TRUE(MemoryToolkit::Of(Source()).flatHeaders);
    EXPECT_TRUE(MemoryToolkit::Of(Target()).flatHeaders);
    EXPECT_FALSE(Files().Visible());
}

TEST_F(ProgramStart, HasTheDefaultColumnsInOnePanel) {
    SetSettings("TwoPanels=0");
    Start();
    ASSERT_EQ(Source().ColumnCount(), 3);
    const toolkit::Twips time = Source().WidthFor("88:88:88");
    EXPECT_EQ(Source().ColumnWidth(0), time);
    const auto path = (Source().Width() - 375 - time) / 2;
    EXPECT_EQ(Source().ColumnWidth(1), path);
    EXPECT_EQ(Source().ColumnWidth(2), path);
    for (int column = 0; column < 3; ++column)
        EXPECT_EQ(Source().ColumnPosition(column), column);
    const std::string file = SettingsAfterClose();
    const std::string whole = std::to_string(static_cast<int>(path));
    EXPECT_THAT(file, HasSubstr("ColumnsWidth=" + std::to_string(static_cast<int>(time)) + "," +
                                whole + "," + whole + "\r\n"));
    EXPECT_THAT(file, HasSubstr("ColumnHeadersPosition=1,2,3\r\n"));
}

TEST_F(ProgramStart, ColumnsInALargerFontLeaveTheTimesTheirRoom) {
    SetSettings("FontSize=16\r\nVerticalPanels=1");
    Start();
    EXPECT_EQ(Source().ColumnWidth(0), 8 * 16 * 13);
    EXPECT_EQ(Source().ColumnWidth(1),
              std::max<toolkit::Twips>(Source().Width() - 375 - 8 * 16 * 13, 1500));
    EXPECT_EQ(Target().ColumnWidth(0), Target().Width() - 375) << "beside the other panel";
}

TEST_F(ProgramStart, StoredWidthsOfTheColumnsAreNotFitted) {
    SetSettings("ColumnsWidth=884,10019,10890");
    Start();
    EXPECT_EQ(Source().ColumnWidth(1), 10019);
    EXPECT_EQ(Target().ColumnWidth(0), 10890);
}

// In whole twips, which need not be the same in both directions.
TEST_F(ProgramStart, IsLaidOutInThePixelsOfTheScreen) {
    tools.twipsPerPixelX = 14.4;
    tools.twipsPerPixelY = 11.6;
    SetSettings("VerticalPanels=1");
    Start();
    const auto& container = Get<toolkit::PictureBox>("picSpliterContainer");
    EXPECT_EQ(container.Left(), 14);
    EXPECT_EQ(container.Top(), Date().Height() + 4 * 12);
    EXPECT_EQ(Get<toolkit::Frame>("Frame1").Width(), 3 * 14);
}

TEST_F(ProgramStart, RestoresPlacementColumnsAndPanels) {
    SetSettings(
        "MainPosition=100,200,9000,7000\r\nColumnsWidth=500,600,700\r\n"
        "ColumnHeadersPosition=2,1,3\r\nTwoPanels=0\r\nStatusBarVisible=0");
    Start();
    EXPECT_EQ(Main().Bounds(), (toolkit::Rect{100, 200, 9000, 7000}));
    EXPECT_EQ(Source().ColumnCount(), 3);
    EXPECT_EQ(Source().ColumnCaption(2), "Target");
    EXPECT_EQ(Source().ColumnWidth(0), 500);
    EXPECT_EQ(Source().ColumnWidth(2), 700);
    EXPECT_EQ(Source().ColumnPosition(0), 1);
    EXPECT_EQ(Source().ColumnPosition(1), 0);
    EXPECT_EQ(Source().ColumnPosition(2), 2);
    EXPECT_FALSE(Status().Visible());
    EXPECT_EQ(Source().Text(0, 2), "D:\\Ordner \xC3\xBC");
}

TEST_F(ProgramStart, AThirdColumnWithoutAPlaceIsPutLast) {
    SetSettings("ColumnHeadersPosition=3,1\r\nTwoPanels=0");
    Start();
    EXPECT_EQ(Source().ColumnPosition(0), 1);
    EXPECT_EQ(Source().ColumnPosition(1), 0);
    EXPECT_EQ(Source().ColumnPosition(2), 2);
}

TEST_F(ProgramStart, ASecondColumnWithoutAPlaceStaysWhereItIs) {
    SetSettings("ColumnHeadersPosition=1\r\nTwoPanels=0");
    Start();
    for (int column = 0; column < 3; ++column)
        EXPECT_EQ(Source().ColumnPosition(column), column);
}

TEST_F(ProgramStart, BadColumnSettingsStillGiveEveryColumn) {
    SetSettings("ColumnsWidth=-5,x\r\nColumnHeadersPosition=9,,z");
    Start();
    EXPECT_EQ(Source().ColumnWidth(0), 884);
    EXPECT_EQ(Source().ColumnWidth(1), 0);
    EXPECT_EQ(Target().ColumnWidth(0), 10890);
    EXPECT_EQ(Source().ColumnPosition(0), 0);
}

TEST_F(ProgramStart, ColumnSettingsThatNoColumnCanHaveAreNotTaken) {
    SetSettings("ColumnsWidth=3e9,1e39,5\r\nColumnHeadersPosition=-2147483648,1,3");
    Start();
    EXPECT_EQ(Source().ColumnWidth(0), 884);
    EXPECT_EQ(Source().ColumnWidth(1), 10019);
    EXPECT_EQ(Target().ColumnWidth(0), 5);
    EXPECT_THAT(SettingsAfterClose(), HasSubstr("ColumnsWidth=884,10019,5"));
}

// A user who ends the program from outside has not declined to name the file manager's settings.
TEST_F(ProgramStart, EndingTheProgramBehindTheFirstQuestionMakesNoSettings) {
    system.environment.RemoveVariable("Commander_INI");
    tools.onMessage = [&](const test::ShownMessage&) {
        Main().UserClosed();
        return toolkit::Answer::Ok;
    };
    Start();
    EXPECT_EQ(tools.messages.size(), 1U);
    EXPECT_THAT(system.dialogs.openRequests, IsEmpty());
    EXPECT_FALSE(system.files.Get("C:\\Windows\\wincmd.ini").has_value());
    EXPECT_EQ(Stored("UserDefinedWincmd", "Common"), "(absent)");
}

TEST_F(ProgramStart, EndingTheProgramBehindTheFirstDialogMakesNoSettings) {
    system.environment.RemoveVariable("Commander_INI");
    system.dialogs.onOpenFile = [&](const auto&) -> std::optional<std::string> {
        Main().UserClosed();
        return std::nullopt;
    };
    Start();
    EXPECT_EQ(tools.messages.size(), 1U);  // that the settings were not found
    ASSERT_EQ(system.dialogs.openRequests.size(), 1U);
    EXPECT_EQ(system.dialogs.openRequests[0].owner, Main().Handle());
    EXPECT_FALSE(system.files.Get("C:\\Windows\\wincmd.ini").has_value());
    EXPECT_EQ(Stored("UserDefinedWincmd", "Common"), "(absent)");
}

TEST_F(ProgramStart, NeverStartsMinimised) {
    SetSettings("MainWindowState=1");
    Start();
    EXPECT_EQ(Main().State(), toolkit::WindowState::Normal);
}

TEST_F(ProgramStart, StartsMaximised) {
    SetSettings("MainWindowState=2");
    Start();
    EXPECT_EQ(Main().State(), toolkit::WindowState::Maximised);
}

TEST_F(ProgramStart, ANumberThatIsNoneEndsTheLoadingSilently) {
    SetSettings("GridLines=1\r\nFixedBorders=yes\r\nTwoPanels=0");
    Start();
    EXPECT_TRUE(Source().GridLines());
    EXPECT_EQ(Source().ColumnCount(), 2);  // what stands behind it keeps its default
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(ProgramStart, WritesTheExemptSectionsIntoItsOwnFile) {
    Start();
    EXPECT_THAT(Stored("TCSectionsNotRedirectedByDefault", "Common"),
                testing::StartsWith("Configuration;Layout;Packer"));
}

TEST_F(ProgramStart, AppliesTheVisualSettings) {
    SetSettings(
        "GridLines=1\r\nFixedBorders=0\r\nFlatUserInterface=1\r\nForegroundColor=255\r\n"
        "BackgroundColor=65280\r\nFontName=Tahoma\r\nFontSize=11\r\nFontStyle=3");
    Start();
    for (const toolkit::ListView* list : {&Source(), &Target()}) {
        EXPECT_TRUE(list->GridLines());
        EXPECT_EQ(list->Border(), toolkit::BorderStyle::None);
        EXPECT_EQ(list->Look(), toolkit::Appearance::Flat);
        EXPECT_EQ(list->ForeColor(), 255);
        EXPECT_EQ(list->BackColor(), 65280);
    }
    for (const toolkit::Control* control : std::initializer_list<toolkit::Control*>{
             &Source(), &Target(), &Date(), &Files(), &Status()}) {
        EXPECT_EQ(control->Font().name, "Tahoma");
        EXPECT_EQ(control->Font().size, 11);
        EXPECT_TRUE(control->Font().bold);
        EXPECT_TRUE(control->Font().italic);
    }
    for (const toolkit::ComboBox* box : {&Date(), &Files()}) {
        EXPECT_EQ(box->Look(), toolkit::Appearance::Flat);
        EXPECT_EQ(box->ForeColor(), 255);
        EXPECT_EQ(box->BackColor(), 65280);
    }
    for (int panel = 1; panel <= 3; ++panel)
        EXPECT_EQ(Status().PanelBevel(panel), toolkit::Bevel::None);
}

TEST_F(ProgramStart, WithoutTheFlatLookEverythingIsInRelief) {
    SetSettings("FixedBorders=1\r\nFlatUserInterface=0");
    Start();
    for (const toolkit::ListView* list : {&Source(), &Target()}) {
        EXPECT_EQ(list->Border(), toolkit::BorderStyle::FixedSingle);
        EXPECT_EQ(list->Look(), toolkit::Appearance::ThreeDimensional);
    }
    for (const toolkit::ComboBox* box : {&Date(), &Files()})
        EXPECT_EQ(box->Look(), toolkit::Appearance::ThreeDimensional);
    for (int panel = 1; panel <= 3; ++panel)
        EXPECT_EQ(Status().PanelBevel(panel), toolkit::Bevel::Inset);
}

TEST_F(ProgramStart, TheMainWindowCarriesTheIdsOfItsTexts) {
    EXPECT_THAT(test::DesignIdFaults(Start()), IsEmpty());
}

TEST_F(ProgramEnd, StoresColumnsPanelsAndPlacement) {
    Start();
    MemoryToolkit::DragColumn(Source(), 0, 1000.9F);
    MemoryToolkit::DragColumn(Target(), 0, 3000);
    MemoryToolkit::MoveColumn(Source(), 0, 1);
    tools.ResizeByUser(Main(), {150, 300, 9000.5F, 6000});
    Choose("mnuViewVerticalPanels");
    Choose("mnuViewStatusBar");
    const std::string file = SettingsAfterClose();
    EXPECT_THAT(file, testing::ContainsRegex("ColumnsWidth=1000,\\w+,3000\r\n"));
    EXPECT_THAT(file, HasSubstr("ColumnHeadersPosition=2,1,3\r\n"));
    EXPECT_THAT(file, HasSubstr("VerticalPanels=1\r\n"));
    EXPECT_THAT(file, HasSubstr("HSplitPosition=4000\r\n"));
    EXPECT_THAT(file, HasSubstr("StatusBarVisible=0\r\n"));
    EXPECT_THAT(file, HasSubstr("TwoPanels=1\r\n"));
    EXPECT_THAT(file, HasSubstr("MainPosition=150,300,9000,6000\r\n"));
    EXPECT_THAT(file, HasSubstr("MainWindowState=0\r\n"));
    EXPECT_TRUE(tools.quit);
}

TEST_F(ProgramEnd, ASinglePanelStoresItsThreeColumnsAndNoSplitter) {
    SetSettings("TwoPanels=0");
    Start();
    MemoryToolkit::DragColumn(Source(), 2, 3210);
    MemoryToolkit::MoveColumn(Source(), 2, 0);
    const std::string file = SettingsAfterClose();
    EXPECT_THAT(file, testing::ContainsRegex("ColumnsWidth=\\w+,\\w+,3210\r\n"));
    EXPECT_THAT(file, HasSubstr("ColumnHeadersPosition=2,3,1\r\n"));
    EXPECT_THAT(file, HasSubstr("TwoPanels=0\r\n"));
    EXPECT_THAT(file, Not(HasSubstr("VerticalPanels")));
    EXPECT_THAT(file, Not(HasSubstr("SplitPosition")));
}

TEST_F(ProgramEnd, MaximisedKeepsTheLastNormalPlacement) {
    SetSettings("MainPosition=100,200,9000,7000");
    Start();
    Main().SetState(toolkit::WindowState::Maximised);
    const std::string file = SettingsAfterClose();
    EXPECT_THAT(file, HasSubstr("MainPosition=100,200,9000,7000\r\n"));
    EXPECT_THAT(file, HasSubstr("MainWindowState=2\r\n"));
}

// The order of the keys in a new file is the order in which they were written.
TEST_F(ProgramEnd, TheMainWindowIsSavedBeforeTheDialogsSaveTheirs) {
    Start();
    const std::string file = SettingsAfterClose();
    std::size_t before = 0;
    for (const char* key :
         {"ColumnsWidth=", "VerticalPanels=", "StatusBarVisible=", "ColumnHeadersPosition=",
          "TwoPanels=", "MainPosition=", "FindOptions=", "FiltersPosition="}) {
        const std::size_t at = file.find(std::string("\n") + key);
        ASSERT_NE(at, std::string::npos) << key;
        EXPECT_GT(at, before) << key;
        before = at;
    }
}

TEST_F(ProgramEnd, TheWindowsAreUnloadedInAFixedOrder) {
    Start();
    Choose("mnuSearchFind");
    tools.closedForms.clear();
    Main().UserClosed();
    EXPECT_THAT(tools.closedForms,
                ElementsAre("frmSearchFor", "frmFilters", "frmXpStyleLoader", "frmMain"));
}

TEST_F(ProgramEnd, ADialogThatWaitsForAnAnswerIsUnloadedFirst) {
    for (const auto& [menu, form] :
         {std::pair("mnuHelpAbout", "frmAbout"), std::pair("mnuViewOptions", "frmOptions")}) {
        Start();
        Choose("mnuSearchFind");
        tools.closedForms.clear();
        tools.modalScripts.push_back([this](toolkit::Form&) { Main().UserClosed(); });
        Choose(menu);
        EXPECT_THAT(tools.closedForms,
                    ElementsAre(form, "frmSearchFor", "frmFilters", "frmXpStyleLoader", "frmMain"));
        program.reset();
    }
}

TEST_F(ProgramEnd, TheProgressWindowIsUnloadedBeforeTheDialogsThatOutliveIt) {
    Start();
    Choose("mnuSearchFind");
    tools.closedForms.clear();
    std::vector<std::string> closed;
    tools.onDoEvents = [&] {
        tools.onDoEvents = nullptr;
        Main().UserClosed();
        closed = tools.closedForms;
    };
    Main().FilesDropped.Raise({"C:\\logs\\tc.log"});
    EXPECT_THAT(closed, ElementsAre("frmProgress", "frmSearchFor", "frmFilters", "frmXpStyleLoader",
                                    "frmMain"));
    // The read that was going on ends there: it shows no window again.
    EXPECT_EQ(tools.closedForms, closed);
    EXPECT_TRUE(tools.messages.empty());
}

TEST_F(ProgramEnd, FileExitClosesTheWindow) {
    Start();
    Choose("mnuFileExit");
    EXPECT_TRUE(Main().Unloaded());
    EXPECT_TRUE(tools.quit);
    program.reset();
    EXPECT_THAT(*system.files.Get("C:\\Ordalyn\\Ordalyn.ini"), HasSubstr("MainPosition="));
}

TEST_F(ProgramEnd, NothingOfTheFileManagersIsChanged) {
    const auto ini = system.files.Get("C:\\tc\\wincmd.ini");
    const auto log = system.files.Get("C:\\logs\\tc.log");
    Start();
    Choose("mnuViewRefresh");
    SettingsAfterClose();
    EXPECT_EQ(system.files.Get("C:\\tc\\wincmd.ini"), ini);
    EXPECT_EQ(system.files.Get("C:\\logs\\tc.log"), log);
}

}  // namespace
}  // namespace ordalyn
