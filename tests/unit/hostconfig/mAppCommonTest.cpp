#include "hostconfig/mAppCommon.h"

#include <gtest/gtest.h>

#include "base/Errors.h"
#include "support/platform/MemoryPlatform.h"

namespace ordalyn {
namespace {

// A program inside the file manager's folder, unless a test says otherwise.
class PathHelpers : public testing::Test {
  protected:
    PathHelpers() { system.environment.programPath = "C:\\tc\\Tools\\Ordalyn.exe"; }
    test::MemoryPlatform system;
};

TEST(mAppCommon, TheProgramFolderEndsInABackslash) {
    test::MemoryPlatform system;
    system.environment.programPath = "D:\\Apps\\Viewer\\Ordalyn.exe";
    EXPECT_EQ(mAppCommon(system.services).ProgramFolder(), "D:\\Apps\\Viewer\\");
}

TEST(mAppCommon, TheSettingsFileLiesInTheProgramFolder) {
    test::MemoryPlatform system;
    system.environment.programPath = "D:\\Apps\\Viewer\\Renamed.exe";
    EXPECT_EQ(mAppCommon(system.services).SettingsFile(), "D:\\Apps\\Viewer\\Ordalyn.ini");
}

TEST(mAppCommon, TheMarkerHoldsTheStartTimeWithTwoDigitsEach) {
    test::MemoryPlatform system;
    system.environment.now = {2026, 11, 16, 0, 5, 3};
    EXPECT_EQ(mAppCommon(system.services).NoValueMarker(), "vxz20261116000503zxv");
    system.environment.now = {2024, 1, 2, 13, 45, 59};
    EXPECT_EQ(mAppCommon(system.services).NoValueMarker(), "vxz20240102134559zxv");
}

TEST(mAppCommon, TheMarkerIsFixedAtTheStart) {
    test::MemoryPlatform system;
    const mAppCommon common(system.services);
    system.environment.now = {2030, 1, 1, 1, 1, 1};
    EXPECT_EQ(common.NoValueMarker(), "vxz20261116000503zxv");
}

TEST(mAppCommon, TheMarkerIsRecognisedInAnyLetterCase) {
    test::MemoryPlatform system;
    const mAppCommon common(system.services);
    EXPECT_TRUE(common.IsNoValue("VXZ20261116000503Zxv"));
    EXPECT_FALSE(common.IsNoValue("vxz20261116000504zxv"));
    EXPECT_FALSE(common.IsNoValue(""));
    EXPECT_FALSE(common.IsNoValue(" vxz20261116000503zxv"));
}

TEST(mAppCommon, TheFileManagersFolderIsTheMarkerUntilItIsKnown) {
    test::MemoryPlatform system;
    mAppCommon common(system.services);
    EXPECT_EQ(common.CommanderFolder(), common.NoValueMarker());
    common.SetCommanderFolder("C:\\tc\\");
    EXPECT_EQ(common.CommanderFolder(), "C:\\tc\\");
}

TEST(mAppCommon, BothFoldersAreUnExpandedByDefault) {
    test::MemoryPlatform system;
    EXPECT_EQ(mAppCommon(system.services).UnExpandPaths(), 3);
}

TEST_F(PathHelpers, ThePrefixBecomesTheProgramFolder) {
    const mAppCommon common(system.services);
    EXPECT_EQ(common.ExpandPath("velmordane:\\lang\\x.lng"), "C:\\tc\\Tools\\lang\\x.lng");
    EXPECT_EQ(common.ExpandPath("velmordane:\\"), "C:\\tc\\Tools\\");
}

TEST_F(PathHelpers, ThePrefixCountsInAnyLetterCase) {
    const mAppCommon common(system.services);
    EXPECT_EQ(common.ExpandPath("VELMORDANE:\\Lang\\x.lng"), "C:\\tc\\Tools\\Lang\\x.lng");
    EXPECT_EQ(common.ExpandPath("vElMoRdAnE:\\x"), "C:\\tc\\Tools\\x");
}

TEST_F(PathHelpers, ThePrefixCountsOnlyWholeAndAtTheStart) {
    const mAppCommon common(system.services);
    EXPECT_EQ(common.ExpandPath("velmordane:"), "velmordane:");
    EXPECT_EQ(common.ExpandPath("velmordane:/x"), "velmordane:/x");
    EXPECT_EQ(common.ExpandPath("\\velmordane:\\x"), "\\velmordane:\\x");
}

TEST_F(PathHelpers, BehindThePrefixVariablesStayAsWritten) {
    system.environment.SetVariable("TEMP", "C:\\Temp");
    const mAppCommon common(system.services);
    EXPECT_EQ(common.ExpandPath("velmordane:\\%TEMP%"), "C:\\tc\\Tools\\%TEMP%");
}

TEST_F(PathHelpers, DefinedVariablesAreReplacedAndUndefinedOnesStay) {
    system.environment.SetVariable("TEMP", "C:\\Temp");
    const mAppCommon common(system.services);
    EXPECT_EQ(common.ExpandPath("%temp%\\%Nothing%\\tc.log"), "C:\\Temp\\%Nothing%\\tc.log");
    EXPECT_EQ(common.ExpandPath("C:\\100%.log"), "C:\\100%.log");
}

TEST_F(PathHelpers, TheFileManagersOwnVariablesAreTheSystemsFolders) {
    system.environment.SetVariable("Sub", "logs");
    system.environment.SetVariable("TEMP", "C:\\Temp");
    const mAppCommon common(system.services);
    EXPECT_EQ(common.ExpandPath("%$PERSONAL%\\tc.log"), "C:\\Users\\me\\Documents\\tc.log");
    EXPECT_EQ(common.ExpandPath("%$local_AppData%\\%SUB%\\tc.log"),
              "C:\\Users\\me\\AppData\\Local\\logs\\tc.log");
    EXPECT_EQ(common.ExpandPath("%Sub%;%$COMMON_APPDATA%;%$DESKTOP%;%Sub%"),
              "logs;C:\\ProgramData;C:\\Users\\me\\Desktop;logs");
    EXPECT_EQ(common.ExpandPath("%$NOTHING%\\%$%\\x"), "%$NOTHING%\\%$%\\x");
    // Percent signs belong together from the left.
    EXPECT_EQ(common.ExpandPath("%TEMP%$PERSONAL%"), "C:\\Temp$PERSONAL%");
    EXPECT_EQ(common.ExpandPath("%PERSONAL%"), "%PERSONAL%");
    EXPECT_EQ(common.ExpandPath("%$PERSONAL"), "%$PERSONAL");
}

TEST_F(PathHelpers, WhatIsInAFoldersNameIsNotExpandedAgain) {
    system.environment.SetVariable("Sub", "logs");
    system.environment.specialFolders["PERSONAL"] = "C:\\%Sub%";
    const mAppCommon common(system.services);
    EXPECT_EQ(common.ExpandPath("%$PERSONAL%\\%Sub%"), "C:\\%Sub%\\logs");
}

TEST_F(PathHelpers, ExpansionRemovesEveryNul) {
    const mAppCommon common(system.services);
    EXPECT_EQ(common.ExpandPath(std::string("\0C:\\a\0b\0", 7)), "C:\\ab");
}

TEST_F(PathHelpers, TheMarkerSurvivesExpansion) {
    const mAppCommon common(system.services);
    EXPECT_EQ(common.ExpandPath(common.NoValueMarker()), common.NoValueMarker());
}

TEST_F(PathHelpers, AnEmptyPathStaysEmpty) {
    mAppCommon common(system.services);
    EXPECT_EQ(common.ExpandPath(""), "");
    EXPECT_EQ(common.UnExpandPath(""), "");
    common.SetCommanderFolder("");
    EXPECT_EQ(common.UnExpandPath(""), "");
}

TEST_F(PathHelpers, AProgramInsideTheFileManagersFolderGetsItsOwnPrefix) {
    mAppCommon common(system.services);
    common.SetCommanderFolder("C:\\tc\\");
    common.SetUnExpandPaths(3);
    EXPECT_EQ(common.UnExpandPath("C:\\tc\\Tools\\lang\\x.lng"), "velmordane:\\lang\\x.lng");
}

TEST_F(PathHelpers, WithTheSecondBitAloneTheFileManagersFolderIsReplaced) {
    mAppCommon common(system.services);
    common.SetCommanderFolder("C:\\tc\\");
    common.SetUnExpandPaths(2);
    EXPECT_EQ(common.UnExpandPath("C:\\tc\\Tools\\lang\\x.lng"),
              "%Commander_Path%\\Tools\\lang\\x.lng");
}

TEST_F(PathHelpers, WithTheSecondBitAloneAPathOutsideTheFileManagersFolderStays) {
    system.environment.programPath = "D:\\Viewer\\Ordalyn.exe";
    mAppCommon common(system.services);
    common.SetCommanderFolder("C:\\tc\\");
    common.SetUnExpandPaths(2);
    EXPECT_EQ(common.UnExpandPath("D:\\Viewer\\x.lng"), "D:\\Viewer\\x.lng");
}

TEST_F(PathHelpers, WithTheFirstBitAloneTheFileManagersFolderStays) {
    mAppCommon common(system.services);
    common.SetCommanderFolder("C:\\tc\\");
    common.SetUnExpandPaths(1);
    EXPECT_EQ(common.UnExpandPath("C:\\tc\\wincmd.ini"), "C:\\tc\\wincmd.ini");
    EXPECT_EQ(common.UnExpandPath("C:\\tc\\Tools\\x"), "velmordane:\\x");
}

TEST_F(PathHelpers, WithoutBitsEveryPathStays) {
    mAppCommon common(system.services);
    common.SetCommanderFolder("C:\\tc\\");
    common.SetUnExpandPaths(0);
    EXPECT_EQ(common.UnExpandPath("C:\\tc\\Tools\\x"), "C:\\tc\\Tools\\x");
}

TEST_F(PathHelpers, FoldersAreRecognisedInAnyLetterCase) {
    mAppCommon common(system.services);
    common.SetCommanderFolder("C:\\tc\\");
    EXPECT_EQ(common.UnExpandPath("c:\\TC\\TOOLS\\X.lng"), "velmordane:\\X.lng");
    EXPECT_EQ(common.UnExpandPath("c:\\TC\\wincmd.ini"), "%Commander_Path%\\wincmd.ini");
}

// The Kelvin sign is a "k" of three bytes.
TEST_F(PathHelpers, AFolderInAnotherCaseMayHaveAnotherLength) {
    system.environment.programPath = "C:\\kits\\Ordalyn.exe";
    const mAppCommon common(system.services);
    EXPECT_EQ(common.UnExpandPath("C:\\\xE2\x84\xAAits\\x.lng"), "velmordane:\\x.lng");
}

TEST_F(PathHelpers, AFolderWithTheSameBeginningIsNotTheFolder) {
    mAppCommon common(system.services);
    common.SetCommanderFolder("C:\\tc\\");
    EXPECT_EQ(common.UnExpandPath("C:\\tcmd\\x"), "C:\\tcmd\\x");
}

TEST_F(PathHelpers, AnUnknownFileManagersFolderReplacesNothing) {
    const mAppCommon common(system.services);
    EXPECT_EQ(common.UnExpandPath("C:\\tc\\wincmd.ini"), "C:\\tc\\wincmd.ini");
}

// An absent value must stay recognisable, or it would be written.
TEST_F(PathHelpers, TheMarkerSurvivesUnExpansionWhileTheFolderIsUnknown) {
    const mAppCommon common(system.services);
    EXPECT_EQ(common.UnExpandPath(common.NoValueMarker()), common.NoValueMarker());
}

TEST_F(PathHelpers, TheFileManagersFolderComesBackOnlyWithItsVariable) {
    const mAppCommon common(system.services);
    EXPECT_EQ(common.ExpandPath("%Commander_Path%\\x"), "%Commander_Path%\\x");
    system.environment.SetVariable("COMMANDER_PATH", "C:\\tc");
    EXPECT_EQ(common.ExpandPath("%Commander_Path%\\x"), "C:\\tc\\x");
}

TEST_F(PathHelpers, FilesFoldersAndMatchesExist) {
    system.files.Set("C:\\Logs\\tc.log", "");
    const mAppCommon common(system.services);
    EXPECT_TRUE(common.FileExists("C:\\Logs\\tc.log"));
    EXPECT_TRUE(common.FileExists("C:\\Logs"));
    EXPECT_TRUE(common.FileExists("C:\\Logs\\*.log"));
    EXPECT_FALSE(common.FileExists("C:\\Logs\\*.ini"));
    EXPECT_FALSE(common.FileExists("C:\\Logs\\other.log"));
}

TEST_F(PathHelpers, AnEmptyOrMalformedPathDoesNotExist) {
    const mAppCommon common(system.services);
    EXPECT_FALSE(common.FileExists(""));
    EXPECT_FALSE(common.FileExists("C:\\a\\:\\b"));
}

// Files that cannot even be asked for.
class BrokenFiles : public test::MemoryFiles {
  public:
    bool Exists(std::string_view path) override { throw FileError(std::string(path), 3); }
};

TEST_F(PathHelpers, AFailureToLookIsAnswerNo) {
    BrokenFiles broken;
    platform::Services services = {
        system.ansiProfile, system.unicodeProfile, system.codePages, broken,
        system.environment, system.locale,         system.shell,     system.clipboard,
        system.registry,    system.dialogs};
    EXPECT_FALSE(mAppCommon(services).FileExists("C:\\Logs\\tc.log"));
}

// An environment that cannot expand anything.
class BrokenEnvironment : public test::MemoryEnvironment {
  public:
    std::string Expand(std::string_view text) override { throw FileError(std::string(text), 8); }
};

TEST_F(PathHelpers, WhatCannotBeExpandedStaysAsWritten) {
    BrokenEnvironment broken;
    platform::Services services = {system.ansiProfile,
                                   system.unicodeProfile,
                                   system.codePages,
                                   system.files,
                                   broken,
                                   system.locale,
                                   system.shell,
                                   system.clipboard,
                                   system.registry,
                                   system.dialogs};
    EXPECT_EQ(mAppCommon(services).ExpandPath("%TEMP%\\x.log"), "%TEMP%\\x.log");
}

TEST(AddBackslash, AnEmptyTextBecomesABackslash) {
    EXPECT_EQ(mAppCommon::AddBackslash(""), "\\");
}

TEST(AddBackslash, ATextThatEndsInOneStays) {
    EXPECT_EQ(mAppCommon::AddBackslash("C:\\tc\\"), "C:\\tc\\");
    EXPECT_EQ(mAppCommon::AddBackslash("C:\\tc\\\\"), "C:\\tc\\\\");
}

TEST(AddBackslash, AnyOtherTextGetsOne) {
    EXPECT_EQ(mAppCommon::AddBackslash("C:\\tc"), "C:\\tc\\");
    EXPECT_EQ(mAppCommon::AddBackslash("C:/tc/"), "C:/tc/\\");
}

TEST(FolderPart, EndsWithTheLastBackslash) {
    EXPECT_EQ(mAppCommon::FolderPart("C:\\tc\\wincmd.ini"), "C:\\tc\\");
    EXPECT_EQ(mAppCommon::FolderPart("wincmd.ini"), "");
}

}  // namespace
}  // namespace ordalyn
