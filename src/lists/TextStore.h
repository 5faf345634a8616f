// TextStore: texts that are only ever added, side by side in large blocks. A text is known by its
// position, which takes 8 bytes; there is no allocation for each text and none ever moves. A store
// is shared by the lists that belong together and lives as long as one of them, or a view of one,
// does.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace ordalyn {

// Where a text stands in its store. TextPosition{} is the empty text of every store. Equal
// positions mean equal texts; the reverse does not hold. There is no initialiser, so that memory
// for many positions need not be cleared before it is filled.
struct TextPosition {
    std::uint64_t bits;
    bool operator==(const TextPosition&) const = default;
};

class TextStore {
  public:
    TextStore() = default;
    TextStore(const TextStore&) = delete;
    TextStore& operator=(const TextStore&) = delete;

    // Copies the text into the store, unless it lies in the memory that was lent last: then it is
    // stored already.
    TextPosition Add(std::string_view text) {
        if (text.empty())
            return {};
        // One comparison for both ends: an address before the loan becomes a huge number.
        const auto place = reinterpret_cast<std::uintptr_t>(text.data()) - loan_;
        if (place < loanSize_ && text.size() < kLengthMask)
            return {((loanAddress_ + place) << kLengthBits) | text.size()};
        if (text.size() > free_)
            return AddSlowly(text);
        std::memcpy(next_, text.data(), text.size());
        const TextPosition position{(address_ << kLengthBits) | text.size()};
        next_ += text.size();
        address_ += text.size();
        free_ -= text.size();
        return position;
    }

    // Takes memory of `size` bytes and lends it to be read into (at least kLeastLoan are lent best,
    // as a loan is a block of its own). What was put there and then added must not be changed any
    // more. The memory lives as long as the store; the next loan ends this one.
    char* Lend(std::unique_ptr<char[]> memory, std::size_t size);
    static constexpr std::size_t kLeastLoan = std::size_t{256} * 1024;

    // Valid as long as the store lives. The position must come from this store.
    std::string_view Text(TextPosition position) const {
        const auto length = static_cast<std::size_t>(position.bits & kLengthMask);
        if (length == 0)
            return {};
        const std::uint64_t address = position.bits >> kLengthBits;
        const char* text = blocks_[static_cast<std::size_t>(address >> kBlockBits)] +
                           static_cast<std::size_t>(address & kBlockMask);
        return {text, length == kLengthMask ? LongLength(text) : length};
    }

    // Whether both texts are in one block, so that the bytes between them can be read. They are
    // other texts of the store, or what else was read into memory that it has lent.
    static bool InOneBlock(TextPosition a, TextPosition b) {
        return ((a.bits ^ b.bits) >> (kLengthBits + kBlockBits)) == 0;
    }

    // Memory held, in bytes.
    std::size_t Footprint() const;

  private:
    // A position is an address of 40 bits and a length of 24. An address is a block's number and a
    // place in the block. A length that does not fit is all ones, and the length then stands in the
    // eight bytes before the text.
    static constexpr unsigned kLengthBits = 24;
    static constexpr std::uint64_t kLengthMask = (std::uint64_t{1} << kLengthBits) - 1;
    static constexpr unsigned kBlockBits = 18;
    static constexpr std::size_t kBlockSize = std::size_t{1} << kBlockBits;
    static constexpr std::uint64_t kBlockMask = kBlockSize - 1;
    // Longer texts get memory of their own, so that the end of a block is never wasted for them.
    static constexpr std::size_t kOwnBlockLength = kBlockSize / 8;

    TextPosition AddSlowly(std::string_view text);
    TextPosition AddOwnBlock(std::string_view text);
    // Takes memory for `size` bytes and gives it as many block numbers as it fills.
    char* NewBlock(std::size_t size);
    char* AddBlock(std::unique_ptr<char[]> memory, std::size_t size);
    static std::size_t LongLength(const char* text) {
        std::uint64_t length = 0;
        std::memcpy(&length, text - sizeof length, sizeof length);
        return static_cast<std::size_t>(length);
    }

    std::vector<std::unique_ptr<char[]>> memory_;
    std::vector<char*> blocks_;  // by block number
    char* next_ = nullptr;       // in the block that is being filled
    std::uint64_t address_ = 0;  // of next_
    std::size_t free_ = 0;
    std::uintptr_t loan_ = 0;  // where the memory lent last begins
    std::size_t loanSize_ = 0;
    std::uint64_t loanAddress_ = 0;
    std::size_t allocated_ = 0;
};

}  // namespace ordalyn
