# ordalyn_warnings: what our own code is compiled with; third-party code is not.
add_library(ordalyn_warnings INTERFACE)
target_compile_options(ordalyn_warnings INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
    # GetProcAddress and the like answer a pointer to a function of another type by design.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-cast-function-type>
    # Files that are compiled together are no headers, whatever the compiler thinks.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>
    # GCC 12 reports a false overlap for string concatenation at -O3 (its bug 105651).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
