// Files: reading beside other programs, existence, listing, replacing.
#include <gmock/gmock.h>

#include "base/Errors.h"
#include "contract/platform/Subject.h"

namespace ordalyn::contract {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FilesContract : public PlatformContract {
  protected:
    platform::Files& Files() { return Services().files; }
    std::unique_ptr<platform::ReadableFile> Open(std::string_view name) {
        return Files().OpenForReading(System().Path(name));
    }
    unsigned long ErrorOfOpening(const std::string& path) {
        try {
            Files().OpenForReading(path);
        } catch (const FileError& error) {
            EXPECT_EQ(error.Path(), path);
            return error.Code();
        }
        return 0;
    }
};

std::string ReadRest(platform::ReadableFile& file) {
    std::string rest;
    char buffer[5];
    while (const std::size_t count = file.Read(buffer, sizeof buffer))
        rest.append(buffer, count);
    return rest;
}

std::string ReadSome(platform::ReadableFile& file, std::size_t wanted) {
    std::string bytes(wanted, '\0');
    bytes.resize(file.Read(bytes.data(), wanted));
    return bytes;
}

}  // namespace

TEST_P(FilesContract, AFileIsReadInPartsToItsEnd) {
    System().SetBytes("a.log", std::string("one\r\ntwo\0three", 14));
    const auto file = Open("a.log");
    EXPECT_EQ(ReadRest(*file), std::string("one\r\ntwo\0three", 14));
    char more = 0;
    EXPECT_EQ(file->Read(&more, 1), 0U);
}

TEST_P(FilesContract, AnEmptyFileIsAtItsEndAtOnce) {
    System().SetBytes("a.log", "");
    EXPECT_EQ(ReadRest(*Open("a.log")), "");
    EXPECT_EQ(platform::ReadAllBytes(Files(), System().Path("a.log")), "");
}

TEST_P(FilesContract, AFileIsGoneOnWithAtAnyPlace) {
    System().SetBytes("a.log", "one two three");
    const auto file = Open("a.log");
    EXPECT_EQ(ReadSome(*file, 3), "one");
    EXPECT_TRUE(file->Seek(8));
    EXPECT_EQ(ReadRest(*file), "three");
    EXPECT_TRUE(file->Seek(0));
    EXPECT_EQ(ReadSome(*file, 3), "one");
    EXPECT_TRUE(file->Seek(100));
    EXPECT_EQ(ReadRest(*file), "");
}

TEST_P(FilesContract, WhatCannotBeOpenedIsAnErrorThatNamesTheFile) {
    System().AddFolder("folder");
    EXPECT_EQ(ErrorOfOpening(System().Path("none.log")), 2U);        // not found
    EXPECT_EQ(ErrorOfOpening(System().Path("none\\none.log")), 3U);  // no such folder
    EXPECT_EQ(ErrorOfOpening(System().Path("folder")), 5U);          // a folder
    EXPECT_THROW(Files().OpenForReading(""), FileError);
    EXPECT_EQ(platform::ReadAllBytes(Files(), System().Path("none.log")), std::nullopt);
}

TEST_P(FilesContract, AFileThatIsOpenWithoutSharingCannotBeRead) {
    System().SetBytes("a.log", "text");
    {
        const std::shared_ptr<void> lock = System().Lock("a.log");
        EXPECT_EQ(ErrorOfOpening(System().Path("a.log")), 32U);
        EXPECT_TRUE(Files().Exists(System().Path("a.log")));
    }
    EXPECT_EQ(ReadRest(*Open("a.log")), "text");
}

TEST_P(FilesContract, OthersMayAppendWhileAFileIsRead) {
    System().SetBytes("a.log", "one\r\n");
    const auto file = Open("a.log");
    EXPECT_EQ(ReadSome(*file, 3), "one");
    System().Append("a.log", "two\r\n");
    EXPECT_EQ(ReadRest(*file), "\r\ntwo\r\n");
}

TEST_P(FilesContract, OthersMayRenameAFileThatIsRead) {
    System().SetBytes("a.log", "one\r\n");
    const auto file = Open("a.log");
    System().Rename("a.log", "a.1.log");
    System().SetBytes("a.log", "new");
    EXPECT_EQ(ReadRest(*file), "one\r\n");
    EXPECT_EQ(System().Bytes("a.1.log"), "one\r\n");
}

