// Another program that works with the file FILE until the file MARK, which it makes, is deleted:
//
//   ordalyn_e2e_hold "FILE" "MARK"         has FILE open and shares it with nobody
//   ordalyn_e2e_hold "FILE" "MARK" rotate  puts new logs in FILE's place, one after the other
//
// It ends with 0, or with another number when something that it has to do with FILE is refused.
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <cstdlib>
#include <string>

namespace {

constexpr DWORD kBetweenLooks = 20;  // milliseconds
constexpr DWORD kBetweenLogs = 150;
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

enum Outcome {
    kDone,
    kNotOpened,
    kWrongArguments,
    kNotDeleted,
    kNotRenamed,
    kNotCreated,
    kNotShared
};

bool MakeMark(const wchar_t* mark) {
    HANDLE made = CreateFileW(mark, GENERIC_WRITE, kShareAll, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (made == INVALID_HANDLE_VALUE)
        return false;
    CloseHandle(made);
    return true;
}

bool IsMarked(const wchar_t* mark) {
    return GetFileAttributesW(mark) != INVALID_FILE_ATTRIBUTES;
}

Outcome Hold(const wchar_t* path, const wchar_t* mark) {
    HANDLE file =
        CreateFileW(path, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE || !MakeMark(mark))
        return kNotOpened;
    while (IsMarked(mark))
        Sleep(kBetweenLooks);
    CloseHandle(file);
    return kDone;
}

// The name of a file that was deleted is free once everybody who reads that file has closed it.
HANDLE CreateInItsPlace(const wchar_t* path) {
    constexpr DWORD kPatience = 10'000;
    const ULONGLONG end = GetTickCount64() + kPatience;
    for (;;) {
        HANDLE file = CreateFileW(path, GENERIC_WRITE, kShareAll, nullptr, CREATE_NEW, 0, nullptr);
        if (file != INVALID_HANDLE_VALUE || GetTickCount64() > end)
            return file;
        Sleep(1);
    }
}

// Each log has rows of its own, and another number of them than the one before.
std::string LinesOf(int number) {
    constexpr int kFewest = 1000;
    constexpr int kSteps = 7;
    constexpr int kStep = 100;
    const std::string line =
        "01.03.2024 10:15:30: Delete C:\\log" + std::to_string(number) + ".txt\r\n";
    std::string lines;
    for (int left = kFewest + number % kSteps * kStep; left > 0; --left)
        lines += line;
    return lines;
}

// Whether the file could be written to, renamed and deleted at any moment of that time.
bool IsSharedFor(const wchar_t* path, DWORD milliseconds) {
    const ULONGLONG end = GetTickCount64() + milliseconds;
    while (GetTickCount64() < end) {
        HANDLE file = CreateFileW(path, GENERIC_WRITE | DELETE, kShareAll, nullptr, OPEN_EXISTING,
                                  0, nullptr);
        if (file == INVALID_HANDLE_VALUE)
            return false;
        CloseHandle(file);
        Sleep(1);
    }
    return true;
}

Outcome Rotate(const wchar_t* path, const wchar_t* mark) {
    constexpr std::size_t kParts = 4;
    const std::wstring old = std::wstring(path) + L".old";
    if (!MakeMark(mark))
        return kNotOpened;
    for (int number = 1; IsMarked(mark); ++number) {
        const bool deletes = number % 2 == 0;
        if (deletes && !DeleteFileW(path))
            return kNotDeleted;
        if (!deletes && !MoveFileExW(path, old.c_str(), MOVEFILE_REPLACE_EXISTING))
            return kNotRenamed;
        HANDLE file = CreateInItsPlace(path);
        if (file == INVALID_HANDLE_VALUE)
            return kNotCreated;
        const std::string lines = LinesOf(number);
        const std::size_t part = lines.size() / kParts + 1;
        for (std::size_t begin = 0; begin < lines.size(); begin += part) {
            const std::string bytes = lines.substr(begin, part);
            DWORD written = 0;
            WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
            Sleep(1);
        }
        CloseHandle(file);
        if (!IsSharedFor(path, kBetweenLogs))
            return kNotShared;
    }
    return kDone;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int) {
    if (__argc == 3)
        return Hold(__wargv[1], __wargv[2]);
    if (__argc == 4 && std::wstring(__wargv[3]) == L"rotate")
        return Rotate(__wargv[1], __wargv[2]);
    return kWrongArguments;
}
