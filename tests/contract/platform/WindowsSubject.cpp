#include <thread>

#include "contract/platform/Subject.h"
#include "win32/common/Paths.h"
#include "win32/common/WideText.h"
#include "win32/services/Win32Services.h"

namespace ordalyn::contract {

namespace {

using win32::FromWide;
using win32::ToPath;
using win32::ToWide;

// In the year 2001.
constexpr FILETIME kLongAgo{0, 0x01C10000};
constexpr const wchar_t* kRegistryKey = L"Software\\OrdalynContract";

// Removes a folder with all that is in it.
void RemoveFolder(const std::wstring& folder) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        const std::wstring name = found.cFileName;
        if (name == L"." || name == L"..")
            continue;
        const std::wstring path = folder + L"\\" + name;
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
            RemoveFolder(path);
        else
            DeleteFileW(path.c_str());
    } while (FindNextFileW(search, &found));
    FindClose(search);
    RemoveDirectoryW(folder.c_str());
}

class WindowsSubject : public Subject {
  public:
    WindowsSubject() {
        static int number = 0;
        wchar_t temp[MAX_PATH + 1];
        GetTempPathW(MAX_PATH, temp);
        folder_ = std::wstring(temp) + L"OrdalynContract" + std::to_wstring(GetCurrentProcessId()) +
                  L"-" + std::to_wstring(number++);
        RemoveFolder(folder_);
        CreateDirectoryW(folder_.c_str(), nullptr);
        RegDeleteTreeW(HKEY_CURRENT_USER, kRegistryKey);
    }
    ~WindowsSubject() override {
        // The path prefix also reaches what is too deep for the ordinary form.
        RemoveFolder(L"\\\\?\\" + folder_);
        RegDeleteTreeW(HKEY_CURRENT_USER, kRegistryKey);
        for (const std::wstring& name : variables_)
            SetEnvironmentVariableW(name.c_str(), nullptr);
    }

    const platform::Services& Services() override { return services_.All(); }
    unsigned CodePage() override { return GetACP(); }

