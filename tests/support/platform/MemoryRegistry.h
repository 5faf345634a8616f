// A registry in memory.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/Platform.h"

namespace ordalyn::test {

class MemoryRegistry : public platform::Registry {
  public:
    static constexpr std::uint32_t kCurrentUser = 0x80000001, kLocalMachine = 0x80000002;
    static constexpr std::uint32_t kString = 1, kBinary = 3, kNumber = 4;

    std::optional<Value> Query(std::uint32_t root, std::string_view subKey, std::string_view name,
                               std::size_t size) override;
    bool Set(std::uint32_t root, std::string_view subKey, std::string_view name,
             const Value& value) override;
    bool DeleteKey(std::uint32_t root, std::string_view subKey) override;

    // For tests: a text value with its terminating NUL, as programs store them.
    void SetString(std::uint32_t root, std::string_view subKey, std::string_view name,
                   std::string_view text);
    bool HasKey(std::uint32_t root, std::string_view subKey) const;

  private:
    using Key = std::map<std::string, Value>;                    // by folded value name
    std::map<std::pair<std::uint32_t, std::string>, Key> keys_;  // by root and folded path
};

}  // namespace ordalyn::test
