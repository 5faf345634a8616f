#include "search/FailedEntries.h"

#include "log/OrdinaryLine.h"

namespace ordalyn {

bool HasFailed(const OperationReader& reader, std::string_view sourceField,
               std::string_view targetField) {
    return !ReadOrdinaryLine(sourceField) && reader.Read(sourceField, targetField).Failed();
}

bool HasFailed(const OperationReader& reader, const EntryLists& entries, std::int32_t entry) {
    return HasFailed(reader, entries.EntrySources().List(entry),
                     entries.EntryTargets().List(entry));
}

std::vector<std::int32_t> EntriesThatFailed(const EntryLists& entries,
                                            const std::vector<std::int32_t>& candidates,
                                            const OperationReader& reader) {
    std::vector<std::int32_t> failed;
    for (const std::int32_t entry : candidates)
        if (HasFailed(reader, entries, entry))
            failed.push_back(entry);
    return failed;
}

}  // namespace ordalyn
