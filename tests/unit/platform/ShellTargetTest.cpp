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
