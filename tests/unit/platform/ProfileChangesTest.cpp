// Changes to INI files: one by one, together, and those that cannot be written.
#include <gtest/gtest.h>

#include "platform/ProfileText.h"
#include "support/platform/MemoryPlatform.h"

namespace ordalyn::platform {

namespace {

class ProfileChangesTest : public testing::Test {
  protected:
    static constexpr const char* kFile = "C:\\tc\\a.ini";
    static constexpr std::size_t kSize = 100;

    ProfileChangesTest() { system_.files.Set(kFile, "[A]\r\nk=1\r\nm=2\r\n"); }
    std::string Read(const char* key) { return text_.ReadEntry("A", key, "absent", kFile, kSize); }
    void Write(const char* key, const char* value) { text_.WriteEntry("A", key, value, kFile); }
    std::string Bytes() { return system_.files.Get(kFile).value_or("no file"); }
    void Protect(bool isProtected = true) { system_.files.FailWriting(kFile, isProtected); }
    FileStamp Stamp() { return system_.files.Stamp(kFile).value(); }

    test::MemoryPlatform system_;
    ProfileText text_{system_.services};
};

}  // namespace

TEST_F(ProfileChangesTest, EachIsInTheFileAtOnce) {
    Write("k", "new");
    EXPECT_EQ(Bytes(), "[A]\r\nk=new\r\nm=2\r\n");
    text_.DeleteEntry("A", "m", kFile);
    EXPECT_EQ(Bytes(), "[A]\r\nk=new\r\n");
    text_.DeleteSection("A", kFile);
    EXPECT_EQ(Bytes(), "");
}

TEST_F(ProfileChangesTest, WhatAnotherProgramHasWrittenStays) {
    EXPECT_EQ(Read("k"), "1");
    text_.BeginLook();
    EXPECT_EQ(Read("m"), "2");
    system_.files.Set(kFile, "[A]\r\nk=1\r\nm=theirs\r\n");
    Write("k", "mine");
    text_.EndLook();
    EXPECT_EQ(Bytes(), "[A]\r\nk=mine\r\nm=theirs\r\n");
}

TEST_F(ProfileChangesTest, WritingWhatIsThereLeavesTheFileAlone) {
    const FileStamp before = Stamp();
    Write("K", "1");
    text_.BeginChanges();
    text_.DeleteEntry("A", "k", kFile);
    Write("k", "1");
    text_.EndChanges();
    EXPECT_EQ(Stamp(), before);
}

TEST_F(ProfileChangesTest, TogetherTheyReachTheFileAtTheEnd) {
    const std::string before = Bytes();
    text_.BeginChanges();
    text_.DeleteEntry("A", "k", kFile);
    EXPECT_EQ(Read("k"), "absent");
    Write("k", "3");
    text_.BeginChanges();
    Write("n", "4");
    text_.EndChanges();
    EXPECT_EQ(Read("k"), "3");
    EXPECT_EQ(Read("n"), "4");
    EXPECT_EQ(Bytes(), before);
    text_.EndChanges();
    EXPECT_EQ(Bytes(), "[A]\r\nk=3\r\nm=2\r\nn=4\r\n");
}

TEST_F(ProfileChangesTest, TogetherTheyStartFromTheNewestFile) {
    text_.BeginLook();
    EXPECT_EQ(Read("m"), "2");
    system_.files.Set(kFile, "[A]\r\nm=theirs\r\n");
    text_.BeginChanges();
    Write("k", "mine");
    EXPECT_EQ(Read("m"), "theirs");
    text_.EndChanges();
    text_.EndLook();
    EXPECT_EQ(Bytes(), "[A]\r\nm=theirs\r\nk=mine\r\n");
}

TEST_F(ProfileChangesTest, WhatCannotBeWrittenIsReadNevertheless) {
    Protect();
    Write("k", "new");
    text_.DeleteEntry("A", "m", kFile);
    EXPECT_EQ(Read("k"), "new");
    EXPECT_EQ(Read("m"), "absent");
    EXPECT_FALSE(text_.WriteWaiting(kFile));
    EXPECT_EQ(Bytes(), "[A]\r\nk=1\r\nm=2\r\n");
}

TEST_F(ProfileChangesTest, WhatCouldNotBeWrittenGoesWithTheNextChange) {
    Protect();
    Write("k", "lost");
    Write("k", "new");
    text_.DeleteEntry("A", "m", kFile);
    Protect(false);
    Write("n", "3");
    EXPECT_EQ(Bytes(), "[A]\r\nk=new\r\nn=3\r\n");
    EXPECT_TRUE(text_.WriteWaiting(kFile));
}

TEST_F(ProfileChangesTest, WhatCouldNotBeWrittenCanBeTriedAgain) {
    Protect();
    Write("k", "new");
    Protect(false);
    EXPECT_TRUE(text_.WriteWaiting(kFile));
    EXPECT_EQ(Bytes(), "[A]\r\nk=new\r\nm=2\r\n");
}

TEST_F(ProfileChangesTest, WhatCouldNotBeWrittenCanBeGivenUp) {
    Protect();
    Write("k", "new");
    text_.GiveUpWaiting(kFile);
    EXPECT_EQ(Read("k"), "1");
    EXPECT_TRUE(text_.WriteWaiting(kFile));
}

TEST_F(ProfileChangesTest, WhatWaitsGoesIntoTheFileAsOthersHaveChangedIt) {
    Protect();
    Write("k", "mine");
    system_.files.Set(kFile, "[A]\r\nk=theirs\r\nm=theirs\r\n");
    EXPECT_EQ(Read("k"), "mine");
    EXPECT_EQ(Read("m"), "theirs");
    Protect(false);
    EXPECT_TRUE(text_.WriteWaiting(kFile));
    EXPECT_EQ(Bytes(), "[A]\r\nk=mine\r\nm=theirs\r\n");
}

TEST_F(ProfileChangesTest, AnUnchangedFileThatCannotBeWrittenLacksNothing) {
    Protect();
    Write("k", "1");
    text_.DeleteEntry("A", "none", kFile);
    EXPECT_TRUE(text_.WriteWaiting(kFile));
}

TEST_F(ProfileChangesTest, ASectionThatIsDeletedBeforeItIsWrittenHoldsOnlyWhatCameAfter) {
    text_.BeginChanges();
    Write("k", "lost");
    text_.DeleteSection("A", kFile);
    Write("n", "new");
    text_.EndChanges();
    EXPECT_EQ(Bytes(), "[A]\r\nn=new\r\n");
}

// What is not understood here would be damaged by writing it back.
TEST_F(ProfileChangesTest, WhatIsNoUtf16BehindItsMarkIsLeftToTheCalls) {
    struct Calls : test::MemoryProfile {
        using test::MemoryProfile::MemoryProfile;
        void WriteEntry(std::string_view, std::string_view, std::string_view value,
                        std::string_view) override {
            written = value;
        }
        std::string written;
    } calls{test::MemoryProfile::Form::Unicode, system_.files, system_.codePages};
    Services services{.ansiProfile = system_.ansiProfile,
                      .unicodeProfile = calls,
                      .codePages = system_.codePages,
                      .files = system_.files,
                      .environment = system_.environment,
                      .locale = system_.locale,
                      .shell = system_.shell,
                      .clipboard = system_.clipboard,
                      .registry = system_.registry,
                      .dialogs = system_.dialogs};
    ProfileText text(services);
    const std::string half("\xFF\xFE[\0A\0]\0\n\0k\0=\0\x00\xD8", 16);
    system_.files.Set(kFile, half);
    text.WriteEntry("A", "m", "1", kFile);
    EXPECT_EQ(calls.written, "1");
    EXPECT_EQ(Bytes(), half);
    EXPECT_TRUE(text.WriteWaiting(kFile));
}

}  // namespace ordalyn::platform
