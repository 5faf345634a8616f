# The rooms of src/ and who may use whom, from the table in src/rooms.txt.

set(ORDALYN_ROOM_TABLE ${PROJECT_SOURCE_DIR}/src/rooms.txt)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${ORDALYN_ROOM_TABLE})
file(STRINGS ${ORDALYN_ROOM_TABLE} rows REGEX "^[^#]")
set(ORDALYN_ROOMS "")
foreach(row ${rows})
    string(REGEX MATCH "^([a-z0-9/]+):(.*)$" matched "${row}")
    if(NOT matched)
        message(FATAL_ERROR "${ORDALYN_ROOM_TABLE}: not a row of the table: ${row}")
    endif()
    set(room ${CMAKE_MATCH_1})
    separate_arguments(used UNIX_COMMAND "${CMAKE_MATCH_2}")
    list(APPEND ORDALYN_ROOMS ${room})
    set(ORDALYN_USES_${room} ${used})
endforeach()
foreach(room ${ORDALYN_ROOMS})
    if(NOT EXISTS ${PROJECT_SOURCE_DIR}/src/${room}/CMakeLists.txt)
        message(FATAL_ERROR "${ORDALYN_ROOM_TABLE}: there is no room ${room} in src/")
    endif()
    foreach(used ${ORDALYN_USES_${room}})
        if(NOT used IN_LIST ORDALYN_ROOMS)
            message(FATAL_ERROR "${ORDALYN_ROOM_TABLE}: ${room} is to use ${used}, which is no room")
        endif()
    endforeach()
endforeach()

# The target of a room: windows/main is ordalyn_windows_main.
function(ordalyn_target_of room result)
    string(REPLACE "/" "_" name ${room})
    set(${result} ordalyn_${name} PARENT_SCOPE)
endfunction()

# Every build looks at all includes first and names each one that the table does not allow.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/*.h ${PROJECT_SOURCE_DIR}/src/*.cpp)
foreach(source ${sources})
    cmake_path(GET source PARENT_PATH folder)
    cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${PROJECT_SOURCE_DIR}/src)
    if(NOT folder IN_LIST ORDALYN_ROOMS)
        message(FATAL_ERROR "${source} is in no room: src/${folder} is not in ${ORDALYN_ROOM_TABLE}")
    endif()
endforeach()
set(checker ${PROJECT_SOURCE_DIR}/tools/check_includes.py)
add_custom_command(
    OUTPUT includes-checked
    COMMAND ${Python3_EXECUTABLE} ${checker}
    COMMAND ${CMAKE_COMMAND} -E touch includes-checked
    DEPENDS ${sources} ${ORDALYN_ROOM_TABLE} ${checker}
    COMMENT "Checking who includes whom")
add_custom_target(ordalyn_includes DEPENDS includes-checked)

# ordalyn_room([SOURCES ...] [SYSTEM ...]): the library of the room whose folder this is. It links the
# rooms that the table names, and the system's libraries that are named here.
function(ordalyn_room)
    cmake_parse_arguments(ROOM "" "" "SOURCES;SYSTEM" ${ARGN})
    file(RELATIVE_PATH room ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
    if(NOT room IN_LIST ORDALYN_ROOMS)
        message(FATAL_ERROR "The room ${room} is not in ${ORDALYN_ROOM_TABLE}")
    endif()
    ordalyn_target_of(${room} target)
    # Static, unless BUILD_SHARED_LIBS is set (tools/mutate.py: a change then links one library only).
    add_library(${target} ${ROOM_SOURCES})
    ordalyn_keep_forms_alone(${ROOM_SOURCES})
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    foreach(used ${ORDALYN_USES_${room}})
        ordalyn_target_of(${used} used_target)
        target_link_libraries(${target} PUBLIC ${used_target})
    endforeach()
    target_link_libraries(${target} PUBLIC ${ROOM_SYSTEM} ordalyn_sanitizers PRIVATE ordalyn_warnings)
    add_dependencies(${target} ordalyn_includes)
endfunction()
