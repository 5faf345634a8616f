// A file system in memory with the ways of Windows: names compared ignoring case, wildcards, a
// current folder, readers that go on reading what was renamed or deleted. Path arguments may be
// relative and may use either slash.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"

namespace ordalyn::test {

class MemoryFiles : public platform::Files {
  public:
    // The system's error numbers that tests meet in FileError::Code().
    static constexpr unsigned long kFileNotFound = 2, kPathNotFound = 3, kAccessDenied = 5,
                                   kSharingViolation = 32, kReadFault = 30, kDiskFull = 112;

    MemoryFiles();
    platform::DriveKind DriveOf(std::string_view path) override;
    std::optional<platform::FileStamp> Stamp(std::string_view path) override;
    std::optional<std::uint64_t> SizeNow(std::string_view path) override;
    std::unique_ptr<platform::ReadableFile> OpenForReading(std::string_view path) override;
    bool Exists(std::string_view path) override;
    std::vector<std::string> List(std::string_view folder, std::string_view pattern) override;
    std::unique_ptr<platform::FolderWatch> Watch(std::string_view folder) override;
    std::unique_ptr<platform::NewFile> BeginReplacing(std::string_view path) override;
    bool CanWrite(std::string_view path) override;
    void MakeFolder(std::string_view path) override;

    // What other programs do. Missing folders on the way to a new file are made.
    void Set(std::string_view path, std::string_view bytes);
    void Append(std::string_view path, std::string_view bytes);  // seen by open readers
    // By a program that keeps the file open: neither stamp nor watch tells of it until the next
    // change, as on the system.
    void AppendUnnoticed(std::string_view path, std::string_view bytes);
    void Delete(std::string_view path);  // a file
    void Rename(std::string_view from, std::string_view to);
    void AddFolder(std::string_view path);
    void SetCurrentFolder(std::string_view path);
    std::optional<std::string> Get(std::string_view path) const;  // nothing for a missing file

    // Another program has the file open without sharing: neither reading nor writing works.
    void Lock(std::string_view path, bool locked = true);
    // Reading fails once `count` bytes have been read from an opening of this file.
    void FailReadingAfter(std::string_view path, std::size_t count);
    // Replace and the profile calls' writes fail.
    void FailWriting(std::string_view path, bool fails = true);
    // The user has no right to make anything in that folder, nor to replace a file there.
    void ProtectFolder(std::string_view path, bool isProtected = true);
    // The clock that stamps are made by stands still: what changes keeps its times, as within a
    // moment of a coarse clock.
    void StopClock(bool stopped = true);
    // Drives that are not fixed, by their letters in upper case; a drive without any folder is
    // none.
    std::map<char, platform::DriveKind> drives;
    // No folder can be watched.
    bool unwatchable = false;
    // Each path that was asked for, opened or listed: all that may take the system a while.
    std::vector<std::string> looks;
    // A new file that is larger cannot be written.
    std::optional<std::size_t> roomOnDisk;
    // Called with the full path just before a file is opened, so that a test can change it between
    // two openings.
    std::function<void(const std::string& path)> onOpen;

    std::string FullPath(std::string_view path) const;

  private:
    struct Content {
        std::string bytes;
        std::optional<std::size_t> failAfter;
        std::int64_t written = 0;
        std::size_t listedSize = 0;  // what stamps say
    };
    struct File {
        std::string path;  // as first written
        std::shared_ptr<Content> content;
        bool locked = false;
        bool readOnly = false;
    };
    class Reader;
    class FolderWatch;
    class Writer;

    static std::string Key(std::string_view fullPath);
    File* Find(std::string_view path);
    const File* Find(std::string_view path) const;
    bool IsFolder(std::string_view path) const;
    void RequireReplaceable(const std::string& path) const;
    bool IsProtected(std::string_view fullFolder) const;
    void FolderChanged(std::string_view path) { ++changes_[Key(FolderOf(path))]; }
    std::string FolderOf(std::string_view path) const;
    std::int64_t Now() { return clockStopped_ ? clock_ : ++clock_; }
    bool ExistsMatching(std::string_view folder, std::string_view pattern) const;

    std::map<std::string, File> files_;           // by folded full path
    std::map<std::string, std::string> folders_;  // folded full path -> as first written
    std::set<std::string> protectedFolders_;      // folded full paths
    std::map<std::string, int> changes_;          // by folded full path of the folder
    std::int64_t clock_ = 0;                      // one later for each change
    bool clockStopped_ = false;
    std::string currentFolder_ = "C:\\Work";
};

}  // namespace ordalyn::test