TEST_P(FilesContract, OthersMayDeleteAFileThatIsRead) {
    System().SetBytes("a.log", "one\r\n");
    {
        const auto file = Open("a.log");
        System().Delete("a.log");
        EXPECT_EQ(ReadRest(*file), "one\r\n");
    }
    EXPECT_FALSE(Files().Exists(System().Path("a.log")));
}

TEST_P(FilesContract, AFileExistsInAnyLetterCase) {
    System().SetBytes("Log.txt", "");
    EXPECT_TRUE(Files().Exists(System().Path("lOG.TXT")));
    EXPECT_FALSE(Files().Exists(System().Path("Log.tx")));
    EXPECT_FALSE(Files().Exists(System().Path("none\\Log.txt")));
}

TEST_P(FilesContract, AFolderExistsUnlessItsNameEndsInABackslash) {
    System().AddFolder("folder");
    EXPECT_TRUE(Files().Exists(System().Path("folder")));
    EXPECT_FALSE(Files().Exists(System().Path("folder\\")));
    EXPECT_FALSE(Files().Exists("C:\\"));
}

TEST_P(FilesContract, AWildcardExistsWhenSomethingMatchesIt) {
    System().SetBytes("x.1.log", "");
    System().AddFolder("folder");
    EXPECT_TRUE(Files().Exists(System().Path("x*.log")));
    EXPECT_TRUE(Files().Exists(System().Path("X.?.LOG")));
    EXPECT_TRUE(Files().Exists(System().Path("fol*")));
    EXPECT_FALSE(Files().Exists(System().Path("y*.log")));
    EXPECT_TRUE(Files().Exists(System().Path("folder\\*")));  // the folder itself is in it
    EXPECT_FALSE(Files().Exists(System().Path("none\\*")));
}

TEST_P(FilesContract, AnEmptyOrMalformedPathDoesNotExist) {
    EXPECT_FALSE(Files().Exists(""));
    EXPECT_FALSE(Files().Exists(System().Path("a|b")));
    EXPECT_FALSE(Files().Exists(System().Path("a<b>")));
}

TEST_P(FilesContract, ARelativePathCountsFromTheCurrentFolder) {
    System().SetBytes("a.log", "text");
    const std::shared_ptr<void> inFolder = System().EnterFolder();
    EXPECT_TRUE(Files().Exists("a.log"));
    EXPECT_TRUE(Files().Exists(".\\a.log"));
    EXPECT_EQ(platform::ReadAllBytes(Files(), "a.log"), "text");
    EXPECT_THAT(Files().List("", "*.log"), ElementsAre("a.log"));
    Files().Replace("a.log", "new");
    EXPECT_EQ(System().Bytes("a.log"), "new");
}

TEST_P(FilesContract, SlashesAndDotsInPathsAreUnderstood) {
    System().AddFolder("folder");
    System().SetBytes("folder\\a.log", "text");
    EXPECT_TRUE(Files().Exists(System().Path("folder/a.log")));
    EXPECT_TRUE(Files().Exists(System().Path("folder\\..\\folder\\.\\a.log")));
}

TEST_P(FilesContract, ListingGivesTheMatchingFilesInOrderIgnoringCase) {
    for (const char* name : {"x.2.log", "X.log", "x.10.log", "X.1.LOG", "y.log", "x.txt"})
        System().SetBytes(name, "");
    System().AddFolder("x.folder.log");
    EXPECT_THAT(Files().List(System().Folder(), "x*.log"),
                ElementsAre("X.1.LOG", "x.10.log", "x.2.log", "X.log"));
    EXPECT_THAT(Files().List(System().Folder() + "\\", "*.txt"), ElementsAre("x.txt"));
}

TEST_P(FilesContract, ListingIncludesHiddenFiles) {
    System().SetBytes("x.log", "");
    System().SetBytes("x.1.log", "");
    System().Hide("x.1.log");
    EXPECT_THAT(Files().List(System().Folder(), "x*.log"), ElementsAre("x.1.log", "x.log"));
}

