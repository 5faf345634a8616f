// The whole program and its settings file: how often it is opened, and what is said when it cannot
// be written.
#include <map>

#include "app/Program.h"
#include "support/windows/ProgramWindow.h"

namespace ordalyn {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

constexpr const char* kSettings = "C:\\Ordalyn\\Ordalyn.ini";
constexpr const char* kLanguage = "C:\\Ordalyn\\Languages\\other.lng";
constexpr int kMostOpens = 10;

class SettingsFile : public test::ProgramWindow {
  protected:
    SettingsFile() {
        system.files.onOpen = [this](const std::string& path) { ++opened_[path]; };
        system.files.Set(kLanguage, "[UserLanguage]\r\n110=&Ende\r\n1501=Info\r\n");
    }
    void UseLanguageFile() {
        SetSettings("UseDefaultLanguage=0\r\n[Common]\r\nLanguageFile=" + std::string(kLanguage));
    }
    int Opened(const std::string& path) { return std::exchange(opened_[path], 0); }
    void Close() {
        Main().UserClosed();
        program.reset();
    }
    std::string Kept() { return system.files.Get(kSettings).value_or(""); }
    // The options dialog is shown, something is changed, and the button is pressed.
    void ChangeOptions(const char* button) {
        tools.modalScripts.emplace_back([button](toolkit::Form& options) {
            options.Get<toolkit::CheckBox>("chkGridLines").UserToggled();
            options.Get<toolkit::CommandButton>(button).UserClicked();
        });
        Choose("mnuViewOptions");
    }

