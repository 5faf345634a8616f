// The filter dialog.
#include "support/settings/DesignIds.h"
#include "support/windows/FindWindow.h"

namespace ordalyn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::MessageIcon;

class FilterDialog : public FindWindow {
  protected:
    FilterDialog() {
        Load({
            "01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt",        // 0
            "01.03.2024 10:15:31: Move C:\\Copy\\b.txt -> E:\\b.txt",  // 1
            "01.03.2024 10:15:32: Copy: Failed C:\\c.txt -> D:\\c",    // 2
            "01.03.2024 10:15:33: Delete C:\\Failed\\d.txt",           // 3
        });
    }
    void Enter() { tools.PressIn(filters, cboFilter, toolkit::key::Enter); }
    void Show() {
        commands.ShowFilterDialog();
        tools.DoLaterWork();
    }
    // The place of an operation word in the first button's menu.
    int EntryOf(std::string_view word) {
        const auto& menu = Toolbar1.ButtonAt(1).menu;
        for (std::size_t i = 0; i < menu.size(); ++i)
            if (menu[i].text == word)
                return static_cast<int>(i);
        ADD_FAILURE() << word;
        return 0;
    }
    std::vector<std::string> History() const { return MemoryToolkit::Of(cboFilter).items; }
    std::unique_ptr<frmFilters> LoadAnother() {
        return std::make_unique<frmFilters>(
            tools,
            frmFilters::Surroundings{.settings = settings,
                                     .strings = strings,
                                     .language = language,
                                     .history = history,
                                     .keywords = {common, profile, system.files, system.codePages},
                                     .filter = filter,
                                     .panels = panels});
    }
    InputHistory history{profile, common, strings};
};

// Loading.

TEST_F(FilterDialog, StartsEmptyWithContainsAndSource) {
    EXPECT_EQ(cboFilter.Text(), "");
    EXPECT_EQ(filter.FilterText, "");
    EXPECT_EQ(cboContains.ListIndex(), 0);
    EXPECT_EQ(cboSource.ListIndex(), 0);
    EXPECT_FALSE(filters.Visible());
}

TEST_F(FilterDialog, LoadingForgetsAFilterTextAndFiltersNothing) {
    filter = {"left over", "left over", true, true};
    shownRows.clear();
    const auto another = LoadAnother();
    EXPECT_EQ(filter.boxText, "");
    EXPECT_EQ(filter.FilterText, "");
    EXPECT_FALSE(filter.target);
    EXPECT_FALSE(filter.doesNotContain);
    EXPECT_THAT(shownRows, IsEmpty());  // no fill
}

TEST_F(FilterDialog, HasItsTexts) {
    EXPECT_THAT(DesignIdFaults(filters), IsEmpty());
    EXPECT_EQ(filters.Caption(), "Filter");
    EXPECT_EQ(filters.Get<toolkit::CommandButton>("cmdCancel").Caption(), "Cancel");
    EXPECT_THAT(MemoryToolkit::Of(cboContains).items, ElementsAre("Contains", "Does not contain"));
    EXPECT_THAT(MemoryToolkit::Of(cboSource).items, ElementsAre("Source", "Target"));
    EXPECT_EQ(Toolbar1.ButtonAt(1).toolTip, "Apply filter");
    ASSERT_EQ(Toolbar1.ButtonAt(3).menu.size(), 1U);
    EXPECT_EQ(Toolbar1.ButtonAt(3).menu[0].key, "clear");
    EXPECT_EQ(Toolbar1.ButtonAt(3).menu[0].text, "Clear List");
}

TEST_F(FilterDialog, HasThreeButtonsTwoOfThemWithMenus) {
    EXPECT_EQ(Toolbar1.ButtonCount(), 3);
    EXPECT_TRUE(Toolbar1.ButtonAt(1).hasMenu);
    EXPECT_FALSE(Toolbar1.ButtonAt(2).hasMenu);
    EXPECT_TRUE(Toolbar1.ButtonAt(3).hasMenu);
    EXPECT_THAT(MemoryToolkit::Of(Toolbar1).items,
                ElementsAre("apply-filter", "separator", "remove-filter"));
}

TEST_F(FilterDialog, IsAToolWindowWithTheTextBoxFirst) {
    EXPECT_TRUE(filters.Style().toolWindow);
    EXPECT_FALSE(filters.Style().resizable);
    std::vector<std::string> order;
    for (const auto& control : filters.Controls())
        order.push_back(control->Name());
    EXPECT_THAT(order,
                ElementsAre("cboFilter", "cboContains", "cboSource", "Toolbar1", "cmdCancel"));
}

