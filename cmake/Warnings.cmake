# Warnings are errors in everything that is ours.
add_library(lumerin-warnings INTERFACE)
target_compile_options(lumerin-warnings INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wcast-qual -Wformat=2 -Wnon-virtual-dtor -Woverloaded-virtual -Wundef
    # GCC 12 sees overlapping copies in plain assignments to strings (a false alarm at -O3).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
# Positions along a cap are compared exactly: no fused multiply-add may change the last bit of one of them.
target_compile_options(lumerin-warnings INTERFACE -ffp-contract=off)
if(LUMERIN_SANITIZE)
    target_compile_options(lumerin-warnings INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    target_link_options(lumerin-warnings INTERFACE -fsanitize=address,undefined)
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()
if(LUMERIN_THREADS)
    target_compile_options(lumerin-warnings INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
    target_link_options(lumerin-warnings INTERFACE -fsanitize=thread)
endif()
if(LUMERIN_FUZZ)
    # The warnings are GCC's to judge; clang is here for its fuzzer alone.
    target_compile_options(lumerin-warnings INTERFACE -Wno-error -fsanitize=fuzzer-no-link,address,undefined
        -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(lumerin-warnings INTERFACE -fsanitize=address,undefined)
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()
if(LUMERIN_COVERAGE)
    target_compile_options(lumerin-warnings INTERFACE --coverage -O0 -g)
    target_link_options(lumerin-warnings INTERFACE --coverage)
endif()
