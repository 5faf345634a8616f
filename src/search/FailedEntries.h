// FailedEntries: which entries tell of an operation that went wrong.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "log/EntryLists.h"
#include "log/Operation.h"

namespace ordalyn {

// Whether the entry with these fields has an outcome. Quick for today's form of a line without one;
// only what can have one is read.
bool HasFailed(const OperationReader& reader, std::string_view sourceField,
               std::string_view targetField);
// The same for an entry of the lists. Throws SubscriptOutOfRange for one outside.
bool HasFailed(const OperationReader& reader, const EntryLists& entries, std::int32_t entry);

// Which of these entries have an outcome, in their order. Throws SubscriptOutOfRange for an entry
// outside the lists.
std::vector<std::int32_t> EntriesThatFailed(const EntryLists& entries,
                                            const std::vector<std::int32_t>& candidates,
                                            const OperationReader& reader);

}  // namespace ordalyn
