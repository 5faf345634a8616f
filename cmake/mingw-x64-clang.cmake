# The second compiler for Windows (x64): clang, with the headers and libraries of the first one. What
# it compiles is linked by GCC's driver, which knows where its own libraries are.
include(${CMAKE_CURRENT_LIST_DIR}/mingw-x64.cmake)
set(ORDALYN_GCC_DRIVER ${CMAKE_CXX_COMPILER})
set(CMAKE_CXX_COMPILER clang++-14)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_AR x86_64-w64-mingw32-ar CACHE FILEPATH "")
set(CMAKE_RANLIB x86_64-w64-mingw32-ranlib CACHE FILEPATH "")
set(CMAKE_USER_MAKE_RULES_OVERRIDE_CXX ${CMAKE_CURRENT_LIST_DIR}/link_with_gcc.cmake)

execute_process(COMMAND ${ORDALYN_GCC_DRIVER} -print-file-name=include/c++
                OUTPUT_VARIABLE headers OUTPUT_STRIP_TRAILING_WHITESPACE)
# GCC's libraries keep a thread's variables the way that -femulated-tls does.
set(CMAKE_CXX_FLAGS_INIT "-nostdinc++ -isystem ${headers} -isystem ${headers}/x86_64-w64-mingw32 \
-isystem ${headers}/backward -femulated-tls")
