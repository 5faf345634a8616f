// HistoryModel: a small file system on which random operations are done. It writes the log that the
// file manager would write and knows what became of each file and folder.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "history/FileHistory.h"
#include "log/EntryLists.h"

namespace ordalyn::test {

class HistoryModel {
  public:
    // `choose` returns a number from 0 to the given one, without it.
    explicit HistoryModel(std::function<int(int)> choose);

    void DoOperations(int count);

    const EntryLists& Entries() const { return entries_; }
    static OperationReader Reader();
    // Every path that was ever used, and some that were only tried; keys.
    const std::set<std::string>& Paths() const { return mentioned_; }
    // The true lives of what had this path and is named by an entry, as FindLives returns them,
    // their paths as keys.
    std::vector<FileLife> TrueLives(const std::string& path) const;

  private:
    struct Thing {
        FileLife life;
        bool folder = false;
        bool seen = false;
        std::set<std::string> names;
    };
    using ThingPointer = std::shared_ptr<Thing>;
    struct Failure {
        std::int32_t entry;
        std::string path;
        ThingPointer thing;  // null when there was nothing
    };

    // Choices.
    std::string AnyFolder();
    std::string AnyPath();
    std::string Existing(bool folder);
    std::string NewPlace();
    bool Exists(const std::string& path) const { return things_.contains(path); }
    bool IsFolder(const std::string& path) const;

    // Operations; those that cannot be done do nothing.
    void DoOne();
    void CreateFile();
    void CreateFolder();
    void TransferFile(bool move);
    void TransferFolder(bool move);
    void ChangeCase();
    void DeleteFile();
    void DeleteFolder();
    void UseArchive();
    void Fail();
    void WriteOtherLine();

    // What they are made of.
    void Touch(const std::string& path, StepKind kind);
    void Begin(const std::string& path, bool folder, bool seen, StepKind kind);
    void End(const std::string& path, StepKind kind);
    void Rename(const std::string& from, const std::string& to, StepKind kind);
    std::vector<std::string> Below(const std::string& folder) const;

    // The log. The entry that is written next is that of the steps that are noted.
    std::int32_t Next() const { return entries_.EntrySources().ListCount() + 1; }
    void Write(std::string_view word, const std::string& source, const std::string& target = {});
    void WriteLine(const std::string& behindTime);
    std::string Spelled(const std::string& path);

    std::function<int(int)> choose_;
    EntryLists entries_;
    std::map<std::string, ThingPointer> things_;
    std::vector<ThingPointer> all_;
    std::set<std::string> mentioned_;
    std::set<std::string> emptied_;  // places from which the log saw something go
    std::vector<Failure> failures_;
};

}  // namespace ordalyn::test
