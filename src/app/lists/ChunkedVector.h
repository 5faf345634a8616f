// ChunkedVector: values that are only ever appended. They live in small blocks that never move, so
// appending copies nothing that is already there, however long the list is. A block of equal values
// (the same file name, the same date, thousands of times) keeps the value once.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

namespace ordalyn {

template <typename Value>
class ChunkedVector {
  public:
    std::size_t Size() const { return size_; }

    void Append(const Value& value) {
        const std::size_t place = size_ & kMask;
        if (place != 0 && open_ != nullptr)
            open_[place] = value;
        else
            AppendToEqual(value, place);
        ++size_;
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

    void AppendToEqual(const Value& value, std::size_t place) {
        if (place == 0) {
            blocks_.push_back({nullptr, value});
            open_ = nullptr;
        } else if (Block& block = blocks_.back(); !(block.all == value)) {
            block.values = std::make_unique_for_overwrite<Value[]>(kBlockSize);
            open_ = block.values.get();
            std::fill_n(open_, place, block.all);
            open_[place] = value;
        }
    }

    std::vector<Block> blocks_;
    Value* open_ = nullptr;  // the last block's values, when they differ
    std::size_t size_ = 0;
};

}  // namespace ordalyn
