// What became of a file or folder: each rule on a few lines of a log.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "history/FileHistory.h"
#include "support/history/HistoryModel.h"
#include "support/log/PaddedLine.h"

namespace ordalyn {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using enum StepKind;

class LivesTest : public ::testing::Test {
  protected:
    void Log(const std::vector<std::string>& operations) {
        for (const std::string& operation : operations)
            entries_.Add(SplitOperationLine(test::PaddedLine("15.03.2024 12:02:45: " + operation)));
    }
    std::vector<FileLife> Lives(std::string_view path) const {
        return FindLives(entries_, test::HistoryModel::Reader(), path);
    }
    // The only life of the path.
    std::vector<HistoryStep> Life(std::string_view path) const {
        const std::vector<FileLife> lives = Lives(path);
        EXPECT_EQ(lives.size(), 1U) << path;
        return lives.empty() ? std::vector<HistoryStep>() : lives.front().steps;
    }

    EntryLists entries_;
};

HistoryStep Step(std::int32_t entry, StepKind kind) {
    return {entry, kind};
}

TEST_F(LivesTest, AMoveIsFollowedToTheNewNameAndFromTheOldOne) {
    Log({R"(CreateFile: D:\a.txt)", R"(Move: D:\a.txt -> D:\b.txt)", R"(Copy: D:\x -> D:\y)",
         R"(Move: D:\b.txt -> E:\b.txt)", R"(Move: E:\b.txt -> E:\c.txt)", R"(Delete: E:\c.txt)"});
    const auto whole = ElementsAre(Step(0, Created), Step(1, Moved), Step(3, Moved), Step(4, Moved),
                                   Step(5, Deleted));
    for (const char* name : {R"(D:\a.txt)", R"(D:\b.txt)", R"(E:\b.txt)", R"(E:\c.txt)"})
        EXPECT_THAT(Life(name), whole) << name;
    EXPECT_EQ(Lives(R"(D:\a.txt)").front().path, R"(E:\c.txt)");
}

TEST_F(LivesTest, AThingThatComesBackToItsNameHasOneLife) {
    Log({R"(Move: D:\a -> D:\b)", R"(Move: D:\b -> D:\a)", R"(Test: D:\a)"});
    EXPECT_THAT(Life(R"(D:\a)"), ElementsAre(Step(0, Moved), Step(1, Moved), Step(2, Touched)));
}

TEST_F(LivesTest, AMoveOfAFolderAboveCarriesItAlong) {
    Log({R"(CreateFile: D:\work\plans\a.txt)", R"(Move: D:\work\ -> E:\old\)",
         R"(Delete: E:\old\plans\a.txt)"});
    const auto whole = ElementsAre(Step(0, Created), Step(1, MovedWithFolder), Step(2, Deleted));
    EXPECT_THAT(Life(R"(D:\work\plans\a.txt)"), whole);
    EXPECT_THAT(Life(R"(E:\old\plans\a.txt)"), whole);
    EXPECT_EQ(Lives(R"(D:\work\plans\a.txt)").front().path, R"(E:\old\plans\a.txt)");
}

TEST_F(LivesTest, AFolderThatIsMovedBringsWhatWasInIt) {
    Log({R"(Test: D:\old\a)", R"(Move: D:\old -> D:\new)", R"(Move: D:\new\a -> D:\b)"});
    EXPECT_THAT(Life(R"(D:\b)"),
                ElementsAre(Step(0, Touched), Step(1, MovedWithFolder), Step(2, Moved)));
}

TEST_F(LivesTest, ACopyIsWhereACopysHistoryBegins) {
    Log({R"(CreateFile: D:\a)", R"(Copy: D:\a -> E:\a)", R"(Delete: E:\a)", R"(Test: D:\a)"});
    EXPECT_THAT(Life(R"(E:\a)"), ElementsAre(Step(1, CopiedHere), Step(2, Deleted)));
    EXPECT_THAT(Life(R"(D:\a)"),
                ElementsAre(Step(0, Created), Step(1, CopiedAway), Step(3, Touched)));
}

TEST_F(LivesTest, ACopyOfAFolderAboveLeadsAwayAndBegins) {
    Log({R"(CreateFile: D:\w\a)", R"(Copy: D:\w -> E:\w)", R"(Delete: E:\w\a)"});
    EXPECT_THAT(Life(R"(E:\w\a)"), ElementsAre(Step(1, CopiedHere), Step(2, Deleted)));
    EXPECT_THAT(Life(R"(D:\w\a)"), ElementsAre(Step(0, Created), Step(1, CopiedAway)));
}

TEST_F(LivesTest, DeletingEndsALifeAndANewFileOfTheNameBeginsAnother) {
    Log({R"(CreateFile: D:\a)", R"(Delete: D:\a)", R"(CreateFile: D:\a)", R"(Move: D:\a -> D:\b)"});
    const std::vector<FileLife> lives = Lives(R"(D:\a)");
    ASSERT_EQ(lives.size(), 2U);
    EXPECT_THAT(lives[0].steps, ElementsAre(Step(0, Created), Step(1, Deleted)));
    EXPECT_THAT(lives[1].steps, ElementsAre(Step(2, Created), Step(3, Moved)));
    EXPECT_THAT(Life(R"(D:\b)"), ElementsAre(Step(2, Created), Step(3, Moved)));
}

TEST_F(LivesTest, DeletingAFolderAboveEndsALife) {
    Log({R"(CreateFile: D:\w\x\a)", R"(DeleteFolder: D:\w)", R"(CreateFile: D:\w\x\a)",
         R"(Delete: D:\w\)"});
    const std::vector<FileLife> lives = Lives(R"(D:\w\x\a)");
    ASSERT_EQ(lives.size(), 2U);
    EXPECT_THAT(lives[0].steps, ElementsAre(Step(0, Created), Step(1, DeletedWithFolder)));
    EXPECT_THAT(lives[1].steps, ElementsAre(Step(2, Created), Step(3, DeletedWithFolder)));
}

TEST_F(LivesTest, WhatTakesItsPlaceEndsALife) {
    for (const std::string onto :
         {R"(CreateFile: D:\a)", R"(Copy: D:\x -> D:\a)", R"(Move: D:\x -> D:\a)",
          R"(Unpack: D:\x.zip -> D:\a)", R"(Shortcut: D:\x -> D:\a)", R"(Copy: x -> D:\a)"}) {
        entries_.Clear();
        Log({R"(Test: D:\a)", onto, R"(Delete: D:\a)"});
        const std::vector<FileLife> lives = Lives(R"(D:\a)");
        ASSERT_EQ(lives.size(), 2U) << onto;
        EXPECT_THAT(lives[0].steps, ElementsAre(Step(0, Touched), Step(1, Replaced))) << onto;
        EXPECT_EQ(lives[1].steps.front().entry, 1) << onto;
        EXPECT_EQ(lives[1].steps.back(), Step(2, Deleted)) << onto;
    }
}

TEST_F(LivesTest, TheLifeOfWhatIsMovedOntoItIsAnother) {
    Log({R"(CreateFile: D:\a)", R"(CreateFile: D:\b)", R"(Move: D:\b -> D:\a)"});
    const std::vector<FileLife> lives = Lives(R"(D:\a)");
    ASSERT_EQ(lives.size(), 2U);
    EXPECT_THAT(lives[0].steps, ElementsAre(Step(0, Created), Step(2, Replaced)));
    EXPECT_THAT(lives[1].steps, ElementsAre(Step(1, Created), Step(2, Moved)));
}

TEST_F(LivesTest, WhatWasAtANameBeforeOrAfterIsNoneOfItsLives) {
    Log({R"(CreateFile: D:\b)", R"(Delete: D:\b)", R"(CreateFile: D:\a)", R"(Move: D:\a -> D:\b)",
         R"(Move: D:\b -> D:\c)", R"(CreateFile: D:\b)", R"(Delete: D:\b)"});
    EXPECT_THAT(Life(R"(D:\a)"), ElementsAre(Step(2, Created), Step(3, Moved), Step(4, Moved)));
    EXPECT_EQ(Lives(R"(D:\b)").size(), 3U);
}

TEST_F(LivesTest, WhatCameToAPlaceUnnoticedIsAnotherThing) {
    Log({R"(Delete: D:\q)", R"(Move: D:\q -> D:\a)", R"(Move: D:\q -> D:\b)"});
    EXPECT_THAT(Life(R"(D:\a)"), ElementsAre(Step(1, Moved)));
    EXPECT_THAT(Life(R"(D:\b)"), ElementsAre(Step(2, Moved)));
    EXPECT_EQ(Lives(R"(D:\q)").size(), 3U);
}

TEST_F(LivesTest, WhatFailedIsListedAndChangesNothing) {
    Log({R"(CreateFile: D:\w\a)", R"(Delete(Error: Aborted): D:\w\a)",
         R"(Move: Skipped: D:\w\a -> D:\b)", R"(DeleteFolder(Error: Failed): D:\w)",
         R"(Copy(Error: Not found): D:\x -> D:\w\a)", R"(Test: D:\w\a)"});
    EXPECT_THAT(Life(R"(D:\w\a)"), ElementsAre(Step(0, Created), Step(1, Failed), Step(2, Failed),
                                               Step(3, Failed), Step(4, Failed), Step(5, Touched)));
    EXPECT_THAT(Life(R"(D:\b)"), ElementsAre(Step(2, Failed)));
}

TEST_F(LivesTest, WhatFailedWhereNothingWasIsToldWithWhatWasThereLast) {
    Log({R"(Delete(Error: Not found): D:\a)", R"(CreateFile: D:\a)", R"(Delete: D:\a)",
         R"(Copy(Error: Not found): D:\a -> D:\b)", R"(CreateFile: D:\a)"});
    const std::vector<FileLife> lives = Lives(R"(D:\a)");
    ASSERT_EQ(lives.size(), 2U);
    EXPECT_THAT(lives[0].steps,
                ElementsAre(Step(0, Failed), Step(1, Created), Step(2, Deleted), Step(3, Failed)));
    EXPECT_THAT(lives[1].steps, ElementsAre(Step(4, Created)));
}

TEST_F(LivesTest, PathsCompareAsWindowsComparesThem) {
    Log({"Move: d:\\\xC3\x84pfel\\TASKS\\ -> D:\\\xC3\xA4PFEL\\Books\\"});
    EXPECT_THAT(Life("D:\\\xC3\xA4pfel\\tasks"), ElementsAre(Step(0, Moved)));
    EXPECT_THAT(Life("D:\\\xC3\xA4pfel\\books\\"), ElementsAre(Step(0, Moved)));
    EXPECT_THAT(Lives("D:/\xC3\xA4pfel/tasks"), IsEmpty());
    EXPECT_THAT(Lives("D:\\\xC3\xA4pfel\\task"), IsEmpty());
    EXPECT_THAT(Lives("D:\\\xC3\xA4pfel"), IsEmpty());
}

TEST_F(LivesTest, AFolderWhoseNameBeginsAlikeIsAnother) {
    Log({R"(Test: D:\work2\a)", R"(DeleteFolder: D:\work)", R"(Test: D:\work2\a)"});
    EXPECT_THAT(Life(R"(D:\work2\a)"), ElementsAre(Step(0, Touched), Step(2, Touched)));
}

TEST_F(LivesTest, BareNamesAndLinesThatCannotBeReadAreNobodys) {
    Log({R"(CreateFile: D:\notes.docx)", "Delete: notes.docx", R"(Delete(Error: D:\notes.docx)",
         R"(Move: D:\x->D:\notes.docx -> D:\y)"});
    entries_.Add({{}, R"(; Delete: D:\notes.docx)", {}});
    EXPECT_THAT(Life(R"(D:\notes.docx)"), ElementsAre(Step(0, Created)));
    EXPECT_THAT(Lives("notes.docx"), IsEmpty());
    EXPECT_THAT(Lives(""), IsEmpty());
    EXPECT_THAT(Lives("\\"), IsEmpty());
}

TEST_F(LivesTest, WhatIsMovedWithoutAFolderBeginsOrEndsThere) {
    Log({R"(Move: a.txt -> D:\a.txt)", R"(Move: D:\a.txt -> b.txt)", R"(CreateFile: D:\a.txt)"});
    const std::vector<FileLife> lives = Lives(R"(D:\a.txt)");
    ASSERT_EQ(lives.size(), 2U);
    EXPECT_THAT(lives[0].steps, ElementsAre(Step(0, Moved), Step(1, Moved)));
}

TEST_F(LivesTest, TheSignThatOneOfItsLettersMayBeIsThatLetter) {
    Log(
        {"Move: D:\\books\\tas\xE2\x84\xAA"
         "s -> \\\\na\xC5\xBF\\pub",
         "Delete: \\\\nas\\pub"});
    EXPECT_THAT(Life(R"(D:\books\tasks)"), ElementsAre(Step(0, Moved), Step(1, Deleted)));
}

TEST_F(LivesTest, AnArchiveTakesUpWhatIsPackedIntoIt) {
    Log({R"(Pack: D:\a -> D:\x.zip)", R"(Delete: D:\x.zip)", R"(Pack: D:\b -> D:\x.zip)",
         R"(Pack: D:\c -> D:\x.zip)", R"(Unpack: D:\x.zip -> D:\d)"});
    const std::vector<FileLife> lives = Lives(R"(D:\x.zip)");
    ASSERT_EQ(lives.size(), 2U);
    EXPECT_THAT(lives[0].steps, ElementsAre(Step(0, Touched), Step(1, Deleted)));
    EXPECT_THAT(lives[1].steps, ElementsAre(Step(2, Created), Step(3, Touched), Step(4, Touched)));
    EXPECT_THAT(Life(R"(D:\a)"), ElementsAre(Step(0, Touched)));
    EXPECT_THAT(Life(R"(D:\d)"), ElementsAre(Step(4, Created)));
}

TEST_F(LivesTest, WhatWasInAFolderIsNotWhatComesIntoIt) {
    for (const std::string word : {"Copy", "Move"}) {
        entries_.Clear();
        Log({R"(Test: D:\w\a)", word + R"(: D:\x -> D:\w)", R"(Delete: D:\w\a)"});
        EXPECT_THAT(Life(R"(D:\w\a)"), ElementsAre(Step(0, Touched), Step(2, Deleted))) << word;
    }
}

TEST_F(LivesTest, ACopyOntoItselfIsNoOtherThing) {
    Log({R"(Copy: D:\a -> d:\A)", R"(Delete: D:\a)"});
    EXPECT_THAT(Life(R"(D:\a)"), ElementsAre(Step(0, Touched), Step(1, Deleted)));
}

TEST_F(LivesTest, AnEntryIsListedOnceHoweverOftenItNamesTheThing) {
    Log({R"(Frobnicate: D:\a -> D:\A)", R"(Move(Error: Aborted): D:\a -> D:\A)"});
    EXPECT_THAT(Life(R"(D:\a)"), ElementsAre(Step(0, Touched), Step(1, Failed)));
}

TEST_F(LivesTest, ThePathIsWrittenAsInTheLog) {
    Log({R"(NewFolder: D:\Reports\)", R"(Delete: D:\Work\Plan.TXT)"});
    EXPECT_EQ(Lives(R"(d:\reports)").front().path, R"(D:\Reports)");
    EXPECT_EQ(Lives(R"(d:\work\plan.txt)").front().path, R"(D:\Work\Plan.TXT)");
}

// All that the log says is what became of the folder: that is worth knowing.
TEST_F(LivesTest, WhatOnlyAFolderTellsOfIsToldWhenThereIsNothingElse) {
    Log({R"(Move: D:\work -> E:\work)", R"(DeleteFolder: E:\work)"});
    EXPECT_THAT(Life(R"(D:\work\plan.txt)"),
                ElementsAre(Step(0, MovedWithFolder), Step(1, DeletedWithFolder)));
    Log({R"(CreateFile: D:\work\plan.txt)"});
    EXPECT_THAT(Life(R"(D:\work\plan.txt)"), ElementsAre(Step(2, Created)));
}

TEST_F(LivesTest, TheSummaryCountsMovesAndSaysWhenItWasSeenLast) {
    Log({R"(CreateFile: D:\w\a)", R"(Move: D:\w\a -> D:\w\b)", R"(Move: D:\w -> D:\v)",
         R"(Copy: D:\v\b -> E:\b)", R"(Test(Error: Aborted): D:\v\b)", R"(Delete: D:\v\b)"});
    const std::vector<FileLife> lives = Lives(R"(D:\w\a)");
    ASSERT_EQ(lives.size(), 1U);
    const LifeSummary summary = Summarise(lives[0]);
    EXPECT_EQ(summary.moves, 2);
    EXPECT_EQ(summary.seen, 3);
    EXPECT_EQ(summary.deleted, 5);
    EXPECT_EQ(summary.replaced, kNoEntry);
    EXPECT_EQ(lives[0].path, R"(D:\v\b)");
}

TEST_F(LivesTest, ASummaryNamesWhatTookItsPlace) {
    Log({R"(Test: D:\a)", R"(Copy: D:\x -> D:\a)"});
    const LifeSummary summary = Summarise(Lives(R"(D:\a)").front());
    EXPECT_EQ(summary.seen, 0);
    EXPECT_EQ(summary.replaced, 1);
    EXPECT_EQ(summary.deleted, kNoEntry);
}

// Read from 1 on, the newest of them, and the live log last.
TEST_F(LivesTest, NumberedLogsAreTakenInTheOrderOfTime) {
    entries_.SetFile("tc.1.log");
    Log({R"(Move: D:\b -> D:\c)", R"(CreateFile: D:\a)"});
    entries_.SetFile("tc.2.log");
    Log({R"(Move: D:\a -> D:\b)"});
    entries_.SetFile("tc.10.log");
    Log({R"(Test: D:\x)", R"(CreateFile: D:\a)"});
    entries_.SetFile("tc.log");
    Log({R"(Test: D:\c)"});
    entries_.AddWithoutFile(
        SplitOperationLine(test::PaddedLine(R"(16.03.2024 12:00:00: Delete: D:\c)")));
    const auto story = ElementsAre(Step(4, Created), Step(2, Moved), Step(0, Moved),
                                   Step(5, Touched), Step(6, Deleted));
    EXPECT_THAT(Life(R"(D:\c)"), story);
    const std::vector<FileLife> lives = Lives(R"(D:\a)");
    ASSERT_EQ(lives.size(), 2U);
    EXPECT_THAT(lives[0].steps, story);
    EXPECT_THAT(lives[1].steps, ElementsAre(Step(1, Created)));
}

TEST_F(LivesTest, LogsWithDatesAreInTheOrderOfTimeAlready) {
    for (const char* file : {"tc.20240314.log", "tc.20240315.log", "tc.log"}) {
        entries_.SetFile(file);
        Log({std::string(file).size() > 6 ? R"(Test: D:\a)" : R"(Delete: D:\a)"});
    }
    EXPECT_THAT(Life(R"(D:\a)"), ElementsAre(Step(0, Touched), Step(1, Touched), Step(2, Deleted)));
}

TEST_F(LivesTest, AnEmptyLogTellsNothing) {
    EXPECT_THAT(Lives(R"(D:\a)"), IsEmpty());
}

}  // namespace
}  // namespace ordalyn
