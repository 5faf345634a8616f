// Placement: where a window stands, and its text in the settings file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ordalyn {

// In twips.
struct Placement {
    double left = 0, top = 0, width = 0, height = 0;

    bool operator==(const Placement&) const = default;
};

// Left, top, width and height with commas between them. Parts that are missing or no numbers count
// as 0. Throws Overflow for a number beyond 32 bits: there is no place for such a window.
Placement ParsePlacement(std::string_view text);
// In whole twips, the fractions cut off.
std::string PlacementText(const Placement& placement);

// The number of the state that a window starts in, 0 normal or 2 maximised, from the stored one. A
// stored 1, minimised, is 0, so that the program never starts minimised; a text that is no number
// is 0, too. Throws InvalidPropertyValue for a state that does not exist.
std::int32_t ParseStartState(std::string_view text);

}  // namespace ordalyn
