# What `cmake --install` puts where. A further library is one more of ravix_libraries, and one ravix_pkg_config.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(ravix_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ravix_types)
set(ravix_data_dir ${CMAKE_INSTALL_DATADIR}/ravix_types)

# Of each library both kinds, its headers, and its part of the CMake package; a library stands after those that it uses.
set(ravix_libraries ravix_types)
if(RAVIX_BUILD_JSON)
  list(APPEND ravix_libraries ravix_types_json)
endif()
if(RAVIX_PLATFORM STREQUAL "bundled")
  list(PREPEND ravix_libraries zelcsock)
else()
  install(FILES cmake/system_zelcsock.cmake DESTINATION ${ravix_package_dir})
endif()
foreach(target IN LISTS ravix_libraries)
  # A library finds those of the project beside it in any prefix; in the system's own directories nobody needs to be told.
  if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
  endif()
  set(kinds ${target})
  if(TARGET ${target}_static)
    target_include_directories(${target}_static INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    list(APPEND kinds ${target}_static)
  endif()
  install(TARGETS ${kinds} EXPORT ${target} FILE_SET HEADERS)
  install(EXPORT ${target} NAMESPACE ravix:: FILE ${target}-targets.cmake DESTINATION ${ravix_package_dir})
  get_target_property(name ${target} EXPORT_NAME)
  list(APPEND ravix_names ${name})
endforeach()
list(JOIN ravix_libraries " " ravix_libraries)
list(JOIN ravix_names " " ravix_names)

# ravix_pkg_config(<target> DESCRIPTION <text> [REQUIRES <module>...] [LIBRARIES <name>...]): its pkg-config file. LIBRARIES
# are those of the project without such a file that it links.
function(ravix_pkg_config target)
  cmake_parse_arguments(PARSE_ARGV 1 pc "" "DESCRIPTION" "REQUIRES;LIBRARIES")
  set(pc_name ${target})
  list(JOIN pc_REQUIRES ", " pc_requires)
  # What the archive needs: asked for by `pkg-config --static`, and by every program where there is nothing but the archive.
  list(TRANSFORM pc_LIBRARIES PREPEND "-l")
  list(TRANSFORM RAVIX_CXX_RUNTIME PREPEND "-l" OUTPUT_VARIABLE runtime)
  list(JOIN pc_LIBRARIES " " pc_libs_private)
  list(JOIN runtime " " runtime)
  string(STRIP "${pc_libs_private} ${runtime}" pc_libs_private)
  if(NOT BUILD_SHARED_LIBS)
    set(pc_libs " ${pc_libs_private}")
  endif()
  file(RELATIVE_PATH pc_to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
  string(REGEX REPLACE "/$" "" pc_to_prefix "${pc_to_prefix}")
  configure_file(${PROJECT_SOURCE_DIR}/cmake/pkg_config.pc.in ${PROJECT_BINARY_DIR}/${target}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${target}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

ravix_pkg_config(ravix_types DESCRIPTION ${PROJECT_DESCRIPTION} LIBRARIES zelcsock)
if(RAVIX_BUILD_JSON)
  ravix_pkg_config(ravix_types_json DESCRIPTION "Records of the ravix WLAN control interface as JSON" REQUIRES ravix_types
                                    LIBRARIES zelcsock)
endif()
if(RAVIX_BUILD_JSON_SCHEMA)
  install(FILES ${PROJECT_BINARY_DIR}/json/ravix_types.schema.json DESTINATION ${ravix_data_dir})
endif()

configure_package_config_file(cmake/ravix_types-config.cmake.in ${PROJECT_BINARY_DIR}/cmake/ravix_types-config.cmake
                              INSTALL_DESTINATION ${ravix_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/cmake/ravix_types-config-version.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/cmake/ravix_types-config.cmake
              ${PROJECT_BINARY_DIR}/cmake/ravix_types-config-version.cmake
        DESTINATION ${ravix_package_dir})
