// TextSource: where a part of the program gets its texts. Parts that show texts are given one, so
// that they know nothing of language files.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace ordalyn {

// Returns the text of a string id in the interface language.
using TextSource = std::function<std::string(std::int32_t id)>;

}  // namespace ordalyn
