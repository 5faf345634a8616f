#include "lists/cStringArray.h"

#include <utility>

namespace ordalyn {

std::string_view StringListView::List(std::int32_t index) const {
    bounds_.Require(index);
    return ListOrEmpty(index);
}

std::string_view StringListView::ListOrEmpty(std::int32_t index) const {
    if (index < 0 || index > ListCount())
        return {};
    return storage_->texts->Text(storage_->Position(index));
}

cStringArray::cStringArray(std::shared_ptr<TextStore> texts) {
    UseStorage(std::move(texts));
}

// Slots are missing only after an item whose slot could not be had.
void cStringArray::AddMissingSlots(std::int32_t end) {
    while (storage_->positions.Size() < static_cast<std::size_t>(end))
        storage_->positions.Append({});
}

void cStringArray::Clear(std::shared_ptr<TextStore> texts) {
    bounds_.Reset();
    UseStorage(std::move(texts));
}

void cStringArray::Swap(cStringArray& other) noexcept {
    std::swap(storage_, other.storage_);
    std::swap(bounds_, other.bounds_);
    std::swap(lastPosition_, other.lastPosition_);
    std::swap(lastText_, other.lastText_);
}

void cStringArray::UseStorage(std::shared_ptr<TextStore> texts) {
    storage_ = std::make_shared<StringListStorage>();
    storage_->texts = std::move(texts);
    lastPosition_ = {};
    lastText_ = {};
}

}  // namespace ordalyn
