// The about box, help and the version text.
#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <string>

#include "support/platform/MemoryPlatform.h"
#include "support/settings/DesignIds.h"
#include "support/toolkit/MemoryToolkit.h"
#include "support/windows/TestTexts.h"
#include "windows/about/Help.h"
#include "windows/about/Publisher.h"
#include "windows/about/Version.h"
#include "windows/about/frmAbout.h"

namespace ordalyn {
namespace {

using test::MemoryToolkit;
using test::TestTexts;
using test::TextOf;
using testing::ElementsAre;
using toolkit::Label;

class Dialogs : public testing::Test {
  protected:
    MemoryToolkit tools;
    test::MemoryPlatform system;
    toolkit::Form owner{tools, test::kOwnerDesign};
    HelpSurroundings help{tools, system.files, system.shell, "C:\\Ordalyn\\",
                          true,  "",           test::TextOf};
};

TEST(Version, HasNothingBetweenMinorAndRevision) {
    EXPECT_EQ(GetVersionText("", {1, 2, 3}), "1.23");
    EXPECT_EQ(GetVersionText("", {2, 0, 15}), "2.015");
    EXPECT_EQ(GetVersionText(" RC 1 - ", {1, 2, 3}), "1.23 RC 1 - ");
}

TEST(Version, IsThatOfTheProject) {
    std::ifstream file(ORDALYN_SOURCE_DIR "/CMakeLists.txt");
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    std::smatch found;
    ASSERT_TRUE(std::regex_search(text, found,
                                  std::regex(R"(project\(Ordalyn VERSION (\d+)\.(\d+)\.(\d+) )")));
    const VersionNumbers numbers = ProgramVersion();
    EXPECT_EQ(std::to_string(numbers.major), found[1]);
    EXPECT_EQ(std::to_string(numbers.minor), found[2]);
    EXPECT_EQ(std::to_string(numbers.revision), found[3]);
    EXPECT_EQ(GetVersionText(""), found.str(1) + "." + found.str(2) + found.str(3));
}

using Help = Dialogs;

TEST_F(Help, OpensTheCommonFileForTheBuiltInLanguage) {
    system.files.Set("C:\\Ordalyn\\Readme.chm", "x");
    system.files.Set("C:\\Ordalyn\\Readme Deutsch.chm", "x");
    help.languageFile = "C:\\Ordalyn\\Languages\\Deutsch.lng";
    ShowHelp(help, owner);
    EXPECT_THAT(system.shell.opened,
                ElementsAre(std::pair(owner.Handle(), std::string("C:\\Ordalyn\\Readme.chm"))));
    EXPECT_TRUE(tools.messages.empty());
}

TEST_F(Help, OpensTheFileOfTheLanguageWhenThereIsOne) {
    system.files.Set("C:\\Ordalyn\\Readme.chm", "x");
    system.files.Set("C:\\Ordalyn\\Readme Deutsch.old.chm", "x");
    help.useDefaultLanguage = false;
    help.languageFile = "D:\\elsewhere\\Deutsch.old.lng";
    EXPECT_EQ(HelpFile(help), "C:\\Ordalyn\\Readme Deutsch.old.chm");
    system.files.Delete("C:\\Ordalyn\\Readme Deutsch.old.chm");
    EXPECT_EQ(HelpFile(help), "C:\\Ordalyn\\Readme.chm");
}

TEST_F(Help, OpensTheFileThatIsNamedAsTheLanguageCallsItself) {
    system.files.Set("C:\\Ordalyn\\Readme.chm", "x");
    system.files.Set("C:\\Ordalyn\\Readme Deutsch.chm", "x");
    help.useDefaultLanguage = false;
    help.languageFile = "C:\\Ordalyn\\Languages\\german.lng";
    EXPECT_EQ(HelpFile(help), "C:\\Ordalyn\\Readme Deutsch.chm");
    help.languageFile = "C:\\Ordalyn\\Languages\\French.lng";
    EXPECT_EQ(HelpFile(help), "C:\\Ordalyn\\Readme.chm");
    help.languageFile = "C:\\Ordalyn\\Languages\\German.lng";
    system.files.Set("C:\\Ordalyn\\Readme German.chm", "x");
    EXPECT_EQ(HelpFile(help), "C:\\Ordalyn\\Readme German.chm");
    system.files.Delete("C:\\Ordalyn\\Readme German.chm");
    system.files.Delete("C:\\Ordalyn\\Readme Deutsch.chm");
    EXPECT_EQ(HelpFile(help), "C:\\Ordalyn\\Readme.chm");
}

TEST_F(Help, ALanguageFileWithoutAnExtensionGivesItsWholeName) {
    system.files.Set("C:\\Ordalyn\\Readme Suomi.chm", "x");
    help.useDefaultLanguage = false;
    help.languageFile = "Suomi";
    EXPECT_EQ(HelpFile(help), "C:\\Ordalyn\\Readme Suomi.chm");
}

TEST_F(Help, ALanguageFileThatLeadsElsewhereGivesTheCommonFile) {
    system.files.Set("C:\\Ordalyn\\Readme.chm", "x");
    help.useDefaultLanguage = false;
    for (const std::string name : {"x/../../evil", "x:evil"}) {
        system.files.Set("C:\\Ordalyn\\Readme " + name + ".chm", "x");
        help.languageFile = "C:\\Ordalyn\\Languages\\" + name + ".lng";
        EXPECT_EQ(HelpFile(help), "C:\\Ordalyn\\Readme.chm") << name;
    }
}

TEST_F(Help, SaysThatTheFileIsMissingWithoutNamingIt) {
    ShowHelp(help, owner);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "text 3056");
    EXPECT_EQ(tools.messages[0].icon, toolkit::MessageIcon::Critical);
    EXPECT_TRUE(system.shell.opened.empty());
}

TEST_F(Help, OpensAtAPage) {
    system.files.Set("C:\\Ordalyn\\Readme Deutsch.chm", "x");
    help.useDefaultLanguage = false;
    help.languageFile = "C:\\Ordalyn\\Languages\\Deutsch.lng";
    ShowHelpPage(help, owner, "find");
    EXPECT_THAT(system.shell.helpPages,
                ElementsAre(std::pair(owner.Handle(),
                                      std::string("C:\\Ordalyn\\Readme Deutsch.chm::/find.html"))));
    EXPECT_TRUE(system.shell.opened.empty());
}

TEST_F(Help, OfAWindowThatIsMissingIsReportedAndOfAMessageNot) {
    ShowHelpPage(help, owner, "find");
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "text 3056");
    EXPECT_EQ(tools.messages[0].owner, &owner);
    ShowHelpPage(help, owner, toolkit::Toolkit::kHelpPageOfMessages);
    EXPECT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.beeps, 1);
    EXPECT_TRUE(system.shell.helpPages.empty());
}

