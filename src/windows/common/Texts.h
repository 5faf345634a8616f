// How windows get their texts. Filled by the program with its interface language, so that a window
// knows nothing of language files.
#pragma once

#include <functional>

#include "base/TextSource.h"
#include "toolkit/Form.h"

namespace ordalyn {

struct Texts {
    TextSource text;
    // Gives a form and all its controls their texts by their ids.
    std::function<void(toolkit::Form&)> apply;
};

}  // namespace ordalyn
