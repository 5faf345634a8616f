#include "support/platform/MemoryFiles.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "base/Errors.h"
#include "base/FileNames.h"
#include "base/Text.h"
#include "platform/Wildcard.h"

namespace ordalyn::test {

namespace {

struct PathParts {
    std::string folder, name;
};

PathParts SplitPath(const std::string& fullPath) {
    const std::size_t slash = fullPath.rfind('\\');
    if (slash == std::string::npos)
        return {"", fullPath};
    return {fullPath.substr(0, slash), fullPath.substr(slash + 1)};
}

bool HasWildcards(std::string_view text) {
    return text.find_first_of("*?") != std::string_view::npos;
}

}  // namespace

// Reads the content that the name stood for when it was opened, whatever the name stands for later.
class MemoryFiles::Reader : public platform::ReadableFile {
  public:
    Reader(std::string path, std::shared_ptr<Content> content)
        : path_(std::move(path)), content_(std::move(content)) {}

    std::size_t Read(char* buffer, std::size_t capacity) override {
        const std::size_t size = content_->bytes.size();
        std::size_t count = at_ < size ? std::min(capacity, size - at_) : 0;
        if (content_->failAfter) {
            if (at_ >= *content_->failAfter)
                throw FileError(path_, kReadFault);
            count = std::min(count, *content_->failAfter - at_);
        }
        if (count > 0)
            content_->bytes.copy(buffer, count, at_);
        at_ += count;
        return count;
    }
    bool Seek(std::uint64_t place) override {
        at_ = static_cast<std::size_t>(place);
        return true;
    }

  private:
    std::string path_;
    std::shared_ptr<Content> content_;
    std::size_t at_ = 0;
};

class MemoryFiles::FolderWatch : public platform::FolderWatch {
  public:
    explicit FolderWatch(const int& changes) : changes_(changes), seen_(changes) {}
    bool Changed() override { return std::exchange(seen_, changes_) != changes_; }

