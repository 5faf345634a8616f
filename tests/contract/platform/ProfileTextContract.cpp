// INI files as text, through whichever calls their beginning asks for.
#include "platform/ProfileText.h"

#include <iterator>
#include <random>

#include "contract/platform/IniFiles.h"
#include "contract/platform/Subject.h"

namespace ordalyn::contract {

namespace {

const std::string kMark(kUtf8Mark);
// Hebrew, which none of the code pages under test holds.
const std::string kForeign = "D:\\\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D";

bool HasEmptyElement(const std::string& list) {
    return list.starts_with('\0') || list.find(std::string(2, '\0')) != std::string::npos;
}

class ProfileTextContract : public PlatformContract {
  protected:
    void Given(std::string_view bytes) { System().SetBytes("test.ini", bytes); }
    std::string Read(std::string_view section, std::string_view key, std::size_t size = kSize) {
        return text_.ReadEntry(section, key, "absent", File(), size);
    }
    void Write(std::string_view section, std::string_view key, std::string_view value) {
        text_.WriteEntry(section, key, value, File());
    }
    std::optional<std::string> Result() { return System().Bytes("test.ini"); }
    std::string File() { return System().Path("test.ini"); }
    platform::ProfileText& Text() { return text_; }

    // A word of the system code page and its bytes there; false where this test knows none.
    bool KnowsWord() {
        if (System().CodePage() == 1252) {
            word_ = "\xC3\xA4\xC3\xB6";  // ae and oe in one letter
            wordBytes_ = "\xE4\xF6";
        } else if (System().CodePage() == 1251) {
            word_ = "\xD0\x96\xD1\x8F";  // Cyrillic Zhe and ya
            wordBytes_ = "\xC6\xFF";
        } else if (System().CodePage() == 932) {
            word_ = "\xE8\xA1\xA8\xE3\x82\xBD";  // both end in the byte of a backslash
            wordBytes_ = "\x95\x5C\x83\x5C";
        }
        return !word_.empty();
    }
    std::string word_, wordBytes_;

