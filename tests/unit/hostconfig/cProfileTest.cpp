#include "hostconfig/cProfile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ProfileRoom.h"
#include "base/Errors.h"

namespace ordalyn {
namespace {

using test::kWincmd;
using testing::ElementsAre;

class ProfileAccess : public testing::Test, public test::ProfileRoom {
  protected:
    void File(std::string_view text) { system.files.Set(kWincmd, text); }
    std::vector<std::string> KeyNames() {
        std::vector<std::string> names;
        for (std::int32_t i = 0; i <= Profile().SectionKeysNameOnlyLastIndex(); ++i)
            names.push_back(Profile().SectionKeysNameOnlyList(i));
        return names;
    }
};

TEST_F(ProfileAccess, ReadsAValueWithoutBlanksAndQuotesAroundIt) {
    File("[Configuration]\r\nLogOptions = 7198 \r\nQuoted=\"  a  \"\r\nSingle=' b '\r\n");
    EXPECT_EQ(Read("configuration", "LOGOPTIONS"), "7198");
    EXPECT_EQ(Read("Configuration", "Quoted"), "  a  ");
    EXPECT_EQ(Read("Configuration", "Single"), " b ");
}

TEST_F(ProfileAccess, AnAbsentEntryGivesTheDefault) {
    File("[Configuration]\r\nKey=1\r\n");
    EXPECT_EQ(Profile().ReadValue("Configuration", "Other", "x", kWincmd), "x");
    EXPECT_EQ(Profile().ReadValue("Other", "Key", "x", kWincmd), "x");
    EXPECT_EQ(Profile().ReadValue("Configuration", "Key", "x", "C:\\tc\\missing.ini"), "x");
}

TEST_F(ProfileAccess, AnEmptyEntryAndAnEmptyDefaultAreNoValue) {
    File("[Configuration]\r\nEmpty=\r\n");
    EXPECT_EQ(Profile().ReadValue("Configuration", "Empty", "x", kWincmd), std::nullopt);
    EXPECT_EQ(Profile().ReadValue("Configuration", "Absent", "", kWincmd), std::nullopt);
}

TEST_F(ProfileAccess, TheMarkerTellsAnAbsentEntryFromAnEmptyOne) {
    File("[Configuration]\r\nEmpty=\r\n");
    const std::string& marker = common.NoValueMarker();
    EXPECT_EQ(Profile().ReadValue("Configuration", "Absent", marker, kWincmd), marker);
    EXPECT_EQ(Profile().ReadValue("Configuration", "Empty", marker, kWincmd), std::nullopt);
}

TEST_F(ProfileAccess, AValueIsCutToOneCharacterLessThanTheBuffer) {
    File("[A]\r\nKey=abcdef\r\nLong=" + std::string(5000, 'x') + "\r\n");
    EXPECT_EQ(Profile().ReadValue("A", "Key", "", kWincmd, 4), "abc");
    EXPECT_EQ(Profile().ReadValue("A", "Key", "", kWincmd, 1), std::nullopt);
    EXPECT_EQ(Profile().ReadValue("A", "Long", "", kWincmd)->size(), 4095U);
}

TEST_F(ProfileAccess, WritingMakesFileSectionAndEntry) {
    Profile().WriteValue("Common", "Key", "1", "C:\\tc\\new.ini");
    EXPECT_EQ(Text("C:\\tc\\new.ini"), "[Common]\r\nKey=1\r\n");
}

TEST_F(ProfileAccess, WritingReplacesAnEntryInPlace) {
    File("[A]\r\nOne=1\r\nTwo=2\r\nThree=3\r\n");
    Profile().WriteValue("a", "TWO", "new", kWincmd);
    EXPECT_EQ(Text(kWincmd), "[A]\r\nOne=1\r\nTwo=new\r\nThree=3\r\n");
}

TEST_F(ProfileAccess, WritingRemovesBlanksAtTheEnds) {
    Profile().WriteValue("A", "Key", "  a b  ", kWincmd);
    EXPECT_EQ(Text(kWincmd), "[A]\r\nKey=a b\r\n");
}

TEST_F(ProfileAccess, QuotesKeepTheBlanks) {
    Profile().WriteValue("A", "Key", "  a b  ", kWincmd, true);
    EXPECT_EQ(Text(kWincmd), "[A]\r\nKey=\"  a b  \"\r\n");
    EXPECT_EQ(Read("A", "Key"), "  a b  ");
}

TEST_F(ProfileAccess, TheMarkerIsNotWritten) {
    Profile().WriteValue("A", "Key", "VXZ20261116000503ZXV", "C:\\tc\\new.ini");
    EXPECT_FALSE(system.files.Get("C:\\tc\\new.ini"));
    File("[A]\r\nKey=old\r\n");
    Profile().WriteValue("A", "Key", common.NoValueMarker(), kWincmd);
    Profile().WriteValue("A", "Key", common.NoValueMarker(), kWincmd, true);
    EXPECT_EQ(Text(kWincmd), "[A]\r\nKey=old\r\n");
}

// The order is meant: WriteValue compares what it was given, before it removes blanks.
TEST_F(ProfileAccess, AMarkerWithBlanksAroundItIsWritten) {
    Profile().WriteValue("A", "Key", " " + common.NoValueMarker() + " ", kWincmd);
    EXPECT_EQ(Text(kWincmd), "[A]\r\nKey=" + common.NoValueMarker() + "\r\n");
}

TEST_F(ProfileAccess, TheRawWriterRemovesBlanksBeforeItLooksForTheMarker) {
    using test::ProfileInternals;
    ProfileInternals::WriteRawValue(Profile(), "A", "Key", " " + common.NoValueMarker() + " ",
                                    kWincmd, false);
    EXPECT_FALSE(system.files.Get(kWincmd));
    ProfileInternals::WriteRawValue(Profile(), "A", "Key", "  a  ", kWincmd, true);
    EXPECT_EQ(Text(kWincmd), "[A]\r\nKey=\"a\"\r\n");
}

TEST_F(ProfileAccess, TheRawWriterDoesNotRedirect) {
    File("[A]\r\nRedirectSection=other.ini\r\n");
    test::ProfileInternals::WriteRawValue(Profile(), "A", "Key", "1", kWincmd, false);
    EXPECT_EQ(Text(kWincmd), "[A]\r\nRedirectSection=other.ini\r\nKey=1\r\n");
}

TEST_F(ProfileAccess, AnEmptyTextIsWrittenAsAnEmptyEntry) {
    Profile().WriteValue("A", "Key", "   ", kWincmd);
    EXPECT_EQ(Text(kWincmd), "[A]\r\nKey=\r\n");
}

TEST_F(ProfileAccess, DeletingRemovesEntriesAndSections) {
    File("[A]\r\nOne=1\r\nTwo=2\r\n[B]\r\nKey=1\r\n");
    Profile().DeleteValue("a", "one", kWincmd);
    EXPECT_EQ(Text(kWincmd), "[A]\r\nTwo=2\r\n[B]\r\nKey=1\r\n");
    Profile().DeleteSection("b", kWincmd);
    EXPECT_EQ(Text(kWincmd), "[A]\r\nTwo=2\r\n");
}

TEST_F(ProfileAccess, DeletingWhatIsAbsentIsNoError) {
    File("[A]\r\nOne=1\r\n");
    Profile().DeleteValue("A", "Two", kWincmd);
    Profile().DeleteValue("B", "One", kWincmd);
    Profile().DeleteSection("B", kWincmd);
    Profile().DeleteSection("B", "C:\\tc\\missing.ini");
    EXPECT_EQ(Text(kWincmd), "[A]\r\nOne=1\r\n");
}

TEST_F(ProfileAccess, ListsAreEmptyAtFirst) {
    EXPECT_EQ(Profile().FileSectionsNameLastIndex(), -1);
    EXPECT_EQ(Profile().SectionKeysNameAndValueLastIndex(), -1);
    EXPECT_EQ(Profile().SectionKeysNameOnlyLastIndex(), -1);
    EXPECT_THROW(Profile().FileSectionsNameList(0), SubscriptOutOfRange);
    EXPECT_THROW(Profile().SectionKeysNameAndValueList(0), SubscriptOutOfRange);
    EXPECT_THROW(Profile().SectionKeysNameOnlyList(0), SubscriptOutOfRange);
}

TEST_F(ProfileAccess, ListsTheSectionsOfAFile) {
    File("; first\r\n[Configuration]\r\nKey=1\r\n[Colors]\r\n[Tabs]\r\n");
    Profile().ReadFileSectionsName(kWincmd);
    EXPECT_EQ(Profile().FileSectionsNameLastIndex(), 2);
    EXPECT_EQ(Profile().FileSectionsNameList(0), "Configuration");
    EXPECT_EQ(Profile().FileSectionsNameList(1), "Colors");
    EXPECT_EQ(Profile().FileSectionsNameList(2), "Tabs");
}

TEST_F(ProfileAccess, ListsTheEntriesOfASection) {
    File("[A]\r\nOne=1\r\nTwo = b=c \r\nEmpty=\r\n[B]\r\nKey=1\r\n");
    Profile().ReadSectionKeysNameAndValue("a", kWincmd);
    EXPECT_EQ(Profile().SectionKeysNameAndValueLastIndex(), 2);
    EXPECT_EQ(Profile().SectionKeysNameAndValueList(0), "One=1");
    EXPECT_EQ(Profile().SectionKeysNameAndValueList(1), "Two=b=c");
    EXPECT_EQ(Profile().SectionKeysNameAndValueList(2), "Empty=");
    Profile().ReadSectionKeysNameOnly("a", kWincmd);
    EXPECT_THAT(KeyNames(), ElementsAre("One", "Two", "Empty"));
}

// What splitting leaves behind the last NUL stays in the list; the last index does not count it.
TEST_F(ProfileAccess, TheEmptyElementAtAListsEndCanBeReadButDoesNotCount) {
    File("[A]\r\nOne=1\r\n");
    Profile().ReadSectionKeysNameOnly("A", kWincmd);
    EXPECT_EQ(Profile().SectionKeysNameOnlyLastIndex(), 0);
    EXPECT_EQ(Profile().SectionKeysNameOnlyList(1), "");
    EXPECT_THROW(Profile().SectionKeysNameOnlyList(2), SubscriptOutOfRange);
    EXPECT_THROW(Profile().SectionKeysNameOnlyList(-1), SubscriptOutOfRange);
    Profile().ReadSectionKeysNameAndValue("A", kWincmd);
    EXPECT_EQ(Profile().SectionKeysNameAndValueList(1), "");
    EXPECT_THROW(Profile().SectionKeysNameAndValueList(2), SubscriptOutOfRange);
    Profile().ReadFileSectionsName(kWincmd);
    EXPECT_EQ(Profile().FileSectionsNameList(1), "");
    EXPECT_THROW(Profile().FileSectionsNameList(2), SubscriptOutOfRange);
}

TEST_F(ProfileAccess, AListStaysUntilItIsReadAgain) {
    File("[A]\r\nOne=1\r\n");
    Profile().ReadSectionKeysNameOnly("A", kWincmd);
    Profile().ReadSectionKeysNameAndValue("B", kWincmd);
    Profile().ReadFileSectionsName("C:\\tc\\missing.ini");
    EXPECT_THAT(KeyNames(), ElementsAre("One"));
    EXPECT_EQ(Profile().FileSectionsNameLastIndex(), -1);
    Profile().ReadSectionKeysNameOnly("B", kWincmd);
    EXPECT_THAT(KeyNames(), ElementsAre());
}

// Two characters of the buffer are for the NULs that end a list.
TEST_F(ProfileAccess, AListIsCutToTheBuffer) {
    File("[A]\r\nOne=1\r\nTwo=2\r\n[B]\r\n[C]\r\n");
    Profile().ReadSectionKeysNameOnly("A", kWincmd, 8);
    EXPECT_THAT(KeyNames(), ElementsAre("One", "Tw"));
    Profile().ReadSectionKeysNameAndValue("A", kWincmd, 10);
    EXPECT_EQ(Profile().SectionKeysNameAndValueList(1), "Tw");
    Profile().ReadFileSectionsName(kWincmd, 5);
    EXPECT_EQ(Profile().FileSectionsNameList(1), "B");
}

TEST_F(ProfileAccess, SortingPutsTheLastNameFirstIgnoringCase) {
    File("[A]\r\nbeta=1\r\nAlpha=2\r\nGAMMA=3\r\nalpine=4\r\n");
    Profile().ReadSectionKeysNameOnly("A", kWincmd);
    Profile().SortKeysNameOnlyList();
    EXPECT_THAT(KeyNames(), ElementsAre("GAMMA", "beta", "alpine", "Alpha"));
    EXPECT_EQ(Profile().SectionKeysNameOnlyList(4), "");
}

TEST_F(ProfileAccess, SortingAnEmptyListDoesNothing) {
    Profile().SortKeysNameOnlyList();
    EXPECT_EQ(Profile().SectionKeysNameOnlyLastIndex(), -1);
}

TEST_F(ProfileAccess, PathsThatTheCodePageCannotHoldSurvive) {
    const std::string path = "C:\\\xD0\x96\xD1\x83\xD1\x80\xD0\xBD\xD0\xB0\xD0\xBB\\tc.log";
    Profile().WriteValue("Common", "Key", path, kWincmd);
    EXPECT_EQ(Read("Common", "Key"), path);
}

TEST_F(ProfileAccess, AReaderCanSayWhichCodePageAFileWithoutAMarkIsIn) {
    File("[UserLanguage]\r\n110=\xC2\xFB\xF5\xEE\xE4\r\n");
    EXPECT_EQ(Profile().ReadValue("UserLanguage", "110", "", kWincmd, 4096, 1251),
              "\xD0\x92\xD1\x8B\xD1\x85\xD0\xBE\xD0\xB4");
}

TEST_F(ProfileAccess, EveryFormOfAFileIsRead) {
    const std::string word = "L\xC3\xB6schen";
    File("\xEF\xBB\xBF[Configuration]\r\nKey=" + word + "\r\n");
    EXPECT_EQ(Read("Configuration", "Key"), word);
    File("[Configuration]\r\nKey=L\xF6schen\r\n");
    EXPECT_EQ(Read("Configuration", "Key"), word);
    File("[Configuration]\r\nKey=\xEF\xBB\xBF" + word + "\r\n");
    EXPECT_EQ(Read("Configuration", "Key"), word);
    std::string wide = "\xFF\xFE";
    for (const char c : std::string("[Configuration]\r\nKey=L\xF6schen\r\n")) {
        wide += c;
        wide += '\0';
    }
    File(wide);
    EXPECT_EQ(Read("Configuration", "Key"), word);
}

}  // namespace
}  // namespace ordalyn