TEST_P(FilesContract, ListingMatchesLongNamesOnly) {
    // The short name of this file would end in ".log".
    System().SetBytes("name.logbook", "");
    EXPECT_THAT(Files().List(System().Folder(), "*.log"), IsEmpty());
    EXPECT_THAT(Files().List(System().Folder(), "*"), ElementsAre("name.logbook"));
    System().SetBytes("no extension", "");
    EXPECT_THAT(Files().List(System().Folder(), "*.*"),
                ElementsAre("name.logbook", "no extension"));
    EXPECT_THAT(Files().List(System().Folder(), "n*."), ElementsAre("no extension"));
}

// As in the names of a log's numbered siblings when it has no extension.
TEST_P(FilesContract, ADotAtTheEndOfANameIsDropped) {
    System().SetBytes("log.1", "one");
    EXPECT_TRUE(Files().Exists(System().Path("log.1.")));
    EXPECT_FALSE(Files().Exists(System().Path("log.2.")));
    EXPECT_EQ(ReadRest(*Open("log.1.")), "one");
    EXPECT_THAT(Files().List(System().Folder(), "*"), ElementsAre("log.1"));
}

TEST_P(FilesContract, ListingNamesOfEveryScript) {
    System().SetBytes("\xD0\x96\xE3\x82\xBD.log", "");
    EXPECT_THAT(Files().List(System().Folder(), "\xD0\xB6*.log"),
                ElementsAre("\xD0\x96\xE3\x82\xBD.log"));
}

TEST_P(FilesContract, ListingAMissingFolderGivesNothing) {
    EXPECT_THAT(Files().List(System().Path("none"), "*"), IsEmpty());
}

TEST_P(FilesContract, ReplaceWritesANewFileAndLeavesNothingElse) {
    Files().Replace(System().Path("new.ini"), std::string("a\0b\r\n", 5));
    EXPECT_EQ(System().Bytes("new.ini"), std::string("a\0b\r\n", 5));
    EXPECT_THAT(Files().List(System().Folder(), "*"), ElementsAre("new.ini"));
}

TEST_P(FilesContract, ReplaceTakesThePlaceOfTheOldBytes) {
    System().SetBytes("a.ini", "something longer");
    Files().Replace(System().Path("A.INI"), "new");
    EXPECT_EQ(System().Bytes("a.ini"), "new");
    Files().Replace(System().Path("a.ini"), "");
    EXPECT_EQ(System().Bytes("a.ini"), "");
    EXPECT_EQ(Files().List(System().Folder(), "*").size(), 1U);
}

TEST_P(FilesContract, WhoReadsTheOldBytesGoesOnReadingThem) {
    System().SetBytes("a.ini", "old bytes");
    const auto file = Open("a.ini");
    EXPECT_EQ(ReadSome(*file, 3), "old");
    Files().Replace(System().Path("a.ini"), "new");
    EXPECT_EQ(ReadRest(*file), " bytes");
}

TEST_P(FilesContract, AFailedReplaceLeavesTheOldBytesAndNothingElse) {
    System().SetBytes("a.ini", "old");
    {
        const std::shared_ptr<void> lock = System().Lock("a.ini");
        EXPECT_THROW(Files().Replace(System().Path("a.ini"), "new"), FileError);
    }
    System().WriteProtect("a.ini", true);
    EXPECT_THROW(Files().Replace(System().Path("a.ini"), "new"), FileError);
    System().WriteProtect("a.ini", false);
    EXPECT_EQ(System().Bytes("a.ini"), "old");
    EXPECT_THAT(Files().List(System().Folder(), "*"), ElementsAre("a.ini"));
}

TEST_P(FilesContract, ANewFileIsNotSeenBeforeItTakesThePlace) {
    System().SetBytes("a.txt", "old");
    const auto file = Files().BeginReplacing(System().Path("a.txt"));
    file->Write("new ");
    file->Write("bytes");
    EXPECT_EQ(System().Bytes("a.txt"), "old");
    file->TakePlace();
    EXPECT_EQ(System().Bytes("a.txt"), "new bytes");
    EXPECT_THAT(Files().List(System().Folder(), "*"), ElementsAre("a.txt"));
}

