# Run by CPack between the installation into its own folder and the packing.
if(CPACK_GENERATOR STREQUAL "DEB")
    # What Debian asks of a package's documents. There is one changelog, so its own only leads to it.
    file(GLOB pages ${CPACK_TEMPORARY_DIRECTORY}/usr/share/man/man1/*.1)
    string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
    set(changelog ${CPACK_TEMPORARY_DIRECTORY}/usr/share/doc/lumerin/changelog)
    file(WRITE ${changelog} "lumerin (${CPACK_PACKAGE_VERSION}) bookworm; urgency=medium\n
  * The changes are in CHANGELOG.md.\n
 -- ${CPACK_PACKAGE_VENDOR} <>  ${date}\n")
    execute_process(COMMAND gzip -9n ${pages} ${changelog} COMMAND_ERROR_IS_FATAL ANY)
endif()

if(DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND find ${CPACK_TEMPORARY_DIRECTORY} -exec touch -h -d @$ENV{SOURCE_DATE_EPOCH} {} +
        COMMAND_ERROR_IS_FATAL ANY)
endif()
