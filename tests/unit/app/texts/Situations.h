// Every place where the program shows a text, brought about in the program itself.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "unit/app/texts/Speaker.h"

namespace ordalyn::test {

// "File (&F)" and "&File" as they read.
std::string WithoutAccessKeys(const std::string& caption);

// Without the blanks at its ends, which are there for the look of a window.
std::string Trimmed(const std::string& text);

struct Situation {
    enum class Kind { Title, Message, Count, Window };
    Kind kind;
    const char* name;
    std::vector<std::string> inserts;  // what the program puts in
    // What is read then. The program has been started, and seen the situations before this one.
    std::function<std::string(Speaker&)> shown;
};

const std::vector<Situation>& Situations();

}  // namespace ordalyn::test
