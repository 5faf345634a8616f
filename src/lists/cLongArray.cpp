#include "lists/cLongArray.h"

#include "base/Errors.h"

namespace ordalyn {

void cLongArray::AddItem(std::int32_t value) {
    const auto index = static_cast<std::size_t>(bounds_.Grow());
    // Slots are missing only after an item whose slot could not be had.
    while (values_.Size() < index)
        values_.Append(std::nullopt);
    values_.Append(value);
}

std::int32_t cLongArray::List(std::int32_t index) const {
    bounds_.Require(index);
    const auto slot = static_cast<std::size_t>(index);
    if (slot >= values_.Size() || !values_[slot])
        throw TypeMismatch();
    return *values_[slot];
}

void cLongArray::Clear() {
    if (bounds_.Reset())
        values_ = {};
}

}  // namespace ordalyn
