#include "log/Operation.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace ordalyn {

void PrintTo(OperationKind kind, std::ostream* out) {
    *out << static_cast<int>(kind);
}

namespace test {
namespace {

using enum OperationKind;

class Operations : public testing::Test {
  protected:
    Operation Read(std::string_view behindTime, std::string_view target = {}) {
        field = "10:15:30: " + std::string(behindTime) + (target.empty() ? "" : " ");
        return german.Read(field, target);
    }
    void Expect(std::string_view behindTime, OperationKind kind, std::string_view word,
                std::string_view outcome, std::string_view source) {
        SCOPED_TRACE(behindTime);
        const Operation read = Read(behindTime);
        EXPECT_EQ(read.kind, kind);
        EXPECT_EQ(read.word, word);
        EXPECT_EQ(read.outcome, outcome);
        EXPECT_EQ(read.source, source);
        EXPECT_EQ(read.target, "");
        EXPECT_EQ(read.Failed(), !outcome.empty());
    }
    void ExpectUnreadable(std::string_view sourceField, std::string_view target = {}) {
        SCOPED_TRACE(sourceField);
        const Operation read = german.Read(sourceField, target);
        EXPECT_EQ(read.kind, None);
        EXPECT_EQ(read.word, "");
        EXPECT_EQ(read.outcome, "");
        EXPECT_EQ(read.source, "");
        EXPECT_EQ(read.target, "");
    }

