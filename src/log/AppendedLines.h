// AppendedLines: what has been added to a log since it was read.
#pragma once

#include <cstdint>

#include "log/EntryLists.h"
#include "log/LineReader.h"
#include "log/LogMark.h"
#include "log/PassedOverLines.h"
#include "platform/Platform.h"

namespace ordalyn {

class AppendedLines {
  public:
    enum class Found {
        Nothing,
        Lines,
        AnotherFile,  // it does not begin with what was read; nothing has been changed
    };

    // A line that no log has ends a read, unless there is a place to note that it was passed over.
    // That place then holds what the latest read has passed over.
    AppendedLines(platform::Files& files, platform::CodePages& codePages, EntryLists& entries,
                  PassedOverLines* passedOver = nullptr)
        : files_(files), codePages_(codePages), entries_(entries), passedOver_(passedOver) {}

    // Reads on behind the mark, whose entries are the last ones of the lists, and moves it on.
    // Where the file lets it, only what is new is read, besides what the mark knows of it. A last
    // line that had no end is read again and its entry replaced; one that is not there yet up to
    // its first blank is left for later. Deliberately different from reading a whole file: a line
    // that begins with ";" is split like any other, EntryFiles is not extended, and the lists keep
    // their spare slots. Throws FileError, with nothing changed, and MalformedText for a line
    // without a blank that is not to be passed over: the lines before it have been added, and it is
    // not met again. Closes the file.
    Found Read(LogMark& mark);

    // The number that a message about a failure names: the mark's LineCount as it was before the
    // read, NOT the line that failed; 0 when the file could not be opened.
    std::int32_t LineNumber() const { return lineNumber_; }

  private:
    bool Collect(LineReader& lines, const LogMark& mark, LogMark& moved, EntryLists& added,
                 PassedOverLines& passedOver) const;
    bool Append(const EntryLists& added, bool replacesLast);

    platform::Files& files_;
    platform::CodePages& codePages_;
    EntryLists& entries_;
    PassedOverLines* passedOver_;
    std::int32_t lineNumber_ = 0;
};

}  // namespace ordalyn
