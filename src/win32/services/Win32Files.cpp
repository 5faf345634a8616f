#include "win32/services/Win32Files.h"

#include <algorithm>
#include <utility>

#include "base/Attempt.h"
#include "base/Errors.h"
#include "base/FileNames.h"
#include "base/Text.h"
#include "platform/Wildcard.h"
#include "win32/common/Handles.h"
#include "win32/common/Paths.h"
#include "win32/common/WideText.h"

namespace ordalyn::win32 {

using namespace platform;

namespace {

constexpr DWORD kFullSharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr std::size_t kLargestTransfer = 1U << 30U;
// A FAT volume writes every other second down; one more for whatever lies between the clocks. In
// units of 100 nanoseconds.
constexpr std::int64_t kCoarsestClock = std::int64_t{3} * 10'000'000;

std::int64_t Number(const FILETIME& time) {
    return static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32U |
                                     time.dwLowDateTime);
}

class Win32ReadableFile : public ReadableFile {
  public:
    Win32ReadableFile(std::string path, FileHandle handle)
        : path_(std::move(path)), handle_(std::move(handle)) {}

    std::size_t Read(char* buffer, std::size_t capacity) override {
        DWORD count = 0;
        const auto wanted = static_cast<DWORD>(std::min(capacity, kLargestTransfer));
        if (!ReadFile(handle_.Get(), buffer, wanted, &count, nullptr))
            throw FileError(path_, GetLastError());
        return count;
    }
    bool Seek(std::uint64_t place) override {
        LARGE_INTEGER to{};
        to.QuadPart = static_cast<LONGLONG>(place);
        return SetFilePointerEx(handle_.Get(), to, nullptr, FILE_BEGIN) != FALSE;
    }

  private:
    std::string path_;
    FileHandle handle_;
};

class Win32FolderWatch : public FolderWatch {
  public:
    explicit Win32FolderWatch(ChangeHandle handle) : handle_(std::move(handle)) {}

    bool Changed() override {
        bool changed = false;
        // One at a time is told of; what comes meanwhile is kept.
        while (handle_ && WaitForSingleObject(handle_.Get(), 0) == WAIT_OBJECT_0) {
            changed = true;
            if (!FindNextChangeNotification(handle_.Get()))
                handle_.Reset();
        }
        return changed;
    }

  private:
    ChangeHandle handle_;
};

void WriteAll(HANDLE file, std::string_view bytes, const std::string& path) {
    while (!bytes.empty()) {
        DWORD count = 0;
        const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kLargestTransfer));
        if (!WriteFile(file, bytes.data(), wanted, &count, nullptr))
            throw FileError(path, GetLastError());
        bytes.remove_prefix(count);
    }
}

