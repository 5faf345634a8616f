// EntryRows: what the panels show of the entries. A row's tag is its entry's index. The texts are
// those of the moment when the object was made; they stay when the lists are cleared or grow.
#pragma once

#include <functional>

#include "lists/cStringArray.h"
#include "log/EntryLists.h"
#include "log/Operation.h"
#include "toolkit/ListView.h"

namespace ordalyn {

// Where what reads the operations is to be had, which takes a while when it is first asked for.
using ReaderSource = std::function<const OperationReader&()>;

class EntryRows : public toolkit::RowSource {
  public:
    enum Field { kTime = 0, kOperation = 1, kTarget = 2 };

    // Rows of operations that failed are marked, when there is somebody to read them.
    explicit EntryRows(const EntryLists& entries, ReaderSource reader = {});

    // Empty for a tag without an entry.
    std::string_view Text(std::int32_t tag, int field) const override;
    bool IsMarked(std::int32_t tag) const override;

  private:
    StringListView sources_;
    StringListView targets_;
    ReaderSource reader_;
};

}  // namespace ordalyn
