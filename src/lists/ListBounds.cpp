#include "lists/ListBounds.h"

#include "base/CheckedMath.h"

namespace ordalyn {

std::int32_t ListBounds::GrowStorage() {
    last_ = CheckedAdd(last_, 1);
    upper_ = CheckedAdd(upper_, step_);
    if (last_ > upper_)
        throw SubscriptOutOfRange();
    return last_;
}

void ListBounds::Trim() {
    if (last_ < 0)
        throw SubscriptOutOfRange();
    upper_ = last_;
}

bool ListBounds::Reset() {
    if (last_ < 0)
        return false;
    last_ = -1;
    upper_ = step_;
    return true;
}

}  // namespace ordalyn
