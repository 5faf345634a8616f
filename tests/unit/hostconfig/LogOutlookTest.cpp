// Why there is no log to be shown: each state, and what comes before what.
#include "hostconfig/LogOutlook.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "LocatorRoom.h"

namespace ordalyn {
namespace {

constexpr const char* kIni = "c:\\totalcmd\\wincmd.ini";
constexpr const char* kFresh = "[Configuration]\r\nfirstmnu=512\r\nPanelsVertical=0\r\n";

class Outlook : public testing::Test, public test::LocatorRoom {
  protected:
    Outlook() {
        system.files.AddFolder("C:\\logs");
        common.SetCommanderFolder("c:\\totalcmd\\");
        common.SetCommanderIni(kIni);
        Settings("LogOptions=7199\r\nLogFile=C:\\logs\\tc.log");
    }
    void Settings(const std::string& lines) {
        system.files.Set(kIni, "[Configuration]\r\n" + lines + "\r\n");
    }
    LogOutlook Look() { return LookForLog(locator, common, profile, system.services); }
    LogState State() { return Look().state; }
};

TEST_F(Outlook, ALogThatIsWrittenAndNotThereYet) {
    EXPECT_EQ(Look(), (LogOutlook{LogState::NotYetThere, "C:\\logs\\tc.log"}));
}

TEST_F(Outlook, WithoutSettingsItDependsOnTheFolderWhatIsMissing) {
    system.files.Delete(kIni);
    EXPECT_EQ(Look(), (LogOutlook{LogState::NoSettings, ""}));
    common.SetCommanderFolder(common.NoValueMarker());
    EXPECT_EQ(Look(), (LogOutlook{LogState::NoFileManager, ""}));
    common.SetCommanderIni(common.NoValueMarker());
    EXPECT_EQ(State(), LogState::NoFileManager);
    common.SetCommanderIni("");
    EXPECT_EQ(State(), LogState::NoFileManager);
}

// It is found by the next start, and still says nothing of the file manager.
TEST_F(Outlook, ASettingsFileThatTheProgramHasMadeIsNone) {
    user.answer = {SettingsFileQuestion::Outcome::Cancelled, ""};
    common.SetCommanderFolder(common.NoValueMarker());
    EXPECT_EQ(locator.FindCommanderIni(), "C:\\Windows\\wincmd.ini");
    EXPECT_EQ(State(), LogState::NoFileManager);
    EXPECT_EQ(system.files.Get("C:\\Windows\\wincmd.ini"), kFresh);
}

TEST_F(Outlook, ASettingsFileWithAnythingElseIsTheFileManagers) {
    for (const std::string more :
         {"LogOptions=7199\r\n", "[Colors]\r\nBackColor=1\r\n", "AutoRestart=1\r\n"}) {
        system.files.Set(kIni, kFresh + more);
        EXPECT_EQ(State(), LogState::NotLogging) << more;
    }
    for (const char* other : {"firstmnu=512", "firstmnu=512\r\nPanelsVertical=1",
                              "firstmnu=1000\r\nPanelsVertical=0"}) {
        Settings(other);
        EXPECT_EQ(State(), LogState::NotLogging) << other;
    }
    system.files.Set(kIni, kFresh);
    EXPECT_EQ(State(), LogState::NoSettings);
}

TEST_F(Outlook, LoggingIsOnWhenTheSumHasItsBit) {
    for (const char* on : {"1", "7199", "3", " 7199 ", "-1"}) {
        Settings(std::string("LogFile=C:\\logs\\tc.log\r\nLogOptions = ") + on);
        EXPECT_EQ(State(), LogState::NotYetThere) << on;
    }
    for (const char* off : {"0", "7198", "2", "", "on", "4294967297"}) {
        Settings(std::string("LogFile=C:\\logs\\tc.log\r\nLogOptions=") + off);
        EXPECT_EQ(Look(), (LogOutlook{LogState::NotLogging, "C:\\logs\\tc.log"})) << off;
    }
}

TEST_F(Outlook, LoggingIsOffWhereNothingIsSaidOfIt) {
    Settings("LogFile=C:\\logs\\tc.log");
    EXPECT_EQ(State(), LogState::NotLogging);
}

TEST_F(Outlook, WithoutAFileForItNoLogIsWritten) {
    for (const char* none : {"LogOptions=7199", "LogOptions=7199\r\nLogFile="}) {
        Settings(none);
        EXPECT_EQ(Look(), (LogOutlook{LogState::NotLogging, ""})) << none;
    }
}

TEST_F(Outlook, TheSettingsAreFollowedWhereTheyAreRedirected) {
    Settings("RedirectSection=user.ini");
    system.files.Set("c:\\totalcmd\\user.ini",
                     "[Configuration]\r\nLogOptions=7199\r\nLogFile=%windir%\\x.log\r\n");
    EXPECT_EQ(Look(), (LogOutlook{LogState::NotYetThere, "C:\\Windows\\x.log"}));
}

TEST_F(Outlook, AnEmptyLogIsOneThatBeginsOrThatNobodyWrites) {
    for (const char* empty : {"", "\xEF\xBB\xBF"}) {
        system.files.Set("C:\\logs\\tc.log", empty);
        Settings("LogOptions=7199\r\nLogFile=C:\\logs\\tc.log");
        EXPECT_EQ(Look(), (LogOutlook{LogState::Empty, "C:\\logs\\tc.log"}));
        Settings("LogOptions=7198\r\nLogFile=C:\\logs\\tc.log");
        EXPECT_EQ(State(), LogState::NotLogging);
    }
}

// Whether another log would be written is not the question.
TEST_F(Outlook, WhatHasSomethingInItAndIsNotShownCannotBeRead) {
    for (const char* options : {"7199", "7198"}) {
        Settings(std::string("LogFile=C:\\logs\\tc.log\r\nLogOptions=") + options);
        system.files.Set("C:\\logs\\tc.log", "garbage");
        EXPECT_EQ(Look(), (LogOutlook{LogState::Unreadable, "C:\\logs\\tc.log"}));
    }
    Settings("LogOptions=7199\r\nLogFile=C:\\logs");
    EXPECT_EQ(State(), LogState::Unreadable) << "a folder";
}

TEST_F(Outlook, AFolderOrADriveCanBeMissing) {
    Settings("LogOptions=7199\r\nLogFile=C:\\gone\\tc.log");
    EXPECT_EQ(Look(), (LogOutlook{LogState::NoFolder, "C:\\gone\\tc.log"}));
    Settings("LogOptions=7199\r\nLogFile=X:\\tc.log");
    EXPECT_EQ(State(), LogState::NoFolder);
    Settings("LogOptions=7199\r\nLogFile=X:\\logs\\tc.log");
    EXPECT_EQ(State(), LogState::NoFolder);
    // The root of a drive that is there.
    Settings("LogOptions=7199\r\nLogFile=C:\\tc.log");
    EXPECT_EQ(State(), LogState::NotYetThere);
    // Nothing is known of a folder that no name says.
    Settings("LogOptions=7199\r\nLogFile=tc.log");
    EXPECT_EQ(Look(), (LogOutlook{LogState::NotYetThere, "tc.log"}));
    // A variable that nobody has set stays in the path.
    Settings("LogOptions=7199\r\nLogFile=%NOWHERE%\\tc.log");
    EXPECT_EQ(Look(), (LogOutlook{LogState::NoFolder, "%NOWHERE%\\tc.log"}));
}

TEST_F(Outlook, ADriveThatIsMissingIsNotAskedForItsFolders) {
    Settings("LogOptions=7199\r\nLogFile=X:\\logs\\tc.log");
    system.files.looks.clear();
    State();
    for (const std::string& look : system.files.looks)
        EXPECT_NE(look, "X:\\logs");
}

TEST_F(Outlook, ABareNameIsLookedForAsTheStartDoes) {
    Settings("LogOptions=7199\r\nLogFile=tc.log");
    system.environment.SetVariable("temp", "C:\\Temp");
    system.files.Set("C:\\Temp\\tc.log", "");
    EXPECT_EQ(Look(), (LogOutlook{LogState::Empty, "C:\\Temp\\tc.log"}));
}

TEST_F(Outlook, AFileThatTheProgramWasStartedWithComesFirst) {
    Settings("LogOptions=7198");
    system.environment.commandLine = "\"C:\\my logs\\x.log\"";
    EXPECT_EQ(Look(), (LogOutlook{LogState::NoSuchFile, "C:\\my logs\\x.log"}));
    system.files.Set("C:\\my logs\\x.log", "");
    EXPECT_EQ(State(), LogState::Empty);
    system.files.Set("C:\\my logs\\x.log", "garbage");
    EXPECT_EQ(State(), LogState::Unreadable);
    system.environment.commandLine = "\"C:\\my logs\"";
    EXPECT_EQ(State(), LogState::Unreadable) << "a folder";
}

}  // namespace
}  // namespace ordalyn
