# ordalyn_sanitizers: memory errors and undefined behaviour end a test at once.
option(ORDALYN_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
add_library(ordalyn_sanitizers INTERFACE)
if(ORDALYN_SANITIZE)
    set(flags -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(ordalyn_sanitizers INTERFACE ${flags})
    target_link_options(ordalyn_sanitizers INTERFACE ${flags})
endif()
