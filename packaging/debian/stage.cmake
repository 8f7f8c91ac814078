# Brings the tree that was installed under /usr in the form of a Debian package.
set(root ${CPACK_TEMPORARY_INSTALL_DIRECTORY})
file(RENAME ${root}/usr/etc ${root}/etc)
set(changelog ${root}/usr/share/doc/tarrow-alertor/changelog)
set(ENV{LC_ALL} C)
execute_process(COMMAND date --utc --rfc-email --date=${CPACK_TARROW_RELEASE_DATE}
  OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog.in ${changelog} @ONLY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/lintian-overrides ${root}/usr/share/lintian/overrides/tarrow-alertor COPYONLY)
file(GLOB texts ${root}/usr/share/man/man*/* ${changelog})
execute_process(COMMAND gzip --best --no-name ${texts} COMMAND_ERROR_IS_FATAL ANY)
