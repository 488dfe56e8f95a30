# Shorter builds: headers that are read once for many files, and several sources compiled as one.
option(LUMERIN_PRECOMPILE "Precompile the headers of GoogleTest and those of the standard library in tests" ON)
# A file that lacks an include, or says the same name twice, is found by a build without this one.
option(LUMERIN_UNITY "Compile several sources of a target as one" OFF)

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

# For sources that read a command line. CLI11 is all templates, which run once and cost more to optimise than the rest of
# a library.
set(LUMERIN_PARSER_OPTIONS $<IF:$<OR:$<BOOL:${LUMERIN_SANITIZE}>,$<CONFIG:Debug>>,-O0,-O1>)

if(LUMERIN_UNITY)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
endif()

# lumerin_quick_build(TARGET): compiles the target's sources by sixes where LUMERIN_UNITY is on. A source that shares a
# local name with another one is compiled by itself.
function(lumerin_quick_build target)
    if(NOT LUMERIN_UNITY)
        return()
    endif()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 6)
    get_target_property(sources ${target} SOURCES)
    execute_process(COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/local_names.py ${sources}
        OUTPUT_VARIABLE alone COMMAND_ERROR_IS_FATAL ANY)
    # A test takes its own function in the place of this file, which is therefore an object of its own.
    list(APPEND alone ${CMAKE_SOURCE_DIR}/src/embedment/dialog/headless/ReadScreen.cpp)
    set_source_files_properties(${alone} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()
