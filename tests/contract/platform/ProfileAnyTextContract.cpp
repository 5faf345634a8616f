// The profile calls and INI files as text on hundreds of random texts: both read the same from them
// and leave the same behind when they change them.
#include <random>

#include "contract/platform/IniFiles.h"
#include "contract/platform/Subject.h"
#include "platform/IniFile.h"

namespace ordalyn::contract {

namespace {

using platform::IniFile;

// What INI files are made of, and what they should not have.
constexpr std::string_view kPieces[] = {
    "[",  "]",   "[A]",         "[b]",         "[A b]", "=",     "k=",  "K =",  "m",
    "\"", "'",   ";",           " ",           "\t",    "\r",    "\n",  "\r\n", "\r\n",
    "x",  "a=b", "\r\n[A]\r\n", "\r\nk=1\r\n", "\x1A",  "\"v\"", " ;c", "\x01", "k"};
constexpr std::string_view kSections[] = {"A", "B", "A b", "[A]"};
constexpr std::string_view kKeys[] = {"k", "K", "m", "a"};

class ProfileAnyTextContract : public PlatformContract {
  protected:
    std::string AnyText() {
        std::string text;
        for (std::size_t count = random_() % 30; count > 0; --count)
            text += kPieces[random_() % std::size(kPieces)];
        return HasEmptyName(text) ? AnyText() : text;
    }
    // At such a name a list of the calls ends, whatever comes behind it.
    static bool HasEmptyName(std::string_view text) {
        bool lineStarts = true;
        for (const char c : text) {
            if (lineStarts && c == '=')
                return true;
            lineStarts = c == '\r' || c == '\n' || (lineStarts && c <= ' ');
        }
        return text.find("[]") != std::string_view::npos;
    }
    std::string_view AnyOf(const std::string_view* first, std::size_t count) {
        return first[random_() % count];
    }
    std::string_view AnySection() { return AnyOf(kSections, std::size(kSections)); }
    std::string_view AnyKey() { return AnyOf(kKeys, std::size(kKeys)); }

    void ExpectTheSame(const IniFile& text, const std::string& file) {
        platform::ProfileCalls& calls = Services().ansiProfile;
        EXPECT_EQ(calls.ReadSectionNames(file, kSize), text.SectionNames());
        for (const std::string_view section : kSections) {
            SCOPED_TRACE("section " + std::string(section));
            EXPECT_EQ(calls.ReadKeyNames(section, file, kSize), text.KeyNames(section));
            EXPECT_EQ(calls.ReadSection(section, file, kSize), text.Section(section));
            for (const std::string_view key : kKeys)
                EXPECT_EQ(calls.ReadEntry(section, key, "absent", file, kSize),
                          text.Entry(section, key).value_or("absent"))
                    << key;
        }
    }

    // Another one for each text: calls may remember what they have read of a file.
    std::string File(int number) { return "any" + std::to_string(number) + ".ini"; }

    std::mt19937 random_{7};
};

}  // namespace

TEST_P(ProfileAnyTextContract, IsReadAlike) {
    for (int i = 0; i < 100; ++i) {
        const std::string text = AnyText();
        SCOPED_TRACE(testing::PrintToString(text));
        System().SetBytes(File(i), text);
        ExpectTheSame(IniFile(text), System().Path(File(i)));
    }
}

TEST_P(ProfileAnyTextContract, IsChangedAlike) {
    platform::ProfileCalls& calls = Services().ansiProfile;
    for (int i = 0; i < 240; ++i) {
        const std::string bytes = AnyText();
        const std::string_view section = AnySection();
        const std::string_view key = AnyKey();
        SCOPED_TRACE(testing::PrintToString(bytes) + " section " + std::string(section) + " key " +
                     std::string(key));
        const std::string file = System().Path(File(i));
        System().SetBytes(File(i), bytes);
        IniFile text(bytes);
        switch (i % 3) {
            case 0:
                calls.WriteEntry(section, key, "new", file);
                text.WriteEntry(section, key, "new");
                break;
            case 1:
                calls.DeleteEntry(section, key, file);
                text.DeleteEntry(section, key);
                break;
            default:
                calls.DeleteSection(section, file);
                text.DeleteSection(section);
        }
        EXPECT_EQ(System().Bytes(File(i)), text.Text());
    }
}

INSTANTIATE_TEST_SUITE_P(, ProfileAnyTextContract, AllSubjects(), KindName);

}  // namespace ordalyn::contract
