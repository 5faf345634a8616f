// The process's surroundings.
#pragma once

#include "platform/Platform.h"

namespace ordalyn::win32 {

class Win32Environment : public platform::Environment {
  public:
    std::string Expand(std::string_view text) override;
    std::string Variable(std::string_view name) override;
    void SetVariable(std::string_view name, std::string_view value) override;
    std::string SpecialFolder(std::string_view name) override;
    std::string CommandLine() override;
    std::string ProgramPath() override;
    platform::LocalTime Now() override;
};

}  // namespace ordalyn::win32
