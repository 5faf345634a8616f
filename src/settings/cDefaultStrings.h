// cDefaultStrings: the English texts that are built into the program, by string id. Everything the
// program shows is looked up through InterfaceStrings, which falls back to this table.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ordalyn {

class cDefaultStrings {
  public:
    // The table as written: each element is an id, "=" and a text. "&" in a text marks an access
    // key.
    static std::span<const std::string_view> BuiltInTable();

    cDefaultStrings();
    // For tables other than the built-in one.
    explicit cDefaultStrings(std::span<const std::string_view> table);

    // The text of the first entry with that id: all that stands behind its first "=". Empty when
    // the table has no such id.
    std::string GetDefaultString(std::int32_t lngID) const;

  private:
    std::vector<std::string_view> entries_;
};

}  // namespace ordalyn
