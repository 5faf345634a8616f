#include "unit/windows/main/MemoryWatch.h"

#include <array>
#include <cstdlib>
#include <new>

namespace {

struct Event {
    const void* block;
    bool taken;
};
// Memory that watching itself took would be watched.
std::array<Event, 200'000> events;
std::size_t count = 0;
bool watching = false;

void Note(void* block, bool taken) {
    if (!watching)
        return;
    if (count == events.size())
        std::abort();
    events[count++] = {block, taken};
}

void* Take(std::size_t size) {
    void* block = std::malloc(size == 0 ? 1 : size);
    Note(block, true);
    return block;
}

void GiveBack(void* block) {
    if (block != nullptr)
        Note(block, false);
    std::free(block);
}

}  // namespace

void* operator new(std::size_t size) {
    void* block = Take(size);
    if (block == nullptr)
        throw std::bad_alloc();
    return block;
}

void* operator new[](std::size_t size) {
    return operator new(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return Take(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return Take(size);
}

void operator delete(void* block) noexcept {
    GiveBack(block);
}

void operator delete[](void* block) noexcept {
    GiveBack(block);
}

void operator delete(void* block, std::size_t) noexcept {
    GiveBack(block);
}

void operator delete[](void* block, std::size_t) noexcept {
    GiveBack(block);
}

void operator delete(void* block, const std::nothrow_t&) noexcept {
    GiveBack(block);
}

void operator delete[](void* block, const std::nothrow_t&) noexcept {
    GiveBack(block);
}

namespace ordalyn::test {

MemoryWatch::MemoryWatch() {
    count = 0;
    watching = true;
}

MemoryWatch::~MemoryWatch() {
    watching = false;
}

std::size_t MemoryWatch::Taken(const void* block) {
    for (std::size_t at = count; at > 0; --at) {
        if (events[at - 1].taken && events[at - 1].block == block)
            return at;
    }
    return 0;
}

std::size_t MemoryWatch::GivenBack(const void* block) {
    for (std::size_t at = 0; at < count; ++at) {
        if (!events[at].taken && events[at].block == block)
            return at + 1;
    }
    return 0;
}

}  // namespace ordalyn::test
