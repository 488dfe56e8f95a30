# Run by CPack with the folder that holds what is packed.
set(packed ${CPACK_TOPLEVEL_DIRECTORY}/packed)
file(REMOVE_RECURSE ${packed})
file(MAKE_DIRECTORY ${packed})
execute_process(COMMAND ${CPACK_LUMERIN_SOURCES}/packaging/pack-windows ${CPACK_TEMPORARY_DIRECTORY}
    ${CPACK_PACKAGE_VERSION} ${packed} COMMAND_ERROR_IS_FATAL ANY)
file(GLOB CPACK_EXTERNAL_BUILT_PACKAGES ${packed}/*)