TEST_P(FilesContract, ANewFileThatNeverTakesThePlaceLeavesNothing) {
    System().SetBytes("a.txt", "old");
    {
        const auto file = Files().BeginReplacing(System().Path("a.txt"));
        file->Write("half");
        Files().BeginReplacing(System().Path("b.txt"))->Write("half");
    }
    EXPECT_EQ(System().Bytes("a.txt"), "old");
    EXPECT_THAT(Files().List(System().Folder(), "*"), ElementsAre("a.txt"));
}

TEST_P(FilesContract, ReplaceCannotWriteIntoAMissingFolderOrOverAFolder) {
    System().AddFolder("folder");
    EXPECT_THROW(Files().Replace(System().Path("none\\a.ini"), "x"), FileError);
    EXPECT_THROW(Files().Replace(System().Path("folder"), "x"), FileError);
    EXPECT_THROW(Files().Replace("", "x"), FileError);
    EXPECT_TRUE(Files().Exists(System().Path("folder")));
    EXPECT_THAT(Files().List(System().Folder(), "*"), IsEmpty());
}

TEST_P(FilesContract, AFileCanBeWrittenUnlessItIsProtected) {
    System().SetBytes("a.ini", "text");
    EXPECT_TRUE(Files().CanWrite(System().Path("A.INI")));
    System().WriteProtect("a.ini", true);
    EXPECT_FALSE(Files().CanWrite(System().Path("a.ini")));
    System().WriteProtect("a.ini", false);
    EXPECT_TRUE(Files().CanWrite(System().Path("a.ini")));
}

TEST_P(FilesContract, AFileThatAnotherHoldsCanStillBeWritten) {
    System().SetBytes("a.ini", "text");
    const std::shared_ptr<void> lock = System().Lock("a.ini");
    EXPECT_TRUE(Files().CanWrite(System().Path("a.ini")));
}

TEST_P(FilesContract, AFileThatIsNotThereCanBeWrittenWhereItCanBeMade) {
    System().AddFolder("folder");
    EXPECT_TRUE(Files().CanWrite(System().Path("new.ini")));
    EXPECT_TRUE(Files().CanWrite(System().Path("folder\\new.ini")));
    EXPECT_FALSE(Files().CanWrite(System().Path("none\\new.ini")));
    EXPECT_FALSE(Files().CanWrite(System().Path("a|b")));
    EXPECT_FALSE(Files().CanWrite(System().Path("folder")));
    EXPECT_FALSE(Files().CanWrite(""));
}

TEST_P(FilesContract, AskingWhetherAFileCanBeWrittenChangesNothing) {
    System().SetBytes("a.ini", "text");
    System().MakeOld("a.ini");
    EXPECT_TRUE(Files().CanWrite(System().Path("a.ini")));
    EXPECT_TRUE(Files().CanWrite(System().Path("b.ini")));
    EXPECT_TRUE(System().IsOld("a.ini"));
    EXPECT_EQ(System().Bytes("a.ini"), "text");
    EXPECT_THAT(Files().List(System().Folder(), "*"), ElementsAre("a.ini"));
}

TEST_P(FilesContract, AStampTellsAFileFromOneThatHasBeenChanged) {
    System().SetBytes("a.ini", "text");
    System().MakeOld("a.ini");
    const auto stamp = Files().Stamp(System().Path("a.ini"));
    ASSERT_TRUE(stamp);
    EXPECT_EQ(stamp->size, 4U);
    EXPECT_TRUE(stamp->settled);
    EXPECT_EQ(Files().Stamp(System().Path("A.INI")), stamp);
    Open("a.ini");
    EXPECT_EQ(Files().Stamp(System().Path("a.ini")), stamp);
    System().SetBytes("a.ini", "Text");
    EXPECT_NE(Files().Stamp(System().Path("a.ini")), stamp);
}

TEST_P(FilesContract, AFileThatAnotherHoldsHasAStamp) {
    System().SetBytes("a.ini", "text");
    const auto stamp = Files().Stamp(System().Path("a.ini"));
    const std::shared_ptr<void> lock = System().Lock("a.ini");
    EXPECT_EQ(Files().Stamp(System().Path("a.ini")), stamp);
}

TEST_P(FilesContract, AFolderHasAStampAndWhatIsNotThereHasNone) {
    System().AddFolder("folder");
    EXPECT_TRUE(Files().Stamp(System().Path("folder")));
    EXPECT_FALSE(Files().Stamp(System().Path("none.ini")));
    EXPECT_FALSE(Files().Stamp(System().Path("none\\none.ini")));
    EXPECT_FALSE(Files().Stamp(""));
}

