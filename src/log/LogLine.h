// The grammar of a log line:
//
//     date blank time separator blank operation-and-source [ -> blank target ]
//     ; comment
//
// Nothing else in a line is interpreted. Texts are UTF-8; characters are code points. What
// is returned are parts of the text that was given, valid as long as it is.
#pragma once

#include <string>
#include <string_view>

#include "base/Errors.h"
#include "base/Text.h"
#include "log/ByteScan.h"

namespace ordalyn {

struct LogLine {
    std::string_view date, source, target;
};

// The line without the blanks around it.
inline std::string_view TrimLogLine(std::string_view line) {
    const bool blanks = !line.empty() && (line.front() == ' ' || line.back() == ' ');
    return blanks ? TrimBlanks(line) : line;
}

// A comment line begins with ";". The line must be trimmed of blanks.
inline bool IsCommentLine(std::string_view line) {
    return !line.empty() && line.front() == ';';
}
// The source field of a comment: "; " and everything behind the semicolon.
std::string CommentSource(std::string_view line);

// Splits an operation line, trimmed of blanks: the date is what stands before the first blank, and
// the rest is cut at its first "->" into source and target. The character behind the arrow is
// dropped, whatever it is; the blank before the arrow stays with the source. Throws MalformedText
// when the line has no blank. bytescan::kSlack bytes behind the line must be there to be looked at,
// as they are behind what LineReader returns.
inline LogLine SplitOperationLine(std::string_view line) {
    const char* end = line.data() + line.size();
    const auto between = [](const char* from, const char* to) {
        return std::string_view(from, static_cast<std::size_t>(to - from));
    };
    const bytescan::Marks marks = bytescan::FindMarks(line.data(), end);
    if (marks.blank == end)
        throw MalformedText("A line of the log has no blank");
    const std::string_view date = between(line.data(), marks.blank);
    const std::string_view source = between(marks.blank + 1, marks.arrow);
    if (marks.arrow == end)
        return {date, source, {}};
    const char* behind = marks.arrow + 2;
    if (behind != end && *behind == ' ')  // as it nearly always is
        return {date, source, between(behind + 1, end)};
    return {date, source, WithoutFirstCharacter(between(behind, end))};
}

// Where the first blank stands; the size of the text when there is none.
inline std::size_t FirstBlank(std::string_view text) {
    const char* end = text.data() + text.size();
    return static_cast<std::size_t>(bytescan::FindByte(text.data(), end, ' ') - text.data());
}

// Whether the trimmed line is one that a log can have: blank, a comment, or one with a blank.
inline bool IsWholeLogLine(std::string_view line) {
    return line.empty() || IsCommentLine(line) || FirstBlank(line) != line.size();
}

// Parts of a source field: its first word without its last character, the separator, is the time;
// what stands behind the first blank is the operation. A source without a blank, or with one in
// front, has no time: all of it is the operation, so that nothing of a line is out of sight.
std::string_view TimeText(std::string_view source);
std::string_view OperationText(std::string_view source);

}  // namespace ordalyn