  private:
    const int& changes_;
    int seen_;
};

MemoryFiles::MemoryFiles() {
    AddFolder(currentFolder_);
}

std::string MemoryFiles::FullPath(std::string_view path) const {
    std::string whole(path);
    std::replace(whole.begin(), whole.end(), '/', '\\');
    const bool network = whole.rfind("\\\\", 0) == 0;
    const bool hasDrive = whole.size() > 1 && whole[1] == ':';
    if (!network && !hasDrive) {
        if (!whole.empty() && whole.front() == '\\')
            whole = currentFolder_.substr(0, 2) + whole;
        else
            whole = currentFolder_ + "\\" + whole;
    }
    std::vector<std::string> parts;
    for (const std::string& part : Split(whole, '\\')) {
        if (part == "..") {
            if (parts.size() > 1)
                parts.pop_back();
        } else if (!part.empty() && part != ".") {
            parts.push_back(part);
        }
    }
    // Dots and blanks at the end of a name are dropped.
    if (!parts.empty())
        parts.back().resize(parts.back().find_last_not_of(". ") + 1);
    return (network ? "\\\\" : "") + Join(parts, "\\");
}

std::string MemoryFiles::Key(std::string_view fullPath) {
    return FoldCase(fullPath);
}

MemoryFiles::File* MemoryFiles::Find(std::string_view path) {
    const auto found = files_.find(Key(FullPath(path)));
    return found == files_.end() ? nullptr : &found->second;
}

const MemoryFiles::File* MemoryFiles::Find(std::string_view path) const {
    const auto found = files_.find(Key(FullPath(path)));
    return found == files_.end() ? nullptr : &found->second;
}

bool MemoryFiles::IsFolder(std::string_view path) const {
    return folders_.count(Key(FullPath(path))) > 0;
}

bool MemoryFiles::IsProtected(std::string_view fullFolder) const {
    return protectedFolders_.count(Key(fullFolder)) > 0;
}

platform::DriveKind MemoryFiles::DriveOf(std::string_view path) {
    const PathForm form = FormOfPath(path);
    if (form == PathForm::Network)
        return platform::DriveKind::Network;
    if (form != PathForm::Drive)
        return platform::DriveKind::None;
    const auto letter = static_cast<char>(std::toupper(static_cast<unsigned char>(path[0])));
    if (const auto found = drives.find(letter); found != drives.end())
        return found->second;
    return IsFolder(path.substr(0, 3)) ? platform::DriveKind::Fixed : platform::DriveKind::None;
}

std::optional<std::uint64_t> MemoryFiles::SizeNow(std::string_view path) {
    looks.emplace_back(path);
    const File* file = path.empty() ? nullptr : Find(path);
    return file == nullptr ? std::nullopt
                           : std::optional<std::uint64_t>(file->content->bytes.size());
}

std::string MemoryFiles::FolderOf(std::string_view path) const {
    return SplitPath(FullPath(path)).folder;
}

std::unique_ptr<platform::FolderWatch> MemoryFiles::Watch(std::string_view folder) {
    looks.emplace_back(folder);
    if (unwatchable || folder.empty() || !IsFolder(folder))
        return nullptr;
    return std::make_unique<FolderWatch>(changes_[Key(FullPath(folder))]);
}

std::optional<platform::FileStamp> MemoryFiles::Stamp(std::string_view path) {
    looks.emplace_back(path);
    if (path.empty())
        return std::nullopt;
    if (const File* file = Find(path)) {
        const std::int64_t written = file->content->written;
        return platform::FileStamp{file->content->listedSize, written, 0,
                                   !clockStopped_ || written < clock_};
    }
    if (IsFolder(path))
        return platform::FileStamp{0, 0, 0, true};
    return std::nullopt;
}

std::unique_ptr<platform::ReadableFile> MemoryFiles::OpenForReading(std::string_view path) {
    looks.emplace_back(path);
    if (path.empty())
        throw FileError("", kPathNotFound);
    if (onOpen)
        onOpen(FullPath(path));
    const File* file = Find(path);
    if (file == nullptr) {
        if (IsFolder(path))
            throw FileError(std::string(path), kAccessDenied);
        const bool folderIsThere = IsFolder(SplitPath(FullPath(path)).folder);
        throw FileError(std::string(path), folderIsThere ? kFileNotFound : kPathNotFound);
    }
    if (file->locked)
        throw FileError(std::string(path), kSharingViolation);
    return std::make_unique<Reader>(std::string(path), file->content);
}

bool MemoryFiles::Exists(std::string_view path) {
    looks.emplace_back(path);
    // The system's search finds entries of folders: neither a name that ends in a backslash nor the
    // root of a drive is one.
    if (path.empty() || path.back() == '\\' || path.back() == '/')
        return false;
    const std::string fullPath = FullPath(path);
    const auto [folder, name] = SplitPath(fullPath);
    if (folder.empty())
        return false;
    if (HasWildcards(name))
        return ExistsMatching(folder, name);
    return Find(path) != nullptr || IsFolder(path);
}

bool MemoryFiles::ExistsMatching(std::string_view folder, std::string_view pattern) const {
    if (!IsFolder(folder))
        return false;
    const auto matches = [&](const std::string& fullPath) {
        const PathParts parts = SplitPath(fullPath);
        return EqualsIgnoreCase(parts.folder, folder) &&
               platform::MatchesWildcard(parts.name, pattern);
    };
    // Every folder but the root of a drive also holds "." and "..".
    const bool isRoot = folder.size() == 2 && folder.back() == ':';
    if (!isRoot && platform::MatchesWildcard(".", pattern))
        return true;
    return std::any_of(files_.begin(), files_.end(),
                       [&](const auto& f) { return matches(f.second.path); }) ||
           std::any_of(folders_.begin(), folders_.end(),
                       [&](const auto& f) { return matches(f.second); });
}

std::vector<std::string> MemoryFiles::List(std::string_view folder, std::string_view pattern) {
    looks.emplace_back(folder);
    const std::string fullFolder = FullPath(folder);
    std::vector<std::string> names;
    for (const auto& [key, file] : files_) {
        const PathParts parts = SplitPath(file.path);
        if (EqualsIgnoreCase(parts.folder, fullFolder) &&
            platform::MatchesWildcard(parts.name, pattern))
            names.push_back(parts.name);
    }
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return CompareIgnoreCase(a, b) < 0;
    });
    return names;
}

// Where the file can be written is looked at when it is begun and when it takes its place.
class MemoryFiles::Writer : public platform::NewFile {
  public:
    Writer(MemoryFiles& files, std::string path) : files_(files), path_(std::move(path)) {
        files_.RequireReplaceable(path_);
    }
    void Write(std::string_view bytes) override {
        bytes_ += bytes;
        if (files_.roomOnDisk && bytes_.size() > *files_.roomOnDisk)
            throw FileError(path_, kDiskFull);
    }
    void TakePlace() override {
        files_.RequireReplaceable(path_);
        files_.Set(path_, bytes_);
    }

  private:
    MemoryFiles& files_;
    std::string path_;
    std::string bytes_;
};

std::unique_ptr<platform::NewFile> MemoryFiles::BeginReplacing(std::string_view path) {
    return std::make_unique<Writer>(*this, std::string(path));
}