using About = Dialogs;

TEST_F(About, ShowsTheTextsOfMakerAndVersion) {
    frmAbout about(tools, system.shell, TestTexts());
    const auto caption = [&](const char* name) { return about.Get<Label>(name).Caption(); };
    EXPECT_EQ(about.Caption(), "text 1501 Ordalyn");
    EXPECT_EQ(caption("lblProgrammedBy"), "text 1502");
    EXPECT_EQ(caption("lblAuthorName"), publisher::kMaker);
    EXPECT_EQ(caption("lblVersion"), "text 1503");
    EXPECT_EQ(caption("lblVersionNo"), GetVersionText(""));
    EXPECT_EQ(caption("Label4"), "text 1505");
    EXPECT_EQ(caption("lblWebAddress"), "text 1506");
    EXPECT_EQ(caption("lblURL"), publisher::kHomePage);
    EXPECT_EQ(about.Get<Label>("lblURL").ToolTip(), "text 1508");
    EXPECT_EQ(caption("lblEmail"), "text 1507");
    EXPECT_EQ(caption("lbleMialAddress"), publisher::kMail);
    EXPECT_EQ(about.Get<toolkit::CommandButton>("cmdOK").Caption(), "text 1008");
}

TEST_F(About, CarriesTheIdsOfItsTexts) {
    EXPECT_THAT(test::DesignIdFaults(frmAbout(tools, system.shell, TestTexts())),
                testing::IsEmpty());
}

TEST_F(About, PlacesFrameAndButtonByPixelsAndItselfInTheMiddle) {
    tools.twipsPerPixelX = 10;
    tools.twipsPerPixelY = 12;
    frmAbout about(tools, system.shell, TestTexts());
    const auto& frame = about.Get<toolkit::Frame>("Frame1");
    EXPECT_EQ(frame.Left(), 70);
    EXPECT_EQ(frame.Top(), 84);
    const auto& button = about.Get<toolkit::CommandButton>("cmdOK");
    EXPECT_EQ(button.Top(), 84 + frame.Height() + 72);
    // The other edges are as far away.
    EXPECT_EQ(about.ClientSize().width - (frame.Left() + frame.Width()), 70);
    EXPECT_EQ(about.ClientSize().width - (button.Left() + button.Width()), 70);
    EXPECT_EQ(about.ClientSize().height - (button.Top() + button.Height()), 84);
    EXPECT_FLOAT_EQ(about.Left() + about.Width() / 2, tools.workArea.width / 2);
    EXPECT_FLOAT_EQ(about.Top() + about.Height() / 2, tools.workArea.height / 2);
}

TEST_F(About, TheLinkOpensTheHomePage) {
    frmAbout about(tools, system.shell, TestTexts());
    about.Get<Label>("lblURL").UserClicked();
    ASSERT_EQ(system.shell.opened.size(), 1U);
    EXPECT_EQ(system.shell.opened[0].second, publisher::kHomePage);
}

TEST_F(About, TheLinkOpensByKeyboardAndEnterCloses) {
    frmAbout about(tools, system.shell, TestTexts());
    about.Show();
    EXPECT_EQ(tools.focus, &about.Get<toolkit::CommandButton>("cmdOK"));
    tools.Press(about, toolkit::key::Tab);
    EXPECT_EQ(tools.focus, &about.Get<Label>("lblURL"));
    tools.Press(about, toolkit::key::Space);
    ASSERT_EQ(system.shell.opened.size(), 1U);
    tools.Press(about, toolkit::key::Enter);
    EXPECT_EQ(system.shell.opened.size(), 1U);
    EXPECT_TRUE(about.Unloaded());
}

TEST_F(About, AnAddressIsNotTurnedByALanguageFromTheRight) {
    frmAbout about(tools, system.shell, {TextOf, [](toolkit::Form& form) {
                                             for (const auto& control : form.Controls())
                                                 control->SetRightToLeft(true);
                                         }});
    EXPECT_FALSE(about.Get<Label>("lblURL").RightToLeft());
    EXPECT_TRUE(about.Get<Label>("lblEmail").RightToLeft());
}

TEST_F(About, OkClosesTheBox) {
    frmAbout about(tools, system.shell, TestTexts());
    tools.modalScripts.push_back([](toolkit::Form& form) {
        EXPECT_TRUE(form.Visible());
        form.Get<toolkit::CommandButton>("cmdOK").UserClicked();
    });
    about.ShowModal(&owner);
    EXPECT_TRUE(about.Unloaded());
}

}  // namespace
}  // namespace ordalyn
