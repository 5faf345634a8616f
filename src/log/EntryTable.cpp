#include "log/EntryTable.h"

#include <algorithm>

#include "base/Text.h"
#include "log/LogLine.h"

namespace ordalyn {

namespace {

// A tab would begin the next field, the others the next line.
bool BreaksLine(char c) {
    return c == '\t' || c == '\r' || c == '\n';
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
    std::replace_if(to.begin() + static_cast<std::ptrdiff_t>(start), to.end(), BreaksLine, ' ');
}

void AddBetweenCommas(std::string& to, std::string_view field) {
    const bool plain = std::none_of(field.begin(), field.end(),
                                    [](char c) { return c == ',' || c == '"' || BreaksLine(c); });
    if (plain)
        to += field;
    else
        AddQuoted(to, field);
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
