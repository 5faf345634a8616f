// Attempt: for routines that must go on step by step whatever a single step runs into, such as
// laying out a window that has become too small. Using it says that this is meant; there are no
// empty catch blocks anywhere else.
#pragma once

#include "base/Errors.h"

namespace ordalyn {

// Runs one step. Returns whether it succeeded; an Error ends the step, not the caller. Anything
// that is not an Error (out of memory, a broken invariant) passes through.
template <typename Step>
bool Attempt(Step&& step) {
    try {
        step();
        return true;
    } catch (const Error&) {
        return false;
    }
}

}  // namespace ordalyn