// A new file beside the one that it is to replace. Deleted unless it has taken that one's place.
class Replacement : public NewFile {
  public:
    Replacement(const std::wstring& target, const std::string& path, DWORD attributes)
        : target_(target), path_(path) {
        // Counts up past files that other instances or a crash have left.
        for (int number = 0; !handle_; ++number) {
            name_ = target + L"." + std::to_wstring(GetCurrentProcessId()) + L"-" +
                    std::to_wstring(number) + L".tmp";
            handle_.Reset(CreateFileW(name_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                      attributes, nullptr));
            const DWORD error = GetLastError();
            if (!handle_ && (error != ERROR_FILE_EXISTS || number > 100))
                throw FileError(path, error);
        }
    }
    ~Replacement() override {
        handle_.Reset();
        if (!placed_)
            DeleteFileW(name_.c_str());
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    void Write(std::string_view bytes) override { WriteAll(handle_.Get(), bytes, path_); }

    void TakePlace() override {
        if (!FlushFileBuffers(handle_.Get()))
            throw FileError(path_, GetLastError());
        handle_.Reset();
        CopyRights();
        // Moving is one step: whoever is killed leaves the old file or the new one. An old Windows
        // does not move over a file that others read; replacing does, in several steps between
        // which there may be none of that name, and moving completes one that has come half-way.
        if (!Move() &&
            !ReplaceFileW(target_.c_str(), name_.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS,
                          nullptr, nullptr) &&
            !Move())
            throw FileError(path_, GetLastError());
        placed_ = true;
    }

  private:
    bool Move() {
        return MoveFileExW(name_.c_str(), target_.c_str(),
                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
    }

    // Who may read and write it. Where that cannot be told or set, those of the folder hold.
    void CopyRights() {
        DWORD size = 0;
        GetFileSecurityW(target_.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
        std::vector<char> rights(size);
        if (size > 0 && GetFileSecurityW(target_.c_str(), DACL_SECURITY_INFORMATION, rights.data(),
                                         size, &size))
            SetFileSecurityW(name_.c_str(), DACL_SECURITY_INFORMATION, rights.data());
    }

    std::wstring target_;
    std::string path_;
    std::wstring name_;
    FileHandle handle_;
    bool placed_ = false;
};

// The attributes that the new file takes over from the old one. Throws when the old one cannot be
// replaced. The calls that replace it are not left to find that out: Wine's would replace a folder
// or a write-protected file, and leave a file behind when the old one turns out to be locked.
DWORD AttributesOfReplaceable(const std::wstring& target, const std::string& path) {
    const DWORD attributes = GetFileAttributesW(target.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return FILE_ATTRIBUTE_NORMAL;
    if (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY))
        throw FileError(path, ERROR_ACCESS_DENIED);
    const FileHandle probe(
        CreateFileW(target.c_str(), DELETE, kFullSharing, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!probe)
        throw FileError(path, GetLastError());
    const DWORD kept = attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    return kept == 0 ? FILE_ATTRIBUTE_NORMAL : kept;
}

// Whether this user has such rights to a file or folder, even if somebody who does not share holds
// it now. Nothing of it changes by being opened.
bool HasRights(const std::wstring& path, DWORD rights, DWORD flags) {
    const FileHandle opened(
        CreateFileW(path.c_str(), rights, kFullSharing, nullptr, OPEN_EXISTING, flags, nullptr));
    const DWORD error = GetLastError();
    return opened || error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
}

}  // namespace

DriveKind Win32Files::DriveOf(std::string_view path) {
    const PathForm form = FormOfPath(path);
    if (form == PathForm::Network)
        return DriveKind::Network;
    if (form != PathForm::Drive)
        return DriveKind::None;
    switch (GetDriveTypeW(ToWide(path.substr(0, 3)).c_str())) {
        case DRIVE_UNKNOWN:
        case DRIVE_NO_ROOT_DIR:
            return DriveKind::None;
        case DRIVE_REMOTE:
            return DriveKind::Network;
        case DRIVE_REMOVABLE:
        case DRIVE_CDROM:
            return DriveKind::Removable;
        default:
            return DriveKind::Fixed;
    }
}

std::optional<FileStamp> Win32Files::Stamp(std::string_view path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(ToPath(path).c_str(), GetFileExInfoStandard, &data))
        return std::nullopt;
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    const std::int64_t written = Number(data.ftLastWriteTime);
    return FileStamp{.size = std::uint64_t{data.nFileSizeHigh} << 32U | data.nFileSizeLow,
                     .written = written,
                     .created = Number(data.ftCreationTime),
                     .settled = Number(now) - written >= kCoarsestClock};
}

// A handle that is for the attributes alone takes no part in sharing.
std::optional<std::uint64_t> Win32Files::SizeNow(std::string_view path) {
    const FileHandle opened(CreateFileW(ToPath(path).c_str(), FILE_READ_ATTRIBUTES, kFullSharing,
                                        nullptr, OPEN_EXISTING, 0, nullptr));
    LARGE_INTEGER size{};
    if (!opened || !GetFileSizeEx(opened.Get(), &size))
        return std::nullopt;
    return static_cast<std::uint64_t>(size.QuadPart);
}

std::unique_ptr<FolderWatch> Win32Files::Watch(std::string_view folder) {
    constexpr DWORD kChanges =
        FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_SIZE | FILE_NOTIFY_CHANGE_LAST_WRITE;
    ChangeHandle handle(FindFirstChangeNotificationW(ToPath(folder).c_str(), FALSE, kChanges));
    if (!handle)
        return nullptr;
    return std::make_unique<Win32FolderWatch>(std::move(handle));
}

std::unique_ptr<ReadableFile> Win32Files::OpenForReading(std::string_view path) {
    FileHandle handle(CreateFileW(ToPath(path).c_str(), GENERIC_READ, kFullSharing, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!handle)
        throw FileError(std::string(path), GetLastError());
    return std::make_unique<Win32ReadableFile>(std::string(path), std::move(handle));
}

bool Win32Files::Exists(std::string_view path) {
    // A search for a name that ends in a separator finds nothing on Windows and the folder on Wine.
    if (path.empty() || path.back() == '\\' || path.back() == '/')
        return false;
    WIN32_FIND_DATAW found{};
    const SearchHandle search(FindFirstFileW(ToPath(path).c_str(), &found));
    return static_cast<bool>(search);
}

std::vector<std::string> Win32Files::List(std::string_view folder, std::string_view pattern) {
    std::string all(folder);
    if (!all.empty() && all.back() != '\\' && all.back() != '/')
        all += '\\';
    all += '*';
    std::vector<std::string> names;
    WIN32_FIND_DATAW found{};
    const SearchHandle search(FindFirstFileW(ToPath(all).c_str(), &found));
    if (!search)
        return names;
    do {
        // The search itself is for all names: with a pattern it would match short names as well.
        std::string name = FromWide(found.cFileName);
        const bool isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        if (!isFolder && MatchesWildcard(name, pattern))
            names.push_back(std::move(name));
    } while (FindNextFileW(search.Get(), &found));
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return CompareIgnoreCase(a, b) < 0;
    });
    return names;
}

std::unique_ptr<NewFile> Win32Files::BeginReplacing(std::string_view path) {
    const std::string name(path);
    const std::wstring target = ToFullPath(path);
    if (target.empty())
        throw FileError(name, ERROR_PATH_NOT_FOUND);
    return std::make_unique<Replacement>(target, name, AttributesOfReplaceable(target, name));
}

bool Win32Files::CanWrite(std::string_view path) {
    const std::wstring target = ToFullPath(path);
    const DWORD attributes = GetFileAttributesW(target.c_str());
    const bool isThere = attributes != INVALID_FILE_ATTRIBUTES;
    // A folder cannot be opened so. Nor can a file with the read-only attribute, but Wine lets its
    // administrator do that.
    if (isThere &&
        ((attributes & FILE_ATTRIBUTE_READONLY) != 0 || !HasRights(target, GENERIC_WRITE, 0)))
        return false;
    const std::wstring folder = target.substr(0, target.rfind(L'\\') + 1);
    if (!HasRights(folder, FILE_ADD_FILE, FILE_FLAG_BACKUP_SEMANTICS))
        return false;
    // A right does not mean that it works: the volume may be write-protected, or a guard against
    // blackmail may step in. A file that is there has been opened for writing in spite of them;
    // where there is none, only making one shows it.
    return isThere || Attempt([&] {
               const Replacement trial(target, std::string(path),
                                       FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE);
           });
}

void Win32Files::MakeFolder(std::string_view path) {
    const std::wstring folder = ToPath(path);
    if (CreateDirectoryW(folder.c_str(), nullptr))
        return;
    const DWORD error = GetLastError();
    const DWORD attributes = GetFileAttributesW(folder.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
        throw FileError(std::string(path), error);
}

}  // namespace ordalyn::win32
