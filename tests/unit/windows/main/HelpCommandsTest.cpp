// Help > Help Topics, and F1 in each window.
#include <gmock/gmock.h>

#include <string>

#include "support/windows/ProgramWindow.h"
#include "windows/progress/ProgressWindow.h"

namespace ordalyn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
namespace key = toolkit::key;

class HelpOfTheProgram : public test::ProgramWindow {
  protected:
    void SetUp() override {
        test::ProgramWindow::SetUp();
        system.files.Set("C:\\Ordalyn\\Readme.chm", "x");
    }
    // The page that F1 opens in the form.
    std::string PageFor(toolkit::Form& form) {
        system.shell.helpPages.clear();
        tools.Press(form, key::F1);
        if (system.shell.helpPages.size() != 1)
            return "";
        EXPECT_EQ(system.shell.helpPages[0].first, form.Handle());
        const std::string& page = system.shell.helpPages[0].second;
        const std::string file = "C:\\Ordalyn\\Readme.chm::/";
        EXPECT_EQ(page.substr(0, file.size()), file);
        return page.substr(file.size());
    }
    std::string PageOf(const char* menu, const char* form) {
        Choose(menu);
        tools.DoLaterWork();
        return PageFor(tools.FormNamed(form));
    }
};

TEST_F(HelpOfTheProgram, F1OpensThePageOnTheWindow) {
    Start();
    EXPECT_EQ(PageFor(Main()), "window.html");
    EXPECT_EQ(PageOf("mnuSearchFind", "frmSearchFor"), "find.html");
    EXPECT_EQ(PageOf("mnuSearchFilter", "frmFilters"), "filter.html");
    EXPECT_EQ(PageOf("mnuSearchHistory", "frmHistory"), "history.html");
    EXPECT_EQ(PageOf("mnuViewCalendar", "frmCalendar"), "calendar.html");
    EXPECT_THAT(system.shell.opened, IsEmpty());
}

TEST_F(HelpOfTheProgram, F1OpensThePageOnAModalWindow) {
    Start();
    std::string seen;
    tools.modalScripts.push_back([&](toolkit::Form& form) { seen = PageFor(form); });
    Choose("mnuHelpAbout");
    EXPECT_EQ(seen, "about.html");
    tools.modalScripts.push_back([&](toolkit::Form& form) {
        seen = PageFor(form);
        tools.Press(form, key::Tab, {.control = true});
        seen += " " + PageFor(form);
        tools.Press(form, key::Tab, {.control = true});
        seen += " " + PageFor(form);
    });
    Choose("mnuViewOptions");
    EXPECT_EQ(seen, "options.html languages.html options.html");
}

TEST_F(HelpOfTheProgram, F1OpensThePageOnAReadThatLasts) {
    Start();
    ProgressWindow progress(tools, Main(), program->Shared().FormTexts(), [] {});
    progress.PrepareTall("totalcmd.1.log");
    progress.ShowProgress("Reading", 1000);
    EXPECT_EQ(PageFor(*progress.Window()), "progress.html");
    progress.HideProgress();
}

TEST_F(HelpOfTheProgram, TheMenuOpensItAtItsStart) {
    Start();
    Choose("mnuHelpHelpTopics");
    EXPECT_THAT(system.shell.opened,
                ElementsAre(std::pair(Main().Handle(), std::string("C:\\Ordalyn\\Readme.chm"))));
    EXPECT_THAT(system.shell.helpPages, IsEmpty());
}

TEST_F(HelpOfTheProgram, IsThatOfTheLanguageChosenNow) {
    system.files.Set("C:\\Ordalyn\\Ordalyn.ini",
                     "[Ordalyn]\r\nUseDefaultLanguage=0\r\n"
                     "[Common]\r\nLanguageFile=D:\\x\\Deutsch.old.lng\r\n");
    system.files.Set("D:\\x\\Deutsch.old.lng", "[UserLanguage]\r\n");
    system.files.Set("C:\\Ordalyn\\Readme Deutsch.old.chm", "x");
    Start();
    Choose("mnuHelpHelpTopics");
    tools.Press(Main(), key::F1);
    program->Shared().settings->UseDefaultLanguage = 1;
    Choose("mnuHelpHelpTopics");
    tools.Press(Main(), key::F1);
    ASSERT_EQ(system.shell.opened.size(), 2U);
    EXPECT_EQ(system.shell.opened[0].second, "C:\\Ordalyn\\Readme Deutsch.old.chm");
    EXPECT_EQ(system.shell.opened[1].second, "C:\\Ordalyn\\Readme.chm");
    ASSERT_EQ(system.shell.helpPages.size(), 2U);
    EXPECT_EQ(system.shell.helpPages[0].second,
              "C:\\Ordalyn\\Readme Deutsch.old.chm::/window.html");
    EXPECT_EQ(system.shell.helpPages[1].second, "C:\\Ordalyn\\Readme.chm::/window.html");
}

TEST_F(HelpOfTheProgram, ThatIsMissingIsReported) {
    system.files.Delete("C:\\Ordalyn\\Readme.chm");
    Start();
    tools.Press(Main(), key::F1);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "File not found.");
}

TEST_F(HelpOfTheProgram, F1WithAnotherKeyAsksForNothing) {
    Start();
    tools.Press(Main(), key::F1, {.shift = true});
    tools.Press(Main(), key::F1, {.control = true});
    EXPECT_THAT(system.shell.helpPages, IsEmpty());
}

}  // namespace
}  // namespace ordalyn
