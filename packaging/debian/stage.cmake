# Brings the tree that was installed under /usr in the form of a Debian package.
set(root ${CPACK_TEMPORARY_INSTALL_DIRECTORY})
file(RENAME ${root}/usr/etc ${root}/etc)
file(COPY ${CMAKE_CURRENT_LIST_DIR}/changelog DESTINATION ${root}/usr/share/doc/tarrow-alertor)
file(GLOB texts ${root}/usr/share/man/man*/* ${root}/usr/share/doc/tarrow-alertor/changelog)
execute_process(COMMAND gzip --best --no-name ${texts} COMMAND_ERROR_IS_FATAL ANY)
