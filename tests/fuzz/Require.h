// What must hold for every input: unlike assert, it is looked at in every build.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace ordalyn::fuzz {

inline void Require(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

}  // namespace ordalyn::fuzz