TEST_P(FilesContract, AFolderIsMadeOnce) {
    Files().MakeFolder(System().Path("folder"));
    EXPECT_TRUE(Files().Exists(System().Path("folder\\*")));
    System().SetBytes("folder\\a.ini", "text");
    Files().MakeFolder(System().Path("FOLDER"));
    EXPECT_EQ(System().Bytes("folder\\a.ini"), "text");
}

TEST_P(FilesContract, AFolderCannotBeMadeInNoneOrInThePlaceOfAFile) {
    System().SetBytes("file", "text");
    EXPECT_THROW(Files().MakeFolder(System().Path("none\\folder")), FileError);
    EXPECT_THROW(Files().MakeFolder(System().Path("file")), FileError);
    EXPECT_THROW(Files().MakeFolder(""), FileError);
    EXPECT_EQ(System().Bytes("file"), "text");
}

TEST_P(FilesContract, PathsLongerThanTheOrdinaryLimitWork) {
    std::string folder;
    for (int depth = 0; depth < 6; ++depth) {
        folder += (depth == 0 ? "" : "\\") + std::string(60, static_cast<char>('a' + depth));
        System().AddFolder(folder);
    }
    const std::string path = System().Path(folder + "\\x.log");
    ASSERT_GT(path.size(), 300U);
    Files().Replace(path, "text");
    EXPECT_EQ(platform::ReadAllBytes(Files(), path), "text");
    EXPECT_TRUE(Files().Exists(path));
    EXPECT_TRUE(Files().Exists(System().Path(folder + "\\*.log")));
    EXPECT_THAT(Files().List(System().Path(folder), "*.log"), ElementsAre("x.log"));
}

TEST_P(FilesContract, ADriveIsKnownByItsLetter) {
    EXPECT_EQ(Files().DriveOf(System().Path("none\\none.txt")), platform::DriveKind::Fixed);
    EXPECT_EQ(Files().DriveOf("\\\\server\\share\\a.txt"), platform::DriveKind::Network);
    EXPECT_EQ(Files().DriveOf("Q:\\a.txt"), platform::DriveKind::None);
    EXPECT_EQ(Files().DriveOf("a.txt"), platform::DriveKind::None);
    EXPECT_EQ(Files().DriveOf("\\\\\\plugin\\a.txt"), platform::DriveKind::None);
}

TEST_P(FilesContract, TheSizeIsTheOneOfNow) {
    System().SetBytes("a.log", "text");
    EXPECT_EQ(Files().SizeNow(System().Path("a.log")), 4U);
    System().Append("a.log", "more");
    EXPECT_EQ(Files().SizeNow(System().Path("a.log")), 8U);
    EXPECT_EQ(Files().SizeNow(System().Path("none.log")), std::nullopt);
    EXPECT_EQ(Files().SizeNow(""), std::nullopt);
    const std::shared_ptr<void> lock = System().Lock("a.log");
    EXPECT_EQ(Files().SizeNow(System().Path("a.log")), 8U);
}

TEST_P(FilesContract, AWatchNoticesWhatBecomesOfTheFilesInItsFolder) {
    System().SetBytes("a.log", "one");
    const std::unique_ptr<platform::FolderWatch> watch = Files().Watch(System().Folder());
    ASSERT_TRUE(watch);
    EXPECT_FALSE(watch->Changed());
    const auto noticed = [&](const char* what) {
        EXPECT_TRUE(System().Eventually([&] { return watch->Changed(); })) << what;
    };
    System().Append("a.log", "two");
    noticed("appended");
    System().Rename("a.log", "a.1.log");
    noticed("renamed");
    System().SetBytes("a.log", "new");
    noticed("made");
    System().Delete("a.log");
    noticed("deleted");
}

TEST_P(FilesContract, WhatIsNoFolderIsNotWatched) {
    EXPECT_FALSE(Files().Watch(System().Path("none")));
    EXPECT_FALSE(Files().Watch(""));
}

INSTANTIATE_TEST_SUITE_P(, FilesContract, AllSubjects(), KindName);

}  // namespace ordalyn::contract