    std::string Folder() override { return FromWide(folder_); }
    bool Eventually(const std::function<bool()>& isTrue) override {
        for (int poll = 0; poll < 1000; ++poll) {
            if (isTrue())
                return true;
            Sleep(10);
        }
        return false;
    }
    void SetBytes(std::string_view name, std::string_view bytes) override {
        Write(name, bytes, CREATE_ALWAYS);
    }
    std::optional<std::string> Bytes(std::string_view name) override {
        const HANDLE file = CreateFileW(ToPath(Path(name)).c_str(), GENERIC_READ,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                        nullptr, OPEN_EXISTING, 0, nullptr);
        if (file == INVALID_HANDLE_VALUE)
            return std::nullopt;
        std::string bytes(GetFileSize(file, nullptr), '\0');
        DWORD count = 0;
        EXPECT_TRUE(
            ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr));
        CloseHandle(file);
        bytes.resize(count);
        return bytes;
    }
    void Append(std::string_view name, std::string_view bytes) override {
        Write(name, bytes, OPEN_ALWAYS);
    }
    void Rename(std::string_view from, std::string_view to) override {
        EXPECT_TRUE(MoveFileW(ToPath(Path(from)).c_str(), ToPath(Path(to)).c_str()))
            << GetLastError();
    }
    void Delete(std::string_view name) override {
        EXPECT_TRUE(DeleteFileW(ToPath(Path(name)).c_str())) << GetLastError();
    }
    void AddFolder(std::string_view name) override {
        EXPECT_TRUE(CreateDirectoryW(ToPath(Path(name)).c_str(), nullptr)) << GetLastError();
    }
    void Hide(std::string_view name) override {
        EXPECT_TRUE(SetFileAttributesW(ToPath(Path(name)).c_str(),
                                       FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM));
    }
    void WriteProtect(std::string_view name, bool isProtected) override {
        EXPECT_TRUE(SetFileAttributesW(ToPath(Path(name)).c_str(), isProtected
                                                                       ? FILE_ATTRIBUTE_READONLY
                                                                       : FILE_ATTRIBUTE_NORMAL));
    }
    void MakeOld(std::string_view name) override {
        const HANDLE file = CreateFileW(ToPath(Path(name)).c_str(), FILE_WRITE_ATTRIBUTES, 0,
                                        nullptr, OPEN_EXISTING, 0, nullptr);
        EXPECT_TRUE(SetFileTime(file, nullptr, nullptr, &kLongAgo)) << GetLastError();
        CloseHandle(file);
    }
    bool IsOld(std::string_view name) override {
        WIN32_FILE_ATTRIBUTE_DATA data{};
        EXPECT_TRUE(GetFileAttributesExW(ToPath(Path(name)).c_str(), GetFileExInfoStandard, &data));
        return CompareFileTime(&data.ftLastWriteTime, &kLongAgo) == 0;
    }
    std::shared_ptr<void> Lock(std::string_view name) override {
        const HANDLE file = CreateFileW(ToPath(Path(name)).c_str(), GENERIC_READ | GENERIC_WRITE, 0,
                                        nullptr, OPEN_ALWAYS, 0, nullptr);
        EXPECT_NE(file, INVALID_HANDLE_VALUE);
        return {file, CloseHandle};
    }
    std::shared_ptr<void> EnterFolder() override {
        wchar_t before[MAX_PATH + 1];
        GetCurrentDirectoryW(MAX_PATH, before);
        EXPECT_TRUE(SetCurrentDirectoryW(folder_.c_str()));
        return {nullptr,
                [old = std::wstring(before)](void*) { SetCurrentDirectoryW(old.c_str()); }};
    }

    void SetVariable(std::string_view name, std::string_view value) override {
        variables_.push_back(ToWide(name));
        SetEnvironmentVariableW(variables_.back().c_str(), ToWide(value).c_str());
    }
    std::string RegistryKey() override { return FromWide(kRegistryKey); }

    std::optional<std::string> ClipboardText() override {
        if (!OpenClipboard(nullptr))
            return "the clipboard cannot be opened";
        std::optional<std::string> text;
        if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
            text = FromWide(static_cast<const wchar_t*>(GlobalLock(data)));
            GlobalUnlock(data);
        }
        CloseClipboard();
        return text;
    }
    std::shared_ptr<void> HoldClipboard() override;

    std::string ShortDate() override { return Date(DATE_SHORTDATE); }
    std::string LongDate() override { return Date(DATE_LONGDATE); }
    std::chrono::weekday FirstWeekday() override {
        wchar_t number[4] = L"";
        GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_IFIRSTDAYOFWEEK, number, 4);
        // From Monday; 7 is a Sunday here.
        return std::chrono::weekday(static_cast<unsigned>(number[0] - L'0') + 1);
    }

  private:
    void Write(std::string_view name, std::string_view bytes, DWORD disposition) {
        const HANDLE file = CreateFileW(ToPath(Path(name)).c_str(), FILE_APPEND_DATA,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                        nullptr, disposition, 0, nullptr);
        ASSERT_NE(file, INVALID_HANDLE_VALUE) << name << " " << GetLastError();
        DWORD count = 0;
        EXPECT_TRUE(
            WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr));
        CloseHandle(file);
    }

    static std::string Date(DWORD form) {
        const SYSTEMTIME day{2024, 3, 0, 1, 0, 0, 0, 0};
        wchar_t text[200] = L"";
        GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, form, &day, nullptr, text, 200, nullptr);
        return FromWide(text);
    }

    win32::Win32Services services_;
    std::wstring folder_;
    std::vector<std::wstring> variables_;
};

// A window of another thread opens the clipboard; to the system that is another holder.
std::shared_ptr<void> WindowsSubject::HoldClipboard() {
    struct Holder {
        HANDLE held = CreateEventW(nullptr, TRUE, FALSE, nullptr);
        HANDLE release = CreateEventW(nullptr, TRUE, FALSE, nullptr);
        std::thread thread;
    };
    auto* holder = new Holder;
    holder->thread = std::thread([holder] {
        const HWND window = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                            nullptr, nullptr);
        EXPECT_TRUE(OpenClipboard(window));
        SetEvent(holder->held);
        WaitForSingleObject(holder->release, INFINITE);
        CloseClipboard();
        DestroyWindow(window);
    });
    WaitForSingleObject(holder->held, INFINITE);
    return {nullptr, [holder](void*) {
                SetEvent(holder->release);
                holder->thread.join();
                CloseHandle(holder->held);
                CloseHandle(holder->release);
                delete holder;
            }};
}

}  // namespace

std::unique_ptr<Subject> MakeWindows() {
    return std::make_unique<WindowsSubject>();
}

}  // namespace ordalyn::contract
