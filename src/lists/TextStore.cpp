#include "lists/TextStore.h"

#include <utility>

#include "base/Errors.h"

namespace ordalyn {

TextPosition TextStore::AddSlowly(std::string_view text) {
    if (text.size() > kOwnBlockLength)
        return AddOwnBlock(text);
    const std::uint64_t number = blocks_.size();
    next_ = NewBlock(kBlockSize);
    address_ = number << kBlockBits;
    free_ = kBlockSize;
    return Add(text);
}

TextPosition TextStore::AddOwnBlock(std::string_view text) {
    const bool lengthBefore = text.size() >= kLengthMask;
    const std::uint64_t length = text.size();
    const std::size_t prefix = lengthBefore ? sizeof length : 0;
    const std::uint64_t address = (std::uint64_t{blocks_.size()} << kBlockBits) + prefix;
    char* block = NewBlock(prefix + text.size());
    if (lengthBefore)
        std::memcpy(block, &length, sizeof length);
    std::memcpy(block + prefix, text.data(), text.size());
    return {(address << kLengthBits) | (lengthBefore ? kLengthMask : length)};
}

char* TextStore::Lend(std::unique_ptr<char[]> memory, std::size_t size) {
    const std::uint64_t number = blocks_.size();
    char* block = AddBlock(std::move(memory), size);
    loan_ = reinterpret_cast<std::uintptr_t>(block);
    loanSize_ = size;
    loanAddress_ = number << kBlockBits;
    return block;
}

char* TextStore::NewBlock(std::size_t size) {
    return AddBlock(std::make_unique_for_overwrite<char[]>(size), size);
}

char* TextStore::AddBlock(std::unique_ptr<char[]> memory, std::size_t size) {
    constexpr std::uint64_t kMostBlocks = std::uint64_t{1} << (64 - kLengthBits - kBlockBits);
    const std::size_t numbers = (size + kBlockSize - 1) / kBlockSize;
    if (blocks_.size() + numbers > kMostBlocks)
        throw Overflow();
    memory_.push_back(std::move(memory));
    char* block = memory_.back().get();
    for (std::size_t i = 0; i < numbers; ++i)
        blocks_.push_back(block + i * kBlockSize);
    allocated_ += size;
    return block;
}

std::size_t TextStore::Footprint() const {
    return allocated_ + blocks_.capacity() * sizeof(char*) +
           memory_.capacity() * sizeof(memory_[0]);
}

}  // namespace ordalyn
