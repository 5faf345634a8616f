// What the program holds of the system's resources at this moment.
#include "Common.h"

#include <winternl.h>

#include <psapi.h>

#include <array>
#include <cstddef>

namespace ordalyn::e2e {

namespace {

// The system's table of GDI objects, of which each process sees a copy. Wine keeps its own there,
// in the same layout, but does not implement GetGuiResources.
struct GdiEntry {
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t unique;
    std::uint8_t type;  // 0: free
    std::uint8_t flags;
    std::uint64_t userPointer;
};
constexpr std::size_t kGdiEntries = 65536;

template <typename Value>
Value ValueAt(std::uint64_t block, std::size_t offset) {
    return *reinterpret_cast<const Value*>(static_cast<std::uintptr_t>(block) + offset);
}

// In a 32-bit process on a 64-bit system the 64-bit blocks know where the table is.
const GdiEntry* GdiTable() {
    constexpr std::size_t kTableInPeb64 = 0xF8;
    const auto teb = reinterpret_cast<std::uintptr_t>(NtCurrentTeb());
    std::uint64_t peb = 0;
    if constexpr (sizeof(void*) == 8) {
        constexpr std::size_t kPebInTeb = 0x60;
        peb = ValueAt<std::uint64_t>(teb, kPebInTeb);
    } else {
        constexpr std::size_t kTeb64InTeb = 0xF70;
        constexpr std::size_t kPebInTeb64 = 0x60;
        const auto teb64 = ValueAt<std::uint32_t>(teb, kTeb64InTeb);
        if (teb64 == 0)
            return nullptr;
        peb = ValueAt<std::uint64_t>(teb64, kPebInTeb64);
    }
    return reinterpret_cast<const GdiEntry*>(
        static_cast<std::uintptr_t>(ValueAt<std::uint64_t>(peb, kTableInPeb64)));
}

std::int64_t CountGdiObjects() {
    const GdiEntry* const table = GdiTable();
    if (table == nullptr)
        throw std::runtime_error("there is no table of GDI objects");
    std::int64_t count = 0;
    for (std::size_t i = 0; i < kGdiEntries; ++i)
        count += table[i].type != 0 ? 1 : 0;
    return count;
}

BOOL CALLBACK CountWindow(HWND, LPARAM parameter) {
    ++*reinterpret_cast<std::int64_t*>(parameter);
    return TRUE;
}

BOOL CALLBACK CountOwnWindow(HWND window, LPARAM parameter) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId()) {
        CountWindow(window, parameter);
        EnumChildWindows(window, CountWindow, parameter);
    }
    return TRUE;
}

std::int64_t CountWindows() {
    std::int64_t count = 0;
    EnumWindows(CountOwnWindow, reinterpret_cast<LPARAM>(&count));
    // Those that only receive messages.
    HWND window = nullptr;
    while ((window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr)
        CountOwnWindow(window, reinterpret_cast<LPARAM>(&count));
    return count;
}

bool IsOwnIcon(HICON icon) {
    ICONINFO parts{};
    if (!GetIconInfo(icon, &parts))
        return false;
    DeleteObject(parts.hbmMask);
    DeleteObject(parts.hbmColor);
    return true;
}

// Where the system does not count: every number that can be a handle of a menu or an icon is asked
// whether it is one. Handles count up in their lower half, and Wine finds an object by that half
// alone, only among those of the process.
Json::Object CountUserObjects() {
    std::int64_t menus = 0;
    std::int64_t icons = 0;
    for (std::intptr_t number = 0x20; number < 0x10000; number += 2) {
        menus += IsMenu(reinterpret_cast<HMENU>(number)) ? 1 : 0;
        icons += IsOwnIcon(reinterpret_cast<HICON>(number)) ? 1 : 0;
    }
    return {{"windows", CountWindows()}, {"menus", menus}, {"icons", icons}};
}

// Wine answers 0 to GetProcessHandleCount. Each number that can be a handle is asked instead; a
// table of handles is filled from its start.
std::int64_t CountHandles() {
    DWORD count = 0;
    if (GetProcessHandleCount(GetCurrentProcess(), &count) && count != 0)
        return count;
    constexpr std::intptr_t kLast = 0x4000;
    for (std::intptr_t number = 4; number < kLast; number += 4) {
        DWORD flags = 0;
        count += GetHandleInformation(reinterpret_cast<HANDLE>(number), &flags) ? 1 : 0;
    }
    return count;
}

// Bytes that are in use on the heaps of the process.
std::int64_t CountHeapBytes() {
    std::array<HANDLE, 64> heaps{};
    const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    std::int64_t bytes = 0;
    for (DWORD i = 0; i < count && i < heaps.size(); ++i) {
        HeapLock(heaps[i]);
        PROCESS_HEAP_ENTRY entry{};
        while (HeapWalk(heaps[i], &entry)) {
            if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0)
                bytes += entry.cbData;
        }
        HeapUnlock(heaps[i]);
    }
    return bytes;
}

Json Resources(const Json&) {
    HANDLE process = GetCurrentProcess();
    Json::Object counts;
    const DWORD gdi = GetGuiResources(process, GR_GDIOBJECTS);
    if (gdi != 0) {
        counts["gdi"] = gdi;
        counts["user"] = GetGuiResources(process, GR_USEROBJECTS);
    } else {
        counts = CountUserObjects();
        counts["gdi"] = CountGdiObjects();
    }
    counts["handles"] = CountHandles();
    PROCESS_MEMORY_COUNTERS memory{};
    memory.cb = sizeof(memory);
    if (!GetProcessMemoryInfo(process, &memory, sizeof(memory)))
        throw std::runtime_error("the memory cannot be counted");
    counts["privateBytes"] = memory.PagefileUsage;
    counts["heapBytes"] = CountHeapBytes();
    return counts;
}

}  // namespace

void AddResourceCommands(Commands& commands) {
    commands["resources"] = Resources;
}

}  // namespace ordalyn::e2e
