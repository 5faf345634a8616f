// MemoryMeter: how much memory the program that is measured holds at the moment. Linking it
// replaces the global new and delete.
#pragma once

#include <cstddef>

namespace ordalyn::bench {

std::size_t MemoryHeld();

// Memory that was freed stays with the process (where that can be chosen), until it is returned to
// the system.
void KeepFreeMemory();
void ReturnFreeMemory();

// Takes that much memory, writes to each of its pages and frees it.
void TouchNewMemory(std::size_t size);

}  // namespace ordalyn::bench
