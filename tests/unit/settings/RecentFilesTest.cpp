#include "settings/cRecentFiles.h"

#include "base/Errors.h"
#include "base/Text.h"
#include "support/settings/SettingsFixture.h"

namespace ordalyn::test {
namespace {

class RecentFiles : public SettingsFixture {
  protected:
    void SetUp() override { recent.Setup(9); }
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
            if (recent.Occupied(i))
                list += (list.empty() ? "" : " ") + recent.ListItems(i);
        }
        return list;
    }

    cRecentFiles recent{profile, common};
};

TEST_F(RecentFiles, SetupMakesEmptyEntriesUpToTheMaximum) {
    EXPECT_EQ(recent.Max(), 9);
    for (std::int32_t i = 1; i <= 9; ++i)
        EXPECT_TRUE(common.IsNoValue(recent.ListItems(i))) << i;
    EXPECT_EQ(recent.ListItems(0), "");
}

TEST_F(RecentFiles, SetupEmptiesTheList) {
    AddAll("abc");
    recent.Setup(9);
    EXPECT_EQ(List(), "");
}

TEST_F(RecentFiles, ANumberOutsideTheListThrows) {
    EXPECT_THROW(recent.ListItems(10), SubscriptOutOfRange);
    EXPECT_THROW(recent.ListItems(-1), SubscriptOutOfRange);
    EXPECT_THROW(recent.RemoveFile(0), SubscriptOutOfRange);
    EXPECT_THROW(recent.RemoveFile(10), SubscriptOutOfRange);
    EXPECT_THROW(recent.PutAsFirstItem(0), SubscriptOutOfRange);
    EXPECT_THROW(recent.PutAsFirstItem(10), SubscriptOutOfRange);
    EXPECT_THROW(recent.Occupied(0), SubscriptOutOfRange);
    EXPECT_THROW(recent.Occupied(10), SubscriptOutOfRange);
    EXPECT_THROW(recent.Setup(0), InvalidPropertyValue);
}

TEST_F(RecentFiles, BeforeSetupThereIsNoList) {
    cRecentFiles fresh(profile, common);
    EXPECT_EQ(fresh.Max(), 0);
    fresh.AddFile("a");
    EXPECT_EQ(fresh.ListItems(0), "");
    fresh.RemoveAllFiles();
    EXPECT_THROW(fresh.RemoveFile(1), SubscriptOutOfRange);
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
}

TEST_F(RecentFiles, RemovingFromAFullListEmptiesTheLastEntry) {
    AddAll("abcdefghi");
    recent.RemoveFile(9, true);
    EXPECT_EQ(List(), "i h g f e d c b");
    recent.RemoveFile(1, true);
    EXPECT_EQ(List(), "h g f e d c b");
    EXPECT_TRUE(common.IsNoValue(recent.ListItems(9)));
}

TEST_F(RecentFiles, AnEntryCanBePutFirst) {
    AddAll("abcd");
    recent.PutAsFirstItem(3);
    EXPECT_EQ(List(), "b d c a");
    recent.PutAsFirstItem(1);
    EXPECT_EQ(List(), "b d c a");
}

TEST_F(RecentFiles, AFileThatIsStoredTwiceIsPutFirstAsOne) {
    Put("Ordalyn", "RecentFiles1", "a");
    Put("Ordalyn", "RecentFiles2", "b");
    Put("Ordalyn", "RecentFiles3", "A");
    Read();
    recent.PutAsFirstItem(3);
    EXPECT_EQ(List(), "A b");
}

TEST_F(RecentFiles, AllFilesCanBeRemoved) {
    AddAll("abc");
    recent.RemoveAllFiles();
    EXPECT_EQ(List(), "");
    Save();
    EXPECT_EQ(Stored("Ordalyn", "RecentFiles1"), "(absent)");
}

// Who shows the list is notified.

TEST_F(RecentFiles, EachChangeIsReported) {
    std::vector<std::string> seen;
    recent.OnChange([&] { seen.push_back(List()); });
    AddAll("ab");
    recent.RemoveFile(1, true);
    recent.RemoveAllFiles();
    Put("Ordalyn", "RecentFiles1", "c");
    Read();
    EXPECT_THAT(seen, testing::ElementsAre("a", "b a", "a", "", "c"));
}

TEST_F(RecentFiles, ARemovalWithoutRefreshIsNotReported) {
    AddAll("ab");
    int changes = 0;
    recent.OnChange([&] { ++changes; });
    recent.RemoveFile(1);
    EXPECT_EQ(List(), "a");
    EXPECT_EQ(changes, 0);
}

TEST_F(RecentFiles, ReportingCanEnd) {
    int changes = 0;
    recent.OnChange([&] { ++changes; });
    recent.OnChange({});
    recent.AddFile("a");
    EXPECT_EQ(changes, 0);
}

// The settings file.

TEST_F(RecentFiles, EntriesAreReadAndExpanded) {
    system.environment.SetVariable("LOGS", "D:\\Logs");
    Put("Ordalyn", "RecentFiles1", "velmordane:\\a.log");
    Put("Ordalyn", "RecentFiles2", "%logs%\\b.log");
    Read();
    EXPECT_EQ(List(), "C:\\Ordalyn\\a.log D:\\Logs\\b.log");
}

TEST_F(RecentFiles, AnEmptyValueIsAnEntryWithAnEmptyPath) {
    Put("Ordalyn", "RecentFiles1", "");
    Put("Ordalyn", "RecentFiles2", "b");
    Read();
    EXPECT_EQ(recent.ListItems(1), "");
    EXPECT_TRUE(recent.Occupied(1));
    Save();
    EXPECT_THAT(system.files.Get(kOwnFile).value_or(""), testing::HasSubstr("RecentFiles1=\r\n"));
}

TEST_F(RecentFiles, AnAbsentEntryLeavesAGap) {
    Put("Ordalyn", "RecentFiles2", "b");
    Read();
    EXPECT_EQ(recent.ListItems(1), common.NoValueMarker());
    EXPECT_EQ(recent.ListItems(2), "b");
    EXPECT_FALSE(recent.Occupied(1));
    EXPECT_TRUE(recent.Occupied(2));
}

TEST_F(RecentFiles, EntriesAreNotCheckedWhenRead) {
    Put("Ordalyn", "RecentFiles1", "X:\\gone.log");
    Read();
    EXPECT_EQ(List(), "X:\\gone.log");
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
    recent.Setup(9);
    Read();
    EXPECT_EQ(List(), "D:\\Журнал операций.log C:\\Ordalyn\\a.log");
}

TEST_F(RecentFiles, AShorterListNeitherReadsNorWritesTheRest) {
    AddAll("abcde");
    Save();
    recent.Setup(2);
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
