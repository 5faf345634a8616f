// LogReader: reads log files into the entry lists. Dialogs, progress window and messages are its
// caller's.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "log/EntryLists.h"
#include "platform/Platform.h"

namespace ordalyn {

class LogReader {
  public:
    // Takes the progress bar's value. Called some two hundred times in a read, when a bar moves.
    using Progress = std::function<void(std::int32_t value)>;

    LogReader(platform::Files& files, platform::CodePages& codePages, EntryLists& entries)
        : files_(files), codePages_(codePages), entries_(entries) {}

    // The file that was begun last, and the lines of it that have been consumed PLUS ONE (0 before
    // the first file). LineCount is the maximum of a progress bar for the read.
    const std::string& CurrentLogFile() const { return currentLogFile_; }
    std::int32_t LineCount() const { return lineCount_; }
    // No log is current; what happens when none was found at the start.
    void ForgetLogFile() { currentLogFile_.clear(); }

    // The number that a message about a failure names. While a whole file is read: the line being
    // processed, blank lines counted, 0 before the first; after it, that of the last line. While
    // appended lines are read: LineCount as it was before them, NOT the line that failed; 0 when it
    // did not come so far.
    std::int32_t LineNumber() const { return lineNumber_; }

    // Reading a whole file takes two operations, because the caller shows its progress window
    // between them. BeginFile makes the file current and counts its lines in a pass of its own;
    // LineCount keeps its value when that fails. Throws FileError, Overflow.
    void BeginFile(std::string_view path);
    // Reads the current file, appending an entry to all four lists for every comment and operation
    // line. The file is closed when this returns or throws; what was read before a failure stays in
    // the lists. Throws FileError; MalformedText for an operation line without a blank;
    // InvalidPropertyValue when the file has more lines than were counted, which would take the
    // progress bar past its maximum.
    void ReadEntries(const Progress& progress = {});

    // Reads what has been appended to the file since it was read last, and answers whether there
    // was any line. It passes over the first LineCount - 1 lines; LineCount then grows with every
    // line, blank and malformed ones included. Deliberately different from reading a whole file: a
    // line that begins with ";" is split like any other, EntryFiles is not extended, and the lists
    // keep their spare slots. Throws FileError and MalformedText; closes the file.
    bool ReadAppendedLines(std::string_view path);

  private:
    platform::Files& files_;
    platform::CodePages& codePages_;
    EntryLists& entries_;
    std::string currentLogFile_;
    std::int32_t lineCount_ = 0;
    std::int32_t lineNumber_ = 0;
};

}  // namespace ordalyn
