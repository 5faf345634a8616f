#include "platform/ProfileText.h"

#include <gtest/gtest.h>

#include "base/Text.h"
#include "support/platform/MemoryPlatform.h"

namespace ordalyn::platform {

namespace {

using namespace std::string_literals;

constexpr std::size_t kSize = 4096;
constexpr const char* kFile = "C:\\tc\\wincmd.ini";
const std::string kMark(kUtf8Mark);

std::string Utf16(std::string_view text) {
    std::string bytes = "\xFF\xFE";
    for (const char16_t c : Utf8ToUtf16(text)) {
        bytes += static_cast<char>(c & 0xFF);
        bytes += static_cast<char>(c >> 8);
    }
    return bytes;
}

class ProfileTextTest : public testing::Test {
  protected:
    ProfileTextTest() { system_.files.AddFolder("C:\\tc"); }
    void Given(std::string_view bytes) { system_.files.Set(kFile, bytes); }
    std::string LogFile() {
        return Text().ReadEntry("Configuration", "LogFile", "absent", kFile, kSize);
    }
    std::string Bytes() { return system_.files.Get(kFile).value_or("no file"); }
    // Asks the system for its code page when it is made, as the program does at its start.
    ProfileText Text() { return ProfileText(system_.services); }
    test::MemoryPlatform system_;
};

// What a settings file of the file manager looks like; the path has a blank and an umlaut.
const std::string kUtf8Content =
    "; made by hand\r\n[Configuration]\r\nlogfile=%USERPROFILE%\\B\xC3\xBCro Logs\\totalcmd.log\r\n"
    "LogOptions = 7198\r\n[Colors]\r\nRedirectSection=%commander_path%\\user\\user.ini \r\n";
const std::string kLogFile = "%USERPROFILE%\\B\xC3\xBCro Logs\\totalcmd.log";

}  // namespace

TEST_F(ProfileTextTest, AFileInTheCodePage) {
    std::string bytes = kUtf8Content;
    bytes.replace(bytes.find("\xC3\xBC"), 2, "\xFC");
    Given(bytes);
    EXPECT_EQ(LogFile(), kLogFile);
    EXPECT_EQ(Text().ReadEntry("Configuration", "LOGOPTIONS", "", kFile, kSize), "7198");
    EXPECT_EQ(Text().ReadEntry("Colors", "RedirectSection", "", kFile, kSize),
              "%commander_path%\\user\\user.ini");
}

TEST_F(ProfileTextTest, AFileInUtf16) {
    Given(Utf16(kUtf8Content));
    EXPECT_EQ(LogFile(), kLogFile);
    EXPECT_EQ(Text().ReadEntry("Colors", "RedirectSection", "", kFile, kSize),
              "%commander_path%\\user\\user.ini");
}

TEST_F(ProfileTextTest, AFileInUtf8WithItsMarkBeforeAComment) {
    Given(kMark + kUtf8Content);
    EXPECT_EQ(LogFile(), kLogFile);
}

TEST_F(ProfileTextTest, AFileInUtf8WithItsMarkRightBeforeTheFirstHeader) {
    Given(kMark + kUtf8Content.substr(kUtf8Content.find('[')));
    EXPECT_EQ(LogFile(), kLogFile);
    EXPECT_EQ(Text().ReadSectionNames(kFile, kSize), std::string("Configuration\0Colors\0", 21));
}

TEST_F(ProfileTextTest, ASingleMarkedValueInAFileInTheCodePage) {
    Given("[Configuration]\r\nUser=J\xFCrgen\r\nLogFile=" + kMark + "D:\\\xD0\x96\\tc.log\r\n");
    EXPECT_EQ(LogFile(), "D:\\\xD0\x96\\tc.log");
    EXPECT_EQ(Text().ReadEntry("Configuration", "User", "", kFile, kSize), "J\xC3\xBCrgen");
    EXPECT_EQ(Text().ReadSection("Configuration", kFile, kSize),
              "User=J\xC3\xBCrgen\0LogFile=D:\\\xD0\x96\\tc.log\0"s);
}

TEST_F(ProfileTextTest, AMarkedValueIsReadInACodePageOfSeveralBytesPerCharacter) {
    system_.codePages.systemCodePage = 932;
    Given("[Configuration]\r\nLogFile=" + kMark +
          "D:\\\xD0\x96\xE3\x82\xBD\\tc.log\r\nk=\x83\x5C\r\n");
    EXPECT_EQ(LogFile(), "D:\\\xD0\x96\xE3\x82\xBD\\tc.log");
    EXPECT_EQ(Text().ReadEntry("configuration", "K", "", kFile, kSize), "\xE3\x82\xBD");
    Text().WriteEntry("Configuration", "m", "\xE3\x82\xBD", kFile);
    Text().WriteEntry("Configuration", "n", "\xD7\xA9", kFile);
    EXPECT_EQ(Bytes(), "[Configuration]\r\nLogFile=" + kMark +
                           "D:\\\xD0\x96\xE3\x82\xBD\\tc.log\r\nk=\x83\x5C\r\nm=\x83\x5C\r\nn=" +
                           kMark + "\xD7\xA9\r\n");
}

TEST_F(ProfileTextTest, ASystemWhoseCodePageIsUtf8NeedsNoMarks) {
    system_.codePages.systemCodePage = 65001;
    Text().WriteEntry("A", "k", "\xD0\x96", kFile);
    EXPECT_EQ(Bytes(), "[A]\r\nk=\xD0\x96\r\n");
    EXPECT_EQ(Text().ReadEntry("A", "k", "", kFile, kSize), "\xD0\x96");
}

TEST_F(ProfileTextTest, TextWhoseBytesLookLikeAMarkIsMarked) {
    const std::string text =
        "\xC3\xAF\xC2\xBB\xC2\xBF"
        "x";  // the mark's bytes as letters
    Text().WriteEntry("A", "k", text, kFile);
    EXPECT_EQ(Bytes(), "[A]\r\nk=" + kMark + text + "\r\n");
    EXPECT_EQ(Text().ReadEntry("A", "k", "", kFile, kSize), text);
}

TEST_F(ProfileTextTest, AMarkNeverReachesTheText) {
    Given(kMark + "[A]\r\nk=" + kMark + "v\r\n");
    EXPECT_EQ(Text().ReadEntry("A", "k", "", kFile, kSize), "v");
    Given(Utf16("[A]\r\nk=" + kMark + "v\r\n"));
    EXPECT_EQ(Text().ReadEntry("A", "k", "", kFile, kSize), "v");
}

TEST_F(ProfileTextTest, ALongMarkedValueIsCutByCharacters) {
    std::string cyrillic;
    for (int i = 0; i < 5000; ++i)
        cyrillic += "\xD0\x96";
    Given("[A]\r\nk=" + kMark + cyrillic + "\r\n");
    EXPECT_EQ(Text().ReadEntry("A", "k", "", kFile, kSize),
              cyrillic.substr(0, std::size_t{4095} * 2));
}

TEST_F(ProfileTextTest, ListsAreCutToTwoLessThanTheBuffer) {
    Given(kMark + "[A]\r\n\xD0\x96\xD0\x96=1\r\nb=2\r\n");
    EXPECT_EQ(Text().ReadKeyNames("A", kFile, 5), std::string("\xD0\x96\xD0\x96\0", 5));
    EXPECT_EQ(Text().ReadKeyNames("A", kFile, 3), "\xD0\x96");
}

TEST_F(ProfileTextTest, AnEntryOfAUtf8FileIsReadWithTheCallsRules) {
    Given(kMark + "[A]\r\nk = \" v \" \r\ne=\r\n");
    EXPECT_EQ(Text().ReadEntry("A", "k", "", kFile, kSize), " v ");
    EXPECT_EQ(Text().ReadEntry("A", "k", "", kFile, 3), " v");
    EXPECT_EQ(Text().ReadEntry("A", "e", "absent", kFile, kSize), "");
    EXPECT_EQ(Text().ReadEntry("A", "none", "absent  ", kFile, kSize), "absent");
}

TEST_F(ProfileTextTest, AFileThatCannotBeReadIsNotOverwritten) {
    Given(kMark + "[A]\r\nk=1\r\n");
    system_.files.FailReadingAfter(kFile, 5);
    Text().WriteEntry("A", "k", "2", kFile);
    EXPECT_EQ(Bytes(), kMark + "[A]\r\nk=1\r\n");
}

TEST_F(ProfileTextTest, AFailedWriteIsDropped) {
    Given(kMark + "[A]\r\nk=1\r\n");
    system_.files.FailWriting(kFile);
    Text().WriteEntry("A", "k", "2", kFile);
    Text().DeleteEntry("A", "k", kFile);
    Text().DeleteSection("A", kFile);
    EXPECT_EQ(Bytes(), kMark + "[A]\r\nk=1\r\n");
}

TEST_F(ProfileTextTest, ANewFileIsInTheCodePage) {
    Text().WriteEntry("Common", "a", "J\xC3\xBCrgen", kFile);
    EXPECT_EQ(Bytes(), "[Common]\r\na=J\xFCrgen\r\n");
}

TEST_F(ProfileTextTest, AFileInAMissingFolderIsNotMade) {
    Text().WriteEntry("Common", "a", "1", "C:\\none\\wincmd.ini");
    EXPECT_FALSE(system_.files.Exists("C:\\none"));
}

TEST_F(ProfileTextTest, AFileOfNothingButAMarkIsEmpty) {
    Given(kMark);
    EXPECT_EQ(Text().ReadSectionNames(kFile, kSize), "");
    Text().WriteEntry("A", "k", "1", kFile);
    EXPECT_EQ(Bytes(), kMark + "[A]\r\nk=1\r\n");
}

}  // namespace ordalyn::platform
