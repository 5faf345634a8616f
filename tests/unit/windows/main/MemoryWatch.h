// MemoryWatch: in which order blocks of memory are taken and given back. Linking it replaces the
// global new and delete.
#pragma once

#include <cstddef>

namespace ordalyn::test {

// Notes what happens while it lives. One at a time.
class MemoryWatch {
  public:
    MemoryWatch();
    ~MemoryWatch();
    MemoryWatch(const MemoryWatch&) = delete;
    MemoryWatch& operator=(const MemoryWatch&) = delete;

    // When the block was last taken, or first given back, as a number that grows; 0 for never.
    static std::size_t Taken(const void* block);
    static std::size_t GivenBack(const void* block);
};

}  // namespace ordalyn::test
