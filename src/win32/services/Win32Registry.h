// The registry.
#pragma once

#include "platform/Platform.h"

namespace ordalyn::win32 {

class Win32Registry : public platform::Registry {
  public:
    // Looks in the registry's view of this program first, then in that of programs of the other
    // width: on 64-bit systems a 32-bit file manager keeps its keys apart.
    std::optional<Value> Query(std::uint32_t root, std::string_view subKey, std::string_view name,
                               std::size_t size) override;
    bool Set(std::uint32_t root, std::string_view subKey, std::string_view name,
             const Value& value) override;
    bool DeleteKey(std::uint32_t root, std::string_view subKey) override;
};

}  // namespace ordalyn::win32
