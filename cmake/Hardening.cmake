# What compiler and linker do against faults that no test found. A build that looks for faults by itself goes without.
set(cxx "$<COMPILE_LANGUAGE:CXX>")
if(NOT LUMERIN_INSTRUMENTED)
    add_compile_options("$<${cxx}:-fstack-protector-strong>")
    # Only optimised code knows the sizes of its buffers.
    add_compile_definitions("$<$<AND:${cxx},$<NOT:$<CONFIG:Debug>>>:_FORTIFY_SOURCE=2>")
    if(WIN32)
        add_link_options(-fstack-protector-strong LINKER:--dynamicbase LINKER:--nxcompat)
    else()
        # The program lies at another address each time, and the tables of the loader are read-only before it begins.
        set(CMAKE_POSITION_INDEPENDENT_CODE ON)
        include(CheckPIESupported)
        check_pie_supported(LANGUAGES CXX)
        add_link_options(LINKER:-z,relro LINKER:-z,now)
    endif()
endif()

# Two builds are the same bytes, whenever and in whatever folder they are made.
add_compile_options("$<${cxx}:-Werror=date-time>" "$<${cxx}:-ffile-prefix-map=${CMAKE_BINARY_DIR}/=build/>"
    "$<${cxx}:-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=>")
if(WIN32)
    add_link_options(LINKER:--no-insert-timestamp)
endif()
