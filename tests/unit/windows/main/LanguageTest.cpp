// Changing the interface language while the program runs.
#include "windows/options/frmOptions.h"

#include "support/windows/ProgramWindow.h"

namespace ordalyn {
namespace {

using test::MemoryToolkit;
using test::ProgramWindow;
using testing::IsEmpty;

class Language : public ProgramWindow {
  protected:
    Language() {
        SetIni("LogFile=C:\\logs\\tc.log\r\nLogRotateLimit=1000\r\nLogKeepCount=3");
        SetLog("C:\\logs\\tc.1.log", {"01.01.2024 10:00:00: Copy o -> p"});
        SetLanguage(
            "101=&Datei\r\n4000=Zeit\r\n4001=Quelle\r\n4002=Ziel\r\n4005=Alle Tage\r\n"
            "4006=Alle Dateien\r\n4010=%i Vorgaenge\r\n4032=\"Auswahl: \"\r\n108=Keine Dateien\r\n"
            "4022=&Quelle kopieren\r\n4023=&Ziel kopieren\r\n253=Suchen\r\n4031=Auswahl");
    }
    void SetLanguage(const std::string& lines) {
        system.files.Set(kFile, "[UserLanguage]\r\n" + lines + "\r\n");
    }
    // Opens the options, chooses the language file and leaves with OK.
    void ChooseLanguage(const std::string& file = kFile) {
        tools.modalScripts.push_back([file](toolkit::Form& options) {
            options.Get<toolkit::OptionButton>("optUseOtherLanguage").UserToggled();
            options.Get<toolkit::TextBox>("txtLanguageFilePath").UserEdited(file);
            options.Get<toolkit::CommandButton>("cmdOK").UserClicked();
        });
        Choose("mnuViewOptions");
    }
    static constexpr const char* kFile = "C:\\Ordalyn\\Languages\\German.lng";
};

TEST_F(Language, IsAppliedToEverythingAtOnce) {
    Start();
    ChooseLanguage();
    EXPECT_EQ(Main().Menu("mnuFile").Caption(), "&Datei");
    EXPECT_EQ(Main().Menu("mnuContextCopySource").Caption(), "&Quelle kopieren");
    EXPECT_EQ(Main().Menu("mnuContextCopySource").KeyHint(), "Ctrl+C");
    EXPECT_EQ(Main().Menu("mnuContextCopyTarget").Caption(), "&Ziel kopieren");
    EXPECT_EQ(Main().Menu("mnuContextCopyTarget").KeyHint(), "Ctrl+Alt+C");
    EXPECT_EQ(Main().Menu("mnuFileRecentFiles").Caption(), "Keine Dateien");
    EXPECT_EQ(Source().ColumnCaption(0), "Zeit");
    EXPECT_EQ(Source().ColumnCaption(1), "Quelle");
    EXPECT_EQ(Target().ColumnCaption(0), "Ziel");
    EXPECT_EQ(Status().PanelText(1), "1 Vorgaenge  ");
    EXPECT_EQ(Status().PanelText(3), "Auswahl:   ");
    EXPECT_EQ(Date().List(0), "Alle Tage");
    EXPECT_EQ(Files().List(0), "Alle Dateien");
    EXPECT_EQ(Main().Menu("mnuView").Caption(), "&View");  // absent in the file
    EXPECT_EQ(Stored("UseDefaultLanguage"), "0");
    EXPECT_EQ(Stored("LanguageFile", "Common"), "velmordane:\\Languages\\German.lng");
    EXPECT_EQ(Date().ListIndex(), 2);
    EXPECT_EQ(Files().ListIndex(), 1);
}

TEST_F(Language, ReachesTheRecentFiles) {
    Start();
    Main().FilesDropped.Raise({"C:\\logs\\tc.log"});
    SetLanguage("108=Keine Dateien\r\n109=Leeren\r\n3009=Wirklich?");
    ChooseLanguage();
    EXPECT_EQ(Main().Menu("mnuFileRecentFiles").Caption(), "&1 C:\\logs\\tc.log");
    const auto& items = Main().Menu("mnuFileRecentGroup").Items();
    EXPECT_EQ(items.back()->Caption(), "Leeren");
    tools.onMessage = [](const test::ShownMessage& message) {
        EXPECT_EQ(message.text, "Wirklich?");
        return toolkit::Answer::Yes;
    };
    items.back()->Choose();
    EXPECT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(Main().Menu("mnuFileRecentFiles").Caption(), "Keine Dateien");
}

TEST_F(Language, ASinglePanelsThirdColumnFollowsToo) {
    SetSettings("TwoPanels=0");
    Start();
    ChooseLanguage();
    EXPECT_EQ(Source().ColumnCaption(2), "Ziel");
}

TEST_F(Language, AnotherFileTakesThePlaceOfTheFirst) {
    Start();
    ChooseLanguage();
    const std::string other = "C:\\Ordalyn\\Languages\\French.lng";
    system.files.Set(other, "[UserLanguage]\r\n101=&Fichier\r\n4005=Tous les jours\r\n");
    ChooseLanguage(other);
    EXPECT_EQ(Main().Menu("mnuFile").Caption(), "&Fichier");
    EXPECT_EQ(Date().List(0), "Tous les jours");
    EXPECT_EQ(Source().ColumnCaption(0), "Time");  // absent in the file
}

TEST_F(Language, ChoosingTheSameFileAgainChangesNothingOnScreen) {
    Start();
    ChooseLanguage();
    SetLanguage("101=&Akte");
    ChooseLanguage();
    EXPECT_EQ(Main().Menu("mnuFile").Caption(), "&Datei");
    // The path in other letters is the same file.
    ChooseLanguage("C:\\ORDALYN\\LANGUAGES\\GERMAN.LNG");
    EXPECT_EQ(program->Shared().settings->LanguageFile, "C:\\ORDALYN\\LANGUAGES\\GERMAN.LNG");
    EXPECT_EQ(Main().Menu("mnuFile").Caption(), "&Datei");
}

TEST_F(Language, ColumnHeadersKeepTheBlanksOfATextAndSlashEMeansEnglish) {
    SetLanguage("4000=\" /E \"\r\n4001=\" Quelle\"");
    Start();
    ChooseLanguage();
    EXPECT_EQ(Source().ColumnCaption(0), "Time");
    EXPECT_EQ(Source().ColumnCaption(1), " Quelle");
}

TEST_F(Language, ARightToLeftLanguageMirrorsTheWindow) {
    SetLanguage("RightToLeftLanguage=1\r\n101=x");
    Start();
    EXPECT_FALSE(Main().RightToLeft());
    ChooseLanguage();
    EXPECT_TRUE(Main().RightToLeft());
}

TEST_F(Language, AMissingFileIsReportedOnceAndSwitchedOffForGood) {
    SetSettings("UseDefaultLanguage=0");
    system.files.Append("C:\\Ordalyn\\Ordalyn.ini", "[Common]\r\nLanguageFile=C:\\gone.lng\r\n");
    Start();
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "Cannot find language file!");
    EXPECT_EQ(tools.messages[0].icon, toolkit::MessageIcon::Critical);
    EXPECT_EQ(Stored("UseDefaultLanguage"), "1");
    EXPECT_EQ(Main().Menu("mnuFile").Caption(), "&File");
    tools.messages.clear();
    Choose("mnuSearchFind");
    Choose("mnuHelpAbout");
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(Language, TheOptionsReachTheMainWindowAtOnce) {
    Start();
    tools.modalScripts.push_back([](toolkit::Form& options) {
        options.Get<toolkit::CheckBox>("chkGridLines").UserToggled();
        options.Get<toolkit::CheckBox>("chkLongDate").UserToggled();
        options.Get<toolkit::CommandButton>("cmdApply").UserClicked();
        options.Get<toolkit::CommandButton>("cmdCancel").UserClicked();
    });
    const int paintings = MemoryToolkit::Of(Main()).refreshes;
    Choose("mnuViewOptions");
    EXPECT_EQ(MemoryToolkit::Of(Main()).refreshes, paintings + 1);
    EXPECT_TRUE(Source().GridLines());
    EXPECT_TRUE(Target().GridLines());
    EXPECT_EQ(Date().List(1), "Friday, March 1, 2024");
    EXPECT_EQ(Status().PanelText(2), "02.03.2024  ");
}

TEST_F(Language, AFileThatIsMissingIsReportedOnceAndTheDialogSaysSo) {
    Start();
    tools.modalScripts.push_back([this](toolkit::Form& options) {
        auto& standard = options.Get<toolkit::OptionButton>("optUseDefaultLanguage");
        auto& other = options.Get<toolkit::OptionButton>("optUseOtherLanguage");
        other.UserToggled();
        options.Get<toolkit::TextBox>("txtLanguageFilePath").UserEdited("C:\\gone.lng");
        options.Get<toolkit::CommandButton>("cmdApply").UserClicked();
        EXPECT_EQ(tools.messages.size(), 1U);
        EXPECT_TRUE(standard.Checked());
        EXPECT_FALSE(other.Checked());
        EXPECT_FALSE(options.Get<toolkit::TextBox>("txtLanguageFilePath").Enabled());
        EXPECT_FALSE(options.Get<toolkit::CommandButton>("cmdApply").Enabled());
        options.Get<toolkit::CommandButton>("cmdOK").UserClicked();
    });
    Choose("mnuViewOptions");
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "Cannot find language file!");
    EXPECT_EQ(Stored("UseDefaultLanguage"), "1");
}

TEST_F(Language, AnotherFontSizeLaysTheWindowOutAnew) {
    for (const int twoPanels : {1, 0}) {
        SetSettings("TwoPanels=" + std::to_string(twoPanels));
        Start();
        const toolkit::Twips before = Date().Height();
        system.dialogs.onChooseFont = [](const auto&) {
            platform::Dialogs::FontAnswer answer;
            answer.name = "Tahoma";
            answer.tenthsOfPoints = 160;
            return std::optional(answer);
        };
        tools.modalScripts.push_back([](toolkit::Form& options) {
            options.Get<toolkit::CommandButton>("cmdChangeFont").UserClicked();
            options.Get<toolkit::CommandButton>("cmdApply").UserClicked();
            options.Get<toolkit::CommandButton>("cmdCancel").UserClicked();
        });
        Choose("mnuViewOptions");
        EXPECT_GT(Date().Height(), before);
        const toolkit::Control& panels =
            twoPanels != 0
                ? static_cast<toolkit::Control&>(Get<toolkit::PictureBox>("picSpliterContainer"))
                : Source();
        EXPECT_EQ(panels.Top(), Date().Height() + 60);
        EXPECT_EQ(panels.Top() + panels.Height(), Status().Top());
        program.reset();
    }
}

TEST_F(Language, AFontChosenBeforeCancelShowsAtTheNextApply) {
    Start();
    system.dialogs.onChooseFont = [](const auto&) {
        platform::Dialogs::FontAnswer answer;
        answer.name = "Tahoma";
        answer.tenthsOfPoints = 100;
        return std::optional(answer);
    };
    tools.modalScripts.push_back([](toolkit::Form& options) {
        options.Get<toolkit::CommandButton>("cmdChangeFont").UserClicked();
        options.Get<toolkit::CommandButton>("cmdCancel").UserClicked();
    });
    Choose("mnuViewOptions");
    EXPECT_EQ(Source().Font().name, "MS Sans Serif");
    tools.modalScripts.push_back(
        [](toolkit::Form& options) { options.Get<toolkit::CommandButton>("cmdOK").UserClicked(); });
    Choose("mnuViewOptions");
    EXPECT_EQ(Source().Font().name, "Tahoma");
    EXPECT_EQ(Source().Font().size, 10);
}

TEST_F(Language, ALogOfOneDayKeepsItsOnlyItem) {
    SetLog("C:\\logs\\tc.log", {"01.03.2024 10:00:00: Copy a -> b"});
    SetIni("LogFile=C:\\logs\\tc.log");
    Start();
    ChooseLanguage();
    EXPECT_EQ(Date().ListCount(), 1);
    EXPECT_EQ(Date().List(0), "01.03.2024");
}

TEST_F(Language, WithoutAListOfFilesTheDatesAreStillTranslated) {
    SetIni("LogFile=C:\\logs\\tc.log");
    Start();
    ChooseLanguage();
    EXPECT_EQ(Date().List(0), "Alle Tage");
}

}  // namespace
}  // namespace ordalyn
