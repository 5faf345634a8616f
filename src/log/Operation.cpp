#include "log/Operation.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "base/Utf8.h"
#include "log/EntryLists.h"
#include "log/LogLine.h"

namespace ordalyn {

namespace {

constexpr std::size_t kNowhere = std::string_view::npos;
constexpr std::string_view kBehindWord = ": ";

unsigned char FirstByte(std::string_view text) {
    return static_cast<unsigned char>(text.front());
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Where a whole path begins: at the beginning or behind something that ends no name.
std::size_t FindWholePath(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char before = at == 0 ? ' ' : text[at - 1];
        if (!IsLetter(before) && !IsDigit(before) && before != '\\' && IsWholePath(text.substr(at)))
            return at;
    }
    return kNowhere;
}

// Where the bracket that the text begins with is closed, those inside left out.
std::size_t FindClosing(std::string_view text) {
    int open = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '(')
            ++open;
        else if (text[at] == ')' && --open == 0)
            return at;
    }
    return kNowhere;
}

// What stands behind the clock time. Blanks before it belong to a date that has some. Without a
// time there is nothing: what looks like the operation could be any part of the line.
std::string_view BehindTime(std::string_view sourceField) {
    const std::size_t end = sourceField.find(kBehindWord);
    if (end == kNowhere ||
        !std::any_of(sourceField.begin(), sourceField.begin() + static_cast<std::ptrdiff_t>(end),
                     IsDigit))
        return {};
    return TrimBlanks(sourceField.substr(end + kBehindWord.size()));
}

// An arrow that is part of a name cannot be told from the one between source and target.
bool IsCutInsideName(std::string_view sourceField, std::string_view targetField) {
    return !targetField.empty() &&
           (!sourceField.ends_with(' ') || targetField.find("->") != kNowhere);
}

std::string_view WithoutColonAtEnd(std::string_view text) {
    return text.ends_with(':') ? TrimBlanks(WithoutLastCharacter(text)) : text;
}

// Reads what stands behind the word into outcome and source; returns false when it cannot be read.
bool ReadBehindWord(std::string_view rest, Operation& operation) {
    rest = TrimBlanks(rest);
    bool today = false;
    if (rest.starts_with('(')) {
        const std::size_t closing = FindClosing(rest);
        if (closing == kNowhere)
            return false;
        operation.outcome = TrimBlanks(rest.substr(1, closing - 1));
        rest = TrimBlanks(rest.substr(closing + 1));
        if (!rest.starts_with(':') && !IsWholePath(rest))
            return false;  // the bracket says something else
        today = true;
    }
    const bool colon = rest.starts_with(':');
    if (colon)
        rest = TrimBlanks(rest.substr(1));
    const std::size_t path = FindWholePath(rest);
    const bool bareName =
        path == kNowhere && rest.find(kBehindWord) == kNowhere && !rest.ends_with(':');
    if (path != kNowhere)
        operation.source = rest.substr(path);
    else if (bareName && colon)
        operation.source = rest;
    else if (!colon && !rest.empty())
        return false;
    if (!today && !(bareName && colon))
        operation.outcome = WithoutColonAtEnd(TrimBlanks(rest.substr(0, path)));
    return true;
}

}  // namespace

bool IsWholePath(std::string_view path) {
    return path.starts_with("\\\\") ||
           (path.size() >= 3 && IsLetter(path[0]) && path[1] == ':' && path[2] == '\\');
}

OperationReader::OperationReader(std::vector<OperationName> names) {
    for (OperationName& name : names) {
        name.word = std::string(TrimBlanks(name.word));
        const std::size_t characters = CharacterCount(name.word);
        if (characters > 0)
            names_.push_back({std::move(name), characters});
    }
    std::stable_sort(names_.begin(), names_.end(),
                     [](const Name& a, const Name& b) { return a.characters > b.characters; });
    for (std::size_t i = 0; i < names_.size(); ++i) {
        std::vector<unsigned char> bytes{FirstByte(names_[i].name.word)};
        const char32_t first = FoldCase(DecodeUtf8(names_[i].name.word, 0).value);
        for (const char32_t variant : CaseVariants(first)) {
            std::string text;
            AppendUtf8(text, variant);
            bytes.push_back(FirstByte(text));
        }
        std::sort(bytes.begin(), bytes.end());
        bytes.erase(std::unique(bytes.begin(), bytes.end()), bytes.end());
        for (const unsigned char byte : bytes)
            byFirstByte_[byte].push_back(static_cast<std::uint16_t>(i));
    }
}

OperationReader::Found OperationReader::FindName(std::string_view text) const {
    if (text.empty())
        return {};
    for (const std::uint16_t i : byFirstByte_[FirstByte(text)]) {
        const Name& name = names_[i];
        std::size_t length = 0;
        if (text.starts_with(name.name.word))
            length = name.name.word.size();
        else if (StartsWithIgnoreCase(text, name.name.word))
            length = FirstCharacters(text, name.characters).size();
        else
            continue;
        if (length == text.size() || std::string_view(" (:").find(text[length]) != kNowhere)
            return {name.name.kind, length};
    }
    return {};
}

Operation OperationReader::Read(const EntryLists& entries, std::int32_t entry) const {
    return Read(entries.EntrySources().List(entry), entries.EntryTargets().List(entry));
}

Operation OperationReader::Read(std::string_view sourceField, std::string_view targetField) const {
    if (IsCommentLine(sourceField) || IsCutInsideName(sourceField, targetField))
        return {};
    const std::string_view text = BehindTime(sourceField);
    Found found = FindName(text);
    const bool known = found.kind != OperationKind::None;
    if (!known)
        found = {OperationKind::Other, std::min(text.find_first_of("(:"), FindWholePath(text))};
    if (found.length == kNowhere)
        return {};
    Operation operation;
    operation.kind = found.kind;
    operation.word = TrimBlanks(text.substr(0, found.length));
    if (operation.word.empty() || (!known && IsDigit(operation.word.front())))
        return {};
    // What stands behind these words names the user and the computer.
    if (found.kind == OperationKind::ProgramStart || found.kind == OperationKind::ProgramShutdown)
        return operation;
    if (!ReadBehindWord(text.substr(found.length), operation))
        return {};
    operation.target = TrimBlanks(targetField);
    return operation;
}

}  // namespace ordalyn
