// The rights with which keys of the registry are opened: nobody is told of a call that lacked one.
#include "contract/platform/Registries.h"
#include "contract/platform/Subject.h"
#include "win32/common/WideText.h"

namespace ordalyn::contract {

namespace {

// The place where this program keeps the address of an imported function.
ULONG_PTR* ImportOf(ULONG_PTR function) {
    auto* const base = reinterpret_cast<BYTE*>(GetModuleHandleW(nullptr));
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& imports =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (const auto* library =
             reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress);
         library->Name != 0; ++library) {
        for (auto* place = reinterpret_cast<ULONG_PTR*>(base + library->FirstThunk); *place != 0;
             ++place) {
            if (*place == function)
                return place;
        }
    }
    return nullptr;
}

// Looks at each key that is flushed, before it is.
class FlushWatch {
  public:
    FlushWatch() : place_(ImportOf(reinterpret_cast<ULONG_PTR>(flush_))) {
        keysThatCanBeRead_ = 0;
        if (place_ != nullptr)
            Put(reinterpret_cast<ULONG_PTR>(Flush));
    }
    ~FlushWatch() {
        if (place_ != nullptr)
            Put(reinterpret_cast<ULONG_PTR>(flush_));
    }
    FlushWatch(const FlushWatch&) = delete;
    FlushWatch& operator=(const FlushWatch&) = delete;
    static int KeysThatCanBeRead() { return keysThatCanBeRead_; }

  private:
    static LSTATUS WINAPI Flush(HKEY key) {
        if (RegQueryValueExW(key, L"InstallDir", nullptr, nullptr, nullptr, nullptr) ==
            ERROR_SUCCESS)
            ++keysThatCanBeRead_;
        return flush_(key);
    }
    void Put(ULONG_PTR function) {
        DWORD before = 0;
        VirtualProtect(place_, sizeof *place_, PAGE_READWRITE, &before);
        *place_ = function;
        VirtualProtect(place_, sizeof *place_, before, &before);
    }
    static int keysThatCanBeRead_;
    static LSTATUS(WINAPI* flush_)(HKEY);
    ULONG_PTR* place_;
};

int FlushWatch::keysThatCanBeRead_ = 0;
// The function itself, not the way to it through the place that is changed.
LSTATUS(WINAPI* FlushWatch::flush_)
(HKEY) = reinterpret_cast<LSTATUS(WINAPI*)(HKEY)>(GetProcAddress(GetModuleHandleW(L"advapi32.dll"),
                                                                 "RegFlushKey"));

}  // namespace

// A key that may only be written is not flushed: what was stored would stay in memory.
TEST(RegistryRightsOnWindows, WhatIsStoredIsFlushedWithTheRightToQuery) {
    const std::unique_ptr<Subject> system = MakeWindows();
    const FlushWatch watch;
    ASSERT_TRUE(system->Services().registry.Set(kCurrentUser, system->RegistryKey(), "InstallDir",
                                                {kString, WithNul("c:\\totalcmd")}));
    EXPECT_EQ(FlushWatch::KeysThatCanBeRead(), 1);
}

}  // namespace ordalyn::contract
