// cLongArray: a growable list of whole numbers of 32 bits, with the operations of cStringArray.
#pragma once

#include <cstdint>
#include <optional>

#include "lists/ChunkedVector.h"
#include "lists/ListBounds.h"

namespace ordalyn {

class cLongArray {
  public:
    cLongArray() = default;
    cLongArray(const cLongArray&) = delete;
    cLongArray& operator=(const cLongArray&) = delete;

    // Growth step and size of the storage after Clear, as for cStringArray.
    void InitialCount(std::int32_t value) { bounds_.SetStep(value); }
    // The index of the last item, NOT the number of items: -1 for an empty list.
    std::int32_t ListCount() const { return bounds_.LastIndex(); }
    // Throws Overflow when the list cannot grow.
    void AddItem(std::int32_t value = 0);
    // Cuts the storage to the items. Throws SubscriptOutOfRange when there are none.
    void FreeExtraItems() { bounds_.Trim(); }
    // Throws SubscriptOutOfRange outside the storage. A slot of the storage beyond the last item
    // holds no number: reading it throws TypeMismatch (where a cStringArray returns the empty
    // text).
    std::int32_t List(std::int32_t index) const;
    // Empties the list; an empty list keeps its storage as it is.
    void Clear();

  private:
    ChunkedVector<std::optional<std::int32_t>> values_;
    ListBounds bounds_;
};

}  // namespace ordalyn