void MemoryFiles::RequireReplaceable(const std::string& path) const {
    if (path.empty())
        throw FileError("", kPathNotFound);
    if (IsFolder(path))
        throw FileError(path, kAccessDenied);
    const std::string fullPath = FullPath(path);
    if (!IsFolder(SplitPath(fullPath).folder))
        throw FileError(path, kPathNotFound);
    const File* file = Find(path);
    if (file != nullptr && file->locked)
        throw FileError(path, kSharingViolation);
    if ((file != nullptr && file->readOnly) || IsProtected(SplitPath(fullPath).folder))
        throw FileError(path, kAccessDenied);
}

bool MemoryFiles::CanWrite(std::string_view path) {
    const std::string fullPath = FullPath(path);
    const auto [folder, name] = SplitPath(fullPath);
    const bool isName = !path.empty() && name.find_first_of("*?|<>\":") == std::string::npos;
    const File* file = Find(path);
    return isName && IsFolder(folder) && !IsProtected(folder) && !IsFolder(path) &&
           (file == nullptr || !file->readOnly);
}

void MemoryFiles::MakeFolder(std::string_view path) {
    if (!path.empty() && IsFolder(path))
        return;
    const std::string parent = SplitPath(FullPath(path)).folder;
    if (path.empty() || !IsFolder(parent))
        throw FileError(std::string(path), kPathNotFound);
    if (IsProtected(parent) || Find(path) != nullptr)
        throw FileError(std::string(path), kAccessDenied);
    AddFolder(path);
}

void MemoryFiles::Set(std::string_view path, std::string_view bytes) {
    const std::string fullPath = FullPath(path);
    AddFolder(SplitPath(fullPath).folder);
    File& file = files_[Key(fullPath)];
    if (file.path.empty())
        file.path = fullPath;
    // A fresh content: whoever has the file open goes on reading the old one.
    file.content =
        std::make_shared<Content>(Content{std::string(bytes), std::nullopt, Now(), bytes.size()});
    FolderChanged(path);
}

void MemoryFiles::Append(std::string_view path, std::string_view bytes) {
    if (Find(path) == nullptr)
        Set(path, "");
    Content& content = *Find(path)->content;
    content.bytes += bytes;
    content.written = Now();
    content.listedSize = content.bytes.size();
    FolderChanged(path);
}

void MemoryFiles::AppendUnnoticed(std::string_view path, std::string_view bytes) {
    Find(path)->content->bytes += bytes;
}

void MemoryFiles::Delete(std::string_view path) {
    FolderChanged(path);
    files_.erase(Key(FullPath(path)));
}

void MemoryFiles::Rename(std::string_view from, std::string_view to) {
    FolderChanged(from);
    FolderChanged(to);
    auto node = files_.extract(Key(FullPath(from)));
    if (node.empty())
        throw FileError(std::string(from), kFileNotFound);
    node.mapped().path = FullPath(to);
    node.key() = Key(node.mapped().path);
    files_.erase(node.key());
    files_.insert(std::move(node));
}

void MemoryFiles::AddFolder(std::string_view path) {
    const std::string fullPath = FullPath(path);
    folders_.emplace(Key(fullPath), fullPath);
    const std::string parent = SplitPath(fullPath).folder;
    if (!parent.empty() && parent != "\\")
        AddFolder(parent);
}

void MemoryFiles::SetCurrentFolder(std::string_view path) {
    AddFolder(path);
    currentFolder_ = FullPath(path);
}

std::optional<std::string> MemoryFiles::Get(std::string_view path) const {
    const File* file = Find(path);
    if (file == nullptr)
        return std::nullopt;
    return file->content->bytes;
}

void MemoryFiles::Lock(std::string_view path, bool locked) {
    if (Find(path) == nullptr)
        Set(path, "");
    Find(path)->locked = locked;
}

void MemoryFiles::StopClock(bool stopped) {
    // What is there by now was written before.
    ++clock_;
    clockStopped_ = stopped;
}

void MemoryFiles::FailReadingAfter(std::string_view path, std::size_t count) {
    if (Find(path) == nullptr)
        Set(path, "");
    Find(path)->content->failAfter = count;
}

void MemoryFiles::FailWriting(std::string_view path, bool fails) {
    if (Find(path) == nullptr)
        Set(path, "");
    Find(path)->readOnly = fails;
}

void MemoryFiles::ProtectFolder(std::string_view path, bool isProtected) {
    const std::string key = Key(FullPath(path));
    if (isProtected)
        protectedFolders_.insert(key);
    else
        protectedFolders_.erase(key);
}

}  // namespace ordalyn::test