TEST_F(FilterDialog, LoadsItsHistoryOfSixtyFour) {
    Put("Filter1", "newest");
    Put("Filter64", "oldest");
    Put("Filter65", "beyond");
    const auto another = LoadAnother();
    EXPECT_THAT(MemoryToolkit::Of(another->Get<toolkit::ComboBox>("cboFilter")).items,
                ElementsAre("newest", "oldest"));
    EXPECT_EQ(another->Get<toolkit::ComboBox>("cboFilter").Text(), "");
}

TEST_F(FilterDialog, TakesItsPlaceFromTheSettingsFile) {
    EXPECT_EQ(filters.Left(), 3495);
    EXPECT_EQ(filters.Top(), 7740);
    EXPECT_EQ(filters.Width(), 8910);
    Put("FiltersPosition", "100,200,9500,3000");
    const auto another = LoadAnother();
    EXPECT_EQ(another->Left(), 100);
    EXPECT_EQ(another->Top(), 200);
    EXPECT_EQ(another->Width(), 9500);
}

TEST_F(FilterDialog, AStateIsNeitherTakenUpNorStored) {
    Put("FiltersWindowState", "1");
    EXPECT_EQ(LoadAnother()->State(), toolkit::WindowState::Normal);
    Put("FiltersWindowState", "7");
    Show();
    filters.SetState(toolkit::WindowState::Minimised);
    filters.UserClosed();
    EXPECT_EQ(Stored("FiltersWindowState"), "7");
}

TEST_F(FilterDialog, IsNeverNarrowerThanItsBoxesNeed) {
    Put("FiltersPosition", "100,200,8909,795");
    EXPECT_EQ(LoadAnother()->Width(), 8910);
    Put("FiltersPosition", "100,200,0,0");
    EXPECT_EQ(LoadAnother()->Width(), 8910);
}

TEST_F(FilterDialog, IsAsHighAsItsBoxesAndEightPixels) {
    EXPECT_EQ(filters.ClientSize().height, cboSource.Height() + 8 * 15);
    settings.FontSize = 14;
    tools.twipsPerPixelY = 7.5;  // a whole number of twips counts
    filters.LoadInterface();
    EXPECT_EQ(filters.ClientSize().height, cboSource.Height() + 8 * 8);
}

TEST_F(FilterDialog, ItsControlsStandInARowInsideIt) {
    for (const float width : {8910.0F, 12000.0F}) {
        for (const int points : {8, 16}) {
            settings.FontSize = points;
            tools.ResizeByUser(filters, {0, 0, width, filters.Height()});
            filters.LoadInterface();
            toolkit::Twips right = 0;
            for (const auto& control : filters.Controls()) {
                EXPECT_GE(control->Left(), right) << control->Name();
                EXPECT_GE(control->Top(), 0) << control->Name();
                EXPECT_GT(control->Width(), 1000) << control->Name();
                EXPECT_LE(control->Top() + control->Height(), filters.ClientSize().height)
                    << control->Name();
                right = control->Left() + control->Width();
            }
            EXPECT_LE(right, filters.ClientSize().width);
            EXPECT_GT(right, filters.ClientSize().width - 100);
        }
    }
}

TEST_F(FilterDialog, ItsBoxesLookAsTheOptionsSay) {
    settings.FontName = "Courier New";
    settings.FontSize = 11;
    settings.FontStyle = kFontBold;
    settings.FontScript = 204;
    settings.FlatUserInterface = 2;  // as good as 1
    settings.ForegroundColor = 0x112233;
    settings.BackgroundColor = 0x445566;
    commands.LoadFilterInterface();
    for (const toolkit::ComboBox* box : {&cboFilter, &cboContains, &cboSource}) {
        EXPECT_EQ(
            box->Font(),
            (toolkit::Font{.name = "Courier New", .size = 11, .characterSet = 204, .bold = true}));
        EXPECT_EQ(box->Look(), toolkit::Appearance::Flat);
        EXPECT_EQ(box->ForeColor(), 0x112233);
        EXPECT_EQ(box->BackColor(), 0x445566);
    }
    settings.FlatUserInterface = 0;
    commands.LoadFilterInterface();
    EXPECT_EQ(cboFilter.Look(), toolkit::Appearance::ThreeDimensional);
}

