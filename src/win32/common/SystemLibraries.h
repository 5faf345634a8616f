// Libraries of the system, which come from the system's folder only: beside the program, in a
// folder of downloads say, can lie anything that has the name of one.
#pragma once

#include "win32/common/Handles.h"

namespace ordalyn::win32 {

// From now on the process finds libraries that are asked for by name alone in the system's folder.
// To be called before anything else: what asks for them may be any part of the system.
void FindLibrariesInSystemFolderOnly();

// The library of this name in the system's folder; none when there is none.
Library LoadSystemLibrary(const wchar_t* name);

// A library's function; null when the library is none or has no such function.
template <typename Function>
Function* FunctionOf(const Library& library, const char* name) {
    return library ? reinterpret_cast<Function*>(GetProcAddress(library.Get(), name)) : nullptr;
}

}  // namespace ordalyn::win32
