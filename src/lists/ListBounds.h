// ListBounds: how large a growable list is and how its storage grows. The storage that is described
// here is what callers can observe (which indexes can be read); the memory behind it is obtained as
// items arrive.
#pragma once

#include <cstdint>

#include "base/Errors.h"

namespace ordalyn {

namespace test {
struct ListBoundsInternals;
}

class ListBounds {
  public:
    // Growth step: slots added when the storage is full. Below 1 counts as 1.
    void SetStep(std::int32_t step) { step_ = step < 1 ? 1 : step; }
    std::int32_t LastIndex() const { return last_; }
    std::int32_t UpperIndex() const { return upper_; }

    // Makes room for one more item and returns its index. Throws Overflow when the last index or
    // the upper index cannot grow. The storage grows by one step only: after such a failure the
    // last index stays ahead of the storage and SubscriptOutOfRange follows as long as a step does
    // not reach it.
    std::int32_t Grow() { return last_ < upper_ ? ++last_ : GrowStorage(); }
    // Cuts the storage to the items. Throws SubscriptOutOfRange when there are none: a list is
    // never without any slot.
    void Trim();
    // Empties a list that has items and returns true; leaves an empty one alone: false.
    bool Reset();
    // Throws SubscriptOutOfRange unless the index lies in the storage (which may reach beyond the
    // last item).
    void Require(std::int32_t index) const {
        if (index < 0 || index > upper_)
            throw SubscriptOutOfRange();
    }

  private:
    friend struct test::ListBoundsInternals;
    std::int32_t GrowStorage();
    std::int32_t step_ = 1;
    std::int32_t upper_ = 1;
    std::int32_t last_ = -1;
};

}  // namespace ordalyn
