# The two header-only libraries of Debian that the programs use, each as a target of its own. They are reached by a
# folder of links, so that a build for another platform sees no other header of the build machine.
set(LUMERIN_HEADERS ${CMAKE_BINARY_DIR}/headers)
file(MAKE_DIRECTORY ${LUMERIN_HEADERS})

function(lumerin_header_library target folder)
    find_path(${target}_FOLDER NAMES ${folder} PATHS /usr/include /usr/local/include NO_DEFAULT_PATH
        NO_CMAKE_FIND_ROOT_PATH REQUIRED)
    file(CREATE_LINK ${${target}_FOLDER}/${folder} ${LUMERIN_HEADERS}/${folder} SYMBOLIC)
    add_library(${target} INTERFACE)
    target_include_directories(${target} SYSTEM INTERFACE ${LUMERIN_HEADERS})
endfunction()

lumerin_header_library(lumerin-cli11 CLI)
lumerin_header_library(lumerin-json nlohmann)
