// EntryRows: what the panels show of the entries. A row's tag is its entry's index. The texts are
// those of the moment when the object was made; they stay when the lists are cleared or grow.
#pragma once

#include "lists/cStringArray.h"
#include "log/EntryLists.h"
#include "toolkit/ListView.h"

namespace ordalyn {

class EntryRows : public toolkit::RowSource {
  public:
    enum Field { kTime = 0, kOperation = 1, kTarget = 2 };

    explicit EntryRows(const EntryLists& entries);

    // Empty for a tag without an entry.
    std::string_view Text(std::int32_t tag, int field) const override;

  private:
    StringListView sources_;
    StringListView targets_;
};

}  // namespace ordalyn
