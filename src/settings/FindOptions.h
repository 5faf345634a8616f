// FindOptions: what the find dialog keeps from run to run, and its text in the settings file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ordalyn {

// A part that the stored text lacks, or that is none, has no value.
struct FindOptions {
    // In the list of earlier texts; -1: none of them.
    std::optional<std::int32_t> historyIndex = std::nullopt;
    std::optional<std::int32_t> column = std::nullopt;  // 0 source, 1 target
    std::optional<bool> wholeWord = std::nullopt;
    std::optional<bool> selectedDateOnly = std::nullopt;

    bool operator==(const FindOptions&) const = default;
};

// Four numbers with commas between them. Whatever is not 0 turns a flag on.
FindOptions ParseFindOptions(std::string_view text);
// A part without a value is empty.
std::string FindOptionsText(const FindOptions& options);

}  // namespace ordalyn
