# What is installed, and the packages of it: `cpack -G "DEB;TGZ"` in the native build's folder, `cpack -G External` (zip
# and installer) in that of Windows. tools/release makes and checks all of a release.
include(GNUInstallDirs)
# What is built is named: the tests and benchmarks are no part of a package.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

if(WIN32)
    # The manual and the samples are made by programs that run here.
    set(LUMERIN_NATIVE_BUILD ${CMAKE_SOURCE_DIR}/build/native CACHE PATH "The native build, of which the packages have guide and samples")
    set(made ${LUMERIN_NATIVE_BUILD})
    set(documents .)
    set(sample_folder samples)
    set(example_folder examples)
else()
    set(made ${CMAKE_BINARY_DIR})
    set(documents ${CMAKE_INSTALL_DATADIR}/doc/lumerin)
    set(sample_folder ${CMAKE_INSTALL_DATADIR}/lumerin/samples)
    set(example_folder ${documents}/examples)
endif()
set(samples ${made}/sample-projects)
set(guide ${made}/guide)

# What both platforms have: the guide as web pages, samples, and the examples that it names.
install(DIRECTORY ${guide} DESTINATION ${documents} OPTIONAL)
install(DIRECTORY ${samples}/ DESTINATION ${sample_folder} PATTERN made EXCLUDE)
install(DIRECTORY examples/ DESTINATION ${example_folder} PATTERN __pycache__ EXCLUDE)

if(WIN32)
    include(cmake/WindowsPackages.cmake)
    return()
endif()

# The projects that the guide's examples use.
set(presets pier bent group walls bridge history)
set(make_samples "")
foreach(preset ${presets})
    list(APPEND make_samples COMMAND make-sample ${samples} --preset ${preset} --name ${preset})
endforeach()
add_custom_command(OUTPUT ${samples}/made ${make_samples} COMMAND ${CMAKE_COMMAND} -E touch ${samples}/made
    DEPENDS make-sample COMMENT "" VERBATIM)
add_custom_target(sample-projects ALL DEPENDS ${samples}/made)

# Made when it is asked for, as a build needs no pandoc.
add_custom_target(guide COMMAND ${CMAKE_SOURCE_DIR}/packaging/make-guide ${CMAKE_BINARY_DIR}/man ${guide} VERBATIM)
add_dependencies(guide manual)

install(TARGETS lumerin RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${CMAKE_BINARY_DIR}/man/ DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 FILES_MATCHING PATTERN "*.1")
install(FILES ${CMAKE_BINARY_DIR}/completion/lumerin DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES CHANGELOG.md THIRD-PARTY-NOTICES.txt DESTINATION ${documents})
install(FILES LICENSE DESTINATION ${documents} RENAME copyright)

set(CPACK_PACKAGE_NAME lumerin)
set(CPACK_PACKAGE_VENDOR "The Lumerin developers")
set(CPACK_PACKAGE_CONTACT ${CPACK_PACKAGE_VENDOR})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Report tables for bridge substructures")
set(CPACK_PACKAGE_DESCRIPTION "Reads the result files of a substructure analysis: piers, pile bents, pile
groups and walls. It finds maxima and design envelopes for each limit class,
checks demand/capacity ratios, and writes tables as text, PDF, spreadsheet,
web page and data.")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
# All times are that of SOURCE_DATE_EPOCH where it is set, so that the same sources make the same package.
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_SOURCE_DIR}/cmake/BeforePacking.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# It is loaded by the program, so that no list of the linker names it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS libxlsxwriter4)
set(CPACK_PACKAGE_FILE_NAME lumerin-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
include(CPack)
