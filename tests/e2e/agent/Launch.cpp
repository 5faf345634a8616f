// ordalyn_e2e_launch FILE: starts a program with the agent inside, waits for its end.
//
// FILE holds lines "key=value" in UTF-8, so that every character of a command line, a folder or an
// environment variable arrives as it was written, whatever the system's code page is:
//   program=PATH       the program
//   arguments=TEXT     the rest of its command line, used as it stands
//   folder=PATH        its working folder
//   agent=PATH         the library to load into it (none when absent)
//   status=PATH        where its process number and, in the end, its exit code are written
//   set=NAME=VALUE     an environment variable (any number of these)
//   unset=NAME         one that is to be absent (any number of these)
// It ends with 0 after the program, with 1 when that could not be started (the status tells why),
// with 2 when FILE could not be read.
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <map>
#include <string>

namespace {

std::wstring ToWide(const std::string& text) {
    if (text.empty())
        return {};
    const int length = static_cast<int>(text.size());
    std::wstring wide(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0)),
        L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(),
                        static_cast<int>(wide.size()));
    return wide;
}

std::string ReadFile(const wchar_t* path) {
    std::string text;
    HANDLE file =
        CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return text;
    char buffer[4096];
    DWORD count = 0;
    while (::ReadFile(file, buffer, sizeof(buffer), &count, nullptr) && count)
        text.append(buffer, count);
    CloseHandle(file);
    return text;
}

void AppendLine(const std::wstring& path, const std::string& line) {
    if (path.empty())
        return;
    HANDLE file = CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              nullptr, OPEN_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return;
    const std::string text = line + "\n";
    DWORD written = 0;
    WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    CloseHandle(file);
}

std::map<std::string, std::wstring> ReadInstructions(const wchar_t* path) {
    std::map<std::string, std::wstring> values;
    const std::string text = ReadFile(path);
    for (std::size_t start = 0; start < text.size();) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        const std::string line = text.substr(start, end - start);
        start = end + 1;
        const std::size_t sign = line.find('=');
        if (sign == std::string::npos)
            continue;
        const std::string key = line.substr(0, sign);
        const std::string value = line.substr(sign + 1);
        if (key == "set") {
            const std::size_t second = value.find('=');
            SetEnvironmentVariableW(ToWide(value.substr(0, second)).c_str(),
                                    ToWide(value.substr(second + 1)).c_str());
        } else if (key == "unset") {
            SetEnvironmentVariableW(ToWide(value).c_str(), nullptr);
        } else {
            values[key] = ToWide(value);
        }
    }
    return values;
}

bool LoadInto(HANDLE process, const std::wstring& library) {
    const std::size_t size = (library.size() + 1) * sizeof(wchar_t);
    void* remote = VirtualAllocEx(process, nullptr, size, MEM_COMMIT, PAGE_READWRITE);
    if (!remote || !WriteProcessMemory(process, remote, library.c_str(), size, nullptr))
        return false;
    // The system's own library has the same address in every process.
    const auto load = reinterpret_cast<LPTHREAD_START_ROUTINE>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "LoadLibraryW")));
    HANDLE thread = CreateRemoteThread(process, nullptr, 0, load, remote, 0, nullptr);
    if (!thread)
        return false;
    WaitForSingleObject(thread, INFINITE);
    DWORD loaded = 0;
    GetExitCodeThread(thread, &loaded);
    CloseHandle(thread);
    VirtualFreeEx(process, remote, 0, MEM_RELEASE);
    return loaded != 0;
}

// The program does not run before the agent takes questions: tests see all of it, and of one that
// is gone by then they learn how it ended.
bool WaitForAgent(HANDLE process, HANDLE ready) {
    constexpr DWORD kLongest = 30'000;  // milliseconds
    const HANDLE either[] = {ready, process};
    return WaitForMultipleObjects(2, either, FALSE, kLongest) == WAIT_OBJECT_0;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR commandLine, int) {
    std::wstring path = commandLine;
    while (!path.empty() && (path.back() == L'"' || path.back() == L' '))
        path.pop_back();
    path.erase(0, path.find_first_not_of(L"\" "));
    auto instructions = ReadInstructions(path.c_str());
    const std::wstring status = instructions["status"];
    if (status.empty())
        return 2;
    std::wstring line = L'"' + instructions["program"] + L'"';
    if (!instructions["arguments"].empty())
        line += L' ' + instructions["arguments"];
    const std::wstring& folder = instructions["folder"];
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(instructions["program"].c_str(), line.data(), nullptr, nullptr, FALSE,
                        CREATE_SUSPENDED, nullptr, folder.empty() ? nullptr : folder.c_str(),
                        &start, &process)) {
        AppendLine(status, "failed=start " + std::to_string(GetLastError()));
        return 1;
    }
    const std::wstring& agent = instructions["agent"];
    if (!agent.empty()) {
        const std::wstring name = L"ordalyn_e2e_" + std::to_wstring(process.dwProcessId);
        HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, name.c_str());
        if (!LoadInto(process.hProcess, agent) || !WaitForAgent(process.hProcess, ready)) {
            DWORD code = 0;
            GetExitCodeProcess(process.hProcess, &code);
            AppendLine(status, "failed=agent " + std::to_string(GetLastError()) +
                                   ", the program has " + std::to_string(code));
            TerminateProcess(process.hProcess, 1);
            return 1;
        }
        CloseHandle(ready);
    }
    AppendLine(status, "process=" + std::to_string(process.dwProcessId));
    ResumeThread(process.hThread);
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    AppendLine(status, "exit=" + std::to_string(code));
    return 0;
}
