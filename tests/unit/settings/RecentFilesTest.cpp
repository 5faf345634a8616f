#include "settings/cRecentFiles.h"

#include <array>

#include "base/Errors.h"
#include "base/Text.h"
#include "support/settings/SettingsFixture.h"

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

class RecentFiles : public SettingsFixture {
  protected:
    void SetUp() override { Begin(9); }
    void Begin(std::int32_t maximum) {
        recent.Setup(maximum, form, menu, "No Recent Files", "Clear List", "Are you sure?");
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
    cRecentFiles recent{profile, common, strings};
};

// Setup and the menu.

TEST_F(RecentFiles, SetupMakesAnItemForEachEntryASeparatorAndClearList) {
    ASSERT_EQ(menu.Items().size(), 11U);
    EXPECT_EQ(recent.Max(), 9);
    EXPECT_EQ(Item(10).Caption(), "-");
    EXPECT_EQ(ClearItem().Caption(), "Clear List");
    for (std::int32_t i = 1; i <= 9; ++i)
        EXPECT_TRUE(common.IsNoValue(recent.ListItems(i))) << i;
    EXPECT_EQ(recent.ListItems(0), "");
}

TEST_F(RecentFiles, AnEmptyListShowsOneDisabledEntryAndADisabledClearList) {
    Read();
    ExpectEmptyMenu();
}

TEST_F(RecentFiles, EntriesAreNumberedVisibleAndEnabled) {
    recent.AddFile("C:\\b.log");
    recent.AddFile("C:\\a.log");
    EXPECT_THAT(VisibleFiles(), testing::ElementsAre("&1 C:\\a.log", "&2 C:\\b.log"));
    EXPECT_TRUE(Item(1).Enabled());
    EXPECT_TRUE(Item(2).Enabled());
    EXPECT_FALSE(Item(3).Enabled());
    EXPECT_TRUE(ClearItem().Enabled());
    EXPECT_EQ(Item(10).Caption(), "-");
}

TEST_F(RecentFiles, FromTheTenthEntryOnTheFirstDigitIsTheAccessKey) {
    recent.RestartClass();
    Begin(16);
    AddAll("abcdefghijk");
    EXPECT_EQ(Item(10).Caption(), "&10 b");
    EXPECT_EQ(Item(11).Caption(), "&11 a");
}

TEST_F(RecentFiles, AnAmpersandOfAPathMarksNoAccessKey) {
    recent.RestartClass();
    Begin(4);
    recent.AddFile("C:\\R&D\\x&y.log");
    EXPECT_EQ(Item(1).Caption(), "&1 C:\\R&&D\\x&&y.log");
    EXPECT_EQ(recent.ListItems(1), "C:\\R&D\\x&y.log");
}

TEST_F(RecentFiles, ChoosingAnItemTellsItsNumber) {
    std::vector<std::int32_t> chosen;
    int cleared = 0;
    recent.FileChosen.Subscribe([&](std::int32_t index) { chosen.push_back(index); });
    recent.ClearChosen.Subscribe([&] { ++cleared; });
    AddAll("abcdefghi");
    for (std::int32_t i = 1; i <= 11; ++i)
        menu.Items().at(static_cast<std::size_t>(i - 1))->Choose();
    EXPECT_THAT(chosen, testing::ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9));
    EXPECT_EQ(cleared, 1);
}

TEST_F(RecentFiles, TheNoFilesEntryCannotBeChosen) {
    int chosen = 0;
    recent.FileChosen.Subscribe([&](std::int32_t) { ++chosen; });
    Read();
    menu.Items().front()->Choose();
    EXPECT_EQ(chosen, 0);
}

TEST_F(RecentFiles, RestartTakesTheItemsAwayAndEnablesTheFirst) {
    Read();
    recent.RestartClass();
    ASSERT_EQ(menu.Items().size(), 1U);
    EXPECT_TRUE(menu.Items().front()->Enabled());
    recent.RestartClass();
    EXPECT_EQ(menu.Items().size(), 1U);
}

