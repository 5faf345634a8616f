// What became of a file or folder, told from the entries of a log: its lives. A life follows the
// thing from one name to the next. It begins when the thing is created, copied or unpacked to its
// place, or with the log; it ends when the thing, or a folder above it, is deleted or another file
// takes its place.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "log/EntryLists.h"
#include "log/Operation.h"

namespace ordalyn {

// How an entry concerns the thing.
enum class StepKind {
    Created,          // also by unpacking, packing, or as a shortcut
    CopiedHere,       // the thing is the copy, perhaps one with a folder above it
    CopiedAway,       // the thing, or a folder above it, is what was copied
    Moved,            // or renamed
    MovedWithFolder,  // a folder above it was moved or renamed
    Touched,          // packed, tested, unpacked from, or something that has no word here
    Failed,           // nothing has changed
    Replaced,         // another file took its place
    Deleted,
    DeletedWithFolder,  // a folder above it was deleted
};

struct HistoryStep {
    std::int32_t entry;
    StepKind kind;
    bool operator==(const HistoryStep&) const = default;
    bool operator<(const HistoryStep& other) const {
        return entry != other.entry ? entry < other.entry : kind < other.kind;
    }
};

inline constexpr std::int32_t kNoEntry = -1;

struct FileLife {
    std::vector<HistoryStep> steps;  // oldest first, never empty
    std::string path;                // the last one, as the log writes it
};

// What there is to say about a life in one sentence.
struct LifeSummary {
    int moves = 0;                     // and renames, also of folders above
    std::int32_t seen = kNoEntry;      // the last entry that found the thing at its path
    std::int32_t deleted = kNoEntry;   // also with a folder above
    std::int32_t replaced = kNoEntry;  // another file took its place
};
LifeSummary Summarise(const FileLife& life);

// The lives of all things that ever had this path, in the order in which they begin. Paths compare
// as Windows compares them. Bare names and entries that cannot be read belong to no thing. Numbered
// rotated logs are taken in the order of time, however they were read. Reads the ends of all fields
// once backward and, from the first entry that counts, once forward, whatever the number of names
// and lives.
std::vector<FileLife> FindLives(const EntryLists& entries, const OperationReader& reader,
                                std::string_view path);

}  // namespace ordalyn
