#include "base/Errors.h"

#include <gtest/gtest.h>

namespace ordalyn {
namespace {

TEST(Errors, EachSaysWhatHappened) {
    EXPECT_STREQ(SubscriptOutOfRange().what(), "Subscript out of range");
    EXPECT_STREQ(TypeMismatch().what(), "Type mismatch");
    EXPECT_STREQ(Overflow().what(), "Overflow");
    EXPECT_STREQ(InvalidPropertyValue("size of cmdOk").what(),
                 "Invalid property value: size of cmdOk");
    EXPECT_STREQ(MalformedText("no section").what(), "no section");
}

TEST(Errors, AFileErrorNamesTheFileAndTheNumber) {
    const FileError error("C:\\a.txt", 32);
    EXPECT_EQ(error.Path(), "C:\\a.txt");
    EXPECT_EQ(error.Code(), 32U);
    EXPECT_STREQ(error.what(), "Cannot access file C:\\a.txt (error 32)");
}

}  // namespace
}  // namespace ordalyn