  private:
    std::map<std::string, int> opened_;
};

TEST_F(SettingsFile, IsOpenedAFewTimesForAStart) {
    UseLanguageFile();
    Start();
    EXPECT_EQ(Main().Menu("mnuFileExit").Caption(), "&Ende");
    EXPECT_LE(Opened(kSettings), kMostOpens);
    EXPECT_LE(Opened(kLanguage), kMostOpens);
    EXPECT_LE(Opened("C:\\tc\\wincmd.ini"), kMostOpens);
}

TEST_F(SettingsFile, IsOpenedAFewTimesForAStartThatMakesIt) {
    Start();
    EXPECT_LE(Opened(kSettings), kMostOpens);
}

TEST_F(SettingsFile, IsOpenedAFewTimesForAStartRightAfterItWasWritten) {
    system.files.StopClock();
    UseLanguageFile();
    system.files.Append(kLanguage, "4020=&Neu\r\n");
    Start();
    EXPECT_LE(Opened(kSettings), kMostOpens);
    EXPECT_LE(Opened(kLanguage), kMostOpens);
}

TEST_F(SettingsFile, IsNotOpenedForTheAboutBox) {
    UseLanguageFile();
    Start();
    Opened(kSettings);
    Opened(kLanguage);
    std::string caption;
    tools.modalScripts.emplace_back([&](toolkit::Form& about) { caption = about.Caption(); });
    Choose("mnuHelpAbout");
    EXPECT_EQ(caption, "Info Ordalyn");
    EXPECT_EQ(Opened(kSettings), 0);
    EXPECT_EQ(Opened(kLanguage), 0);
    // A text that somebody changes meanwhile is seen all the same.
    system.files.Set(kLanguage, "[UserLanguage]\r\n1501=About\r\n");
    tools.modalScripts.emplace_back([&](toolkit::Form& about) { caption = about.Caption(); });
    Choose("mnuHelpAbout");
    EXPECT_EQ(caption, "About Ordalyn");
    EXPECT_EQ(Opened(kLanguage), 1);
}

TEST_F(SettingsFile, IsOpenedAFewTimesWhenTheProgramEnds) {
    Start();
    Opened(kSettings);
    Close();
    EXPECT_LE(Opened(kSettings), kMostOpens);
}

TEST_F(SettingsFile, IsWrittenAtOnceForAllThatTheEndKeeps) {
    SetSettings("TwoPanels=1");
    Start();
    Choose("mnuViewTwoPanels");
    Main().Move({1500, 1500, 9000, 7500});
    const std::int64_t before = system.files.Stamp(kSettings)->written;
    Close();
    // All new values or none of them.
    EXPECT_EQ(system.files.Stamp(kSettings)->written, before + 1);
    EXPECT_THAT(Kept(), HasSubstr("TwoPanels=0"));
    EXPECT_THAT(Kept(), HasSubstr("MainPosition=1500,1500,9000,7500"));
}

class SettingsNotKept : public SettingsFile {
  protected:
    SettingsNotKept() {
        SetSettings("TwoPanels=1");
        system.files.FailWriting(kSettings);
    }
    void ExpectSaidOnce() {
        ASSERT_THAT(tools.messages, SizeIs(1));
        EXPECT_EQ(tools.messages[0].text,
                  "The settings could not be kept in this file:\r\nC:\\Ordalyn\\Ordalyn.ini");
        EXPECT_EQ(tools.messages[0].icon, toolkit::MessageIcon::Exclamation);
    }
};

TEST_F(SettingsNotKept, IsSaidOnceAtTheEnd) {
    Start();
    EXPECT_EQ(Source().RowCount(), 1);
    Choose("mnuViewTwoPanels");
    EXPECT_THAT(tools.messages, IsEmpty());
    Close();
    ExpectSaidOnce();
    EXPECT_EQ(Kept(), "[Ordalyn]\r\nTwoPanels=1\r\n");
}

TEST_F(SettingsNotKept, IsSaidWhenOptionsWereAcceptedAndNotAgain) {
    Start();
    ChangeOptions("cmdCancel");
    EXPECT_THAT(tools.messages, IsEmpty());
    ChangeOptions("cmdOK");
    ExpectSaidOnce();
    ChangeOptions("cmdOK");
    Close();
    ExpectSaidOnce();
}

TEST_F(SettingsNotKept, IsNotSaidWhenTheSystemEnds) {
    Start();
    Main().SessionEnded();
    EXPECT_TRUE(Main().Unloaded());
    program.reset();
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(SettingsNotKept, IsNotSaidWhenNothingIsLost) {
    system.files.FailWriting(kSettings, false);
    Start();
    Close();
    system.files.FailWriting(kSettings);
    const std::string kept = Kept();
    Start();
    Close();
    EXPECT_THAT(tools.messages, IsEmpty());
    EXPECT_EQ(Kept(), kept);
}

TEST_F(SettingsNotKept, IsNotSaidWhenItWasOnlyForAMoment) {
    Start();
    ChangeOptions("cmdOK");
    tools.messages.clear();
    system.files.FailWriting(kSettings, false);
    Close();
    EXPECT_THAT(tools.messages, IsEmpty());
    EXPECT_THAT(Kept(), HasSubstr("GridLines=1"));
}

TEST_F(SettingsNotKept, LastForTheRun) {
    Start();
    ChangeOptions("cmdOK");
    EXPECT_EQ(Stored("GridLines"), "1");
    EXPECT_THAT(Kept(), Not(HasSubstr("GridLines")));
}

TEST_F(SettingsNotKept, EndsWhenAnotherProgramClosesItMeanwhile) {
    Start();
    tools.onMessage = [this](const auto&) {
        Main().UserClosed();
        return toolkit::Answer::Ok;
    };
    Close();
    ExpectSaidOnce();
    EXPECT_TRUE(tools.quit);
}

TEST_F(SettingsNotKept, BecauseAFolderHasItsName) {
    system.files.FailWriting(kSettings, false);
    system.files.Delete(kSettings);
    system.files.AddFolder(kSettings);
    Start();
    EXPECT_EQ(Source().RowCount(), 1);
    Close();
    ExpectSaidOnce();
}

TEST_F(SettingsNotKept, BecauseAnotherHoldsTheFile) {
    system.files.FailWriting(kSettings, false);
    Start();
    const std::string before = Kept();
    system.files.Lock(kSettings);
    Close();
    ExpectSaidOnce();
    EXPECT_EQ(Kept(), before);
}

// Reading it gives defaults then. They do not take the place of what it says.
TEST_F(SettingsNotKept, TheListOfSectionsIsNotMadeAnewWhenTheFileCouldNotBeRead) {
    system.files.FailWriting(kSettings, false);
    system.files.Set(kSettings, "[Common]\r\nTCSectionsNotRedirectedByDefault=Layout\r\n");
    system.files.Lock(kSettings);
    Start();
    system.files.Lock(kSettings, false);
    Close();
    EXPECT_THAT(Kept(), HasSubstr("TCSectionsNotRedirectedByDefault=Layout\r\n"));
    EXPECT_THAT(tools.messages, IsEmpty());
}

}  // namespace
}  // namespace ordalyn
