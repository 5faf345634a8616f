#include "windows/main/RecentFilesMenu.h"

#include "base/Errors.h"
#include "support/windows/FormFixture.h"

namespace ordalyn::test {
namespace {

using toolkit::Answer;
using toolkit::MenuItem;

constexpr toolkit::MenuDesign kMenus[] = {
    {0, "mnuFile", "101"},
    {1, "mnuFileRecentGroup", "107"},
    {2, "mnuFileRecentFiles", "108"},
    {1, "mnuFileExit", "110"},
};
constexpr toolkit::FormDesign kDesign = {.name = "frmMain",
                                         .tag = "",
                                         .clientSize = {5000, 3000},
                                         .style = {},
                                         .controls = {},
                                         .menus = kMenus};

class RecentMenu : public FormFixture {
  protected:
    void SetUp() override { ShowMenu(9); }
    void ShowMenu(std::int32_t maximum) {
        recentMenu.Setup(maximum, form, menu, "No Recent Files", "Clear List", "Are you sure?");
    }
    void Read() { recent.ReadList(kOwnFile, "Ordalyn", "RecentFiles"); }
    void Save() { recent.SaveList(kOwnFile, "Ordalyn", "RecentFiles"); }
    void AddAll(std::string_view letters) {
        for (const char letter : letters)
            recent.AddFile(std::string(1, letter));
    }
    // The occupied entries, one after the other.
    std::string List() const {
        std::string list;
        for (std::int32_t i = 1; i <= recent.Max(); ++i) {
            if (!common.IsNoValue(recent.ListItems(i)))
                list += (list.empty() ? "" : " ") + recent.ListItems(i);
        }
        return list;
    }
    const MenuItem& Item(std::int32_t number) const {
        return *menu.Items().at(static_cast<std::size_t>(number - 1));
    }
    const MenuItem& ClearItem() const { return Item(recent.Max() + 2); }
    std::vector<std::string> VisibleFiles() const {
        std::vector<std::string> captions;
        for (std::int32_t i = 1; i <= recent.Max(); ++i) {
            if (Item(i).Visible())
                captions.push_back(Item(i).Caption());
        }
        return captions;
    }
    void ExpectEmptyMenu() const {
        EXPECT_THAT(VisibleFiles(), testing::ElementsAre("No Recent Files"));
        EXPECT_FALSE(Item(1).Enabled());
        EXPECT_EQ(ClearItem().Caption(), "Clear List");
        EXPECT_TRUE(ClearItem().Visible());
        EXPECT_FALSE(ClearItem().Enabled());
    }

