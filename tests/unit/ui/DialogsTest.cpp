// The progress window, the about box, help and the version text.
#include <gmock/gmock.h>

#include <chrono>

#include "base/Errors.h"
#include "support/platform/MemoryPlatform.h"
#include "support/settings/DesignIds.h"
#include "support/toolkit/MemoryToolkit.h"
#include "ui/Help.h"
#include "ui/ProgressWindow.h"
#include "ui/Publisher.h"
#include "ui/Version.h"
#include "ui/frmAbout.h"
#include "ui/frmXpStyleLoader.h"

namespace ordalyn {
namespace {

using test::MemoryToolkit;
using testing::ElementsAre;
using toolkit::Label;

constexpr toolkit::FormDesign kOwner = {
    .name = "frmOwner", .tag = "", .clientSize = {9000, 6000}, .style = {}, .controls = {}};

std::string TextOf(std::int32_t id) {
    return "text " + std::to_string(id);
}

// Gives controls with a tag the text of that id, as the interface language does.
Texts TestTexts() {
    return {TextOf, [](toolkit::Form& form) {
                if (!form.Tag().empty())
                    form.SetCaption("text " + form.Tag());
                for (const auto& control : form.Controls()) {
                    if (!control->Tag().empty())
                        control->SetCaption("text " + control->Tag());
                }
            }};
}

class Dialogs : public testing::Test {
  protected:
    MemoryToolkit tools;
    test::MemoryPlatform system;
    toolkit::Form owner{tools, kOwner};
    int cancelled = 0;
    std::chrono::steady_clock::time_point now = std::chrono::steady_clock::now();
    ProgressWindow progress{tools, owner, TestTexts(), [this] { ++cancelled; },
                            [this] { return now; }};
    HelpSurroundings help{tools, system.files, system.shell, "C:\\Ordalyn\\", true, "", TextOf};
};

using Progress = Dialogs;

TEST_F(Progress, TheCompactFormHasTheBarAlone) {
    progress.PrepareCompact();
    progress.ShowProgress("Reading", 40);
    frmProgress& window = *progress.Window();
    EXPECT_EQ(window.Height(), 870);
    EXPECT_FALSE(window.lblFileName.Visible());
    EXPECT_FALSE(window.cmdCancel.Visible());
    EXPECT_EQ(window.Caption(), "  Reading");
    EXPECT_TRUE(window.Visible());
    EXPECT_EQ(window.ProgressBar1.Value(), 1);
    EXPECT_EQ(window.ProgressBar1.Maximum(), 40);
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Hourglass);
    // Whatever the frame takes, the bar is inside.
    EXPECT_GE(window.ProgressBar1.Top(), 0);
    EXPECT_LE(window.ProgressBar1.Top() + window.ProgressBar1.Height(), window.ClientSize().height);
}

TEST_F(Progress, TheTallFormNamesTheFileAndCanBeCancelled) {
    progress.PrepareTall("x.1.log");
    progress.ShowProgress("Reading", 2);
    frmProgress& window = *progress.Window();
    EXPECT_EQ(window.Height(), 1425);
    EXPECT_TRUE(window.lblFileName.Visible());
    EXPECT_EQ(window.lblFileName.Caption(), "x.1.log");
    EXPECT_TRUE(window.lblFileName.PlainText()) << "an \"&\" in the name is shown";
    EXPECT_EQ(window.cmdCancel.Caption(), "text 1009");
    EXPECT_LE(window.cmdCancel.Top() + window.cmdCancel.Height(), window.ClientSize().height);
    EXPECT_LE(window.ProgressBar1.Top() + window.ProgressBar1.Height(), window.cmdCancel.Top());
    window.cmdCancel.UserClicked();
    EXPECT_EQ(cancelled, 1);
    EXPECT_TRUE(window.Visible());  // nothing else happens
}

TEST_F(Progress, CarriesTheIdsOfItsTexts) {
    progress.PrepareTall("a");
    EXPECT_THAT(test::DesignIdFaults(*progress.Window()), testing::IsEmpty());
}

TEST_F(Progress, IsCentredAndHandlesMessagesOnceWhenShown) {
    int events = 0;
    tools.onDoEvents = [&] { ++events; };
    progress.PrepareCompact();
    const frmProgress& window = *progress.Window();
    EXPECT_FLOAT_EQ(window.Left() + window.Width() / 2, tools.workArea.width / 2);
    progress.ShowProgress("Reading", 2);
    EXPECT_EQ(events, 1);
    progress.SetValue(2);
    EXPECT_EQ(events, 1);  // nobody may do anything to the log while it is read
}

TEST_F(Progress, AValueBeyondTheMaximumIsAnError) {
    progress.PrepareCompact();
    progress.ShowProgress("Reading", 3);
    progress.SetValue(3);
    EXPECT_THROW(progress.SetValue(4), InvalidPropertyValue);
}

TEST_F(Progress, ValuesThatFollowFasterThanEyesAreLeftOut) {
    progress.PrepareCompact();
    progress.ShowProgress("Reading", 100);
    const toolkit::ProgressBar& bar = progress.Window()->ProgressBar1;
    progress.SetValue(10);
    EXPECT_EQ(bar.Value(), 10);
    now += std::chrono::milliseconds(49);
    progress.SetValue(20);
    EXPECT_EQ(bar.Value(), 10);
    now += std::chrono::milliseconds(1);
    progress.SetValue(30);
    EXPECT_EQ(bar.Value(), 30);
    progress.ShowProgress("Reading", 100);  // the next file
    progress.SetValue(2);
    EXPECT_EQ(bar.Value(), 2);
}

TEST_F(Progress, HidingUnloadsTheWindowAndRestoresThePointer) {
    progress.PrepareTall("a");
    progress.ShowProgress("Reading", 3);
    progress.HideProgress();
    EXPECT_EQ(progress.Window(), nullptr);
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Default);
    tools.pointer = toolkit::Pointer::Hourglass;
    progress.HideProgress();  // also without a window
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Default);
}

