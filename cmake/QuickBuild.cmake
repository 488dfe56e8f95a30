# Shorter builds: headers that are read once for many files, and several sources compiled as one.
option(LUMERIN_PRECOMPILE "Precompile the headers of GoogleTest and those of the standard library in tests" ON)
# A file that lacks an include is found where it is compiled by itself: the libraries in a build with TESTS, the tests by
# tools/check-alone.
set(LUMERIN_UNITY OFF CACHE STRING "Compile several sources of a target as one: OFF, TESTS (those of tests alone) or ON")
set_property(CACHE LUMERIN_UNITY PROPERTY STRINGS OFF TESTS ON)

# Where there is a compiler cache, builds in several folders share their work.
find_program(LUMERIN_CCACHE ccache)
if(LUMERIN_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # It looks into precompiled headers only when it may.
    set(CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_SLOPPINESS=pch_defines,time_macros ${LUMERIN_CCACHE})
endif()

# A time in a precompiled header would make each of them a new one to the cache.
add_library(lumerin-precompiled INTERFACE)
target_compile_options(lumerin-precompiled INTERFACE
    # GCC 12 no longer knows then that strings are the system's, and gives false alarms in their copies.
    $<IF:$<CXX_COMPILER_ID:GNU>,-fpch-preprocess;-Wno-array-bounds;-Wno-stringop-overflow,SHELL:-Xclang -fno-pch-timestamp>)

# For what runs once a command and is all templates: optimising it costs more than the rest of a library.
set(LUMERIN_BRIEF_OPTIONS $<IF:$<OR:$<BOOL:${LUMERIN_SANITIZE}>,$<CONFIG:Debug>>,-O0,-O1>)

if(LUMERIN_UNITY)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
endif()

# lumerin_quick_build(TARGET): compiles the target's sources by LUMERIN_UNITY_SIZE, as LUMERIN_UNITY says. Sources that share
# a local name are never compiled as one.
set(LUMERIN_UNITY_SIZE 12)
function(lumerin_quick_build target)
    get_target_property(is_test ${target} LUMERIN_TEST)
    if(NOT LUMERIN_UNITY OR (LUMERIN_UNITY STREQUAL "TESTS" AND NOT is_test))
        return()
    endif()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    get_target_property(sources ${target} SOURCES)
    # A test takes its own function in the place of this file, which is therefore an object of its own.
    list(REMOVE_ITEM sources ${CMAKE_SOURCE_DIR}/src/embedment/dialog/headless/ReadScreen.cpp)
    if(WIN32)
        # The headers of Windows define thousands of macros.
        list(FILTER sources EXCLUDE REGEX "/(win32|windows)/")
    endif()
    execute_process(COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/local_names.py ${LUMERIN_UNITY_SIZE} ${sources}
        OUTPUT_VARIABLE groups COMMAND_ERROR_IS_FATAL ANY OUTPUT_STRIP_TRAILING_WHITESPACE)
    string(REPLACE ";" "|" groups "${groups}")
    string(REPLACE "\n" ";" groups "${groups}")
    set(number 0)
    foreach(group ${groups})
        string(REPLACE "|" ";" files "${group}")
        list(LENGTH files count)
        if(count GREATER 1)
            math(EXPR number "${number} + 1")
            set_source_files_properties(${files} PROPERTIES UNITY_GROUP ${number})
        endif()
    endforeach()
endfunction()
