#include "platform/ShellTarget.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "base/Errors.h"
#include "platform/Platform.h"

namespace ordalyn::platform {
namespace {

TEST(ShellTarget, IsAHelpFileByItsFullPath) {
    for (const std::string path :
         {"C:\\Ordalyn\\Readme.chm", "C:\\R&D %1 (x)\\Readme Deutsch.old.CHM",
          "\\\\nas\\tools\\Ordalyn\\Readme.chm", "\\\\?\\C:\\Ordalyn\\Readme.chm"})
        EXPECT_EQ(ShellTarget::HelpFile(path).Text(), path);
}

TEST(ShellTarget, IsNothingElse) {
    for (const std::string path :
         {"", "Readme.chm", "\\Readme.chm", "C:Readme.chm", "C:\\Ordalyn\\Readme.exe",
          "C:\\Ordalyn\\chm", "C:\\Ordalyn.chm\\Readme", "C:\\Ordalyn\\Readme.chm.exe",
          "C:\\Ordalyn\\Readme.exe:Readme.chm", "C:\\Ordalyn\\Readme /../../evil.chm",
          "C:\\evil.exe\" \"C:\\Readme.chm", "C:\\Ordalyn\\Readme|x.chm", "C:\\Ordalyn\\*.chm",
          "C:\\Ordalyn\\Readme\n.chm", "https://www.ordalyn.example/Readme.chm",
          "file://C:\\Readme.chm", "ms-its:C:\\Readme.chm"})
        EXPECT_THROW(ShellTarget::HelpFile(path), InvalidPropertyValue) << path;
    EXPECT_THROW(ShellTarget::HelpFile(std::string("C:\\evil.exe\0.chm", 17)),
                 InvalidPropertyValue);
}

TEST(ShellTarget, IsAPageOfAHelpFile) {
    const ShellTarget target = ShellTarget::HelpPage("C:\\a b\\Readme Deutsch.chm", "history");
    EXPECT_EQ(target.What(), ShellTarget::Deed::ShowPage);
    EXPECT_EQ(target.Text(), "C:\\a b\\Readme Deutsch.chm");
    EXPECT_EQ(target.Arguments(), "history.html");
    for (const char* page : {"", "History", "a b", "a\" /x", "../a", "a.html", "a#b", "::a"})
        EXPECT_THROW(ShellTarget::HelpPage("C:\\Readme.chm", page), InvalidPropertyValue) << page;
    EXPECT_THROW(ShellTarget::HelpPage("C:\\a.exe", "find"), InvalidPropertyValue);
}

TEST(ShellTarget, IsTheFileManagerWithOnePathToShow) {
    const auto line = [](std::string_view program, std::string_view path) {
        const ShellTarget target = ShellTarget::FileManager(program, path);
        EXPECT_EQ(target.Text(), program);
        EXPECT_EQ(target.What(), ShellTarget::Deed::Open);
        return target.Arguments();
    };
    EXPECT_EQ(line("C:\\totalcmd\\TOTALCMD64.EXE", "C:\\a b\\c.txt"),
              "/O /A /S /L=\"C:\\a b\\c.txt\"");
    EXPECT_EQ(line("\\\\nas\\tc\\totalcmd.exe", "\\\\nas\\share\\x -N.txt"),
              "/O /A /S /L=\"\\\\nas\\share\\x -N.txt\"");
    EXPECT_EQ(line("C:\\t c\\TotalCmd.exe", "\\\\\\FTP\\host/x"),
              "/O /A /S /L=\"\\\\\\FTP\\host/x\"");
}

// Whatever a program takes a backslash before a quotation mark for, the path ends where it ends.
TEST(ShellTarget, NoBackslashStandsBeforeTheClosingQuotationMark) {
    const auto place = [](std::string_view path) {
        return ShellTarget::FileManager("C:\\tc\\TOTALCMD.EXE", path).Arguments().substr(9);
    };
    EXPECT_EQ(place("C:\\a b\\"), "/L=\"C:\\a b\"");
    EXPECT_EQ(place("C:\\a b\\\\"), "/L=\"C:\\a b\"");
    EXPECT_EQ(place("C:\\"), "/L=C:\\");
    EXPECT_EQ(place("\\\\nas\\"), "/L=\"\\\\nas\"");
    EXPECT_EQ(place("\\\\\\"), "/L=\\\\\\");
}

TEST(ShellTarget, IsNoOtherProgram) {
    for (const char* program :
         {"", "TOTALCMD.EXE", "\\TOTALCMD.EXE", "C:\\tc\\cmd.exe", "C:\\tc\\TOTALCMD.EXE.bat",
          "C:\\tc\\TOTALCMD.EXE\\x.exe", "C:\\x.exe /a TOTALCMD.EXE", "C:\\tc\\TOTALCMD64",
          "C:\\a\" \"\\TOTALCMD.EXE", "https://x\\TOTALCMD.EXE", "C:\\x:\\TOTALCMD.EXE",
          "C:\\tc\\XTOTALCMD.EXE"})
        EXPECT_THROW(ShellTarget::FileManager(program, "C:\\a.txt"), InvalidPropertyValue)
            << program;
}

TEST(ShellTarget, NoPathBecomesAnotherArgument) {
    for (const char* path :
         {"", "a.txt", "\\a.txt", "C:a.txt", "C:\\a\" /R=\"C:\\b", "C:\\a\"", "C:\\a\n/x", "C:/a",
          "\\\\\\FTP\\a\" /x", "\\\\?\\C:\\a", "C:\\a*.txt"})
        EXPECT_THROW(ShellTarget::FileManager("C:\\tc\\TOTALCMD.EXE", path), InvalidPropertyValue)
            << path;
}

TEST(ShellTarget, IsAnItemThatIsSelectedAndNotOpened) {
    for (const std::string path : {"C:\\a b\\evil.exe", "\\\\nas\\share\\a.txt", "C:\\"}) {
        const ShellTarget target = ShellTarget::Selected(path);
        EXPECT_EQ(target.What(), ShellTarget::Deed::Select);
        EXPECT_EQ(target.Text(), path);
        EXPECT_EQ(target.Arguments(), "");
    }
    EXPECT_EQ(ShellTarget::Selected("C:\\a\\").Text(), "C:\\a");
    for (const char* path : {"", "a.txt", "\\\\\\FTP\\a", "shell:startup", "::{20D04FE0}",
                             "C:\\a\"b", "C:\\a?b", "https://x", "\\\\.\\C:"})
        EXPECT_THROW(ShellTarget::Selected(path), InvalidPropertyValue) << path;
}

// That an address is known when the program is built is the compiler's to hold.
TEST(ShellTarget, IsAnAddressOfTheProgramsOwn) {
    EXPECT_EQ(ShellTarget::Page(ShellTarget::Address("https://www.ordalyn.example/")).Text(),
              "https://www.ordalyn.example/");
}

TEST(ShellTarget, IsNotMadeOfAnyText) {
    EXPECT_FALSE((std::is_convertible_v<std::string, ShellTarget>));
    EXPECT_FALSE((std::is_constructible_v<ShellTarget, std::string_view>));
    EXPECT_FALSE((std::is_invocable_v<decltype(&Shell::Open), Shell&, WindowHandle, std::string>));
}

}  // namespace
}  // namespace ordalyn::platform
