// A page for a reader: what each situation shows, in all languages below one another.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace ordalyn::test {

struct TextsSection {
    std::string name;
    std::vector<std::pair<std::string, std::string>> texts;  // language, what is shown
};

// The page as HTML in UTF-8; `rightToLeft` is the language that is written so.
std::string TextsPage(const std::vector<TextsSection>& sections, const std::string& rightToLeft);

}  // namespace ordalyn::test
