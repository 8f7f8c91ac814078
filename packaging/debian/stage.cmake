# Brings the tree that was installed under /usr in the form of a Debian package.
file(RENAME ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/etc ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/etc)
file(GLOB pages ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/man/man*/*)
execute_process(COMMAND gzip --best --no-name ${pages} COMMAND_ERROR_IS_FATAL ANY)
