// How windows get their texts. Filled by the program with its interface language, so that a window
// knows nothing of language files.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "toolkit/Form.h"

namespace ordalyn {

// The text of a string id in the interface language.
using TextById = std::function<std::string(std::int32_t id)>;

struct Texts {
    TextById text;
    // Gives a form and all its controls their texts by their ids.
    std::function<void(toolkit::Form&)> apply;
};

}  // namespace ordalyn
