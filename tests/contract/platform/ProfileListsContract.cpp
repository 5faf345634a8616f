// The three lists of the profile calls.
#include "contract/platform/IniFiles.h"
#include "contract/platform/Subject.h"

namespace ordalyn::contract {

namespace {

class ProfileListsContract : public PlatformContract {
  protected:
    void Given(std::string_view bytes) { System().SetBytes("test.ini", bytes); }
    // The lists with "|" for the NUL characters.
    std::string KeyNames(std::string_view section, std::size_t size = kSize) {
        return Shown(Services().ansiProfile.ReadKeyNames(section, File(), size));
    }
    std::string Section(std::string_view section, std::size_t size = kSize) {
        return Shown(Services().ansiProfile.ReadSection(section, File(), size));
    }
    std::string SectionNames(std::size_t size = kSize) {
        return Shown(Services().ansiProfile.ReadSectionNames(File(), size));
    }
    std::string File() { return System().Path("test.ini"); }

  private:
    static std::string Shown(std::string list) {
        for (char& c : list)
            if (c == '\0')
                c = '|';
        return list;
    }
};

}  // namespace

TEST_P(ProfileListsContract, AMissingFileOrSectionGivesEmptyLists) {
    EXPECT_EQ(SectionNames(), "");
    EXPECT_EQ(KeyNames("A"), "");
    EXPECT_EQ(Section("A"), "");
    Given("[B]\r\nk=1\r\n");
    EXPECT_EQ(KeyNames("A"), "");
    EXPECT_EQ(Section("A"), "");
}

TEST_P(ProfileListsContract, EachNameIsFollowedByANul) {
    Given("[A]\r\na=1\r\nbb=2\r\n[B]\r\nc=3\r\n");
    EXPECT_EQ(KeyNames("a"), "a|bb|");
    EXPECT_EQ(Section("a"), "a=1|bb=2|");
    EXPECT_EQ(SectionNames(), "A|B|");
}

TEST_P(ProfileListsContract, ValuesAreListedWithTheirQuotesAndWithoutBlanksAroundThem) {
    Given("[A]\r\n  a = \" x \"  \r\nb='y'\r\nc=\r\n");
    EXPECT_EQ(Section("A"), "a=\" x \"|b='y'|c=|");
}

TEST_P(ProfileListsContract, CommentsAndEmptyLinesAreLeftOut) {
    Given("[A]\r\n;a=1\r\n\r\nb=2\r\n  ;c=3\r\n");
    EXPECT_EQ(KeyNames("A"), "b|");
    EXPECT_EQ(Section("A"), "b=2|");
}

TEST_P(ProfileListsContract, EveryKeyIsListedAlsoOneThatOccursTwice) {
    Given("[A]\r\nk=1\r\nK=2\r\n");
    EXPECT_EQ(KeyNames("A"), "k|K|");
    EXPECT_EQ(Section("A"), "k=1|K=2|");
}

TEST_P(ProfileListsContract, AnEmptySectionIsListedByName) {
    Given("[A]\r\n[B]\r\n");
    EXPECT_EQ(SectionNames(), "A|B|");
    EXPECT_EQ(KeyNames("A"), "");
}

TEST_P(ProfileListsContract, ALongListIsCutSoThatTwoNulsFollow) {
    Given("[A]\r\naaa=1\r\nbbb=2\r\n[LongName]\r\n");
    EXPECT_EQ(KeyNames("A", 6), "aaa|");
    EXPECT_EQ(KeyNames("A", 8), "aaa|bb");
    EXPECT_EQ(KeyNames("A", 10), "aaa|bbb|");
    EXPECT_EQ(Section("A", 9), "aaa=1|b");
    EXPECT_EQ(Section("A", 14), "aaa=1|bbb=2|");
    EXPECT_EQ(SectionNames(6), "A|Lo");
    EXPECT_EQ(SectionNames(13), "A|LongName|");
}

INSTANTIATE_TEST_SUITE_P(, ProfileListsContract, AllSubjects(), KindName);

}  // namespace ordalyn::contract
