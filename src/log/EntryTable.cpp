#include "log/EntryTable.h"

#include <algorithm>
#include <optional>

#include "base/Text.h"
#include "log/LogLine.h"
#include "log/OrdinaryLine.h"

namespace ordalyn {

namespace {

enum Special : unsigned char {
    kPlain = 0,
    kBreaksLine = 1,  // a tab would begin the next field, the others the next line
    kQuoted = 2       // to be quoted between commas
};

// What each byte is; a table, as every byte that is saved is looked up.
constexpr std::array<unsigned char, 256> SpecialBytes() {
    std::array<unsigned char, 256> bytes{};
    for (const char c : {'\t', '\r', '\n'})
        bytes[static_cast<unsigned char>(c)] = kBreaksLine | kQuoted;
    for (const char c : {',', '"'})
        bytes[static_cast<unsigned char>(c)] = kQuoted;
    return bytes;
}
constexpr std::array<unsigned char, 256> kSpecial = SpecialBytes();

bool Is(char c, Special special) {
    return (kSpecial[static_cast<unsigned char>(c)] & special) != 0;
}

bool HasAny(std::string_view field, Special special) {
    unsigned char all = kPlain;
    for (const char c : field)
        all |= kSpecial[static_cast<unsigned char>(c)];
    return (all & special) != 0;
}

void AddQuoted(std::string& to, std::string_view field) {
    to += '"';
    for (const char c : field)
        to.append(c == '"' ? 2 : 1, c);
    to += '"';
}

// Spreadsheets take a mark at the beginning of a field for one around it.
void AddBetweenTabs(std::string& to, std::string_view field) {
    const std::size_t start = to.size();
    if (field.starts_with('"'))
        AddQuoted(to, field);
    else
        to += field;
    if (HasAny(field, kBreaksLine))
        std::replace_if(
            to.begin() + static_cast<std::ptrdiff_t>(start), to.end(),
            [](char c) { return Is(c, kBreaksLine); }, ' ');
}

void AddBetweenCommas(std::string& to, std::string_view field) {
    if (HasAny(field, kQuoted))
        AddQuoted(to, field);
    else
        to += field;
}

bool BeginsWithDigit(std::string_view text) {
    return !text.empty() && text.front() >= '0' && text.front() <= '9';
}

// The line when it reads as an ordinary one with this target does; reading it says the same, only
// later.
std::optional<OrdinaryLine> Ordinary(std::string_view source, std::string_view target) {
    const std::optional<OrdinaryLine> line = ReadOrdinaryLine(source);
    const bool whole =
        target.empty() || (source.ends_with(' ') && target.find("->") == std::string_view::npos);
    const bool read = line && whole && BeginsWithDigit(source) && !BeginsWithDigit(line->word);
    return read ? line : std::nullopt;
}

}  // namespace

void EntryTable::AddLine(std::string& to, const Fields& fields) const {
    const bool tabs = form_ == TableForm::TabSeparated;
    for (std::size_t i = 0; i < kColumns; ++i) {
        if (i > 0)
            to += tabs ? '\t' : ',';
        if (tabs)
            AddBetweenTabs(to, fields[i]);
        else
            AddBetweenCommas(to, fields[i]);
    }
    to += "\r\n";
}

void EntryTable::AddEntry(std::string& to, std::int32_t entry) const {
    const std::string_view date = entries_.EntryDates().List(entry);
    const std::string_view source = entries_.EntrySources().List(entry);
    const std::string_view target = entries_.EntryTargets().List(entry);
    if (const std::optional<OrdinaryLine> line = Ordinary(source, target))
        return AddLine(
            to, {date, TimeText(source), line->word, TrimBlanks(line->path), TrimBlanks(target)});
    const Operation operation = reader_.Read(source, target);
    // A line that names no path, as those of the file manager's start, has more than its word.
    if (operation.kind == OperationKind::None || operation.source.empty())
        return AddLine(to, {date, TimeText(source), TrimBlanks(OperationText(source)), "", target});
    if (!operation.Failed())
        return AddLine(
            to, {date, TimeText(source), operation.word, operation.source, operation.target});
    const std::string outcome =
        std::string(operation.word).append(" (").append(operation.outcome).append(")");
    AddLine(to, {date, TimeText(source), outcome, operation.source, operation.target});
}

}  // namespace ordalyn
