// The whole program with settings in the user's folder.
#include "app/Program.h"

#include "support/windows/ProgramWindow.h"

namespace ordalyn {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

constexpr std::string_view kProgramFolder = "C:\\Ordalyn";
constexpr std::string_view kBesideProgram = "C:\\Ordalyn\\Ordalyn.ini";
constexpr std::string_view kUserFile = "C:\\Users\\me\\AppData\\Roaming\\Ordalyn\\Ordalyn.ini";

class ProtectedProgram : public test::ProgramWindow {
  protected:
    ProtectedProgram() {
        system.files.AddFolder("C:\\Users\\me\\AppData\\Roaming");
        system.files.ProtectFolder(kProgramFolder);
    }
    bool TwoPanels() { return Main().Menu("mnuViewTwoPanels").Checked(); }
    void Close() {
        Main().UserClosed();
        program.reset();
    }
};

TEST_F(ProtectedProgram, KeepsAllThatItKeepsWithTheUser) {
    // The file manager is found by its registry entry; where it was found is kept, too.
    system.environment.RemoveVariable("Commander_Path");
    system.environment.RemoveVariable("Commander_INI");
    system.files.Set("C:\\tc\\totalcmd.exe", "");
    system.registry.Set(0x80000001U, "Software\\Ghisler\\Total Commander", "InstallDir",
                        {1, std::string("C:\\tc\0", 6)});
    system.registry.Set(0x80000001U, "Software\\Ghisler\\Total Commander", "IniFileName",
                        {1, std::string("C:\\tc\\wincmd.ini\0", 17)});
    SetLog("C:\\logs\\other.log", {"05.03.2024 10:00:00: Copy x -> y"});
    Start();
    Main().FilesDropped.Raise({"C:\\logs\\other.log"});
    Close();
    const std::string kept = system.files.Get(kUserFile).value_or("");
    EXPECT_THAT(kept, HasSubstr("MainPosition="));
    EXPECT_THAT(kept, HasSubstr("TCSectionsNotRedirectedByDefault="));
    EXPECT_THAT(kept, HasSubstr("RecentFiles1=C:\\logs\\other.log"));
    EXPECT_THAT(kept, HasSubstr("TCInstallDir="));
    EXPECT_THAT(system.files.List(kProgramFolder, "*"), IsEmpty());
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(ProtectedProgram, GoesOnWithItsOwnSettings) {
    SetSettings("TwoPanels=0");
    const auto old = system.files.Get(kBesideProgram);
    Start();
    EXPECT_FALSE(TwoPanels());
    Choose("mnuViewTwoPanels");
    Close();
    EXPECT_THAT(system.files.Get(kUserFile).value_or(""), StartsWith("[Ordalyn]\r\nTwoPanels=1"));
    EXPECT_EQ(system.files.Get(kBesideProgram), old);
    Start();
    EXPECT_TRUE(TwoPanels());
}

TEST_F(ProtectedProgram, WithoutAPlaceToWriteReadsItsSettingsAndIsUsable) {
    SetSettings("TwoPanels=0");
    const auto old = system.files.Get(kBesideProgram);
    system.files.ProtectFolder("C:\\Users\\me\\AppData\\Roaming");
    Start();
    EXPECT_FALSE(TwoPanels());
    EXPECT_EQ(Source().RowCount(), 1);
    Choose("mnuViewTwoPanels");
    EXPECT_THAT(tools.messages, IsEmpty());
    Close();
    EXPECT_EQ(system.files.Get(kBesideProgram), old);
    EXPECT_EQ(system.files.Get(kUserFile), std::nullopt);
    ASSERT_THAT(tools.messages, SizeIs(1));
    EXPECT_THAT(tools.messages[0].text, HasSubstr(kBesideProgram));
}

}  // namespace
}  // namespace ordalyn
