#include "bench/NativeFiles.h"

#include <cstdio>
#include <filesystem>
#include <string>
#include <utility>

#include "base/Errors.h"

namespace ordalyn::bench {

namespace {

class NativeFile : public platform::ReadableFile {
  public:
    NativeFile(std::FILE* file, std::string_view path) : file_(file), path_(path) {
        std::setvbuf(file_, nullptr, _IONBF, 0);
    }
    ~NativeFile() override { std::fclose(file_); }
    NativeFile(const NativeFile&) = delete;
    NativeFile& operator=(const NativeFile&) = delete;
    std::size_t Read(char* buffer, std::size_t capacity) override {
        const std::size_t count = std::fread(buffer, 1, capacity, file_);
        if (count == 0 && std::ferror(file_) != 0)
            throw FileError(path_, 1);
        return count;
    }

  private:
    std::FILE* file_;
    std::string path_;
};

class NativeNewFile : public platform::NewFile {
  public:
    explicit NativeNewFile(const std::string& path)
        : path_(path), file_(std::fopen((path + ".tmp").c_str(), "wb")) {
        if (file_ == nullptr)
            throw FileError(path_, 5);
        std::setvbuf(file_, nullptr, _IONBF, 0);
    }
    ~NativeNewFile() override {
        if (file_ != nullptr)
            std::fclose(file_);
    }
    NativeNewFile(const NativeNewFile&) = delete;
    NativeNewFile& operator=(const NativeNewFile&) = delete;
    void Write(std::string_view bytes) override {
        if (std::fwrite(bytes.data(), 1, bytes.size(), file_) != bytes.size())
            throw FileError(path_, 112);
    }
    void TakePlace() override {
        std::fclose(std::exchange(file_, nullptr));
        std::filesystem::rename(path_ + ".tmp", path_);
    }

  private:
    std::string path_;
    std::FILE* file_;
};

}  // namespace

std::unique_ptr<platform::ReadableFile> NativeFiles::OpenForReading(std::string_view path) {
    const std::string name(path);
    std::FILE* file = std::fopen(name.c_str(), "rb");
    if (file == nullptr)
        throw FileError(name, 2);
    return std::make_unique<NativeFile>(file, path);
}

bool NativeFiles::Exists(std::string_view path) {
    return std::filesystem::exists(std::string(path));
}

std::vector<std::string> NativeFiles::List(std::string_view, std::string_view) {
    return {};
}

std::unique_ptr<platform::NewFile> NativeFiles::BeginReplacing(std::string_view path) {
    return std::make_unique<NativeNewFile>(std::string(path));
}

std::optional<platform::FileStamp> NativeFiles::Stamp(std::string_view) {
    return std::nullopt;
}

bool NativeFiles::CanWrite(std::string_view) {
    return false;
}

void NativeFiles::MakeFolder(std::string_view path) {
    throw FileError(std::string(path), 5);
}

}  // namespace ordalyn::bench
