# The zip and the installer of Windows: the module, the program, the guide and the samples. CPack puts them into a folder,
# and packaging/pack-windows makes both of it.

# Editors of Windows show text without carriage returns as one line.
function(windows_text source name)
    configure_file(${CMAKE_SOURCE_DIR}/${source} ${CMAKE_BINARY_DIR}/documents/${name} @ONLY NEWLINE_STYLE CRLF)
    install(FILES ${CMAKE_BINARY_DIR}/documents/${name} DESTINATION .)
endfunction()
windows_text(packaging/README.txt README.txt)
windows_text(LICENSE LICENSE.txt)
windows_text(THIRD-PARTY-NOTICES.txt THIRD-PARTY-NOTICES.txt)
windows_text(CHANGELOG.md CHANGELOG.txt)

install(FILES $<TARGET_FILE:Lumerin> DESTINATION module)
install(PROGRAMS $<TARGET_FILE:lumerin> DESTINATION bin)

set(CPACK_PACKAGE_NAME lumerin)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_FILE_NAME lumerin-${PROJECT_VERSION}-windows)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_SOURCE_DIR}/cmake/BeforePacking.cmake)
set(CPACK_GENERATOR External)
set(CPACK_EXTERNAL_ENABLE_STAGING ON)
set(CPACK_EXTERNAL_PACKAGE_SCRIPT ${CMAKE_SOURCE_DIR}/cmake/PackWindows.cmake)
# What the script finds the sources by.
set(CPACK_LUMERIN_SOURCES ${CMAKE_SOURCE_DIR})
include(CPack)