TEST_F(RecentFiles, AfterARestartTheFirstItemStillTellsOnce) {
    int chosen = 0;
    recent.FileChosen.Subscribe([&](std::int32_t) { ++chosen; });
    recent.RestartClass();
    Begin(2);
    recent.AddFile("a");
    menu.Items().front()->Choose();
    EXPECT_EQ(chosen, 1);
    EXPECT_EQ(menu.Items().size(), 4U);
}

TEST_F(RecentFiles, SetupEmptiesTheList) {
    AddAll("abc");
    recent.RestartClass();
    Begin(9);
    EXPECT_EQ(List(), "");
}

TEST_F(RecentFiles, ANumberOutsideTheListThrows) {
    EXPECT_THROW(recent.ListItems(10), SubscriptOutOfRange);
    EXPECT_THROW(recent.ListItems(-1), SubscriptOutOfRange);
    EXPECT_THROW(recent.RemoveFile(0), SubscriptOutOfRange);
    EXPECT_THROW(recent.RemoveFile(10), SubscriptOutOfRange);
    EXPECT_THROW(recent.PutAsFirstItem(0), SubscriptOutOfRange);
    EXPECT_THROW(Begin(0), InvalidPropertyValue);
}

TEST_F(RecentFiles, BeforeSetupThereIsNoList) {
    cRecentFiles fresh(profile, common, strings);
    EXPECT_EQ(fresh.Max(), 0);
    fresh.AddFile("a");
    EXPECT_EQ(fresh.ListItems(0), "");
    EXPECT_FALSE(fresh.Clear());
    fresh.RestartClass();
}

// The list.

TEST_F(RecentFiles, TheTenthFileDropsTheFirst) {
    AddAll("abcdefghij");
    EXPECT_EQ(List(), "j i h g f e d c b");
}

TEST_F(RecentFiles, AFileThatIsListedMovesToTheTopAndTheOthersKeepTheirOrder) {
    AddAll("abcdefghi");
    recent.AddFile("e");
    EXPECT_EQ(List(), "e i h g f d c b a");
    recent.AddFile("a");
    EXPECT_EQ(List(), "a e i h g f d c b");
    recent.AddFile("a");
    EXPECT_EQ(List(), "a e i h g f d c b");
}

TEST_F(RecentFiles, AFileIsListedOnceInItsLatestSpelling) {
    recent.AddFile("c:\\logs\\tc.log");
    recent.AddFile("C:\\LOGS\\TC.LOG");
    EXPECT_EQ(List(), "C:\\LOGS\\TC.LOG");
    recent.AddFile("D:\\Журнал.log");
    recent.AddFile("D:\\ЖУРНАЛ.log");
    EXPECT_EQ(List(), "D:\\ЖУРНАЛ.log C:\\LOGS\\TC.LOG");
}

TEST_F(RecentFiles, AnEntryCanBeAddedByItself) {
    AddAll("abc");
    recent.AddFile(recent.ListItems(3));
    EXPECT_EQ(List(), "a c b");
}

TEST_F(RecentFiles, ARemovedFileClosesTheGap) {
    AddAll("abcd");
    recent.RemoveFile(2, true);
    EXPECT_EQ(List(), "d b a");
    EXPECT_THAT(VisibleFiles(), testing::ElementsAre("&1 d", "&2 b", "&3 a"));
}

TEST_F(RecentFiles, WithoutRefreshTheMenuIsLeftForLater) {
    AddAll("ab");
    recent.RemoveFile(1);
    EXPECT_EQ(List(), "a");
    EXPECT_THAT(VisibleFiles(), testing::ElementsAre("&1 b", "&2 a"));
}

TEST_F(RecentFiles, RemovingFromAFullListEmptiesTheLastEntry) {
    AddAll("abcdefghi");
    recent.RemoveFile(9, true);
    EXPECT_EQ(List(), "i h g f e d c b");
    recent.RemoveFile(1, true);
    EXPECT_EQ(List(), "h g f e d c b");
    EXPECT_TRUE(common.IsNoValue(recent.ListItems(9)));
}

TEST_F(RecentFiles, RemovingTheOnlyFileShowsTheEmptyList) {
    recent.AddFile("a");
    recent.RemoveFile(1, true);
    ExpectEmptyMenu();
}

