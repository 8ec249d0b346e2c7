# The Debian package: `cpack --config build/CPackConfig.cmake` makes it.
set(ZV_MAINTAINER "zanoview3 authors <maintainers@zanoview3.invalid>" CACHE STRING
  "Name and address of the package's maintainer")
# Sorts before the revisions of Debian's own packages.
set(debian_release 0upstream1)

execute_process(COMMAND date --utc --date "${release_date}" --rfc-email
  OUTPUT_VARIABLE debian_date OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
set(debian_changelog "${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian")
file(CONFIGURE OUTPUT "${debian_changelog}" @ONLY CONTENT
"zanoview3 (@PROJECT_VERSION@-@debian_release@) unstable; urgency=medium

  * New release. See changelog.gz.

 -- @ZV_MAINTAINER@  @debian_date@
")
set(debian_documents "${debian_changelog}.gz" "${CMAKE_CURRENT_BINARY_DIR}/changelog.gz")
zv_compress("${debian_changelog}" "${debian_changelog}.gz")
zv_compress("${changelog}" "${CMAKE_CURRENT_BINARY_DIR}/changelog.gz")
install(FILES ${debian_documents} DESTINATION "${CMAKE_INSTALL_DOCDIR}"
  COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}" RENAME copyright
  COMPONENT debian EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "")
set(CPACK_PACKAGE_CONTACT "${ZV_MAINTAINER}")
set(CPACK_INSTALL_CMAKE_PROJECTS
  "${PROJECT_BINARY_DIR};${PROJECT_NAME};runtime;/;${PROJECT_BINARY_DIR};${PROJECT_NAME};debian;/")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_BINARY_DIR}/strip.cmake")
file(CONFIGURE OUTPUT "${CPACK_PRE_BUILD_SCRIPTS}" @ONLY CONTENT
[[# Removes the compiler's name from the programs. Stripping does not remove it.
file(GLOB programs "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/bin/*"
  "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/libexec/zanoview3/zanoview3")
execute_process(COMMAND "@CMAKE_STRIP@" --remove-section=.comment ${programs}
  COMMAND_ERROR_IS_FATAL ANY)
]])
execute_process(COMMAND dpkg --print-architecture
  OUTPUT_VARIABLE architecture OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
set(CPACK_DEBIAN_FILE_NAME zanoview3_${PROJECT_VERSION}-${debian_release}_${architecture}.deb)
set(zv_debian_package "${CPACK_DEBIAN_FILE_NAME}" PARENT_SCOPE)  # the tests open it
set(CPACK_DEBIAN_PACKAGE_RELEASE ${debian_release})
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The program loads libGL at run time: dpkg-shlibdeps does not find it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS libgl1)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "keyboard-driven picture viewer that draws through OpenGL")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"zanoview3 shows JPEG, PNG, BMP and TGA pictures, each in a photo frame. It
moves, zooms and turns a picture to any angle, and finds it again exactly as
it was left: the view of a picture can be stored in a small file beside it.
.
There is no menu, every command is a key. Photographs are shown upright by
their Exif orientation, pictures of any size are drawn, and the program sleeps
when nothing happens.")
include(CPack)
