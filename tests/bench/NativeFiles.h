// NativeFiles: the files of whatever system a measurement runs on, without any buffer between.
// Reading and writing a file is all it can.
#pragma once

#include "platform/Platform.h"

namespace ordalyn::bench {

class NativeFiles : public platform::Files {
  public:
    platform::DriveKind DriveOf(std::string_view) override { return platform::DriveKind::Fixed; }
    std::optional<platform::FileStamp> Stamp(std::string_view path) override;
    std::optional<std::uint64_t> SizeNow(std::string_view) override { return std::nullopt; }
    std::unique_ptr<platform::FolderWatch> Watch(std::string_view) override { return nullptr; }
    std::unique_ptr<platform::ReadableFile> OpenForReading(std::string_view path) override;
    bool Exists(std::string_view path) override;
    std::vector<std::string> List(std::string_view folder, std::string_view pattern) override;
    std::unique_ptr<platform::NewFile> BeginReplacing(std::string_view path) override;
    bool CanWrite(std::string_view path) override;
    void MakeFolder(std::string_view path) override;
};

}  // namespace ordalyn::bench
