#include "settings/Placement.h"

#include <vector>

#include "base/CheckedMath.h"
#include "base/Errors.h"
#include "base/Text.h"

namespace ordalyn {

namespace {

constexpr std::int32_t kNormal = 0, kMinimised = 1, kMaximised = 2;

double NumberAt(const std::vector<std::string>& parts, std::size_t index) {
    const double number = index < parts.size() ? LeadingNumber(parts[index]) : 0.0;
    static_cast<void>(RoundToLong(number));
    return number;
}

}  // namespace

Placement ParsePlacement(std::string_view text) {
    const std::vector<std::string> parts = Split(text, ',');
    return {.left = NumberAt(parts, 0),
            .top = NumberAt(parts, 1),
            .width = NumberAt(parts, 2),
            .height = NumberAt(parts, 3)};
}

std::string PlacementText(const Placement& placement) {
    std::vector<std::string> parts;
    for (const double value : {placement.left, placement.top, placement.width, placement.height})
        parts.push_back(std::to_string(TruncateToLong(value)));
    return Join(parts, ",");
}

std::int32_t ParseStartState(std::string_view text) {
    switch (RoundToLong(LeadingNumber(text))) {
        case kNormal:
        case kMinimised:
            return kNormal;
        case kMaximised:
            return kMaximised;
        default:
            throw InvalidPropertyValue("window state");
    }
}

}  // namespace ordalyn
