#include "windows/history/HistoryRows.h"

#include <utility>

#include "log/LogLine.h"

namespace ordalyn {

HistoryRows::HistoryRows(const EntryLists& entries, std::function<const OperationReader&()> reader,
                         std::function<std::string(std::string_view)> shownDate)
    : files_(entries.EntryFiles().Snapshot()),
      dates_(entries.EntryDates().Snapshot()),
      sources_(entries.EntrySources().Snapshot()),
      targets_(entries.EntryTargets().Snapshot()),
      reader_(std::move(reader)),
      shownDate_(std::move(shownDate)) {}

std::string_view HistoryRows::Text(std::int32_t tag, int field) const {
    if (field < 0 || field >= kFields)
        return {};
    const auto [at, isNew] = rows_.try_emplace(tag);
    Row& row = at->second;
    if (isNew) {
        const std::string_view source = sources_.ListOrEmpty(tag);
        const Operation operation = reader_().Read(source, targets_.ListOrEmpty(tag));
        row[kDate] = shownDate_(dates_.ListOrEmpty(tag));
        row[kTime] = TimeText(source);
        row[kOperation] = operation.word;
        row[kFrom] = operation.source;
        row[kTo] = operation.target;
        row[kOutcome] = operation.outcome;
        row[kLogFile] = files_.ListOrEmpty(tag);
    }
    return row[static_cast<std::size_t>(field)];
}

}  // namespace ordalyn
