// The services that the program asks of the operating system, as small interfaces. They know
// nothing of logs or settings. All text is UTF-8 unless an operation says that it takes bytes.
// win32/services realises them on Windows, tests/support in memory; one contract suite holds both.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ShellTarget.h"

namespace ordalyn::platform {

// The system's calls for INI files, in one of two forms. The 8-bit form takes and gives bytes in
// the system code page. The Unicode form takes and gives UTF-8 and is for files that are UTF-16.
// File names are UTF-8 in both; a relative one counts from the current folder (the bare calls would
// look in the system's own folder). Sizes are buffer sizes in characters of the form, one of which
// is kept for the terminating NUL: a longer value is cut to size - 1. Nothing throws: what cannot
// be read is absent, what cannot be written is dropped.
class ProfileCalls {
  public:
    virtual ~ProfileCalls() = default;
    // The value without one pair of enclosing quotes, or `otherwise` when the entry is absent.
    virtual std::string ReadEntry(std::string_view section, std::string_view key,
                                  std::string_view otherwise, std::string_view file,
                                  std::size_t size) = 0;
    // The three lists: each element is followed by a NUL character.
    virtual std::string ReadKeyNames(std::string_view section, std::string_view file,
                                     std::size_t size) = 0;
    virtual std::string ReadSection(std::string_view section, std::string_view file,
                                    std::size_t size) = 0;
    virtual std::string ReadSectionNames(std::string_view file, std::size_t size) = 0;
    virtual void WriteEntry(std::string_view section, std::string_view key, std::string_view value,
                            std::string_view file) = 0;
    virtual void DeleteEntry(std::string_view section, std::string_view key,
                             std::string_view file) = 0;
    virtual void DeleteSection(std::string_view section, std::string_view file) = 0;
};

// Conversion between bytes in a code page and UTF-8. A number that the system does not know as a
// code page stands for the system code page.
class CodePages {
  public:
    virtual ~CodePages() = default;
    static constexpr unsigned kSystem = 0;  // the system code page
    virtual std::string ToUtf8(std::string_view bytes, unsigned codePage) = 0;
    // Nothing when the code page cannot hold the text without loss.
    virtual std::optional<std::string> FromUtf8(std::string_view text, unsigned codePage) = 0;
    // The code page that belongs to a font character set number; kSystem for the default set (1)
    // and for numbers that are unknown.
    virtual unsigned OfCharacterSet(std::int32_t characterSet) = 0;
};

// A file being read. Closed when destroyed.
class ReadableFile {
  public:
    virtual ~ReadableFile() = default;
    // Reads up to `capacity` bytes; 0 only at the end of the file. Throws FileError.
    virtual std::size_t Read(char* buffer, std::size_t capacity) = 0;
    // Goes on that many bytes behind the beginning, which may be beyond the end; returns false, and
    // has changed nothing, where that cannot be done.
    virtual bool Seek(std::uint64_t) { return false; }
};

// A file that is being written to take the place of another, or to be a new one. Nobody sees it
// before it does: until then, and when it never does, what was there is there, and nothing else.
class NewFile {
  public:
    virtual ~NewFile() = default;
    // Both throw FileError; what has been written goes with the object then.
    virtual void Write(std::string_view bytes) = 0;
    virtual void TakePlace() = 0;
};

// What tells a file from one that has been changed or has taken its place. Two are equal when size
// and times are.
struct FileStamp {
    std::uint64_t size;
    std::int64_t written, created;  // in the system's units
    // Whether a change from now on would be seen in `written`, however coarse the file system's
    // clock is: the file has not been written just now.
    bool settled;

