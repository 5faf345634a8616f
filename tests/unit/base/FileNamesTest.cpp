#include "base/FileNames.h"

#include <gtest/gtest.h>

namespace ordalyn {
namespace {

TEST(FileNames, NameIsBehindTheLastBackslash) {
    EXPECT_EQ(GetFileName("C:\\logs\\x.log"), "x.log");
    EXPECT_EQ(GetFileName("x.log"), "x.log");
    EXPECT_EQ(GetFileName("C:\\logs\\"), "");
    EXPECT_EQ(GetFileName("C:/logs/x.log"), "C:/logs/x.log");
    EXPECT_EQ(GetFileName(""), "");
}

TEST(FileNames, PathIncludesTheLastBackslash) {
    EXPECT_EQ(GetFilePath("C:\\logs\\x.log"), "C:\\logs\\");
    EXPECT_EQ(GetFilePath("x.log"), "");
    EXPECT_EQ(GetFilePath("\\x.log"), "\\");
    EXPECT_EQ(GetFilePath(""), "");
}

TEST(FileNames, BaseNameIsBeforeTheLastDot) {
    EXPECT_EQ(GetFileBaseName("x.log"), "x");
    EXPECT_EQ(GetFileBaseName("x.1.log"), "x.1");
    EXPECT_EQ(GetFileBaseName("x"), "x");
    EXPECT_EQ(GetFileBaseName(".log"), "");
    EXPECT_EQ(GetFileBaseName(""), "");
}

TEST(FileNames, ExtensionIsBehindTheLastDot) {
    EXPECT_EQ(GetFileExtension("x.log"), "log");
    EXPECT_EQ(GetFileExtension("x.1.log"), "log");
    EXPECT_EQ(GetFileExtension("x"), "");
    EXPECT_EQ(GetFileExtension("x."), "");
    EXPECT_EQ(GetFileExtension(""), "");
}

TEST(FileNames, APathIsKnownByItsBeginning) {
    for (const char* path : {"C:\\", "c:\\a.txt", "Z:\\a b\\c"})
        EXPECT_EQ(FormOfPath(path), PathForm::Drive) << path;
    for (const char* path : {"\\\\nas", "\\\\nas\\share\\a.txt"})
        EXPECT_EQ(FormOfPath(path), PathForm::Network) << path;
    for (const char* path : {"\\\\\\", "\\\\\\FTP\\host\\a.txt"})
        EXPECT_EQ(FormOfPath(path), PathForm::Plugin) << path;
    for (const char* path : {"", "a.txt", "C:", "C:a.txt", "\\a.txt", "1:\\a", "CC:\\a", "\\\\",
                             "\\\\?\\C:\\a", "\\\\.\\pipe\\a", "C:/a", "https://x"})
        EXPECT_EQ(FormOfPath(path), PathForm::None) << path;
}

TEST(FileNames, SignsThatNoPathHasAreForeign) {
    for (const char* path : {"C:\\a.txt", "C:\\R&D 100% (x) 'y' ^z\\\xC3\xBC", "\\\\nas\\a - b;c",
                             "\\\\\\FTP\\host:21\\a?b*c|d<e>/f"})
        EXPECT_FALSE(HasForeignSign(path)) << path;
    for (const char* path :
         {"C:\\a\"b", "C:\\a<", "C:\\a>", "C:\\a|b", "C:\\a*", "C:\\a?", "C:\\a/b", "C:\\a:b",
          "C:\\a\nb", "\\\\nas\\a\"b", "\\\\\\FTP\\a\"b", "\\\\\\FTP\\a\tb"})
        EXPECT_TRUE(HasForeignSign(path)) << path;
}

TEST(FileNames, OnlyTheRootOfADriveEndsInABackslash) {
    EXPECT_EQ(WithoutEndingBackslash("C:\\a\\"), "C:\\a");
    EXPECT_EQ(WithoutEndingBackslash("C:\\a\\\\"), "C:\\a");
    EXPECT_EQ(WithoutEndingBackslash("C:\\a"), "C:\\a");
    EXPECT_EQ(WithoutEndingBackslash("C:\\"), "C:\\");
    EXPECT_EQ(WithoutEndingBackslash("\\\\nas\\"), "\\\\nas");
    EXPECT_EQ(WithoutEndingBackslash("\\\\\\"), "");
}

}  // namespace
}  // namespace ordalyn
