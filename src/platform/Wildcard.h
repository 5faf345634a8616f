// File name patterns as the system understands them.
#pragma once

#include <string_view>

namespace ordalyn::platform {

// Whether the name matches the pattern, ignoring case. "*" stands for any characters, "?" for one,
// or for none at the end of the name and before a dot. "*.*" matches every name, one without a dot
// included; a pattern that ends in "*." matches the names without a dot. The system's own search
// also matches the short names that it keeps beside the long ones; this one never does.
bool MatchesWildcard(std::string_view name, std::string_view pattern);

}  // namespace ordalyn::platform