TEST_F(FilterDialog, LoadingTheInterfaceAnewKeepsChoicesAndFilterAndFiltersNothing) {
    Filter("d:\\", true, true);
    EXPECT_THAT(Rows(), ElementsAre(1));
    shownRows.clear();
    system.files.Set(
        "C:\\Ordalyn\\de.lng",
        "[UserLanguage]\r\n4033=Enth\xE4lt\r\n4034=Ohne\r\n4001=Quelle\r\n4002=Ziel\r\n"
        "4031=Filtern\r\n4035=Anwenden\r\n109=Leeren\r\n1009=Abbrechen\r\n");
    settings.UseDefaultLanguage = 0;
    settings.LanguageFile = "C:\\Ordalyn\\de.lng";
    commands.LoadFilterInterface();
    EXPECT_EQ(cboContains.Text(), "Ohne");
    EXPECT_EQ(cboSource.Text(), "Ziel");
    EXPECT_EQ(cboContains.List(0), "Enthält");
    EXPECT_EQ(cboFilter.Text(), "d:\\");
    EXPECT_EQ(filter.FilterText, "d:\\");
    EXPECT_EQ(filters.Caption(), "Filtern");
    EXPECT_EQ(filters.Get<toolkit::CommandButton>("cmdCancel").Caption(), "Abbrechen");
    EXPECT_EQ(Toolbar1.ButtonAt(1).toolTip, "Anwenden");
    EXPECT_EQ(Toolbar1.ButtonAt(3).menu[0].text, "Leeren");
    EXPECT_THAT(shownRows, IsEmpty());  // no fill
    EXPECT_THAT(Rows(), ElementsAre(1));
}

// What the user does.

TEST_F(FilterDialog, EnterAppliesTheTextAndRemembersIt) {
    cboFilter.UserEdited("copy");
    EXPECT_EQ(Rows().size(), 4U);  // typing alone does nothing
    Enter();
    EXPECT_EQ(filter.FilterText, "copy");
    EXPECT_THAT(Rows(), ElementsAre(0, 1, 2));
    EXPECT_THAT(History(), ElementsAre("copy"));
    EXPECT_EQ(Stored("Filter1"), "copy");
    EXPECT_EQ(cboFilter.Text(), "copy");
}

TEST_F(FilterDialog, OtherKeysAndEnterElsewhereApplyNothing) {
    cboFilter.UserEdited("copy");
    tools.PressIn(filters, cboFilter, 'A');
    tools.PressIn(filters, cboFilter, toolkit::key::Tab);
    tools.PressIn(filters, cboFilter, toolkit::key::Enter, {.control = true});
    tools.PressIn(filters, cboContains, toolkit::key::Enter);
    EXPECT_EQ(filter.FilterText, "");
}

TEST_F(FilterDialog, SixtyFiveTextsLoseTheOldest) {
    for (int i = 1; i <= 65; ++i)
        Filter("text " + std::to_string(i));
    EXPECT_EQ(History().size(), 64U);
    EXPECT_EQ(Stored("Filter1"), "text 65");
    EXPECT_EQ(Stored("Filter64"), "text 2");
    EXPECT_EQ(Stored("Filter65"), "(absent)");
}

TEST_F(FilterDialog, AnItemOfTheHistoryAppliesAndIsNotAddedAgain) {
    Filter("copy");
    Filter("delete");
    cboFilter.UserSelected(1);
    EXPECT_EQ(filter.FilterText, "copy");
    EXPECT_THAT(Rows(), ElementsAre(0, 1, 2));
    EXPECT_THAT(History(), ElementsAre("delete", "copy"));
    EXPECT_EQ(Stored("Filter1"), "delete");
}

TEST_F(FilterDialog, EnterInTheOpenListTakesItsItemAndAppliesIt) {
    Filter("copy");
    Filter("delete");
    cboFilter.UserEdited("co");
    cboFilter.UserEnteredList(1);
    EXPECT_EQ(cboFilter.Text(), "copy");
    EXPECT_EQ(filter.FilterText, "copy");
    EXPECT_THAT(Rows(), ElementsAre(0, 1, 2));
    EXPECT_THAT(History(), ElementsAre("delete", "copy"));
}

TEST_F(FilterDialog, EnterInTheOpenListWithoutAnItemAppliesTheTypedText) {
    cboFilter.UserEdited("failed");
    cboFilter.UserEnteredList(-1);
    EXPECT_EQ(filter.FilterText, "failed");
    EXPECT_THAT(Rows(), ElementsAre(2, 3));
    EXPECT_THAT(History(), ElementsAre("failed"));
}

TEST_F(FilterDialog, TheFirstButtonIsLikeEnter) {
    cboFilter.UserEdited("delete");
    Toolbar1.UserClickedButton(0);
    EXPECT_THAT(Rows(), ElementsAre(3));
    EXPECT_THAT(History(), ElementsAre("delete"));
}

