// The profile calls in memory, in both forms, over the files in memory. Like the system's they
// decode a file by its byte order mark, else by the system code page, and write it back likewise.
#pragma once

#include <optional>
#include <string>

#include "platform/IniFile.h"
#include "platform/Platform.h"
#include "support/platform/MemoryCodePages.h"
#include "support/platform/MemoryFiles.h"

namespace ordalyn::test {

class MemoryProfile : public platform::ProfileCalls {
  public:
    enum class Form { Ansi, Unicode };
    MemoryProfile(Form form, MemoryFiles& files, MemoryCodePages& codePages)
        : form_(form), files_(files), codePages_(codePages) {}

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

  private:
    platform::IniFile Load(std::string_view file) const;
    template <typename Change>
    void ChangeFile(std::string_view file, Change&& change);
    std::string In(std::string_view callersText) const;
    std::string OutValue(const std::string& text, std::size_t size) const;
    std::string OutList(const std::string& text, std::size_t size) const;

    Form form_;
    MemoryFiles& files_;
    MemoryCodePages& codePages_;
};

}  // namespace ordalyn::test