  private:
    platform::ProfileText text_{Services()};
};

}  // namespace

TEST_P(ProfileTextContract, PlainValuesAreInTheSystemCodePage) {
    if (!KnowsWord())
        GTEST_SKIP() << "code page " << System().CodePage();
    Given("[A]\r\nk=" + wordBytes_ + "\r\n[" + wordBytes_ + "]\r\n" + wordBytes_ + "=1\r\n");
    EXPECT_EQ(Read("A", "k"), word_);
    EXPECT_EQ(Read(word_, word_), "1");
    EXPECT_EQ(Text().ReadSectionNames(File(), kSize), "A" + std::string(1, '\0') + word_ + '\0');
    Write("A", "m", word_);
    EXPECT_EQ(Result(), "[A]\r\nk=" + wordBytes_ + "\r\nm=" + wordBytes_ + "\r\n[" + wordBytes_ +
                            "]\r\n" + wordBytes_ + "=1\r\n");
}

TEST_P(ProfileTextContract, AValueThatStartsWithAMarkIsUtf8) {
    Given("[A]\r\nk=" + kMark + kForeign + "\r\nq=\"" + kMark + kForeign + " \"\r\n");
    EXPECT_EQ(Read("A", "k"), kForeign);
    EXPECT_EQ(Read("A", "q"), kForeign + " ");
    EXPECT_EQ(Text().ReadSection("A", File(), kSize).substr(0, 3 + kForeign.size()),
              std::string("k=") + kForeign + '\0');
}

TEST_P(ProfileTextContract, WhatTheCodePageLacksIsWrittenWithAMark) {
    Write("A", "k", kForeign);
    EXPECT_EQ(Result(), "[A]\r\nk=" + kMark + kForeign + "\r\n");
    EXPECT_EQ(Read("A", "k"), kForeign);
    Write("A", "k", "plain");
    EXPECT_EQ(Result(), "[A]\r\nk=plain\r\n");
}

TEST_P(ProfileTextContract, TheMarkOfAQuotedValueStandsInsideTheQuotes) {
    Write("A", "k", "\" " + kForeign + " \"");
    EXPECT_EQ(Result(), "[A]\r\nk=\"" + kMark + " " + kForeign + " \"\r\n");
    EXPECT_EQ(Read("A", "k"), " " + kForeign + " ");
}

TEST_P(ProfileTextContract, NamesThatTheCodePageLacksAreFoundAgain) {
    Write(kForeign, kForeign, "1");
    EXPECT_EQ(Read(kForeign, kForeign), "1");
    EXPECT_EQ(Text().ReadKeyNames(kForeign, File(), kSize), kForeign + '\0');
    EXPECT_EQ(Text().ReadSectionNames(File(), kSize), kForeign + '\0');
    Text().DeleteEntry(kForeign, kForeign, File());
    EXPECT_EQ(Read(kForeign, kForeign), "absent");
    Text().DeleteSection(kForeign, File());
    EXPECT_EQ(Result(), "");
}

TEST_P(ProfileTextContract, ADefaultThatTheCodePageLacksComesBack) {
    EXPECT_EQ(Text().ReadEntry("A", "k", kForeign, File(), kSize), kForeign);
}

TEST_P(ProfileTextContract, SizesCountCharactersNotBytes) {
    Given("[A]\r\nk=" + kMark + "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D\r\n");
    EXPECT_EQ(Read("A", "k", 3), "\xD7\xA9\xD7\x9C");
    Given(kMark + "[A]\r\nk=\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D\r\n");
    EXPECT_EQ(Read("A", "k", 3), "\xD7\xA9\xD7\x9C");
}

TEST_P(ProfileTextContract, AFileWithAUtf16MarkIsReadAndWrittenAsSuch) {
    Given(Utf16("[A]\r\nk=" + kForeign + "\r\n"));
    EXPECT_EQ(Read("A", "k"), kForeign);
    Write("A", "m", kForeign + "2");
    EXPECT_EQ(Result(), Utf16("[A]\r\nk=" + kForeign + "\r\nm=" + kForeign + "2\r\n"));
    Text().DeleteEntry("A", "k", File());
    EXPECT_EQ(Text().ReadKeyNames("A", File(), kSize), std::string("m\0", 2));
    EXPECT_EQ(Text().ReadSection("A", File(), kSize), "m=" + kForeign + "2" + '\0');
    EXPECT_EQ(Text().ReadSectionNames(File(), kSize), std::string("A\0", 2));
    Text().DeleteSection("A", File());
    EXPECT_EQ(Result(), Utf16(""));
}

TEST_P(ProfileTextContract, AFileWithAUtf8MarkRightBeforeTheFirstSectionIsUtf8) {
    Given(kMark + "[Configuration]\r\nLogFile=" + kForeign + "\r\n[B]\r\n");
    EXPECT_EQ(Read("configuration", "LOGFILE"), kForeign);
    Write("Configuration", "m", kForeign);
    EXPECT_EQ(Result(), kMark + "[Configuration]\r\nLogFile=" + kForeign + "\r\nm=" + kForeign +
                            "\r\n[B]\r\n");
    Text().DeleteEntry("Configuration", "LogFile", File());
    EXPECT_EQ(Text().ReadKeyNames("Configuration", File(), kSize), std::string("m\0", 2));
    EXPECT_EQ(Text().ReadSection("Configuration", File(), kSize), "m=" + kForeign + '\0');
    EXPECT_EQ(Text().ReadSectionNames(File(), kSize), std::string("Configuration\0B\0", 16));
    Text().DeleteSection("Configuration", File());
    EXPECT_EQ(Result(), kMark + "[B]\r\n");
}

// What is read here is what the calls would read, whatever the file says.
TEST_P(ProfileTextContract, ReadsWhatTheCallsRead) {
    constexpr std::string_view kParts[] = {
        "[A]",         "[a]",    "[ B ]", "[",          "]",       "A",  "B",    "k",
        "K",           "=",      "=",     " ",          "\t",      "\"", "'",    ";",
        ";",           "x",      "yz",    "1",          "\r\n",    "\n", "\r\n", "\r",
        "\r\n[A]\r\n", "\r\nk=", "\x1A",  "\r\nk = \"", "\r\n;k=", "\v"};
    std::mt19937 random(1);
    for (int round = 0; round < 100; ++round) {
        std::string bytes;
        for (std::size_t count = random() % 40; count > 0; --count)
            bytes += kParts[random() % std::size(kParts)];
        SCOPED_TRACE(bytes);
        // Another file each time: it would take a while until a change could be told for sure.
        const std::string name = "test" + std::to_string(round) + ".ini";
        System().SetBytes(name, bytes);
        const std::string file = System().Path(name);
        platform::ProfileCalls& calls = Services().ansiProfile;
        EXPECT_EQ(Text().ReadSectionNames(file, kSize), calls.ReadSectionNames(file, kSize));
        for (const char* section : {"A", "b"}) {
            // An entry without a name ends the calls' list of names.
            const std::string names = Text().ReadKeyNames(section, file, kSize);
            if (!HasEmptyElement(names)) {
                EXPECT_EQ(names, calls.ReadKeyNames(section, file, kSize));
            }
            EXPECT_EQ(Text().ReadSection(section, file, kSize),
                      calls.ReadSection(section, file, kSize));
            for (const char* key : {"k", "x", "yz"})
                EXPECT_EQ(Text().ReadEntry(section, key, "absent", file, kSize),
                          calls.ReadEntry(section, key, "absent", file, kSize));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, ProfileTextContract, AllSubjects(), KindName);

}  // namespace ordalyn::contract
