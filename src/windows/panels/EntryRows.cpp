#include "windows/panels/EntryRows.h"

#include <utility>

#include "log/LogLine.h"
#include "search/FailedEntries.h"

namespace ordalyn {

EntryRows::EntryRows(const EntryLists& entries, ReaderSource reader)
    : sources_(entries.EntrySources().Snapshot()),
      targets_(entries.EntryTargets().Snapshot()),
      reader_(std::move(reader)) {}

bool EntryRows::IsMarked(std::int32_t tag) const {
    return reader_ && HasFailed(reader_(), sources_.ListOrEmpty(tag), targets_.ListOrEmpty(tag));
}

std::string_view EntryRows::Text(std::int32_t tag, int field) const {
    if (field == kTarget)
        return targets_.ListOrEmpty(tag);
    const std::string_view source = sources_.ListOrEmpty(tag);
    if (field == kOperation)
        return OperationText(source);
    return field == kTime ? TimeText(source) : std::string_view();
}

}  // namespace ordalyn
