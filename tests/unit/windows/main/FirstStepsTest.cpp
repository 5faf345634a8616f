// What stands in the place of the panels while no log is shown.
#include "windows/main/FirstSteps.h"

#include "unit/windows/main/FirstStepsFixture.h"

namespace ordalyn {
namespace {

using test::MemoryToolkit;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::SizeIs;
using toolkit::Rect;

using Steps = test::FirstStepsFixture;

TEST_F(Steps, AreNotThereWhileALogIsShown) {
    SetLog(kLog, kOneLine);
    Start();
    EXPECT_FALSE(Shown());
    EXPECT_TRUE(PanelsCanBeUsed());
    EXPECT_THAT(Buttons(), IsEmpty());
    EXPECT_EQ(tools.focus, &Source());
}

TEST_F(Steps, AreNotThereBeforeTheLogHasBeenLookedForNorBeforeTheMessage) {
    tools.onMessage = [this](const test::ShownMessage&) {
        EXPECT_FALSE(Shown());
        EXPECT_TRUE(PanelsCanBeUsed());
        return toolkit::Answer::Ok;
    };
    program = std::make_unique<Program>(system.services, tools);
    EXPECT_FALSE(Shown());
    tools.DoLaterWork();
    ASSERT_THAT(tools.messages, SizeIs(1));
    EXPECT_EQ(tools.messages[0].text, "Cannot find Total Commander log file.");
    EXPECT_TRUE(Shown());
}

TEST_F(Steps, WithoutAFileManager) {
    WithoutFileManager();
    Start();
    // As before: that there are no settings, then that there is no log.
    ASSERT_THAT(tools.messages, SizeIs(2));
    Expect(text_id::kFileManagerNotFound, "", Says(text_id::kWhereSettingsAre),
           {"cmdChooseSettings", "cmdOpenLog"});
    EXPECT_EQ(tools.focus, &Get<toolkit::CommandButton>("cmdChooseSettings"));
    // The next start finds the file that this one has made, and knows no more than before.
    program.reset();
    tools.messages.clear();
    Start();
    ASSERT_THAT(tools.messages, SizeIs(1));
    Expect(text_id::kFileManagerNotFound, "", Says(text_id::kWhereSettingsAre),
           {"cmdChooseSettings", "cmdOpenLog"});
}

TEST_F(Steps, WithoutTheSettingsOfAFileManagerWhoseFolderIsKnown) {
    system.environment.RemoveVariable("Commander_INI");
    Start();
    Expect(text_id::kSettingsNotFound, "", Says(text_id::kWhereSettingsAre),
           {"cmdChooseSettings", "cmdOpenLog"});
}

TEST_F(Steps, WhereLoggingIsOff) {
    SetIni("LogOptions=7198\r\nLogFile=C:\\logs\\tc.log");
    Start();
    Expect(text_id::kWritesNoLog, "", Says(text_id::kSwitchLogOn), {"cmdLookAgain"});
}

TEST_F(Steps, WhereTheLogIsNotYetThere) {
    Start();
    Expect(text_id::kLogNotYetThere, kLog, Says(text_id::kLogBeginsLater),
           {"cmdLookAgain", "cmdFollowLog"});
    const auto& path = MemoryToolkit::Of(Get<toolkit::Label>("lblLogPath"));
    EXPECT_EQ(path.toolTip, kLog);
    EXPECT_TRUE(path.shortensPath);
    EXPECT_TRUE(path.plainText);
}

TEST_F(Steps, WhereTheFolderOfTheLogIsMissing) {
    SetIni("LogOptions=7199\r\nLogFile=X:\\R&D\\tc.log");
    Start();
    Expect(text_id::kLogFolderMissing, "X:\\R&D\\tc.log", Says(text_id::kConnectDrive),
           {"cmdLookAgain", "cmdOpenLog"});
}

TEST_F(Steps, WhereTheLogIsEmpty) {
    system.files.Set(kLog, "");
    Start();
    ASSERT_THAT(tools.messages, SizeIs(1));
    EXPECT_THAT(tools.messages[0].text, EndsWith("Line: 0"));
    Expect(text_id::kLogIsEmpty, kLog, Says(text_id::kLogBeginsLater),
           {"cmdLookAgain", "cmdFollowLog"});
}

// It is read, and has no day to show.
TEST_F(Steps, WhereWhatIsReadIsNoLog) {
    system.files.Set(kLog, "; a comment\r\n");
    Start();
    EXPECT_THAT(tools.messages, IsEmpty());
    Expect(text_id::kLogNotReadable, kLog, Says(text_id::kWhyNotReadable),
           {"cmdLookAgain", "cmdOpenLog"});
}

TEST_F(Steps, WhereTheLogCannotBeRead) {
    SetLog(kLog, kOneLine);
    system.files.Lock(kLog);
    Start();
    Expect(text_id::kLogNotReadable, kLog, Says(text_id::kWhyNotReadable),
           {"cmdLookAgain", "cmdOpenLog"});
}

TEST_F(Steps, WhereTheProgramWasStartedWithAFileThatIsNotThere) {
    system.environment.commandLine = "C:\\nowhere.log";
    Start();
    Expect(text_id::kNoSuchFile, "C:\\nowhere.log", "", {"cmdLookAgain", "cmdOpenLog"});
}

TEST_F(Steps, GoAsSoonAsALogIsShownAndDoNotComeBack) {
    Start();
    ASSERT_TRUE(Shown());
    system.files.Set("D:\\empty.log", "");
    Main().FilesDropped.Raise({"D:\\empty.log"});
    EXPECT_TRUE(Shown());
    SetLog("D:\\x.log", kOneLine);
    Main().FilesDropped.Raise({"D:\\x.log"});
    EXPECT_FALSE(Shown());
    EXPECT_TRUE(PanelsCanBeUsed());
    EXPECT_EQ(tools.focus, &Source());
    Main().FilesDropped.Raise({"D:\\empty.log"});
    Choose("mnuViewFollow");
    Main().Move({0, 0, 9000, 7000});
    EXPECT_FALSE(Shown());
    EXPECT_THAT(Buttons(), IsEmpty());
}

TEST_F(Steps, GoFromASinglePanelToo) {
    SetSettings("TwoPanels=0");
    Start();
    EXPECT_TRUE(Shown());
    EXPECT_FALSE(Source().Visible());
    SetLog(kLog, kOneLine);
    Press("cmdLookAgain");
    EXPECT_FALSE(Shown());
    EXPECT_TRUE(PanelsCanBeUsed());
    EXPECT_EQ(Source().RowCount(), 1);
    EXPECT_EQ(tools.focus, &Source());
}

TEST_F(Steps, LookingAgainIsWhatRefreshDoes) {
    Start();
    Press("cmdLookAgain");
    EXPECT_THAT(tools.messages, SizeIs(2));
    SetIni("LogOptions=7198\r\nLogFile=C:\\logs\\tc.log");
    Choose("mnuViewRefresh");
    EXPECT_THAT(tools.messages, SizeIs(3));
    EXPECT_EQ(Headline(), Says(text_id::kWritesNoLog));
    // A button that is gone has left the focus to one that is there.
    EXPECT_EQ(tools.focus, &Get<toolkit::CommandButton>("cmdLookAgain"));
}

TEST_F(Steps, OpeningALogIsWhatTheMenuDoes) {
    WithoutFileManager();
    Start();
    SetLog("D:\\x.log", kOneLine);
    system.dialogs.onOpenFile = [](const auto& request) -> std::optional<std::string> {
        EXPECT_TRUE(request.filter.starts_with("TC Log File(*.log)"));
        return "D:\\x.log";
    };
    Press("cmdOpenLog");
    EXPECT_FALSE(Shown());
    EXPECT_EQ(Stored("RecentFiles1"), "D:\\x.log");
}

TEST_F(Steps, TheSettingsThatAreChosenLeadToTheLogWithoutAMessage) {
    WithoutFileManager();
    Start();
    tools.messages.clear();
    const auto choose = [this](const std::string& path) {
        system.dialogs.onOpenFile = [path](const auto&) { return path; };
        Press("cmdChooseSettings");
    };
    system.dialogs.onOpenFile = [](const auto&) { return std::nullopt; };
    Press("cmdChooseSettings");
    EXPECT_EQ(Headline(), Says(text_id::kFileManagerNotFound));
    // One that knows of no log says what to do next.
    system.files.Set("E:\\tc\\off.ini", "[Configuration]\r\nUseLongNames=1\r\n");
    choose("E:\\tc\\off.ini");
    EXPECT_EQ(Headline(), Says(text_id::kWritesNoLog));
    EXPECT_EQ(tools.focus, &Get<toolkit::CommandButton>("cmdLookAgain"));
    EXPECT_THAT(tools.messages, IsEmpty());
    EXPECT_EQ(Stored("UserDefinedWincmd", "Common"), "E:\\tc\\off.ini");
}

TEST_F(Steps, TheSettingsOfAPortableFileManagerNameTheLogByItsFolder) {
    WithoutFileManager();
    system.files.Set("E:\\tc\\TOTALCMD64.EXE", "");
    system.files.Set("E:\\tc\\wincmd.ini",
                     "[Configuration]\r\nLogFile=%COMMANDER_PATH%\\tc.log\r\nLogOptions=7199\r\n");
    SetLog("E:\\tc\\tc.log", kOneLine);
    Start();
    tools.messages.clear();
    system.dialogs.onOpenFile = [](const auto&) { return "E:\\tc\\wincmd.ini"; };
    Press("cmdChooseSettings");
    EXPECT_FALSE(Shown());
    EXPECT_EQ(Source().RowCount(), 1);
    EXPECT_EQ(Main().Caption(), Title("E:\\tc\\tc.log"));
    EXPECT_THAT(tools.messages, IsEmpty());
    program.reset();
    WithoutFileManager();
    Start();
    EXPECT_EQ(Source().RowCount(), 1);
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(Steps, FollowingChangesWhatIsSaid) {
    Start();
    Get<toolkit::CommandButton>("cmdFollowLog").SetFocus();
    Press("cmdFollowLog");
    EXPECT_TRUE(Main().Menu("mnuViewFollow").Checked());
    Expect(text_id::kLogNotYetThere, kLog, Says(text_id::kLogShowsItself), {"cmdLookAgain"});
    EXPECT_EQ(tools.focus, &Get<toolkit::CommandButton>("cmdLookAgain"));
    Choose("mnuViewFollow");
    Expect(text_id::kLogNotYetThere, kLog, Says(text_id::kLogBeginsLater),
           {"cmdLookAgain", "cmdFollowLog"});
}

TEST_F(Steps, ALogThatIsFollowedShowsItselfWhenItBegins) {
    SetSettings("FollowLog=1");
    for (const bool empty : {false, true}) {
        system.files.AddFolder("C:\\logs");
        if (empty)
            system.files.Set(kLog, "\xEF\xBB\xBF");
        Start();
        tools.messages.clear();
        tools.PassTime(kASecond);
        EXPECT_EQ(Headline(), Says(empty ? text_id::kLogIsEmpty : text_id::kLogNotYetThere));
        SetLog(kLog, kOneLine);
        tools.PassTime(kASecond);
        EXPECT_FALSE(Shown());
        EXPECT_EQ(Source().RowCount(), 1);
        EXPECT_EQ(Main().Caption(), Title(kLog));
        EXPECT_EQ(tools.focus, &Source());
        // And goes on.
        system.files.Append(kLog, "07.03.2024 10:00:01: Delete z\r\n");
        tools.PassTime(kASecond);
        EXPECT_EQ(Source().RowCount(), 2);
        EXPECT_THAT(tools.messages, IsEmpty());
        program.reset();
        system.files.Delete(kLog);
        system.files.Set("C:\\Ordalyn\\Ordalyn.ini", "[Ordalyn]\r\nFollowLog=1\r\n");
    }
}

// What was followed from another program: the panel has the focus when the window is used again.
TEST_F(Steps, LeaveTheFocusToThePanelWhenTheWindowIsTheActiveOneAgain) {
    SetSettings("FollowLog=1");
    Start();
    tools.focus = nullptr;
    SetLog(kLog, kOneLine);
    tools.PassTime(kASecond);
    EXPECT_FALSE(Shown());
    EXPECT_EQ(tools.focus, nullptr);
    tools.ActivateByUser(Main());
    EXPECT_EQ(tools.focus, &Source());
    Date().SetFocus();
    tools.ActivateByUser(Main());
    EXPECT_EQ(tools.focus, &Date());
}

TEST_F(Steps, LeaveTheFocusWhereItIsElsewhere) {
    SetSettings("FollowLog=1");
    Start();
    Date().SetFocus();
    SetLog(kLog, kOneLine);
    tools.PassTime(kASecond);
    EXPECT_FALSE(Shown());
    EXPECT_EQ(tools.focus, &Date());
    tools.ActivateByUser(Main());
    EXPECT_EQ(tools.focus, &Date());
}

TEST_F(Steps, ALogThatAppearsIsNotReadUnlessItIsFollowed) {
    system.files.AddFolder("C:\\logs");
    Start();
    SetLog(kLog, kOneLine);
    tools.PassTime(kASecond);
    tools.ActivateByUser(Main());
    EXPECT_TRUE(Shown());
    Choose("mnuViewFollow");
    tools.PassTime(kASecond);
    EXPECT_FALSE(Shown());
}

TEST_F(Steps, WhatTheFileManagerChangesInItsSettingsIsSeenWhileFollowing) {
    SetSettings("FollowLog=1");
    SetIni("LogOptions=7198");
    Start();
    EXPECT_EQ(Headline(), Says(text_id::kWritesNoLog));
    SetIni("LogOptions=7199\r\nLogFile=C:\\new\\new.log");
    tools.PassTime(kASecond);
    EXPECT_EQ(Headline(), Says(text_id::kLogFolderMissing));
    SetLog("C:\\new\\new.log", kOneLine);
    tools.PassTime(kASecond);
    EXPECT_FALSE(Shown());
    EXPECT_THAT(tools.messages, SizeIs(1));
}

// A damaged file is not read again and again, and one that is in use is read when it is not.
TEST_F(Steps, AFileThatCannotBeReadIsReadOnceItChanges) {
    SetSettings("FollowLog=1");
    system.files.Set(kLog, "garbage\r\n");
    Start();
    tools.messages.clear();
    tools.PassTime(kASecond);
    int opened = 0;
    system.files.onOpen = [&](const std::string& path) { opened += path == kLog ? 1 : 0; };
    tools.PassTime(10 * kASecond);
    EXPECT_EQ(opened, 0);
    SetLog(kLog, kOneLine);
    system.files.Lock(kLog);
    tools.PassTime(kASecond);
    EXPECT_TRUE(Shown());
    system.files.Lock(kLog, false);
    tools.PassTime(kASecond);
    EXPECT_FALSE(Shown());
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(Steps, AreInTheLanguageThatIsChosen) {
    Start();
    system.files.Set("C:\\Ordalyn\\x.lng",
                     "[UserLanguage]\r\nRightToLeftLanguage=1\r\n5187=noch nicht da\r\n"
                     "5188=spaeter\r\n5196=no&chmal\r\n");
    tools.modalScripts.push_back([](toolkit::Form& options) {
        options.Get<toolkit::OptionButton>("optUseOtherLanguage").UserToggled();
        options.Get<toolkit::TextBox>("txtLanguageFilePath").UserEdited("C:\\Ordalyn\\x.lng");
        options.Get<toolkit::CommandButton>("cmdOK").UserClicked();
    });
    const Rect before = Place(Get<toolkit::CommandButton>("cmdLookAgain"));
    Choose("mnuViewOptions");
    EXPECT_EQ(Headline(), "noch nicht da");
    EXPECT_EQ(Advice(), "spaeter");
    EXPECT_EQ(Get<toolkit::CommandButton>("cmdLookAgain").Caption(), "no&chmal");
    // From the right, but for the path itself.
    EXPECT_GT(Place(Get<toolkit::CommandButton>("cmdLookAgain")).left, before.left);
    EXPECT_LT(Place(Get<toolkit::CommandButton>("cmdFollowLog")).left,
              Place(Get<toolkit::CommandButton>("cmdLookAgain")).left);
    EXPECT_TRUE(Get<toolkit::Label>("lblAdvice").RightToLeft());
    EXPECT_EQ(Get<toolkit::Label>("lblLogPath").TextAlignment(), toolkit::Alignment::Right);
    EXPECT_FALSE(Get<toolkit::Label>("lblLogPath").RightToLeft());
}

TEST_F(Steps, HaveTheColoursAndTheFontOfThePanels) {
    SetSettings(
        "ForegroundColor=14737632\r\nBackgroundColor=2105376\r\nFontSize=12\r\n"
        "FixedBorders=1");
    Start();
    for (const char* name : {"picFirstSteps", "lblHeadline", "lblLogPath", "lblAdvice"}) {
        const auto& shown = MemoryToolkit::Of(Get<toolkit::Control>(name));
        EXPECT_EQ(shown.background, 2105376) << name;
        EXPECT_EQ(shown.foreground, 14737632) << name;
    }
    EXPECT_EQ(Get<toolkit::Label>("lblAdvice").Font().size, 12);
    EXPECT_EQ(Get<toolkit::Label>("lblHeadline").Font().size, 18);
    EXPECT_EQ(Get<toolkit::CommandButton>("cmdLookAgain").Font().size, 12);
    EXPECT_EQ(Get<toolkit::PictureBox>("picFirstSteps").Border(), Source().Border());
}

TEST_F(Steps, EndWithTheProgram) {
    tools.onMessage = [this](const test::ShownMessage&) {
        Main().Unload();
        return toolkit::Answer::Ok;
    };
    Start();
    EXPECT_FALSE(Shown());
}

}  // namespace
}  // namespace ordalyn
