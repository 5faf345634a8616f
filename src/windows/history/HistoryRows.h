// HistoryRows: what the history window shows of the entries. A row's tag is its entry's index. The
// entries are those of the moment when the object was made.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "lists/cStringArray.h"
#include "log/EntryLists.h"
#include "log/Operation.h"
#include "toolkit/ListView.h"

namespace ordalyn {

class HistoryRows : public toolkit::RowSource {
  public:
    enum Field { kDate, kTime, kOperation, kFrom, kTo, kOutcome, kLogFile, kFields };

    // `reader` reads operations for as long as the object lives; `shownDate` gives a date the form
    // in which the panels show it.
    HistoryRows(const EntryLists& entries, std::function<const OperationReader&()> reader,
                std::function<std::string(std::string_view)> shownDate);

    // Empty for a tag without an entry.
    std::string_view Text(std::int32_t tag, int field) const override;

  private:
    using Row = std::array<std::string, kFields>;

    StringListView files_;
    StringListView dates_;
    StringListView sources_;
    StringListView targets_;
    std::function<const OperationReader&()> reader_;
    std::function<std::string(std::string_view)> shownDate_;
    // Those that have been asked for.
    mutable std::unordered_map<std::int32_t, Row> rows_;
};

}  // namespace ordalyn