TEST_F(FilterDialog, TheSecondButtonDoesNothing) {
    cboFilter.UserEdited("delete");
    Toolbar1.UserClickedButton(1);
    EXPECT_EQ(Rows().size(), 4U);
    EXPECT_EQ(cboFilter.Text(), "delete");
}

TEST_F(FilterDialog, TheThirdButtonRemovesTheFilter) {
    Filter("delete");
    Toolbar1.UserClickedButton(2);
    EXPECT_EQ(cboFilter.Text(), "");
    EXPECT_EQ(filter.FilterText, "");
    EXPECT_THAT(Rows(), ElementsAre(0, 1, 2, 3));
    EXPECT_EQ(Status(3), "Filter:   ");
    EXPECT_EQ(Status(1), "4 Operation(s)  ");
    EXPECT_THAT(History(), ElementsAre("delete"));
}

TEST_F(FilterDialog, OtherChoicesOfABoxApplyAtOnce) {
    Filter("failed");
    EXPECT_THAT(Rows(), ElementsAre(2, 3));
    cboContains.UserSelected(1);
    EXPECT_THAT(Rows(), ElementsAre(0, 1));
    cboFilter.UserEdited("typed, not applied");
    cboContains.UserSelected(0);
    EXPECT_THAT(Rows(), ElementsAre(2, 3));  // the text is still the applied one
    Filter("d:\\");
    EXPECT_THAT(Rows(), IsEmpty());
    cboSource.UserSelected(1);
    EXPECT_THAT(Rows(), ElementsAre(0, 2));
    EXPECT_THAT(History(), ElementsAre("d:\\", "failed"));
}

TEST_F(FilterDialog, OtherChoicesOfABoxDoNothingWithoutAFilter) {
    shownRows.clear();
    cboFilter.UserEdited("copy");
    cboSource.UserSelected(1);
    cboContains.UserSelected(1);
    EXPECT_THAT(shownRows, IsEmpty());
    EXPECT_EQ(Rows().size(), 4U);
}

TEST_F(FilterDialog, CancelAndEscapeHideItAndTheFilterStays) {
    Show();
    Filter("copy");
    filters.Get<toolkit::CommandButton>("cmdCancel").UserClicked();
    EXPECT_FALSE(filters.Visible());
    EXPECT_FALSE(filters.Unloaded());
    EXPECT_EQ(filter.FilterText, "copy");
    EXPECT_THAT(Rows(), ElementsAre(0, 1, 2));
    EXPECT_EQ(Stored("FiltersPosition"), "(absent)");  // only hiding does not save the place
    Show();
    EXPECT_TRUE(filters.Visible());
    tools.PressIn(filters, cboFilter, toolkit::key::Escape);
    EXPECT_FALSE(filters.Visible());
}

TEST_F(FilterDialog, TheCloseBoxHidesItAndSavesThePlace) {
    Show();
    Filter("copy");
    tools.ResizeByUser(filters, {10, 20, 9000, 800});
    filters.UserClosed();
    EXPECT_FALSE(filters.Visible());
    EXPECT_FALSE(filters.Unloaded());
    EXPECT_EQ(Stored("FiltersPosition"), "10,20,9000,800");
    EXPECT_EQ(Stored("FiltersWindowState"), "(absent)");
    EXPECT_EQ(filter.FilterText, "copy");
    EXPECT_EQ(cboFilter.Text(), "copy");
}

TEST_F(FilterDialog, TheEndOfTheProgramUnloadsItAndSavesThePlace) {
    tools.ResizeByUser(filters, {10, 20, 9000, 800});
    commands.UnloadFilterDialog();
    EXPECT_TRUE(filters.Unloaded());
    EXPECT_EQ(Stored("FiltersPosition"), "10,20,9000,800");
}

TEST_F(FilterDialog, ClearListAsksAndEmptiesListBoxAndFile) {
    Filter("copy");
    Filter("delete");
    tools.onMessage = [](const ShownMessage&) { return toolkit::Answer::No; };
    Toolbar1.UserChoseMenuEntry(2, 0);
    EXPECT_THAT(History(), ElementsAre("delete", "copy"));
    tools.onMessage = [](const ShownMessage&) { return toolkit::Answer::Yes; };
    Toolbar1.UserChoseMenuEntry(2, 0);
    EXPECT_EQ(MessageText(), "Are you sure?");
    EXPECT_EQ(tools.messages.back().owner, &filters);
    EXPECT_THAT(History(), IsEmpty());
    EXPECT_EQ(cboFilter.Text(), "");
    for (int i = 1; i <= 64; ++i)
        EXPECT_EQ(Stored("Filter" + std::to_string(i)), "(absent)");
    EXPECT_THAT(Rows(), ElementsAre(3));  // the filter stays in force
}

