// Texts: how the forms of this room get their texts. Filled by the program with its interface
// language, so that a form knows nothing of language files.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "toolkit/Form.h"

namespace ordalyn {

struct Texts {
    // The text of a string id in the interface language.
    std::function<std::string(std::int32_t)> text;
    // Gives a form and all its controls their texts by their ids.
    std::function<void(toolkit::Form&)> apply;
};

}  // namespace ordalyn
