#include "hostconfig/CommanderProgram.h"

#include <gtest/gtest.h>

#include "support/platform/MemoryPlatform.h"

namespace ordalyn {
namespace {

class CommanderProgram : public testing::Test {
  protected:
    CommanderProgram() {
        system.environment.SetVariable("PROCESSOR_ARCHITECTURE", "AMD64");
        common.SetCommanderFolder("C:\\tc\\");
    }
    std::string Find() { return FindCommanderProgram(common, system.services); }

    test::MemoryPlatform system;
    mAppCommon common{system.services};
};

TEST_F(CommanderProgram, IsTheOneOf64BitsWhereTheSystemRunsIt) {
    system.files.Set("C:\\tc\\totalcmd.exe", "");
    system.files.Set("C:\\tc\\totalcmd64.exe", "");
    EXPECT_EQ(Find(), "C:\\tc\\TOTALCMD64.EXE");
    // A process of 32 bits is told of the system beside its own kind.
    system.environment.SetVariable("PROCESSOR_ARCHITECTURE", "x86");
    EXPECT_EQ(Find(), "C:\\tc\\TOTALCMD.EXE");
    system.environment.SetVariable("PROCESSOR_ARCHITEW6432", "AMD64");
    EXPECT_EQ(Find(), "C:\\tc\\TOTALCMD64.EXE");
}

TEST_F(CommanderProgram, IsTheOneThatIsThere) {
    EXPECT_EQ(Find(), "");
    system.files.Set("C:\\tc\\TOTALCMD.EXE", "");
    EXPECT_EQ(Find(), "C:\\tc\\TOTALCMD.EXE");
    system.files.Delete("C:\\tc\\TOTALCMD.EXE");
    system.files.Set("C:\\tc\\TOTALCMD64.EXE", "");
    EXPECT_EQ(Find(), "C:\\tc\\TOTALCMD64.EXE");
    system.environment.SetVariable("PROCESSOR_ARCHITECTURE", "x86");
    EXPECT_EQ(Find(), "");
}

TEST_F(CommanderProgram, LiesInAFolderThatWasFound) {
    system.files.Set("C:\\tc\\TOTALCMD.EXE", "");
    for (const char* folder : {"C:\\tc", "%TC%"}) {
        system.environment.SetVariable("TC", "C:\\tc\\");
        common.SetCommanderFolder(folder);
        EXPECT_EQ(Find(), "C:\\tc\\TOTALCMD.EXE") << folder;
    }
    common.SetCommanderFolder(common.NoValueMarker());
    EXPECT_EQ(Find(), "");
    common.SetCommanderFolder("");
    EXPECT_EQ(Find(), "");
}

// Such a folder is whatever the current one makes of it.
TEST_F(CommanderProgram, IsNotTakenFromAFolderThatIsNotAllOfItsWay) {
    system.files.SetCurrentFolder("C:\\tc");
    system.files.Set("C:\\tc\\TOTALCMD.EXE", "");
    system.files.Set("C:\\TOTALCMD.EXE", "");
    for (const char* folder : {".\\", "\\", "C:\\t/c", "%NONE%\\"}) {
        common.SetCommanderFolder(folder);
        EXPECT_EQ(Find(), "") << folder;
    }
}

}  // namespace
}  // namespace ordalyn
