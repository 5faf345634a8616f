#include "log/RotatedLogs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/platform/MemoryFiles.h"

namespace ordalyn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Display = RotatedLogs::Display;

class RotatedLogsTest : public testing::Test {
  protected:
    void Put(std::initializer_list<const char*> names) {
        for (const char* name : names)
            files.Set(std::string("c:\\logs\\") + name, "");
    }
    RotatedLogs Build(const std::string& limit, const std::string& keep = "",
                      const std::string& log = "c:\\logs\\x.log") {
        return {files, {false, log, limit, keep}, "All files"};
    }
    test::MemoryFiles files;
};

TEST_F(RotatedLogsTest, NameAndFolderOfTheLiveLog) {
    const RotatedLogs logs = Build("0");
    EXPECT_EQ(logs.LiveLogName(), "x.log");
    EXPECT_EQ(logs.LogFolder(), "c:\\logs\\");
    EXPECT_EQ(Build("0", "", "x.log").LogFolder(), "");
}

TEST_F(RotatedLogsTest, ByDateEverySiblingIsListedInOrder) {
    Put({"xa.log", "x.log", "x_old.log", "y.log", "x.txt"});
    const RotatedLogs logs = Build("-1");
    EXPECT_THAT(logs.Items(), ElementsAre("All files", "x.log", "x_old.log", "xa.log"));
    EXPECT_EQ(logs.ComboDisplay(), Display::LiveLog);
}

TEST_F(RotatedLogsTest, ByDateTheLiveLogIsKnownInAnyLetterCase) {
    Put({"X.LOG", "x.2024-03-01.log"});
    EXPECT_THAT(Build("-1").Items(), ElementsAre("All files", "x.log", "x.2024-03-01.log"));
}

TEST_F(RotatedLogsTest, ByDateALoneLogLeavesTheListAsItIs) {
    Put({"x.log"});
    const RotatedLogs logs = Build("-1");
    EXPECT_THAT(logs.Items(), ElementsAre("x.log"));
    EXPECT_EQ(logs.ComboDisplay(), Display::Unchanged);
}

TEST_F(RotatedLogsTest, BySizeExistingNumbersAreListed) {
    Put({"x.log", "x.1.log", "x.3.log", "x.4.log", "x_old.log"});
    const RotatedLogs logs = Build("1000", "3");
    EXPECT_THAT(logs.Items(), ElementsAre("All files", "x.log", "x.1.log", "x.3.log"));
}

TEST_F(RotatedLogsTest, BySizeNumbersComeInNumericOrder) {
    Put({"x.log", "x.10.log", "x.2.log", "x.1.log"});
    EXPECT_THAT(Build("1000", "30").Items(),
                ElementsAre("All files", "x.log", "x.1.log", "x.2.log", "x.10.log"));
}

TEST_F(RotatedLogsTest, BySizeALoneLogIsSelectedButNotShown) {
    Put({"x.log"});
    const RotatedLogs logs = Build("1000", "3");
    EXPECT_THAT(logs.Items(), ElementsAre("x.log"));
    EXPECT_EQ(logs.ComboDisplay(), Display::LiveLog);
}

TEST_F(RotatedLogsTest, WithoutRotationTheListIsHiddenWhateverThereIs) {
    Put({"x.log", "x.1.log"});
    for (const std::string& limit : {std::string("0"), std::string(""), std::string("abc"),
                                     std::string("vxz20240301101530zxv")}) {
        const RotatedLogs logs = Build(limit, "3");
        EXPECT_EQ(logs.ComboDisplay(), Display::Hidden) << limit;
        EXPECT_THAT(logs.Items(), ElementsAre("All files", "x.log"));
    }
}

TEST_F(RotatedLogsTest, TheLimitIsTheNumberThatItsTextBeginsWith) {
    Put({"x.log", "x.1.log", "xa.log"});
    EXPECT_THAT(Build(" -1 daily", "1").Items(),
                ElementsAre("All files", "x.log", "x.1.log", "xa.log"));
    EXPECT_THAT(Build("500kB", "1").Items(), ElementsAre("All files", "x.log", "x.1.log"));
    EXPECT_THAT(Build("-2", "1").Items(), ElementsAre("All files", "x.log", "x.1.log"));
    EXPECT_THAT(Build("0.5", "1").Items(), ElementsAre("All files", "x.log", "x.1.log"));
}

TEST_F(RotatedLogsTest, TheKeepCountIsRounded) {
    Put({"x.log", "x.1.log", "x.2.log", "x.3.log"});
    EXPECT_THAT(Build("1", "1.6").Items(), ElementsAre("All files", "x.log", "x.1.log", "x.2.log"));
    EXPECT_THAT(Build("1", "2.5").Items(), ElementsAre("All files", "x.log", "x.1.log", "x.2.log"));
    for (const std::string& none : {std::string(""), std::string("0"), std::string("-5"),
                                    std::string("x"), std::string("99999999999")})
        EXPECT_THAT(Build("1", none).Items(), ElementsAre("All files", "x.log")) << none;
}

TEST_F(RotatedLogsTest, AHugeKeepCountFindsWhatIsThereAtOnce) {
    Put({"x.log", "x.1.log", "x.999.log", "x.1000.log", "x.1001.log", "X.70000.LOG", "x.0070.log",
         "x.2000000001.log", "x.12ab.log"});
    EXPECT_THAT(Build("1", "2000000000").Items(),
                ElementsAre("All files", "x.log", "x.1.log", "x.999.log", "x.1000.log",
                            "x.1001.log", "x.70000.log"));
}

TEST_F(RotatedLogsTest, AFolderUnderANumberedNameCounts) {
    // Whether a name exists is asked as everywhere in the program: a folder does.
    Put({"x.log", "xa.log"});
    files.AddFolder("c:\\logs\\x.2.log");
    EXPECT_THAT(Build("1", "3").Items(), ElementsAre("All files", "x.log", "x.2.log"));
}

TEST_F(RotatedLogsTest, AMissingFolderHasOnlyTheLiveLog) {
    EXPECT_THAT(Build("-1").Items(), ElementsAre("x.log"));
    EXPECT_EQ(Build("-1").ComboDisplay(), Display::Unchanged);
    EXPECT_EQ(Build("1000", "3").ComboDisplay(), Display::LiveLog);
}

TEST_F(RotatedLogsTest, AnAbsentLogFileLeavesTheListEmpty) {
    Put({"x.log", "x.1.log"});
    const RotatedLogs logs(files, {true, "vxz20240301101530zxv", "-1", "3"}, "All files");
    EXPECT_THAT(logs.Items(), IsEmpty());
    EXPECT_EQ(logs.ComboDisplay(), Display::Unchanged);
    EXPECT_EQ(logs.LiveLogName(), "vxz20240301101530zxv");
    EXPECT_EQ(logs.LogFolder(), "");
}

// A pattern that ends in a dot stands for the names without one.
TEST_F(RotatedLogsTest, ALogWithoutAnExtensionHasSiblingsWithoutOne) {
    Put({"log", "log_old", "log.1", "log.2", "log.txt"});
    EXPECT_THAT(Build("-1", "", "c:\\logs\\log").Items(),
                ElementsAre("All files", "log", "log_old"));
}

// Windows drops the dot and finds the file.
TEST_F(RotatedLogsTest, TheNumberedNamesOfALogWithoutAnExtensionKeepTheDot) {
    Put({"log", "log_old", "log.1", "log.3"});
    EXPECT_THAT(Build("1", "3", "c:\\logs\\log").Items(),
                ElementsAre("All files", "log", "log.1.", "log.3."));
}

}  // namespace
}  // namespace ordalyn