    toolkit::Form form{toolkit, kDesign};
    MenuItem& menu = form.Menu("mnuFileRecentGroup");
    cRecentFiles recent{profile, common};
    RecentFilesMenu recentMenu{recent,
                               [this](std::int32_t id) { return strings.GetInterfaceString(id); }};
};

TEST_F(RecentMenu, SetupMakesAnItemForEachEntryASeparatorAndClearList) {
    ASSERT_EQ(menu.Items().size(), 11U);
    EXPECT_EQ(recent.Max(), 9);
    EXPECT_EQ(Item(10).Caption(), "-");
    EXPECT_EQ(ClearItem().Caption(), "Clear List");
}

TEST_F(RecentMenu, AnEmptyListShowsOneDisabledEntryAndADisabledClearList) {
    Read();
    ExpectEmptyMenu();
}

TEST_F(RecentMenu, EntriesAreNumberedVisibleAndEnabled) {
    recent.AddFile("C:\\b.log");
    recent.AddFile("C:\\a.log");
    EXPECT_THAT(VisibleFiles(), testing::ElementsAre("&1 C:\\a.log", "&2 C:\\b.log"));
    EXPECT_TRUE(Item(1).Enabled());
    EXPECT_TRUE(Item(2).Enabled());
    EXPECT_FALSE(Item(3).Enabled());
    EXPECT_TRUE(ClearItem().Enabled());
    EXPECT_EQ(Item(10).Caption(), "-");
}

TEST_F(RecentMenu, FromTheTenthEntryOnTheFirstDigitIsTheAccessKey) {
    recentMenu.RestartClass();
    ShowMenu(16);
    AddAll("abcdefghijk");
    EXPECT_EQ(Item(10).Caption(), "&10 b");
    EXPECT_EQ(Item(11).Caption(), "&11 a");
}

TEST_F(RecentMenu, AnAmpersandOfAPathMarksNoAccessKey) {
    recentMenu.RestartClass();
    ShowMenu(4);
    recent.AddFile("C:\\R&D\\x&y.log");
    EXPECT_EQ(Item(1).Caption(), "&1 C:\\R&&D\\x&&y.log");
    EXPECT_EQ(recent.ListItems(1), "C:\\R&D\\x&y.log");
}

TEST_F(RecentMenu, ChoosingAnItemTellsItsNumber) {
    std::vector<std::int32_t> chosen;
    int cleared = 0;
    recentMenu.FileChosen.Subscribe([&](std::int32_t index) { chosen.push_back(index); });
    recentMenu.ClearChosen.Subscribe([&] { ++cleared; });
    AddAll("abcdefghi");
    for (std::int32_t i = 1; i <= 11; ++i)
        menu.Items().at(static_cast<std::size_t>(i - 1))->Choose();
    EXPECT_THAT(chosen, testing::ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9));
    EXPECT_EQ(cleared, 1);
}

TEST_F(RecentMenu, TheNoFilesEntryCannotBeChosen) {
    int chosen = 0;
    recentMenu.FileChosen.Subscribe([&](std::int32_t) { ++chosen; });
    Read();
    menu.Items().front()->Choose();
    EXPECT_EQ(chosen, 0);
}

TEST_F(RecentMenu, RestartTakesTheItemsAwayAndEnablesTheFirst) {
    Read();
    recentMenu.RestartClass();
    ASSERT_EQ(menu.Items().size(), 1U);
    EXPECT_TRUE(menu.Items().front()->Enabled());
    recentMenu.RestartClass();
    EXPECT_EQ(menu.Items().size(), 1U);
}

TEST_F(RecentMenu, AfterARestartTheFirstItemStillTellsOnce) {
    int chosen = 0;
    recentMenu.FileChosen.Subscribe([&](std::int32_t) { ++chosen; });
    recentMenu.RestartClass();
    ShowMenu(2);
    recent.AddFile("a");
    menu.Items().front()->Choose();
    EXPECT_EQ(chosen, 1);
    EXPECT_EQ(menu.Items().size(), 4U);
}

TEST_F(RecentMenu, WithoutRefreshTheMenuIsLeftForLater) {
    AddAll("ab");
    recent.RemoveFile(1);
    EXPECT_EQ(List(), "a");
    EXPECT_THAT(VisibleFiles(), testing::ElementsAre("&1 b", "&2 a"));
}

TEST_F(RecentMenu, RemovingTheOnlyFileShowsTheEmptyList) {
    recent.AddFile("a");
    recent.RemoveFile(1, true);
    ExpectEmptyMenu();
}

TEST_F(RecentMenu, ClearIsEnabledAgainByTheNextFile) {
    Read();
    EXPECT_FALSE(ClearItem().Enabled());
    recent.AddFile("a");
    EXPECT_TRUE(ClearItem().Enabled());
    EXPECT_TRUE(Item(1).Enabled());
}

// Clearing.

TEST_F(RecentMenu, ClearAsksWithNoAsTheDefault) {
    recent.AddFile("a");
    recentMenu.Clear();
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(toolkit.messages[0].text, "Are you sure?");
    EXPECT_EQ(toolkit.messages[0].icon, toolkit::MessageIcon::Question);
    EXPECT_EQ(toolkit.messages[0].buttons, toolkit::MessageButtons::YesNo);
    EXPECT_EQ(toolkit.messages[0].defaultAnswer, Answer::No);
    EXPECT_EQ(toolkit.messages[0].owner, &form);
}

TEST_F(RecentMenu, TheAnswerNoKeepsListMenuAndFile) {
    AddAll("ab");
    Save();
    const auto before = system.files.Get(kOwnFile);
    toolkit.onMessage = [](const ShownMessage&) { return Answer::No; };
    EXPECT_FALSE(recentMenu.Clear());
    EXPECT_EQ(List(), "b a");
    EXPECT_THAT(VisibleFiles(), testing::ElementsAre("&1 b", "&2 a"));
    EXPECT_EQ(system.files.Get(kOwnFile), before);
}

TEST_F(RecentMenu, TheAnswerYesEmptiesListAndMenu) {
    AddAll("abc");
    toolkit.onMessage = [](const ShownMessage&) { return Answer::Yes; };
    EXPECT_TRUE(recentMenu.Clear());
    EXPECT_EQ(List(), "");
    ExpectEmptyMenu();
}

TEST_F(RecentMenu, ClearingAndSavingTakesTheKeysAway) {
    AddAll("abc");
    Save();
    toolkit.onMessage = [](const ShownMessage&) { return Answer::Yes; };
    ASSERT_TRUE(recentMenu.Clear());
    Save();
    for (const char* key : {"RecentFiles1", "RecentFiles2", "RecentFiles3"})
        EXPECT_EQ(Stored("Ordalyn", key), "(absent)") << key;
}

TEST_F(RecentMenu, TheLanguageCanChange) {
    recent.AddFile("a");
    UseLanguageFile("[UserLanguage]\r\n108=Keine Dateien\r\n109=Leeren\r\n3009=Wirklich?\r\n");
    recentMenu.ChangeLanguage();
    EXPECT_EQ(Item(1).Caption(), "&1 a");
    EXPECT_EQ(ClearItem().Caption(), "Leeren");
    toolkit.onMessage = [](const ShownMessage&) { return Answer::Yes; };
    recentMenu.Clear();
    EXPECT_EQ(toolkit.messages.back().text, "Wirklich?");
    EXPECT_THAT(VisibleFiles(), testing::ElementsAre("Keine Dateien"));
}

TEST_F(RecentMenu, ShowsWhatTheSettingsFileHolds) {
    Put("Ordalyn", "RecentFiles1", "velmordane:\\a.log");
    Put("Ordalyn", "RecentFiles2", "");
    Read();
    EXPECT_THAT(VisibleFiles(), testing::ElementsAre("&1 C:\\Ordalyn\\a.log", "&2 "));
    EXPECT_TRUE(Item(2).Enabled());
    EXPECT_TRUE(ClearItem().Enabled());
}

TEST_F(RecentMenu, AGapInFrontIsAnEmptyListWithFiles) {
    Put("Ordalyn", "RecentFiles2", "b");
    Read();
    EXPECT_THAT(VisibleFiles(), testing::ElementsAre("No Recent Files", "&2 b"));
    EXPECT_FALSE(ClearItem().Enabled());
}

TEST_F(RecentMenu, ARemovedFileClosesTheGap) {
    AddAll("abcd");
    recent.RemoveFile(2, true);
    EXPECT_THAT(VisibleFiles(), testing::ElementsAre("&1 d", "&2 b", "&3 a"));
    recent.PutAsFirstItem(2);
    EXPECT_THAT(VisibleFiles(), testing::ElementsAre("&1 b", "&2 d", "&3 a"));
}

TEST_F(RecentMenu, BeforeSetupThereIsNothingToClearOrToTakeAway) {
    cRecentFiles list(profile, common);
    RecentFilesMenu fresh(list, [](std::int32_t) { return std::string(); });
    list.AddFile("a");
    EXPECT_FALSE(fresh.Clear());
    fresh.RestartClass();
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(RecentMenu, ASubmenuWithoutTheDesignsItemCannotBeSetUp) {
    MenuItem& plain = form.Menu("mnuFileExit");
    EXPECT_THROW(recentMenu.Setup(9, form, plain, "", "", ""), SubscriptOutOfRange);
    EXPECT_THROW(recentMenu.Setup(0, form, menu, "", "", ""), InvalidPropertyValue);
}

TEST_F(RecentMenu, TheListOutlivesItsMenu) {
    cRecentFiles list(profile, common);
    {
        toolkit::Form other(toolkit, kDesign);
        RecentFilesMenu shortLived(list, [](std::int32_t) { return std::string(); });
        shortLived.Setup(3, other, other.Menu("mnuFileRecentGroup"), "", "", "");
    }
    list.AddFile("a");
    EXPECT_EQ(list.ListItems(1), "a");
}

}  // namespace
}  // namespace ordalyn::test
