// ChunkedVector: values that are only ever appended. They live in small blocks that never move, so
// appending copies nothing that is already there, however long the list is. A block of equal values
// (the same file name, the same date, thousands of times) keeps the value once.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace ordalyn {

template <typename Value>
class ChunkedVector {
  public:
    std::size_t Size() const { return size_; }

    void Append(const Value& value) {
        if (next_ != blockEnd_)
            *next_++ = value;
        else if ((size_ & kMask) == 0 || !(value == equal_))
            AppendUnequal(value);
        ++size_;
    }

    // Puts another value in the last one's place; there must be one.
    void ReplaceLast(const Value& value) {
        const std::size_t place = (size_ - 1) & kMask;
        Block& block = blocks_.back();
        if (block.values) {
            block.values[place] = value;
        } else if (place == 0) {
            block.all = value;
            equal_ = value;
        } else if (!(value == equal_)) {
            --size_;
            AppendUnequal(value);
            ++size_;
        }
    }

    // The index must be below Size().
    Value operator[](std::size_t index) const {
        const Block& block = blocks_[index >> kBits];
        return block.values ? block.values[index & kMask] : block.all;
    }

  private:
    static constexpr unsigned kBits = 8;
    static constexpr std::size_t kBlockSize = std::size_t{1} << kBits;
    static constexpr std::size_t kMask = kBlockSize - 1;
    struct Block {
        std::unique_ptr<Value[]> values;  // null: every value is `all`
        Value all;
    };

    // Begins a block, or gives a block of equal values memory for each of them.
    void AppendUnequal(const Value& value) {
        const std::size_t place = size_ & kMask;
        if (place == 0) {
            blocks_.push_back({nullptr, value});
            equal_ = value;
            return;
        }
        std::unique_ptr<Value[]> values = std::make_unique_for_overwrite<Value[]>(kBlockSize);
        std::fill_n(values.get(), place, equal_);
        values[place] = value;
        next_ = values.get() + place + 1;
        blockEnd_ = values.get() + kBlockSize;
        blocks_.back().values = std::move(values);
    }

    std::vector<Block> blocks_;
    // In the last block: where the next of its values goes, unless they are all equal or it is
    // full.
    Value* next_ = nullptr;
    Value* blockEnd_ = nullptr;
    Value equal_{};  // the first of the last block's values
    std::size_t size_ = 0;
};

}  // namespace ordalyn
