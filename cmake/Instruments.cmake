# What watches a program from inside: sanitizers, the fuzzer's counters, coverage. Every object of a build has the
# same ones, so the libraries hand them on to what links them.
option(LUMERIN_SANITIZE "Build with the address and undefined behaviour sanitizers" OFF)
option(LUMERIN_FUZZ "Build the fuzz targets too; wants clang and LUMERIN_SANITIZE" OFF)
option(LUMERIN_THREADS "Build with the thread sanitizer" OFF)
option(LUMERIN_COVERAGE "Count the lines that the tests reach" OFF)

add_library(lumerin-instruments INTERFACE)
set(LUMERIN_INSTRUMENTED OFF)
if(LUMERIN_SANITIZE)
    set(LUMERIN_INSTRUMENTED ON)
    target_compile_options(lumerin-instruments INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    target_link_options(lumerin-instruments INTERFACE -fsanitize=address,undefined)
    target_compile_definitions(lumerin-instruments INTERFACE _GLIBCXX_ASSERTIONS LUMERIN_SANITIZED)
endif()
if(LUMERIN_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES Clang OR NOT LUMERIN_SANITIZE)
        message(FATAL_ERROR "LUMERIN_FUZZ wants clang and LUMERIN_SANITIZE: use the preset sanitize")
    endif()
    # The counters alone; the fuzzer itself, which has a main, is linked into the fuzz targets. In the tests, which no
    # fuzz target contains, counters would be a third of the code.
    # tools/check-dead-code asks the linker which functions no program reaches: each has a section of its own, and none
    # that is not written as inline becomes part of its callers.
    set(options -fsanitize=fuzzer-no-link -ffunction-sections -finline-hint-functions)
    target_compile_options(lumerin-instruments INTERFACE
        "$<$<NOT:$<BOOL:$<TARGET_PROPERTY:LUMERIN_TEST>>>:${options}>")
endif()
if(LUMERIN_THREADS)
    set(LUMERIN_INSTRUMENTED ON)
    target_compile_options(lumerin-instruments INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
    target_compile_definitions(lumerin-instruments INTERFACE LUMERIN_SANITIZED)
    target_link_options(lumerin-instruments INTERFACE -fsanitize=thread)
endif()
if(LUMERIN_COVERAGE)
    set(LUMERIN_INSTRUMENTED ON)
    target_compile_options(lumerin-instruments INTERFACE --coverage -O0 -g)
    target_link_options(lumerin-instruments INTERFACE --coverage)
endif()
