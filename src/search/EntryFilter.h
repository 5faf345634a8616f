// EntryFilter: which entries a filter lets pass.
#pragma once

#include <cstdint>
#include <vector>

#include "log/EntryLists.h"
#include "search/FilterChoice.h"

namespace ordalyn {

// Which of these entries stay, in their order. The filter's text must not be empty. With an
// operation in the filter, a source counts as holding the text only when the entry is of that
// operation. An entry without a target never passes a filter of the targets, deliberately,
// whether that asks for a text or against it. Throws SubscriptOutOfRange for an entry outside the
// lists.
std::vector<std::int32_t> EntriesThatPass(const EntryLists& entries,
                                          const std::vector<std::int32_t>& candidates,
                                          const FilterChoice& filter);

}  // namespace ordalyn