TEST_F(RecentFiles, AnEntryCanBePutFirst) {
    AddAll("abcd");
    recent.PutAsFirstItem(3);
    EXPECT_EQ(List(), "b d c a");
    recent.PutAsFirstItem(1);
    EXPECT_EQ(List(), "b d c a");
    EXPECT_EQ(Item(1).Caption(), "&1 b");
}

TEST_F(RecentFiles, ClearIsEnabledAgainByTheNextFile) {
    Read();
    EXPECT_FALSE(ClearItem().Enabled());
    recent.AddFile("a");
    EXPECT_TRUE(ClearItem().Enabled());
    EXPECT_TRUE(Item(1).Enabled());
}

// Clearing.

TEST_F(RecentFiles, ClearAsksWithNoAsTheDefault) {
    recent.AddFile("a");
    recent.Clear();
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(toolkit.messages[0].text, "Are you sure?");
    EXPECT_EQ(toolkit.messages[0].icon, toolkit::MessageIcon::Question);
    EXPECT_EQ(toolkit.messages[0].buttons, toolkit::MessageButtons::YesNo);
    EXPECT_EQ(toolkit.messages[0].defaultAnswer, Answer::No);
    EXPECT_EQ(toolkit.messages[0].owner, &form);
}

TEST_F(RecentFiles, TheAnswerNoKeepsListMenuAndFile) {
    AddAll("ab");
    Save();
    const auto before = system.files.Get(kOwnFile);
    toolkit.onMessage = [](const ShownMessage&) { return Answer::No; };
    EXPECT_FALSE(recent.Clear());
    EXPECT_EQ(List(), "b a");
    EXPECT_THAT(VisibleFiles(), testing::ElementsAre("&1 b", "&2 a"));
    EXPECT_EQ(system.files.Get(kOwnFile), before);
}

TEST_F(RecentFiles, TheAnswerYesEmptiesListAndMenu) {
    AddAll("abc");
    toolkit.onMessage = [](const ShownMessage&) { return Answer::Yes; };
    EXPECT_TRUE(recent.Clear());
    EXPECT_EQ(List(), "");
    ExpectEmptyMenu();
}

TEST_F(RecentFiles, ClearingAndSavingTakesTheKeysAway) {
    AddAll("abc");
    Save();
    toolkit.onMessage = [](const ShownMessage&) { return Answer::Yes; };
    ASSERT_TRUE(recent.Clear());
    Save();
    for (const char* key : {"RecentFiles1", "RecentFiles2", "RecentFiles3"})
        EXPECT_EQ(Stored("Ordalyn", key), "(absent)") << key;
}

// The settings file.

TEST_F(RecentFiles, EntriesAreReadAndExpanded) {
    system.environment.SetVariable("LOGS", "D:\\Logs");
    Put("Ordalyn", "RecentFiles1", "velmordane:\\a.log");
    Put("Ordalyn", "RecentFiles2", "%logs%\\b.log");
    Read();
    EXPECT_EQ(List(), "C:\\Ordalyn\\a.log D:\\Logs\\b.log");
    EXPECT_THAT(VisibleFiles(),
                testing::ElementsAre("&1 C:\\Ordalyn\\a.log", "&2 D:\\Logs\\b.log"));
    EXPECT_TRUE(ClearItem().Enabled());
}

TEST_F(RecentFiles, AnEmptyValueIsAnEntryWithAnEmptyPath) {
    Put("Ordalyn", "RecentFiles1", "");
    Put("Ordalyn", "RecentFiles2", "b");
    Read();
    EXPECT_THAT(VisibleFiles(), testing::ElementsAre("&1 ", "&2 b"));
    EXPECT_EQ(recent.ListItems(1), "");
    EXPECT_TRUE(Item(1).Enabled());
    Save();
    EXPECT_THAT(system.files.Get(kOwnFile).value_or(""), testing::HasSubstr("RecentFiles1=\r\n"));
}

TEST_F(RecentFiles, AnAbsentEntryLeavesAGap) {
    Put("Ordalyn", "RecentFiles2", "b");
    Read();
    EXPECT_EQ(recent.ListItems(1), common.NoValueMarker());
    EXPECT_EQ(recent.ListItems(2), "b");
    EXPECT_THAT(VisibleFiles(), testing::ElementsAre("No Recent Files", "&2 b"));
    EXPECT_FALSE(ClearItem().Enabled());
}

