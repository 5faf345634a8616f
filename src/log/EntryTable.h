// EntryTable: entries of the log as a table for other programs: a line for each, ended by CR and
// LF, of date, time, operation, source and target. UTF-8.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "log/EntryLists.h"
#include "log/Operation.h"

namespace ordalyn {

enum class TableForm {
    // Tabs between the fields. Those inside a field, and line breaks, become blanks.
    TabSeparated,
    // Commas between the fields; a field that has commas, quotation marks or line breaks stands in
    // quotation marks.
    CommaSeparated
};

class EntryTable {
  public:
    static constexpr std::size_t kColumns = 5;
    using Fields = std::array<std::string_view, kColumns>;

    EntryTable(const EntryLists& entries, const OperationReader& reader, TableForm form)
        : entries_(entries), reader_(reader), form_(form) {}

    // The first line of a table that has one.
    void AddHeader(std::string& to, const Fields& names) const { AddLine(to, names); }
    // What cannot be read for certain stands in the columns of operation and target as the panels
    // show it, so that no part of an entry is left out. An outcome stands in brackets behind the
    // operation. Throws SubscriptOutOfRange for an entry outside the lists.
    void AddEntry(std::string& to, std::int32_t entry) const;

  private:
    void AddLine(std::string& to, const Fields& fields) const;

    const EntryLists& entries_;
    const OperationReader& reader_;
    TableForm form_;
};

}  // namespace ordalyn
