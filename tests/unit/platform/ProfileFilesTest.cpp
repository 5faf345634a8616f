// How often INI files are opened, and when they are opened again.
#include "platform/ProfileFiles.h"

#include <gtest/gtest.h>

#include <utility>

#include "support/platform/MemoryPlatform.h"

namespace ordalyn::platform {

namespace {

class ProfileFilesTest : public testing::Test {
  protected:
    static constexpr const char* kFile = "C:\\tc\\a.ini";

    ProfileFilesTest() {
        system_.files.onOpen = [this](const std::string&) { ++opened_; };
        system_.files.Set(kFile, "one");
    }
    std::string Bytes() { return files_.At(kFile).onDisk; }
    // How often it has been opened since it was asked last.
    int Opened() { return std::exchange(opened_, 0); }

    test::MemoryPlatform system_;
    ProfileFiles files_{system_.files};
    int opened_ = 0;
};

}  // namespace

TEST_F(ProfileFilesTest, AFileIsOpenedOnce) {
    for (int use = 0; use < 100; ++use)
        EXPECT_EQ(Bytes(), "one");
    EXPECT_EQ(files_.Newest(kFile).onDisk, "one");
    EXPECT_EQ(Opened(), 1);
}

TEST_F(ProfileFilesTest, AChangeFromOutsideIsSeenAtTheNextUse) {
    EXPECT_EQ(Bytes(), "one");
    system_.files.Set(kFile, "two");
    EXPECT_EQ(Bytes(), "two");
    system_.files.Append(kFile, "!");
    EXPECT_EQ(Bytes(), "two!");
    system_.files.Delete(kFile);
    EXPECT_EQ(Bytes(), "");
    EXPECT_FALSE(files_.At(kFile).readable);
    system_.files.Set(kFile, "three");
    EXPECT_EQ(Bytes(), "three");
}

TEST_F(ProfileFilesTest, DuringALookItStaysAsItIs) {
    EXPECT_EQ(Bytes(), "one");
    files_.BeginLook();
    system_.files.Set(kFile, "two");
    EXPECT_EQ(Bytes(), "two");
    system_.files.Set(kFile, "three");
    files_.BeginLook();
    EXPECT_EQ(Bytes(), "two");
    files_.EndLook();
    EXPECT_EQ(Bytes(), "two");
    EXPECT_EQ(files_.Newest(kFile).onDisk, "three");
    system_.files.Set(kFile, "four");
    files_.EndLook();
    EXPECT_EQ(Bytes(), "four");
    files_.BeginLook();
    system_.files.Set(kFile, "five");
    EXPECT_EQ(Bytes(), "five");
    files_.EndLook();
}

TEST_F(ProfileFilesTest, AFileThatCannotBeReadIsTriedOnceInALook) {
    system_.files.Lock(kFile);
    files_.BeginLook();
    for (int use = 0; use < 10; ++use)
        EXPECT_FALSE(files_.At(kFile).readable);
    EXPECT_EQ(Opened(), 1);
    files_.EndLook();
    system_.files.Lock(kFile, false);
    EXPECT_EQ(Bytes(), "one");
}

TEST_F(ProfileFilesTest, WhatIsKnownIsReadThoughAnotherHoldsTheFile) {
    EXPECT_EQ(Bytes(), "one");
    system_.files.Lock(kFile);
    EXPECT_EQ(Bytes(), "one");
}

TEST_F(ProfileFilesTest, AFileThatIsNotThereIsNotTriedAgainAndAgain) {
    for (int use = 0; use < 10; ++use)
        EXPECT_FALSE(files_.At("C:\\tc\\none.ini").readable);
    EXPECT_EQ(Opened(), 1);
}

TEST_F(ProfileFilesTest, ARelativePathMeansAnotherFileInAnotherFolder) {
    system_.files.StopClock();
    system_.files.Set("C:\\one\\b.ini", "one");
    system_.files.Set("C:\\two\\b.ini", "two");
    system_.files.SetCurrentFolder("C:\\one");
    EXPECT_EQ(files_.At("b.ini").onDisk, "one");
    system_.files.SetCurrentFolder("C:\\two");
    EXPECT_EQ(files_.At("b.ini").onDisk, "two");
    EXPECT_EQ(files_.Newest("b.ini").onDisk, "two");
}

TEST_F(ProfileFilesTest, APathThatIsNoneIsNoFile) {
    for (const char* path : {"", "a", "c:"}) {
        EXPECT_FALSE(files_.At(path).readable);
        EXPECT_FALSE(files_.At(path).readable);
        EXPECT_FALSE(files_.Newest(path).readable);
    }
}

// Its stamp does not tell a second change from the first.
TEST_F(ProfileFilesTest, AFileThatHadJustBeenWrittenIsReadOnceMore) {
    system_.files.StopClock();
    system_.files.Set(kFile, "two");
    EXPECT_EQ(Bytes(), "two");
    system_.files.Set(kFile, "TWO");
    EXPECT_EQ(Bytes(), "two");
    EXPECT_EQ(Opened(), 1);
    system_.files.StopClock(false);
    EXPECT_EQ(Bytes(), "TWO");
    EXPECT_EQ(Bytes(), "TWO");
    EXPECT_EQ(Opened(), 1);
}

TEST_F(ProfileFilesTest, AFileThatHadJustBeenWrittenIsReadAgainToBeChanged) {
    system_.files.StopClock();
    system_.files.Set(kFile, "two");
    EXPECT_EQ(Bytes(), "two");
    system_.files.Set(kFile, "TWO");
    EXPECT_EQ(files_.Newest(kFile).onDisk, "TWO");
}

TEST_F(ProfileFilesTest, WhatIsWrittenIsKnown) {
    ProfileFile& file = files_.At(kFile);
    EXPECT_TRUE(files_.Replace(kFile, file, "mine"));
    EXPECT_EQ(files_.Known(kFile).onDisk, "mine");
    EXPECT_EQ(system_.files.Get(kFile), "mine");
    Opened();
    // Somebody may have been quick.
    EXPECT_EQ(files_.Newest(kFile).onDisk, "mine");
    EXPECT_EQ(Opened(), 1);
    system_.files.Set(kFile, "theirs");
    EXPECT_EQ(Bytes(), "theirs");
}

TEST_F(ProfileFilesTest, AFileThatCannotBeReadIsNotReplaced) {
    system_.files.FailReadingAfter(kFile, 1);
    EXPECT_FALSE(files_.Replace(kFile, files_.Newest(kFile), "mine"));
    EXPECT_EQ(system_.files.Get(kFile), "one");
    EXPECT_TRUE(files_.Replace("C:\\tc\\new.ini", files_.Newest("C:\\tc\\new.ini"), "mine"));
    EXPECT_EQ(system_.files.Get("C:\\tc\\new.ini"), "mine");
}

}  // namespace ordalyn::platform
