#include "hostconfig/SettingsPlace.h"

#include <gmock/gmock.h>

#include "base/Errors.h"
#include "hostconfig/mAppCommon.h"
#include "support/platform/MemoryPlatform.h"

namespace ordalyn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kBesideProgram = "C:\\Program Files\\Ordalyn\\Ordalyn.ini";
constexpr std::string_view kProgramFolder = "C:\\Program Files\\Ordalyn\\";
constexpr std::string_view kUserFolder = "C:\\Users\\me\\AppData\\Roaming";
constexpr std::string_view kUserFile = "C:\\Users\\me\\AppData\\Roaming\\Ordalyn\\Ordalyn.ini";

class SettingsPlace : public testing::Test {
  protected:
    SettingsPlace() {
        system.files.AddFolder(kProgramFolder);
        system.files.AddFolder(kUserFolder);
    }
    std::string Place() { return PlaceOfSettings(system.services, kProgramFolder); }
    bool UserFileIsThere() { return system.files.Get(kUserFile).has_value(); }

    test::MemoryPlatform system;
};

TEST_F(SettingsPlace, IsTheProgramsFolderWhereItCanBeWritten) {
    EXPECT_EQ(Place(), kBesideProgram);
    EXPECT_THAT(system.files.List(kProgramFolder, "*"), IsEmpty());
    system.files.Set(kBesideProgram, "[Ordalyn]\r\n");
    // What an earlier run has kept elsewhere does not count any more.
    system.files.Set(kUserFile, "[Common]\r\n");
    EXPECT_EQ(Place(), kBesideProgram);
    EXPECT_EQ(system.files.Get(kBesideProgram), "[Ordalyn]\r\n");
    EXPECT_EQ(system.files.Get(kUserFile), "[Common]\r\n");
}

TEST_F(SettingsPlace, MakesNothingElsewhereWhereTheProgramsFolderWillDo) {
    Place();
    EXPECT_FALSE(system.files.Exists("C:\\Users\\me\\AppData\\Roaming\\Ordalyn"));
}

TEST_F(SettingsPlace, IsTheUsersFolderWhenTheProgramsIsProtected) {
    system.files.ProtectFolder(kProgramFolder);
    EXPECT_EQ(Place(), kUserFile);
    // The program makes the file with the first entry that it writes.
    EXPECT_FALSE(UserFileIsThere());
    EXPECT_TRUE(system.files.CanWrite(kUserFile));
}

TEST_F(SettingsPlace, IsTheUsersFolderWhenTheFileIsProtected) {
    system.files.FailWriting(kBesideProgram);
    EXPECT_EQ(Place(), kUserFile);
}

TEST_F(SettingsPlace, IsTheUsersFolderWhenAFolderHasTheFilesName) {
    system.files.AddFolder(kBesideProgram);
    EXPECT_EQ(Place(), kUserFile);
    EXPECT_FALSE(UserFileIsThere());
}

TEST_F(SettingsPlace, StaysWhenAnotherProgramHoldsTheFile) {
    system.files.Lock(kBesideProgram);
    EXPECT_EQ(Place(), kBesideProgram);
}

TEST_F(SettingsPlace, BeginsWithTheBytesOfTheProgramsFile) {
    const std::string bytes("\xEF\xBB\xBF[Ordalyn]\r\n\0\xFF", 16);
    system.files.Set(kBesideProgram, bytes);
    system.files.ProtectFolder(kProgramFolder);
    EXPECT_EQ(Place(), kUserFile);
    EXPECT_EQ(system.files.Get(kUserFile), bytes);
    EXPECT_EQ(system.files.Get(kBesideProgram), bytes);
}

TEST_F(SettingsPlace, CopiesTheProgramsFileOnce) {
    system.files.Set(kBesideProgram, "[Ordalyn]\r\nTwoPanels=1\r\n");
    system.files.ProtectFolder(kProgramFolder);
    Place();
    system.files.Set(kUserFile, "[Ordalyn]\r\nTwoPanels=0\r\n");
    EXPECT_EQ(Place(), kUserFile);
    EXPECT_EQ(system.files.Get(kUserFile), "[Ordalyn]\r\nTwoPanels=0\r\n");
}

TEST_F(SettingsPlace, AnEmptyFileOfTheUsersIsOne) {
    system.files.Set(kBesideProgram, "[Ordalyn]\r\n");
    system.files.Set(kUserFile, "");
    system.files.ProtectFolder(kProgramFolder);
    EXPECT_EQ(Place(), kUserFile);
    EXPECT_EQ(system.files.Get(kUserFile), "");
}

