// Whether the code may use SSE2: ORDALYN_SSE2 is 1 and the intrinsics are there, or it is not
// defined. Every processor on which a Windows of today runs has it, but 32-bit compilers need an
// option (cmake/mingw-x86.cmake); other processors than Intel's take the portable way.
#pragma once

#if defined(__SSE2__) || defined(_M_X64)
#define ORDALYN_SSE2 1
#include <emmintrin.h>
#endif
