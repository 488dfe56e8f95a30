# Warnings for everything that is ours. LUMERIN_WERROR, on in the presets, makes them errors; off, a compiler that
# warns about more than ours does still builds the program.
option(LUMERIN_WERROR "Treat warnings as errors" OFF)

add_library(lumerin-warnings INTERFACE)
target_compile_options(lumerin-warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wcast-qual -Wformat=2 -Wnon-virtual-dtor -Woverloaded-virtual -Wundef
    # GCC 12 sees overlapping copies in plain assignments to strings (a false alarm at -O3).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(LUMERIN_WERROR)
    target_compile_options(lumerin-warnings INTERFACE -Werror)
endif()