    std::string field;
    OperationReader german{{{ProgramStart, "Programmstart"},
                            {Copy, "Kopieren"},
                            {Delete, "Löschen"},
                            {DeleteFolder, "OrdnerLöschen"},
                            {Move, "Přesun          "},
                            {OperationKind::Test, ""},
                            {Pack, "Packen (neu)"},
                            {Unpack, "解"},
                            {ProgramStart, "Program start"},
                            {ProgramShutdown, "Program shutdown"},
                            {Copy, "Copy"},
                            {Move, "Move"},
                            {NewFolder, "Move"},
                            {Delete, "Supprimer"},
                            {DeleteFolder, "Supprimer dossier"},
                            {Delete, "Delete"},
                            {DeleteFolder, "DeleteFolder"}}};
};

TEST_F(Operations, TodaysLinesHaveTheirPathBehindAColon) {
    Expect("Copy: C:\\a.txt", Copy, "Copy", "", "C:\\a.txt");
    Expect("Löschen: d:\\Größe\\x y.txt", Delete, "Löschen", "", "d:\\Größe\\x y.txt");
    Expect("DeleteFolder: \\\\server\\share\\old\\", DeleteFolder, "DeleteFolder", "",
           "\\\\server\\share\\old\\");
    Expect("Copy: \\\\\\FTP\\host\\a.txt", Copy, "Copy", "", "\\\\\\FTP\\host\\a.txt");
}

TEST_F(Operations, TodaysLinesCanHaveABareName) {
    Expect("DeleteFolder: LingJing", DeleteFolder, "DeleteFolder", "", "LingJing");
    Expect("Copy: notes (1).docx", Copy, "Copy", "", "notes (1).docx");
    Expect("Copy: file.txt:stream", Copy, "Copy", "", "file.txt:stream");
    Expect("Copy(Error: Aborted): notes.docx", Copy, "Copy", "Error: Aborted", "notes.docx");
    Expect("Copy:", Copy, "Copy", "", "");
    Expect("Copy", Copy, "Copy", "", "");
}

TEST_F(Operations, WhatStandsInBracketsIsTheOutcome) {
    Expect("Copy(Error: Aborted): D:\\a.txt", Copy, "Copy", "Error: Aborted", "D:\\a.txt");
    Expect("Kopieren (Fehler: Zu groß ): D:\\a.txt", Copy, "Kopieren", "Fehler: Zu groß",
           "D:\\a.txt");
    Expect("复制文件(错误： 中止): D:\\a.txt", Other, "复制文件", "错误： 中止", "D:\\a.txt");
    Expect("Copy(Error: Bad parameter(s)): D:\\a.txt", Copy, "Copy", "Error: Bad parameter(s)",
           "D:\\a.txt");
    Expect("Copy(C:\\in use): D:\\a.txt", Copy, "Copy", "C:\\in use", "D:\\a.txt");
    Expect("Copy(Skipped) D:\\a.txt", Copy, "Copy", "Skipped", "D:\\a.txt");
    Expect("Copy(): D:\\a.txt", Copy, "Copy", "", "D:\\a.txt");
}

TEST_F(Operations, OlderLinesHaveNoColonBehindTheWord) {
    Expect("Copy C:\\a.txt", Copy, "Copy", "", "C:\\a.txt");
    Expect("Kopieren \\\\\\FTP\\x", Copy, "Kopieren", "", "\\\\\\FTP\\x");
}

TEST_F(Operations, OlderLinesHaveTheOutcomeBetweenWordAndPath) {
    Expect("Copy: Skipped C:\\x", Copy, "Copy", "Skipped", "C:\\x");
    Expect("Kopieren: Fehler: Lesefehler: \\\\\\FTP\\x", Copy, "Kopieren", "Fehler: Lesefehler",
           "\\\\\\FTP\\x");
    Expect("Delete: Error: C:\\x", Delete, "Delete", "Error", "C:\\x");
    Expect("Copy Skipped C:\\x", Copy, "Copy", "Skipped", "C:\\x");
    Expect("Delete:错误：C:\\x", Delete, "Delete", "错误：", "C:\\x");
}

TEST_F(Operations, AnOutcomeWithoutAPathIsNoBareName) {
    Expect("Copy: Error: Read error: notes.docx", Copy, "Copy", "Error: Read error: notes.docx",
           "");
    Expect("Delete: Error:", Delete, "Delete", "Error", "");
    Expect("Copy(Error: x): Error: y", Copy, "Copy", "Error: x", "");
}

TEST_F(Operations, OfSeveralWordsThatFitTheLongestCounts) {
    Expect("Supprimer dossier: C:\\x", DeleteFolder, "Supprimer dossier", "", "C:\\x");
    Expect("Supprimer: C:\\x", Delete, "Supprimer", "", "C:\\x");
    Expect("Packen (neu): C:\\x", Pack, "Packen (neu)", "", "C:\\x");
}

TEST_F(Operations, OfEqualWordsTheFirstCounts) {
    Expect("Move: C:\\x", Move, "Move", "", "C:\\x");
}

TEST_F(Operations, AWordCanBeASingleCharacter) {
    Expect("解: C:\\x", Unpack, "解", "", "C:\\x");
}

TEST_F(Operations, AWordEndsWhereItEnds) {
    Expect("Copying: C:\\x", Other, "Copying", "", "C:\\x");
    Expect("DeleteAll: C:\\x", Other, "DeleteAll", "", "C:\\x");
}

TEST_F(Operations, WordsAreKnownInAnyLetterCaseAndKeepTheirs) {
    Expect("KOPIEREN: C:\\x", Copy, "KOPIEREN", "", "C:\\x");
    Expect("LÖSCHEN: C:\\x", Delete, "LÖSCHEN", "", "C:\\x");
    // The Kelvin sign is a k that takes three bytes.
    Expect("\xE2\x84\xAAopieren: C:\\x", Copy, "\xE2\x84\xAAopieren", "", "C:\\x");
}

TEST_F(Operations, BlanksThatPadAWordAreNoPartOfIt) {
    Expect("Přesun          : C:\\x", Move, "Přesun", "", "C:\\x");
    Expect("Přesun: C:\\x", Move, "Přesun", "", "C:\\x");
}

TEST_F(Operations, WordsOfOtherLanguagesEndAtTheFirstBracketOrColon) {
    Expect("Déplacer: C:\\x", Other, "Déplacer", "", "C:\\x");
    Expect("Déplacer(Erreur : x): C:\\x", Other, "Déplacer", "Erreur : x", "C:\\x");
    Expect("Nouveau dossier C:\\x", Other, "Nouveau dossier", "", "C:\\x");
    Expect("Déplacer \\\\server\\x", Other, "Déplacer", "", "\\\\server\\x");
}

TEST_F(Operations, ProgramStartAndEndNameAUserAndNoOutcome) {
    Expect("Program start (anna/DESK7) UTF-8", ProgramStart, "Program start", "", "");
    Expect("Program shutdown (anna/DESK7)", ProgramShutdown, "Program shutdown", "", "");
    ExpectUnreadable("10:15:30: Départ du programme (anna/DESK7) UTF-8");
}

TEST_F(Operations, TheTargetIsThePathBehindTheArrow) {
    const Operation read = Read("Copy: C:\\a.txt", "D:\\b\\a.txt ");
    EXPECT_EQ(read.source, "C:\\a.txt");
    EXPECT_EQ(read.target, "D:\\b\\a.txt");
    EXPECT_EQ(Read("Copy(Error: x): C:\\a.txt", "D:\\b").target, "D:\\b");
}

TEST_F(Operations, AnArrowInsideANameLeavesNothingThatIsCertain) {
    ExpectUnreadable("10:15:30: Copy: C:\\a", "b.txt -> D:\\x");
    ExpectUnreadable("10:15:30: Copy: C:\\a ", "b.txt -> D:\\x");
    ExpectUnreadable("10:15:30: Copy: C:\\a", "b.txt");
}

TEST_F(Operations, ADateWithBlanksLeavesTheRestOfItBeforeTheTime) {
    field = "2. 2024 10:15:30: Copy: C:\\a.txt";
    EXPECT_EQ(german.Read(field, {}).source, "C:\\a.txt");
    field = "10:15:30 AM: Copy: C:\\a.txt";
    EXPECT_EQ(german.Read(field, {}).kind, Copy);
}

TEST_F(Operations, WhatIsNoOperationIsNotGuessedAt) {
    ExpectUnreadable("");
    ExpectUnreadable("; 10:15:30: Copy: C:\\a.txt");
    ExpectUnreadable("Copy: C:\\a.txt");
    ExpectUnreadable("10:15:30:");
    ExpectUnreadable("10:15:30: ");
    ExpectUnreadable("10:15:30: something else");
    ExpectUnreadable("10:15:30: Copy that");
    ExpectUnreadable("10:15:30: Copy(Error: C:\\a.txt");
    ExpectUnreadable("10:15:30: Copy(anna)");
    ExpectUnreadable("10:15:30: C:\\a.txt");
    ExpectUnreadable("10:15:30: : C:\\a.txt");
    ExpectUnreadable("10:15:30: 12:30 C:\\a.txt");
    ExpectUnreadable("10:15:30: 0x: C:\\a.txt");
    ExpectUnreadable("10:15:30: 9x: C:\\a.txt");
    ExpectUnreadable("ax1:Copy C:\\a.txt");
}

TEST_F(Operations, ADriveLetterIsNoPartOfALongerWord) {
    Expect("Copy: abC:\\x", Copy, "Copy", "", "abC:\\x");
    Expect("Copy: dir\\\\x", Copy, "Copy", "", "dir\\\\x");
}

TEST(WholePaths, AreThoseOnADriveInTheNetworkOrOfAPlugin) {
    EXPECT_TRUE(IsWholePath("C:\\"));
    EXPECT_TRUE(IsWholePath("A:\\"));
    EXPECT_TRUE(IsWholePath("Z:\\"));
    EXPECT_TRUE(IsWholePath("a:\\"));
    EXPECT_TRUE(IsWholePath("z:\\a"));
    EXPECT_TRUE(IsWholePath("\\\\server\\share"));
    EXPECT_TRUE(IsWholePath("\\\\\\plugin\\x"));
    EXPECT_FALSE(IsWholePath(""));
    EXPECT_FALSE(IsWholePath("C:"));
    EXPECT_FALSE(IsWholePath("C:a"));
    EXPECT_FALSE(IsWholePath("1:\\a"));
    EXPECT_FALSE(IsWholePath("\\a"));
    EXPECT_FALSE(IsWholePath("a.txt"));
}

}  // namespace
}  // namespace test
}  // namespace ordalyn
