// What an entry says: which operation it was, what became of it, and which paths it names. The file
// manager has written its lines in several forms over the years:
//
//     WORD: PATH                  today; the path can be a bare name
//     WORD(Error: what): PATH     today, when it failed
//     WORD PATH                   older
//     WORD: outcome: PATH         older; also "WORD: outcome PATH"
//
// What cannot be read for certain is not guessed at: such an entry has no kind and no paths.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ordalyn {

class EntryLists;

enum class OperationKind {
    None,   // the entry cannot be read
    Other,  // a word that is none of those below
    ProgramStart,
    ProgramShutdown,
    Copy,
    Move,
    Shortcut,
    NewFolder,
    Delete,
    DeleteFolder,
    Pack,
    Unpack,
    Test,
    CreateFile
};

// Parts of the fields that were read, valid as long as these are.
struct Operation {
    OperationKind kind = OperationKind::None;
    std::string_view word;     // as it stands in the log
    std::string_view outcome;  // empty when it went well, or nothing is said about it
    // On a drive (X:\), in the network (\\) or of a plugin (\\\), or a bare name, which says
    // nothing about its folder. Empty when there is none. A folder can end in a backslash.
    std::string_view source;
    std::string_view target;

    bool Failed() const { return !outcome.empty(); }
};

// A word for an operation, as the file manager writes it in one language.
struct OperationName {
    OperationKind kind;
    std::string word;
};

class OperationReader {
  public:
    // The words to be known, of any number of languages; of equal ones the first counts. Blanks
    // around a word are no part of it. An empty word is none.
    explicit OperationReader(std::vector<OperationName> names);

    // What an entry with these fields of EntryLists says.
    Operation Read(std::string_view sourceField, std::string_view targetField) const;
    // The same for an entry of the lists. Throws SubscriptOutOfRange for one outside.
    Operation Read(const EntryLists& entries, std::int32_t entry) const;

  private:
    struct Name {
        OperationName name;
        std::size_t characters;
    };
    struct Found {
        OperationKind kind = OperationKind::None;
        std::size_t length = 0;  // in bytes
    };

    Found FindName(std::string_view text) const;

    // The longest first.
    std::vector<Name> names_;
    // The names that a text can begin with, by its first byte: their places in names_.
    std::array<std::vector<std::uint16_t>, 256> byFirstByte_;
};

// Whether it is a whole path, not a bare name: one on a drive, in the network or of a plugin.
bool IsWholePath(std::string_view path);

}  // namespace ordalyn
