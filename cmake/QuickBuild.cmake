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

# Sources of one target in one compilation must not have the same local name; those that have are listed here.
set(LUMERIN_ALONE
    samples/Project.cpp
    src/cli/InfoPrint.cpp src/cli/Options.cpp src/cli/Viewer.cpp
    src/embedment/dialog/MPTEDlg.cpp src/embedment/dialog/MPTEPlot.cpp
    src/grid/GridLayout.cpp
    src/records/ElementRecords.cpp src/records/ModelRecords.cpp src/records/SectionRecords.cpp
    src/records/StudyRecords.cpp src/records/VerdictRecords.cpp
    src/results/ReadData.cpp
    src/session/DesignerDlg.cpp
    src/tables/EnvelopeFile.cpp src/tables/Words.cpp
    src/writers/MaxAxialSheet.cpp src/writers/PileHeadSheet.cpp src/writers/SectionSheets.cpp
    tests/envelopes/CapShearTest.cpp
    tests/framework/KeyboardTest.cpp
    tests/results/CombinationsTest.cpp
    tests/text/TwelveDecimalsTest.cpp
    tests/writers/SheetMaxAxialTest.cpp)
list(TRANSFORM LUMERIN_ALONE PREPEND ${CMAKE_SOURCE_DIR}/)

# For sources that read a command line. CLI11 is all templates, which run once and cost more to optimise than the rest of
# a library.
set(LUMERIN_PARSER_OPTIONS $<IF:$<OR:$<BOOL:${LUMERIN_SANITIZE}>,$<CONFIG:Debug>>,-O0,-O1>)

# lumerin_quick_build(TARGET): compiles the target's sources by sixes where LUMERIN_UNITY is on.
function(lumerin_quick_build target)
    if(NOT LUMERIN_UNITY)
        return()
    endif()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 6)
    get_target_property(sources ${target} SOURCES)
    foreach(source ${sources})
        if(source IN_LIST LUMERIN_ALONE)
            set_source_files_properties(${source} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
        endif()
    endforeach()
endfunction()
