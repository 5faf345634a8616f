// The filter that narrows the panels, as the filter dialog shows it.
#pragma once

#include <string>
#include <vector>

namespace ordalyn {

struct FilterChoice {
    // As it stands in the dialog's box, applied or not; the status bar shows it.
    std::string boxText;
    // What rows are tested against; empty: no filter.
    std::string FilterText;
    bool target = false;  // otherwise the source is tested
    bool doesNotContain = false;
    // Set when FilterText asks for an operation and is no piece of text like any other: the
    // operation's word, and the words of all operations, one of which can begin another.
    std::string operation = {};
    std::vector<std::string> operationWords = {};
};

}  // namespace ordalyn
