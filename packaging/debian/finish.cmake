# Run by CPack on what was installed: the documents as Debian wants to have them.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
  return()
endif()
set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
set(doc ${share}/doc/veneerer)
file(COPY ${CPACK_VENEERER_PACKAGING}/debian/copyright ${CPACK_VENEERER_PACKAGING}/debian/changelog
     DESTINATION ${doc} FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
file(GLOB pages ${share}/man/man1/*.1)
execute_process(COMMAND gzip -9n ${doc}/changelog ${pages} COMMAND_ERROR_IS_FATAL ANY)
