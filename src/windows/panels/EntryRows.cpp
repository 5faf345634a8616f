#include "windows/panels/EntryRows.h"

#include "log/LogLine.h"

namespace ordalyn {

EntryRows::EntryRows(const EntryLists& entries)
    : sources_(entries.EntrySources().Snapshot()), targets_(entries.EntryTargets().Snapshot()) {}

std::string_view EntryRows::Text(std::int32_t tag, int field) const {
    if (field == kTarget)
        return targets_.ListOrEmpty(tag);
    const std::string_view source = sources_.ListOrEmpty(tag);
    if (field == kOperation)
        return OperationText(source);
    return field == kTime ? TimeText(source) : std::string_view();
}

}  // namespace ordalyn