    friend bool operator==(const FileStamp& a, const FileStamp& b) {
        return a.size == b.size && a.written == b.written && a.created == b.created;
    }
};

// Notices what becomes of the files in a folder: new ones, and changes of names, sizes and times.
class FolderWatch {
  public:
    virtual ~FolderWatch() = default;
    // Whether there was a change since the last time that this was asked. Never waits; the system
    // takes a moment to tell, and nothing is told of what a program writes into a file that it
    // keeps open.
    virtual bool Changed() = 0;
};

enum class DriveKind {
    None,  // there is no drive of that letter
    Fixed,
    Removable,
    Network,  // a look at it can take a long time
};

class Files {
  public:
    virtual ~Files() = default;
    // Of the drive or the network that a full path begins with. Never waits: neither a medium nor a
    // server is asked.
    virtual DriveKind DriveOf(std::string_view path) = 0;
    // Nothing when there is neither a file nor a folder of that name. The file is not opened, so
    // that one that others hold has a stamp too.
    virtual std::optional<FileStamp> Stamp(std::string_view path) = 0;
    // How large the file is now; nothing when there is none. A stamp can lag behind as long as
    // another program has the file open and writes; this does not. Whoever holds the file, or opens
    // it just then, with or without sharing, does not notice.
    virtual std::optional<std::uint64_t> SizeNow(std::string_view path) = 0;
    // Others may go on reading, writing, renaming and deleting the file. Throws FileError (missing,
    // locked, a folder, ...).
    virtual std::unique_ptr<ReadableFile> OpenForReading(std::string_view path) = 0;
    // Whether a file or folder of that name exists, or, with wildcards, one that matches.
    virtual bool Exists(std::string_view path) = 0;
    // Names (without folder) of the files, not folders, in `folder` that match the wildcard
    // pattern, hidden and system files included, in alphabetical order ignoring case. Empty when
    // there is no such folder.
    virtual std::vector<std::string> List(std::string_view folder, std::string_view pattern) = 0;
    // Nothing when there is no such folder, or it cannot be watched.
    virtual std::unique_ptr<FolderWatch> Watch(std::string_view folder) = 0;
    // A crash leaves either the old or the new bytes. Throws FileError when the file cannot be
    // replaced, or made where there is none.
    virtual std::unique_ptr<NewFile> BeginReplacing(std::string_view path) = 0;
    // The same with all its bytes.
    void Replace(std::string_view path, std::string_view bytes);
    // Whether this user can write the file, or make it where there is none: neither it nor its
    // folder is protected. One that another program only holds for the moment can be written.
    // Nothing is left behind, and a file that is there is not touched.
    virtual bool CanWrite(std::string_view path) = 0;
    // Nothing to do when there is such a folder. The one that it is to lie in has to be there.
    // Throws FileError.
    virtual void MakeFolder(std::string_view path) = 0;
};

// All bytes of a file; nothing when it cannot be read.
std::optional<std::string> ReadAllBytes(Files& files, std::string_view path);

struct LocalTime {
    int year, month, day, hour, minute, second;
};

class Environment {
  public:
    virtual ~Environment() = default;
    // %NAME% of defined variables replaced, names in any letter case; the rest stays as written.
    virtual std::string Expand(std::string_view text) = 0;
    // Empty when the variable is not defined.
    virtual std::string Variable(std::string_view name) = 0;
    // For this process, and for those that it starts from now on. An empty value removes the
    // variable.
    virtual void SetVariable(std::string_view name, std::string_view value) = 0;
    // The folder that the system calls so, without a backslash at its end: PERSONAL, APPDATA,
    // LOCAL_APPDATA, COMMON_APPDATA, DESKTOP, ... in any letter case. Empty when there is none.
    virtual std::string SpecialFolder(std::string_view name) = 0;
    // What stands on the command line behind the program's own name, as written, blanks at its ends
    // removed.
    virtual std::string CommandLine() = 0;
    // Full path of the program's executable.
    virtual std::string ProgramPath() = 0;
    virtual LocalTime Now() = 0;
};

class Locale {
  public:
    virtual ~Locale() = default;
    // The date that the text means to this system, in the user's long date format; nothing for a
    // text that is not a date (a clock time alone included).
    virtual std::optional<std::string> LongDate(std::string_view text) = 0;
    // The same date as a day of the calendar.
    virtual std::optional<std::chrono::year_month_day> ReadDate(std::string_view text) = 0;
    // A day in the user's long date format.
    virtual std::string LongDateOf(std::chrono::year_month_day day) = 0;
    // What the user's weeks begin with, and what days (in a few letters) and months are called.
    virtual std::chrono::weekday FirstWeekday() = 0;
    virtual std::string WeekdayName(std::chrono::weekday day) = 0;
    virtual std::string MonthName(std::chrono::month month) = 0;
};

// A window of the operating system, opaque here. 0 means none.
using WindowHandle = std::uintptr_t;

class Shell {
  public:
    virtual ~Shell() = default;
    // Opens a document or address with the program that the user has chosen for it, starts the file
    // manager, or has a file selected, whichever the target is. Does not wait for what that takes.
    // Failures are not reported.
    virtual void Open(WindowHandle owner, const ShellTarget& target) = 0;
};

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    // Empties the clipboard, or puts the text on it as plain text. When another program holds the
    // clipboard both try again for a short while and then give up silently (false). Programs take
    // U+0000 for the text's end, so that it becomes a blank.
    virtual bool Clear() = 0;
    virtual bool SetText(std::string_view text) = 0;
};