TEST_F(Progress, CannotBeClosedWhileItShows) {
    progress.PrepareCompact();
    progress.ShowProgress("Reading", 3);
    progress.Window()->UserClosed();
    EXPECT_FALSE(progress.Window()->Unloaded());
    EXPECT_TRUE(progress.Window()->Visible());
}

TEST(Version, HasNothingBetweenMinorAndRevision) {
    EXPECT_EQ(GetVersionText("", {1, 2, 3}), "1.23");
    EXPECT_EQ(GetVersionText("", {2, 0, 15}), "2.015");
    EXPECT_EQ(GetVersionText(" RC 1 - ", {1, 2, 3}), "1.23 RC 1 - ");
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

TEST_F(Help, ALanguageFileWithoutAnExtensionGivesItsWholeName) {
    system.files.Set("C:\\Ordalyn\\Readme Suomi.chm", "x");
    help.useDefaultLanguage = false;
    help.languageFile = "Suomi";
    EXPECT_EQ(HelpFile(help), "C:\\Ordalyn\\Readme Suomi.chm");
}

TEST_F(Help, SaysThatTheFileIsMissingWithoutNamingIt) {
    ShowHelp(help, owner);
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "text 3056");
    EXPECT_EQ(tools.messages[0].icon, toolkit::MessageIcon::Critical);
    EXPECT_TRUE(system.shell.opened.empty());
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

TEST(StyleLoader, ShowsTheMainWindowFromOffEveryScreenAndIsNeverSeen) {
    MemoryToolkit tools;
    toolkit::Form main(tools, kOwner);
    const frmXpStyleLoader loader(tools, main);
    EXPECT_TRUE(main.Visible());
    EXPECT_FALSE(loader.Visible());
    EXPECT_EQ(loader.Left(), -20000);
    EXPECT_EQ(loader.Top(), -20000);
}

}  // namespace
}  // namespace ordalyn