// Operation words.

TEST_F(FilterDialog, ItsWordsAreLoadedAtTheFirstActivationOnly) {
    EXPECT_THAT(Toolbar1.ButtonAt(1).menu, IsEmpty());
    EXPECT_EQ(Stored("LoggingID"), "(absent)");
    Show();
    EXPECT_EQ(Toolbar1.ButtonAt(1).menu.size(), 15U);
    EXPECT_NE(Stored("LoggingID"), "(absent)");
    filters.UserClosed();
    Put("LoggingID", "1802,1900");
    Show();
    tools.ActivateByUser(filters);
    EXPECT_EQ(Toolbar1.ButtonAt(1).menu.size(), 15U);
}

TEST_F(FilterDialog, AWordListedMoreThanOnceIsOfferedOnceInItsFirstForm) {
    system.files.Set("C:\\tc\\Language\\WCMD_DEU.LNG",
                     "1802=\"Kopieren\"\r\n1802=\"Kopie\"\r\n1803=\"Verschieben\"\r\n");
    system.ansiProfile.WriteEntry("Configuration", "LanguageIni", "WCMD_DEU.LNG", kCommanderIni);
    Put("LoggingID", "1802,-,-,1802,9999,1803");
    Show();
    std::vector<std::string> words;
    for (const auto& item : Toolbar1.ButtonAt(1).menu)
        words.push_back(item.text);
    EXPECT_THAT(words, ElementsAre("Kopieren", "-", "-", "Verschieben"));
}

TEST_F(FilterDialog, AnOperationIsLookedForBehindTheClockTime) {
    Show();
    Toolbar1.UserChoseMenuEntry(0, EntryOf("Copy"));
    EXPECT_EQ(filter.FilterText, ": Copy");
    EXPECT_EQ(cboFilter.Text(), "Copy");
    EXPECT_THAT(Rows(), ElementsAre(0, 2));  // not the one with Copy in its path
    EXPECT_EQ(Status(3), "Filter: Copy  ");
    EXPECT_THAT(History(), IsEmpty());  // a word is not remembered
    EXPECT_EQ(MemoryToolkit::Of(cboFilter).selectionStart, 4U);
    EXPECT_EQ(MemoryToolkit::Of(cboFilter).selectionLength, 0U);
}

TEST_F(FilterDialog, AnOutcomeIsLookedForEverywhere) {
    Put("LoggingID", "1802,1901");
    Show();
    Toolbar1.UserChoseMenuEntry(0, EntryOf("Failed"));
    EXPECT_EQ(filter.FilterText, "Failed");
    EXPECT_THAT(Rows(), ElementsAre(2, 3));
}

TEST_F(FilterDialog, EnterAfterAWordLooksForTheWordAlone) {
    Show();
    Toolbar1.UserChoseMenuEntry(0, EntryOf("Copy"));
    Enter();
    EXPECT_EQ(filter.FilterText, "Copy");
    EXPECT_THAT(Rows(), ElementsAre(0, 1, 2));
    EXPECT_THAT(History(), ElementsAre("Copy"));
}

TEST_F(FilterDialog, ASeparatorChoosesNothing) {
    Show();
    Toolbar1.UserChoseMenuEntry(0, EntryOf("-"));
    EXPECT_EQ(filter.FilterText, "");
    EXPECT_EQ(cboFilter.Text(), "");
}

TEST_F(FilterDialog, RussianWordsAreThoseOfTheLog) {
    system.ansiProfile.WriteEntry("Configuration", "LanguageIni", "WCMD_RUS.LNG", kCommanderIni);
    system.codePages.systemCodePage = 1251;
    system.files.Set("C:\\tc\\Language\\WCMD_RUS.LNG",
                     "codepage=1251\r\n1802=\"\xCA\xEE\xEF\xE8\xF0\xEE\xE2\xE0\xED\xE8\xE5\"\r\n");
    Load({"01.03.2024 10:15:30: КОПИРОВАНИЕ C:\\а -> D:\\а",
          "01.03.2024 10:15:31: Удаление C:\\Копирование"});
    Show();
    Toolbar1.UserChoseMenuEntry(0, EntryOf("Копирование"));
    EXPECT_THAT(Rows(), ElementsAre(0));
    EXPECT_EQ(MemoryToolkit::Of(cboFilter).selectionStart, 11U);
}

}  // namespace
}  // namespace ordalyn::test