// The registry's calls. A key is named by a predefined root handle (0x80000001 is the current user)
// and a path below it. Nothing throws; failures give nothing or false.
class Registry {
  public:
    virtual ~Registry() = default;
    struct Value {
        std::uint32_t type;  // 1 string, 3 binary, 4 32-bit number, ...
        // Text kinds: UTF-8 with its terminating NUL characters kept. Other kinds: the bytes.
        std::string data;
    };
    // Nothing when the key or the value is absent or the value is longer than `size` bytes, of
    // which a character of a text takes one.
    virtual std::optional<Value> Query(std::uint32_t root, std::string_view subKey,
                                       std::string_view name, std::size_t size) = 0;
    // Creates the key when it is missing. A text that does not end in a NUL character is given one.
    virtual bool Set(std::uint32_t root, std::string_view subKey, std::string_view name,
                     const Value& value) = 0;
    // Removes a key that has no sub-keys.
    virtual bool DeleteKey(std::uint32_t root, std::string_view subKey) = 0;
};

// The system's standard dialogs. Each is modal to its owner; messages are handled meanwhile.
// No value is returned when the user cancels or the dialog fails.
class Dialogs {
  public:
    virtual ~Dialogs() = default;
    struct OpenRequest {
        WindowHandle owner = 0;
        // "description", NUL, "pattern", NUL pairs.
        std::string filter;
        std::string fileName;
        std::string initialFolder;
        std::string title;
        std::uint32_t flags = 0;     // the system's OFN_ bits
        std::size_t bufferSize = 0;  // characters for the chosen path
        std::size_t recordSize = 0;  // 76 or 88: the size of the 8-bit record whose fields are used
    };
    struct ColorRequest {
        WindowHandle owner = 0;
        std::uint32_t initial = 0;  // 0x00BBGGRR
        std::uint32_t flags = 0;    // the system's CC_ bits
    };
    struct FontRequest {
        WindowHandle owner = 0;
        std::string name;  // at most 31 characters are used
        double size = 0;   // points
        std::int32_t characterSet = 1;
        int weight = 400;
        bool italic = false, strikethrough = false, underline = false;
        std::uint32_t flags = 0;       // the system's CF_ bits
        int minimum = 0, maximum = 0;  // points
        std::uint32_t color = 0;
    };
    struct FontAnswer {
        std::string name;
        int tenthsOfPoints = 0;
        std::int32_t characterSet = 1;
        int weight = 400;
        bool italic = false, strikethrough = false, underline = false;
    };
    struct SaveAnswer {
        std::string path;
        int filter = 0;  // which pair of the request's filter was chosen, from 0
    };
    virtual std::optional<std::string> OpenFile(const OpenRequest& request) = 0;
    // A name without an extension is given that of the chosen pattern.
    virtual std::optional<SaveAnswer> SaveFile(const OpenRequest& request) = 0;
    // The 16 custom colours are edited in place, also when the user cancels.
    virtual std::optional<std::uint32_t> ChooseColor(const ColorRequest& request,
                                                     std::uint32_t (&customColors)[16]) = 0;
    virtual std::optional<FontAnswer> ChooseFont(const FontRequest& request) = 0;
    // Major version of the library that holds the dialogs, from its version resource; 0 when it has
    // none.
    virtual int LibraryMajorVersion() = 0;
};

// All services, handed to the program at its start.
struct Services {
    ProfileCalls& ansiProfile;
    ProfileCalls& unicodeProfile;
    CodePages& codePages;
    Files& files;
    Environment& environment;
    Locale& locale;
    Shell& shell;
    Clipboard& clipboard;
    Registry& registry;
    Dialogs& dialogs;
};

}  // namespace ordalyn::platform