TEST_F(SettingsPlace, AUsersFileThatAnotherProgramHoldsIsOne) {
    system.files.Lock(kUserFile);
    system.files.ProtectFolder(kProgramFolder);
    EXPECT_EQ(Place(), kUserFile);
}

TEST_F(SettingsPlace, TheUsersFolderIsTheVariableWhenItIsSet) {
    system.files.AddFolder("D:\\Roaming");
    system.environment.SetVariable("APPDATA", "D:\\Roaming");
    system.files.ProtectFolder(kProgramFolder);
    EXPECT_EQ(Place(), "D:\\Roaming\\Ordalyn\\Ordalyn.ini");
}

TEST_F(SettingsPlace, StaysWhenTheUsersFolderCannotBeWrittenEither) {
    system.files.Set(kBesideProgram, "[Ordalyn]\r\n");
    system.files.ProtectFolder(kProgramFolder);
    system.files.ProtectFolder(kUserFolder);
    EXPECT_EQ(Place(), kBesideProgram);
    EXPECT_FALSE(UserFileIsThere());
}

TEST_F(SettingsPlace, StaysWhenTheUsersFileCannotBeWrittenEither) {
    system.files.ProtectFolder(kProgramFolder);
    system.files.FailWriting(kUserFile);
    EXPECT_EQ(Place(), kBesideProgram);
    system.files.Delete(kUserFile);
    system.files.AddFolder(kUserFile);
    EXPECT_EQ(Place(), kBesideProgram);
}

TEST_F(SettingsPlace, StaysWhenThereIsNoUsersFolder) {
    system.files.ProtectFolder(kProgramFolder);
    system.environment.specialFolders.clear();
    EXPECT_EQ(Place(), kBesideProgram);
    system.environment.SetVariable("APPDATA", "D:\\gone");
    EXPECT_EQ(Place(), kBesideProgram);
}

// Settings that could not be copied now would be lost for good: the next run would find a file.
TEST_F(SettingsPlace, StaysWhileTheProgramsFileCannotBeReadToBeCopied) {
    system.files.Set(kBesideProgram, "[Ordalyn]\r\n");
    system.files.ProtectFolder(kProgramFolder);
    system.files.Lock(kBesideProgram);
    EXPECT_EQ(Place(), kBesideProgram);
    EXPECT_FALSE(UserFileIsThere());
    system.files.Lock(kBesideProgram, false);
    system.files.FailReadingAfter(kBesideProgram, 3);
    EXPECT_EQ(Place(), kBesideProgram);
    EXPECT_FALSE(UserFileIsThere());
    system.files.Set(kBesideProgram, "[Ordalyn]\r\n");
    EXPECT_EQ(Place(), kUserFile);
    EXPECT_EQ(system.files.Get(kUserFile), "[Ordalyn]\r\n");
}

TEST_F(SettingsPlace, StaysWhenTheCopyCannotBeMade) {
    test::MemoryFiles full;
    full.roomOnDisk = 0;
    full.AddFolder(kUserFolder);
    full.Set(kBesideProgram, "[Ordalyn]\r\n");
    full.ProtectFolder(kProgramFolder);
    const platform::Services services = {
        system.ansiProfile, system.unicodeProfile, system.codePages, full,
        system.environment, system.locale,         system.shell,     system.clipboard,
        system.registry,    system.dialogs};
    EXPECT_EQ(PlaceOfSettings(services, kProgramFolder), kBesideProgram);
    EXPECT_FALSE(full.Get(kUserFile).has_value());
}

TEST_F(SettingsPlace, TheProgramsFolderStaysThePrefixesWhereverTheSettingsAre) {
    system.environment.programPath = "C:\\Program Files\\Ordalyn\\Ordalyn.exe";
    system.files.ProtectFolder(kProgramFolder);
    const mAppCommon common(system.services);
    EXPECT_EQ(common.SettingsFile(), kUserFile);
    EXPECT_EQ(common.ProgramFolder(), kProgramFolder);
    EXPECT_EQ(common.ExpandPath("velmordane:\\x.lng"), "C:\\Program Files\\Ordalyn\\x.lng");
    EXPECT_EQ(common.UnExpandPath("C:\\Program Files\\Ordalyn\\x.lng"), "velmordane:\\x.lng");
}

}  // namespace
}  // namespace ordalyn
