// The profile calls in their two forms.
#pragma once

#include "platform/Platform.h"

namespace ordalyn::win32 {

class Win32AnsiProfile : public platform::ProfileCalls {
  public:
    std::string ReadEntry(std::string_view section, std::string_view key,
                          std::string_view otherwise, std::string_view file,
                          std::size_t size) override;
    std::string ReadKeyNames(std::string_view section, std::string_view file,
                             std::size_t size) override;
    std::string ReadSection(std::string_view section, std::string_view file,
                            std::size_t size) override;
    std::string ReadSectionNames(std::string_view file, std::size_t size) override;
    void WriteEntry(std::string_view section, std::string_view key, std::string_view value,
                    std::string_view file) override;
    void DeleteEntry(std::string_view section, std::string_view key,
                     std::string_view file) override;
    void DeleteSection(std::string_view section, std::string_view file) override;
};

class Win32UnicodeProfile : public platform::ProfileCalls {
  public:
    std::string ReadEntry(std::string_view section, std::string_view key,
                          std::string_view otherwise, std::string_view file,
                          std::size_t size) override;
    std::string ReadKeyNames(std::string_view section, std::string_view file,
                             std::size_t size) override;
    std::string ReadSection(std::string_view section, std::string_view file,
                            std::size_t size) override;
    std::string ReadSectionNames(std::string_view file, std::size_t size) override;
    void WriteEntry(std::string_view section, std::string_view key, std::string_view value,
                    std::string_view file) override;
    void DeleteEntry(std::string_view section, std::string_view key,
                     std::string_view file) override;
    void DeleteSection(std::string_view section, std::string_view file) override;
};

}  // namespace ordalyn::win32
