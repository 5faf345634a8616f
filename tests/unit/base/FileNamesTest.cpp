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

}  // namespace
}  // namespace ordalyn
