// ScriptedFiles: files that do what a test needs to happen while a log is read: arrive in small
// pieces, change between two passes, fail. It counts what is open.
#pragma once

#include <algorithm>
#include <deque>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/Errors.h"
#include "base/Text.h"
#include "platform/Platform.h"

namespace ordalyn::test {

class ScriptedFiles : public platform::Files {
  public:
    // What each opening of the file finds; the last one goes on to be found.
    void Put(const std::string& path, std::string bytes) { files_[path] = {std::move(bytes)}; }
    void PutNext(const std::string& path, std::string bytes) {
        files_[path].push_back(std::move(bytes));
    }
    void Remove(const std::string& path) { files_.erase(path); }
    void AddFolder(const std::string& path) { folders_.insert(path); }

    std::size_t mostAtOnce = std::numeric_limits<std::size_t>::max();
    std::size_t failAfter = std::numeric_limits<std::size_t>::max();  // bytes
    int openNow = 0;
    int opened = 0;
    std::size_t bytesRead = 0;
    bool canSeek = true;

    platform::DriveKind DriveOf(std::string_view) override { return platform::DriveKind::Fixed; }
    std::optional<platform::FileStamp> Stamp(std::string_view) override { return std::nullopt; }
    std::optional<std::uint64_t> SizeNow(std::string_view) override { return std::nullopt; }
    std::unique_ptr<platform::FolderWatch> Watch(std::string_view) override { return nullptr; }
    std::unique_ptr<platform::ReadableFile> OpenForReading(std::string_view path) override {
        const auto found = files_.find(std::string(path));
        if (found == files_.end())
            throw FileError(std::string(path), 2);
        ++opened;
        std::deque<std::string>& states = found->second;
        std::string bytes = states.front();
        if (states.size() > 1)
            states.pop_front();
        return std::make_unique<File>(*this, std::string(path), std::move(bytes));
    }
    bool Exists(std::string_view path) override {
        return folders_.count(std::string(path)) > 0 ||
               std::any_of(files_.begin(), files_.end(),
                           [&](const auto& file) { return EqualsIgnoreCase(file.first, path); });
    }
    std::vector<std::string> List(std::string_view folder, std::string_view pattern) override {
        // A star stands somewhere in the pattern, nothing else is special.
        const std::size_t star = pattern.find('*');
        const std::string_view before = pattern.substr(0, star);
        const std::string_view behind = pattern.substr(star + 1);
        std::vector<std::string> names;
        for (const auto& [path, states] : files_) {
            if (path.find('\\', folder.size()) != std::string::npos || !path.starts_with(folder))
                continue;
            const std::string_view name = std::string_view(path).substr(folder.size());
            if (name.size() >= before.size() + behind.size() &&
                StartsWithIgnoreCase(name, before) &&
                EqualsIgnoreCase(name.substr(name.size() - behind.size()), behind))
                names.emplace_back(name);
        }
        std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
            return CompareIgnoreCase(a, b) < 0;
        });
        return names;
    }
    std::unique_ptr<platform::NewFile> BeginReplacing(std::string_view path) override {
        throw FileError(std::string(path), 5);
    }
    bool CanWrite(std::string_view) override { return true; }
    void MakeFolder(std::string_view path) override { AddFolder(std::string(path)); }

  private:
    class File : public platform::ReadableFile {
      public:
        File(ScriptedFiles& owner, std::string path, std::string bytes)
            : owner_(owner), path_(std::move(path)), bytes_(std::move(bytes)) {
            ++owner_.openNow;
        }
        ~File() override { --owner_.openNow; }
        std::size_t Read(char* buffer, std::size_t capacity) override {
            if (at_ >= owner_.failAfter)
                throw FileError(path_, 33);
            if (at_ >= bytes_.size())
                return 0;
            const std::size_t count = std::min({capacity, owner_.mostAtOnce, bytes_.size() - at_});
            std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(at_), count, buffer);
            at_ += count;
            owner_.bytesRead += count;
            return count;
        }
        bool Seek(std::uint64_t place) override {
            if (owner_.canSeek)
                at_ = static_cast<std::size_t>(place);
            return owner_.canSeek;
        }

      private:
        ScriptedFiles& owner_;
        std::string path_;
        std::string bytes_;
        std::size_t at_ = 0;
    };
    std::map<std::string, std::deque<std::string>> files_;
    std::set<std::string> folders_;
};

// A system code page in which every byte is the character of that number.
class Latin1CodePages : public platform::CodePages {
  public:
    std::string ToUtf8(std::string_view bytes, unsigned codePage) override {
        std::string text;
        for (const char byte : bytes)
            AppendUtf8(text, codePage == kSystem ? static_cast<unsigned char>(byte) : U'?');
        return text;
    }
    std::optional<std::string> FromUtf8(std::string_view, unsigned) override {
        return std::nullopt;
    }
    unsigned OfCharacterSet(std::int32_t) override { return kSystem; }
};

}  // namespace ordalyn::test
