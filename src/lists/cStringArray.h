// cStringArray: a growable list of texts. Its elements are positions in a text store, which several
// lists may share. StringListView: what a list held at one moment, cheap to take and to keep.
#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

#include "lists/ChunkedVector.h"
#include "lists/ListBounds.h"
#include "lists/TextStore.h"

namespace ordalyn {

// The memory of a list. Append-only, so a list that grows and the views of its earlier states can
// hold it together.
struct StringListStorage {
    std::shared_ptr<TextStore> texts;
    ChunkedVector<TextPosition> positions;

    // A slot that nothing was put into is empty.
    TextPosition Position(std::int32_t index) const {
        const auto slot = static_cast<std::size_t>(index);
        return slot < positions.Size() ? positions[slot] : TextPosition{};
    }
};

class StringListView {
  public:
    StringListView() = default;
    StringListView(std::shared_ptr<const StringListStorage> storage, const ListBounds& bounds)
        : storage_(std::move(storage)), bounds_(bounds) {}

    // As cStringArray::ListCount and List, at the moment when the view was taken.
    std::int32_t ListCount() const { return storage_ ? bounds_.LastIndex() : -1; }
    std::string_view List(std::int32_t index) const;
    // Empty, too, for an index outside the storage.
    std::string_view ListOrEmpty(std::int32_t index) const;

  private:
    std::shared_ptr<const StringListStorage> storage_;
    ListBounds bounds_;
};

class cStringArray {
  public:
    cStringArray() : cStringArray(std::make_shared<TextStore>()) {}
    explicit cStringArray(std::shared_ptr<TextStore> texts);
    cStringArray(const cStringArray&) = delete;
    cStringArray& operator=(const cStringArray&) = delete;

    // Sets the growth step, which is also the size of the storage after Clear: indexes 0 to the
    // step. A value below 1 counts as 1.
    void InitialCount(std::int32_t value) { bounds_.SetStep(value); }

    // The index of the last item, NOT the number of items: -1 for an empty list. Callers go from 0
    // to ListCount inclusive.
    std::int32_t ListCount() const { return bounds_.LastIndex(); }

    // Appends a text. One that equals the last text that was not empty is stored once. Throws
    // Overflow.
    void AddItem(std::string_view value = {}) {
        if (!value.empty() && !Same(value, lastText_)) {
            lastPosition_ = storage_->texts->Add(value);
            lastText_ = storage_->texts->Text(lastPosition_);
        }
        AddStored(value.empty() ? TextPosition{} : lastPosition_);
    }
    // Appends a text that is in the list's text store already. Throws Overflow.
    void AddStored(TextPosition position) {
        const std::int32_t index = bounds_.Grow();
        if (static_cast<std::size_t>(index) != storage_->positions.Size())
            AddMissingSlots(index);
        storage_->positions.Append(position);
    }

    // Puts another text in the last item's place, also in the views that show it. There must be an
    // item, and every slot up to it must be one that a text was put into.
    void ReplaceLast(std::string_view value) {
        storage_->positions.ReplaceLast(storage_->texts->Add(value));
    }

    // Cuts the storage to the items. Throws SubscriptOutOfRange when there are none.
    void FreeExtraItems() { bounds_.Trim(); }

    // The item; the empty text for a slot of the storage beyond the last item. Throws
    // SubscriptOutOfRange outside the storage. The text stays valid until Clear, or for as long
    // as a view is kept.
    std::string_view List(std::int32_t index) const {
        return storage_->texts->Text(Position(index));
    }

    // As List, but the place of the text: equal positions mean equal texts.
    TextPosition Position(std::int32_t index) const {
        bounds_.Require(index);
        return storage_->Position(index);
    }

    // The text at a place that Position has returned.
    std::string_view TextAt(TextPosition position) const { return storage_->texts->Text(position); }

    // Highest index that List takes.
    std::int32_t UpperIndex() const { return bounds_.UpperIndex(); }

    // Empties the list; an empty list keeps its storage as it is. Views keep what they show.
    void Clear() { Clear(std::make_shared<TextStore>()); }
    // The same; what is added from now on goes into this text store.
    void Clear(std::shared_ptr<TextStore> texts);

    void Swap(cStringArray& other) noexcept;

    StringListView Snapshot() const { return {storage_, bounds_}; }

  private:
    // As a == b, without its call of memcmp for texts of 8 to 16 bytes: dates, each of which is
    // compared with the one before, and the call is a good part of adding an entry. Their first and
    // their last eight bytes, which overlap, are compared as two numbers.
    static bool Same(std::string_view a, std::string_view b) {
        if (a.size() != b.size() || a.size() < 8 || a.size() > 16)
            return a == b;
        const auto eightBytes = [](const char* at) {
            std::uint64_t bytes = 0;
            std::memcpy(&bytes, at, sizeof bytes);
            return bytes;
        };
        const std::size_t rest = a.size() - 8;
        return eightBytes(a.data()) == eightBytes(b.data()) &&
               eightBytes(a.data() + rest) == eightBytes(b.data() + rest);
    }
    void AddMissingSlots(std::int32_t end);
    void UseStorage(std::shared_ptr<TextStore> texts);
    std::shared_ptr<StringListStorage> storage_;
    ListBounds bounds_;
    TextPosition lastPosition_{};  // the last text that was not empty
    std::string_view lastText_;
};

}  // namespace ordalyn
