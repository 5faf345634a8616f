# Read by CMake after its own rules: programs and libraries are linked by GCC's driver, without the
# compiler's flags. The two compilers give sections that hold the same constant different sizes; the
# linker takes one of them and warns of each, which says nothing about the program (-w).
foreach(rule LINK_EXECUTABLE CREATE_SHARED_LIBRARY CREATE_SHARED_MODULE)
    string(REPLACE "<CMAKE_CXX_COMPILER>" "${ORDALYN_GCC_DRIVER} -Wl,-w"
           CMAKE_CXX_${rule} "${CMAKE_CXX_${rule}}")
    string(REPLACE "<FLAGS>" "" CMAKE_CXX_${rule} "${CMAKE_CXX_${rule}}")
    string(REPLACE "<LANGUAGE_COMPILE_FLAGS>" "" CMAKE_CXX_${rule} "${CMAKE_CXX_${rule}}")
endforeach()
