# Installs the libraries: headers, archives, a CMake package with one component for each library, and
# pkg-config files.
include(CMakePackageConfigHelpers)

set(libraries utils geometry image metadata codecs glext gl options window scene)
# Headers that are not installed, because only sources of the same library include them.
set(excluded)
foreach(header mappingguard.h ifdwalk.h makernotes.h binaryio.h bmpstream.h jpeglimits.h jpegtransform_ops.h
        sizelimits.h glformattables.h glucalls.h textureupload.h unpackbounds.h optionrow.h framegeometry.h
        viewmatrix.h)
  list(APPEND excluded PATTERN ${header} EXCLUDE)
endforeach()

set(include_dir "${CMAKE_INSTALL_INCLUDEDIR}/zanoview3")
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/zanoview3")
set(pc_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH pc_to_prefix "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
string(REGEX REPLACE "/$" "" pc_to_prefix "${pc_to_prefix}")

# The pkg-config names of the packages that libraries are linked with.
set(pc_name_JPEG::JPEG libjpeg)
set(pc_name_PkgConfig::PNG libpng)
set(pc_name_PkgConfig::GLFW glfw3)
set(pc_name_PkgConfig::GLU glu)

# zv_pc_file(<name> <description> <linker flags> <required package>...)
function(zv_pc_file pc_name pc_description pc_libs)
  list(JOIN ARGN " " pc_requires)
  configure_file(library.pc.in "${CMAKE_CURRENT_BINARY_DIR}/${pc_name}.pc" @ONLY)
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${pc_name}.pc" DESTINATION "${pc_dir}" COMPONENT dev)
endfunction()

set(all_requires)
foreach(library IN LISTS libraries)
  set_target_properties(zv_${library} PROPERTIES
    EXPORT_NAME ${library} OUTPUT_NAME zanoview3_${library})
  target_compile_features(zv_${library} PUBLIC cxx_std_20)
  install(TARGETS zv_${library} EXPORT zanoview3 DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT dev
    INCLUDES DESTINATION "${include_dir}")
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/${library}" DESTINATION "${include_dir}" COMPONENT dev
    FILES_MATCHING PATTERN "*.h" ${excluded})

  get_target_property(links zv_${library} LINK_LIBRARIES)
  set(requires)
  set(libs "-lzanoview3_${library}")
  foreach(link IN LISTS links)
    if(link MATCHES "^zv_(.*)")
      list(APPEND requires zanoview3-${CMAKE_MATCH_1})
    elseif(DEFINED pc_name_${link})
      list(APPEND requires ${pc_name_${link}})
    elseif(NOT link MATCHES "zv_flags")
      string(APPEND libs " -l${link}")
    endif()
  endforeach()
  zv_pc_file(zanoview3-${library} "The ${library} library of the picture viewer zanoview3" "${libs}"
    ${requires})
  list(APPEND all_requires zanoview3-${library})
endforeach()
zv_pc_file(zanoview3 "All libraries of the picture viewer zanoview3" "" ${all_requires})

install(EXPORT zanoview3 NAMESPACE zanoview3:: FILE zanoview3Targets.cmake
  DESTINATION "${package_dir}" COMPONENT dev)
configure_file(zanoview3Config.cmake.in "${CMAKE_CURRENT_BINARY_DIR}/zanoview3Config.cmake" @ONLY)
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/zanoview3ConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/zanoview3Config.cmake"
  "${CMAKE_CURRENT_BINARY_DIR}/zanoview3ConfigVersion.cmake"
  DESTINATION "${package_dir}" COMPONENT dev)
