// Reading and writing single entries with the profile calls.
#include "contract/platform/IniFiles.h"
#include "contract/platform/Subject.h"

namespace ordalyn::contract {

namespace {

class ProfileContract : public PlatformContract {
  protected:
    void Given(std::string_view bytes) { System().SetBytes("test.ini", bytes); }
    std::string Read(std::string_view section, std::string_view key,
                     std::string_view otherwise = "absent", std::size_t size = kSize) {
        return Services().ansiProfile.ReadEntry(section, key, otherwise, File(), size);
    }
    void Write(std::string_view section, std::string_view key, std::string_view value) {
        Services().ansiProfile.WriteEntry(section, key, value, File());
    }
    std::optional<std::string> Result() { return System().Bytes("test.ini"); }
    std::string File() { return System().Path("test.ini"); }
};

}  // namespace

TEST_P(ProfileContract, AMissingFileReadsAsAbsent) {
    EXPECT_EQ(Read("A", "k"), "absent");
}

TEST_P(ProfileContract, AnEmptyFileNameReadsAsAbsent) {
    EXPECT_EQ(Services().ansiProfile.ReadEntry("A", "k", "absent", "", kSize), "absent");
}

TEST_P(ProfileContract, AMissingSectionOrKeyReadsAsAbsent) {
    Given("[A]\r\nk=1\r\n[B]\r\nm=2\r\n");
    EXPECT_EQ(Read("C", "k"), "absent");
    EXPECT_EQ(Read("A", "m"), "absent");
    EXPECT_EQ(Read("A", "m", ""), "");
}

TEST_P(ProfileContract, NamesMatchIgnoringCase) {
    Given("[Configuration]\r\nLogFile=x\r\n");
    EXPECT_EQ(Read("CONFIGURATION", "logfile"), "x");
}

TEST_P(ProfileContract, AValueIsTheTextAfterTheFirstEqualsSignWithoutBlanksAtItsEnds) {
    Given("[A]\r\nk = a=b  ; no comment \t\r\n  LogOptions \t= 7198\r\ne=\r\nb=   \r\n");
    EXPECT_EQ(Read("A", "k"), "a=b  ; no comment");
    EXPECT_EQ(Read("A", "LogOptions"), "7198");
    EXPECT_EQ(Read("A", "e"), "");
    EXPECT_EQ(Read("A", "b"), "");
}

TEST_P(ProfileContract, OnePairOfEnclosingQuotesIsTakenOff) {
    Given(
        "[A]\r\na=\" x \"\r\nb=' x '\r\nc=\"\"x\"\"\r\nd=\"'x'\"\r\ne=\"x'\r\nf=x\"\r\ng=\"\r\n"
        "h=\"\"\r\ni=\"a\" \"b\"\r\n");
    EXPECT_EQ(Read("A", "a"), " x ");
    EXPECT_EQ(Read("A", "b"), " x ");
    EXPECT_EQ(Read("A", "c"), "\"x\"");
    EXPECT_EQ(Read("A", "d"), "'x'");
    EXPECT_EQ(Read("A", "e"), "\"x'");
    EXPECT_EQ(Read("A", "f"), "x\"");
    EXPECT_EQ(Read("A", "g"), "\"");
    EXPECT_EQ(Read("A", "h"), "");
    EXPECT_EQ(Read("A", "i"), "a\" \"b");
}

TEST_P(ProfileContract, AValueIsCutToOneLessThanTheBuffer) {
    Given("[A]\r\nk=abcdef\r\nq=\"abcdef\"\r\n");
    EXPECT_EQ(Read("A", "k", "", 7), "abcdef");
    EXPECT_EQ(Read("A", "k", "", 6), "abcde");
    EXPECT_EQ(Read("A", "q", "", 4), "abc");
    EXPECT_EQ(Read("A", "k", "", 1), "");
    EXPECT_EQ(Read("A", "none", "default", 4), "def");
}

TEST_P(ProfileContract, AVeryLongValueIsReadWhole) {
    const std::string value(4000, 'x');
    Given("[A]\r\nk=" + value + "\r\n");
    EXPECT_EQ(Read("A", "k"), value);
}

TEST_P(ProfileContract, TheDefaultLosesBlanksAtItsEnd) {
    EXPECT_EQ(Read("A", "k", "  d  "), "  d");
}

TEST_P(ProfileContract, OfKeysOrSectionsWithTheSameNameTheFirstCounts) {
    Given("[A]\r\nk=1\r\nK=2\r\n[a]\r\nk=3\r\nonly=4\r\n");
    EXPECT_EQ(Read("A", "k"), "1");
    EXPECT_EQ(Read("A", "only"), "absent");
}

TEST_P(ProfileContract, LinesWithoutEqualsSignAreNoEntries) {
    Given("[A]\r\nk\r\nl=1\r\n");
    EXPECT_EQ(Read("A", "k"), "absent");
    EXPECT_EQ(Read("A", "l"), "1");
}

TEST_P(ProfileContract, CommentLinesBeforeTheFirstSectionDoNotDisturb) {
    Given("; made by hand\r\n;[A]\r\n\r\n[A]\r\n; k=0\r\nk=1\r\n");
    EXPECT_EQ(Read("A", "k"), "1");
}

TEST_P(ProfileContract, TheLastLineNeedsNoLineEnd) {
    Given("[A]\r\nk=1");
    EXPECT_EQ(Read("A", "k"), "1");
}

TEST_P(ProfileContract, LinesMayEndInLineFeedOnly) {
    Given("[A]\nk=1\n[B]\nk=2\n");
    EXPECT_EQ(Read("A", "k"), "1");
    EXPECT_EQ(Read("B", "k"), "2");
}

TEST_P(ProfileContract, AFileOfSeveralThousandLinesIsReadToItsEnd) {
    std::string bytes;
    for (int section = 0; section < 100; ++section) {
        bytes += "[S" + std::to_string(section) + "]\r\n";
        for (int key = 0; key < 50; ++key)
            bytes += "k" + std::to_string(key) + "=v" + std::to_string(section * 50 + key) + "\r\n";
    }
    Given(bytes);
    EXPECT_EQ(Read("S0", "k0"), "v0");
    EXPECT_EQ(Read("S99", "k49"), "v4999");
    Write("S50", "k25", "changed");
    const std::string old = "v2525\r\n";
    bytes.replace(bytes.find(old), old.size(), "changed\r\n");
    EXPECT_EQ(Result(), bytes);
}

TEST_P(ProfileContract, BytesOfTheCodePagePassUnchanged) {
    // In 1252 as in 1251 these are letters.
    if (System().CodePage() != 1252 && System().CodePage() != 1251)
        GTEST_SKIP() << "code page " << System().CodePage();
    Given("[A]\r\nk=L\xF6schen \xC4\r\n");
    EXPECT_EQ(Read("A", "k"), "L\xF6schen \xC4");
    Write("A", "m", "\xE4\xFF");
    EXPECT_EQ(Result(), "[A]\r\nk=L\xF6schen \xC4\r\nm=\xE4\xFF\r\n");
}

TEST_P(ProfileContract, AValueThatStartsWithAUtf8MarkPassesAsBytes) {
    if (System().CodePage() != 1252 && System().CodePage() != 1251)
        GTEST_SKIP() << "code page " << System().CodePage();
    const std::string value =
        "\xEF\xBB\xBF"
        "D:\\\xD0\x96\xE3\x82\xBD";
    Given("[A]\r\nk=" + value + "\r\n");
    EXPECT_EQ(Read("A", "k"), value);
    Write("A", "m", value);
    EXPECT_EQ(Result(), "[A]\r\nk=" + value + "\r\nm=" + value + "\r\n");
}

TEST_P(ProfileContract, WritingMakesTheFileTheSectionAndTheEntry) {
    Write("Common", "a", "1");
    EXPECT_EQ(Result(), "[Common]\r\na=1\r\n");
    Write("Other", "b", "2");
    EXPECT_EQ(Result(), "[Common]\r\na=1\r\n[Other]\r\nb=2\r\n");
}

TEST_P(ProfileContract, WritingReplacesAnEntryInItsPlace) {
    Given("[A]\r\na=1\r\nb=2\r\nc=3\r\n[B]\r\nb=4\r\n");
    Write("a", "B", "new");
    EXPECT_EQ(Result(), "[A]\r\na=1\r\nb=new\r\nc=3\r\n[B]\r\nb=4\r\n");
}

TEST_P(ProfileContract, ANewEntryGoesToTheEndOfItsSection) {
    Given("[A]\r\na=1\r\n;tail\r\n[B]\r\nb=2\r\n");
    Write("A", "c", "3");
    EXPECT_EQ(Result(), "[A]\r\na=1\r\n;tail\r\nc=3\r\n[B]\r\nb=2\r\n");
}

TEST_P(ProfileContract, QuotesAreWrittenAsGivenAndProtectBlanks) {
    Write("A", "k", "\"  b  \"");
    EXPECT_EQ(Result(), "[A]\r\nk=\"  b  \"\r\n");
    EXPECT_EQ(Read("A", "k"), "  b  ");
}

TEST_P(ProfileContract, AnEmptyValueCanBeWritten) {
    Write("A", "k", "");
    EXPECT_EQ(Result(), "[A]\r\nk=\r\n");
    EXPECT_EQ(Read("A", "k"), "");
}

TEST_P(ProfileContract, WritingTheValueThatIsThereLeavesTheFileAlone) {
    const std::string bytes = "\r\n;c\r\n\r\n[A]\r\n k = 1 \r\n\r\n";
    Given(bytes);
    Write("A", "K", "1");
    EXPECT_EQ(Result(), bytes);
}

TEST_P(ProfileContract, CommentsAndUnknownLinesSurviveAChange) {
    Given("; head\r\n[A]\r\n;k=0\r\nno entry\r\nk=1\r\n[open\r\n[B]\r\nm=1\r\n");
    Write("A", "k", "2");
    EXPECT_EQ(Result(), "; head\r\n[A]\r\n;k=0\r\nno entry\r\nk=2\r\n[open\r\n[B]\r\nm=1\r\n");
}

TEST_P(ProfileContract, DeletingAnEntryTakesItsLineOut) {
    Given("[A]\r\na=1\r\nb=2\r\n[B]\r\nb=3\r\n");
    Services().ansiProfile.DeleteEntry("a", "B", File());
    EXPECT_EQ(Result(), "[A]\r\na=1\r\n[B]\r\nb=3\r\n");
}

TEST_P(ProfileContract, DeletingASectionTakesItsHeaderAndEntriesOut) {
    Given("[A]\r\na=1\r\n[B]\r\nb=3\r\n[C]\r\nc=1\r\n");
    Services().ansiProfile.DeleteSection("b", File());
    EXPECT_EQ(Result(), "[A]\r\na=1\r\n[C]\r\nc=1\r\n");
}

TEST_P(ProfileContract, DeletingWhatIsNotThereIsNoError) {
    Given("[A]\r\na=1\r\n");
    Services().ansiProfile.DeleteEntry("A", "none", File());
    Services().ansiProfile.DeleteEntry("None", "a", File());
    Services().ansiProfile.DeleteSection("None", File());
    EXPECT_EQ(Result(), "[A]\r\na=1\r\n");
}

TEST_P(ProfileContract, DeletingInAMissingFileMakesNoFile) {
    Services().ansiProfile.DeleteEntry("A", "a", File());
    Services().ansiProfile.DeleteSection("A", File());
    EXPECT_EQ(Result(), std::nullopt);
}

TEST_P(ProfileContract, WritingIntoAMissingFolderIsDropped) {
    Services().ansiProfile.WriteEntry("A", "k", "1", System().Path("none\\test.ini"));
    EXPECT_EQ(System().Bytes("none\\test.ini"), std::nullopt);
}

TEST_P(ProfileContract, ARelativeFileNameCountsFromTheCurrentFolder) {
    Given("[Colors]\r\nk=1\r\n");
    const std::shared_ptr<void> inFolder = System().EnterFolder();
    EXPECT_EQ(Services().ansiProfile.ReadEntry("Colors", "k", "absent", "test.ini", kSize), "1");
    EXPECT_EQ(Services().unicodeProfile.ReadEntry("Colors", "k", "absent", "test.ini", kSize), "1");
    Services().ansiProfile.WriteEntry("Colors", "k", "2", "test.ini");
    EXPECT_EQ(Result(), "[Colors]\r\nk=2\r\n");
}

TEST_P(ProfileContract, AFileWhoseNameTheCodePageLacksIsReadAndWritten) {
    const std::string name =
        "\xC3\xA9\xD0\x96\xE3\x82\xBD\xE1\x80\x80.ini";  // no page has all four
    System().SetBytes(name, "[A]\r\nk=1\r\n");
    platform::ProfileCalls& calls = Services().ansiProfile;
    const std::string file = System().Path(name);
    EXPECT_EQ(calls.ReadEntry("A", "k", "", file, kSize), "1");
    EXPECT_EQ(calls.ReadKeyNames("A", file, kSize), std::string("k\0", 2));
    EXPECT_EQ(calls.ReadSection("A", file, kSize), std::string("k=1\0", 4));
    EXPECT_EQ(calls.ReadSectionNames(file, kSize), std::string("A\0", 2));
    calls.WriteEntry("A", "m", "2", file);
    calls.DeleteEntry("A", "k", file);
    calls.WriteEntry("B", "x", "2", file);
    calls.DeleteSection("B", file);
    EXPECT_EQ(System().Bytes(name), "[A]\r\nm=2\r\n");
}

TEST_P(ProfileContract, TheUnicodeFormReadsAndWritesAFileWithAUtf16Mark) {
    Given(Utf16("[A]\r\n") + std::string("k\0=\0\x16\x04\r\0\n\0", 10));
    platform::ProfileCalls& calls = Services().unicodeProfile;
    EXPECT_EQ(calls.ReadEntry("a", "K", "absent", File(), kSize), "\xD0\x96");
    calls.WriteEntry("A", "m", "\xE3\x82\xBD", File());
    EXPECT_EQ(Result(), Utf16("[A]\r\n") + std::string("k\0=\0\x16\x04\r\0\n\0", 10) +
                            std::string("m\0=\0\xBD\x30\r\0\n\0", 10));
    EXPECT_EQ(calls.ReadSection("A", File(), kSize),
              std::string("k=\xD0\x96\0m=\xE3\x82\xBD\0", 5 + 6));
    calls.DeleteEntry("A", "k", File());
    EXPECT_EQ(calls.ReadKeyNames("A", File(), kSize), std::string("m\0", 2));
    calls.WriteEntry("B", "x", "1", File());
    EXPECT_EQ(calls.ReadSectionNames(File(), kSize), std::string("A\0B\0", 4));
    calls.DeleteSection("A", File());
    EXPECT_EQ(Result(), Utf16("[B]\r\nx=1\r\n"));
}

TEST_P(ProfileContract, TheUnicodeFormCountsUtf16Characters) {
    Given(Utf16("[A]\r\n") + std::string("k\0=\0\x16\x04\x16\x04\x16\x04\r\0\n\0", 14));
    EXPECT_EQ(Services().unicodeProfile.ReadEntry("A", "k", "", File(), 3), "\xD0\x96\xD0\x96");
}

INSTANTIATE_TEST_SUITE_P(, ProfileContract, AllSubjects(), KindName);

}  // namespace ordalyn::contract
