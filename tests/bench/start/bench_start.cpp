// bench_start BARE PROGRAM LOG: from the start of a process until its window is there with a row in
// a list view and nothing left to do, of the program with a log of one line and of a bare window
// with one list view (bare_window), by turns; medians. Ends with 1 when the target is missed.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/Measuring.h"

namespace ordalyn::bench {
namespace {

constexpr int kStarts = 15;
constexpr double kMostTimes = 1.3;
constexpr DWORD kPatience = 60'000;

struct Search {
    DWORD process;
    HWND window = nullptr;
};

BOOL CALLBACK HasRows(HWND window, LPARAM found) {
    wchar_t name[64];
    DWORD_PTR rows = 0;
    if (GetClassNameW(window, name, 64) == 0 || std::wstring(name) != WC_LISTVIEWW ||
        SendMessageTimeoutW(window, LVM_GETITEMCOUNT, 0, 0, SMTO_NORMAL, kPatience, &rows) == 0 ||
        rows == 0)
        return TRUE;
    *reinterpret_cast<bool*>(found) = true;
    return FALSE;
}

BOOL CALLBACK IsOfProcess(HWND window, LPARAM search) {
    Search& wanted = *reinterpret_cast<Search*>(search);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != wanted.process || IsWindowVisible(window) == FALSE)
        return TRUE;
    bool rows = false;
    EnumChildWindows(window, HasRows, reinterpret_cast<LPARAM>(&rows));
    if (!rows)
        return TRUE;
    wanted.window = window;
    return FALSE;
}

HWND WindowWithRows(DWORD process) {
    Search search{process};
    EnumWindows(IsOfProcess, reinterpret_cast<LPARAM>(&search));
    return search.window;
}

double Start(std::wstring commandLine) {
    STARTUPINFOW how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION process{};
    HWND window = nullptr;
    const double taken = Milliseconds([&] {
        if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                           nullptr, &how, &process) == FALSE)
            throw std::runtime_error("a program cannot be started");
        const ULONGLONG end = GetTickCount64() + kPatience;
        while ((window = WindowWithRows(process.dwProcessId)) == nullptr) {
            if (GetTickCount64() > end)
                throw std::runtime_error("a program shows no rows");
            Sleep(1);
        }
        WaitForInputIdle(process.hProcess, kPatience);
    });
    PostMessageW(window, WM_CLOSE, 0, 0);
    WaitForSingleObject(process.hProcess, kPatience);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return taken;
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

std::wstring Quoted(const wchar_t* text) {
    return L'"' + std::wstring(text) + L'"';
}

int Measure(const std::wstring& bare, const std::wstring& program) {
    std::vector<double> bareStarts, starts;
    for (const auto& command : {bare, program})
        Start(command);  // what the first start ever makes is there then
    for (int round = 0; round < kStarts; ++round) {
        bareStarts.push_back(Start(bare));
        starts.push_back(Start(program));
    }
    Figures figures("bench_start", 0);
    figures.Add({.what = "start to rows, a log of one line; floor: a bare window",
                 .value = Median(starts),
                 .floor = Median(bareStarts),
                 .mostTimes = kMostTimes});
    return figures.ExitCode();
}

}  // namespace
}  // namespace ordalyn::bench

int wmain(int argc, wchar_t** argv) {
    using ordalyn::bench::Quoted;
    if (argc != 4) {
        std::fprintf(stderr, "usage: bench_start BARE PROGRAM LOG\n");
        return 2;
    }
    try {
        return ordalyn::bench::Measure(Quoted(argv[1]), Quoted(argv[2]) + L' ' + argv[3]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
