// What the history window says in words.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "base/TextSource.h"
#include "history/FileHistory.h"

namespace ordalyn {

// Gives the date of an entry in the form in which the panels show it.
using DateOfEntry = std::function<std::string(std::int32_t)>;

// "Moved 3 times, last seen at D:\x on 15.03.2024, deleted on 16.03.2024".
std::string LifeInWords(const FileLife& life, const TextSource& text, const DateOfEntry& dateOf);
// "2 of 3: 14.03.2024 to 16.03.2024"; numbers count from 1.
std::string LifeInList(const FileLife& life, std::size_t number, std::size_t count,
                       const TextSource& text, const DateOfEntry& dateOf);
// A text about a path, which replaces "%p" in it.
std::string AboutPath(std::string_view text, std::string_view path);

}  // namespace ordalyn
