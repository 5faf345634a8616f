// cRegistry: the program's accessor for the registry. A place is one path whose first part names
// the root: "HKEY_CURRENT_USER\Software\Ghisler\Total Commander". Root names count in any letter
// case and only in full; with any other root nothing is found and nothing is written.
//
// Nothing here throws or reports an error.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "platform/Platform.h"

namespace ordalyn {

class mAppCommon;

class cRegistry {
  public:
    static constexpr std::uint32_t REG_SZ = 1, REG_BINARY = 3, REG_DWORD = 4;
    using NewValue = std::variant<std::string, std::int32_t>;

    cRegistry(const platform::Services& services, const mAppCommon& common);

    // The value as a text; the marker of absent values when the key or the value is absent or takes
    // more than 2048 characters.
    //  - REG_BINARY: two upper-case hexadecimal digits for each byte, nothing between them.
    //  - REG_DWORD: only the first three characters of the decimal number, which has leading zeros
    //    up to that length: 5 is "005", 1234 is "123". That is how this accessor cuts all values to
    //    one character less than their stored length, and it is meant to stay; nobody reads
    //    numbers.
    //  - All others: without the last character, the NUL that ends a string.
    std::string ReadValue(std::string_view strValuePath, std::string_view strValueName) const;
    // Creates the key when it is missing. A REG_DWORD is stored as such (0 for a text that is no
    // number). Whatever else the type says, the value is stored as a REG_SZ, and only for REG_SZ
    // itself with a NUL at its end.
    void WriteValue(std::string_view strValuePath, std::string_view strValueName,
                    const NewValue& vntValue, std::uint32_t uValueType) const;
    // Removes a key that has no sub-keys. Always returns an empty text, whatever happened.
    std::string Deletekey(std::string_view strKeyPath) const;

  private:
    static std::uint32_t RootFromPath(std::string_view path);
    static std::string_view SubKeyFromPath(std::string_view path);
    std::string TextOf(const platform::Registry::Value& value) const;

    platform::Registry& registry_;
    platform::CodePages& codePages_;
    const mAppCommon& common_;
};

}  // namespace ordalyn