TEST_F(RecentFiles, EntriesAreNotCheckedWhenRead) {
    Put("Ordalyn", "RecentFiles1", "X:\\gone.log");
    Read();
    EXPECT_EQ(List(), "X:\\gone.log");
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(RecentFiles, EntriesAreStoredSymbolicallyAndEmptyOnesNotAtAll) {
    recent.AddFile("D:\\b.log");
    recent.AddFile("C:\\Ordalyn\\a.log");
    Save();
    EXPECT_EQ(Stored("Ordalyn", "RecentFiles1"), "velmordane:\\a.log");
    EXPECT_EQ(Stored("Ordalyn", "RecentFiles2"), "D:\\b.log");
    EXPECT_EQ(Stored("Ordalyn", "RecentFiles3"), "(absent)");
}

TEST_F(RecentFiles, RemovingAFileAndSavingTakesTheLastKeyAway) {
    AddAll("abc");
    Save();
    recent.RemoveFile(1, true);
    Save();
    EXPECT_EQ(Stored("Ordalyn", "RecentFiles1"), "b");
    EXPECT_EQ(Stored("Ordalyn", "RecentFiles2"), "a");
    EXPECT_EQ(Stored("Ordalyn", "RecentFiles3"), "(absent)");
}

TEST_F(RecentFiles, WhatIsSavedIsReadAgain) {
    recent.AddFile("C:\\Ordalyn\\a.log");
    recent.AddFile("D:\\Журнал операций.log");
    Save();
    recent.RestartClass();
    Begin(9);
    Read();
    EXPECT_EQ(List(), "D:\\Журнал операций.log C:\\Ordalyn\\a.log");
}

TEST_F(RecentFiles, AShorterListNeitherReadsNorWritesTheRest) {
    AddAll("abcde");
    Save();
    recent.RestartClass();
    Begin(2);
    Read();
    EXPECT_EQ(List(), "e d");
    recent.AddFile("f");
    EXPECT_EQ(List(), "f e");
    Save();
    EXPECT_EQ(Stored("Ordalyn", "RecentFiles2"), "e");
    EXPECT_EQ(Stored("Ordalyn", "RecentFiles3"), "c");
}

TEST_F(RecentFiles, ThePrefixMayBeLeftOut) {
    recent.AddFile("a");
    recent.SaveList(kOwnFile, "Other");
    EXPECT_EQ(Stored("Other", "1"), "a");
    recent.AddFile("b");
    recent.ReadList(kOwnFile, "Other");
    EXPECT_EQ(List(), "a");
}

TEST_F(RecentFiles, TheLanguageCanChange) {
    recent.AddFile("a");
    UseLanguageFile("[UserLanguage]\r\n108=Keine Dateien\r\n109=Leeren\r\n3009=Wirklich?\r\n");
    recent.ChangeLanguage();
    EXPECT_EQ(Item(1).Caption(), "&1 a");
    EXPECT_EQ(ClearItem().Caption(), "Leeren");
    toolkit.onMessage = [](const ShownMessage&) { return Answer::Yes; };
    recent.Clear();
    EXPECT_EQ(toolkit.messages.back().text, "Wirklich?");
    EXPECT_THAT(VisibleFiles(), testing::ElementsAre("Keine Dateien"));
}

// What the menu shows of a path.

// A path of `length` characters that begins with `start`.
std::string Long(const std::string& start, std::size_t length) {
    return start + std::string(length - CharacterCount(start), 'x');
}

TEST(CompactPath, UpTo48CharactersAPathIsWhole) {
    const std::string whole = Long("C:\\a\\b\\c\\d\\e\\f\\", 48);
    EXPECT_EQ(cRecentFiles::CompactPath(whole), whole);
    EXPECT_EQ(cRecentFiles::CompactPath(""), "");
    EXPECT_EQ(cRecentFiles::CompactPath(Long("C:\\a\\b\\c\\d\\e\\f\\", 49)),
              "C:\\a\\...\\f\\" + std::string(49 - 15, 'x'));
}

TEST(CompactPath, CharactersAreCountedNotBytes) {
    std::string path = "C:\\";
    for (int i = 0; i < 45; ++i)
        path += "ж";
    EXPECT_EQ(cRecentFiles::CompactPath(path), path);
    std::string sixteen;
    for (int i = 0; i < 16; ++i)
        sixteen += "ж";
    EXPECT_EQ(cRecentFiles::CompactPath(path + "ж"), "C:\\" + sixteen + "......" + sixteen);
}

TEST(CompactPath, ALongNameInTheRootKeepsItsEnds) {
    const std::string name = "abcdefghijklmnopqrstuvwxyz0123456789ABCDEFGHIJKLMNOPQRSTU";
    ASSERT_EQ(name.size(), 57U);
    EXPECT_EQ(cRecentFiles::CompactPath("C:\\" + name),
              "C:\\abcdefghijklmnop......FGHIJKLMNOPQRSTU");
}

TEST(CompactPath, OneFolderKeepsItsBeginningAndTheNameItsEnd) {
    EXPECT_EQ(
        cRecentFiles::CompactPath("C:\\A folder with a long name\\and a file with a long name.log"),
        "C:\\A folder with a \\...\\ a long name.log");
}

TEST(CompactPath, APartOfFewerThan16CharactersIsUsedWhole) {
    EXPECT_EQ(cRecentFiles::CompactPath(Long("C:\\Logs\\", 60)),
              "C:\\Logs\\...\\" + std::string(16, 'x'));
    EXPECT_EQ(cRecentFiles::CompactPath("C:\\" + std::string(50, 'y') + "\\a.log"),
              "C:\\" + std::string(16, 'y') + "\\...\\a.log");
    // A long "drive" and a short name: beginning and end of the name overlap.
    EXPECT_EQ(cRecentFiles::CompactPath(std::string(50, 'd') + "\\tc.log"),
              std::string(50, 'd') + "\\tc.log......tc.log");
}

TEST(CompactPath, TwoOrThreeFoldersKeepTheFirst) {
    EXPECT_EQ(
        cRecentFiles::CompactPath("C:\\Program Files\\A folder with a long name\\totalcmd.log"),
        "C:\\Program Files\\...\\totalcmd.log");
    EXPECT_EQ(cRecentFiles::CompactPath(
                  "C:\\Program Files\\Another\\A folder with a long name\\totalcmd.log"),
              "C:\\Program Files\\...\\totalcmd.log");
}

TEST(CompactPath, MoreFoldersKeepTheFirstAndTheLast) {
    EXPECT_EQ(cRecentFiles::CompactPath(
                  "C:\\Program Files\\Common Files\\Logs\\Archive\\2004\\totalcmd.log"),
              "C:\\Program Files\\...\\2004\\totalcmd.log");
    EXPECT_EQ(
        cRecentFiles::CompactPath("C:\\Program Files\\Common Files\\Some Logs\\2004\\totalcmd.log"),
        "C:\\Program Files\\...\\2004\\totalcmd.log");
}

TEST(CompactPath, TheResultIsNotMeasuredAgain) {
    const std::string name(60, 'n');
    EXPECT_EQ(cRecentFiles::CompactPath("C:\\a\\b\\c\\d\\" + name), "C:\\a\\...\\d\\" + name);
    EXPECT_EQ(cRecentFiles::CompactPath("C:\\a\\" + std::string(50, 'b') + "\\" + name),
              "C:\\a\\...\\" + name);
}

TEST(CompactPath, ALongNameWithoutABackslashIsEmpty) {
    EXPECT_EQ(cRecentFiles::CompactPath(std::string(49, 'x')), "");
    EXPECT_EQ(cRecentFiles::CompactPath(std::string(48, 'x')), std::string(48, 'x'));
}

TEST(CompactPath, ANetworkPathBeginsWithEmptyParts) {
    EXPECT_EQ(
        cRecentFiles::CompactPath("\\\\server\\share\\a folder with a long name\\totalcmd.log"),
        "\\\\...\\a folder with a long name\\totalcmd.log");
}

}  // namespace
}  // namespace ordalyn::test
