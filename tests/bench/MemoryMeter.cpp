#include "bench/MemoryMeter.h"

#include <malloc.h>

#include <cstdlib>
#include <memory>
#include <new>
#include <vector>

namespace {

std::size_t held = 0;

std::size_t SizeOf(void* memory) {
#ifdef _WIN32
    return _msize(memory);
#else
    return malloc_usable_size(memory);
#endif
}

}  // namespace

void* operator new(std::size_t size) {
    void* memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr)
        throw std::bad_alloc();
    held += SizeOf(memory);
    return memory;
}

void operator delete(void* memory) noexcept {
    if (memory == nullptr)
        return;
    held -= SizeOf(memory);
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

void* operator new[](std::size_t size) {
    return operator new(size);
}

void operator delete[](void* memory) noexcept {
    operator delete(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
    operator delete(memory);
}

namespace ordalyn::bench {

std::size_t MemoryHeld() {
    return held;
}

void KeepFreeMemory() {
#ifdef __GLIBC__
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    mallopt(M_MMAP_MAX, 0);
#endif
}

void ReturnFreeMemory() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

void TouchNewMemory(std::size_t size) {
    constexpr std::size_t kPage = 4096;
    constexpr std::size_t kBlock = std::size_t{256} * 1024;
    std::vector<std::unique_ptr<char[]>> blocks;
    for (std::size_t taken = 0; taken < size; taken += kBlock) {
        blocks.push_back(std::make_unique_for_overwrite<char[]>(kBlock));
        volatile char* block = blocks.back().get();
        for (std::size_t at = 0; at < kBlock; at += kPage)
            block[at] = 1;
    }
}

}  // namespace ordalyn::bench
