// The filter that narrows the panels, as the filter dialog shows it.
#pragma once

#include <string>

namespace ordalyn {

struct FilterChoice {
    // As it stands in the dialog's box, applied or not; the status bar shows it.
    std::string boxText;
    // What rows are tested against; empty: no filter.
    std::string FilterText;
    bool target = false;  // otherwise the source is tested
    bool doesNotContain = false;
};

}  // namespace ordalyn
