// EntryOrder: in which order the entries of the lists happened. Rotated logs that are numbered hold
// the older entries the larger their number is, and are read from 1 on; apart from that entries are
// listed as they happened. A position is an entry's place in this order.
#pragma once

#include <cstdint>
#include <vector>

#include "log/EntryLists.h"

namespace ordalyn {

class EntryOrder {
  public:
    // Each file's entries must follow one another.
    explicit EntryOrder(const EntryLists& entries);

    // Entries that follow one another in the lists and in time.
    struct Run {
        std::int32_t position;
        std::int32_t entry;
        std::int32_t count;
    };

    std::int32_t Count() const { return count_; }
    // The run that has this position, which must be one.
    const Run& RunOf(std::int32_t position) const;
    std::int32_t EntryAt(std::int32_t position) const {
        const Run& run = RunOf(position);
        return run.entry + (position - run.position);
    }

  private:
    std::int32_t count_;
    std::vector<Run> runs_;
};

}  // namespace ordalyn
