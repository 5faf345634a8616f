#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ProfileRoom.h"

namespace ordalyn {
namespace {

using test::kOwnFile;
using test::kWincmd;

// Which file the operations of cProfile turn to.
class ProfileRedirection : public testing::Test, public test::ProfileRoom {
  protected:
    // The alternate file of most tests.
    static constexpr std::string_view kAlternate = "D:\\users\\anna.ini";

    void SetUp() override { system.files.AddFolder("D:\\users"); }
    void Wincmd(std::string_view text) { system.files.Set(kWincmd, text); }
};

TEST_F(ProfileRedirection, WithoutEntriesEverythingStays) {
    Wincmd("[Configuration]\r\nLogFile=main\r\n[Colors]\r\nBack=main\r\n");
    EXPECT_EQ(Read("Configuration", "LogFile"), "main");
    EXPECT_EQ(Read("Colors", "Back"), "main");
    Profile().WriteValue("Colors", "Back", "new", kWincmd);
    EXPECT_THAT(Text(kWincmd), testing::HasSubstr("Back=new"));
}

TEST_F(ProfileRedirection, TheListOfExemptSectionsIsReadAndWrittenWithoutIt) {
    system.files.Set(kOwnFile, "[Common]\r\nRedirectSection=other.ini\r\n");
    Profile();
    EXPECT_THAT(Text(kOwnFile),
                testing::HasSubstr("TCSectionsNotRedirectedByDefault=Configuration;"));
    EXPECT_EQ(Text("C:\\Ordalyn\\other.ini"), "(no file)");
}

TEST_F(ProfileRedirection, AnAlternateFileTakesTheSectionsThatAreNotExempt) {
    Wincmd("[Configuration]\r\nAlternateUserIni=D:\\users\\anna.ini\r\n[Colors]\r\nBack=main\r\n");
    system.files.Set(kAlternate, "[Colors]\r\nBack=alternate\r\n");
    EXPECT_EQ(Read("Colors", "Back"), "alternate");
    EXPECT_EQ(Read("Colors", "Missing"), "default");
}

TEST_F(ProfileRedirection, AnAlternateFileLeavesTheExemptSections) {
    Wincmd(
        "[Configuration]\r\nAlternateUserIni=D:\\users\\anna.ini\r\nKey=main\r\n"
        "[Layout]\r\nKey=main\r\n[Packer]\r\nKey=main\r\n[Confirmation]\r\nKey=main\r\n"
        "[Extensions]\r\nKey=main\r\n[Shortcuts]\r\nKey=main\r\n[PackerPlugins]\r\nKey=main\r\n"
        "[FileSystemPlugins]\r\nKey=main\r\n[ListerPlugins]\r\nKey=main\r\n"
        "[ContentPlugins]\r\nKey=main\r\n");
    for (const std::string_view section :
         {"Configuration", "Layout", "Packer", "Confirmation", "Extensions", "Shortcuts",
          "PackerPlugins", "FileSystemPlugins", "ListerPlugins", "ContentPlugins"})
        EXPECT_EQ(Read(section, "Key"), "main") << section;
    EXPECT_EQ(Read("packerPLUGINS", "Key"), "main");
}

TEST_F(ProfileRedirection, ABareAlternateNameIsAFileOfTheCurrentFolder) {
    Wincmd("[Configuration]\r\nAlternateUserIni=user.ini\r\n[Colors]\r\nBack=main\r\n");
    system.files.SetCurrentFolder("E:\\here");
    system.files.Set("E:\\here\\user.ini", "[Colors]\r\nBack=current folder\r\n");
    system.files.Set("C:\\tc\\user.ini", "[Colors]\r\nBack=beside wincmd.ini\r\n");
    EXPECT_EQ(Read("Colors", "Back"), "current folder");
}

TEST_F(ProfileRedirection, ABareSectionRedirectionIsAFileBesideTheMainFile) {
    Wincmd("[Colors]\r\nRedirectSection=colors.ini\r\nBack=main\r\n");
    system.files.SetCurrentFolder("E:\\here");
    system.files.Set("E:\\here\\colors.ini", "[Colors]\r\nBack=current folder\r\n");
    system.files.Set("C:\\tc\\colors.ini", "[Colors]\r\nBack=beside wincmd.ini\r\n");
    EXPECT_EQ(Read("Colors", "Back"), "beside wincmd.ini");
}

TEST_F(ProfileRedirection, ABareSectionRedirectionOfABareFileIsThatFile) {
    system.files.SetCurrentFolder("E:\\here");
    system.files.Set("E:\\here\\wincmd.ini", "[Colors]\r\nRedirectSection=colors.ini\r\n");
    system.files.Set("E:\\here\\colors.ini", "[Colors]\r\nBack=blue\r\n");
    EXPECT_EQ(Profile().ReadValue("Colors", "Back", "", "wincmd.ini"), "blue");
}

TEST_F(ProfileRedirection, ASectionRedirectionWithABackslashIsTakenAsItStands) {
    Wincmd("[Colors]\r\nRedirectSection=D:\\users\\colors.ini\r\nBack=main\r\n");
    system.files.Set("D:\\users\\colors.ini", "[Colors]\r\nBack=there\r\n");
    EXPECT_EQ(Read("Colors", "Back"), "there");
}

TEST_F(ProfileRedirection, WithoutAnAlternateFileZeroAndOneStay) {
    Wincmd("[A]\r\nRedirectSection=1\r\nKey=main\r\n[B]\r\nRedirectSection=0\r\nKey=main\r\n");
    EXPECT_EQ(Read("A", "Key"), "main");
    EXPECT_EQ(Read("B", "Key"), "main");
}

TEST_F(ProfileRedirection, WithAnAlternateFileZeroStays) {
    Wincmd(
        "[Configuration]\r\nAlternateUserIni=D:\\users\\anna.ini\r\nRedirectSection=0\r\n"
        "Key=main\r\n[Colors]\r\nRedirectSection=0\r\nKey=main\r\n");
    system.files.Set(kAlternate,
                     "[Configuration]\r\nKey=alternate\r\n[Colors]\r\nKey=alternate\r\n");
    EXPECT_EQ(Read("Configuration", "Key"), "main");
    EXPECT_EQ(Read("Colors", "Key"), "main");
}

TEST_F(ProfileRedirection, WithAnAlternateFileOneGoesThereThoughTheSectionIsExempt) {
    Wincmd(
        "[Configuration]\r\nAlternateUserIni=D:\\users\\anna.ini\r\nRedirectSection=1\r\n"
        "Key=main\r\n");
    system.files.Set(kAlternate, "[Configuration]\r\nKey=alternate\r\n");
    EXPECT_EQ(Read("Configuration", "Key"), "alternate");
}

TEST_F(ProfileRedirection, WithAnAlternateFileASectionStillNamesItsOwn) {
    Wincmd(
        "[Configuration]\r\nAlternateUserIni=D:\\users\\anna.ini\r\n"
        "[Layout]\r\nRedirectSection=layout.ini\r\nKey=main\r\n"
        "[Colors]\r\nRedirectSection=D:\\users\\colors.ini\r\nKey=main\r\n");
    system.files.Set("C:\\tc\\layout.ini", "[Layout]\r\nKey=beside\r\n");
    system.files.Set("D:\\users\\colors.ini", "[Colors]\r\nKey=there\r\n");
    EXPECT_EQ(Read("Layout", "Key"), "beside");
    EXPECT_EQ(Read("Colors", "Key"), "there");
}

TEST_F(ProfileRedirection, VariablesInTargetsAreExpanded) {
    system.environment.SetVariable("APPDATA", "D:\\data");
    system.environment.SetVariable("COMMANDER_PATH", "C:\\tc");
    // A blank behind the value, as met in the field.
    Wincmd(
        "[Configuration]\r\nAlternateUserIni=%COMMANDER_PATH%\\user\\all.ini\r\n"
        "[Colors]\r\nRedirectSection=%APPDATA%\\colors.ini \r\n");
    system.files.Set("D:\\data\\colors.ini", "[Colors]\r\nBack=expanded\r\n");
    system.files.Set("C:\\tc\\user\\all.ini", "[Other]\r\nKey=alternate\r\n");
    EXPECT_EQ(Read("Colors", "Back"), "expanded");
    EXPECT_EQ(Read("Other", "Key"), "alternate");
}

TEST_F(ProfileRedirection, ThePrefixInTargetsBecomesTheProgramFolder) {
    Wincmd("[Colors]\r\nRedirectSection=velmordane:\\sub\\colors.ini\r\n");
    system.files.Set("C:\\Ordalyn\\sub\\colors.ini", "[Colors]\r\nBack=blue\r\n");
    EXPECT_EQ(Read("Colors", "Back"), "blue");
}

TEST_F(ProfileRedirection, TheRedirectingKeysThemselvesAreNeverRedirected) {
    Wincmd(
        "[Configuration]\r\nAlternateUserIni=D:\\users\\anna.ini\r\nRedirectSection=1\r\n"
        "[Colors]\r\nredirectsection=colors.ini\r\n");
    EXPECT_EQ(Read("Configuration", "alternateuserini"), "D:\\users\\anna.ini");
    EXPECT_EQ(Read("Configuration", "RedirectSection"), "1");
    EXPECT_EQ(Read("Colors", "REDIRECTSECTION"), "colors.ini");
    Profile().WriteValue("Colors", "RedirectSection", "0", kWincmd);
    EXPECT_THAT(Text(kWincmd), testing::HasSubstr("[Colors]\r\nredirectsection=0\r\n"));
    EXPECT_FALSE(system.files.Get("C:\\tc\\colors.ini"));
    Profile().DeleteValue("Configuration", "AlternateUserIni", kWincmd);
    EXPECT_THAT(Text(kWincmd), testing::Not(testing::HasSubstr("AlternateUserIni")));
}

TEST_F(ProfileRedirection, NamesOfSectionsAndKeysCountInAnyLetterCase) {
    Wincmd("[CONFIGURATION]\r\nalternateuserini=D:\\users\\anna.ini\r\n[COLORS]\r\nBack=main\r\n");
    system.files.Set(kAlternate, "[colors]\r\nBACK=alternate\r\n");
    EXPECT_EQ(Read("Colors", "Back"), "alternate");
}

TEST_F(ProfileRedirection, OnlyOneLevelIsFollowed) {
    Wincmd("[Colors]\r\nRedirectSection=colors.ini\r\n");
    system.files.Set("C:\\tc\\colors.ini",
                     "[Configuration]\r\nAlternateUserIni=D:\\users\\anna.ini\r\n"
                     "[Colors]\r\nRedirectSection=deeper.ini\r\nBack=first\r\n");
    system.files.Set("C:\\tc\\deeper.ini", "[Colors]\r\nBack=second\r\n");
    EXPECT_EQ(Read("Colors", "Back"), "first");
}

TEST_F(ProfileRedirection, AMissingTargetReadsAsAbsentAndIsMadeByWriting) {
    Wincmd("[Colors]\r\nRedirectSection=colors.ini\r\nBack=main\r\n");
    EXPECT_EQ(Read("Colors", "Back"), "default");
    Profile().WriteValue("Colors", "Back", "blue", kWincmd);
    EXPECT_EQ(Text("C:\\tc\\colors.ini"), "[Colors]\r\nBack=blue\r\n");
    EXPECT_THAT(Text(kWincmd), testing::HasSubstr("Back=main"));
}

// An entry that is there without a value counts as there.
TEST_F(ProfileRedirection, AnEmptySectionRedirectionLeadsToTheFolderWhereNothingIs) {
    Wincmd("[Colors]\r\nRedirectSection=\r\nBack=main\r\n");
    EXPECT_EQ(Read("Colors", "Back"), "default");
}

TEST_F(ProfileRedirection, AnEmptyAlternateFileLeadsNowhere) {
    Wincmd("[Configuration]\r\nAlternateUserIni=\r\nKey=main\r\n[Colors]\r\nBack=main\r\n");
    EXPECT_EQ(Read("Colors", "Back"), "default");
    EXPECT_EQ(Read("Configuration", "Key"), "main");
}

TEST_F(ProfileRedirection, NothingIsRememberedBetweenReads) {
    Wincmd("[Colors]\r\nBack=main\r\n");
    EXPECT_EQ(Read("Colors", "Back"), "main");
    Wincmd("[Colors]\r\nRedirectSection=colors.ini\r\nBack=main\r\n");
    system.files.Set("C:\\tc\\colors.ini", "[Colors]\r\nBack=moved\r\n");
    EXPECT_EQ(Read("Colors", "Back"), "moved");
}

TEST_F(ProfileRedirection, DeletingFollows) {
    Wincmd("[Colors]\r\nRedirectSection=colors.ini\r\nBack=main\r\n");
    system.files.Set("C:\\tc\\colors.ini",
                     "[Colors]\r\nBack=there\r\nFore=there\r\n[Other]\r\nKey=1\r\n");
    Profile().DeleteValue("Colors", "Back", kWincmd);
    EXPECT_EQ(Text("C:\\tc\\colors.ini"), "[Colors]\r\nFore=there\r\n[Other]\r\nKey=1\r\n");
    Profile().DeleteSection("Colors", kWincmd);
    EXPECT_EQ(Text("C:\\tc\\colors.ini"), "[Other]\r\nKey=1\r\n");
    EXPECT_THAT(Text(kWincmd), testing::HasSubstr("Back=main"));
}

TEST_F(ProfileRedirection, ListsOfKeysFollowAndSectionNamesDoNot) {
    Wincmd("[Colors]\r\nRedirectSection=colors.ini\r\nMain=1\r\n");
    system.files.Set("C:\\tc\\colors.ini", "[Colors]\r\nThere=2\r\n[Other]\r\nKey=1\r\n");
    Profile().ReadSectionKeysNameOnly("Colors", kWincmd);
    EXPECT_EQ(Profile().SectionKeysNameOnlyLastIndex(), 0);
    EXPECT_EQ(Profile().SectionKeysNameOnlyList(0), "There");
    Profile().ReadSectionKeysNameAndValue("Colors", kWincmd);
    EXPECT_EQ(Profile().SectionKeysNameAndValueLastIndex(), 0);
    EXPECT_EQ(Profile().SectionKeysNameAndValueList(0), "There=2");
    Profile().ReadFileSectionsName(kWincmd);
    EXPECT_EQ(Profile().FileSectionsNameLastIndex(), 0);
    EXPECT_EQ(Profile().FileSectionsNameList(0), "Colors");
}

TEST_F(ProfileRedirection, TheDefaultListOfExemptSectionsIsWrittenWhenItIsMissing) {
    system.files.Set(kOwnFile, "[Common]\r\nOther=1\r\n");
    Profile();
    EXPECT_EQ(Text(kOwnFile),
              "[Common]\r\nOther=1\r\n"
              "TCSectionsNotRedirectedByDefault=Configuration;Layout;Packer;Confirmation;"
              "Extensions;Shortcuts;PackerPlugins;FileSystemPlugins;ListerPlugins;"
              "ContentPlugins\r\n");
}

TEST_F(ProfileRedirection, TheDefaultListIsWrittenIntoASettingsFileThatDoesNotExistYet) {
    Profile();
    EXPECT_THAT(Text(kOwnFile), testing::StartsWith("[Common]\r\nTCSectionsNotRedirectedByDefault="
                                                    "Configuration;Layout;"));
}

TEST_F(ProfileRedirection, AListOfExemptSectionsThatIsThereCountsAndStays) {
    const std::string own = "[Common]\r\nTCSectionsNotRedirectedByDefault=Colors;Tabs\r\n";
    system.files.Set(kOwnFile, own);
    Wincmd(
        "[Configuration]\r\nAlternateUserIni=D:\\users\\anna.ini\r\n[Colors]\r\nKey=main\r\n"
        "[Layout]\r\nKey=main\r\n");
    EXPECT_EQ(Read("colors", "Key"), "main");
    EXPECT_EQ(Read("Layout", "Key"), "default");
    EXPECT_EQ(Text(kOwnFile), own);
}

TEST_F(ProfileRedirection, WithoutAPlaceToWriteTheDefaultListItCountsAllTheSame) {
    system.files.Set(kOwnFile, "");
    system.files.FailWriting(kOwnFile);
    Wincmd(
        "[Configuration]\r\nAlternateUserIni=D:\\users\\anna.ini\r\nKey=main\r\n"
        "[Colors]\r\nBack=main\r\n");
    EXPECT_EQ(Read("Configuration", "Key"), "main");
    EXPECT_EQ(Read("Colors", "Back"), "default");
    EXPECT_EQ(Text(kOwnFile), "");
}

TEST_F(ProfileRedirection, TheListOfExemptSectionsHas4095Characters) {
    system.files.Set(kOwnFile, "[Common]\r\nTCSectionsNotRedirectedByDefault=" +
                                   std::string(4089, ';') + "Colors2\r\n");
    Wincmd("[Configuration]\r\nAlternateUserIni=D:\\users\\anna.ini\r\n[Colors]\r\nKey=main\r\n");
    EXPECT_EQ(Read("Colors", "Key"), "main");
    EXPECT_EQ(Read("Colors2", "Key"), "default");
}

TEST_F(ProfileRedirection, ATargetHas4095Characters) {
    std::string target = "D:\\users\\" + std::string(4095, 'x');
    target.resize(4095);
    system.files.Set(target, "[Colors]\r\nBack=there\r\n");
    Wincmd("[Configuration]\r\nAlternateUserIni=" + target + "xyz\r\n[Colors]\r\nBack=main\r\n");
    EXPECT_EQ(Read("Colors", "Back"), "there");
    Wincmd("[Colors]\r\nRedirectSection=" + target + "xyz\r\nBack=main\r\n");
    EXPECT_EQ(Read("Colors", "Back"), "there");
}

TEST_F(ProfileRedirection, ExemptSectionsAreNotTrimmed) {
    system.files.Set(kOwnFile,
                     "[Common]\r\nTCSectionsNotRedirectedByDefault=Configuration; Colors\r\n");
    Wincmd("[Configuration]\r\nAlternateUserIni=D:\\users\\anna.ini\r\n[Colors]\r\nKey=main\r\n");
    EXPECT_EQ(Read("Colors", "Key"), "default");
}

TEST_F(ProfileRedirection, AnEmptyListExemptsNothing) {
    system.files.Set(kOwnFile, "[Common]\r\nTCSectionsNotRedirectedByDefault=\r\n");
    Wincmd("[Configuration]\r\nAlternateUserIni=D:\\users\\anna.ini\r\nKey=main\r\n");
    EXPECT_EQ(Read("Configuration", "Key"), "default");
    EXPECT_EQ(Text(kOwnFile), "[Common]\r\nTCSectionsNotRedirectedByDefault=\r\n");
}

TEST_F(ProfileRedirection, ANewListOfExemptSectionsCountsFromTheNextStart) {
    Wincmd("[Configuration]\r\nAlternateUserIni=D:\\users\\anna.ini\r\n[Colors]\r\nKey=main\r\n");
    EXPECT_EQ(Read("Colors", "Key"), "default");
    system.files.Set(kOwnFile, "[Common]\r\nTCSectionsNotRedirectedByDefault=Colors\r\n");
    EXPECT_EQ(Read("Colors", "Key"), "default");
    cProfile next(system.services, common);
    EXPECT_EQ(next.ReadValue("Colors", "Key", "default", kWincmd), "main");
}

}  // namespace
}  // namespace ordalyn
